#include "game/playerfiles.h"

#include <algorithm>
#include <set>

#include "platform/files.h"
#include "platform/text.h"

namespace quirn {

namespace {

std::string IgnorePath(const std::string& gameFolder) {
    return gameFolder + "\\ignore.txt";
}

std::string WavePath(const std::string& gameFolder, size_t slot) {
    return gameFolder + "\\record" + std::to_string(slot) + ".wav";
}

// The lines of an ignore file. A lone CR and a NUL end one too: a name that held them would be cut there in a QRN file.
std::vector<std::string> NamesIn(std::string text) {
    std::replace(text.begin(), text.end(), '\0', '\n');
    for (size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\r' && text.compare(i, 2, "\r\n") != 0) text[i] = '\n';
    const std::vector<std::string_view> lines = SplitLines(text);
    return {lines.begin(), lines.end()};
}

// Copies the profile's wave file over the game's, unless it has none or already names the game's own.
Failure CopyWave(const std::string& source, const std::string& target) {
    // The first character alone decides, on purpose: every path that begins with "<" counts as not set. An empty path
    // is none either.
    if (source.starts_with('<') || source.empty() || EqualNoCase(source, target)) return {};
    const Result<std::string> wave = ReadWholeFile(source);
    if (wave.Failed()) return wave.Error();
    return WriteGameFile(target, wave.Value());
}

}  // namespace

Failure WriteGameFile(const std::string& path, const std::string& bytes) {
    const Result<std::string> old = ReadWholeFile(path);
    if (old.Failed() || old.Value() != bytes) return WriteWholeFile(path, bytes);
    SweepUnfinished(path);
    return {};
}

Failure WriteIgnoreFile(const Profile& profile, const std::string& gameFolder) {
    std::string text;
    if (profile.ignoreFileUnread) {
        if (profile.IgnoreList.empty()) return {};
        const Result<std::string> unread = ReadWholeFile(IgnorePath(gameFolder));
        if (unread.Failed() && !IsMissingFile(unread.Error())) return unread.Error();
        if (!unread.Failed()) text = unread.Value();
        if (!text.empty() && !text.ends_with('\n')) text += "\r\n";
    }
    std::set<std::string, LessNoCase> known;
    for (const std::string& line : NamesIn(text)) known.emplace(Trim(line));
    for (const std::string& name : profile.IgnoreList)
        if (!Trim(name).empty() && !known.contains(Trim(name))) text += name + "\r\n";
    return WriteGameFile(IgnorePath(gameFolder), text);
}

Failure ReadIgnoreFile(Profile& profile, const std::string& gameFolder) {
    profile.IgnoreList.clear();
    profile.ignoreFileUnread = false;
    const Result<std::string> text = ReadWholeFile(IgnorePath(gameFolder));
    if (text.Failed()) {
        if (IsMissingFile(text.Error())) return {};
        profile.ignoreFileUnread = true;
        return text.Error();
    }
    for (const std::string& line : NamesIn(text.Value())) {
        const std::string_view name = Trim(line);
        if (!name.starts_with('#')) profile.IgnoreList.emplace_back(name);  // from element 0: no slot is left empty
    }
    return {};
}

Failure ReadPlayerFiles(Profile& profile, const std::string& gameFolder) {
    const Failure failure = ReadIgnoreFile(profile, gameFolder);
    for (size_t slot = 0; slot < profile.WaveFiles.size(); ++slot) {
        const std::string path = WavePath(gameFolder, slot);
        profile.WaveFiles[slot] = FileExists(path) ? path : kNotSet;
    }
    return failure;
}

std::vector<RuntimeError> WritePlayerFiles(const Profile& profile, const std::string& gameFolder) {
    std::vector<RuntimeError> errors;
    const auto keep = [&](Failure failure) {
        if (failure) errors.push_back(*std::move(failure));
    };
    keep(WriteIgnoreFile(profile, gameFolder));
    for (size_t slot = 0; slot < profile.WaveFiles.size(); ++slot)
        keep(CopyWave(profile.WaveFiles[slot], WavePath(gameFolder, slot)));
    return errors;
}

}  // namespace quirn
