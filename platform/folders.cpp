#include "platform/folders.h"

namespace quirn {

std::string NewPathByTime(const std::string& folder, const std::string& time, const std::string& ending) {
    std::string path = folder + "\\";
    path += time;
    const size_t end = path.size();
    for (int i = 2; FindEntry(path + ending); ++i) {
        path.resize(end);
        path += (i < 10 ? " 0" : " ") + std::to_string(i);
    }
    return path + ending;
}

}  // namespace quirn
