#include "platform/files.h"

#include "platform/folders.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;

int NumberOf(const Failure& failure) {
    return failure ? failure->number : 0;
}

// Files by a short name in the scratch folder.
class FilesTest : public WorldTest {
protected:
    static std::string In(const std::string& name) { return Scratch() + "\\" + name; }
    static std::string Bytes(const std::string& name) { return FileBytes(In(name)).value_or("(missing)"); }
    static bool Unfinished(const std::string& name) { return FileBytes(UnfinishedPath(In(name))).has_value(); }
};

TEST_F(FilesTest, FindsPlainFilesOnly) {
    PutFile(In("Alpha.qrn"), "");
    PutFile(In("secret.txt"), "");
    SetHidden(In("secret.txt"));
    MakeFolder(In("sub"));
    EXPECT_TRUE(FileExists(In("Alpha.qrn")));
    EXPECT_TRUE(FileExists(In("aLPHA.QRN")));
    EXPECT_TRUE(FileExists(In("sub\\..\\.\\Alpha.qrn")));
    EXPECT_TRUE(FileExists(In("*.q?n")));
    EXPECT_TRUE(FileExists(In("*.*")));  // the folders and the hidden file that also match do not end the search
    for (const char* name : {"Alph.qrn", "*.wav", "secret.txt", "s*", "sub", "sub\\*", "", "nowhere\\Alpha.qrn"})
        EXPECT_FALSE(FileExists(In(name))) << name;
    EXPECT_FALSE(FileExists(""));

    EXPECT_TRUE(FolderExists(In("SUB")));
    EXPECT_TRUE(FolderExists(In("sub\\")));
    EXPECT_FALSE(FolderExists(In("Alpha.qrn")));
    EXPECT_FALSE(FolderExists(In("nowhere")));
    EXPECT_FALSE(FolderExists(""));
}

TEST_F(FilesTest, RefusesAndLeavesTheOldFileWhole) {
    PutFile(In("fixed"), "old");
    SetReadOnly(In("fixed"));
    PutFile(In("held"), "old");
    MakeFolder(In("folder"));
    const struct {
        const char* name;
        int error;
    } rows[] = {{"fixed", 75}, {"held", 70}, {"folder", 75}, {"nowhere\\file", 76}, {"a?b", 76}, {"held\\file", 76}};
    {
        const HeldFile held(In("held"));
        for (const auto& row : rows) {
            EXPECT_EQ(NumberOf(WriteWholeFile(In(row.name), "new")), row.error) << row.name;
            FileReplacer file;
            EXPECT_EQ(NumberOf(file.Open(In(row.name))), row.error) << row.name;
            EXPECT_FALSE(Unfinished(row.name)) << row.name;
        }
        EXPECT_EQ(ReadWholeFile(In("held")).Error().number, 70);
    }
    EXPECT_EQ(Bytes("fixed"), "old");
    EXPECT_EQ(Bytes("held"), "old");
    EXPECT_EQ(NumberOf(WriteWholeFile("", "new")), 76);
}

TEST_F(FilesTest, ReadsAndReplacesInPieces) {
    PutFile(In("file"), "old");
    PutFile(UnfinishedPath(In("file")), "left by a run that was cut off");
    FileReplacer file;
    EXPECT_FALSE(file.Open(In("file")));
    EXPECT_FALSE(file.Write("half"));
    EXPECT_TRUE(Unfinished("file"));
    EXPECT_EQ(Bytes("file"), "old");

    EXPECT_FALSE(file.Open(In("file")));  // once more from the start
    EXPECT_FALSE(file.Write("first "));
    EXPECT_FALSE(file.Write(std::string("\0 second", 8)));
    EXPECT_FALSE(file.Finish());
    EXPECT_EQ(Bytes("file"), std::string("first \0 second", 14));
    EXPECT_FALSE(Unfinished("file"));
    {
        FileReplacer blocked;
        EXPECT_FALSE(blocked.Open(In("file")));
        const HeldFile held(In("file"));  // only after it was begun
        EXPECT_TRUE(blocked.Finish());
    }
    EXPECT_EQ(Bytes("file"), std::string("first \0 second", 14));
    EXPECT_FALSE(Unfinished("file"));
    {
        const HeldFile held(In("file"));
        FileReplacer refused;
        EXPECT_EQ(NumberOf(refused.Open(In("file"))), 70);
        FileReader reader;
        EXPECT_EQ(NumberOf(reader.Open(In("file"))), 70);
    }

    FileReader reader;
    EXPECT_FALSE(reader.Open(In("file")));
    EXPECT_EQ(reader.Size(), 14u);
    char buffer[10];
    EXPECT_EQ(reader.Read(buffer, 10).Value(), 10u);
    EXPECT_EQ(reader.Read(buffer, 10).Value(), 4u);
    EXPECT_EQ(std::string(buffer, 4), "cond");
    EXPECT_EQ(reader.Read(buffer, 10).Value(), 0u);
    FileReader missing;
    EXPECT_EQ(NumberOf(missing.Open(In("missing"))), 53);
}

