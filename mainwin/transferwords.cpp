#include "mainwin/transferwords.h"

#include <algorithm>
#include <vector>

#include "game/playerfiles.h"
#include "mainwin/notice.h"
#include "platform/clock.h"
#include "profile/documentnames.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

std::string Counted(size_t count, const std::string& one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
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

std::string FileNameOf(const TransferEntry& entry) {
    const std::string& profile = entry.note.profile;
    return IsUntitled(profile) ? profile : SplitPath(profile).File();
}

std::string NameInWords(const TransferEntry& entry) {
    return "'" + FileNameOf(entry) + "' (" + TimeInWords(entry.time, SortableTime()) + ")";
}

}  // namespace quirn
