#pragma once

#include <windows.h>

#include <optional>

#include "platform/windows/gdi_bitmap.h"
#include "platform/windows/host.h"
#include "shell/program.h"

namespace onze {

class AccessiblePage;

// The one window: the page without any border, in the middle of the screen, or all of it on a screen of the
// page's size.
class Window {
  public:
    Window(Program& program, WindowsHost& host);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window();

    // Whether the system has made it.
    bool exists() const { return handle_ != nullptr; }
    HWND handle() const { return handle_; }
    // Shows the page and passes events until the program ends or fails, or the window is closed.
    void Run();
    // The text of what ended the program, if it failed.
    const std::string& failure() const { return failure_; }
    void Take(const Event& event) { Follow(program_.Take(event)); }

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam);

    void Follow(const Reaction& reaction);
    bool Running() const { return handle_ && runs_; }
    void WaitForWork() const;
    void PassMessages();

    void Paint();
    void PrintPage();
    void Press(Pixel at);
    void Release(Pixel at);
    void LoseCapture();
    void PlaceOnScreen();
    double Scale() const;
    bool ShowCursor() const;

    Program& program_;
    WindowsHost& host_;
    std::optional<GdiBitmap> page_;
    HWND handle_ = nullptr;
    bool pressed_ = false;
    bool hand_ = false;
    bool runs_ = true;
    std::optional<std::int64_t> wake_at_;
    std::string failure_;
    AccessiblePage* accessible_ = nullptr;  // since a reader has asked for it
};

}  // namespace onze
