#include "logedit/logview.h"

#include <map>
#include <random>
#include <regex>

#include "benchmarks/loggenerator.h"
#include "logedit/logfind.h"
#include "logedit/logfollower.h"
#include "logedit/logreader.h"
#include "logedit/logsave.h"
#include "logedit/logsettings.h"
#include "logedit/logstatistics.h"
#include "platform/text.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;

class LogViewTest : public WorldTest {
protected:
    static std::string In(const std::string& name) { return Scratch() + "\\" + name; }

    void Open(std::string_view text) {
        test::PutFile(In("a.log"), text);
        log = ReadLog({In("a.log")}, {}, {}).Value();
        include.Fill(log);
        exclude.Clear();
        Apply(0x7FF, false);
    }

    void Apply(uint32_t mask, bool lineNumbers) {
        EXPECT_FALSE(view.ApplyLogFilter(log, MakeLineFilter(mask, include, exclude), lineNumbers));
    }

    std::string Shown() const {
        std::string text;
        for (size_t i = 0; i < view.Count(); ++i) text += view.Text(i) + "|";
        return text;
    }

    // Moves players from one list to the other, by name.
    static void Move(PlayerList& from, PlayerList& to, std::initializer_list<std::string_view> names) {
        for (size_t i = 0; i < from.Count(); ++i)
            for (const std::string_view name : names)
                if (from.Name(i) == name) from.Selection().Select(i, true);
        MovePlayers(from, to);
    }

    static std::string Names(const PlayerList& list) {
        std::string names;
        for (size_t i = 0; i < list.Count(); ++i) names += std::string(list.Name(i)) + ",";
        return names;
    }

    std::shared_ptr<const ParsedLog> log;
    PlayerList include, exclude;
    LogView view;
};

constexpr char kFour[] =
    "  bob> one\r\nT Ann> two\r\n  Player entered arena\r\nXx Cid> three\r\nP :Ann:> four\r\n  Cid> five\r\n";

TEST_F(LogViewTest, FiltersByTypeAndPlayer) {
    Open(kFour);
    EXPECT_EQ(Names(include), "Ann,bob,Cid,");
    EXPECT_EQ(Shown(), "  bob> one|T Ann> two|  Player entered arena|P :Ann:> four|  Cid> five|");
    EXPECT_EQ(view.CountText(), "Log Lines = 5");
    Apply(kSystem | kTeam, false);
    EXPECT_EQ(Shown(), "T Ann> two|  Player entered arena|");

    Move(include, exclude, {"Ann"});  // two against one: found in the excluded ones
    EXPECT_EQ(IncludeCaption(include) + " " + ExcludeCaption(exclude), "Include : (2) Exclude : (1)");
    Apply(0x7FF, false);
    EXPECT_EQ(Shown(), "  bob> one|  Player entered arena|P :Ann:> four|  Cid> five|");
    Move(include, exclude, {"Cid"});  // one against two: found in the included ones
    Apply(0x7FF, false);
    EXPECT_EQ(Shown(), "  bob> one|  Player entered arena|P :Ann:> four|");
    Move(include, exclude, {"bob"});
    EXPECT_EQ(Names(include) + "/" + Names(exclude), "/Ann,bob,Cid,");
    Apply(0x7FF, false);
    EXPECT_EQ(Shown(), "  Player entered arena|P :Ann:> four|");

    exclude.Selection().Select(1, true);
    EXPECT_EQ(exclude.SelectedText(), "bob");
    MovePlayers(exclude, include);
    include.Selection().Select(0, true);  // stays selected where it is when others come
    Move(exclude, include, {"Ann", "Cid"});
    EXPECT_EQ(include.SelectedText(), "bob");
    Apply(0x7FF, false);
    EXPECT_EQ(view.Count(), 5u);
    EXPECT_EQ(PlayerOf(view.Info(4)), 3u);
    EXPECT_EQ(BuildFilterMask({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}), 0x7FFu);
    EXPECT_EQ(BuildFilterMask({0, 0, 0, 0, 1, 0, 0, 0, 1, 0, 2}), static_cast<uint32_t>(kChannel1 | kSquad));
}

