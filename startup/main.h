#pragma once

#include "mainwin/program.h"

namespace quirn {

// The whole program, from the process's start to its end.
void Main();

// The same on a state that the caller can look at; it begins as the record is made.
void RunProgram(Program& program);

}  // namespace quirn
