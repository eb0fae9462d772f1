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

// Reads a file piece by piece, from its start on. Opens files that another program still has open for writing.
class FileReader {
public:
    FileReader() = default;
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    Failure Open(const std::string& path);
    uint64_t Size() const { return size_; }  // bytes, when it was opened
    // In steps of 100 nanoseconds, for comparing. The folder may know an older time while a program writes the file.
    uint64_t WrittenLast() const;

    Failure GoTo(uint64_t position);  // bytes from the start, where the next Read begins

    // How many bytes came, at most so many; 0 at the end of the file.
    Result<size_t> Read(char* buffer, size_t bytes);

private:
    void* handle_ = nullptr;
    uint64_t size_ = 0;
    [[maybe_unused]] uint64_t position_ = 0;  // where the system does not keep it
};

// Flushed: what was written is on the disk when the call returns, which takes longer than all else.
enum class Flush { No, Yes };

// Creates or replaces a file in one step: Open makes an empty file beside it, Write fills that, Finish flushes it to
// the disk and puts it in the old one's place. Without Finish (or when that fails) the old file is whole and the
// unfinished one is deleted. A link's target is replaced, not the link. Open refuses a read-only file (75) and one that
// another program holds (70).
class FileReplacer {
public:
    FileReplacer() = default;
    ~FileReplacer();
    FileReplacer(const FileReplacer&) = delete;
    FileReplacer& operator=(const FileReplacer&) = delete;

    Failure Open(const std::string& path);
    Failure Write(std::string_view bytes);
    Failure Finish(Flush flush = Flush::Yes);

    // The unfinished file. Until Finish, others may read and change it, but not delete it.
    const std::string& Unfinished() const { return unfinished_; }

private:
    void Abandon();

    std::string path_;  // of the target; empty while nothing is open
    std::string unfinished_;
    [[maybe_unused]] void* handle_ = nullptr;
};

// The same for content that is there already.
Failure WriteWholeFile(const std::string& path, std::string_view bytes, Flush flush = Flush::Yes);

// Makes a file that is in nobody's way yet, or fills it anew; not in one step, so for what counts only once it is
// whole.
Failure WritePlainFile(const std::string& path, std::string_view bytes, Flush flush = Flush::No);

// Where a file is written before it takes the place of the file at this path: the path with kUnfinishedSuffix, the name
// cut at its front where the whole would be too long for the system.
inline constexpr char kUnfinishedSuffix[] = "~quirn";
std::string UnfinishedPath(const std::string& path);

// Deletes the unfinished files that a program which was cut off has left: that of one file, or those of a folder on a
// disk of this machine (elsewhere asking may take long). A file that is being written stays.
void SweepUnfinished(const std::string& path);
void SweepFolder(const std::string& folder);

// False when there is none, it is read-only or held.
bool RemoveFile(const std::string& path);

// True when the disk that holds the path says that it has no room for so many more bytes.
bool DiskIsFull(const std::string& path, size_t bytes);

// The path from the drive on, "." and ".." resolved; the path as it is when the system cannot tell.
std::string AbsolutePath(const std::string& path);

// The path in the short names that the system keeps of long ones, which have no spaces; empty when it keeps none.
std::string ShortPath(const std::string& path);

// The folder that the program was started from, without a trailing "\" (except a drive's root).
std::string ProgramFolder();

}  // namespace quirn
