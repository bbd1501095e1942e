#include "platform/windows/accessible.h"

#include <algorithm>

#include "forms/up_down.h"
#include "platform/windows/library.h"
#include "platform/windows/utf8.h"
#include "platform/windows/window.h"

namespace onze {

namespace {

HRESULT Write(const std::string& text, BSTR* to) {
    static const auto allocate = Find<decltype(&SysAllocString)>(L"oleaut32.dll", "SysAllocString");
    *to = text.empty() || !allocate ? nullptr : allocate(ToWide(text).c_str());
    return *to ? S_OK : S_FALSE;
}

HRESULT Write(LONG number, VARIANT* to) {
    to->vt = VT_I4;
    to->lVal = number;
    return S_OK;
}

bool IsPage(const VARIANT& child) {
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

LONG RoleOf(ReadControl::Kind kind) {
    switch (kind) {
        case ReadControl::Kind::kPicture:
            return ROLE_SYSTEM_GRAPHIC;
        case ReadControl::Kind::kTable:
            return ROLE_SYSTEM_TABLE;
        case ReadControl::Kind::kRowHeader:
            return ROLE_SYSTEM_ROWHEADER;
        case ReadControl::Kind::kColumnHeader:
            return ROLE_SYSTEM_COLUMNHEADER;
        case ReadControl::Kind::kToPress:
            return ROLE_SYSTEM_PUSHBUTTON;
        case ReadControl::Kind::kToEnter:
            return ROLE_SYSTEM_SPINBUTTON;
        default:
            return ROLE_SYSTEM_STATICTEXT;
    }
}

}  // namespace

AccessiblePage::AccessiblePage(Window& window, Program& program) : window_(&window), program_(program) {}

AccessiblePage::~AccessiblePage() = default;

LRESULT AccessiblePage::Give(WPARAM wparam) {
    static const auto give = Find<decltype(&LresultFromObject)>(L"oleacc.dll", "LresultFromObject");
    return give ? give(__uuidof(IAccessible), wparam, this) : 0;
}

void AccessiblePage::Notify(DWORD event, const Control* control) const {
    NotifyWinEvent(event, window_->handle(), OBJID_CLIENT, control ? NumberOf(control) : CHILDID_SELF);
}

void AccessiblePage::Tell(const Reaction& reaction) {
    const ReadingNews news = watch_.Look(program_.stage(), reaction.say);
    if (news.page) Notify(EVENT_OBJECT_REORDER, nullptr);
    for (const Control* message : news.messages) {
        Notify(EVENT_OBJECT_NAMECHANGE, message);
        Notify(EVENT_SYSTEM_ALERT, message);
    }
    if (news.focused) Notify(EVENT_OBJECT_FOCUS, news.focused);
    if (news.entered) Notify(EVENT_OBJECT_VALUECHANGE, news.entered);
}

std::vector<ReadControl> AccessiblePage::Read() const {
    const Form* const page = window_ ? program_.stage().front() : nullptr;
    return page ? ReadPage(*page) : std::vector<ReadControl>();
}

ReadControl AccessiblePage::At(const VARIANT& child) const {
    const auto read = Read();
    const bool known = child.vt == VT_I4 && child.lVal > 0 && child.lVal <= std::ssize(read);
    return known ? read[static_cast<std::size_t>(child.lVal) - 1] : ReadControl{};
}

LONG AccessiblePage::NumberOf(const Control* control) const {
    const auto read = Read();
    const auto found = std::ranges::find(read, control, &ReadControl::control);
    return found == read.end() ? CHILDID_SELF : static_cast<LONG>(found - read.begin()) + 1;
}

RECT AccessiblePage::Place(const Control& control) const {
    const PixelBox box = program_.view().Around(control.HitBox());
    POINT corner{box.left, box.top};
    ClientToScreen(window_->handle(), &corner);
    return {corner.x, corner.y, corner.x + box.width, corner.y + box.height};
}

STDMETHODIMP AccessiblePage::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(IAccessible);
    *object = known ? static_cast<IAccessible*>(this) : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) AccessiblePage::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
}

STDMETHODIMP_(ULONG) AccessiblePage::Release() {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
}

