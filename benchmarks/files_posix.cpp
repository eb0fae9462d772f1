// Just what the log editor needs of platform/files.h, over this system's own files: whole-process timings against other
// programs are about real files, which the in-memory back end has none of.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/files.h"

namespace quirn {

namespace {

int Descriptor(void* handle) {
    return static_cast<int>(reinterpret_cast<intptr_t>(handle)) - 1;
}

void* HandleOf(int descriptor) {
    return reinterpret_cast<void*>(static_cast<intptr_t>(descriptor) + 1);
}

RuntimeError LastError() {
    return MakeError(errno == ENOENT ? ErrorNumber::FileNotFound : ErrorNumber::DeviceIo);
}

}  // namespace

FileReader::~FileReader() {
    if (handle_ != nullptr) close(Descriptor(handle_));
}

Failure FileReader::Open(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return LastError();
    handle_ = HandleOf(file);
    struct stat status {};
    if (fstat(file, &status) != 0) return LastError();
    size_ = static_cast<uint64_t>(status.st_size);
    return {};
}

Failure FileReader::GoTo(uint64_t position) {
    return lseek(Descriptor(handle_), static_cast<off_t>(position), SEEK_SET) < 0 ? Failure(LastError()) : Failure();
}

Result<size_t> FileReader::Read(char* buffer, size_t bytes) {
    const ssize_t got = read(Descriptor(handle_), buffer, bytes);
    if (got < 0) return LastError();
    return static_cast<size_t>(got);
}

FileReplacer::~FileReplacer() {
    Abandon();
}

void FileReplacer::Abandon() {
    if (handle_ != nullptr) close(Descriptor(handle_));
    if (!path_.empty()) unlink(unfinished_.c_str());
}

Failure FileReplacer::Open(const std::string& path) {
    path_ = path;
    unfinished_ = path + kUnfinishedSuffix;
    const int file = open(unfinished_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0) return LastError();
    handle_ = HandleOf(file);
    return {};
}

Failure FileReplacer::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(Descriptor(handle_), bytes.data(), bytes.size());
        if (written < 0) return LastError();
        bytes.remove_prefix(static_cast<size_t>(written));
    }
    return {};
}

Failure FileReplacer::Finish(Flush) {
    if (fsync(Descriptor(handle_)) != 0) return LastError();
    if (rename(unfinished_.c_str(), path_.c_str()) != 0) return LastError();
    path_.clear();
    return {};
}

}  // namespace quirn
