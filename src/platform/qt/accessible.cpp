#include "platform/qt/accessible.h"

#include <QHash>
#include <algorithm>

#include "forms/reading.h"
#include "forms/up_down.h"
#include "platform/qt/window.h"

namespace onze {

namespace {

QAccessible::Role RoleOf(ReadControl::Kind kind) {
    switch (kind) {
        case ReadControl::Kind::kHeading:
            return QAccessible::Heading;
        case ReadControl::Kind::kPicture:
            return QAccessible::Graphic;
        case ReadControl::Kind::kTable:
            return QAccessible::Table;
        case ReadControl::Kind::kRowHeader:
            return QAccessible::RowHeader;
        case ReadControl::Kind::kColumnHeader:
            return QAccessible::ColumnHeader;
        case ReadControl::Kind::kToPress:
            return QAccessible::Button;
        case ReadControl::Kind::kToEnter:
            return QAccessible::SpinBox;
        default:
            return QAccessible::StaticText;
    }
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
    QAccessible::Role role() const override { return RoleOf(Read().kind); }

    QString text(QAccessible::Text kind) const override {
        const ReadControl read = Read();
        if (kind == QAccessible::Name) return QString::fromStdString(read.name);
        return kind == QAccessible::Value ? QString::fromStdString(read.value) : QString();
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
        static const QHash<QString, Use> kUses{{pressAction(), Use::kClick},
                                               {setFocusAction(), Use::kFocus},
                                               {increaseAction(), Use::kRaise},
                                               {decreaseAction(), Use::kLower}};
        if (kUses.contains(name)) page_.page_window().Take(event::Used{&control_, kUses[name]});
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    QVariant currentValue() const override { return arrows() ? arrows()->value() : 0; }
    QVariant minimumValue() const override { return arrows() ? arrows()->minimum() : 0; }
    QVariant maximumValue() const override { return arrows() ? arrows()->maximum() : 0; }
    QVariant minimumStepSize() const override { return arrows() ? arrows()->increment() : 0; }
    void setCurrentValue(const QVariant& value) override {
        if (!arrows()) return;
        page_.page_window().Take(event::Used{&control_, Use::kEnter, arrows()->text_of(value.toInt())});
    }

  private:
    const UpDown* arrows() const { return control_.arrows(); }
    // What is read of it now; empty once it has left the page.
    ReadControl Read() const {
        const auto page = ReadPage(*page_.program().stage().front());
        const auto found = std::ranges::find(page, &control_, &ReadControl::control);
        return found == page.end() ? ReadControl{} : *found;
    }

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
    const ReadingNews news = watch_.Look(program_.stage(), reaction.say);
    if (news.page) Send(this, QAccessible::ObjectReorder);
    for (Control* message : news.messages) {
        Send(Of(*message), QAccessible::NameChanged);
        Send(Of(*message), QAccessible::Alert);
    }
    if (news.focused) Send(Of(*news.focused), QAccessible::Focus);
    if (!news.entered) return;
    QAccessibleInterface* const answer = Of(*news.entered);
    QAccessibleValueChangeEvent event(answer, answer->text(QAccessible::Value));
    QAccessible::updateAccessibility(&event);
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
