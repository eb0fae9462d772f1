#pragma once

#include <functional>
#include <memory>
#include <string>

#include "logedit/logparser.h"
#include "logedit/logreader.h"
#include "logedit/parsedlog.h"

namespace quirn {

// Reads a log that another program goes on writing: only what is new, with the parser where it stopped. A line without
// an end waits. Of several files it is the last that grows. It is open only while it is read, and never locked.
class LogFollower {
public:
    enum class News {
        None,
        Grew,   // the log has more lines, perhaps more players
        Other,  // nothing of what was shown is left: the file became shorter or is another one, or it was empty
        Held,   // another program lets nobody read it at the moment
        Gone,   // there is none, or it cannot be read
        Full,   // memory cannot hold more, or there are too many players
    };

    // Reads the files as they are now. Failures as those of ReadLog; what was followed before still is then.
    Result<std::shared_ptr<const ParsedLog>> Start(const LogPaths& paths,
                                                   const std::function<void(uint64_t size)>& onOpen,
                                                   const LogProgress& progress);
    void Stop();
    bool IsFollowing() const { return parser_ != nullptr; }

    const ParsedLog* Log() const { return log_.get(); }

    News Look();

    // Nothing more is awaited: a last line without an end counts as well.
    News TakeHalfLine();

private:
    bool IsSameFile(FileReader& file) const;
    size_t Begin() const { return log_->Files().back().begin; }

    std::shared_ptr<ParsedLog> log_;
    std::unique_ptr<LogParser> parser_;
    size_t capacity_ = 0;   // bytes that the log has room for
    size_t available_ = 0;  // bytes of the text that have been read
};

}  // namespace quirn
