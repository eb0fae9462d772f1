#include "logedit/logedit.h"

#include <algorithm>
#include <set>
#include <utility>

#include "platform/files.h"
#include "platform/text.h"

namespace quirn {

void LogEdit::Forget() {
    LogLines = std::make_shared<ParsedLog>();
    lastSearch.clear();
}

namespace {

// What files that could not be read leave.
void Clear(LogEdit& edit, const RuntimeError& error, bool several) {
    const bool tooManyPlayers = error.number == static_cast<int>(ErrorNumber::Overflow);
    if (error.number == static_cast<int>(ErrorNumber::OutOfMemory) || (several && !tooManyPlayers)) return;
    edit.LogLines = std::make_shared<ParsedLog>();
    if (!tooManyPlayers) return;
    edit.include.Clear();
    edit.exclude.Clear();
    edit.view.Clear();
}

}  // namespace

LogPaths InOrderOfWriting(const LogPaths& paths) {
    std::set<std::string, LessNoCase> known;
    std::vector<std::pair<uint64_t, std::string>> files;
    for (const std::string& path : paths) {
        FileReader file;
        const std::string whole = AbsolutePath(path);
        if (known.insert(whole).second) files.emplace_back(file.Open(whole) ? 0 : file.WrittenLast(), whole);
    }
    std::sort(files.begin(), files.end());
    LogPaths ordered;
    for (auto& file : files) ordered.push_back(std::move(file.second));
    return ordered;
}

ParseResult ParseLogFile(LogEdit& edit, const LogPaths& paths, const ParseSteps& steps) {
    const bool several = paths.size() > 1;
    edit.LogFilterMask = BuildFilterMask(edit.chkFilters);
    if (const auto missing = std::find_if_not(paths.begin(), paths.end(), FileExists); missing != paths.end()) {
        if (!several) edit.LogLines = std::make_shared<ParsedLog>();
        return {.missing = *missing, .failure = {}};
    }
    Result<std::shared_ptr<const ParsedLog>> log = ReadLog(paths, steps.onReading, steps.onProgress);
    if (log.Failed()) {
        Clear(edit, log.Error(), several);
    } else {
        edit.LogLines = log.Take();
        edit.include.Clear();  // its old players are not to be painted over the new log
        edit.exclude.Clear();
        edit.view.Clear();
        if (steps.onPlayers) steps.onPlayers(std::max<size_t>(edit.LogLines->Players().size(), 2) - 1);
        edit.include.Fill(edit.LogLines);
    }
    if (steps.onEnd) steps.onEnd();
    return {.missing = {}, .failure = log.Failed() ? Failure(log.Error()) : Failure()};
}

Failure ApplyLogFilter(LogEdit& edit) {
    return edit.view.ApplyLogFilter(
        edit.LogLines, MakeLineFilterFor(*edit.LogLines, edit.FilterMask(), edit.include, edit.exclude, edit.awaited),
        edit.lineNumbers, edit.keepDeletedOut);
}

}  // namespace quirn
