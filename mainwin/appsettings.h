#pragma once

#include "mainwin/program.h"
#include "platform/form.h"

// The program's own settings that the main window keeps from one run to the next.
namespace quirn {

// The two folders, which start-up needs before there is a window.
void ReadFileLocations(Program& program);

// Recent files and favourites.
void ReadLists(Program& program);

// The main window's place in twips; 1000, 1000 at the first start. Width and height are left as they are.
Bounds ReadMainPlace(Bounds place);

// All of it, in the order of the keys.
void WriteMainSettings(const Program& program, const Bounds& place);

}  // namespace quirn
