#include "platform/win32/accessible.h"

namespace quirn::win32 {

namespace {

// Loaded when a reader asks first, so that nobody else waits for it.
template <class Function>
Function OleAcc(const char* name) {
    static const HMODULE library = LoadLibraryA("oleacc.dll");
    return library == nullptr ? nullptr
                              : reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

HRESULT Answer(const std::string& text, BSTR* answer) {
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    *answer = SysAllocStringLen(nullptr, static_cast<UINT>(length));
    if (*answer == nullptr) return E_OUTOFMEMORY;
    MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), *answer, length);
    return S_OK;
}

HRESULT Answer(LONG number, VARIANT* answer) {
    answer->vt = VT_I4;
    answer->lVal = number;
    return S_OK;
}

bool IsSelf(const VARIANT& child) {
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

LONG ChildOf(size_t item) {
    return static_cast<LONG>(item) + 1;
}

}  // namespace

HRESULT SystemAnswers::Make() {
    const auto create = OleAcc<LPFNCREATESTDACCESSIBLEOBJECT>("CreateStdAccessibleObject");
    return create == nullptr ? E_NOTIMPL : create(window_, OBJID_CLIENT, IID_IAccessible, system_.Place());
}

ULONG SystemAnswers::Release() {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
}

HRESULT SystemAnswers::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible;
    *object = known ? static_cast<IAccessible*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT SystemAnswers::GetTypeInfoCount(UINT* count) {
    return system_->GetTypeInfoCount(count);
}
HRESULT SystemAnswers::GetTypeInfo(UINT index, LCID language, ITypeInfo** info) {
    return system_->GetTypeInfo(index, language, info);
}
HRESULT SystemAnswers::GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language, DISPID* ids) {
    return system_->GetIDsOfNames(id, names, count, language, ids);
}
HRESULT SystemAnswers::Invoke(DISPID member, REFIID id, LCID language, WORD flags, DISPPARAMS* parameters,
                              VARIANT* result, EXCEPINFO* exception, UINT* wrong) {
    return system_->Invoke(member, id, language, flags, parameters, result, exception, wrong);
}
HRESULT SystemAnswers::get_accParent(IDispatch** parent) {
    return system_->get_accParent(parent);
}
HRESULT SystemAnswers::get_accChildCount(LONG* count) {
    return system_->get_accChildCount(count);
}
HRESULT SystemAnswers::get_accChild(VARIANT child, IDispatch** object) {
    return system_->get_accChild(child, object);
}
HRESULT SystemAnswers::get_accName(VARIANT child, BSTR* name) {
    return system_->get_accName(child, name);
}
HRESULT SystemAnswers::get_accValue(VARIANT child, BSTR* value) {
    return system_->get_accValue(child, value);
}
HRESULT SystemAnswers::get_accDescription(VARIANT child, BSTR* description) {
    return system_->get_accDescription(child, description);
}
HRESULT SystemAnswers::get_accRole(VARIANT child, VARIANT* role) {
    return system_->get_accRole(child, role);
}
HRESULT SystemAnswers::get_accState(VARIANT child, VARIANT* state) {
    return system_->get_accState(child, state);
}
HRESULT SystemAnswers::get_accHelp(VARIANT child, BSTR* help) {
    return system_->get_accHelp(child, help);
}
HRESULT SystemAnswers::get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) {
    return system_->get_accHelpTopic(file, child, topic);
}
HRESULT SystemAnswers::get_accKeyboardShortcut(VARIANT child, BSTR* key) {
    return system_->get_accKeyboardShortcut(child, key);
}
HRESULT SystemAnswers::get_accFocus(VARIANT* child) {
    return system_->get_accFocus(child);
}
HRESULT SystemAnswers::get_accSelection(VARIANT* children) {
    return system_->get_accSelection(children);
}
HRESULT SystemAnswers::get_accDefaultAction(VARIANT child, BSTR* action) {
    return system_->get_accDefaultAction(child, action);
}
HRESULT SystemAnswers::accSelect(LONG how, VARIANT child) {
    return system_->accSelect(how, child);
}
HRESULT SystemAnswers::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
    return system_->accLocation(left, top, width, height, child);
}
HRESULT SystemAnswers::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
    return system_->accNavigate(direction, start, end);
}
HRESULT SystemAnswers::accHitTest(LONG left, LONG top, VARIANT* child) {
    return system_->accHitTest(left, top, child);
}
HRESULT SystemAnswers::accDoDefaultAction(VARIANT child) {
    return system_->accDoDefaultAction(child);
}
HRESULT SystemAnswers::put_accName(VARIANT child, BSTR name) {
    return system_->put_accName(child, name);
}
HRESULT SystemAnswers::put_accValue(VARIANT child, BSTR value) {
    return system_->put_accValue(child, value);
}

