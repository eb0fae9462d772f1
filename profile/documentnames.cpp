#include "profile/documentnames.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/text.h"
#include "profile/splitpath.h"

namespace quirn {

bool IsSameFile(const std::string& a, const std::string& b) {
    return !IsUntitled(a) && !IsUntitled(b) && EqualNoCase(AbsolutePath(a), AbsolutePath(b));
}

std::string DocumentTitle(const std::string& baseTitle, const std::string& file) {
    return baseTitle + " - " + (IsUntitled(file) ? file : SplitPath(file).File());
}

std::string SaveAsName(const std::string& file) {
    return IsUntitled(file) ? "untitled.qrn" : SplitPath(file).File();
}

void AddRecentFile(RecentFiles& files, std::string path) {
    // The last of several equal entries moves, on purpose.
    const auto found =
        std::find_if(files.rbegin(), files.rend(), [&](const std::string& entry) { return EqualNoCase(entry, path); });
    const auto last = found == files.rend() ? files.end() : found.base();
    std::move_backward(files.begin(), last - 1, last);
    files[0] = std::move(path);
}

std::string RecentFileCaption(size_t index, const std::string& path) {
    return "&" + std::to_string(index + 1) + " " + path;
}

}  // namespace quirn
