#pragma once

#include <oleacc.h>
#include <windows.h>

#include "forms/reading.h"
#include "shell/program.h"

namespace onze {

class Window;

// The page as Windows tells it to a screen reader: an element for each control that is read, numbered from 1
// in the order of reading.
class AccessiblePage final : public IAccessible {
  public:
    AccessiblePage(Window& window, Program& program);
    virtual ~AccessiblePage();

    // The answer to a reader that asks the window what it is.
    LRESULT Give(WPARAM wparam);
    // Tells readers what a step of the program changed for them.
    void Tell(const Reaction& reaction);
    // The window is gone; a reader may hold this for longer.
    void Leave() { window_ = nullptr; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    STDMETHODIMP get_accParent(IDispatch** parent) override;
    STDMETHODIMP get_accChildCount(long* count) override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
    STDMETHODIMP get_accDescription(VARIANT, BSTR*) override { return S_FALSE; }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP get_accHelp(VARIANT, BSTR*) override { return S_FALSE; }
    STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, long*) override { return S_FALSE; }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR*) override { return S_FALSE; }
    STDMETHODIMP get_accFocus(VARIANT* child) override;
    STDMETHODIMP get_accSelection(VARIANT*) override { return S_FALSE; }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
    STDMETHODIMP accSelect(long flags, VARIANT child) override;
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override;
    STDMETHODIMP accHitTest(long left, long top, VARIANT* child) override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) override;
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override;

  private:
    std::vector<ReadControl> Read() const;
    // What a number stands for now; nothing for the page itself, and where there is none.
    ReadControl At(const VARIANT& child) const;
    LONG NumberOf(const Control* control) const;
    RECT Place(const Control& control) const;
    void Notify(DWORD event, const Control* control) const;

    Window* window_;
    Program& program_;
    ReadingWatch watch_;
    LONG references_ = 1;
};

}  // namespace onze
