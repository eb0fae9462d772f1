#pragma once

#include "mainwin/frmcompare.h"
#include "mainwin/profilesview.h"
#include "mainwin/program.h"
#include "profile/versions.h"

namespace quirn {

// "Show..." of an earlier version: the profile in the window, the version and the file as it is now, with ticks for
// what is to be taken from the version into the profile.
class VersionComparison {
public:
    // view outlives it.
    VersionComparison(Form& mainWindow, Program& program, const ProfilesView& view);

    void Open(const ProfileVersion& version);
    void Close() { window_.Unload(); }
    void ShowWhatCanBeDone() { window_.ShowWhatCanBeDone(); }

private:
    CompareSides ReadSides() const;

    Form& mainWindow_;
    Program& program_;
    const ProfilesView& view_;
    ProfileVersion version_;
    frmCompare window_;
};

}  // namespace quirn
