#include "logedit/logparser.h"

#include <algorithm>
#include <random>

#include "benchmarks/loggenerator.h"
#include "logedit/logedit.h"
#include "platform/text.h"
#include "tests/logedit/reference.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;

// Parses a text that comes in pieces of so many bytes.
std::shared_ptr<const ParsedLog> Parse(std::string_view text, size_t piece = SIZE_MAX) {
    const auto log = std::make_shared<ParsedLog>();
    LogParser parser(*log, text.size());
    for (size_t at = 0; at < text.size();) {
        at += text.copy(parser.Buffer() + at, piece, at);
        EXPECT_TRUE(parser.Advance(at));
    }
    EXPECT_TRUE(parser.Finish(text.size()));
    return log;
}

std::string PlayerName(const ParsedLog& log, size_t line) {
    const uint32_t player = PlayerOf(log.Info(line));
    return player == 0 ? "-" : std::string(log.Players().at(player - 1));
}

TEST(LogParser, GivesLinesTheirTypeAndSpeaker) {
    const struct {
        const char* line;
        const char* stored;
        uint32_t type;
        const char* player;
    } rows[] = {
        {"  Bob> hi", "  Bob> hi", kPublic, "Bob"},
        {"P Bob> hi", "P Bob> hi", kPrivate, "Bob"},
        {"T Bob> hi", "T Bob> hi", kTeam, "Bob"},
        {"E Bob> hi", "E Bob> hi", kFreq, "Bob"},
        {"{12} T Bob> hi", "T Bob> hi", kTeam, "Bob"},
        {"{12}T Bob> hi", "12}T Bob> hi", kUnknown, "}T Bob"},  // only the brace goes
        {"{a b} {1} T Bob> hi", "{1} T Bob> hi", kUnknown, "} T Bob"},
        {"{1} [~ x", "[~ x", kSystem, "-"},
        {"{1} ", "", kSystem, "-"},
        {"C 2:Bob> hi", "C 2:Bob> hi", kChannel2, "Bob"},
        {"C Bob> 3;hi", "C Bob> 3;hi", kChannel3, "Bob"},
        {"C Bob> 4", "C Bob> 4", kChannel1, "Bob"},
        {"C Bob> hi", "C Bob> hi", kChannel1, "Bob"},
        {"C 2:Bob> 3;hi", "C 2:Bob> 3;hi", kChannel2, "Bob"},
        {"C 2:Bob", "C 2:Bob", kSystem, "-"},
        {"  Ann(25)(100) killed by: Bob", "  Ann(25)(100) killed by: Bob", kKill, "-"},
        {"  Ann> she was (twice) killed by: Bob", "  Ann> she was (twice) killed by: Bob", kKill, "Ann"},
        {"  (Ann)> (x) killed by: Bob", "  (Ann)> (x) killed by: Bob", kSquad, "Ann"},
        {"  Ann) killed by:Bob", "  Ann) killed by:Bob", kSystem, "-"},
        {") killed by: Bob", ") killed by: Bob", kSystem, "-"},  // its start counts as the prefix
        {"  (Ann)> hi", "  (Ann)> hi", kSquad, "Ann"},
        {"  (Ann> hi", "  (Ann> hi", kSquad, "An"},  // the last character goes, whatever it is
        {"  (2:Ann)> hi", "  (2:Ann)> hi", kSquad, "Ann"},
        {"P :Ann:> hi", "P :Ann:> hi", kPrivate, "-"},
        {"    Ann  > hi", "    Ann  > hi", kPublic, "Ann"},
        {"Xx", "Xx", kSystem, "-"},
        {"Xx> hi", "Xx> hi", kUnknown, "Bob"},  // an empty name before the first player: whoever comes first
        {"XxAnn> hi", "XxAnn> hi", kUnknown, "Ann"},
        {"  a>b > c", "  a>b > c", kPublic, "a>b"},
        {"[Ann> hi", "[Ann> hi", kUnknown, "nn"},
    };
    for (const auto& row : rows) {
        // The line by itself, between others, and over the edges of whatever the scan does in pieces.
        for (const std::string& before : {std::string(), std::string("  \r\n[~ x\r\n"), std::string(8170, '\n')}) {
            const std::string text = before + row.line + "\r\n  Bob> x\n";
            const auto log = Parse(text);
            ASSERT_EQ(log->LineCount(), 2u) << row.line;
            EXPECT_EQ(log->Line(0), row.stored);
            EXPECT_EQ(TypeOf(log->Info(0)), row.type) << row.line;
            EXPECT_EQ(PlayerName(*log, 0), row.player) << row.line;
        }
    }
}

// Generated logs with bytes replaced, doubled, taken out and cut off, two hundred thousand lines in all.
TEST(LogParser, AgreesWithThePlainOne) {
    std::mt19937 random(20);
    const auto below = [&](size_t limit) { return static_cast<size_t>(random()) % limit; };
    constexpr std::string_view kTricky = "\n\r\n  >> :;(){}[~CPTE123\xE9\xFF";
    size_t lines = 0;
    for (uint64_t seed = 1; lines < 200000; ++seed) {
        std::string text = GenerateLog({60000 + below(90000), 1 + below(60), seed});
        for (size_t i = 0; i < 600 * (seed % 3); ++i) {
            const size_t at = below(text.size());
            switch (below(4)) {
                case 0: text[at] = kTricky[below(kTricky.size())]; break;
                case 1: text.insert(at, 1, kTricky[below(kTricky.size())]); break;
                case 2: text.erase(at, 1 + below(3)); break;
                default: text.insert(at, text.substr(below(text.size()), below(40))); break;
            }
        }
        lines += static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
        const size_t piece = seed % 2 == 0 ? SIZE_MAX : 1 + below(20000);
        ASSERT_EQ(reference::Difference(text, piece, seed % 4 == 0 ? 0 : random() & 0xFF), "") << seed;
    }
}

