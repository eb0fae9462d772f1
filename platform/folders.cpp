#include "platform/folders.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/text.h"

namespace quirn {

Failure RemoveFolderWithFiles(const std::string& folder) {
    const Result<std::vector<FolderEntry>> entries = ListFolder(folder);
    if (entries.Failed()) return entries.Error();
    for (const FolderEntry& entry : entries.Value()) RemoveFile(folder + "\\" + entry.name);
    return RemoveFolder(folder);
}

std::string NewPathByTime(const std::string& folder, const std::string& time, const std::string& ending) {
    std::string newest = time;
    int number = 0;  // of the last that has this time
    const Result<std::vector<FolderEntry>> entries = ListFolder(folder);
    if (!entries.Failed()) {
        for (const FolderEntry& entry : entries.Value()) {
            if (entry.name.size() < time.size() || entry.name[0] < '0' || entry.name[0] > '9') continue;
            const std::string itsTime = entry.name.substr(0, time.size());
            if (itsTime > newest) number = 0;
            newest = std::max(newest, itsTime);
            if (itsTime != newest) continue;
            number = std::max({number, 1, ToInteger(entry.name.substr(time.size())).value_or(1)});
        }
    }
    std::string path = folder + "\\";
    path += newest;
    if (number > 0) {
        constexpr size_t kDigits = 4;
        const std::string digits = std::to_string(number + 1);
        path += " " + std::string(kDigits - std::min(kDigits, digits.size()), '0') + digits;
    }
    return path + ending;
}

}  // namespace quirn
