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

// Reads a file piece by piece, from its start on. Opens files that another program still has open for writing.
class FileReader {
public:
    FileReader() = default;
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    Failure Open(const std::string& path);
    uint64_t Size() const { return size_; }  // bytes, when it was opened

    // How many bytes came, at most so many; 0 at the end of the file.
    Result<size_t> Read(char* buffer, size_t bytes);

private:
    void* handle_ = nullptr;
    uint64_t size_ = 0;
    [[maybe_unused]] uint64_t position_ = 0;  // where the system does not keep it
};

// Creates or replaces a file in one step as WriteWholeFile does, for content that comes piece by piece: Open makes the
// file beside it, Finish flushes that and puts it in place. Without Finish (or when that fails) the old file is whole
// and the unfinished one is deleted at the end of this object's life.
class FileReplacer {
public:
    FileReplacer() = default;
    ~FileReplacer();
    FileReplacer(const FileReplacer&) = delete;
    FileReplacer& operator=(const FileReplacer&) = delete;

    Failure Open(const std::string& path);
    Failure Write(std::string_view bytes);
    Failure Finish();

private:
    std::string path_;  // of the target; empty while nothing is open
    [[maybe_unused]] void* handle_ = nullptr;
};

// True when the disk that holds the path says that it has no room for so many more bytes.
bool DiskIsFull(const std::string& path, size_t bytes);

// The path from the drive on, "." and ".." resolved; the path as it is when the system cannot tell.
std::string AbsolutePath(const std::string& path);

// The folder that the program was started from, without a trailing "\" (except a drive's root).
std::string ProgramFolder();

}  // namespace quirn
