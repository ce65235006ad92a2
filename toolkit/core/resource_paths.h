#pragma once
// Where the toolkit finds its resources: the instance folder (holding Res/)
// and the skin folder under it. The paint manager's static path functions
// and the resource manager's language files both read this one store.
#include <string>

namespace DuiLib {
namespace resource_paths {

// The folder holding Res/, with a trailing slash. It starts as
// $SPACEMGM_RESOURCE_ROOT, or "./" without it.
std::wstring Instance();
// Also resets the skin folder to <instance>Res/skin/.
void SetInstance(std::wstring path);

// The folder skins and images are read from, with a trailing slash.
std::wstring Skin();
void SetSkin(std::wstring path);

} // namespace resource_paths
} // namespace DuiLib
