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

// Runs `use` on the one store with its lock held.
template <class Use> auto Locked(Use use)
{
    Store& store = TheStore();
    std::lock_guard<std::mutex> lock(store.mutex);
    return use(store);
}

} // namespace

std::wstring Instance()
{
    return Locked([](Store& store) { return store.instance; });
}

void SetInstance(std::wstring path)
{
    Locked([&path](Store& store) {
        store.instance = WithTrailingSlash(std::move(path));
        store.skin = store.instance + L"Res/skin/";
    });
}

std::wstring Skin()
{
    return Locked([](Store& store) { return store.skin; });
}

void SetSkin(std::wstring path)
{
    Locked([&path](Store& store) { store.skin = WithTrailingSlash(std::move(path)); });
}

} // namespace resource_paths
} // namespace DuiLib
