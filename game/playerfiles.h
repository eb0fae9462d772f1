#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/error.h"
#include "platform/files.h"
#include "profile/profile.h"

// What the game keeps per player in its own folder: "ignore.txt", the players whose chat is hidden, one name per line,
// and "record0.wav" and "record1.wav", the sounds behind F11 and F12.
namespace quirn {

inline constexpr char kIgnoreFile[] = "ignore.txt";
inline constexpr const char* kWaveNames[] = {"record0.wav", "record1.wav"};
inline constexpr const char* kPlayerFiles[] = {kIgnoreFile, kWaveNames[0], kWaveNames[1]};

// What a profile makes of one of these files; nothing when it leaves the file alone. Failure: what it would be made of
// cannot be read.
Result<std::optional<std::string>> PlanPlayerFile(const Profile& profile, const std::string& gameFolder,
                                                  const std::string& name);

// The names in the text of an ignore list: its lines (a lone CR or a NUL ends one too), trimmed, without its "#"
// comments; empty lines are kept as empty entries.
std::vector<std::string> IgnoredNames(const std::string& text);

// Writes a file of the game unless it already holds those bytes: most launches change nothing here, and a write that is
// flushed to the disk takes longer than all the rest.
Failure WriteGameFile(const std::string& path, const std::string& bytes, Flush flush = Flush::Yes);

// The ignore list without its blank entries. To a file that could not be read before, only names are added. Failure:
// the folder is missing, the file is read-only or held.
Failure WriteIgnoreFile(const Profile& profile, const std::string& gameFolder);

// Replaces the ignore list by the names in the file. A missing file gives an empty list and is no failure.
Failure ReadIgnoreFile(Profile& profile, const std::string& gameFolder);

// A file of the game that keeps what it had.
struct FileTrouble {
    std::string name;  // of kPlayerFiles
    std::string path;  // what could not be read or written: the game's file, or the wave that it was to be copied from
    RuntimeError error;
};

// A wave message of a profile that the player may want to know of, since the game sends it to others and a stranger's
// profile can name any file.
struct OddWave {
    size_t slot;  // 0 for F11, 1 for F12
    std::string path;
    bool elsewhere;  // on another computer; else it is no wave file
};

// The first of the two whose path leads to another computer or, once it is in the game, is no RIFF file of waves.
std::optional<OddWave> FindOddWave(const Profile& profile, const std::string& gameFolder);

// The ignore list and the two waves, from the game or to it. What fails does not stop the rest.
Failure ReadPlayerFiles(Profile& profile, const std::string& gameFolder);
std::vector<FileTrouble> WritePlayerFiles(const Profile& profile, const std::string& gameFolder,
                                          Flush flush = Flush::Yes);

}  // namespace quirn
