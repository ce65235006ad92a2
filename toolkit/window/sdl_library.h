#pragma once
// SDL2, loaded only when a window goes to an SDL surface. Linking SDL2 maps
// its video libraries (X11, Wayland and their kin) into every process at
// start, and an offscreen window never uses them; so SDL's headers give the
// types and constants, and its functions are called through this table,
// filled with dlopen/dlsym on first use.

#include <SDL.h>

#include <string>

namespace DuiLib {

// The shared library the table is filled from.
constexpr const char kSdlLibraryName[] = "libSDL2-2.0.so.0";

// Every SDL function the toolkit calls, once.
#define DUILIB_SDL_FUNCTIONS(X)                                                                              \
    X(SDL_SetHint)                                                                                           \
    X(SDL_InitSubSystem)                                                                                     \
    X(SDL_RegisterEvents)                                                                                    \
    X(SDL_WaitEvent)                                                                                         \
    X(SDL_WaitEventTimeout)                                                                                  \
    X(SDL_PollEvent)                                                                                         \
    X(SDL_PushEvent)                                                                                         \
    X(SDL_GetError)                                                                                          \
    X(SDL_CreateWindow)                                                                                      \
    X(SDL_DestroyWindow)                                                                                     \
    X(SDL_GetWindowID)                                                                                       \
    X(SDL_SetWindowSize)                                                                                     \
    X(SDL_SetWindowPosition)                                                                                 \
    X(SDL_ShowWindow)                                                                                        \
    X(SDL_HideWindow)                                                                                        \
    X(SDL_RaiseWindow)                                                                                       \
    X(SDL_SetWindowTitle)                                                                                    \
    X(SDL_GetWindowDisplayIndex)                                                                             \
    X(SDL_GetDisplayUsableBounds)                                                                            \
    X(SDL_CreateRenderer)                                                                                    \
    X(SDL_DestroyRenderer)                                                                                   \
    X(SDL_SetRenderDrawColor)                                                                                \
    X(SDL_RenderClear)                                                                                       \
    X(SDL_RenderCopy)                                                                                        \
    X(SDL_RenderPresent)                                                                                     \
    X(SDL_CreateTexture)                                                                                     \
    X(SDL_DestroyTexture)                                                                                    \
    X(SDL_SetTextureBlendMode)                                                                               \
    X(SDL_UpdateTexture)

// SDL's functions by their own names: `sdl.SDL_CreateWindow(...)`.
struct SdlFunctions
{
#define DUILIB_SDL_POINTER(name) decltype(&::name) name = nullptr;
    DUILIB_SDL_FUNCTIONS(DUILIB_SDL_POINTER)
#undef DUILIB_SDL_POINTER
};

// A loaded copy of SDL2. The handle is released on destruction; the code
// stays mapped (RTLD_NODELETE), since SDL's video drivers may still hold
// work of the library's when the process tears down.
class SdlLibrary
{
public:
    // Opens `fileName` and resolves every function of the table. On failure
    // Functions() is null and Error() says why: the library's name and
    // what the dynamic loader said.
    explicit SdlLibrary(const char* fileName);
    ~SdlLibrary();
    SdlLibrary(const SdlLibrary&) = delete;
    SdlLibrary& operator=(const SdlLibrary&) = delete;

    const SdlFunctions* Functions() const { return m_loaded ? &m_functions : nullptr; }
    const std::string& Error() const { return m_error; }

private:
    bool Resolve(const char* fileName);

    void* m_handle = nullptr;
    bool m_loaded = false;
    SdlFunctions m_functions;
    std::string m_error;
};

// The process's SDL2, loaded by the first caller from any thread (later
// callers wait for it and get the same answer). Null when it cannot be
// loaded; `error`, when given, then receives the reason.
const SdlFunctions* LoadSdl(std::string* error = nullptr);

} // namespace DuiLib
