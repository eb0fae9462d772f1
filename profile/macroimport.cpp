#include "profile/macroimport.h"

#include <algorithm>
#include <array>

#include "platform/files.h"
#include "platform/text.h"

namespace quirn {

namespace {

// Sixteen lines that take more than this are no macros.
constexpr size_t kMostBytes = size_t{1} << 20;

// The file's start with the first sixteen lines in it, however long the file is.
Result<std::string> ReadFirstLines(const std::string& path) {
    FileReader file;
    if (Failure failure = file.Open(path)) return *failure;
    std::string text;
    std::array<char, 4096> piece;
    while (std::count(text.begin(), text.end(), '\n') < kMacroCount) {
        const Result<size_t> got = file.Read(piece.data(), piece.size());
        if (got.Failed()) return got.Error();
        if (got.Value() == 0) break;
        text.append(piece.data(), got.Value());
        if (text.size() > kMostBytes) return ErrorNumber::OutOfMemory;
    }
    return text;
}

}  // namespace

Result<bool> ImportMacroFile(Profile& profile, const std::string& path, const std::function<void()>& onRead) {
    const Result<std::string> text = ReadFirstLines(path);
    if (text.Failed()) return text.Error();
    if (onRead) onRead();
    bool changed = false;
    int index = 0;
    for (const std::string_view line : SplitLines(text.Value())) {
        if (++index > kMacroCount) break;
        std::string& macro = profile.Messages.Value(index);
        if (macro == line) continue;
        macro = line;
        changed = true;
    }
    return changed;
}

}  // namespace quirn
