#include "toolkit/window/sdl_library.h"

#include <dlfcn.h>

#include <memory>
#include <mutex>

namespace DuiLib {

namespace {

std::string LoaderError()
{
    const char* reason = dlerror();
    return reason != nullptr ? reason : "unknown error";
}

template <typename Function>
bool Lookup(void* handle, const char* name, Function& function, const std::string& prefix, std::string& error)
{
    // Cleared first, so that the error read after a null belongs to this
    // lookup.
    dlerror();
    function = reinterpret_cast<Function>(dlsym(handle, name));
    if (function == nullptr)
        error = prefix + LoaderError();
    return function != nullptr;
}

} // namespace

SdlLibrary::SdlLibrary(const char* fileName)
{
    m_loaded = Resolve(fileName);
    if (!m_loaded)
        m_functions = SdlFunctions{};
}

SdlLibrary::~SdlLibrary()
{
    if (m_handle != nullptr)
        dlclose(m_handle);
}

bool SdlLibrary::Resolve(const char* fileName)
{
    const std::string prefix = std::string("cannot load ") + fileName + ": ";
    m_handle = dlopen(fileName, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (m_handle == nullptr) {
        m_error = prefix + LoaderError();
        return false;
    }
#define DUILIB_SDL_RESOLVE(name)                                                                             \
    if (!Lookup(m_handle, #name, m_functions.name, prefix, m_error))                                         \
        return false;
    DUILIB_SDL_FUNCTIONS(DUILIB_SDL_RESOLVE)
#undef DUILIB_SDL_RESOLVE
    return true;
}

const SdlFunctions* LoadSdl(std::string* error)
{
    static std::once_flag once;
    static std::unique_ptr<SdlLibrary> library;
    std::call_once(once, [] { library = std::make_unique<SdlLibrary>(kSdlLibraryName); });
    if (library->Functions() == nullptr && error != nullptr)
        *error = library->Error();
    return library->Functions();
}

} // namespace DuiLib
