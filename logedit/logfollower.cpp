#include "logedit/logfollower.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

#include "platform/files.h"

namespace quirn {

namespace {

constexpr size_t kLeastRoom = size_t{1024} * 1024;
constexpr size_t kCompared = 64;  // bytes at the end of what was read, by which a file is known

// More than it needs now, so that it seldom moves.
size_t RoomFor(size_t size) {
    return std::min<size_t>(size + std::max(kLeastRoom, size / 8), kLogSizeLimit - 1);
}

}  // namespace

Result<std::shared_ptr<const ParsedLog>> LogFollower::Start(const std::string& path,
                                                            const std::function<void(uint64_t size)>& onOpen,
                                                            const LogProgress& progress) {
    Stop();
    FileReader file;
    if (Failure failure = file.Open(path)) return *failure;
    if (file.Size() >= kLogSizeLimit) return ErrorNumber::OutOfMemory;
    try {
        const auto size = static_cast<size_t>(file.Size());
        const auto log = std::make_shared<ParsedLog>();
        auto parser = std::make_unique<LogParser>(*log, RoomFor(size));
        if (!parser->Ready()) return ErrorNumber::OutOfMemory;
        if (onOpen) onOpen(size);
        log_ = log;
        parser_ = std::move(parser);
        path_ = path;
        capacity_ = RoomFor(size);
        available_ = 0;
        if (Failure failure = ReadUpTo(file, size, progress)) {
            Stop();
            return *failure;
        }
        return std::shared_ptr<const ParsedLog>(log_);
    } catch (const std::bad_alloc&) {
        Stop();
        return ErrorNumber::OutOfMemory;
    }
}

void LogFollower::Stop() {
    parser_.reset();
    log_.reset();
}

LogFollower::News LogFollower::Look() {
    FileReader file;
    if (!IsFollowing() || file.Open(path_)) return News::Gone;
    if (file.Size() < available_ || !IsSameFile(file)) return News::Other;
    if (file.Size() == available_) return News::None;
    const auto size = static_cast<size_t>(std::min(file.Size(), kLogSizeLimit - 1));
    if (size > capacity_) {
        if (!parser_->Grow(RoomFor(size))) return News::Gone;
        capacity_ = RoomFor(size);
    }
    const size_t lines = log_->LineCount();
    const bool wasEmpty = log_->Info(0) == 0;  // its one element stands for no line, and is shown as one
    if (file.GoTo(available_) || ReadUpTo(file, size, {})) return News::Gone;
    if (wasEmpty && log_->Info(0) != 0) return News::Other;
    return log_->LineCount() > lines ? News::Grew : News::None;
}

bool LogFollower::TakeHalfLine() {
    const size_t lines = log_->LineCount();
    return parser_->Finish(available_) && log_->LineCount() > lines;
}

Failure LogFollower::ReadUpTo(FileReader& file, size_t end, const LogProgress& progress) {
    Failure failure = ReadPieces(file, *parser_, available_, end, progress);
    if (!failure) parser_->Publish();
    return failure;
}

// A file that was put in its place may well be longer.
bool LogFollower::IsSameFile(FileReader& file) const {
    std::array<char, kCompared> bytes{};
    const size_t count = std::min(available_, kCompared);
    if (count == 0) return true;
    if (file.GoTo(available_ - count)) return false;
    const Result<size_t> got = file.Read(bytes.data(), count);
    return !got.Failed() && got.Value() == count &&
           std::memcmp(bytes.data(), log_->Text() + available_ - count, count) == 0;
}

}  // namespace quirn
