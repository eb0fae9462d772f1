#pragma once

#include <functional>
#include <string>
#include <vector>

#include "mainwin/frmcompare.h"
#include "mainwin/profilesview.h"
#include "mainwin/program.h"

namespace quirn {

// The profile in the window, a QRN file, and a third side, with ticks for what is to be taken from the file into the
// profile: an earlier version, or another profile.
class FileComparison {
public:
    // caption: of the file's column. view outlives it.
    FileComparison(Form& mainWindow, Program& program, const ProfilesView& view, const std::string& caption,
                   const std::string& thirdCaption, std::function<CompareSide()> thirdSide);

    // name: of the file in the window's title.
    void Open(const std::string& file, const std::string& name);
    void Close() { window_.Unload(); }
    void ShowWhatCanBeDone() { window_.ShowWhatCanBeDone(); }

private:
    CompareSides ReadSides() const;

    Form& mainWindow_;
    Program& program_;
    const ProfilesView& view_;
    std::function<CompareSide()> thirdSide_;
    std::string file_, name_;
    frmCompare window_;
};

}  // namespace quirn