HRESULT NamedControl::get_accName(VARIANT child, BSTR* name) {
    const Control* const control = ItsControl();
    if (!IsSelf(child) || control == nullptr) return SystemAnswers::get_accName(child, name);
    return Answer(control->AccessibleName().empty() ? control->Text() : control->AccessibleName(), name);
}

std::optional<size_t> ItemsOfControl::ItemOf(const VARIANT& child) const {
    if (child.vt != VT_I4 || child.lVal <= 0 || ItsControl() == nullptr) return std::nullopt;
    const auto item = static_cast<size_t>(child.lVal) - 1;
    return item < Count() ? std::optional(item) : std::nullopt;
}

HRESULT ItemsOfControl::get_accChildCount(LONG* count) {
    *count = ItsControl() == nullptr ? 0 : static_cast<LONG>(Count());
    return S_OK;
}

HRESULT ItemsOfControl::get_accChild(VARIANT child, IDispatch** object) {
    *object = nullptr;
    return ItemOf(child) ? S_FALSE : E_INVALIDARG;
}

HRESULT ItemsOfControl::get_accName(VARIANT child, BSTR* name) {
    const auto item = ItemOf(child);
    return item ? Answer(Name(*item), name) : NamedControl::get_accName(child, name);
}

HRESULT ItemsOfControl::get_accDescription(VARIANT child, BSTR* description) {
    const auto item = ItemOf(child);
    return item ? Answer(Description(*item), description) : NamedControl::get_accDescription(child, description);
}

HRESULT ItemsOfControl::get_accRole(VARIANT child, VARIANT* role) {
    return Answer(IsSelf(child) ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM, role);
}

HRESULT ItemsOfControl::get_accState(VARIANT child, VARIANT* state) {
    const auto item = ItemOf(child);
    if (!item) return NamedControl::get_accState(child, state);
    LONG flags = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE | State(*item);
    if (ItsControl()->HasFocus() && Current() == item) flags |= STATE_SYSTEM_FOCUSED;
    RECT area{};
    GetClientRect(Window(), &area);
    const RECT place = Place(*item);
    if (place.bottom <= area.top || place.top >= area.bottom) flags |= STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
    return Answer(flags, state);
}

HRESULT ItemsOfControl::get_accFocus(VARIANT* child) {
    const Control* const control = ItsControl();
    if (control == nullptr || !control->HasFocus() || !Current()) return NamedControl::get_accFocus(child);
    return Answer(ChildOf(*Current()), child);
}

HRESULT ItemsOfControl::accSelect(LONG how, VARIANT child) {
    const auto item = ItemOf(child);
    if (!item) return NamedControl::accSelect(how, child);
    if ((how & SELFLAG_TAKEFOCUS) != 0) ItsControl()->SetFocus();
    if ((how & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0) SelectAlone(*item);
    return S_OK;
}

HRESULT ItemsOfControl::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
    const auto item = ItemOf(child);
    if (!item) return NamedControl::accLocation(left, top, width, height, child);
    RECT place = Place(*item);
    MapWindowPoints(Window(), nullptr, reinterpret_cast<POINT*>(&place), 2);
    *left = place.left;
    *top = place.top;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
}

HRESULT ItemsOfControl::accHitTest(LONG left, LONG top, VARIANT* child) {
    POINT place{left, top};
    ScreenToClient(Window(), &place);
    RECT area{};
    GetClientRect(Window(), &area);
    if (ItsControl() == nullptr || !PtInRect(&area, place)) return NamedControl::accHitTest(left, top, child);
    const auto item = ItemAt(place);
    return Answer(item ? ChildOf(*item) : CHILDID_SELF, child);
}

std::optional<LRESULT> AnswerReader(SystemAnswers* (*make)(HWND window), const Message& m) {
    if (static_cast<DWORD>(m.lParam) != static_cast<DWORD>(OBJID_CLIENT)) return std::nullopt;
    InitCom();
    const auto pass = OleAcc<LPFNLRESULTFROMOBJECT>("LresultFromObject");
    SystemAnswers* const answers = make(m.window);
    std::optional<LRESULT> result;
    if (pass != nullptr && SUCCEEDED(answers->Make())) result = pass(IID_IAccessible, m.wParam, answers);
    answers->Release();
    return result;
}

}  // namespace quirn::win32
