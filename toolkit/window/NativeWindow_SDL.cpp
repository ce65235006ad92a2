// SDL2 windows. Frames painted by cairo are copied into a streaming texture
// and presented. SDL's events are read on the window thread through the
// message queue's external event source, translated to window messages and
// posted to the window they belong to, so input takes the same road as on
// Windows. SDL has one event queue per process: all SDL windows should live
// on one thread. SDL's functions come from the table of sdl_library.h,
// loaded when the first SDL surface is asked for.

#include <cairo.h>

#include <map>
#include <mutex>

#include "toolkit/core/attributes.h"
#include "toolkit/win32/message_queue.h"
#include "toolkit/window/canvas.h"
#include "toolkit/window/native_surface.h"
#include "toolkit/window/sdl_library.h"

namespace DuiLib {

namespace {

// SDL, for code that runs only once an SDL surface exists, so once the
// library has loaded.
const SdlFunctions& Sdl()
{
    return *LoadSdl();
}

std::mutex g_windowsMutex;
std::map<Uint32, HWND>& SdlWindows()
{
    static std::map<Uint32, HWND> windows;
    return windows;
}

Uint32 g_wakeEvent = 0;

bool StartSdlVideo()
{
    static std::once_flag once;
    static bool started = false;
    std::call_once(once, [] {
        Sdl().SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        Sdl().SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
        started = Sdl().SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
        if (started)
            g_wakeEvent = Sdl().SDL_RegisterEvents(1);
    });
    return started;
}

HWND WindowFor(Uint32 windowId)
{
    std::lock_guard<std::mutex> lock(g_windowsMutex);
    const auto found = SdlWindows().find(windowId);
    return found != SdlWindows().end() ? found->second : nullptr;
}

UINT VirtualKey(SDL_Keycode key)
{
    switch (key) {
    case SDLK_TAB:
        return VK_TAB;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
        return VK_RETURN;
    case SDLK_ESCAPE:
        return VK_ESCAPE;
    case SDLK_SPACE:
        return VK_SPACE;
    case SDLK_UP:
        return VK_UP;
    case SDLK_DOWN:
        return VK_DOWN;
    case SDLK_LEFT:
        return VK_LEFT;
    case SDLK_RIGHT:
        return VK_RIGHT;
    case SDLK_PAGEUP:
        return VK_PRIOR;
    case SDLK_PAGEDOWN:
        return VK_NEXT;
    case SDLK_HOME:
        return VK_HOME;
    case SDLK_END:
        return VK_END;
    case SDLK_BACKSPACE:
        return VK_BACK;
    case SDLK_DELETE:
        return VK_DELETE;
    default:
        return 0;
    }
}

struct PointerState
{
    int x = 0;
    int y = 0;
};

std::map<Uint32, PointerState>& Pointers()
{
    thread_local std::map<Uint32, PointerState> pointers;
    return pointers;
}

void Translate(const SDL_Event& ev)
{
    switch (ev.type) {
    case SDL_MOUSEMOTION:
        if (HWND hwnd = WindowFor(ev.motion.windowID)) {
            Pointers()[ev.motion.windowID] = PointerState{ev.motion.x, ev.motion.y};
            ::PostMessageW(hwnd, WM_MOUSEMOVE, 0, MAKELPARAM(ev.motion.x, ev.motion.y));
        }
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        if (ev.button.button != SDL_BUTTON_LEFT)
            break;
        if (HWND hwnd = WindowFor(ev.button.windowID)) {
            Pointers()[ev.button.windowID] = PointerState{ev.button.x, ev.button.y};
            const UINT msg = ev.type == SDL_MOUSEBUTTONDOWN ? WM_LBUTTONDOWN : WM_LBUTTONUP;
            ::PostMessageW(hwnd, msg, 0, MAKELPARAM(ev.button.x, ev.button.y));
        }
        break;
    case SDL_MOUSEWHEEL:
        if (HWND hwnd = WindowFor(ev.wheel.windowID)) {
            const PointerState at = Pointers()[ev.wheel.windowID];
            const int delta = ev.wheel.y * WHEEL_DELTA;
            ::PostMessageW(hwnd, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(static_cast<short>(delta))),
                           MAKELPARAM(at.x, at.y));
        }
        break;
    case SDL_KEYDOWN:
        if (HWND hwnd = WindowFor(ev.key.windowID)) {
            const UINT vk = VirtualKey(ev.key.keysym.sym);
            // Bit 0 of lParam carries Shift, for Shift+Tab.
            const LPARAM shift = (ev.key.keysym.mod & KMOD_SHIFT) ? 1 : 0;
            if (vk != 0)
                ::PostMessageW(hwnd, WM_KEYDOWN, vk, shift);
        }
        break;
    case SDL_WINDOWEVENT:
        if (HWND hwnd = WindowFor(ev.window.windowID)) {
            switch (ev.window.event) {
            case SDL_WINDOWEVENT_CLOSE:
                ::PostMessageW(hwnd, WM_CLOSE, 0, 0);
                break;
            case SDL_WINDOWEVENT_EXPOSED:
                ::PostMessageW(hwnd, WM_PAINT, 0, 0);
                break;
            case SDL_WINDOWEVENT_LEAVE:
                ::PostMessageW(hwnd, WM_MOUSELEAVE, 0, 0);
                break;
            default:
                break;
            }
        }
        break;
    default:
        break;
    }
}

void WaitForSdl(DWORD timeoutMs)
{
    SDL_Event ev;
    int got = 0;
    if (timeoutMs == INFINITE) {
        got = Sdl().SDL_WaitEvent(&ev);
    } else {
        got = Sdl().SDL_WaitEventTimeout(&ev, static_cast<int>(timeoutMs));
    }
    while (got) {
        Translate(ev);
        got = Sdl().SDL_PollEvent(&ev);
    }
}

void WakeSdl()
{
    SDL_Event ev{};
    ev.type = g_wakeEvent;
    Sdl().SDL_PushEvent(&ev);
}

void InstallEventSourceOnThisThread()
{
    thread_local bool installed = false;
    if (installed)
        return;
    installed = true;
    SetThreadEventSource(ExternalEventSource{WaitForSdl, WakeSdl});
}

class SdlSurface : public NativeSurface
{
public:
    SdlSurface(HWND hwnd, SDL_Window* window, SDL_Renderer* renderer)
        : m_hwnd(hwnd), m_window(window), m_renderer(renderer)
    {
        std::lock_guard<std::mutex> lock(g_windowsMutex);
        SdlWindows()[Sdl().SDL_GetWindowID(m_window)] = m_hwnd;
    }

