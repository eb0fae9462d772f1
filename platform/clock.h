#pragma once

#include <cstdint>
#include <string>

namespace quirn {

// Today's date, a space, and the time, both in the user's short formats.
std::string ShortDateAndTime();

// The same of a file, as FolderEntry has it.
std::string ShortDateAndTimeOf(uint64_t writtenLast);

// The local time as a text that sorts and may be a file's name: "2026-11-23 14.05.10".
std::string SortableTime();

}  // namespace quirn
