#include "profile/documentnames.h"

#include "profile/macroimport.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

TEST(DocumentNamesTest, ShowFilesWithoutFolders) {
    const struct {
        const char *file, *title, *saveAs;
    } rows[] = {{"D:\\x\\my.best.qrn", "T - my.best.qrn", "my.best.qrn"},
                {"plain", "T - plain.", "plain."},
                {"<untitled.qrn>", "T - <untitled.qrn>", "untitled.qrn"},
                {"<current SS settings>", "T - <current SS settings>", "untitled.qrn"}};
    for (const auto& row : rows) {
        EXPECT_EQ(DocumentTitle("T", row.file), row.title);
        EXPECT_EQ(SaveAsName(row.file), row.saveAs);
    }
    EXPECT_EQ(RecentFileCaption(4, "C:\\a.qrn"), "&5 C:\\a.qrn");
}

TEST(RecentFilesTest, ANewOrMovedEntryComesFirst) {
    const struct {
        const char* path;
        RecentFiles before, after;
    } rows[] = {{"x", {"a", "b", "c", "d", "e"}, {"x", "a", "b", "c", "d"}},
                {"C:\\A\\B.QRN", {"p", "q", "c:\\a\\b.qrn", "r", "s"}, {"C:\\A\\B.QRN", "p", "q", "r", "s"}},
                {"A", {"a", "b", "", "", ""}, {"A", "b", "", "", ""}},
                {"\xC9", {"a", "b", "c", "d", "\xE9"}, {"\xC9", "a", "b", "c", "d"}},
                {"x", {"a", "X", "b", "x", "c"}, {"x", "a", "X", "b", "c"}},
                {"x", {"a", "", "", "", ""}, {"x", "a", "", "", ""}}};
    for (const auto& row : rows) {
        RecentFiles files = row.before;
        AddRecentFile(files, row.path);
        EXPECT_EQ(files, row.after) << row.path;
    }
    RecentFiles files{"a", "b", "c", "d", "e"};
    AddRecentFile(files, files[3]);  // as a click on the list does
    EXPECT_EQ(files, (RecentFiles{"d", "a", "b", "c", "e"}));
}

TEST(ResetProfileTest, ClearsWhatIsPersonal) {
    Profile expected = SampleProfile();
    for (const int index : {1, 2, 6}) expected.Dialog.Value(index).clear();
    for (std::string& text : expected.Messages.values) text.clear();
    expected.WaveFiles = {kNotSet, kNotSet};
    Profile profile = SampleProfile();
    ResetProfile(profile);
    ExpectSame(profile, expected);
}

class MacroImportTest : public WorldTest {
protected:
    const std::string file_ = Scratch() + "\\duel.ssm";
    Profile profile_ = SampleProfile();
};

TEST_F(MacroImportTest, ReadsUpToSixteenLines) {
    const Profile before = profile_;
    PutFile(file_, "");
    EXPECT_FALSE(ImportMacroFile(profile_, file_).Value());
    PutFile(file_, "M1\r\nM2");
    EXPECT_FALSE(ImportMacroFile(profile_, file_).Value());
    ExpectSame(profile_, before);

    PutFile(file_, "  ?attack %coord \r\n\r\nlast");
    EXPECT_TRUE(ImportMacroFile(profile_, file_).Value());
    Profile expected = before;
    expected.Messages.Value(1) = "  ?attack %coord ";
    expected.Messages.Value(2) = "";
    expected.Messages.Value(3) = "last";
    ExpectSame(profile_, expected);

    std::string lines;
    for (int i = 1; i <= 20; ++i) lines += "line " + std::to_string(i) + "\r\n";
    PutFile(file_, lines);
    EXPECT_TRUE(ImportMacroFile(profile_, file_).Value());
    for (int i = 1; i <= kMacroCount; ++i) EXPECT_EQ(profile_.Messages.Value(i), "line " + std::to_string(i));
    EXPECT_EQ(profile_.Messages.Value(kChatName), before.Messages.Value(kChatName));
}

TEST_F(MacroImportTest, ReadsNoMoreOfALargeFileThanTheMacros) {
    const std::string large(size_t{2} << 20, 'x');
    PutFile(file_, large);
    EXPECT_EQ(ImportMacroFile(profile_, file_).Error().number, 7);
    PutFile(file_, std::string(32, '\n') + large);
    EXPECT_TRUE(ImportMacroFile(profile_, file_).Value());
}

TEST_F(MacroImportTest, AFileThatCannotBeReadChangesNothing) {
    const Profile before = profile_;
    EXPECT_EQ(ImportMacroFile(profile_, file_).Error().number, 53);
    PutFile(file_, "x");
    const HeldFile held(file_);
    EXPECT_EQ(ImportMacroFile(profile_, file_).Error().number, 70);
    ExpectSame(profile_, before);
}

}  // namespace
}  // namespace quirn
