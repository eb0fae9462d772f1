#include "profile/profilefile.h"

#include <vector>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/inifile.h"
#include "platform/initext.h"
#include "platform/text.h"
#include "platform/version.h"
#include "profile/initfiles.h"
#include "profile/sectionreader.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr char kIgnoreList[] = "IgnoreList";
constexpr const char* kWaveKeys[] = {"WaveFileF11", "WaveFileF12"};

std::string IgnoreKey(size_t number) {
    return "Ignore" + std::to_string(number);
}

void ReadSection(const SectionReader& file, Section& section, const char* defaultValue) {
    for (int i = 1; i <= section.Count(); ++i)
        section.Value(i) = file.Read(section.Name(i), defaultValue, kValueBuffer);
}

std::vector<std::string> ReadIgnoreList(const SectionReader& file) {
    std::vector<std::string> list;
    for (;;) {
        std::string name = file.Read(IgnoreKey(list.size() + 1), "", kValueBuffer);
        if (name.empty()) return list;
        list.push_back(std::move(name));
    }
}

std::string_view WithoutBlanks(std::string_view text) {
    const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

// What reading gives for a written text: the spaces around it and one pair of quotes are lost, and a text ends with its
// line.
std::string_view AsRead(std::string_view text) {
    return WithoutBlanks(
        WithoutQuotes(WithoutBlanks(text.substr(0, text.find_first_of(std::string_view("\r\n\0", 3))))));
}

struct SavedSection {
    std::string name;
    std::vector<IniEntry> entries;
};

SavedSection Saved(const Section& section) {
    SavedSection saved{section.name, {}};
    for (int i = 1; i <= section.Count(); ++i) saved.entries.push_back({section.Name(i), section.Value(i)});
    return saved;
}

SavedSection SavedIgnoreList(const std::vector<std::string>& list) {
    SavedSection saved{kIgnoreList, {}};
    for (const std::string& name : list) {
        // What reads back as nothing would end the list for the reader, and the names after it would be lost.
        if (!AsRead(name).empty()) saved.entries.push_back({IgnoreKey(saved.entries.size() + 1), name});
    }
    // Ends the list on purpose: names of an older, longer list in the same file are never read.
    saved.entries.push_back({IgnoreKey(saved.entries.size() + 1), ""});
    return saved;
}

// In the order of the file.
std::vector<SavedSection> SavedSections(const Profile& profile) {
    const SavedSection header{kTitle, {{"Version", VersionText()}, {"Modified", ShortDateAndTime()}}};
    SavedSection dialog = Saved(profile.Dialog);
    for (size_t i = 0; i < profile.WaveFiles.size(); ++i)
        dialog.entries.push_back({kWaveKeys[i], profile.WaveFiles[i]});
    return {header,
            dialog,
            Saved(profile.Messages),
            Saved(profile.Options),
            Saved(profile.Advanced),
            SavedIgnoreList(profile.IgnoreList),
            Saved(profile.HiddenOptions)};
}

// An upper bound of the bytes that saving adds to a file, in the widest of the encodings.
size_t RoomNeeded(const std::vector<SavedSection>& sections) {
    size_t room = 0;
    for (const SavedSection& section : sections) {
        room += section.name.size() + 6;
        for (const IniEntry& entry : section.entries) room += entry.key.size() + entry.value.size() + 3;
    }
    return 3 * room;
}

bool ReadsBack(const std::string& path, const std::vector<SavedSection>& sections) {
    constexpr size_t kRoomForQuotes = 4;
    for (const SavedSection& section : sections) {
        const SectionReader file(path, section.name);
        for (const IniEntry& entry : section.entries) {
            const std::string found = file.Read(entry.key, "", entry.value.size() + kRoomForQuotes);
            if (WithoutBlanks(found) != AsRead(entry.value)) return false;
        }
    }
    return true;
}

bool IsUnicode(std::string_view bytes) {
    return bytes.starts_with("\xEF\xBB\xBF") || bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

// Makes the unfinished file: the sections written over the old text.
Failure WriteSections(FileReplacer& file, const std::string& path, const std::string& old,
                      const std::vector<SavedSection>& sections) {
    if (Failure failure = file.Open(path)) return failure;
    // Also for the macro file, which is smaller than one section: both are saved or none.
    if (DiskIsFull(path, old.size() + RoomNeeded(sections))) return MakeError(ErrorNumber::DiskFull);

    if (!IsUnicode(old)) {
        std::string text = old;
        for (const SavedSection& section : sections) text = WithIniKeys(text, section.name, section.entries);
        if (Failure failure = file.Write(text)) return failure;
        if (ReadsBack(file.Unfinished(), sections)) return {};
        if (Failure failure = file.Open(path)) return failure;
    }
    // The system reads Unicode files, and a freak among the others, in its own way, so its functions write them: key by
    // key, and each goes through the whole file. They report success on a full disk; only reading back tells.
    if (Failure failure = file.Write(old)) return failure;
    for (const SavedSection& section : sections)
        for (const IniEntry& entry : section.entries)
            WriteIniValue(file.Unfinished(), section.name, entry.key, entry.value);
    if (ReadsBack(file.Unfinished(), sections)) return {};
    return MakeError(DiskIsFull(path, old.size() + RoomNeeded(sections)) ? ErrorNumber::DiskFull
                                                                         : ErrorNumber::PathFileAccess);
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
    for (Section* section : profile.Sections()) {
        const SectionReader reader(file.InitFileName, section->name);
        ReadSection(reader, *section, section == &profile.Messages ? "" : "0");
        if (section != &profile.Dialog) continue;
        for (size_t i = 0; i < profile.WaveFiles.size(); ++i)
            profile.WaveFiles[i] = reader.Read(kWaveKeys[i], kNotSet, kValueBuffer);
    }
    if (Val(profile.Advanced.Value(kGammaPercent)) == 0) profile.Advanced.Value(kGammaPercent) = "100";
    profile.IgnoreList = ReadIgnoreList(SectionReader(file.InitFileName, kIgnoreList));
    profile.ignoreFileUnread = false;
    return earlier ? LoadResult::LoadedFromEarlierVersion : LoadResult::Loaded;
}

Failure SaveProfile(const Profile& profile, const std::string& gameFolder, const std::string& fileName) {
    const std::string path = AbsolutePath(fileName);
    const Result<std::string> read = ReadWholeFile(path);
    if (read.Failed() && !IsMissingFile(read.Error())) return read.Error();
    const std::string old = read.Failed() ? std::string() : read.Value();
    std::vector<SavedSection> sections = SavedSections(profile);
    FileReplacer file;
    if (Failure failure = WriteSections(file, path, old, sections)) return failure;

    // The macro file is replaced only when the profile is safe. A profile that has got this very name goes before.
    const std::string macroFile = gameFolder + "\\" + SplitPath(path).name + ".ssm";
    Failure macroFailure;
    if (!EqualNoCase(AbsolutePath(macroFile), path)) macroFailure = WriteWholeFile(macroFile, MacroFileText(profile));
    if (macroFailure) {
        sections.pop_back();  // HiddenOptions come after the macro file
        if (Failure failure = WriteSections(file, path, old, sections)) return failure;
    }
    if (Failure failure = file.Finish()) return failure;
    return macroFailure;
}

Failure SaveProfileCopy(const Profile& profile, const std::string& fileName) {
    FileReplacer file;
    if (Failure failure = WriteSections(file, AbsolutePath(fileName), "", SavedSections(profile))) return failure;
    return file.Finish();
}

}  // namespace quirn
