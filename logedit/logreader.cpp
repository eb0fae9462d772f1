#include "logedit/logreader.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string_view>

namespace quirn {

namespace {

// Read and scanned at once: little enough to stay in the cache in between.
constexpr size_t kReadBytes = size_t{256} * 1024;
constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

Failure LogReader::Open(const LogPaths& paths) {
    paths_ = paths;
    for (const std::string& path : paths) {
        if (Failure failure = files_.emplace_back().Open(path)) {
            if (paths.size() > 1) failure->description += ": " + path;
            return failure;
        }
        size_ += files_.back().Size();
    }
    // The last line of each may lack its end.
    size_ += kLineEnd.size() * (paths.size() - 1);
    if (size_ >= kLogSizeLimit) return MakeError(ErrorNumber::OutOfMemory);
    return {};
}

Result<size_t> LogReader::Read(LogParser& parser, const LogProgress& progress) {
    size_t available = 0;
    for (size_t i = 0; i < files_.size(); ++i) {
        if (available > 0 && parser.Buffer()[available - 1] != '\n') {
            std::memcpy(parser.Buffer() + available, kLineEnd.data(), kLineEnd.size());
            available += kLineEnd.size();
            if (!parser.Advance(available)) return ErrorNumber::Overflow;  // the next file may be empty
        }
        parser.BeginFile(paths_[i], available);
        const size_t end = available + static_cast<size_t>(files_[i].Size());
        if (Failure failure = ReadPieces(files_[i], parser, available, end, progress)) return *failure;
    }
    return available;
}

Failure ReadPieces(FileReader& file, LogParser& parser, size_t& available, size_t end, const LogProgress& progress) {
    while (available < end) {
        const Result<size_t> got = file.Read(parser.Buffer() + available, std::min(kReadBytes, end - available));
        if (got.Failed()) return got.Error();
        if (got.Value() == 0) break;
        available += got.Value();
        if (!parser.Advance(available)) return MakeError(ErrorNumber::Overflow);
        if (progress) progress(parser.Consumed());
    }
    return {};
}

Result<std::shared_ptr<const ParsedLog>> ReadLog(const LogPaths& paths,
                                                 const std::function<void(uint64_t size)>& onOpen,
                                                 const LogProgress& progress) {
    LogReader reader;
    if (Failure failure = reader.Open(paths)) return *failure;
    try {
        const auto log = std::make_shared<ParsedLog>();
        LogParser parser(*log, static_cast<size_t>(reader.Size()));
        if (!parser.Ready()) return ErrorNumber::OutOfMemory;
        if (onOpen) onOpen(reader.Size());
        const Result<size_t> available = reader.Read(parser, progress);
        if (available.Failed()) return available.Error();
        if (!parser.Finish(available.Value())) return ErrorNumber::Overflow;
        if (progress) progress(parser.Consumed());
        return std::shared_ptr<const ParsedLog>(log);
    } catch (const std::bad_alloc&) {
        return ErrorNumber::OutOfMemory;
    }
}

}  // namespace quirn
