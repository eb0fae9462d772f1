#include "profile/library.h"

#include <map>

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class LibraryReaderTest : public WorldTest {
protected:
    void Put(const std::string& file, const std::string& bytes) { PutFile(Path(file), bytes); }
    static std::string Path(const std::string& file) { return Scratch() + "\\" + file; }

    // Of each profile what is shown, by its name.
    std::map<std::string, std::string> Read(const std::vector<std::string>& others = {}) {
        std::map<std::string, std::string> found;
        LibraryReader reader(Scratch(), others);
        while (!reader.IsDone())
            if (const std::optional<LibraryEntry> entry = reader.Next())
                found[entry->name] = entry->isThere ? entry->pilot + "|" + entry->zone + "|" + entry->ship : "gone";
        return found;
    }
};

TEST_F(LibraryReaderTest, WhateverLiesThereIsReadOrLeftOut) {
    using namespace std::string_literals;
    Put("empty.qrn", "");
    Put("other.qrn", "[Options]\r\nPlayerName=nobody\r\n");
    Put("zeros.qrn", std::string(5000, '\0'));
    Put("picture.qrn", "\x89PNG\r\n\x1A\n\0[Dialog\0]"s);
    Put("large.qrn", "[Dialog]\r\nPlayerName=Vex\r\n" + std::string(17 << 20, 'x'));
    MakeFolder(Path("folder.qrn"));
    Put("bare.qrn", "[Dialog]");
    Put("one line.qrn", "[Dialog]\r\nPlayerName=" + std::string(1 << 20, 'v'));
    Put("twice.qrn",
        "junk\r\n=\r\n[]\r\n[dialog]\r\nplayername = \"Vex\" \r\nPlayerShipType=99\r\n[Dialog]\r\nPlayerName=no\r\n");
    Put("ship.qrn", "[Dialog]\nPlayerShipType=-1\nServerArena=Caf\xE9 & Orbit\n");
    Put("word.qrn", "[Dialog]\r\nPlayerShipType=99999999999999999999\r\nPlayerName=&Amp\tTab\r\n");
    Put("R\xE9sum\xE9 & co;.QRN", "[Dialog]\r\nPlayerName=Nova\r\nPlayerShipType=3\r\n");

    std::map<std::string, std::string> found = Read();
    EXPECT_EQ(found.extract("one line").mapped().substr(0, 3), "vvv");
    EXPECT_EQ(found, (std::map<std::string, std::string>{{"bare", "||Warbird"},
                                                         {"twice", "Vex||"},
                                                         {"ship", "|Caf\xE9 & Orbit|"},
                                                         {"word", "&Amp\tTab||"},
                                                         {"R\xE9sum\xE9 & co;", "Nova||Leviathan"}}));
}

TEST_F(LibraryReaderTest, OtherFilesAreLookedAtAsWarily) {
    Put("held.qrn", "[Dialog]\r\nPlayerName=Vex\r\n");
    Put("held.log", "[Dialog]\r\n");
    MakeFolder(Path("elsewhere"));
    MakeFolder(Path("elsewhere\\folder.qrn"));
    Put("elsewhere\\large.qrn", "[Dialog]\r\n" + std::string(17 << 20, 'x'));
    Put("elsewhere\\there.qrn", "[Dialog]\r\nPlayerName=Orla\r\n");
    const HeldFile held(Path("held.qrn")), heldLog(Path("held.log"));
    EXPECT_EQ(Read({"", Path("HELD.QRN"), Path("elsewhere\\folder.qrn"), Path("elsewhere\\large.qrn"),
                    Path("elsewhere\\there.qrn"), Path("elsewhere\\THERE.qrn"), Path("no\\such.qrn"), "?*<>|"}),
              (std::map<std::string, std::string>{
                  {"held", "||"}, {"there", "Orla||Warbird"}, {"such", "gone"}, {"?*<>| (no .qrn)", "gone"}}));
}

}  // namespace
}  // namespace quirn
