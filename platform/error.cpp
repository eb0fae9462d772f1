#include "platform/error.h"

#include "platform/version.h"

namespace quirn {

namespace {

const char* Description(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::Overflow: return "Overflow";
        case ErrorNumber::OutOfMemory: return "Out of memory";
        case ErrorNumber::InternalError: return "Internal error";
        case ErrorNumber::FileNotFound: return "File not found";
        case ErrorNumber::DeviceIo: return "Device I/O error";
        case ErrorNumber::DiskFull: return "Disk full";
        case ErrorNumber::PermissionDenied: return "Permission denied";
        case ErrorNumber::PathFileAccess: return "Path/File access error";
        case ErrorNumber::PathNotFound: return "Path not found";
    }
    return "";
}

}  // namespace

RuntimeError MakeError(ErrorNumber number) {
    return {static_cast<int>(number), kTitle, Description(number)};
}

bool IsMissingFile(const RuntimeError& error) {
    return error.number == static_cast<int>(ErrorNumber::FileNotFound) ||
           error.number == static_cast<int>(ErrorNumber::PathNotFound);
}

}  // namespace quirn
