#include "platform/files.h"

#include <algorithm>

#include "platform/folders.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr size_t kLongestFullPath = 259;  // MAX_PATH without the NUL
constexpr size_t kLongestName = 255;

// Of version 1.61 and before.
constexpr char kOldUnfinishedSuffix[] = ".quirn-unfinished";

bool EndsWith(std::string_view name, std::string_view suffix) {
    return name.size() > suffix.size() && EqualNoCase(name.substr(name.size() - suffix.size()), suffix);
}

}  // namespace

std::string UnfinishedPath(const std::string& path) {
    std::string whole = AbsolutePath(path) + kUnfinishedSuffix;
    const size_t name = whole.rfind('\\') + 1;
    // Its end stays: a profile and its macro file, which are written at the same time, differ there.
    const size_t length = whole.size() - name;
    const size_t cut =
        std::max(whole.size() - std::min(whole.size(), kLongestFullPath), length - std::min(length, kLongestName));
    return whole.erase(name, cut);
}

void SweepUnfinished(const std::string& path) {
    RemoveFile(UnfinishedPath(path));
    RemoveFile(path + kOldUnfinishedSuffix);
}

void SweepFolder(const std::string& folder) {
    if (!IsOnLocalDisk(folder)) return;
    const Result<std::vector<FolderEntry>> entries = ListFolder(folder);
    if (entries.Failed()) return;
    for (const FolderEntry& entry : entries.Value()) {
        if (!entry.isFolder && (EndsWith(entry.name, kUnfinishedSuffix) || EndsWith(entry.name, kOldUnfinishedSuffix)))
            RemoveFile(folder + "\\" + entry.name);
    }
}

Failure WriteWholeFile(const std::string& path, std::string_view bytes, Flush flush) {
    FileReplacer file;
    if (Failure failure = file.Open(path)) return failure;
    if (Failure failure = file.Write(bytes)) return failure;
    return file.Finish(flush);
}

}  // namespace quirn
