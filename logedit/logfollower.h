#pragma once

#include <functional>
#include <memory>
#include <string>

#include "logedit/logparser.h"
#include "logedit/parsedlog.h"

namespace quirn {

// Reads a log that another program goes on writing: only what is new, with the parser where it stopped. A line without
// an end waits. The file is open only while it is read, and never locked.
class LogFollower {
public:
    enum class News {
        None,
        Grew,   // the log has more lines, perhaps more players
        Other,  // the file became shorter or is another one: it has to be read anew
        Gone,   // there is none, or it cannot be read
    };

    // Reads the file as it is now. Failures as those of ReadLog.
    Result<std::shared_ptr<const ParsedLog>> Start(const std::string& path,
                                                   const std::function<void(uint64_t size)>& onOpen,
                                                   const LogProgress& progress);
    void Stop();
    bool IsFollowing() const { return parser_ != nullptr; }

    const ParsedLog* Log() const { return log_.get(); }

    News Look();

    // Nothing more is awaited: a last line without an end counts as well. True when the log has got it.
    bool TakeHalfLine();

private:
    Failure ReadUpTo(FileReader& file, size_t end, const LogProgress& progress);
    bool IsSameFile(FileReader& file) const;

    std::string path_;
    std::shared_ptr<ParsedLog> log_;
    std::unique_ptr<LogParser> parser_;
    size_t capacity_ = 0;   // bytes that the log has room for
    size_t available_ = 0;  // bytes that have been read
};

}  // namespace quirn
