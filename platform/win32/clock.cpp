#include "platform/clock.h"

#include <windows.h>

#include <array>

namespace quirn {

std::string ShortDateAndTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 128> date{};
    std::array<char, 128> time{};
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, date.data(), static_cast<int>(date.size()));
    GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &now, nullptr, time.data(), static_cast<int>(time.size()));
    return std::string(date.data()) + " " + time.data();
}

}  // namespace quirn
