#include "platform/clock.h"

#include <windows.h>

#include <array>
#include <cstdio>

namespace quirn {

namespace {

std::string InShortFormats(const SYSTEMTIME& now) {
    std::array<char, 128> date{};
    std::array<char, 128> time{};
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, date.data(), static_cast<int>(date.size()));
    // The short time is a setting of its own (from Windows 7 on); where there is none, the long one without seconds.
    std::array<char, 128> format{};
    if (GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SSHORTTIME, format.data(), static_cast<int>(format.size())) > 0)
        GetTimeFormatA(LOCALE_USER_DEFAULT, 0, &now, format.data(), time.data(), static_cast<int>(time.size()));
    else GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &now, nullptr, time.data(), static_cast<int>(time.size()));
    return std::string(date.data()) + " " + time.data();
}

}  // namespace

std::string ShortDateAndTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return InShortFormats(now);
}

std::string ShortDateAndTimeOf(uint64_t writtenLast) {
    const FILETIME written{static_cast<DWORD>(writtenLast), static_cast<DWORD>(writtenLast >> 32)};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (writtenLast == 0 || !FileTimeToSystemTime(&written, &universal) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        return {};
    return InShortFormats(local);
}

std::string SortableTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d.%02d.%02d", now.wYear, now.wMonth, now.wDay, now.wHour,
                  now.wMinute, now.wSecond);
    return text.data();
}

}  // namespace quirn
