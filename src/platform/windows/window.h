#pragma once

#include <windows.h>

#include <exception>

#include "forms/stage.h"
#include "platform/windows/gdi_bitmap.h"
#include "platform/windows/windows_platform.h"

// The one window: the page in real pixels, without any border, in the middle of the screen, or all of it on a
// screen of the page's size.
class Window {
  public:
    Window(WindowsPlatform& platform, Stage& stage);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window();

    // Shows the page and passes events until the program ends or the window is closed. Throws what a screen
    // throws.
    void Run();

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam);

    bool Running() const { return handle_ && !failure_ && !platform_.ended(); }
    void WaitForWork() const;
    void PassMessages();
    void Refresh();

    void Paint();
    void Press(Point point);
    void Release(Point point);
    void LoseCapture();
    void Wheel(WPARAM wparam, LPARAM lparam);
    void PlaceOnScreen() const;
    bool ShowCursor() const;

    WindowsPlatform& platform_;
    Stage& stage_;
    GdiBitmap page_;
    HWND handle_ = nullptr;
    bool pressed_ = false;
    int wheel_turn_ = 0;
    std::exception_ptr failure_;
};
