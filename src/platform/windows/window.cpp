#include "platform/windows/window.h"

#include <tpcshrd.h>
#include <windowsx.h>

#include <algorithm>
#include <system_error>

#include "platform/windows/gdi_canvas.h"
#include "platform/windows/pixels.h"

namespace {

constexpr const wchar_t* kClass = L"OnzeTables";
constexpr const wchar_t* kTitle = L"Onze Tables";
constexpr int kIcon = 1;  // its number in the resources
constexpr int kWidth = kPageWidth / kTwipsPerPixel;
constexpr int kHeight = kPageHeight / kTwipsPerPixel;
constexpr std::int64_t kShortWaitMs = 200;

// Sharpens the system's timers, which else may be late by 16 ms, for the length of a short wait.
class SharpTimers {
  public:
    explicit SharpTimers(bool wanted) : wanted_(wanted) {
        if (wanted_) timeBeginPeriod(1);
    }
    ~SharpTimers() {
        if (wanted_) timeEndPeriod(1);
    }
    SharpTimers(const SharpTimers&) = delete;
    SharpTimers& operator=(const SharpTimers&) = delete;

  private:
    bool wanted_;
};

void RegisterOnce(WNDPROC procedure) {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSEXW window_class{};
    window_class.cbSize = sizeof(window_class);
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = program;
    window_class.lpszClassName = kClass;
    window_class.hIcon = LoadIconW(program, MAKEINTRESOURCEW(kIcon));
    window_class.hIconSm = static_cast<HICON>(LoadImageW(program, MAKEINTRESOURCEW(kIcon), IMAGE_ICON,
                                                         GetSystemMetrics(SM_CXSMICON),
                                                         GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    RegisterClassExW(&window_class);
}

Point PointOf(LPARAM lparam) {
    return MiddleOfPixel(GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam));
}

}  // namespace

Window::Window(WindowsPlatform& platform, Stage& stage)
    : platform_(platform), stage_(stage), page_(kWidth, kHeight) {
    RegisterOnce(&Window::Procedure);
    CreateWindowExW(WS_EX_APPWINDOW, kClass, kTitle, WS_POPUP, 0, 0, kWidth, kHeight, nullptr, nullptr,
                    GetModuleHandleW(nullptr), this);
    if (!handle_) throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
}

Window::~Window() {
    if (handle_) DestroyWindow(handle_);
}

void Window::Run() {
    PlaceOnScreen();
    ShowWindow(handle_, SW_SHOWNORMAL);
    SetForegroundWindow(handle_);
    while (Running()) {
        Refresh();
        WaitForWork();
        PassMessages();
        if (Running()) stage_.RunDue();
    }
    if (failure_) std::rethrow_exception(failure_);
}

void Window::WaitForWork() const {
    const auto due = stage_.NextDue();
    const std::int64_t wait = due ? std::max<std::int64_t>(*due - platform_.TickCount(), 0) : INFINITE;
    const SharpTimers sharp(wait > 0 && wait < kShortWaitMs);
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(wait), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

void Window::PassMessages() {
    MSG message;
    while (Running() && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageW(&message);
        if (Running()) Refresh();
    }
}

// Asks for the painting of what changed; the pointer's looks may have changed with it.
void Window::Refresh() {
    const Rect damage = stage_.TakeDamage();
    if (damage.empty()) return;
    const RECT pixels = PixelsAround(damage);
    InvalidateRect(handle_, &pixels, FALSE);
    ShowCursor();
}

LRESULT CALLBACK Window::Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCCREATE) {
        auto* const created = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams);
        created->handle_ = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* const window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (!window) return DefWindowProcW(handle, message, wparam, lparam);
    try {
        return window->Handle(message, wparam, lparam);
    } catch (...) {
        // The system's code between here and the loop cannot be unwound.
        window->failure_ = std::current_exception();
        return 0;
    }
}

