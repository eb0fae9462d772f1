#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "logedit/logfilter.h"
#include "logedit/logreader.h"
#include "logedit/logview.h"
#include "logedit/parsedlog.h"
#include "logedit/playerlist.h"
#include "profile/documentnames.h"

namespace quirn {

// The state of the log editor, one for the program; outlives its window.
struct LogEdit {
    std::shared_ptr<const ParsedLog> LogLines = std::make_shared<ParsedLog>();  // and LogLineInfo
    uint32_t LogFilterMask = 0;
    FilterBoxValues chkFilters{};  // the values of the check boxes
    bool applyAtOnce = false;      // mnuOptions_Apply
    bool lineNumbers = false;      // mnuOptions_LineNums
    bool keepDeletedOut = false;   // mnuEdit_Keep
    bool showUnknown = false;      // mnuView_Unknown
    bool colorsByType = false;     // mnuView_Colors
    PlayerList include, exclude;   // lstInclude, lstExclude
    PlayerNames awaited;           // were excluded, and are not in the log since it was read again
    LogView view;                  // lstLog
    RecentFiles LogMRU;
    std::string lastSearch;

    // LogFilterMask, and on demand the lines of a kind that no check box stands for.
    uint32_t FilterMask() const { return LogFilterMask | (showUnknown ? uint32_t{kUnknown} : 0); }

    // What the main window's Log menu does before it shows the window: no lines, no search text.
    void Forget();
};

// In the order in which the files were written last, since their lines bear no times; each file once.
LogPaths InOrderOfWriting(const LogPaths& paths);

// What the window shows while a log is parsed; each may be empty.
struct ParseSteps {
    // Reading begins: "Reading && Parsing Log File...", the bar from 0 to the file's size in bytes.
    std::function<void(uint64_t size)> onReading;
    // How far it is; every quarter of a megabyte.
    std::function<void(uint64_t done)> onProgress;
    // The player lists are being filled: "Populating Player List...", the bar from 0 to highest (1 at least); what
    // is to be painted is painted.
    std::function<void(size_t highest)> onPlayers;
    // The work is over.
    std::function<void()> onEnd;
};

struct ParseResult {
    std::string missing;  // a path where no file is
    Failure failure;      // why the log could not be read

    bool Loaded() const { return missing.empty() && !failure; }
};

// Reads and parses a log, of one file or of several in this order. When it is loaded LogLines holds it, the include
// list its players, the exclude list and the view are empty; the caller applies the filter next. A file that is not
// found or does not open leaves LogLines with its one empty element but the lists as they were, on purpose; one that
// memory cannot hold leaves everything as it was; one with too many players empties all of it. Of several, one that is
// missing or does not open leaves everything as it was.
ParseResult ParseLogFile(LogEdit& edit, const LogPaths& paths, const ParseSteps& steps);

// Rebuilds the view from LogLines, the mask and the lists. When memory runs out the view stays as it was.
Failure ApplyLogFilter(LogEdit& edit);

}  // namespace quirn