TEST_F(FilesTest, SweepsWhatCutOffProgramsLeft) {
    PutFile(In("mine.txt"), "");
    for (const char* name : {"a.qrn~quirn", "A.QRN~QUIRN", "b.qrn.quirn-unfinished", "~quirn"}) PutFile(In(name), "");
    FileReplacer other;  // another copy is writing this file
    ASSERT_FALSE(other.Open(In("c.qrn")));
    FileReplacer third;
    EXPECT_EQ(NumberOf(third.Open(In("c.qrn"))), 70);
    SweepFolder(Scratch());
    EXPECT_EQ(ListFolder(Scratch()).Value().size(), 3u);  // "~quirn" alone is nobody's
    EXPECT_FALSE(other.Finish());

    PutFile(In("c.qrn.quirn-unfinished"), "");
    EXPECT_FALSE(WriteWholeFile(In("c.qrn"), "new"));
    EXPECT_FALSE(FileBytes(In("c.qrn.quirn-unfinished")));
    SweepFolder(In("nowhere"));
}

TEST_F(FilesTest, TheLongestPathsCanBeWritten) {
    const std::string folder = In(std::string(100, 'd'));
    MakeFolder(folder);
    const std::string base = folder + "\\" + std::string(259 - folder.size() - 5, 'n');
    FileReplacer profile;
    EXPECT_FALSE(profile.Open(base + ".qrn"));
    EXPECT_FALSE(WriteWholeFile(base + ".ssm", "macros"));  // while its profile is being written
    EXPECT_FALSE(profile.Finish());
    EXPECT_EQ(FileBytes(base + ".ssm"), "macros");
    EXPECT_EQ(FileBytes(base + ".qrn"), "");
    EXPECT_EQ(ListFolder(folder).Value().size(), 2u);
}

TEST_F(FilesTest, ReadsOrSaysWhyNot) {
    PutFile(In("file"), "x");
    PutFile(In("fixed"), "x");
    SetReadOnly(In("fixed"));
    MakeFolder(In("folder"));
    const struct {
        const char* name;
        int error;
    } rows[] = {{"missing", 53}, {"nowhere\\file", 76}, {"folder", 75}, {"fixed", 0}, {"file", 0}};
    for (const auto& row : rows) {
        const Result<std::string> bytes = ReadWholeFile(In(row.name));
        EXPECT_EQ(bytes.Failed() ? bytes.Error().number : 0, row.error) << row.name;
    }
    EXPECT_EQ(ReadWholeFile("").Error().number, 76);
}

TEST_F(FilesTest, MakesListsMovesAndRemovesFolders) {
    const std::string inner = In("a\\b\\c");
    EXPECT_FALSE(MakeFolders(inner + "\\"));
    EXPECT_FALSE(MakeFolders(inner));
    PutFile(inner + "\\file", "12345");
    EXPECT_EQ(NumberOf(MakeFolders(inner + "\\file\\d")), 75);
    EXPECT_EQ(NumberOf(RemoveFolder(inner)), 75);
    EXPECT_FALSE(MakeFolders(In("z")));
    EXPECT_EQ(NumberOf(RenameEntry(In("a"), In("z"))), 75);
    EXPECT_FALSE(RenameEntry(In("a"), In("z\\y")));
    EXPECT_FALSE(FolderExists(In("a")));
    const std::string moved = In("z\\y\\b\\c");
    const std::vector<FolderEntry> files = ListFolder(moved).Value();
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(files[0].name, "file");
    EXPECT_FALSE(files[0].isFolder);
    EXPECT_EQ(files[0].size, 5u);
    EXPECT_TRUE(ListFolder(In("z\\y")).Value().at(0).isFolder);
    EXPECT_TRUE(RemoveFile(moved + "\\file"));
    EXPECT_FALSE(RemoveFile(moved));
    EXPECT_FALSE(RemoveFolder(moved));
    EXPECT_EQ(ListFolder(moved).Error().number, 76);
    EXPECT_FALSE(LocalDataFolder().ends_with('\\'));
}

}  // namespace
}  // namespace quirn
