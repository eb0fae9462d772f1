#include "game/zonelist.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

std::string Fields(const std::vector<Zone>& zones) {
    std::string text;
    for (const Zone& zone : zones)
        text += zone.name + "|" + zone.address + "|" + zone.port + "|" + zone.description + "\n";
    return text;
}

TEST(ZoneListTest, TakesLinesInPairs) {
    const struct {
        const char *text, *zones;
    } rows[] = {
        {"", ""},
        {" \r\n\r\n   ", ""},
        {"Reach,zone1.example,5400\r\n*Open duels, all ships.\r\n",
         "Reach|zone1.example|5400|Open duels, all ships.\n"},
        {"\n  Caf\xE9,z2,1  \n\n \n +  Quiet \n", "Caf\xE9|z2|1|  Quiet\n"},
        {"One comma,z3\n*d\n", "One comma|z3||d\n"},
        {"Many,z4,1,2,3\n*", "Many|z4|1,2,3|\n"},
        {",,\n*d", "|||d\n"},
        {"No comma\nits, partner\nNext,z5,5\n*d",
         "[Invalid Zone]|[Invalid Zone]|[Invalid Zone]|[Invalid Zone found in your zone list]\nNext|z5|5|d\n"},
        {"A,z6,6\n*d\nLast,z7,7", "A|z6|6|d\nLast|z7|7|\n"},
    };
    for (const auto& row : rows) EXPECT_EQ(Fields(ParseZoneList(row.text)), row.zones) << row.text;
}

TEST(ZoneListTest, FindsTheFirstNameThatContainsTheText) {
    const std::vector<Zone> zones = ParseZoneList("Ember Reach II,a,1\n*\nEmber Reach,b,2\n*\nTin Meridian,c,3\n*\n");
    EXPECT_EQ(FindZoneIndex(zones, "Ember Reach"), 0);
    EXPECT_EQ(FindZoneIndex(zones, "Tin"), 2);
    EXPECT_EQ(FindZoneIndex(zones, "tin meridian"), -1);
    EXPECT_EQ(FindZoneIndex(zones, ""), 0);
    EXPECT_EQ(FindZoneIndex({}, ""), -1);
}

TEST(ZoneListTest, ChatNamesGetTheCommandInFront) {
    const char* const rows[][2] = {
        {"abc", "?chat=abc"}, {"  a,b ", "?chat=a,b"}, {"", ""}, {"   ", ""}, {" ?Chat=mine ", "?Chat=mine"},
        {"?CHAT=", "?CHAT="}, {"?chat", "?chat=?chat"}};
    for (const auto& [typed, shown] : rows) EXPECT_EQ(NormalizeChatName(typed), shown) << typed;
}

}  // namespace
}  // namespace quirn
