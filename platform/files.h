#pragma once

#include <string>
#include <string_view>

#include "platform/error.h"

// Files by their ANSI path, with "\" between folders. Windows rules: names are case-blind, "." and ".." work,
// a relative path starts at the process's current folder.
namespace quirn {

// True when a search of the folder for the path yields a plain file: not a folder, not hidden, not a system file.
// The search knows wildcards, so a pattern that matches counts as existing.
bool FileExists(const std::string& path);

bool FolderExists(const std::string& path);

// The whole file. Opens files that another program still has open for writing.
Result<std::string> ReadWholeFile(const std::string& path);

// Creates or replaces the file in one step: the bytes go into a file of a fixed name beside it (the path with
// kUnfinishedSuffix), which is flushed to the disk and then put in the old one's place. On failure the old file
// is whole. A read-only file is not replaced (75), nor one that another program holds (70).
Failure WriteWholeFile(const std::string& path, std::string_view bytes);

// The steps of that, for files that other functions write:
// BeginReplacement checks that the file may be replaced and makes the file beside it, a copy of the old one or
// empty; its path is the result. FinishReplacement flushes that file and puts it in place. AbandonReplacement
// deletes it.
inline constexpr char kUnfinishedSuffix[] = ".quirn-unfinished";
Result<std::string> BeginReplacement(const std::string& path);
Failure FinishReplacement(const std::string& path);
void AbandonReplacement(const std::string& path);

// True when the disk that holds the path has no room for so many more bytes.
bool DiskIsFull(const std::string& path, size_t bytes);

// The path from the drive on, "." and ".." resolved; the path as it is when the system cannot tell.
std::string AbsolutePath(const std::string& path);

// The folder that the program was started from, without a trailing "\" (except a drive's root).
std::string ProgramFolder();

}  // namespace quirn
