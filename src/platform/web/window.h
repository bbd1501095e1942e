#pragma once

#include "platform/web/accessible.h"
#include "platform/web/host.h"
#include "shell/program.h"

namespace onze {

// The page's canvas: it brings events to the program and does what each reaction says.
class Window {
  public:
    Window(Program& program, WebHost& host) : program_(program), host_(host), accessible_(program) {}

    void Take(const Event& event) { Follow(program_.Take(event)); }
    // Paints a part of the canvas.
    void Paint(const PixelBox& part);
    // Paints the page on a sheet of this many pixels.
    void PaintOnPaper(int width, int height);
    // Someone uses an element that stands for a control.
    void Use(std::size_t index, onze::Use use);
    // Nothing more is meant on the page.
    void Leave();

  private:
    void Follow(const Reaction& reaction);

    Program& program_;
    WebHost& host_;
    AccessiblePage accessible_;
    PixelBox page_;  // as it was last told
    bool hand_ = false;
};

}  // namespace onze
