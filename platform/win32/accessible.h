#pragma once

#include <windows.h>

#include <oleacc.h>  // needs windows.h first

#include <optional>
#include <string>

#include "platform/win32/com.h"
#include "platform/win32/kind.h"

// What screen readers ask of a control (Microsoft Active Accessibility). The system answers for its own kinds of
// windows; what it cannot know is put over its answers here.
namespace quirn::win32 {

// The system's answers for a window, all passed on as they are.
class SystemAnswers : public IAccessible {
public:
    explicit SystemAnswers(HWND window) : window_(window) {}
    virtual ~SystemAnswers() = default;
    HRESULT Make();  // before the first use

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID language, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) override;
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* key) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT STDMETHODCALLTYPE accSelect(LONG how, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override;

protected:
    HWND Window() const { return window_; }
    // Null once it is being destroyed: a reader may hold on to the object.
    Control* ItsControl() const { return IsWindow(window_) ? ControlOf(window_) : nullptr; }

private:
    HWND window_;
    ULONG references_ = 1;
    ComPtr<IAccessible> system_;
};

// A control with a name of its own.
class NamedControl : public SystemAnswers {
public:
    using SystemAnswers::SystemAnswers;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
};

// A list whose items this program keeps: item 0 is the reader's child 1, a simple element without an object.
class ItemsOfControl : public NamedControl {
public:
    using NamedControl::NamedControl;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE accSelect(LONG how, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override;

protected:
    // Asked only while the control is there, of items below Count().
    virtual size_t Count() const = 0;
    virtual std::string Name(size_t item) const = 0;
    virtual std::string Description(size_t) const { return {}; }
    virtual std::optional<size_t> Current() const = 0;
    virtual LONG State(size_t item) const = 0;  // selected, ticked
    virtual RECT Place(size_t item) const = 0;  // in the window's inner area
    virtual std::optional<size_t> ItemAt(POINT place) const = 0;
    virtual void SelectAlone(size_t item) const = 0;

private:
    std::optional<size_t> ItemOf(const VARIANT& child) const;
};

// The answer to WM_GETOBJECT; nothing when that is not for a window's client area.
std::optional<LRESULT> AnswerReader(SystemAnswers* (*make)(HWND window), const Message& m);

template <class Answers>
SystemAnswers* MakeAnswers(HWND window) {
    return new Answers(window);
}

}  // namespace quirn::win32
