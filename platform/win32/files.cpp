#include "platform/files.h"

#include <algorithm>
#include <new>

#include "platform/text.h"
#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

namespace quirn {

namespace {

using win32::ErrorFrom;
using win32::KernelHandle;
using win32::kLongestPath;
using win32::LastError;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The path that an open file has when every link in it is followed; the path as it was given where that has no ANSI
// name or would be too long.
std::string FinalPath(HANDLE file, const std::string& path) {
    std::string whole(kLongestPath, '\0');
    const DWORD length = GetFinalPathNameByHandleA(file, whole.data(), kLongestPath, FILE_NAME_NORMALIZED);
    if (length == 0 || length >= kLongestPath) return path;
    whole.resize(length);
    constexpr std::string_view kNetwork = "\\\\?\\UNC\\";
    constexpr std::string_view kPrefix = "\\\\?\\";
    if (whole.starts_with(kNetwork)) whole.replace(0, kNetwork.size(), "\\\\");
    else if (whole.starts_with(kPrefix)) whole.erase(0, kPrefix.size());
    if (EqualNoCase(whole, path)) return path;
    return whole.size() < MAX_PATH && GetFileAttributesA(whole.c_str()) != INVALID_FILE_ATTRIBUTES ? whole : path;
}

// Checks that the file may be made or replaced. The result is where it really is. The read-only attribute is checked
// because replacing a file by a move does not mind it everywhere.
Result<std::string> CheckReplaceable(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD code = GetLastError();
        if (code == ERROR_FILE_NOT_FOUND) return AbsolutePath(path);
        return ErrorFrom(code);
    }
    if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) return ErrorNumber::PathFileAccess;
    // A move over the file needs the right to delete it, which a program that holds it may not share.
    const KernelHandle file(
        CreateFileA(path.c_str(), GENERIC_WRITE | DELETE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) return LastError();
    return FinalPath(file.Get(), AbsolutePath(path));
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

Failure MoveOver(const std::string& from, const std::string& to) {
    // A virus scanner or an indexer likes to open a file that has just been written, for some milliseconds.
    constexpr int kTries = 5;
    constexpr DWORD kPause = 20;  // milliseconds
    Failure failure;
    for (int i = 0; i < kTries; ++i) {
        if (i > 0) Sleep(kPause);
        if (MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return {};
        failure = LastError();
    }
    return failure;
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

FileReader::~FileReader() {
    KernelHandle(static_cast<HANDLE>(handle_)).Reset();
}

Failure FileReader::Open(const std::string& path) {
    KernelHandle file;
    if (Failure failure = OpenForReading(path, file, size_)) return failure;
    handle_ = file.Release();
    return {};
}

uint64_t FileReader::WrittenLast() const {
    FILETIME written{};
    GetFileTime(handle_, nullptr, nullptr, &written);
    return uint64_t{written.dwHighDateTime} << 32 | written.dwLowDateTime;
}

Failure FileReader::GoTo(uint64_t position) {
    LARGE_INTEGER place{};
    place.QuadPart = static_cast<LONGLONG>(position);
    return SetFilePointerEx(handle_, place, nullptr, FILE_BEGIN) ? Failure() : Failure(LastError());
}

Result<size_t> FileReader::Read(char* buffer, size_t bytes) {
    DWORD got = 0;
    if (!ReadFile(handle_, buffer, static_cast<DWORD>(std::min<size_t>(bytes, 1u << 30)), &got, nullptr))
        return LastError();
    return size_t{got};
}

FileReplacer::~FileReplacer() {
    Abandon();
}

void FileReplacer::Abandon() {
    KernelHandle(static_cast<HANDLE>(std::exchange(handle_, nullptr))).Reset();
    if (!path_.empty()) RemoveFile(unfinished_);
    path_.clear();
}

Failure FileReplacer::Open(const std::string& path) {
    Abandon();
    const Result<std::string> target = CheckReplaceable(path);
    if (target.Failed()) return target.Error();
    SweepUnfinished(target.Value());
    unfinished_ = UnfinishedPath(target.Value());
    // Nobody may delete it: that tells it from what a program that was cut off has left.
    KernelHandle file(CreateFileA(unfinished_.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) return GetLastError() == ERROR_FILE_EXISTS ? MakeError(ErrorNumber::PermissionDenied) : LastError();
    handle_ = file.Release();
    path_ = target.Value();
    return {};
}

Failure FileReplacer::Write(std::string_view bytes) {
    return WriteTo(handle_, bytes);
}

Failure FileReplacer::Finish(Flush flush) {
    Failure failure;
    if (flush == Flush::Yes && !FlushFileBuffers(handle_)) failure = LastError();
    // A file that nobody may delete cannot be moved either.
    KernelHandle(static_cast<HANDLE>(std::exchange(handle_, nullptr))).Reset();
    if (!failure) failure = MoveOver(unfinished_, path_);
    if (!failure) path_.clear();
    Abandon();
    return failure;
}

Failure WritePlainFile(const std::string& path, std::string_view bytes, Flush flush) {
    const KernelHandle file(
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) return LastError();
    if (Failure failure = WriteTo(file.Get(), bytes)) return failure;
    if (flush == Flush::Yes && !FlushFileBuffers(file.Get())) return LastError();
    return {};
}

bool RemoveFile(const std::string& path) {
    return DeleteFileA(path.c_str()) != FALSE;
}

bool DiskIsFull(const std::string& path, size_t bytes) {
    const std::string whole = AbsolutePath(path);
    const std::string folder = whole.substr(0, whole.rfind('\\') + 1);
    ULARGE_INTEGER room{};
    ULARGE_INTEGER total{};
    // Some network and user-space file systems count nothing: a disk of 0 bytes does not tell.
    return GetDiskFreeSpaceExA(folder.c_str(), &room, &total, nullptr) && total.QuadPart > 0 && room.QuadPart < bytes;
}

std::string ShortPath(const std::string& path) {
    std::string whole(kLongestPath, '\0');
    const DWORD length = GetShortPathNameA(path.c_str(), whole.data(), kLongestPath);
    whole.resize(length < kLongestPath ? length : 0);
    return whole;
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
