#include "mainwin/transferwords.h"

#include <algorithm>
#include <vector>

#include "mainwin/notice.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "profile/documentnames.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

std::string Counted(size_t count, const std::string& one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string InWords(const FileTrouble& trouble) {
    const bool wave = trouble.name != kIgnoreFile;
    std::string text = "The ignore list";
    if (wave) text = trouble.name == kWaveNames[0] ? "The wave message Shift-F11" : "The wave message Shift-F12";
    text += " was not transferred: '" + trouble.path + "': " + trouble.error.description + ".";
    return text;
}

}  // namespace

std::string WordsFor(size_t settings, bool ignoreList, size_t waves) {
    std::vector<std::string> parts;
    if (settings > 0) parts.push_back(Counted(settings, "setting"));
    if (ignoreList) parts.emplace_back("the ignore list");
    if (waves > 0) parts.push_back(Counted(waves, "wave message"));
    if (parts.empty()) return "nothing";
    std::string words = parts[0];
    for (size_t i = 1; i < parts.size(); ++i) words += (i + 1 == parts.size() ? " and " : ", ") + parts[i];
    return words;
}

std::string WordsFor(const GameState& state) {
    const bool names = state.files.contains(kIgnoreFile);
    return WordsFor(state.SettingCount(), names, state.files.size() - (names ? 1 : 0));
}

std::string WordsFor(const TransferEntry& entry) {
    const bool names = std::find(entry.files.begin(), entry.files.end(), kIgnoreFile) != entry.files.end();
    return WordsFor(entry.settings, names, entry.files.size() - (names ? 1 : 0));
}

std::string TroublesInWords(const TransferResult& result) {
    std::vector<std::string> parts;
    for (const RuntimeError& error : result.errors) {
        std::string part = ErrorText(error);
        if (std::find(parts.begin(), parts.end(), part) == parts.end()) parts.push_back(std::move(part));
    }
    for (const FileTrouble& trouble : result.files) parts.push_back(InWords(trouble));
    if (!result.files.empty()) parts.emplace_back("The game keeps what it had there. Everything else was transferred.");
    std::string text;
    for (const std::string& part : parts) {
        if (!text.empty()) text += "\r\r";
        text += part;
    }
    return text;
}

std::string FileNameOf(const TransferEntry& entry) {
    const std::string& profile = entry.note.profile;
    return IsUntitled(profile) ? profile : SplitPath(profile).File();
}

std::string NameInWords(const TransferEntry& entry) {
    return "'" + FileNameOf(entry) + "' (" + TimeInWords(entry.time, SortableTime()) + ")";
}

}  // namespace quirn
