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

Result<std::shared_ptr<const ParsedLog>> LogFollower::Start(const LogPaths& paths,
                                                            const std::function<void(uint64_t size)>& onOpen,
                                                            const LogProgress& progress) {
    LogReader reader;
    if (Failure failure = reader.Open(paths)) return *failure;
    try {
        const size_t room = RoomFor(static_cast<size_t>(reader.Size()));
        const auto log = std::make_shared<ParsedLog>();
        auto parser = std::make_unique<LogParser>(*log, room);
        if (!parser->Ready()) return ErrorNumber::OutOfMemory;
        if (onOpen) onOpen(reader.Size());
        const Result<size_t> available = reader.Read(*parser, progress);
        if (available.Failed()) return available.Error();
        parser->Publish();
        log_ = log;
        parser_ = std::move(parser);
        capacity_ = room;
        available_ = available.Value();
        return std::shared_ptr<const ParsedLog>(log_);
    } catch (const std::bad_alloc&) {
        return ErrorNumber::OutOfMemory;
    }
}

void LogFollower::Stop() {
    parser_.reset();
    log_.reset();
}

LogFollower::News LogFollower::Look() {
    FileReader file;
    if (!IsFollowing()) return News::Gone;
    if (const Failure failure = file.Open(log_->Files().back().path))
        return failure->number == static_cast<int>(ErrorNumber::PermissionDenied) ? News::Held : News::Gone;
    const uint64_t end = Begin() + file.Size();  // in the text
    if (end < available_ || !IsSameFile(file)) return News::Other;
    if (end == available_) return News::None;
    const auto size = static_cast<size_t>(std::min(end, kLogSizeLimit - 1));
    if (size > capacity_) {
        if (!parser_->Grow(RoomFor(size))) return News::Full;
        capacity_ = RoomFor(size);
    }
    const size_t lines = log_->LineCount();
    const bool wasEmpty = log_->IsEmpty();
    if (file.GoTo(available_ - Begin())) return News::Gone;
    if (const Failure failure = ReadPieces(file, *parser_, available_, size, {}))
        return failure->number == static_cast<int>(ErrorNumber::Overflow) ? News::Full : News::Gone;
    parser_->Publish();
    if (wasEmpty && !log_->IsEmpty()) return News::Other;
    return log_->LineCount() > lines ? News::Grew : News::None;
}

LogFollower::News LogFollower::TakeHalfLine() {
    const size_t lines = log_->LineCount();
    const bool wasEmpty = log_->IsEmpty();
    if (!parser_->Finish(available_)) return News::Full;
    if (wasEmpty && !log_->IsEmpty()) return News::Other;
    return log_->LineCount() > lines ? News::Grew : News::None;
}

// A file that was put in its place may well be longer.
bool LogFollower::IsSameFile(FileReader& file) const {
    std::array<char, kCompared> bytes{};
    const size_t read = available_ - Begin();
    const size_t count = std::min(read, kCompared);
    if (count == 0) return true;
    if (file.GoTo(read - count)) return false;
    const Result<size_t> got = file.Read(bytes.data(), count);
    return !got.Failed() && got.Value() == count &&
           std::memcmp(bytes.data(), log_->Text() + available_ - count, count) == 0;
}

}  // namespace quirn
