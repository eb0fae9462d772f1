#include "mainwin/filecomparison.h"

#include <algorithm>
#include <utility>

#include "mainwin/windowsides.h"

namespace quirn {

namespace {

enum Side { kProfile, kFile };

}  // namespace

FileComparison::FileComparison(Form& mainWindow, Program& program, const ProfilesView& view, const std::string& caption,
                               const std::string& thirdCaption, std::function<CompareSide()> thirdSide)
    : mainWindow_(mainWindow),
      program_(program),
      view_(view),
      thirdSide_(std::move(thirdSide)),
      window_({"Profile", caption, thirdCaption}, [this] { return ReadSides(); },
              {{"Take Into &Profile",
                [this](auto& rows, auto& sides) {
                    CompareRows differing = rows;
                    std::erase_if(differing, [](const CompareRow& row) { return !row.differs[kFile]; });
                    if (!differing.empty()) TakeIntoWindow(differing, sides[kFile].profile, program_, view_);
                },
                [this] { return !mainWindow_.IsBlocked(); }}}) {}

void FileComparison::Open(const std::string& file, const std::string& name) {
    window_.Unload();  // the ticks were for another one
    file_ = file;
    name_ = name;
    window_.Open(mainWindow_, [](const CompareRow&) { return false; });
}

CompareSides FileComparison::ReadSides() const {
    CompareSide file = FileSide(file_);
    file.caption = name_;
    return {WindowSide(program_, view_), file, thirdSide_()};
}

}  // namespace quirn