// A log that comes in pieces of any length, half lines among them, is what one read gives.
TEST_F(LogViewTest, AGrowingLogIsWhatOneReadGives) {
    std::mt19937 random(7);
    std::string text = GenerateLog({30000, 20, 9});
    for (int round = 0; round < 20; ++round) {
        LogFollower follower;
        size_t at = random() % text.size();
        test::PutFile(In("g.log"), text.substr(0, at));
        log = follower.Start({In("g.log")}, {}, {}).Value();
        include.Fill(log);
        exclude.Clear();
        if (include.Count() > 3) Move(include, exclude, {include.Name(1)});
        Apply(0x7F7, false);
        view.SetText(TextFilter("e -q"));
        bool anew = false;
        while (at < text.size() && !anew) {
            at = std::min(text.size(), at + random() % 3000);
            const size_t lines = log->LineCount(), players = log->Players().size();
            test::PutFile(In("g.log"), text.substr(0, at));
            const LogFollower::News news = follower.Look();
            anew = news == LogFollower::News::Other;
            if (news != LogFollower::News::Grew) continue;
            include.Add(players);
            EXPECT_FALSE(view.Extend(lines, players).Failed());
        }
        if (anew) continue;
        std::vector<std::string> grown;
        for (size_t i = 0; i < view.Count(); ++i) grown.push_back(view.Text(i));
        const auto whole = ReadLog({In("g.log")}, {}, {}).Value();
        ASSERT_EQ(log->LineCount(), whole->LineCount());
        for (size_t i = 0; i < whole->LineCount(); ++i) {
            ASSERT_EQ(log->Line(i), whole->Line(i));
            ASSERT_EQ(log->Info(i), whole->Info(i));
        }
        ASSERT_EQ(log->Players().size(), include.Count() + exclude.Count());
        Apply(0x7F7, false);
        view.SetText(TextFilter("e -q"));
        ASSERT_EQ(view.Count(), grown.size());
        for (size_t i = 0; i < grown.size(); ++i) ASSERT_EQ(view.Text(i), grown[i]);
    }
    LogFollower follower;
    test::PutFile(In("g.log"), text);
    follower.Start({In("g.log")}, {}, {});
    EXPECT_EQ(follower.Look(), LogFollower::News::None);
    std::string crowd = text;
    for (uint32_t i = 0; i <= kMostPlayers; ++i) crowd += "  P" + std::to_string(i) + "> hi\r\n";
    test::PutFile(In("g.log"), crowd);
    EXPECT_EQ(follower.Look(), LogFollower::News::Full);
    test::PutFile(In("g.log"), text);
    follower.Start({In("g.log")}, {}, {});
    test::PutFile(In("g.log"), std::string(text.size() + 10, 'x'));
    EXPECT_EQ(follower.Look(), LogFollower::News::Other);
    test::PutFile(In("g.log"), text.substr(0, 10));
    EXPECT_EQ(follower.Look(), LogFollower::News::Other);
}

