#include "mainwin/menurows.h"

#include <set>

#include "mainwin/frmmain.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

class MainMenuTest : public test::WorldTest {};

TEST_F(MainMenuTest, FirstCommandsKeepTheirNumbersAndEveryItemDoesSomething) {
    Program program;
    const frmMain window(program);
    int last = 0;
    std::set<std::string> keys;
    for (const Menu::Item& item : window.MenuBar()->Items()) {
        const bool first = item.row.command < 40;
        EXPECT_EQ(item.row.command, first ? ++last : item.row.command);
        const bool heading = item.row.level == 0 && item.row.command != mnuLog;
        EXPECT_EQ(heading || item.IsSeparator(), !item.row.onClick) << item.row.command;
        const bool keyIsFree = *item.row.shortcut == '\0' || keys.insert(item.row.shortcut).second;
        EXPECT_TRUE(keyIsFree) << item.row.shortcut;
    }
    EXPECT_EQ(last, 29);
}

}  // namespace
}  // namespace quirn
