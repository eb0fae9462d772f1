#include "mainwin/notice.h"

#include "platform/clock.h"
#include "profile/documentnames.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

std::string WhatTheGameChanged(const NoticeFacts& facts) {
    if (facts.changes == 0) return "its files";
    return std::to_string(facts.changes) + (facts.changes == 1 ? " setting" : " settings");
}

// Others hear what the game sends.
Notice NoticeOf(const OddWave& wave) {
    const std::string key = wave.slot == 0 ? "Shift-F11: " : "Shift-F12: ";
    const std::string what = wave.elsewhere ? " lies on another computer." : " is no wave file.";
    const std::string wrong = key + (wave.elsewhere ? wave.path : SplitPath(wave.path).File()) + what;
    return {wrong + " The game sends it to others.", "Accept", Notice::Action::AcceptWave, wrong};
}

}  // namespace

Notice WorstOf(const NoticeFacts& facts) {
    if (facts.unfinished)
        return {"The last transfer was not finished.", "Put back...", Notice::Action::Undo, "A transfer was cut off."};
    if (facts.notKept) return {"The last transfer could not be kept: no way back."};
    if (facts.versionNotKept) return {"The file that was saved over could not be kept."};
    if (facts.oddWave) return NoticeOf(*facts.oddWave);
    if (facts.gameRuns) return {"The game runs: it writes its own settings at its end."};
    if (facts.noSettings) return {"The game has no settings yet. Start it once by itself."};
    if (facts.folderChanged) return {"The game folder has changed. Start QUIRN again first."};
    if (facts.redirected) return {"Windows keeps a second copy of the game folder."};
    if (facts.changes > 0 || facts.filesChanged)
        return {"The game changed " + WhatTheGameChanged(facts) + " since " + TimeInWords(facts.since, SortableTime()) +
                    ".",
                "Keep them...", Notice::Action::Keep, "The game changed " + WhatTheGameChanged(facts) + "."};
    return {};
}

std::string SaveNotice(const std::string& currentFile) {
    return IsUntitled(currentFile) ? "Not saved yet" : "Save writes " + SplitPath(currentFile).File();
}

std::string TimeInWords(const std::string& time, const std::string& now) {
    constexpr size_t kDate = 10, kHour = 11, kMinute = 14;
    if (time.size() < kMinute + 2) return time;
    const std::string clock = time.substr(kHour, 2) + ":" + time.substr(kMinute, 2);
    return time.substr(0, kDate) == now.substr(0, kDate) ? clock : time.substr(0, kDate) + " " + clock;
}

}  // namespace quirn
