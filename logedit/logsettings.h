#pragma once

#include <optional>

#include "logedit/logsave.h"
#include "platform/control.h"

// What the log editor keeps from one run to the next.
namespace quirn {

struct LogLook {
    Bounds place;                               // of the window, twips
    Font font;                                  // of lstLog; whether it is underlined or struck out is not kept
    std::optional<Color> foreColor, backColor;  // of lstLog; nothing is the system's
};

// What is not stored, or makes no sense, stays as it is.
LogLook ReadLogLook(LogLook look);
void WriteLogLook(const LogLook& look);

void ReadLogMRU(LogMRUList& list);
void WriteLogMRU(const LogMRUList& list);

}  // namespace quirn
