#include "platform/qt/accessible.h"

#include <algorithm>

#include "forms/reading.h"
#include "forms/up_down.h"
#include "platform/qt/window.h"

namespace onze {

namespace {

QAccessible::Role RoleOf(const Control& control) {
    if (control.arrows() && control.IsStop()) return QAccessible::SpinBox;
    if (control.role() == Role::kHeading) return QAccessible::Heading;
    if (control.IsStop() || control.role() == Role::kButton) return QAccessible::Button;
    return control.role() == Role::kZone ? QAccessible::Graphic : QAccessible::StaticText;
}

// One control of the page. It may have left the page while a reader still holds it.
class AccessibleControl final : public QAccessibleInterface,
                                public QAccessibleActionInterface,
                                public QAccessibleValueInterface {
  public:
    AccessibleControl(AccessiblePage& page, Control& control) : page_(page), control_(control) {}

    bool isValid() const override { return page_.indexOfChild(this) >= 0; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return page_.window(); }
    QAccessibleInterface* parent() const override { return &page_; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return page_.Place(control_); }
    QAccessible::Role role() const override { return RoleOf(control_); }

    QString text(QAccessible::Text kind) const override {
        for (const ReadControl& read : ReadPage(*page_.program().stage().front())) {
            if (read.control != &control_) continue;
            if (kind == QAccessible::Name) return QString::fromStdString(read.name);
            if (kind == QAccessible::Value) return QString::fromStdString(read.value);
        }
        return {};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = control_.IsStop();
        state.focused = page_.program().stage().focused() == &control_;
        state.disabled = !control_.enabled();
        state.invisible = !control_.visible();
        state.readOnly = role() != QAccessible::SpinBox;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
        if (type == QAccessible::ValueInterface && arrows())
            return static_cast<QAccessibleValueInterface*>(this);
        return nullptr;
    }

    QStringList actionNames() const override {
        QStringList names;
        if (control_.IsStop()) names << pressAction() << setFocusAction();
        if (control_.IsStop() && control_.arrows()) names << increaseAction() << decreaseAction();
        return names;
    }
    void doAction(const QString& name) override {
        const bool steps = name == increaseAction() || name == decreaseAction();
        if (!actionNames().contains(name)) return;
        page_.page_window().Take(event::Used{&control_, name == pressAction()});
        const Key key = name == increaseAction() ? Key::kUp : Key::kDown;
        if (steps) page_.page_window().Take(event::KeyPressed{{.key = key}});
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    QVariant currentValue() const override { return arrows() ? arrows()->value() : 0; }
    QVariant minimumValue() const override { return arrows() ? arrows()->minimum() : 0; }
    QVariant maximumValue() const override { return arrows() ? arrows()->maximum() : 0; }
    QVariant minimumStepSize() const override { return arrows() ? arrows()->increment() : 0; }
    void setCurrentValue(const QVariant& value) override {
        if (!arrows() || !control_.IsStop()) return;
        page_.page_window().Take(event::Used{&control_, false});
        for (const char digit : value.toString().toStdString())
            page_.page_window().Take(event::KeyPressed{{.key = Key::kCharacter, .character = digit}});
    }

  private:
    const UpDown* arrows() const { return control_.arrows(); }

    AccessiblePage& page_;
    Control& control_;
};

void Send(QAccessibleInterface* to, QAccessible::Event what) {
    QAccessibleEvent event(to, what);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

AccessiblePage::AccessiblePage(Window& window, Program& program) : window_(window), program_(program) {
    QAccessible::registerAccessibleInterface(this);
}

AccessiblePage::~AccessiblePage() {
    for (const auto& [control, id] : controls_) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* AccessiblePage::Of(Control& control) const {
    const auto known = controls_.find(&control);
    if (known != controls_.end()) return QAccessible::accessibleInterface(known->second);
    auto* const made = new AccessibleControl(const_cast<AccessiblePage&>(*this), control);
    controls_[&control] = QAccessible::registerAccessibleInterface(made);
    return made;
}

QRect AccessiblePage::Place(const Control& control) const {
    return window_.OnScreen(control.HitBox());
}

void AccessiblePage::Tell(const Reaction& reaction) {
    const Stage& stage = program_.stage();
    if (page_ != stage.front()) {
        page_ = stage.front();
        Send(this, QAccessible::NameChanged);
        Send(this, QAccessible::ObjectReorder);
    }
    if (!reaction.say.empty()) {
        for (const ReadControl& read : ReadPage(*stage.front())) {
            if (read.control->role() != Role::kMessage || !reaction.Says(read.control->name())) continue;
            Send(Of(*read.control), QAccessible::NameChanged);
            Send(Of(*read.control), QAccessible::Alert);
        }
    }
    QAccessibleInterface* const focus = focusChild();
    const QString value = focus ? focus->text(QAccessible::Value) : QString();
    if (focus && focused_ != stage.focused()) {
        Send(focus, QAccessible::Focus);
    } else if (focus && value != value_) {
        QAccessibleValueChangeEvent event(focus, value);
        QAccessible::updateAccessibility(&event);
    }
    focused_ = stage.focused();
    value_ = value;
}

QObject* AccessiblePage::object() const {
    return &window_;
}

QWindow* AccessiblePage::window() const {
    return &window_;
}

QAccessibleInterface* AccessiblePage::parent() const {
    return QAccessible::queryAccessibleInterface(qApp);
}

QAccessibleInterface* AccessiblePage::child(int index) const {
    const auto read = ReadPage(*program_.stage().front());
    const auto at = static_cast<std::size_t>(index);
    return index < 0 || at >= read.size() ? nullptr : Of(*read[at].control);
}

int AccessiblePage::childCount() const {
    return static_cast<int>(ReadPage(*program_.stage().front()).size());
}

int AccessiblePage::indexOfChild(const QAccessibleInterface* wanted) const {
    for (int i = 0; i < childCount(); ++i) {
        if (child(i) == wanted) return i;
    }
    return -1;
}

QAccessibleInterface* AccessiblePage::childAt(int x, int y) const {
    for (int i = childCount() - 1; i >= 0; --i) {
        if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
}

QAccessibleInterface* AccessiblePage::focusChild() const {
    const Control* const focused = program_.stage().focused();
    return focused ? Of(const_cast<Control&>(*focused)) : nullptr;
}

QString AccessiblePage::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? window_.title() : QString();
}

QRect AccessiblePage::rect() const {
    return window_.geometry();
}

}  // namespace onze
