#include "game/configcode.h"

#include <algorithm>
#include <random>

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

constexpr size_t kSkipSplashBox = 52;

AdvancedStates All(int state) {
    AdvancedStates states;
    states.fill(state);
    return states;
}

AdvancedStates Decoded(std::string_view code, int before = 0) {
    AdvancedStates states = All(before);
    DecodeConfigCode(code, states);
    return states;
}

TEST(ConfigCodeTest, PacksRowsIntoSymbols) {
    EXPECT_EQ(EncodeConfigCode(All(0)), "0000-0000-0000");
    EXPECT_EQ(EncodeConfigCode(All(1)), "GZZZ-ZZZZ-ZZZ0");
    const struct {
        size_t box;
        const char* code;
    } rows[] = {
        {0, "4000-0000-0000"},  {54, "8000-0000-0000"}, {5, "0H00-0000-0000"},  {18, "0001-0000-0000"},
        {19, "0000-H000-0000"}, {39, "0000-0000-1000"}, {45, "0000-0000-00H0"}, {kSkipSplashBox, "0000-0000-0000"}};
    for (const auto& row : rows) {
        AdvancedStates states = All(0);
        states[row.box] = 1;
        EXPECT_EQ(EncodeConfigCode(states), row.code) << row.box;
    }
}

TEST(ConfigCodeTest, DecodesAnyTextAtAll) {
    AdvancedStates all = All(1);
    all[kSkipSplashBox] = 0;
    EXPECT_EQ(Decoded("GZZZ-ZZZZ-ZZZ0"), all);
    EXPECT_EQ(Decoded("gzzz-zzzz-zzzz"), all);  // lower case; the twelfth symbol has no effect
    EXPECT_EQ(Decoded("ZZZZZZZZZZZ"), all);     // A5 is nobody's, and dashes need not be there
    AdvancedStates splashOnly = All(0);
    splashOnly[kSkipSplashBox] = 1;
    for (const char* code : {"", "0000-0000-0000", "-", "--------------", "DNOU-dnou-!___", "____-____-____", "    ",
                             "\xFF\x80\xC9\xE9", "\x01\x7F.,"})
        EXPECT_EQ(Decoded(code, 1), splashOnly) << code;
    AdvancedStates fonts = All(0);
    fonts[0] = 1;
    EXPECT_EQ(Decoded("4"), fonts);
    EXPECT_EQ(Decoded("4___-____-____"), fonts);

    EXPECT_EQ(AcceptedConfigCode("GZZZ-ZZZZ-ZZZQ"), "GZZZ-ZZZZ-ZZZ0");
    EXPECT_EQ(AcceptedConfigCode("4___-____-____"), "4___-____-___0");
    EXPECT_EQ(ToBinary8(5), "00000101");
    EXPECT_EQ(ToBinary8(255), "11111111");
    EXPECT_EQ(ToBinary8(256), "ERROR");
}

TEST(ConfigCodeTest, EveryCodeComesBack) {
    std::mt19937 random(54);
    for (int round = 0; round < 500; ++round) {
        AdvancedStates states;
        for (int& state : states) state = static_cast<int>(random() % 2);
        AdvancedStates read = All(states[kSkipSplashBox]);
        EXPECT_EQ(CountChanges(EncodeConfigCode(states), states), 0u);
        const auto others = std::count(states.begin(), states.end(), 1 - states[kSkipSplashBox]);
        EXPECT_EQ(CountChanges(EncodeConfigCode(states), read), static_cast<size_t>(others));
        DecodeConfigCode(EncodeConfigCode(states), read);
        ASSERT_EQ(read, states);
    }
}

}  // namespace
}  // namespace quirn
