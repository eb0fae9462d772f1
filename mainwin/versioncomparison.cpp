#include "mainwin/versioncomparison.h"

#include <algorithm>

#include "mainwin/windowsides.h"

namespace quirn {

namespace {

enum Side { kProfile, kVersion, kFile };

}  // namespace

VersionComparison::VersionComparison(Form& mainWindow, Program& program, const ProfilesView& view)
    : mainWindow_(mainWindow),
      program_(program),
      view_(view),
      window_({"Profile", "Version", "File now"}, [this] { return ReadSides(); },
              {{"Take Into &Profile",
                [this](auto& rows, auto& sides) {
                    CompareRows differing = rows;
                    std::erase_if(differing, [](const CompareRow& row) { return !row.differs[kVersion]; });
                    if (!differing.empty()) TakeIntoWindow(differing, sides[kVersion].profile, program_, view_);
                },
                [this] { return !mainWindow_.IsBlocked(); }}}) {}

void VersionComparison::Open(const ProfileVersion& version) {
    window_.Unload();  // the ticks were for another one
    version_ = version;
    window_.Open(mainWindow_, [](const CompareRow&) { return false; });
}

CompareSides VersionComparison::ReadSides() const {
    return {WindowSide(program_, view_), FileSide("Version", version_.file),
            FileSide("File now", program_.CurrentFile)};
}

}  // namespace quirn
