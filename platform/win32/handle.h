#pragma once

#include <windows.h>

#include <utility>

namespace quirn::win32 {

inline constexpr DWORD kLongestPath = 32768;  // that any function of the system takes or gives, with its NUL

// Owns one handle of the system and gives it back at the end of its life. Functions that make handles report failure
// by null or by INVALID_HANDLE_VALUE; neither is ever owned.
template <class Handle, auto Close>
class UniqueHandle {
public:
    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle) { Reset(handle); }
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        Reset(std::exchange(other.handle_, nullptr));
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    explicit operator bool() const { return handle_ != nullptr; }
    Handle Get() const { return handle_; }
    Handle Release() { return std::exchange(handle_, nullptr); }

    void Reset(Handle handle = nullptr) {
        if (handle_ != nullptr) Close(handle_);
        handle_ = static_cast<void*>(handle) == INVALID_HANDLE_VALUE ? nullptr : handle;
    }

private:
    Handle handle_ = nullptr;
};

using KernelHandle = UniqueHandle<HANDLE, &CloseHandle>;  // files, processes, threads
using SearchHandle = UniqueHandle<HANDLE, &FindClose>;
using RegistryHandle = UniqueHandle<HKEY, &RegCloseKey>;

}  // namespace quirn::win32
