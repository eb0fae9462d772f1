#pragma once

#include <cstdint>
#include <optional>
#include <string>

// This process, other processes and other programs' windows.
namespace quirn {

// What follows the program's own path on the command line, as it was typed.
std::string CommandLineTail();

// Claims the program's place in this session of the user (a named mutex, held until the process ends).
// False when a copy that is already running has it. Of two copies started at one moment exactly one gets true.
bool ClaimSingleInstance();

// A program that this one has started. It goes on when this object's life ends.
class Process {
public:
    Process() = default;
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    // Starts a program with no arguments, in a folder, inheriting handles and environment; lets go of the one before.
    // False when it cannot be started; the one before is then kept.
    bool Start(const std::string& program, const std::string& folder);

    bool IsRunning() const;  // false: it has ended, or none was started

private:
    void* handle_ = nullptr;
};

// A top-level window of any program.
using WindowHandle = uintptr_t;  // 0 = none

bool WindowOfClassExists(const std::string& className);
WindowHandle FirstTopLevelWindow();
WindowHandle NextTopLevelWindow(WindowHandle window);
std::string WindowCaption(WindowHandle window);  // at most 255 bytes
bool ShowNormal(WindowHandle window);            // false: its program does not answer
void BringToFront(WindowHandle window);          // or the dialog that the window waits for

}  // namespace quirn
