#include "mainwin/favourites.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;

class FavouritesTest : public WorldTest {};

TEST_F(FavouritesTest, AreNamedAfterPlayerAndZone) {
    const std::string file = Scratch() + "\\a.qrn";
    const struct {
        const char *content, *name;
    } rows[] = {{"[Dialog]\r\nPlayerName=Ace\r\nServerArena=Alpha\r\n", "Ace - Alpha"},
                {"[Dialog]\r\nServerArena=Alpha\r\n", "<invalid> - Alpha"},
                {"[Dialog]\r\nPlayerName=\r\n", " - <invalid>"},
                {"nothing", "<invalid> - <invalid>"}};
    for (const auto& row : rows) {
        PutFile(file, row.content);
        EXPECT_EQ(FavouriteName(file), row.name);
    }
    EXPECT_EQ(FirstEmptyRow({"a", "<click to add Favourite 2>", "c", "<", "e"}), 1);
    EXPECT_EQ(FirstEmptyRow({"a", "b", " <", "d", "e"}), -1);
}

}  // namespace
}  // namespace quirn
