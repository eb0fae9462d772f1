#pragma once

#include <functional>
#include <vector>

// Time and events of the in-memory back end, for tests.
namespace quirn {

class Form;

namespace headless {

void ResetEvents();  // at time 0, no timer running, nothing posted

// Lets a task run when the program has waited so long.
void PostAfter(int milliseconds, std::function<void()> task);

long Now();  // milliseconds

// Someone who uses the program. Called again and again while it waits for events, in the loop of a modal form too: does
// one thing, and returns for how many milliseconds he does nothing then. Without him a loop ends when nothing is left
// to happen.
void SetPlayer(std::function<int()> act);

// While one lives a dialog of the system waits for its answer, and no form can be used.
class Question {
public:
    Question();
    ~Question();
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;
};

const std::vector<Form*>& LoadedForms();  // in the order in which they were loaded
size_t RunningTimers();

}  // namespace headless

}  // namespace quirn
