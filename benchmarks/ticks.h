#pragma once

#include <windows.h>

// What the timings in Wine are taken with: milliseconds since some moment.
inline double Milliseconds() {
    LARGE_INTEGER ticks, frequency;
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(ticks.QuadPart) / static_cast<double>(frequency.QuadPart);
}
