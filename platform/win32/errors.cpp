#include "platform/win32/errors.h"

namespace quirn::win32 {

RuntimeError ErrorFrom(DWORD code) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND: return MakeError(ErrorNumber::FileNotFound);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_DIRECTORY:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BAD_PATHNAME:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NOT_READY: return MakeError(ErrorNumber::PathNotFound);
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION: return MakeError(ErrorNumber::PermissionDenied);
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS:
        case ERROR_DIR_NOT_EMPTY:
        case ERROR_WRITE_PROTECT:
        case ERROR_ACCESS_DENIED: return MakeError(ErrorNumber::PathFileAccess);
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return MakeError(ErrorNumber::DiskFull);
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY: return MakeError(ErrorNumber::OutOfMemory);
        default: return MakeError(ErrorNumber::DeviceIo);
    }
}

}  // namespace quirn::win32
