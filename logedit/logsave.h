#pragma once

#include <array>
#include <optional>
#include <string>

#include "logedit/logview.h"
#include "platform/error.h"

// Saving the displayed log, and the files used last.
namespace quirn {

// The name that "Save As" proposes.
inline constexpr char kLogSaveName[] = "save.log";

// "[~ Filtered by QUIRN v1.61 ~]": the first line of a saved log, which the parser skips.
std::string LogHeader();

// Creates or replaces the file in one step: the header and every item as displayed, each line ended by CR LF. On
// failure the old file is whole. No message.
Failure SaveFilteredLog(const LogView& view, const std::string& path);

// The logs used last, the most recent first; a blank text is a free slot.
using LogMRUList = std::array<std::string, 5>;

// Puts a path on top. One that is already there, in any letter case, moves; else the oldest drops out. A path that is
// on top already stays as it is spelled.
void AddToLogMRU(LogMRUList& list, const std::string& path);

// "&1 C:\Game\monday.log": the caption of mnuFileMRU(index), 0 to 4; nothing when the item is hidden.
std::optional<std::string> LogMRUCaption(const LogMRUList& list, size_t index);

}  // namespace quirn
