#pragma once

#include <string>

#include "logedit/logview.h"
#include "platform/error.h"

// Saving the displayed log.
namespace quirn {

// The name that "Save As" proposes.
inline constexpr char kLogSaveName[] = "save.log";

// "[~ Filtered by QUIRN v1.61 ~]": the first line of a saved log, which the parser skips.
std::string LogHeader();

// Creates or replaces the file in one step: the header and every item as displayed, each line ended by CR LF. On
// failure the old file is whole. No message.
Failure SaveFilteredLog(const LogView& view, const std::string& path);

}  // namespace quirn
