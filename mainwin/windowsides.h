#pragma once

#include <string>

#include "mainwin/frmcompare.h"
#include "mainwin/profilesview.h"
#include "mainwin/program.h"

// The main window's profile and QRN files as sides of a comparison.
namespace quirn {

// The profile as the window shows it. What is being edited stays in the controls: looking takes nothing into the
// program's profile.
Profile WindowProfile(Program& program, const ProfilesView& view);
CompareSide WindowSide(Program& program, const ProfilesView& view);

// A column without texts when the file is no profile or not there.
CompareSide FileSide(const std::string& file);

// Copies these rows into the profile in the window, as an edit.
void TakeIntoWindow(const CompareRows& rows, const Profile& from, Program& program, const ProfilesView& view);

}  // namespace quirn
