#include "logedit/logsave.h"

#include <memory>

#include "platform/files.h"
#include "platform/version.h"

namespace quirn {

namespace {

constexpr size_t kBufferBytes = size_t{256} * 1024;
constexpr size_t kLongRun = size_t{64} * 1024;  // bytes; longer ones are not copied before they are written

// Collects small pieces; the first failure stays, and nothing is written after it.
class Output {
public:
    explicit Output(FileReplacer& file) : file_(file), buffer_(std::make_unique_for_overwrite<char[]>(kBufferBytes)) {}

    void Put(std::string_view bytes) {
        if (bytes.size() > kBufferBytes - used_) Flush();
        if (bytes.size() > kLongRun) {
            Flush();
            WriteOut(bytes);
        } else {
            used_ += bytes.copy(buffer_.get() + used_, bytes.size());
        }
    }

    void Flush() {
        WriteOut({buffer_.get(), used_});
        used_ = 0;
    }

    const Failure& Failed() const { return failure_; }

private:
    void WriteOut(std::string_view bytes) {
        if (!failure_ && !bytes.empty()) failure_ = file_.Write(bytes);
    }

    FileReplacer& file_;
    std::unique_ptr<char[]> buffer_;
    size_t used_ = 0;
    Failure failure_;
};

void PutTagged(const LogView& view, Output& output) {
    const LineNumberTag& tags = *view.Tags();
    std::string tag(tags.Length(), ' ');
    for (size_t item = 0; item < view.Count() && !output.Failed(); ++item) {
        tags.Write(view.LineIndex(item), tag.data());
        output.Put(tag);
        output.Put(view.Line(item));
        output.Put("\r\n");
    }
}

// Lines that also stand in a row in the log's file go out together, line ends and all.
void PutPlain(const LogView& view, Output& output) {
    const ParsedLog& log = *view.Log();
    for (size_t item = 0; item < view.Count() && !output.Failed(); ++item) {
        const char* const begin = log.Text() + log.Offset(view.LineIndex(item));
        while (item + 1 < view.Count() && view.LineIndex(item + 1) == view.LineIndex(item) + 1 &&
               log.DirectlyFollowed(view.LineIndex(item)))
            ++item;
        const std::string_view last = view.Line(item);
        output.Put({begin, last.data() + last.size()});
        output.Put("\r\n");
    }
}

}  // namespace

std::string LogHeader() {
    return "[~ Filtered by " + VersionTitle() + " ~]";
}

Failure SaveFilteredLog(const LogView& view, const std::string& path) {
    FileReplacer file;
    if (Failure failure = file.Open(path)) return failure;
    Output output(file);
    output.Put(LogHeader() + "\r\n");
    if (view.Tags()) PutTagged(view, output);
    else if (view.Count() > 0) PutPlain(view, output);
    output.Flush();
    if (output.Failed()) return output.Failed();
    return file.Finish();
}

}  // namespace quirn
