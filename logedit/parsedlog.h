#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// A chat log in memory, as the parser leaves it: the file's bytes in one buffer, and 8 bytes for each kept line.
namespace quirn {

// The type flags of a line; exactly one is set. The numbers are those of the filter mask and of the item data.
enum LogLineType : uint32_t {
    kPublic = 1,
    kSystem = 2,
    kKill = 4,
    kPrivate = 8,
    kTeam = 16,
    kFreq = 32,
    kSquad = 64,
    kChannel1 = 128,
    kChannel2 = 256,
    kChannel3 = 512,
    kChannel4 = 1024,
    kUnknown = 32768,  // a prefix that nobody knows; no check box stands for it
};

// The info word of a line: player number * 65536 + type flag. Player numbers count from 1; 0 is nobody.
constexpr uint32_t TypeOf(int32_t info) {
    return static_cast<uint32_t>(info) & 0xFFFF;
}
constexpr uint32_t PlayerOf(int32_t info) {
    return static_cast<uint32_t>(info) >> 16;
}

inline constexpr uint32_t kMostPlayers = 32767;               // the info word holds no more
inline constexpr uint64_t kLogSizeLimit = uint64_t{1} << 31;  // bytes; a log must be smaller

// Lines are kept in blocks, so that a growing log is neither copied nor given room that it does not need.
inline constexpr size_t kLinesPerBlock = 32768;
struct LineBlock {
    uint32_t begin[kLinesPerBlock];  // offset in the text; the top bit is kDirectlyFollowed
    int32_t info[kLinesPerBlock];
};

// The next kept line starts right behind this one's CR LF: such a line needs no search for its end, and lines in a row
// can be written to a file as one piece.
inline constexpr uint32_t kDirectlyFollowed = 1u << 31;

// A file that a part of the text comes from.
struct LogFile {
    std::string path;
    size_t begin;  // bytes from Text()
};

class ParsedLog {
public:
    // LogLines and LogLineInfo before any file: one element, an empty line without a type.
    ParsedLog();

    // At least 1: a log without a kept line still has its first, empty element, which is shown as a line. Kept on
    // purpose.
    size_t LineCount() const { return lineCount_; }
    bool IsEmpty() const { return Info(0) == 0; }  // that element is all there is

    // A kept line as it stands in the file, with its two-character prefix, without a line-number tag and line end.
    // The text lives as long as this log.
    std::string_view Line(size_t line) const {
        const char* const begin = Text() + Offset(line);
        if (DirectlyFollowed(line)) return {begin, Text() + Offset(line + 1) - 2};
        return LineAlone(begin);
    }
    int32_t Info(size_t line) const { return blocks_[line / kLinesPerBlock]->info[line % kLinesPerBlock]; }

    // Where a line starts, in bytes from Text().
    size_t Offset(size_t line) const { return Begin(line) & ~kDirectlyFollowed; }
    bool DirectlyFollowed(size_t line) const { return (Begin(line) & kDirectlyFollowed) != 0; }
    const char* Text() const { return text_.get() + kMargin; }
    size_t TextSize() const { return textSize_; }  // bytes

    // In the order of the text; none before any file.
    const std::vector<LogFile>& Files() const { return files_; }
    size_t FileOf(size_t line) const;       // as an index of Files()
    size_t FirstLineOf(size_t file) const;  // or of a later one; LineCount() when there is none

    // Whether it begins with all lines of another one, which may have been read before the files grew. A last line
    // without an end may be missing: it waits in a log that is followed.
    bool GoesOnFrom(const ParsedLog& earlier) const;

    const std::vector<std::unique_ptr<LineBlock>>& Blocks() const { return blocks_; }
    size_t LongestLine() const { return longestLine_; }  // bytes

    // The distinct speakers in the order of their first line, in their own spelling; element i is player i + 1.
    // Slices of the text.
    const std::vector<std::string_view>& Players() const { return players_; }

private:
    friend class LogParser;

    // Line ends around the text, so that the parser may look a little over both ends.
    static constexpr size_t kMargin = 128;

    std::string_view LineAlone(const char* begin) const;

    // Room for a file of so many bytes. False when memory cannot hold it.
    bool Allocate(size_t size);
    void AddBlock() { blocks_.push_back(std::make_unique_for_overwrite<LineBlock>()); }
    uint32_t Begin(size_t line) const { return blocks_[line / kLinesPerBlock]->begin[line % kLinesPerBlock]; }

    std::unique_ptr<char[]> text_;
    size_t textSize_ = 0;
    std::vector<LogFile> files_;
    std::vector<std::unique_ptr<LineBlock>> blocks_;
    size_t lineCount_ = 1;
    size_t longestLine_ = 0;
    std::vector<std::string_view> players_;
};

}  // namespace quirn
