#pragma once

#include <optional>
#include <string>

#include "platform/control.h"
#include "profile/documentnames.h"

// What the log editor keeps from one run to the next.
namespace quirn {

struct LogSettings {
    Bounds place;                               // of the window, twips
    Font font;                                  // of lstLog; whether it is underlined or struck out is not kept
    std::optional<Color> foreColor, backColor;  // of lstLog; nothing is the system's
    bool colorsByType;                          // lines have the colours of their types
};

// What is not stored, or makes no sense, stays as it is.
LogSettings ReadLogSettings(LogSettings settings);
void WriteLogSettings(const LogSettings& settings);

void ReadLogMRU(RecentFiles& list);
void WriteLogMRU(const RecentFiles& list);

// Puts a path on top of the logs used last, a blank text being a free slot: as AddRecentFile, but a path that is on top
// already stays as it is spelled. Both are kept on purpose.
void AddToLogMRU(RecentFiles& list, const std::string& path);

// "&1 C:\Game\monday.log": the caption of mnuFileMRU(index), 0 to 4; nothing when the item is hidden.
std::optional<std::string> LogMRUCaption(const RecentFiles& list, size_t index);

}  // namespace quirn
