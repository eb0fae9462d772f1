#include "platform/text.h"

#include <gtest/gtest.h>

#include <limits>

namespace quirn {
namespace {

TEST(Text, FoldsCaseByTheCodePage) {
    EXPECT_EQ(FoldCase("az AZ 09 [`{"), "AZ AZ 09 [`{");
    EXPECT_EQ(FoldCase("\xE0\xE9\xF6\xFE\x9A\x9C\x9E\xFF"), "\xC0\xC9\xD6\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(FoldCase("\xDF\xF7\xD7\xAA\xBA\x83\xB5"), "\xDF\xF7\xD7\xAA\xBA\x83\xB5");
    for (int c = 0; c < 256; ++c) {
        const char folded = FoldCase(static_cast<char>(c));
        EXPECT_EQ(FoldCase(folded), folded) << c;
    }
    EXPECT_TRUE(EqualNoCase("Vell\xE9k", "vELL\xC9K"));
    EXPECT_FALSE(EqualNoCase("ab", "abc"));
    EXPECT_TRUE(LessNoCase()("Z", "\xE9"));  // bytes above 0x7F come after the letters, not before
    EXPECT_FALSE(LessNoCase()("B", "a"));
}

TEST(Text, TrimsBlanksOnly) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim("\ta\xA0"), "\ta\xA0");
}

TEST(Text, ReadsNumbers) {
    const struct {
        const char* text;
        double value;
    } rows[] = {{"", 0},     {"  12 x", 12}, {"\t-3.5abc", -3.5}, {"+7", 7},      {".5", 0.5},   {"-", 0},
                {"- 5", 0},  {"x1", 0},      {"inf", 0},          {"nan", 0},     {"1e3", 1000}, {"1,5", 1},
                {"0x10", 0}, {"--5", 0},     {"010", 10},         {"1.61", 1.61}, {"5-", 5}};
    for (const auto& row : rows) EXPECT_EQ(Val(row.text), row.value) << row.text;

    EXPECT_EQ(ToInteger("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(ToInteger("2147483647.9"), std::numeric_limits<int>::max());
    EXPECT_EQ(ToInteger("-1.9"), -1);
    EXPECT_EQ(ToInteger("-1e-999"), 0);
    for (const char* text : {"2147483648", "-2147483649", "1e999", "-1e999"}) EXPECT_EQ(ToInteger(text), std::nullopt);
}

TEST(Text, SplitsLines) {
    using Lines = std::vector<std::string_view>;
    EXPECT_EQ(SplitLines(""), Lines());
    EXPECT_EQ(SplitLines("a\r\nb\n\nc\rd"), (Lines{"a", "b", "", "c\rd"}));
    EXPECT_EQ(SplitLines("\r\n"), Lines{""});
    EXPECT_EQ(SplitLines("a\r"), Lines{"a"});
}

}  // namespace
}  // namespace quirn
