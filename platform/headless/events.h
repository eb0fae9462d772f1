#pragma once

#include <functional>

// The counted time of the in-memory back end, for tests.
namespace quirn::headless {

void ResetEvents();  // at time 0, no timer running, nothing posted

// Lets a task run when the program has waited so long.
void PostAfter(int milliseconds, std::function<void()> task);

long Now();  // milliseconds

}  // namespace quirn::headless
