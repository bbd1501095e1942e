#pragma once

#include <QAccessible>
#include <QWindow>
#include <map>

#include "shell/program.h"

namespace onze {

class Window;

// The page as Qt tells it to a screen reader; made when one asks for it first.
class AccessiblePage final : public QAccessibleInterface {
  public:
    AccessiblePage(Window& window, Program& program);
    ~AccessiblePage() override;

    Program& program() const { return program_; }
    Window& page_window() const { return window_; }
    // What stands for a control.
    QAccessibleInterface* Of(Control& control) const;
    // Where a control lies on the screen.
    QRect Place(const Control& control) const;
    // Tells readers what a step of the program changed for them.
    void Tell(const Reaction& reaction);

    bool isValid() const override { return true; }
    QObject* object() const override;
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Document; }
    QAccessible::State state() const override { return {}; }

  private:
    Window& window_;
    Program& program_;
    mutable std::map<Control*, QAccessible::Id> controls_;
    const Form* page_ = nullptr;
    const Control* focused_ = nullptr;
    QString value_;  // of what has the focus
};

}  // namespace onze