class ParseLogFileTest : public WorldTest {
protected:
    static std::string In(const std::string& name) { return Scratch() + "\\" + name; }

    // Opens a log with two players and shows it.
    ParseLogFileTest() {
        edit.chkFilters.fill(1);
        test::PutFile(In("two.log"), "  Ann> x\r\nT Bob> y\r\n");
        EXPECT_TRUE(ParseLogFile(edit, {In("two.log")}, {}).Loaded());
        EXPECT_FALSE(ApplyLogFilter(edit));
    }

    // The number of the error that reading it gives; 0 for none.
    int Error(const std::string& name) {
        const ParseResult result = ParseLogFile(edit, {In(name)}, {});
        return result.failure ? result.failure->number : 0;
    }

    LogEdit edit;
};

TEST_F(ParseLogFileTest, ReportsItsSteps) {
    std::string steps;
    std::vector<uint64_t> progress;
    const ParseSteps told{[&](uint64_t size) { steps += "read " + std::to_string(size) + " "; },
                          [&](uint64_t done) { progress.push_back(done); },
                          [&](size_t highest) {
                              steps += "players " + std::to_string(highest);
                              EXPECT_EQ(edit.include.Count(), 0u) << "the old log's players would be painted";
                          },
                          [&] { steps += " end"; }};
    std::string text = GenerateLog({1000000, 40, 3});
    test::PutFile(In("big.log"), text);
    edit.chkFilters = {1, 2, 0, 1};
    EXPECT_TRUE(ParseLogFile(edit, {In("big.log")}, told).Loaded());
    EXPECT_EQ(steps, "read " + std::to_string(text.size()) + " players 39 end");
    EXPECT_EQ(edit.LogFilterMask, static_cast<uint32_t>(kPublic | kFreq));  // a greyed box does not count
    EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end()));
    EXPECT_GE(progress.size(), 4u);
    EXPECT_LE(progress.size(), 10u);
    EXPECT_EQ(progress.back(), reference::Parse(text).consumed);
    EXPECT_EQ(edit.include.Count(), 40u);
    EXPECT_EQ(edit.exclude.Count(), 0u);
    EXPECT_EQ(edit.view.Count(), 0u);

    test::PutFile(In("one.log"), "  Ann> x\r\n  ann> y\r\n");
    steps.clear();
    EXPECT_TRUE(ParseLogFile(edit, {In("one.log")}, told).Loaded());
    EXPECT_EQ(steps, "read 20 players 1 end");
    EXPECT_EQ(edit.include.Count(), 0u);  // the log of one player: kept on purpose
    EXPECT_EQ(PlayerOf(edit.LogLines->Info(1)), 1u);
}

TEST_F(ParseLogFileTest, AMissingFileLeavesTheListsButNotTheLines) {
    EXPECT_EQ(ParseLogFile(edit, {In("gone.log")}, {}).missing, In("gone.log"));
    EXPECT_EQ(edit.view.Count(), 2u);
    EXPECT_EQ(edit.view.Text(1), "T Bob> y");  // still shown, still there
    EXPECT_EQ(edit.include.Name(0), "Ann");
    EXPECT_FALSE(ApplyLogFilter(edit));
    EXPECT_EQ(edit.view.Count(), 1u);
    EXPECT_EQ(edit.view.Text(0), "");

    EXPECT_TRUE(ParseLogFile(edit, {In("two.log")}, {}).Loaded());
    EXPECT_FALSE(ApplyLogFilter(edit));
    edit.Forget();  // the Log menu, also while the window is open
    EXPECT_EQ(edit.view.Text(1), "T Bob> y");
    EXPECT_FALSE(ApplyLogFilter(edit));
    EXPECT_EQ(edit.view.Count(), 1u);

    const HeldFile held(In("two.log"));
    EXPECT_EQ(Error("two.log"), 70);
}

TEST_F(ParseLogFileTest, WhatIsTooBigIsRefused) {
    PutHugeFile(In("huge.log"), uint64_t{1} << 31);
    EXPECT_EQ(Error("huge.log"), 7);
    EXPECT_FALSE(ApplyLogFilter(edit));
    EXPECT_EQ(edit.view.Count(), 2u);  // the log before is whole

    std::string many;
    for (int i = 1; i <= 32767; ++i) many += "  player " + std::to_string(i) + "> x\r\n";
    test::PutFile(In("many.log"), many);
    EXPECT_TRUE(ParseLogFile(edit, {In("many.log")}, {}).Loaded());
    EXPECT_EQ(edit.include.Count(), 32767u);
    EXPECT_EQ(PlayerOf(edit.LogLines->Info(32766)), 32767u);
    EXPECT_FALSE(ApplyLogFilter(edit));
    test::PutFile(In("many.log"), many + "  one more> x\r\n");
    EXPECT_EQ(Error("many.log"), 6);
    EXPECT_EQ(edit.view.Count(), 0u);
    EXPECT_EQ(edit.include.Count(), 0u);
    EXPECT_EQ(edit.LogLines->LineCount(), 1u);
}

}  // namespace
}  // namespace quirn
