#include <windows.h>
#include <winioctl.h>

#include <cstdlib>

#include "platform/win32/handle.h"
#include "tests/testing/world.h"

namespace quirn::test {

namespace {

using win32::KernelHandle;
using win32::RegistryHandle;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::string OwnName() {
    return "quirn-tests-" + std::to_string(GetCurrentProcessId());
}
std::string OwnKey() {
    return "Software\\" + OwnName();
}

void DeleteFolder(const std::string& folder) {
    WIN32_FIND_DATAA found;
    win32::SearchHandle search(FindFirstFileA((folder + "\\*").c_str(), &found));
    for (bool more = static_cast<bool>(search); more; more = FindNextFileA(search.Get(), &found)) {
        const std::string name = found.cFileName;
        const std::string path = folder + "\\" + name;
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
            EXPECT_TRUE(DeleteFileA(path.c_str())) << path;
        } else if (name != "." && name != "..") {
            DeleteFolder(path);
        }
    }
    search.Reset();
    RemoveDirectoryA(folder.c_str());
}

RegistryHandle OpenKey(const std::string& path) {
    HKEY key = nullptr;
    RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key);
    return RegistryHandle(key);
}

RegistryHandle CreateKey(const std::string& path) {
    HKEY key = nullptr;
    EXPECT_EQ(
        RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key, nullptr),
        ERROR_SUCCESS);
    return RegistryHandle(key);
}

}  // namespace

void OpenWorld() {
    // From here on the process's current-user root is a key of its own: no player's settings are touched.
    const RegistryHandle root = CreateKey(OwnKey());
    if (RegOverridePredefKey(HKEY_CURRENT_USER, root.Get()) != ERROR_SUCCESS) {
        ADD_FAILURE() << "the registry cannot be replaced";
        std::exit(1);
    }
}

void CloseWorld() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegDeleteTreeA(HKEY_CURRENT_USER, OwnKey().c_str());
    DeleteFolder(Scratch());
}

void ResetWorld() {
    RegDeleteTreeA(HKEY_CURRENT_USER, nullptr);
    DeleteFolder(Scratch());
    MakeFolder(Scratch());
}

std::string Scratch() {
    char folder[MAX_PATH + 1] = {};
    GetTempPathA(MAX_PATH, folder);
    return folder + OwnName();
}

void PutFile(const std::string& path, std::string_view bytes) {
    const KernelHandle file(
        CreateFileA(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    ASSERT_TRUE(file && WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
        << path;
}

void PutHugeFile(const std::string& path, uint64_t size) {
    const KernelHandle file(CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(size);
    DWORD got = 0;
    DeviceIoControl(file.Get(), FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &got, nullptr);
    EXPECT_TRUE(file && SetFilePointerEx(file.Get(), end, nullptr, FILE_BEGIN) && SetEndOfFile(file.Get())) << path;
}

std::optional<std::string> FileBytes(const std::string& path) {
    const KernelHandle file(CreateFileA(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) return std::nullopt;
    std::string bytes(GetFileSize(file.Get(), nullptr), '\0');
    DWORD got = 0;
    EXPECT_TRUE(ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr)) << path;
    return bytes;
}

void MakeFolder(const std::string& path) {
    EXPECT_TRUE(CreateDirectoryA(path.c_str(), nullptr)) << path;
}
void SetReadOnly(const std::string& path) {
    EXPECT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY));
}
void SetHidden(const std::string& path) {
    EXPECT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN));
}

HeldFile::HeldFile(const std::string& path)
    : handle_(CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE) << path;
}

HeldFile::~HeldFile() {
    CloseHandle(handle_);
}

void MakeKey(const std::string& path) {
    CreateKey(path);
}

void PutValue(const std::string& path, const std::string& name, uint32_t type, std::string_view bytes) {
    // The ANSI function counts a NUL in that it finds right behind a text; "x" keeps the text as it is.
    const std::string guarded = std::string(bytes) + "x";
    EXPECT_EQ(RegSetValueExA(CreateKey(path).Get(), name.c_str(), 0, type,
                             reinterpret_cast<const BYTE*>(guarded.data()), static_cast<DWORD>(bytes.size())),
              ERROR_SUCCESS);
}

std::optional<StoredValue> GetValue(const std::string& path, const std::string& name) {
    const RegistryHandle key = OpenKey(path);
    DWORD type = 0;
    DWORD size = 0;
    if (!key || RegQueryValueExA(key.Get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    std::string bytes(size, '\0');
    EXPECT_EQ(RegQueryValueExA(key.Get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size),
              ERROR_SUCCESS);
    bytes.resize(size);
    return StoredValue{type, bytes};
}

bool KeyExists(const std::string& path) {
    return static_cast<bool>(OpenKey(path));
}

}  // namespace quirn::test
