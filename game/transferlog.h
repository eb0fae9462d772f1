#pragma once

#include <optional>
#include <string>
#include <vector>

#include "game/gamestate.h"
#include "platform/error.h"

// What transfers have done to the game, kept so that a player can always go back. In the player's local data, one
// folder for each transfer, named by its local time:
//     before.reg, after.reg              all settings, in the registry editor's own text format
//     ignore.txt, record0.wav, ...       what the transfer changed in the game folder, as it was before
//     after-ignore.txt, ...              and as it left it
//     transfer.ini                       profile, way, game folder, files that were not there
//     unfinished.ini                     until the transfer is over
// and beside them "left" files: what the last transfer left, to see what the game has changed since.
namespace quirn {

enum class TransferWay { Run, Tray, CommandLine, NoRun, Undo, PutBack, Compare };

// As the history names it: "Run", "Tray", "Command line", ...
const char* NameOf(TransferWay way);

struct TransferNote {
    std::string profile;  // what the player knows it by: a path, or a name in "<>"
    TransferWay way = TransferWay::Run;
};

struct TransferEntry {
    std::string folder;  // where it is kept
    std::string time;    // local, "2026-11-23 14.05.10"
    TransferNote note;
    std::string gameFolder;
    size_t settings = 0;             // how many it changed
    std::vector<std::string> files;  // player files that it changed
    size_t overwrote = 0;            // of the settings, how many the game had changed since the transfer before
    bool finished = false;
};

// What a transfer left, of each wave message only its mark, as GlanceAtGame has it.
struct LeftState {
    std::string time;  // of the transfer, as above
    std::string gameFolder;
    GameState state;
};

class TransferLog {
public:
    static constexpr size_t kKept = 30;

    // dataFolder: the program's own in the player's local data; an empty one keeps nothing.
    explicit TransferLog(const std::string& dataFolder);

    // The newest first. The oldest is the game as this program first found it.
    std::vector<TransferEntry> Entries() const;
    std::optional<TransferEntry> Last() const;
    bool IsEmpty() const { return Times().empty(); }

    // What an entry holds: all settings, and the files that the transfer changed. Failure: it cannot be read.
    Result<GameState> Before(const TransferEntry& entry) const;
    Result<GameState> After(const TransferEntry& entry) const;
    // All that the game had before it: files that it did not change are those of the next transfer that did.
    Result<GameState> WholeBefore(const TransferEntry& entry) const;

    Failure Forget(const TransferEntry& entry) const;
    Failure ForgetAll() const;  // what was left stays: it is what the game is compared with

    // Keeps an entry; the game is not touched before it returns. The result is its folder. Failure: nothing is kept.
    Result<std::string> Begin(const TransferEntry& entry, const GameState& before, const GameState& after) const;
    Failure Finish(const std::string& entryFolder) const;
    // Removes what is more than the last 30 and the first, and what a program that was cut off has left.
    void Sweep() const;

    std::optional<LeftState> Left() const;
    Failure Leave(const LeftState& left) const;

private:
    std::vector<std::string> Times() const;  // of the entries, which their folders are named by

    std::string folder_;
};

}  // namespace quirn
