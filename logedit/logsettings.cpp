#include "logedit/logsettings.h"

#include <algorithm>

#include "platform/settings.h"
#include "platform/text.h"

namespace quirn {

namespace {

// The system's colours of a list are stored by the numbers that stand for them, which are negative.
constexpr int kSystemForeColor = static_cast<int>(0x80000008);
constexpr int kSystemBackColor = static_cast<int>(0x80000005);
constexpr int kLastColor = 0xFFFFFF;
constexpr int kMostPoints = 500;

// Stored as -1 and 0; the word is understood as well.
bool ReadFlag(const char* key, bool defaultValue) {
    const std::string text = GetSetting(kSettings, key, defaultValue ? "-1" : "0");
    return Val(text) != 0 || EqualNoCase(text, "True");
}

std::optional<Color> ReadColor(const char* key, std::optional<Color> defaultValue) {
    const int stored = GetNumberSetting(kSettings, key, defaultValue ? static_cast<int>(*defaultValue) : -1);
    if (stored < 0 || stored > kLastColor) return std::nullopt;
    return static_cast<Color>(stored);
}

void Write(const char* key, int number) {
    SaveSetting(kSettings, key, std::to_string(number));
}

int Number(std::optional<Color> color, int systemColor) {
    return color ? static_cast<int>(*color) : systemColor;
}

std::string RecentKey(size_t i) {
    return "LogMRU" + std::to_string(i);
}

}  // namespace

LogLook ReadLogLook(LogLook look) {
    look.place.left = GetNumberSetting(kSettings, "LogEditLeft", look.place.left);
    look.place.top = GetNumberSetting(kSettings, "LogEditTop", look.place.top);
    look.place.height = GetNumberSetting(kSettings, "LogEditHeight", look.place.height);
    look.place.width = GetNumberSetting(kSettings, "LogEditWidth", look.place.width);
    look.font.face = GetSetting(kSettings, "LogEditFontName", look.font.face);
    const int points = GetNumberSetting(kSettings, "LogEditFontSize", look.font.points);
    if (points > 0 && points <= kMostPoints) look.font.points = points;
    look.font.bold = ReadFlag("LogEditFontBold", look.font.bold);
    look.font.italic = ReadFlag("LogEditFontItalic", look.font.italic);
    look.foreColor = ReadColor("LogEditForeColor", look.foreColor);
    look.backColor = ReadColor("LogEditBackColor", look.backColor);
    return look;
}

void WriteLogLook(const LogLook& look) {
    Write("LogEditLeft", look.place.left);
    Write("LogEditTop", look.place.top);
    Write("LogEditHeight", look.place.height);
    Write("LogEditWidth", look.place.width);
    SaveSetting(kSettings, "LogEditFontName", look.font.face);
    Write("LogEditFontSize", look.font.points);
    Write("LogEditFontBold", look.font.bold ? -1 : 0);
    Write("LogEditFontItalic", look.font.italic ? -1 : 0);
    Write("LogEditForeColor", Number(look.foreColor, kSystemForeColor));
    Write("LogEditBackColor", Number(look.backColor, kSystemBackColor));
}

void ReadLogMRU(RecentFiles& list) {
    for (size_t i = 0; i < list.size(); ++i) list[i] = GetSetting(kRecentList, RecentKey(i), "");
}

void WriteLogMRU(const RecentFiles& list) {
    for (size_t i = 0; i < list.size(); ++i) SaveSetting(kRecentList, RecentKey(i), list[i]);
}

void AddToLogMRU(RecentFiles& list, const std::string& path) {
    const auto isPath = [&](const std::string& entry) { return EqualNoCase(entry, path); };
    if (isPath(list[0]) && std::none_of(list.begin() + 1, list.end(), isPath)) return;
    AddRecentFile(list, path);
}

std::optional<std::string> LogMRUCaption(const RecentFiles& list, size_t index) {
    if (Trim(list[index]).empty()) return std::nullopt;
    return RecentFileCaption(index, DoubleAmpersands(list[index]));
}

}  // namespace quirn
