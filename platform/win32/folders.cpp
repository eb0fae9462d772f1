#include "platform/folders.h"

#include <windows.h>
// after it
#include <shlobj.h>

#include "platform/files.h"
#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

namespace quirn {

using win32::LastError;

namespace {

FolderEntry EntryOf(const WIN32_FIND_DATAA& found) {
    const auto whole = [](DWORD high, DWORD low) { return uint64_t{high} << 32 | low; };
    const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return {found.cFileName, isFolder, isFolder ? 0 : whole(found.nFileSizeHigh, found.nFileSizeLow),
            whole(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime)};
}

// Empty when the system has no such folder.
std::string KnownFolder(int folder) {
    char path[MAX_PATH] = {};
    if (SHGetFolderPathA(nullptr, folder, nullptr, SHGFP_TYPE_CURRENT, path) != S_OK) return {};
    return path;
}

}  // namespace

Result<std::vector<FolderEntry>> ListFolder(const std::string& folder) {
    WIN32_FIND_DATAA found;
    const win32::SearchHandle search(FindFirstFileA((folder + "\\*").c_str(), &found));
    if (!search) {
        // The root of an empty disk has not even ".".
        const DWORD code = GetLastError();
        if (code == ERROR_FILE_NOT_FOUND && FolderExists(folder)) return std::vector<FolderEntry>();
        return win32::ErrorFrom(code);
    }
    std::vector<FolderEntry> entries;
    do {
        const std::string_view name = found.cFileName;
        if (name != "." && name != "..") entries.push_back(EntryOf(found));
    } while (FindNextFileA(search.Get(), &found));
    return entries;
}

std::optional<FolderEntry> FindEntry(const std::string& path) {
    // As a pattern it would find other files; no file has these in its name.
    if (path.find_first_of("*?<>\"", path.rfind('\\') + 1) != std::string::npos) return std::nullopt;
    WIN32_FIND_DATAA found;
    const win32::SearchHandle search(FindFirstFileA(path.c_str(), &found));
    return search ? std::optional(EntryOf(found)) : std::nullopt;
}

Failure MakeFolders(const std::string& folder) {
    std::string path = AbsolutePath(folder);
    if (path.ends_with('\\')) path.pop_back();
    if (FolderExists(path + "\\")) return {};
    const size_t end = path.rfind('\\');
    if (end == std::string::npos) return MakeError(ErrorNumber::PathNotFound);  // a drive that is not there
    if (Failure failure = MakeFolders(path.substr(0, end))) return failure;
    if (!CreateDirectoryA(path.c_str(), nullptr)) return LastError();
    return {};
}

Failure RemoveFolder(const std::string& folder) {
    if (!RemoveDirectoryA(folder.c_str())) return LastError();
    return {};
}

Failure RenameEntry(const std::string& from, const std::string& to) {
    if (!MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH)) return LastError();
    return {};
}

bool IsOnLocalDisk(const std::string& folder) {
    // The root of a share would be asked for over the network.
    return folder.size() > 1 && folder[1] == ':' && GetDriveTypeA((folder.substr(0, 2) + "\\").c_str()) == DRIVE_FIXED;
}

bool IsOnOtherComputer(const std::string& path) {
    if (path.starts_with("\\\\?\\") || path.starts_with("\\\\.\\")) return path.substr(4).starts_with("UNC\\");
    return path.starts_with("\\\\") ||
           (path.size() > 1 && path[1] == ':' && GetDriveTypeA((path.substr(0, 2) + "\\").c_str()) == DRIVE_REMOTE);
}

std::vector<std::string> ProgramPlaces() {
    std::vector<std::string> places;
    const std::string windows = KnownFolder(CSIDL_WINDOWS);
    if (windows.size() > 1) places.push_back(windows.substr(0, 2));
    for (const int folder : {CSIDL_PROGRAM_FILESX86, CSIDL_PROGRAM_FILES})
        if (std::string path = KnownFolder(folder); !path.empty()) places.push_back(std::move(path));
    return places;
}

std::string LocalDataFolder() {
    return KnownFolder(CSIDL_LOCAL_APPDATA);
}

}  // namespace quirn