// Files cut anywhere are what one file gives in which each piece ends its last line.
TEST_F(LogViewTest, SeveralLogsAreWhatOneReadGives) {
    std::mt19937 random(11);
    const std::string text = GenerateLog({30000, 20, 9});
    for (int round = 0; round < 30; ++round) {
        LogPaths paths;
        std::string joined;
        std::vector<size_t> begins, ends;
        size_t at = random() % text.size();
        for (size_t i = 0; i <= random() % 5; ++i) {
            const std::string piece = text.substr(at, random() % 4 == 0 ? 0 : random() % 4000);
            at = std::min(text.size(), at + piece.size());
            if (!joined.empty() && !joined.ends_with('\n')) joined += "\r\n";
            begins.push_back(joined.size());
            joined += piece;
            ends.push_back(joined.size());
            paths.push_back(In(std::string(1, static_cast<char>('a' + i)) + ".log"));
            test::PutFile(paths.back(), piece);
        }
        test::PutFile(In("whole.txt"), joined);
        const auto whole = ReadLog({In("whole.txt")}, {}, {}).Value();
        LogFollower follower;
        const auto read = ReadLog(paths, {}, {}).Value();
        const auto followed = follower.Start(paths, {}, {}).Value();
        follower.TakeHalfLine();
        for (const ParsedLog* several : {read.get(), followed.get()}) {
            ASSERT_EQ(several->LineCount(), whole->LineCount());
            ASSERT_EQ(several->Players(), whole->Players());
            for (size_t line = 0; line < whole->LineCount(); ++line) {
                ASSERT_EQ(several->Line(line), whole->Line(line));
                ASSERT_EQ(several->Info(line), whole->Info(line));
                if (whole->Info(line) == 0) continue;  // stands for no line
                const size_t file = several->FileOf(line);
                ASSERT_GE(whole->Offset(line), begins[file]);
                ASSERT_LT(whole->Offset(line), ends[file]);
                ASSERT_LE(several->FirstLineOf(file), line);
                ASSERT_EQ(several->FileOf(several->FirstLineOf(file)), file);
            }
        }
        if (whole->Info(0) == 0 || !joined.ends_with('\n')) continue;
        const auto growing = follower.Start(paths, {}, {}).Value();
        test::PutFile(paths.back(), *test::FileBytes(paths.back()) + "  More> of the last\r\n");
        ASSERT_EQ(follower.Look(), LogFollower::News::Grew);
        ASSERT_EQ(growing->Line(whole->LineCount()), "  More> of the last");
    }
    test::PutFile(In("a.log"), "  Bo> no end");
    test::PutFile(In("b.log"), "");
    LogFollower follower;
    const auto followed = follower.Start({In("a.log"), In("b.log")}, {}, {}).Value();
    EXPECT_EQ(followed->Line(0), "  Bo> no end") << "the log behind it has nothing yet";
    test::PutHugeFile(In("a.log"), kLogSizeLimit / 2);
    test::PutHugeFile(In("b.log"), kLogSizeLimit / 2 - 1);
    EXPECT_TRUE(ReadLog({In("a.log"), In("b.log")}, {}, {}).Failed()) << "too long with the line end between them";
    EXPECT_EQ(ReadLog({In("c.log"), In("none.log")}, {}, {}).Error().description, "File not found: " + In("none.log"));
}

// Against a plain reading of the lines; names may hold brackets, and some players only kill or die.
TEST_F(LogViewTest, CountsLinesKillsAndDeaths) {
    Open(GenerateLog({200000, 60, 11}) +
         "  Bob [x](3)(10)(230) killed by: CID\r\n    Mole(25) killed by: Orla (2)\r\n  Cid> hello\r\n"
         "  Cid> look: Quoted(25) killed by: Nobody\r\n");
    struct Counts {
        size_t lines = 0, kills = 0, deaths = 0;
        bool operator==(const Counts&) const = default;
    };
    std::map<std::string, Counts> expected;
    for (size_t i = 0; i < log->LineCount(); ++i) {
        const int32_t info = log->Info(i);
        if (PlayerOf(info) != 0) ++expected[FoldCase(log->Players()[PlayerOf(info) - 1])].lines;
        std::smatch match;
        static const std::regex kKillLine(R"(..\s*(.+?)(?:\(\d+\)){1,2} killed by: (.*\S)\s*)");
        const std::string line(log->Line(i));
        if (TypeOf(info) != kKill || PlayerOf(info) != 0 || !std::regex_match(line, match, kKillLine)) continue;
        ++expected[FoldCase(match[1].str())].deaths;
        ++expected[FoldCase(match[2].str())].kills;
    }
    std::map<std::string, Counts> counted;
    for (const PlayerStatistics& player : CountPlayers(*log)) {
        EXPECT_LE(player.first, player.last);
        const Counts counts{player.lines, player.kills, player.deaths};
        EXPECT_TRUE(counted.emplace(FoldCase(player.name), counts).second) << player.name;
    }
    ASSERT_EQ(counted.size(), expected.size());
    for (const auto& [name, counts] : expected) EXPECT_EQ(counted[name], counts) << name;
    EXPECT_FALSE(counted.contains("NOBODY"));
    EXPECT_EQ(ReadKill("  Bob [x](3)(10)(230) killed by: CID").victim, "Bob [x](3)");
}

TEST_F(LogViewTest, ListsPlayersInAlphabeticalOrder) {
    Open(
        "  zed> 1\r\n  \xD8rn> 2\r\n  Oslo> 3\r\n  _x_> 4\r\n  2fast> 5\r\n"
        "  OSKAR \xE4> 6\r\n  oskar a> 7\r\n  oskar> 8\r\n  \xFF\x61> 9\r\n  yves> 10\r\n  > 11\r\n");
    include.Selection().SelectAll();
    EXPECT_TRUE(include.SelectedText().starts_with("\r\n_x_\r\n2fast")) << "a name may be empty";
    EXPECT_EQ(Names(include), ",_x_,2fast,\xD8rn,oskar,oskar a,OSKAR \xE4,Oslo,\xFF\x61,yves,zed,");
}

