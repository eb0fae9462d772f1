#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/table.h"
#include "platform/virtuallist.h"

// Acts as the player on the windows of this process. In memory it calls what the back end would call; on Windows it
// sends the windows the messages that mouse and keyboard would bring. The form must be shown.
namespace quirn::test {

void Click(Control& control);  // a button, box, option, label or picture
void DoubleClick(Label& label);
void RightClick(Label& label);
void Type(TextBox& box, const std::string& text);                    // at the end
size_t Type(MaskedBox& box, const std::string& text, size_t caret);  // returns the new caret; 8 and 127 erase
size_t Paste(MaskedBox& box, const std::string& text, size_t caret);
void Paste(TextBox& box, const std::string& text);  // at the end
void Choose(ComboBox& box, int index);
void Choose(ListBox& list, const std::vector<int>& indexes);
void DoubleClickItem(ListBox& list, int index);
void ClickItem(VirtualList& list, size_t item, bool shift = false, bool control = false);
void DoubleClickItem(VirtualList& list, size_t item);
void ChooseFromPopup(VirtualList& list, int position);  // the right button, then an item from 0, bars not counted
void ClickRow(Table& table, size_t row, bool shift = false, bool control = false);
void DoubleClickRow(Table& table, size_t row);
void RightClickRow(Table& table, size_t row);
void ClickTick(Table& table, size_t row);
void ClickHead(Table& table, int column);
void DragColumn(Table& table, int column, int width);  // twips
void Spin(UpDown& arrows, int steps);
void TurnTo(TabStrip& strip, int page);
void Close(Form& form);  // the close box

// A key that goes to the control that has the focus, by way of the event loop.
void Press(Form& form, int key, bool control = false, bool shift = false);

// Characters that go there in the same way.
void Type(Form& form, const std::string& text);

enum class MenuPart { Item, Heading, Separator, Nothing };
void PointAt(Form& form, MenuPart part, int command);
void Choose(Form& form, int command);
bool ShownEnabled(Form& form, int command);  // once its menu has been opened

// What the player sees; for a control whose window is there.
std::string ShownText(const Control& control);
bool ShownChecked(const Control& control);
int ShownIndex(const Control& control);  // the selected item or page

std::string ShownItem(const VirtualList& list, size_t item);  // as another program asks for it
size_t ShownTop(const VirtualList& list);
std::string ShownCell(const Table& table, size_t row, int column);  // as another program asks for it
std::vector<size_t> ShownSelection(const Table& table);
bool ShownTick(const Table& table, size_t row);
std::string ShownSecondText(const StatusBar& bar);

// The clipboard's text.
std::string Clipboard();

// Runs once events are waited for, as inside a modal form.
void Later(std::function<void()> task);

}  // namespace quirn::test
