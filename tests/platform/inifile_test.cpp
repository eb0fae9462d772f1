#include "platform/inifile.h"

#include <random>
#include <vector>

#include "platform/initext.h"
#include "platform/text.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;
using namespace std::string_literals;

class IniFileTest : public WorldTest {
protected:
    const std::string file_ = Scratch() + "\\test.ini";

    std::string Read(const std::string& section, const std::string& key, size_t size = 255) {
        return ReadIniValue(file_, section, key, "D", size);
    }

    // The file's lines without the blank ones, which not every system keeps, each ended by a "|".
    std::string LinesAfter() {
        std::string lines;
        const std::string bytes = FileBytes(file_).value_or("(missing)");
        for (const std::string_view line : SplitLines(bytes))
            if (!line.empty()) lines += std::string(line) + "|";
        return lines;
    }
};

TEST_F(IniFileTest, ReadsValues) {
    const struct {
        std::string file, section, key, value;
    } rows[] = {
        // encodings: not last, because Wine writes a new file in that of the last one it read
        {"\xEF\xBB\xBF[s]\r\nk=\xC3\xA9\xE2\x82\xAC\r\n", "s", "k", "\xE9\x80"},
        {"\xFF\xFE[\0s\0]\0\r\0\n\0k\0=\0\xAC\x20\r\0\n\0"s, "s", "k", "\x80"},
        // spaces
        {"[s]\r\n\tk\t=  v w \t\r\n", "s", "k", "v w"},
        {"  [ s ]  \r\nk=v\r\n", " s\t", "\tk ", "v"},
        // quotes
        {"[s]\r\nk=  \"  val  \"  \r\n", "s", "k", "  val  "},
        {"[s]\r\nk='val'\r\n", "s", "k", "val"},
        {"[s]\r\nk=\"a\" x\r\n", "s", "k", "\"a\" x"},
        // equals, comments, lines that are nothing
        {"[s]\r\nk=a=b\r\n", "s", "k", "a=b"},
        {"[s]\r\n ;k=v\r\nk=w ; c\r\n", "s", "k", "w ; c"},
        {"[s]\r\nk\r\n\r\n", "s", "k", "D"},
        // which one counts
        {"[s]\r\nK=1\r\nk=2\r\n", "S", "k", "1"},
        {"[s]\r\na=1\r\n[t]\r\nb=2\r\n[s]\r\nk=3\r\n", "s", "k", "D"},
        // headers
        {"[s] junk\r\nk=1\r\n", "s", "k", "1"},
        {"[t]\r\n[s\r\nk=1\r\n", "t", "k", "1"},
        // line ends and control bytes
        {"[s]\nk=v\n", "s", "k", "v"},
        {"[s]\r\na=1\x1A\r\nk=v\r\n", "s", "k", "v"},
        {"[s]\r\na=1\0z\r\nk=v\r\n"s, "s", "a", "1"},
        {"[s]\r\na=1\0z\r\nk=v\r\n"s, "s", "k", "v"},
    };
    for (const auto& row : rows) {
        PutFile(file_, row.file);
        EXPECT_EQ(Read(row.section, row.key), row.value) << row.file;
    }
}

TEST_F(IniFileTest, WritesValues) {
    const struct {
        std::string before, section, key, value, after;
    } rows[] = {
        {"", "s", "k", "v", "[s]|k=v|"},
        {"", "s", "k", "\"q\"", "[s]|k=\"q\"|"},
        {"[S]\r\n; c1\r\nK = old ; tail\r\n\r\nx=1\r\n", "s", "k", "new", "[S]|; c1|K=new|x=1|"},
        {"[s]\r\na=1\r\n;c\r\n\r\n[t]\r\nb=2\r\n", "s", "k", "v", "[s]|a=1|;c|k=v|[t]|b=2|"},
        {"[s]\na=1\n[t]\nb=1\n", "t", "k", "v", "[s]|a=1|[t]|b=1|k=v|"},
        {"[s]\r\na=1\r\n[t]\r\n[s]\r\nk=2\r\n", "s", "k", "v", "[s]|a=1|k=v|[t]|[s]|k=2|"},
        {"\xEF\xBB\xBF[s]\r\na=\xC3\xA9\r\n", "s", "z", "\xE9", "\xEF\xBB\xBF[s]|a=\xC3\xA9|z=\xC3\xA9|"},
    };
    for (const auto& row : rows) {
        PutFile(file_, row.before);
        EXPECT_TRUE(WriteIniValue(file_, row.section, row.key, row.value)) << row.before;
        EXPECT_EQ(LinesAfter(), row.after) << row.before;
    }
}

// What the program writes itself, the system's functions would have written.
TEST_F(IniFileTest, ManyKeysAtOnceAreAsOneByOne) {
    std::mt19937 random(9);
    const char* const lines[] = {
        "[s]", "[ S ] x", "[t]", "k=1", " K = 2", "x=", ";c", ";k=3", "bare", "y='q'", "", " "};
    const char* const ends[] = {"\r\n", "\r\n", "\n", "\r"};
    const std::vector<IniEntry> entries{{"k", "new"}, {"fresh", " 1"}, {"x", "\"q\""}, {"FRESH", "2"}, {"bare", "3"}};
    for (int round = 0; round < 60; ++round) {
        std::string text;
        for (auto i = random() % 12; i > 0; --i) text += std::string(lines[random() % 12]) + ends[random() % 4];
        PutFile(file_, text);
        for (const IniEntry& entry : entries) ASSERT_TRUE(WriteIniValue(file_, "s", entry.key, entry.value));
        const auto sections = [&] { return ReadIniSection(file_, "s", 999) + "|" + ReadIniSection(file_, "t", 999); };
        const std::string oneByOne = sections();
        PutFile(file_, WithIniKeys(text, "s", entries));
        EXPECT_EQ(sections(), oneByOne) << text;
    }
}

TEST_F(IniFileTest, RefusesWhatCannotBeWritten) {
    PutFile(file_, "[s]\r\nk=v\r\n");
    {
        const HeldFile held(file_);
        EXPECT_FALSE(WriteIniValue(file_, "s", "k", "new"));
        EXPECT_FALSE(WriteIniSection(file_, "s", "k=new\0"s));
    }
    EXPECT_EQ(LinesAfter(), "[s]|k=v|");
    EXPECT_FALSE(WriteIniValue(Scratch() + "\\nowhere\\test.ini", "s", "k", "v"));
    EXPECT_FALSE(WriteIniValue(Scratch(), "s", "k", "v"));
}

}  // namespace
}  // namespace quirn
