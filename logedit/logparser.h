#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "logedit/parsedlog.h"
#include "logedit/playertable.h"

// Parses chat logs. The scan goes over the text in windows that stay in the processor's cache, first for the places
// that matter (line ends, "> ", kills), then line by line, then for the players.
namespace quirn {

struct ScanWindow;

// Parses a text that comes piece by piece. The bytes go to Buffer(), each piece behind the one before.
class LogParser {
public:
    // The log must be new. size: of the whole text, in bytes, below kLogSizeLimit.
    // Nothing can be parsed when that did not get its memory: Ready() is then false.
    LogParser(ParsedLog& log, size_t size);
    ~LogParser();

    bool Ready() const { return ready_; }
    char* Buffer() { return log_.text_.get() + ParsedLog::kMargin; }

    // What comes from here on is this file's: where a line begins, or the next one, when the last has its end.
    void BeginFile(const std::string& path, size_t available) { log_.files_.push_back({path, available}); }

    // So many bytes are there. Parses all whole lines in them. False when there are too many players; the log is then
    // of no use.
    bool Advance(size_t available);

    // That was all, though it be less than announced. A last line without an end is parsed too.
    bool Finish(size_t available);

    // For a text that goes on growing: room for so many bytes, what is there included. False when memory cannot hold
    // that; everything stays as it was.
    bool Grow(size_t size);

    // The log shows all whole lines that have been parsed; a line without an end waits. More may be parsed afterwards.
    void Publish();

    // For each line so far, kept or not, its length plus 2.
    uint64_t Consumed() const { return consumed_; }

private:
    struct Line;

    bool ParseWindow(size_t end);
    bool ParseAlone(size_t lineEnd, size_t next);
    bool Decode(std::string_view whole, Line& line) const;
    void ParseUnusual(std::string_view whole, size_t directlyNext);
    int32_t* Keep(const char* begin, size_t length, uint32_t type, size_t directlyNext);
    void AddBlock();
    bool NumberPlayers();
    void Count(size_t end);

    ParsedLog& log_;
    bool ready_;
    PlayerTable table_;
    std::unique_ptr<ScanWindow> window_;
    size_t start_ = 0;     // of the first line that has not been parsed
    size_t searched_ = 0;  // up to here there is no line end after start_
    LineBlock* block_;     // the last one
    size_t slot_ = 0;      // in it, of the next line
    uint32_t noLine_ = 0;
    uint32_t* lastBegin_ = &noLine_;  // of the last kept line
    size_t directlyNext_ = SIZE_MAX;  // where a line must start to follow that one directly
    size_t longest_ = 0;
    uint64_t consumed_ = 0;
};

}  // namespace quirn
