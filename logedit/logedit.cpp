#include "logedit/logedit.h"

#include <algorithm>

#include "logedit/logparser.h"
#include "platform/files.h"

namespace quirn {

void LogEdit::Forget() {
    LogLines = std::make_shared<ParsedLog>();
    lastSearch.clear();
}

uint32_t LogEdit::KnownTypes() const {
    FilterBoxValues all;
    all.fill(1);
    return BuildFilterMask(all) | (showUnknown ? uint32_t{kUnknown} : 0);
}

namespace {

// What a file that could not be read leaves.
void Clear(LogEdit& edit, const RuntimeError& error) {
    if (error.number == static_cast<int>(ErrorNumber::OutOfMemory)) return;
    edit.LogLines = std::make_shared<ParsedLog>();
    if (error.number != static_cast<int>(ErrorNumber::Overflow)) return;
    edit.include.Clear();
    edit.exclude.Clear();
    edit.view.Clear();
}

}  // namespace

ParseResult ParseLogFile(LogEdit& edit, const std::string& path, const ParseSteps& steps) {
    edit.LogFilterMask = BuildFilterMask(edit.chkFilters);
    if (!FileExists(path)) {
        edit.LogLines = std::make_shared<ParsedLog>();
        return {.found = false, .failure = {}};
    }
    Result<std::shared_ptr<const ParsedLog>> log = ReadLog(path, steps.onReading, steps.onProgress);
    if (log.Failed()) {
        Clear(edit, log.Error());
    } else {
        edit.LogLines = log.Take();
        edit.include.Clear();  // its old players are not to be painted over the new log
        edit.exclude.Clear();
        edit.view.Clear();
        if (steps.onPlayers) steps.onPlayers(std::max<size_t>(edit.LogLines->Players().size(), 2) - 1);
        edit.include.Fill(edit.LogLines);
    }
    if (steps.onEnd) steps.onEnd();
    return {.found = true, .failure = log.Failed() ? Failure(log.Error()) : Failure()};
}

Failure ApplyLogFilter(LogEdit& edit) {
    return edit.view.ApplyLogFilter(edit.LogLines, edit.FilterMask(), edit.include, edit.exclude, edit.lineNumbers,
                                    edit.keepDeletedOut);
}

}  // namespace quirn
