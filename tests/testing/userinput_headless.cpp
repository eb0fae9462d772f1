#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "tests/testing/userinput.h"

namespace quirn::test {

namespace {

template <class Kind>
bool Clicked(Control& control) {
    auto* const found = dynamic_cast<Kind*>(&control);
    if (found != nullptr) found->UserClicks();
    return found != nullptr;
}

}  // namespace

void Click(Control& control) {
    if (Clicked<Label>(control) || Clicked<Picture>(control)) return;
    control.SetFocus();
    if (Clicked<Button>(control) || Clicked<CheckBox>(control)) return;
    Clicked<OptionButton>(control);
}

void DoubleClick(Label& label) {
    label.UserClicks();
    label.UserDoubleClicks();
}

void RightClick(Label&) {}

void Type(TextBox& box, const std::string& text) {
    for (const char c : text)
        if (!box.UserTypes(c)) box.UserEdits(box.Text() + c);
}

size_t Type(MaskedBox& box, const std::string& text, size_t caret) {
    for (const char c : text) caret = box.UserTypes(c, caret);
    return caret;
}

size_t Paste(MaskedBox& box, const std::string& text, size_t caret) {
    return box.UserPastes(text, caret);
}

// A box of one line takes the first.
void Paste(TextBox& box, const std::string& text) {
    if (!box.UserPastes(text)) box.UserEdits(box.Text() + text.substr(0, text.find_first_of("\r\n")));
}

void Choose(ComboBox& box, int index) {
    box.UserSelects(index);
}

void Choose(ListBox& list, const std::vector<int>& indexes) {
    list.UserSelects(indexes);
}

void DoubleClickItem(ListBox& list, int index) {
    Choose(list, {index});
    list.UserDoubleClicks(index);
}

void ClickItem(VirtualList& list, size_t item, bool shift, bool control) {
    list.SetFocus();
    list.UserClicksItem(item, shift, control);
}

void DoubleClickItem(VirtualList& list, size_t item) {
    ClickItem(list, item, false, false);
    list.UserDoubleClicks();
}

void ChooseFromPopup(VirtualList& list, int position) {
    list.UserPressesRightButton(list.Count() > 0 ? std::optional(list.TopIndex()) : std::nullopt);
    Menu* menu = headless::TheWorld().poppedUpMenus.back().menu;
    for (const Menu::Item& item : menu->Items())
        if (item.row.level > 0 && !item.IsSeparator() && position-- == 0) return menu->UserChooses(item.row.command);
}

void ClickRow(Table& table, size_t row, bool shift, bool control) {
    table.SetFocus();
    table.UserClicksRow(row, shift, control);
}

void DoubleClickRow(Table& table, size_t row) {
    ClickRow(table, row);
    table.UserActivates();
}

void RightClickRow(Table& table, size_t row) {
    ClickRow(table, row);
    table.UserPressesRightButton();
}

void ClickTick(Table& table, size_t row) {
    table.SetFocus();
    table.UserTicks(row);
}

void ClickHead(Table& table, int column) {
    table.UserClicksHead(column);
}

void DragColumn(Table& table, int column, int width) {
    table.WindowSizedColumn(column, width);
}

void Spin(UpDown& arrows, int steps) {
    for (int i = 0; i != steps; i += steps > 0 ? 1 : -1) arrows.UserSpins(steps > 0 ? 1 : -1);
}

void TurnTo(TabStrip& strip, int page) {
    strip.UserTurnsTo(page);
}

void Close(Form& form) {
    form.UserCloses(UnloadMode::CloseBox);
}

void Press(Form& form, int key, bool control, bool shift) {
    if (control && key == kKeyTab && form.UserTurnsPage(1)) return;
    Control* active = form.ActiveControl();
    auto* list = dynamic_cast<ListBox*>(active);
    if (active != nullptr && active->KeepsKey(key, control && !shift)) {
        if (list != nullptr) list->UserTypes(static_cast<char>(key));
        return;
    }
    if (form.UserPressesShortcut({key, control, shift})) return;
    active = form.ActiveControl();
    auto* table = dynamic_cast<Table*>(active);
    if (table != nullptr && table->UserPressesKey(key, control)) return;
    form.UserTypes(static_cast<char>(key));
    if (key == kKeyEnter && form.IsLoaded()) form.UserPressesEnter();
    if (key == kKeyEscape && form.IsLoaded()) form.UserPressesEscape();
}

void Type(Form& form, const std::string& text) {
    for (const char c : text) form.UserTypes(c);
}

void PointAt(Form& form, MenuPart part, int command) {
    form.MenuBar()->UserPointsAt(part == MenuPart::Item ? command : 0);
}

void Choose(Form& form, int command) {
    form.MenuBar()->UserChooses(command);
}

bool ShownEnabled(Form& form, int command) {
    return form.MenuBar()->Find(command)->IsEnabled();
}

std::string ShownText(const Control& control) {
    return control.Text();
}

bool ShownChecked(const Control& control) {
    if (auto* box = dynamic_cast<const CheckBox*>(&control)) return box->Value() == 1;
    const auto& option = dynamic_cast<const OptionButton&>(control);
    return option.Group().Selected() == option.Index();
}

int ShownIndex(const Control& control) {
    if (auto* box = dynamic_cast<const ComboBox*>(&control)) return box->ListIndex();
    if (auto* list = dynamic_cast<const ListBox*>(&control)) return list->ListIndex();
    return dynamic_cast<const TabStrip&>(control).Tab();
}

std::string ShownItem(const VirtualList& list, size_t item) {
    return list.itemText(item);
}

size_t ShownTop(const VirtualList& list) {
    return list.TopIndex();
}

std::string ShownCell(const Table& table, size_t row, int column) {
    return table.cellText(row, column);
}

std::vector<size_t> ShownSelection(const Table& table) {
    std::vector<size_t> rows;
    table.Selection().ForEach([&](size_t row) { rows.push_back(row); });
    return rows;
}

bool ShownTick(const Table& table, size_t row) {
    return table.isTicked(row);
}

std::string ShownSecondText(const StatusBar& bar) {
    return bar.SecondText();
}

std::string Clipboard() {
    return headless::TheWorld().clipboard;
}

void Later(std::function<void()> task) {
    headless::PostAfter(1, std::move(task));
}

}  // namespace quirn::test
