#include <gtest/gtest.h>
#include <oleacc.h>

#include "forms/label.h"
#include "platform/windows/host.h"
#include "platform/windows/utf8.h"
#include "platform/windows/window.h"
#include "support/headless_host.h"
#include "support/random.h"

namespace onze {

namespace {

VARIANT Child(LONG number) {
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

// What a screen reader learns of the window, from the system alone.
class Reader {
  public:
    explicit Reader(HWND window) {
        AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                   reinterpret_cast<void**>(&page));
    }
    ~Reader() { page->Release(); }

    std::string Name(LONG number) const { return Text(&IAccessible::get_accName, number); }
    std::string Value(LONG number) const { return Text(&IAccessible::get_accValue, number); }
    LONG Role(LONG number) const {
        VARIANT role{};
        page->get_accRole(Child(number), &role);
        return role.lVal;
    }
    LONG Find(const std::string& beginning) const {
        LONG count = 0;
        page->get_accChildCount(&count);
        for (LONG number = 1; number <= count; ++number) {
            if (Name(number).starts_with(beginning)) return number;
        }
        return 0;
    }

    IAccessible* page = nullptr;

  private:
    std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*), LONG number) const {
        BSTR text = nullptr;
        (page->*get)(Child(number), &text);
        const std::string told = text ? ToUtf8(text) : "";
        SysFreeString(text);
        return told;
    }
};

TEST(WindowsReader, ReadsThePageAndAnswers) {
    CoInitialize(nullptr);
    HeadlessHost headless;
    WindowsHost windows("");
    ClockRandom random;
    Host host = headless;
    Program program(Host{windows.fonts, host.clock, host.files, host.pictures, host.sound_player,
                         host.desktop, host.calendar},
                    random);
    program.Take(event::Started());
    Window window(program, windows);
    const Reader reader(window.handle());
    ASSERT_TRUE(reader.page);

    EXPECT_EQ(reader.Name(CHILDID_SELF), "Onze Tables");
    const LONG seven = reader.Find("Jouons avec la Table de 7");
    EXPECT_EQ(reader.Role(seven), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(reader.page->accDoDefaultAction(Child(seven)), S_OK);
    EXPECT_EQ(reader.Name(1), "Jouons avec la Table de 7");
    EXPECT_EQ(reader.Role(2), ROLE_SYSTEM_GRAPHIC);
    EXPECT_TRUE(reader.Name(2).starts_with("Table de 7 : 1 fois 7 égale 7 ;"));

    const LONG answer = reader.Find("Réponse :");
    EXPECT_EQ(reader.Role(answer), ROLE_SYSTEM_SPINBUTTON);
    EXPECT_EQ(reader.Value(answer), "à trouver");
    VARIANT focus{};
    reader.page->get_accFocus(&focus);
    EXPECT_EQ(focus.lVal, answer);
    BSTR fifty = SysAllocString(L"50");
    EXPECT_EQ(reader.page->put_accValue(Child(answer), fifty), S_OK);
    SysFreeString(fifty);
    EXPECT_EQ(reader.Value(answer), "50");
    EXPECT_EQ(reader.page->accDoDefaultAction(Child(answer)), S_OK);
    EXPECT_NE(reader.Find("Erreur !"), 0);
    reader.page->get_accFocus(&focus);
    EXPECT_EQ(reader.Name(focus.lVal), "Continuer");
    EXPECT_EQ(reader.Find("Réponse :"), reader.Find("Réponse : A fois 7"));
    EXPECT_EQ(reader.page->accDoDefaultAction(Child(1000)), E_INVALIDARG);
}

}  // namespace

}  // namespace onze