TEST_F(LogViewTest, NumbersLinesAndDeletesThem) {
    std::string text;
    for (int i = 1; i <= 999; ++i) text += (i % 2 == 0 ? "  bob> x\r\n" : "T Ann> y\r\n");
    Open(text);
    Apply(kTeam, true);
    EXPECT_EQ(view.Text(0), "{001} T Ann> y");
    EXPECT_EQ(view.Text(499), "{999} T Ann> y");
    EXPECT_EQ(view.LongestText(), 14u);
    Open(text + "  bob> x");
    Apply(kPublic, true);
    EXPECT_EQ(view.Text(499), "{1000}   bob> x");

    ListSelection selection;
    selection.Reset(view.Count());
    selection.SelectRange(497, 1, true);
    selection.Select(499, true);
    EXPECT_EQ(selection.SelectedCount(), 498u);
    view.Delete(selection);
    EXPECT_EQ(Shown(), "{0002}   bob> x|{0998}   bob> x|");
    selection.Reset(2);
    selection.SelectAll();
    EXPECT_EQ(view.SelectedText(selection), "{0002}   bob> x\r\n{0998}   bob> x");
    Apply(kPublic, false);  // and they are back
    EXPECT_EQ(view.Count(), 500u);
}

// Against a search through each item's text.
TEST_F(LogViewTest, FindsWhatIsThere) {
    Open(GenerateLog({120000, 30, 5}));
    std::mt19937 random(9);
    Move(include, exclude, {include.Name(3), include.Name(7), include.Name(8)});
    for (int round = 0; round < 400; ++round) {
        if (round % 40 == 0) Apply(round % 80 == 0 ? 0x7FF : kTeam | kKill, round % 3 == 0);
        const std::string around = view.Text(random() % view.Count());
        std::string text = around.substr(random() % std::min<size_t>(around.size(), 30), 1 + random() % 12);
        if (random() % 4 == 0) text = FoldCase(text);
        if (random() % 8 == 0) text.back() = 'q';
        const size_t start = random() % view.Count();
        std::optional<size_t> expected;
        for (size_t i = start; i < view.Count() && !expected; ++i)
            if (FoldCase(view.Text(i)).find(FoldCase(text)) != std::string::npos) expected = i;
        ASSERT_EQ(FindItem(view, text, start), expected) << '"' << text << "\" from " << start;
        size_t end = start;
        while (end > 0 && FoldCase(view.Text(end - 1)).find(FoldCase(text)) == std::string::npos) --end;
        expected = end > 0 ? std::optional(end - 1) : std::nullopt;
        ASSERT_EQ(FindItemBefore(view, text, start), expected) << '"' << text << "\" before " << start;
    }
    // Nothing is found across the end of a line, or in lines that are not kept.
    Open("  bob> abc\r\n[~ xyz\r\ndef> one\r\n");
    for (const char* text : {"c\r", "\n", "xyz", "abcdef"}) EXPECT_EQ(FindItem(view, text, 0), std::nullopt) << text;
}

TEST(LogMRU, KeepsTheLastFive) {
    RecentFiles list{"a", "b", "c", "d", "e"};
    AddToLogMRU(list, "C");
    EXPECT_EQ(list, (RecentFiles{"C", "a", "b", "d", "e"}));
    AddToLogMRU(list, "f");
    EXPECT_EQ(list, (RecentFiles{"f", "C", "a", "b", "d"}));
    AddToLogMRU(list, "F");
    EXPECT_EQ(list[0], "f");  // nothing moves, so the spelling stays
    list = {"R&D", "y", "z", "y", " "};
    AddToLogMRU(list, "y");  // the last one that is equal counts
    EXPECT_EQ(list, (RecentFiles{"y", "R&D", "y", "z", " "}));
    EXPECT_EQ(LogMRUCaption(list, 1), "&2 R&&D");
    EXPECT_EQ(LogMRUCaption(list, 4), std::nullopt);
}

}  // namespace
}  // namespace quirn