STDMETHODIMP AccessiblePage::get_accParent(IDispatch** parent) {
    static const auto find =
        Find<decltype(&AccessibleObjectFromWindow)>(L"oleacc.dll", "AccessibleObjectFromWindow");
    *parent = nullptr;
    if (!find || !window_) return S_FALSE;
    return find(window_->handle(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                reinterpret_cast<void**>(parent));
}

STDMETHODIMP AccessiblePage::get_accChildCount(long* count) {
    *count = static_cast<long>(Read().size());
    return S_OK;
}

STDMETHODIMP AccessiblePage::get_accChild(VARIANT, IDispatch** object) {
    *object = nullptr;
    return S_FALSE;
}

STDMETHODIMP AccessiblePage::get_accName(VARIANT child, BSTR* name) {
    if (IsPage(child)) return Write("Onze Tables", name);
    const ReadControl read = At(child);
    return read.control ? Write(read.name, name) : E_INVALIDARG;
}

STDMETHODIMP AccessiblePage::get_accValue(VARIANT child, BSTR* value) {
    return Write(At(child).value, value);
}

STDMETHODIMP AccessiblePage::get_accRole(VARIANT child, VARIANT* role) {
    if (IsPage(child)) return Write(ROLE_SYSTEM_CLIENT, role);
    const ReadControl read = At(child);
    return read.control ? Write(RoleOf(read.kind), role) : E_INVALIDARG;
}

STDMETHODIMP AccessiblePage::get_accState(VARIANT child, VARIANT* state) {
    const Control* const control = At(child).control;
    if (!control) return IsPage(child) ? Write(STATE_SYSTEM_FOCUSABLE, state) : E_INVALIDARG;
    LONG flags = 0;
    if (control->IsStop()) flags |= STATE_SYSTEM_FOCUSABLE;
    if (control == program_.stage().focused()) flags |= STATE_SYSTEM_FOCUSED;
    if (!control->enabled()) flags |= STATE_SYSTEM_UNAVAILABLE;
    return Write(flags, state);
}

STDMETHODIMP AccessiblePage::get_accFocus(VARIANT* child) {
    const Control* const focused = window_ ? program_.stage().focused() : nullptr;
    return Write(focused ? NumberOf(focused) : CHILDID_SELF, child);
}

STDMETHODIMP AccessiblePage::get_accDefaultAction(VARIANT child, BSTR* action) {
    const Control* const control = At(child).control;
    return Write(control && control->IsStop() ? "Cliquer" : "", action);
}

STDMETHODIMP AccessiblePage::accSelect(long flags, VARIANT child) {
    Control* const control = At(child).control;
    if (!control || !(flags & SELFLAG_TAKEFOCUS)) return E_INVALIDARG;
    window_->Take(event::Used{control, Use::kFocus});
    return S_OK;
}

STDMETHODIMP AccessiblePage::accLocation(long* left, long* top, long* width, long* height, VARIANT child) {
    const Control* const control = At(child).control;
    if (!window_ || (!control && !IsPage(child))) return E_INVALIDARG;
    RECT place{};
    if (control) {
        place = Place(*control);
    } else {
        GetWindowRect(window_->handle(), &place);
    }
    *left = place.left;
    *top = place.top;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
}

STDMETHODIMP AccessiblePage::accNavigate(long direction, VARIANT start, VARIANT* end) {
    const bool from_page = IsPage(start);
    const auto count = static_cast<LONG>(Read().size());
    LONG to = 0;
    if (from_page && direction == NAVDIR_FIRSTCHILD) to = 1;
    if (from_page && direction == NAVDIR_LASTCHILD) to = count;
    if (!from_page && start.vt == VT_I4 && direction == NAVDIR_NEXT) to = start.lVal + 1;
    if (!from_page && start.vt == VT_I4 && direction == NAVDIR_PREVIOUS) to = start.lVal - 1;
    end->vt = VT_EMPTY;
    return to < 1 || to > count ? S_FALSE : Write(to, end);
}

STDMETHODIMP AccessiblePage::accHitTest(long left, long top, VARIANT* child) {
    const auto read = Read();
    const auto found = std::find_if(read.rbegin(), read.rend(), [&](const ReadControl& item) {
        const RECT place = Place(*item.control);
        return PtInRect(&place, {left, top});
    });
    return Write(found == read.rend() ? CHILDID_SELF : NumberOf(found->control), child);
}

STDMETHODIMP AccessiblePage::accDoDefaultAction(VARIANT child) {
    Control* const control = At(child).control;
    if (!control || !control->IsStop()) return E_INVALIDARG;
    window_->Take(event::Used{control, Use::kClick});
    return S_OK;
}

STDMETHODIMP AccessiblePage::put_accValue(VARIANT child, BSTR value) {
    Control* const control = At(child).control;
    if (!control || !control->IsStop() || !control->arrows() || !value) return E_INVALIDARG;
    window_->Take(event::Used{control, Use::kEnter, ToUtf8(value)});
    return S_OK;
}

}  // namespace onze
