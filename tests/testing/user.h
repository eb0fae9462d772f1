#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

// What the parts of the test user share: the words of a command, its answer in JSON, and what windows say of
// themselves.
namespace user {

using Words = std::vector<std::string>;
using Commands = std::map<std::string, std::string (*)(const Words&)>;

// The commands by their subjects, with their words; an answer with "error" means that it could not be done.
Commands LookingCommands();
Commands ActingCommands();
Commands FileCommands();

std::string Word(const Words& words, size_t index);  // empty when there is none
long long Number(const Words& words, size_t index);
HWND Window(const Words& words, size_t index = 1);

std::string Quoted(const std::string& bytes);
std::string Member(const char* name, const std::string& json);
std::string Member(const char* name, long long number);
std::string Flag(const char* name, bool value);
std::string List(const std::vector<std::string>& items);
std::string Done(const std::string& members = "\"done\":true");
std::string Error(const std::string& text);

std::string ClassOf(HWND window);
std::string TextOf(HWND window);  // empty when the window does not answer
DWORD ProcessOf(HWND window);
std::vector<HWND> Children(HWND parent);  // all levels
std::string Describe(HWND window, const std::string& text);

}  // namespace user
