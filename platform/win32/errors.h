#pragma once

#include <windows.h>

#include "platform/error.h"

namespace quirn::win32 {

RuntimeError ErrorFrom(DWORD code);
inline RuntimeError LastError() {
    return ErrorFrom(GetLastError());
}

}  // namespace quirn::win32
