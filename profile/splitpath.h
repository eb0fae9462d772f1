#pragma once

#include <string>
#include <string_view>

namespace quirn {

struct PathParts {
    std::string drive;      // with its ":"
    std::string folder;     // without the last "\"
    std::string name;       // up to the first "."
    std::string extension;  // after the first "."

    // Drive and folder; of a file in a drive's root "C:\".
    std::string Folder() const { return folder.empty() && !drive.empty() ? drive + "\\" : drive + folder; }

    // Name and extension with a point between, also when the extension is empty.
    std::string File() const { return name + "." + extension; }
};

// Takes a path apart; spaces at its ends do not count. The name ends at its first point, not its last, on purpose:
// "C:\games\my.best.qrn" is "C:", "\games", "my" and "best.qrn".
PathParts SplitPath(std::string_view path);

}  // namespace quirn
