#pragma once

#include <string>

#include "game/transfer.h"

// What transfers change, in a player's words.
namespace quirn {

// "38 settings, the ignore list and 1 wave message"; "nothing" for an empty one.
std::string WordsFor(size_t settings, bool ignoreList, size_t waves);
std::string WordsFor(const GameState& state);
std::string WordsFor(const TransferEntry& entry);

// The text of one box for all that went wrong: each error once, then each file by its name.
std::string TroublesInWords(const TransferResult& result);

// The profile without its folder.
std::string FileNameOf(const TransferEntry& entry);

// "'nova.qrn' (2026-11-22 14:05)", without the date when it is today's.
std::string NameInWords(const TransferEntry& entry);

}  // namespace quirn
