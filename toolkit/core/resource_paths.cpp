#include "toolkit/core/resource_paths.h"

#include <cstdlib>
#include <mutex>

#include "toolkit/core/attributes.h"

namespace DuiLib {
namespace resource_paths {

namespace {

std::wstring WithTrailingSlash(std::wstring path)
{
    if (!path.empty() && path.back() != L'/')
        path += L'/';
    return path;
}

std::wstring InitialInstance()
{
    const char* env = std::getenv("SPACEMGM_RESOURCE_ROOT");
    return WithTrailingSlash(attr::Widen(env != nullptr && *env != 0 ? env : "."));
}

struct Store
{
    std::mutex mutex;
    std::wstring instance = InitialInstance();
    std::wstring skin = instance + L"Res/skin/";
};

Store& TheStore()
{
    static Store store;
    return store;
}

} // namespace

std::wstring Instance()
{
    Store& store = TheStore();
    std::lock_guard<std::mutex> lock(store.mutex);
    return store.instance;
}

void SetInstance(std::wstring path)
{
    Store& store = TheStore();
    std::lock_guard<std::mutex> lock(store.mutex);
    store.instance = WithTrailingSlash(std::move(path));
    store.skin = store.instance + L"Res/skin/";
}

std::wstring Skin()
{
    Store& store = TheStore();
    std::lock_guard<std::mutex> lock(store.mutex);
    return store.skin;
}

void SetSkin(std::wstring path)
{
    Store& store = TheStore();
    std::lock_guard<std::mutex> lock(store.mutex);
    store.skin = WithTrailingSlash(std::move(path));
}

} // namespace resource_paths
} // namespace DuiLib
