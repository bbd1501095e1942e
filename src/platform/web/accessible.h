#pragma once

#include <vector>

#include "forms/reading.h"
#include "shell/program.h"

namespace onze {

// The page as a screen reader finds it in the browser: elements laid over the canvas, one for each control
// that is read. Their focus is the program's.
class AccessiblePage {
  public:
    explicit AccessiblePage(Program& program) : program_(program) {}

    // Brings the elements to what a step of the program left.
    void Tell(const Reaction& reaction);
    // The control of an element; null where there is none.
    Control* At(std::size_t index) const;

  private:
    // What an element tells of a control.
    struct Element {
        ReadControl read;
        bool stop = false;
        int value = 0;
        int minimum = 0;
        int maximum = 0;
        PixelBox place;

        friend bool operator==(const Element&, const Element&) = default;
    };

    Element ElementOf(const ReadControl& read) const;
    // Sends what is new of the elements, or all where others are there than before.
    void Show(std::vector<Element> elements);
    static void Send(std::size_t index, const Element& element);
    void Announce(const std::vector<Control*>& messages) const;

    Program& program_;
    ReadingWatch watch_;
    std::vector<Element> shown_;
};

}  // namespace onze
