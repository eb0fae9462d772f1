#include "mainwin/favourites.h"

#include <algorithm>

#include "platform/files.h"
#include "profile/initfiles.h"

namespace quirn {

int FirstEmptyRow(const std::vector<std::string>& rows) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [](const std::string& row) { return row.starts_with('<'); });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

std::string FavouriteName(const std::string& path) {
    constexpr char kMissing[] = "<invalid>";
    clsIniTFiles file;
    file.InitFileName = AbsolutePath(path);
    file.SectionName = "Dialog";
    const std::string player = file.ReadKey("PlayerName", kMissing);
    return player + " - " + file.ReadKey("ServerArena", kMissing);
}

}  // namespace quirn