LRESULT Window::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_MOUSEMOVE:
            stage_.Move(PointOf(lparam));
            return 0;
        case WM_LBUTTONDOWN:
            Press(PointOf(lparam));
            return 0;
        case WM_LBUTTONUP:
            Release(PointOf(lparam));
            return 0;
        case WM_CAPTURECHANGED:
            LoseCapture();
            return 0;
        case WM_MOUSEWHEEL:
            Wheel(wparam, lparam);
            return 0;
        case WM_SETCURSOR:
            if (LOWORD(lparam) == HTCLIENT && ShowCursor()) return TRUE;
            break;
        case WM_DISPLAYCHANGE:
            PlaceOnScreen();
            return 0;
        case WM_SYSCOMMAND:
            // The Alt key alone would open a menu that is not there, and hold up the timers meanwhile.
            if ((wparam & 0xFFF0) == SC_KEYMENU) return 0;
            break;
        case WM_TABLET_QUERYSYSTEMGESTURESTATUS:
            // A finger held on an arrow repeats it; it is no right click in the making.
            return TABLET_DISABLE_PRESSANDHOLD;
        case WM_NCDESTROY:
            handle_ = nullptr;
            return 0;
        default:
            break;
    }
    return DefWindowProcW(handle_, message, wparam, lparam);
}

void Window::Paint() {
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(handle_, &paint);
    const RECT& dirty = paint.rcPaint;
    const HDC page = page_.dc();
    const int state = SaveDC(page);
    IntersectClipRect(page, dirty.left, dirty.top, dirty.right, dirty.bottom);
    GdiCanvas canvas(page, platform_.fonts());
    stage_.Paint(canvas, ToTwips(dirty));
    RestoreDC(page, state);
    BitBlt(screen, dirty.left, dirty.top, dirty.right - dirty.left, dirty.bottom - dirty.top, page,
           dirty.left, dirty.top, SRCCOPY);
    EndPaint(handle_, &paint);
}

void Window::Press(Point point) {
    SetCapture(handle_);
    pressed_ = true;
    const int across = std::max(GetSystemMetrics(SM_CXDOUBLECLK), GetSystemMetrics(SM_CYDOUBLECLK));
    stage_.Press(point, {.pressed_at = GetMessageTime(),
                         .time = GetDoubleClickTime(),
                         .distance = across * kTwipsPerPixel / 2});
}

void Window::Release(Point point) {
    if (!pressed_) return;
    pressed_ = false;
    ReleaseCapture();
    stage_.Release(point);
}

void Window::LoseCapture() {
    if (!pressed_) return;
    pressed_ = false;
    stage_.CancelPress();
}

void Window::Wheel(WPARAM wparam, LPARAM lparam) {
    wheel_turn_ += GET_WHEEL_DELTA_WPARAM(wparam);
    const int notches = wheel_turn_ / WHEEL_DELTA;
    if (notches == 0) return;
    wheel_turn_ -= notches * WHEEL_DELTA;
    POINT pixel{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    ScreenToClient(handle_, &pixel);
    stage_.Wheel(MiddleOfPixel(pixel.x, pixel.y), notches);
}

void Window::PlaceOnScreen() const {
    const int left = (platform_.ScreenWidthInPixels() - kWidth) / 2;
    const int top = (platform_.ScreenHeightInPixels() - kHeight) / 2;
    SetWindowPos(handle_, HWND_TOP, left, top, kWidth, kHeight, SWP_NOACTIVATE);
}

bool Window::ShowCursor() const {
    POINT pixel;
    if (!GetCursorPos(&pixel) || WindowFromPoint(pixel) != handle_) return false;
    ScreenToClient(handle_, &pixel);
    const bool hand = stage_.ReactsToClickAt(MiddleOfPixel(pixel.x, pixel.y));
    SetCursor(LoadCursorW(nullptr, hand ? IDC_HAND : IDC_ARROW));
    return true;
}
