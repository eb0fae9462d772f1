#include <windows.h>

#include <oleacc.h>  // needs windows.h first

#include "platform/form.h"
#include "platform/table.h"
#include "platform/virtuallist.h"
#include "platform/win32/com.h"
#include "platform/win32/window.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// What a screen reader hears, asked as it asks.
namespace quirn::test {
namespace {

class Reader {
public:
    explicit Reader(const Control& control) {
        win32::InitCom();
        const HMODULE library = LoadLibraryA("oleacc.dll");
        const auto ask = reinterpret_cast<LPFNACCESSIBLEOBJECTFROMWINDOW>(
            reinterpret_cast<void*>(GetProcAddress(library, "AccessibleObjectFromWindow")));
        EXPECT_EQ(ask(win32::WindowOf(control), OBJID_CLIENT, IID_IAccessible, object_.Place()), S_OK);
    }

    std::string Name(LONG child) { return Text(&IAccessible::get_accName, child); }
    std::string Description(LONG child) { return Text(&IAccessible::get_accDescription, child); }
    LONG State(LONG child) { return Number(&IAccessible::get_accState, child); }
    LONG Role(LONG child) { return Number(&IAccessible::get_accRole, child); }
    LONG Count() {
        LONG count = -1;
        object_->get_accChildCount(&count);
        return count;
    }
    void Select(LONG child) { object_->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(child)); }
    // The child in the middle of where a child says that it is.
    LONG AtPlaceOf(LONG child) {
        LONG left = 0, top = 0, width = 0, height = 0;
        object_->accLocation(&left, &top, &width, &height, Child(child));
        VARIANT found{};
        object_->accHitTest(left + 5, top + height / 2, &found);
        return found.lVal;
    }

private:
    static VARIANT Child(LONG number) {
        VARIANT child{};
        child.vt = VT_I4;
        child.lVal = number;
        return child;
    }
    std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*ask)(VARIANT, BSTR*), LONG child) {
        BSTR answer = nullptr;
        ((*object_.operator->()).*ask)(Child(child), &answer);
        std::string text;
        for (const wchar_t* c = answer; c != nullptr && *c != 0; ++c) text += static_cast<char>(*c);
        SysFreeString(answer);
        return text;
    }
    LONG Number(HRESULT (STDMETHODCALLTYPE IAccessible::*ask)(VARIANT, VARIANT*), LONG child) {
        VARIANT answer{};
        ((*object_.operator->()).*ask)(Child(child), &answer);
        return answer.vt == VT_I4 ? answer.lVal : 0;
    }

    win32::ComPtr<IAccessible> object_;
};

class AccessibleTest : public WorldTest {};

TEST_F(AccessibleTest, ItemsOfListsAndTablesHaveNamesAndStates) {
    Form form(FormBorder::Fixed, 6000, 6000);
    VirtualList lines(form, {0, 0, 5400, 1500}, "Log");
    lines.itemText = [](size_t item) { return "line " + std::to_string(item); };
    Table rows(form, {0, 1600, 5400, 1500}, "Profiles", {{"Name", 1500}, {"Pilot", 1500}, {"Zone", 1500}});
    rows.cellText = [](size_t row, int column) {
        return column == 1 ? "" : std::string(1, static_cast<char>('a' + row + column));
    };
    rows.isTicked = [](size_t row) { return row == 1; };
    TextBox part(form, {0, 3300, 900, 285}, "10");
    part.SetAccessibleName("Proxy address, part 1 of 4");
    form.Show();
    lines.SetCount(1000000, 20);
    rows.SetRowCount(3);

    Reader log(lines);
    EXPECT_EQ(log.Name(CHILDID_SELF), "Log");
    EXPECT_EQ(log.Role(CHILDID_SELF), ROLE_SYSTEM_LIST);
    EXPECT_EQ(log.Count(), 1000000);
    EXPECT_EQ(log.Name(1000000), "line 999999");
    EXPECT_TRUE(log.State(1000000) & STATE_SYSTEM_OFFSCREEN);
    log.Select(2);
    EXPECT_EQ(log.State(2) & (STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED | STATE_SYSTEM_OFFSCREEN),
              STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED);
    EXPECT_FALSE(log.State(1) & STATE_SYSTEM_SELECTED);
    EXPECT_EQ(lines.Selection().SelectedCount(), 1u);
    EXPECT_EQ(log.AtPlaceOf(2), 2);

    Reader table(rows);
    EXPECT_EQ(table.Name(2) + "|" + table.Description(2), "b|Zone: d");
    EXPECT_TRUE(table.State(2) & STATE_SYSTEM_CHECKED);
    EXPECT_FALSE(table.State(1) & STATE_SYSTEM_CHECKED);
    table.Select(3);
    EXPECT_EQ(rows.Current(), 2u);
    EXPECT_EQ(table.AtPlaceOf(3), 3);

    EXPECT_EQ(Reader(part).Name(CHILDID_SELF), "Proxy address, part 1 of 4");
}

}  // namespace
}  // namespace quirn::test