    ~SdlSurface() override
    {
        {
            std::lock_guard<std::mutex> lock(g_windowsMutex);
            SdlWindows().erase(Sdl().SDL_GetWindowID(m_window));
        }
        if (m_canvas)
            cairo_surface_destroy(m_canvas);
        if (m_texture)
            Sdl().SDL_DestroyTexture(m_texture);
        Sdl().SDL_DestroyRenderer(m_renderer);
        Sdl().SDL_DestroyWindow(m_window);
    }

    cairo_t* BeginPaint(int width, int height) override
    {
        if (width <= 0 || height <= 0)
            return nullptr;
        bool remade = false;
        cairo_t* cr = BeginCanvasFrame(m_canvas, width, height, &remade);
        if (remade) {
            if (m_texture)
                Sdl().SDL_DestroyTexture(m_texture);
            m_texture = Sdl().SDL_CreateTexture(m_renderer, SDL_PIXELFORMAT_ARGB8888,
                                                SDL_TEXTUREACCESS_STREAMING, width, height);
            Sdl().SDL_SetTextureBlendMode(m_texture, SDL_BLENDMODE_BLEND);
        }
        return cr;
    }

    void EndPaint(cairo_t* cr) override
    {
        cairo_destroy(cr);
        cairo_surface_flush(m_canvas);
        if (m_texture == nullptr)
            return;
        Sdl().SDL_UpdateTexture(m_texture, nullptr, cairo_image_surface_get_data(m_canvas),
                                cairo_image_surface_get_stride(m_canvas));
        Sdl().SDL_SetRenderDrawColor(m_renderer, 255, 255, 255, 255);
        Sdl().SDL_RenderClear(m_renderer);
        Sdl().SDL_RenderCopy(m_renderer, m_texture, nullptr, nullptr);
        Sdl().SDL_RenderPresent(m_renderer);
    }

    void SetGeometry(const RECT& rect) override
    {
        Sdl().SDL_SetWindowSize(m_window, std::max<int>(1, rect.right - rect.left),
                                std::max<int>(1, rect.bottom - rect.top));
        Sdl().SDL_SetWindowPosition(m_window, rect.left, rect.top);
    }

    void Show(bool show) override
    {
        m_shown = show;
        if (show) {
            Sdl().SDL_ShowWindow(m_window);
            Sdl().SDL_RaiseWindow(m_window);
        } else {
            Sdl().SDL_HideWindow(m_window);
        }
    }

    bool IsShown() const override { return m_shown; }

    void SetTitle(const std::wstring& title) override
    {
        Sdl().SDL_SetWindowTitle(m_window, attr::Narrow(title).c_str());
    }

    SIZE ScreenSize() const override
    {
        SDL_Rect bounds{0, 0, 1920, 1080};
        const int display = Sdl().SDL_GetWindowDisplayIndex(m_window);
        Sdl().SDL_GetDisplayUsableBounds(display < 0 ? 0 : display, &bounds);
        return SIZE{bounds.w, bounds.h};
    }

    cairo_surface_t* LastFrame() const override { return m_canvas; }

private:
    HWND m_hwnd;
    SDL_Window* m_window;
    SDL_Renderer* m_renderer;
    SDL_Texture* m_texture = nullptr;
    cairo_surface_t* m_canvas = nullptr;
    bool m_shown = false;
};

} // namespace

std::unique_ptr<NativeSurface> CreateSdlSurface(HWND hWnd)
{
    if (LoadSdl() == nullptr || !StartSdlVideo())
        return nullptr;
    SDL_Window* window =
        Sdl().SDL_CreateWindow("", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, 1, 1, SDL_WINDOW_HIDDEN);
    if (window == nullptr)
        return nullptr;
    SDL_Renderer* renderer = Sdl().SDL_CreateRenderer(window, -1, 0);
    if (renderer == nullptr)
        renderer = Sdl().SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE);
    if (renderer == nullptr) {
        Sdl().SDL_DestroyWindow(window);
        return nullptr;
    }
    InstallEventSourceOnThisThread();
    return std::make_unique<SdlSurface>(hWnd, window, renderer);
}

} // namespace DuiLib
