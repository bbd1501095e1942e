#include "platform/windows/window.h"

#include <tpcshrd.h>
#include <windowsx.h>

#include <algorithm>

#include "platform/windows/accessible.h"
#include "platform/windows/canvas.h"
#include "platform/windows/keys.h"
#include "platform/windows/printer.h"
#include "platform/windows/utf8.h"
#include "shell/paper.h"

namespace onze {

namespace {

constexpr const wchar_t* kClass = L"OnzeTables";
constexpr const wchar_t* kTitle = L"Onze Tables";
constexpr int kIcon = 1;  // its number in the resources
constexpr int kWidth = kPageWidth / kTwipsPerPixel;
constexpr int kHeight = kPageHeight / kTwipsPerPixel;
constexpr std::int64_t kShortWaitMs = 200;

// The system's timers may be late by 16 ms; for the length of a short wait they are asked to be exact.
class ExactTimers {
  public:
    explicit ExactTimers(bool wanted) : wanted_(wanted) {
        if (wanted_) timeBeginPeriod(1);
    }
    ~ExactTimers() {
        if (wanted_) timeEndPeriod(1);
    }
    ExactTimers(const ExactTimers&) = delete;
    ExactTimers& operator=(const ExactTimers&) = delete;

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

Pixel PixelOf(LPARAM lparam) {
    return {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
}

// What the system makes of a touch, a mouse's message, is marked, and apart from a pen's.
bool IsOfFinger(LPARAM extra) {
    return (extra & 0xFFFFFF80) == 0xFF515780;
}

// The dots per inch that the desktop is set to, where 96 are 100 %. Windows 7 knows one number for all
// windows.
int DotsPerInch(HWND window) {
    using GetDpi = UINT(WINAPI*)(HWND);
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    const auto get_dpi =
        reinterpret_cast<GetDpi>(reinterpret_cast<void (*)()>(GetProcAddress(user, "GetDpiForWindow")));
    if (get_dpi) return static_cast<int>(get_dpi(window));
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dots;
}

}  // namespace

Window::Window(Program& program, WindowsHost& host) : program_(program), host_(host) {
    RegisterOnce(&Window::Procedure);
    CreateWindowExW(WS_EX_APPWINDOW, kClass, kTitle, WS_POPUP, 0, 0, kWidth, kHeight, nullptr, nullptr,
                    GetModuleHandleW(nullptr), this);
}

Window::~Window() {
    if (handle_) DestroyWindow(handle_);
    if (!accessible_) return;
    accessible_->Leave();
    accessible_->Release();
}

void Window::Run() {
    PlaceOnScreen();
    ShowWindow(handle_, SW_SHOWNORMAL);
    SetForegroundWindow(handle_);
    while (Running()) {
        WaitForWork();
        PassMessages();
        if (Running()) Take(event::TimePassed());
    }
}

void Window::WaitForWork() const {
    const std::int64_t wait =
        wake_at_ ? std::max<std::int64_t>(*wake_at_ - host_.clock.TickCount(), 0) : INFINITE;
    const ExactTimers exact(wait > 0 && wait < kShortWaitMs);
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(wait), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

void Window::PassMessages() {
    MSG message;
    while (Running() && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

void Window::Follow(const Reaction& reaction) {
    wake_at_ = reaction.wake_at;
    if (reaction.state != Reaction::State::kRuns) {
        runs_ = false;
        failure_ = reaction.failure;
        return;
    }
    if (accessible_) accessible_->Tell(reaction);
    if (!reaction.repaint.empty()) {
        const PixelBox& box = reaction.repaint;
        const RECT pixels{box.left, box.top, box.right(), box.bottom()};
        InvalidateRect(handle_, &pixels, FALSE);
    }
    if (hand_ != reaction.hand) {
        hand_ = reaction.hand;
        ShowCursor();
    }
    if (reaction.print) PrintPage();
}

void Window::PrintPage() {
    PaperCanvas sheet(host_.fonts);
    Follow(program_.PaintOnPaper(sheet));
    if (!Running() || Print(handle_, sheet) != Printed::kFailed) return;
    MessageBoxW(handle_, ToWide(NotPrinted()).c_str(), kTitle, MB_OK | MB_ICONWARNING);
}

LRESULT CALLBACK Window::Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCCREATE) {
        auto* const created = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams);
        created->handle_ = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* const window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    return window ? window->Handle(message, wparam, lparam) : DefWindowProcW(handle, message, wparam, lparam);
}

LRESULT Window::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_MOUSEMOVE:
            Take(event::PointerMoved{PixelOf(lparam)});
            return 0;
        case WM_LBUTTONDOWN:
            Press(PixelOf(lparam));
            return 0;
        case WM_LBUTTONUP:
            Release(PixelOf(lparam));
            return 0;
        case WM_KEYDOWN:
            if (const auto press = KeyPressOf(wparam, lparam)) Take(event::KeyPressed{*press});
            return 0;
        case WM_GETOBJECT:
            if (static_cast<LONG>(lparam) != OBJID_CLIENT) break;
            if (!accessible_) accessible_ = new AccessiblePage(*this, program_);
            return accessible_->Give(wparam);
        case WM_CAPTURECHANGED:
            LoseCapture();
            return 0;
        case WM_MOUSEWHEEL: {
            POINT pixel{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
            ScreenToClient(handle_, &pixel);
            Take(event::WheelTurned{{pixel.x, pixel.y}, GET_WHEEL_DELTA_WPARAM(wparam)});
            return 0;
        }
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
    const PixelBox part{dirty.left, dirty.top, dirty.right - dirty.left, dirty.bottom - dirty.top};
    const HDC page = page_->dc();
    const int state = SaveDC(page);
    IntersectClipRect(page, dirty.left, dirty.top, dirty.right, dirty.bottom);
    GdiCanvas canvas(page, program_.view(), host_.fonts);
    const Reaction reaction = program_.Paint(canvas, part);
    RestoreDC(page, state);
    BitBlt(screen, part.left, part.top, part.width, part.height, page, part.left, part.top, SRCCOPY);
    EndPaint(handle_, &paint);
    Follow(reaction);
}

void Window::Press(Pixel at) {
    SetCapture(handle_);
    pressed_ = true;
    const int across = std::max(GetSystemMetrics(SM_CXDOUBLECLK), GetSystemMetrics(SM_CYDOUBLECLK));
    Take(event::PointerPressed{.at = at,
                               .finger = IsOfFinger(GetMessageExtraInfo()),
                               .time = GetMessageTime(),
                               .double_click_time = static_cast<int>(GetDoubleClickTime()),
                               .double_click_distance = across / 2.0});
}

void Window::Release(Pixel at) {
    if (!pressed_) return;
    pressed_ = false;
    ReleaseCapture();
    Take(event::PointerReleased{at});
}

void Window::LoseCapture() {
    if (!pressed_) return;
    pressed_ = false;
    Take(event::PointerLost());
}

// How large a pixel of the page is: one of the screen's on a screen of the page's size, else as many as the
// desktop has of them for one, as far as there is room.
double Window::Scale() const {
    const double room = std::min(static_cast<double>(host_.desktop.ScreenWidthInPixels()) / kWidth,
                                 static_cast<double>(host_.desktop.ScreenHeightInPixels()) / kHeight);
    return std::max(1.0, std::min(DotsPerInch(handle_) / 96.0, room));
}

void Window::PlaceOnScreen() {
    const double scale = Scale();
    const auto width = static_cast<int>(kWidth * scale);
    const auto height = static_cast<int>(kHeight * scale);
    const int left = (host_.desktop.ScreenWidthInPixels() - width) / 2;
    const int top = (host_.desktop.ScreenHeightInPixels() - height) / 2;
    if (!page_ || page_->width() != width || page_->height() != height) {
        page_.emplace(width, height);
        Take(event::WindowResized{width, height});
    }
    SetWindowPos(handle_, HWND_TOP, left, top, width, height, SWP_NOACTIVATE);
}

bool Window::ShowCursor() const {
    POINT pixel;
    if (!GetCursorPos(&pixel) || WindowFromPoint(pixel) != handle_) return false;
    SetCursor(LoadCursorW(nullptr, hand_ ? IDC_HAND : IDC_ARROW));
    return true;
}

}  // namespace onze
