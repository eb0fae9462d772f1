#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/error.h"
#include "platform/text.h"

// The in-memory back end's world: what a test may set up before and look at after.
namespace quirn {

class Menu;
class TrayIcon;

namespace headless {

struct File {
    std::string bytes;
    bool readOnly = false;
    bool hidden = false;
    bool system = false;
    uint64_t hollow = 0;        // bytes that its size counts and nobody can read: a huge file that takes no memory
    int holders = 0;            // handles of other programs, which share nothing
    bool beingWritten = false;  // by a FileReplacer
    uint64_t writtenLast = 0;   // in the order of the writes
};

struct RegistryValue {
    uint32_t type = 0;
    std::string bytes;
};

using RegistryValues = std::map<std::string, RegistryValue, LessNoCase>;

struct TopLevelWindow {
    std::string className;
    std::string caption;
    bool shownNormal = false;
    bool answers = true;  // false: its program hangs
};

struct StartedProgram {
    std::string path;
    std::string folder;
    bool running = true;
};

struct PoppedUpMenu {
    Menu* menu;
    int defaultCommand;
};

struct World {
    // Files and folders by their absolute path; a folder's has no "\" at its end, a drive's root is "C:".
    std::map<std::string, File, LessNoCase> files;
    std::set<std::string, LessNoCase> folders{"C:", "C:\\Windows", "C:\\Program"};
    std::string currentFolder = "C:\\Program";
    std::string programFolder = "C:\\Program";
    std::string localDataFolder = "C:\\LocalData";
    uint64_t writes = 0;             // to all files
    std::optional<size_t> diskRoom;  // bytes that the disk still takes; without a limit when empty

    // Keys below the current user's root.
    std::map<std::string, RegistryValues, LessNoCase> registry;

    // Texts of the whole machine's registry by key path, "\\" and value name.
    std::map<std::string, std::string, LessNoCase> machineTexts;

    std::string commandLineTail;
    bool otherCopyRuns = false;
    bool programsFailToStart = false;  // for programs that exist; others never start
    std::vector<StartedProgram> startedPrograms;
    std::vector<std::string> playedSounds;
    std::string clipboard;
    bool clipboardIsHeld = false;  // by another program

    std::vector<std::string> openedTargets;                       // by their registered programs
    std::vector<std::string> startMenuPrograms;                   // where links lead to
    std::map<std::string, std::string, LessNoCase> desktopLinks;  // arguments of this program by name
    std::vector<std::string> shownHelp;                           // help files
    std::optional<ErrorNumber> shellFailure;                      // of both
    std::vector<TrayIcon*> trayIcons;
    std::vector<std::string> balloons;        // that icons have shown
    std::vector<PoppedUpMenu> poppedUpMenus;  // a test chooses with UserChooses afterwards

    std::vector<TopLevelWindow> windows;   // from front to back; a handle is an index + 1
    std::optional<size_t> broughtToFront;  // index of the window

    std::string dateAndTime = "3/14/2004 9:26 PM";
    std::string sortableTime = "2004-03-14 21.26.53";
};

World& TheWorld();
void ResetWorld();

// An absolute path as the maps of the world hold it, and the same of the folder that it is in.
std::string KeyOf(const std::string& path);
std::string FolderOf(const std::string& key);

// Both make the folders above as well.
void MakeFolder(const std::string& path);
File& PutFile(const std::string& path, std::string_view bytes);
RegistryValues& MakeKey(const std::string& path);

// The file at a path, by the rules of the system's paths; null when there is none.
File* FindFile(const std::string& path);

// Gives a file new content. False when the disk is full; the file then holds what had room.
bool Store(File& file, std::string_view bytes);

}  // namespace headless

}  // namespace quirn
