#include "platform/files.h"

#include <algorithm>
#include <new>

#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

namespace quirn {

namespace {

using win32::ErrorFrom;
using win32::KernelHandle;
using win32::kLongestPath;
using win32::LastError;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::string UnfinishedPath(const std::string& path) {
    return path + kUnfinishedSuffix;
}

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The existing file that is about to be replaced: true when there is one. The read-only attribute is checked here
// because replacing a file by a move does not mind it everywhere.
Result<bool> CheckReplaceable(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD code = GetLastError();
        if (code == ERROR_FILE_NOT_FOUND) return false;
        return ErrorFrom(code);
    }
    if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) return ErrorNumber::PathFileAccess;
    // A move over the file needs the right to delete it, which a program that holds it may not share.
    const KernelHandle file(
        CreateFileA(path.c_str(), GENERIC_WRITE | DELETE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) return LastError();
    return true;
}

void DeleteUnfinished(const std::string& path) {
    SetFileAttributesA(UnfinishedPath(path).c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileA(UnfinishedPath(path).c_str());
}

KernelHandle CreateAlways(const std::string& path) {
    return KernelHandle(CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
}

Failure WriteTo(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto piece = static_cast<DWORD>(std::min<size_t>(bytes.size(), 1u << 30));
        DWORD written = 0;
        if (!WriteFile(file, bytes.data(), piece, &written, nullptr)) return LastError();
        if (written < piece) return MakeError(ErrorNumber::DiskFull);
        bytes.remove_prefix(written);
    }
    return {};
}

Failure WriteAll(const std::string& path, std::string_view bytes) {
    const KernelHandle file = CreateAlways(path);
    if (!file) return LastError();
    return WriteTo(file.Get(), bytes);
}

// Opens a plain file for reading and finds its size; the size in bytes goes into the last argument.
Failure OpenForReading(const std::string& path, KernelHandle& file, uint64_t& size) {
    file.Reset(
        CreateFileA(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file) {
        const DWORD code = GetLastError();
        return IsFolder(path) ? MakeError(ErrorNumber::PathFileAccess) : ErrorFrom(code);
    }
    // Reading a device's name (CON, COM1) would wait for ever.
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) return MakeError(ErrorNumber::DeviceIo);
    LARGE_INTEGER bytes{};
    if (!GetFileSizeEx(file.Get(), &bytes)) return LastError();
    size = static_cast<uint64_t>(bytes.QuadPart);
    return {};
}

Failure CopyFrom(const std::string& from, const std::string& to) {
    if (!CopyFileA(from.c_str(), to.c_str(), FALSE)) return LastError();
    // A copy has its source's attributes; a read-only one could not be finished nor replaced the next time.
    SetFileAttributesA(to.c_str(), FILE_ATTRIBUTE_NORMAL);
    return {};
}

Failure Flush(const std::string& path) {
    const KernelHandle file(
        CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file || !FlushFileBuffers(file.Get())) return LastError();
    return {};
}

}  // namespace

bool FileExists(const std::string& path) {
    WIN32_FIND_DATAA found;
    const win32::SearchHandle search(FindFirstFileA(path.c_str(), &found));
    if (!search) return false;
    constexpr DWORD kNotPlain = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    do {
        if ((found.dwFileAttributes & kNotPlain) == 0) return true;
    } while (FindNextFileA(search.Get(), &found));
    return false;
}

bool FolderExists(const std::string& path) {
    return IsFolder(path);
}

Result<std::string> ReadWholeFile(const std::string& path) {
    KernelHandle file;
    uint64_t size = 0;
    if (Failure failure = OpenForReading(path, file, size)) return *failure;
    try {
        std::string bytes;
        if (size > bytes.max_size()) return ErrorNumber::OutOfMemory;
        bytes.resize(static_cast<size_t>(size));
        size_t at = 0;
        while (at < bytes.size()) {
            const auto piece = static_cast<DWORD>(std::min<size_t>(bytes.size() - at, 1u << 30));
            DWORD got = 0;
            if (!ReadFile(file.Get(), bytes.data() + at, piece, &got, nullptr)) return LastError();
            if (got == 0) break;  // cut by another program in the meantime
            at += got;
        }
        bytes.resize(at);
        return bytes;
    } catch (const std::bad_alloc&) {
        return ErrorNumber::OutOfMemory;
    }
}

Failure WriteWholeFile(const std::string& path, std::string_view bytes) {
    const Result<bool> old = CheckReplaceable(path);
    if (old.Failed()) return old.Error();
    DeleteUnfinished(path);
    if (Failure failure = WriteAll(UnfinishedPath(path), bytes)) {
        DeleteUnfinished(path);
        return failure;
    }
    return FinishReplacement(path);
}

Result<std::string> BeginReplacement(const std::string& path) {
    const Result<bool> old = CheckReplaceable(path);
    if (old.Failed()) return old.Error();
    DeleteUnfinished(path);
    const std::string unfinished = UnfinishedPath(path);
    if (Failure failure = old.Value() ? CopyFrom(path, unfinished) : WriteAll(unfinished, {})) {
        DeleteUnfinished(path);
        return *failure;
    }
    return unfinished;
}

Failure FinishReplacement(const std::string& path) {
    // A virus scanner or an indexer likes to open a file that has just been written, for some milliseconds.
    constexpr int kTries = 5;
    constexpr DWORD kPause = 20;  // milliseconds
    const std::string unfinished = UnfinishedPath(path);
    Failure failure;
    for (int i = 0; i < kTries; ++i) {
        if (i > 0) Sleep(kPause);
        failure = Flush(unfinished);
        if (failure) continue;
        if (MoveFileExA(unfinished.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return {};
        failure = LastError();
    }
    DeleteUnfinished(path);
    return failure;
}

void AbandonReplacement(const std::string& path) {
    DeleteUnfinished(path);
}

FileReader::~FileReader() {
    KernelHandle(static_cast<HANDLE>(handle_)).Reset();
}

Failure FileReader::Open(const std::string& path) {
    KernelHandle file;
    if (Failure failure = OpenForReading(path, file, size_)) return failure;
    handle_ = file.Release();
    return {};
}

Result<size_t> FileReader::Read(char* buffer, size_t bytes) {
    DWORD got = 0;
    if (!ReadFile(handle_, buffer, static_cast<DWORD>(std::min<size_t>(bytes, 1u << 30)), &got, nullptr))
        return LastError();
    return size_t{got};
}

FileReplacer::~FileReplacer() {
    KernelHandle(static_cast<HANDLE>(handle_)).Reset();
    if (!path_.empty()) DeleteUnfinished(path_);
}

Failure FileReplacer::Open(const std::string& path) {
    const Result<bool> old = CheckReplaceable(path);
    if (old.Failed()) return old.Error();
    path_ = AbsolutePath(path);
    DeleteUnfinished(path_);
    handle_ = CreateAlways(UnfinishedPath(path_)).Release();
    if (handle_ == nullptr) return LastError();
    return {};
}

Failure FileReplacer::Write(std::string_view bytes) {
    return WriteTo(handle_, bytes);
}

Failure FileReplacer::Finish() {
    KernelHandle(static_cast<HANDLE>(std::exchange(handle_, nullptr))).Reset();
    const Failure failure = FinishReplacement(path_);
    path_.clear();
    return failure;
}

bool DiskIsFull(const std::string& path, size_t bytes) {
    const std::string whole = AbsolutePath(path);
    const std::string folder = whole.substr(0, whole.rfind('\\') + 1);
    ULARGE_INTEGER room{};
    ULARGE_INTEGER total{};
    // Some network and user-space file systems count nothing: a disk of 0 bytes does not tell.
    return GetDiskFreeSpaceExA(folder.c_str(), &room, &total, nullptr) && total.QuadPart > 0 && room.QuadPart < bytes;
}

std::string AbsolutePath(const std::string& path) {
    std::string whole(kLongestPath, '\0');
    const DWORD length = GetFullPathNameA(path.c_str(), kLongestPath, whole.data(), nullptr);
    if (length == 0 || length >= kLongestPath) return path;
    whole.resize(length);
    return whole;
}

std::string ProgramFolder() {
    std::string path(kLongestPath, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), kLongestPath));
    const size_t end = path.rfind('\\');
    if (end == std::string::npos) return path;
    const bool root = end > 0 && path[end - 1] == ':';
    return path.substr(0, root ? end + 1 : end);
}

}  // namespace quirn
