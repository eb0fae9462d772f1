#pragma once

#include <optional>
#include <string>

#include "game/playerfiles.h"

// What the main window tells beside its Run button: one thing at a time, the most harmful first.
namespace quirn {

struct NoticeFacts {
    bool unfinished = false;         // the last transfer was cut off
    bool notKept = false;            // the last transfer changed the game, and there is no way back
    bool versionNotKept = false;     // the last save replaced a file, and there is no way back
    std::optional<OddWave> oddWave;  // that the last transfer brought
    bool gameRuns = false;
    bool noSettings = false;     // the game has no registry keys
    bool folderChanged = false;  // since the profile in the window was read from the game
    bool redirected = false;     // Windows keeps a copy of the game folder elsewhere
    size_t changes = 0;          // settings that the game has changed since the last transfer
    bool filesChanged = false;   // the ignore list or a wave message
    std::string since;           // time of the last transfer, "2026-11-23 14.05.10"
};

struct Notice {
    enum class Action { None, Undo, Keep, AcceptWave };
    std::string text;
    std::string link = {};  // empty: none
    Action action = Action::None;
    std::string brief = {};  // of one with a link, which leaves room for one line; empty: the text
};

// An empty text when there is nothing to tell.
Notice WorstOf(const NoticeFacts& facts);

// What Save will do with the present file.
std::string SaveNotice(const std::string& currentFile);

// "14:05" of a kept time, with its date in front unless that is today's.
std::string TimeInWords(const std::string& time, const std::string& now);

}  // namespace quirn
