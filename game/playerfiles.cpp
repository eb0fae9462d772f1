#include "game/playerfiles.h"

#include <algorithm>
#include <array>
#include <set>

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/text.h"

namespace quirn {

namespace {

std::string PathIn(const std::string& gameFolder, const std::string& name) {
    return gameFolder + "\\" + name;
}

// The lines of an ignore file. A lone CR and a NUL end one too: a name that held them would be cut there in a QRN file.
std::vector<std::string> LinesIn(std::string text) {
    std::replace(text.begin(), text.end(), '\0', '\n');
    for (size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\r' && text.compare(i, 2, "\r\n") != 0) text[i] = '\n';
    const std::vector<std::string_view> lines = SplitLines(text);
    return {lines.begin(), lines.end()};
}

using Plan = Result<std::optional<std::string>>;

// The ignore list without its blank entries. To a file that could not be read before, only names are added.
Plan PlanIgnoreFile(const Profile& profile, const std::string& path) {
    std::string text;
    if (profile.ignoreFileUnread) {
        if (profile.IgnoreList.empty()) return std::optional<std::string>();
        Result<std::string> unread = ReadWholeFile(path);
        if (unread.Failed() && !IsMissingFile(unread.Error())) return unread.Error();
        if (!unread.Failed()) text = unread.Take();
        if (!text.empty() && !text.ends_with('\n')) text += "\r\n";
    }
    std::set<std::string, LessNoCase> known;
    for (const std::string& line : LinesIn(text)) known.emplace(Trim(line));
    for (const std::string& name : profile.IgnoreList)
        if (!Trim(name).empty() && !known.contains(Trim(name))) text += name + "\r\n";
    return std::optional(text);
}

bool IsBrought(const std::string& source, const std::string& target) {
    // The first character alone decides, on purpose: every path that begins with "<" counts as not set. An empty path
    // is none either.
    return !source.starts_with('<') && !source.empty() && !EqualNoCase(source, target);
}

// The profile's wave file, unless it has none or already names the game's own.
Plan PlanWave(const std::string& source, const std::string& target) {
    if (!IsBrought(source, target)) return std::optional<std::string>();
    Result<std::string> wave = ReadWholeFile(source);
    if (wave.Failed()) return wave.Error();
    return std::optional(wave.Take());
}

// A file that cannot be read is no wave that the game would send.
bool IsNoWave(const std::string& path) {
    constexpr size_t kHeader = 12;
    std::array<char, kHeader> bytes{};
    FileReader file;
    if (file.Open(path)) return false;
    const Result<size_t> read = file.Read(bytes.data(), bytes.size());
    if (read.Failed()) return false;
    const std::string_view header(bytes.data(), read.Value());
    return !header.starts_with("RIFF") || !header.ends_with("WAVE");
}

// The wave that a file of the game is copied from; the file itself when it is the ignore list.
std::string SourceOf(const Profile& profile, const std::string& gameFolder, const std::string& name) {
    for (size_t slot = 0; slot < profile.WaveFiles.size(); ++slot)
        if (name == kWaveNames[slot]) return profile.WaveFiles[slot];
    return PathIn(gameFolder, name);
}

std::optional<FileTrouble> WritePlanned(const Profile& profile, const std::string& gameFolder, const std::string& name,
                                        Flush flush) {
    const Plan bytes = PlanPlayerFile(profile, gameFolder, name);
    if (bytes.Failed()) return FileTrouble{name, SourceOf(profile, gameFolder, name), bytes.Error()};
    if (!bytes.Value()) return std::nullopt;
    Failure failure = WriteGameFile(PathIn(gameFolder, name), *bytes.Value(), flush);
    if (!failure) return std::nullopt;
    return FileTrouble{name, PathIn(gameFolder, name), *std::move(failure)};
}

}  // namespace

Result<std::optional<std::string>> PlanPlayerFile(const Profile& profile, const std::string& gameFolder,
                                                  const std::string& name) {
    const std::string path = PathIn(gameFolder, name);
    for (size_t slot = 0; slot < profile.WaveFiles.size(); ++slot)
        if (name == kWaveNames[slot]) return PlanWave(profile.WaveFiles[slot], path);
    return PlanIgnoreFile(profile, path);
}

Failure WriteGameFile(const std::string& path, const std::string& bytes, Flush flush) {
    const Result<std::string> old = ReadWholeFile(path);
    if (old.Failed() || old.Value() != bytes) return WriteWholeFile(path, bytes, flush);
    SweepUnfinished(path);
    return {};
}

Failure WriteIgnoreFile(const Profile& profile, const std::string& gameFolder) {
    std::optional<FileTrouble> trouble = WritePlanned(profile, gameFolder, kIgnoreFile, Flush::Yes);
    return trouble ? Failure(std::move(trouble->error)) : Failure();
}

std::vector<std::string> IgnoredNames(const std::string& text) {
    std::vector<std::string> names;
    for (const std::string& line : LinesIn(text)) {
        const std::string_view name = Trim(line);
        if (!name.starts_with('#')) names.emplace_back(name);  // from element 0: no slot is left empty
    }
    return names;
}

Failure ReadIgnoreFile(Profile& profile, const std::string& gameFolder) {
    profile.IgnoreList.clear();
    profile.ignoreFileUnread = false;
    const Result<std::string> text = ReadWholeFile(PathIn(gameFolder, kIgnoreFile));
    if (!text.Failed()) profile.IgnoreList = IgnoredNames(text.Value());
    else if (!IsMissingFile(text.Error())) {
        profile.ignoreFileUnread = true;
        return text.Error();
    }
    return {};
}

Failure ReadPlayerFiles(Profile& profile, const std::string& gameFolder) {
    const Failure failure = ReadIgnoreFile(profile, gameFolder);
    for (size_t slot = 0; slot < profile.WaveFiles.size(); ++slot) {
        const std::string path = PathIn(gameFolder, kWaveNames[slot]);
        profile.WaveFiles[slot] = FileExists(path) ? path : kNotSet;
    }
    return failure;
}

std::optional<OddWave> FindOddWave(const Profile& profile, const std::string& gameFolder) {
    for (size_t slot = 0; slot < profile.WaveFiles.size(); ++slot) {
        const std::string& source = profile.WaveFiles[slot];
        const std::string target = PathIn(gameFolder, kWaveNames[slot]);
        if (!IsBrought(source, target)) continue;
        const bool elsewhere = IsOnOtherComputer(source);
        if (elsewhere || IsNoWave(target)) return OddWave{slot, source, elsewhere};
    }
    return std::nullopt;
}

std::vector<FileTrouble> WritePlayerFiles(const Profile& profile, const std::string& gameFolder, Flush flush) {
    std::vector<FileTrouble> troubles;
    for (const char* name : kPlayerFiles)
        if (auto trouble = WritePlanned(profile, gameFolder, name, flush)) troubles.push_back(*std::move(trouble));
    return troubles;
}

}  // namespace quirn
