#include "game/playerfiles.h"

#include <algorithm>

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

bool IsMissing(const RuntimeError& error) {
    return error.number == static_cast<int>(ErrorNumber::FileNotFound) ||
           error.number == static_cast<int>(ErrorNumber::PathNotFound);
}

// Writes a file of the game unless it already holds those bytes: most launches change nothing here, and a write that is
// flushed to the disk takes longer than all the rest.
Failure WriteGameFile(const std::string& path, const std::string& bytes) {
    const Result<std::string> old = ReadWholeFile(path);
    if (!old.Failed() && old.Value() == bytes) return {};
    return WriteWholeFile(path, bytes);
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

Failure WriteIgnoreFile(const Profile& profile, const std::string& gameFolder) {
    std::string text;
    if (profile.ignoreFileUnread) {
        if (profile.IgnoreList.empty()) return {};
        const Result<std::string> unread = ReadWholeFile(IgnorePath(gameFolder));
        if (unread.Failed() && !IsMissing(unread.Error())) return unread.Error();
        if (!unread.Failed()) text = unread.Value();
        if (!text.empty() && !text.ends_with('\n')) text += "\r\n";
    }
    const std::string before = text;
    const std::vector<std::string_view> known = SplitLines(before);
    for (const std::string& name : profile.IgnoreList) {
        const auto isName = [&](std::string_view line) { return EqualNoCase(Trim(line), Trim(name)); };
        if (!Trim(name).empty() && std::none_of(known.begin(), known.end(), isName)) text += name + "\r\n";
    }
    return WriteGameFile(IgnorePath(gameFolder), text);
}

Failure ReadIgnoreFile(Profile& profile, const std::string& gameFolder) {
    profile.IgnoreList.clear();
    profile.ignoreFileUnread = false;
    const Result<std::string> text = ReadWholeFile(IgnorePath(gameFolder));
    if (text.Failed()) {
        if (IsMissing(text.Error())) return {};
        profile.ignoreFileUnread = true;
        return text.Error();
    }
    for (std::string_view line : SplitLines(text.Value())) {
        line = Trim(line);
        if (!line.starts_with('#')) profile.IgnoreList.emplace_back(line);  // from element 0: no slot is left empty
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
