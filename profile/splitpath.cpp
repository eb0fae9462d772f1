#include "profile/splitpath.h"

#include "platform/text.h"

namespace quirn {

PathParts SplitPath(std::string_view path) {
    PathParts parts;
    std::string_view rest = Trim(path);
    if (const size_t colon = rest.find(':'); colon != std::string_view::npos) {
        parts.drive = rest.substr(0, colon + 1);
        rest.remove_prefix(colon + 1);
    }
    if (const size_t slash = rest.rfind('\\'); slash != std::string_view::npos) {
        parts.folder = rest.substr(0, slash);
        rest.remove_prefix(slash + 1);
    }
    const size_t point = rest.find('.');
    parts.name = rest.substr(0, point);
    if (point != std::string_view::npos) parts.extension = rest.substr(point + 1);
    return parts;
}

}  // namespace quirn
