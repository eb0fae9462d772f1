#pragma once

// The program's name and version, in one place for the code and the version resource. The manifest and the texts that
// ship name the version again; ./package refuses to pack them when they differ.
// The resource compiler includes this file too, hence the macros.
#define QUIRN_TITLE "QUIRN"
#define QUIRN_FULL_TITLE "The Vellick Subspace Manager"
#define QUIRN_VERSION_MAJOR 1
#define QUIRN_VERSION_MINOR 6
#define QUIRN_VERSION_REVISION 1

#ifndef RC_INVOKED

#include <string>

namespace quirn {

inline constexpr char kTitle[] = QUIRN_TITLE;
inline constexpr char kFullTitle[] = QUIRN_FULL_TITLE;

// "1.61": the minor version and the revision stand side by side with nothing between, on purpose: QRN files are
// compared by this text read as a decimal number.
inline std::string VersionText() {
    return std::to_string(QUIRN_VERSION_MAJOR) + "." + std::to_string(QUIRN_VERSION_MINOR) +
           std::to_string(QUIRN_VERSION_REVISION);
}

// "QUIRN v1.61": the start of the main window's caption, by which a second copy finds the first.
inline std::string VersionTitle() {
    return std::string(kTitle) + " v" + VersionText();
}

}  // namespace quirn

#endif
