#include "profile/profilefile.h"

#include <vector>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/inifile.h"
#include "platform/text.h"
#include "platform/version.h"
#include "profile/initfiles.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr const char* kWaveKeys[] = {"WaveFileF11", "WaveFileF12"};

std::string IgnoreKey(size_t number) {
    return "Ignore" + std::to_string(number);
}

void ReadSection(clsIniTFiles& file, Section& section, const char* defaultValue) {
    file.SectionName = section.name;
    for (int i = 1; i <= section.Count(); ++i) section.Value(i) = file.ReadKey(section.Name(i), defaultValue);
}

void ReadIgnoreList(clsIniTFiles& file, std::vector<std::string>& list) {
    file.SectionName = "IgnoreList";
    list.clear();
    for (;;) {
        std::string name = file.ReadKey(IgnoreKey(list.size() + 1), "");
        if (name.empty()) return;
        list.push_back(std::move(name));
    }
}

// Writes keys and remembers them, so that they can be compared with what the disk holds.
class CheckedWriter {
public:
    explicit CheckedWriter(const std::string& path) { file_.InitFileName = path; }

    void Section(const std::string& name) { file_.SectionName = name; }

    void Key(const std::string& key, const std::string& value) {
        file_.WriteKey(key, value);
        written_.push_back({file_.SectionName, key, value});
        size_ += key.size() + value.size() + 3;
    }

    void All(const quirn::Section& section) {
        Section(section.name);
        for (int i = 1; i <= section.Count(); ++i) Key(section.Name(i), section.Value(i));
    }

    // The private-profile functions report success on a full disk; only reading back tells.
    // Checks what has been written since the last check.
    Failure Check() {
        for (const Entry& entry : written_) {
            const std::string found =
                ReadIniValue(file_.InitFileName, entry.section, entry.key, "", entry.value.size() + kRoomForQuotes);
            if (WithoutBlanks(found) != AsRead(entry.value))
                return MakeError(DiskIsFull(file_.InitFileName, size_) ? ErrorNumber::DiskFull
                                                                       : ErrorNumber::PathFileAccess);
        }
        written_.clear();
        return {};
    }

    // What reading gives for a written text: the blanks around it and one pair of quotes are lost, and a text ends with
    // its line.
    static std::string_view AsRead(std::string_view text) {
        text = WithoutBlanks(text.substr(0, text.find_first_of(std::string_view("\r\n\0", 3))));
        const bool quoted =
            text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
        return quoted ? WithoutBlanks(text.substr(1, text.size() - 2)) : text;
    }

private:
    struct Entry {
        std::string section, key, value;
    };

    static constexpr size_t kRoomForQuotes = 4;

    static std::string_view WithoutBlanks(std::string_view text) {
        const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
        while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
        while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
        return text;
    }

    clsIniTFiles file_;
    std::vector<Entry> written_;
    size_t size_ = 0;
};

// An upper bound of the bytes that saving may add to the two files.
size_t RoomNeeded(const Profile& profile) {
    constexpr size_t kEnoughForHeaders = 1024;
    size_t room = kEnoughForHeaders;
    for (const Section* section : profile.Sections()) {
        for (int i = 1; i <= section->Count(); ++i) room += section->Name(i).size() + 2 * section->Value(i).size() + 5;
    }
    for (const std::string& path : profile.WaveFiles) room += path.size();
    for (const std::string& name : profile.IgnoreList)
        room += name.size() + IgnoreKey(profile.IgnoreList.size()).size() + 3;
    return room;
}

// The game's own macro format: sixteen lines.
std::string MacroFileText(const Profile& profile) {
    std::string text;
    for (int i = 1; i <= kMacroCount; ++i) text += profile.Messages.Value(i) + "\r\n";
    return text;
}

}  // namespace

LoadResult LoadProfile(Profile& profile, const std::string& fileName) {
    if (!FileExists(fileName)) return LoadResult::NotFound;
    clsIniTFiles file;
    // Without a folder the private-profile functions would look in the Windows folder.
    file.InitFileName = AbsolutePath(fileName);
    file.SectionName = "Dialog";
    if (file.ReadEntireSection().empty()) return LoadResult::NotValid;

    file.SectionName = kTitle;
    const bool earlier = Val(VersionText()) > Val(file.ReadKey("Version", "0.00"));
    ReadSection(file, profile.Dialog, "0");
    for (size_t i = 0; i < profile.WaveFiles.size(); ++i) profile.WaveFiles[i] = file.ReadKey(kWaveKeys[i], kNotSet);
    ReadSection(file, profile.Messages, "");
    ReadSection(file, profile.Options, "0");
    ReadSection(file, profile.Advanced, "0");
    if (Val(profile.Advanced.Value(kGammaPercent)) == 0) profile.Advanced.Value(kGammaPercent) = "100";
    ReadIgnoreList(file, profile.IgnoreList);
    profile.ignoreFileUnread = false;
    ReadSection(file, profile.HiddenOptions, "0");
    return earlier ? LoadResult::LoadedFromEarlierVersion : LoadResult::Loaded;
}

Failure SaveProfile(const Profile& profile, const std::string& gameFolder, const std::string& fileName) {
    const std::string path = AbsolutePath(fileName);
    const Result<std::string> unfinished = BeginReplacement(path);
    if (unfinished.Failed()) return unfinished.Error();

    // On a disk that fills up, the file is cut at its end, where it may hold lines that are not this program's and that
    // reading back would not miss.
    if (DiskIsFull(path, RoomNeeded(profile))) {
        AbandonReplacement(path);
        return MakeError(ErrorNumber::DiskFull);
    }

    CheckedWriter writer(unfinished.Value());
    writer.Section(kTitle);
    writer.Key("Version", VersionText());
    writer.Key("Modified", ShortDateAndTime());
    writer.All(profile.Dialog);
    for (size_t i = 0; i < profile.WaveFiles.size(); ++i) writer.Key(kWaveKeys[i], profile.WaveFiles[i]);
    writer.All(profile.Messages);
    writer.All(profile.Options);
    writer.All(profile.Advanced);

    writer.Section("IgnoreList");
    size_t count = 0;
    for (const std::string& name : profile.IgnoreList) {
        // What reads back as nothing would end the list for the reader, and the names after it would be lost.
        if (!CheckedWriter::AsRead(name).empty()) writer.Key(IgnoreKey(++count), name);
    }
    // Ends the list on purpose: names of an older, longer list in the same file are never read.
    writer.Key(IgnoreKey(count + 1), "");

    // The macro file is replaced only when all before it is safe. A profile that has got this very name goes before.
    Failure failure = writer.Check();
    Failure macroFailure;
    if (!failure) {
        const std::string macroFile = gameFolder + "\\" + SplitPath(path).name + ".ssm";
        if (!EqualNoCase(AbsolutePath(macroFile), path))
            macroFailure = WriteWholeFile(macroFile, MacroFileText(profile));
        if (!macroFailure) {
            writer.All(profile.HiddenOptions);
            failure = writer.Check();
        }
    }
    if (failure) {
        AbandonReplacement(path);
        return failure;
    }
    if ((failure = FinishReplacement(path))) return failure;
    return macroFailure;
}

}  // namespace quirn
