#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "logedit/logparser.h"
#include "logedit/parsedlog.h"
#include "platform/error.h"
#include "platform/files.h"

// From files to a log. Several are read one behind the other, as if they were one.
namespace quirn {

using LogPaths = std::vector<std::string>;
using LogProgress = std::function<void(uint64_t done)>;

// What becomes of files: a log, or why there is none. onOpen is told how many bytes there are, progress how far the
// parse is (as LogParser::Consumed) whenever another quarter of a megabyte is done. A file that grows meanwhile is read
// as far as it went. Errors: those of FileReader, with the path when there are several; 7 for what memory cannot hold;
// 6 for too many players.
Result<std::shared_ptr<const ParsedLog>> ReadLog(const LogPaths& paths,
                                                 const std::function<void(uint64_t size)>& onOpen,
                                                 const LogProgress& progress);

// The same in steps.
class LogReader {
public:
    Failure Open(const LogPaths& paths);
    uint64_t Size() const { return size_; }  // bytes that the text will have at most; below kLogSizeLimit

    // The parser must have room for all of it. Returns how many bytes the text has.
    Result<size_t> Read(LogParser& parser, const LogProgress& progress);

private:
    LogPaths paths_;
    std::deque<FileReader> files_;
    uint64_t size_ = 0;
};

// Reads on in a file until the text has so many bytes; available: how many it has. A file that is cut is read as far as
// it goes. Failures: those of FileReader; 6 for too many players.
Failure ReadPieces(FileReader& file, LogParser& parser, size_t& available, size_t end, const LogProgress& progress);

}  // namespace quirn
