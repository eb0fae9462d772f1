#pragma once

namespace quirn {

// The whole program, from the process's start to its end.
void Main();

}  // namespace quirn
