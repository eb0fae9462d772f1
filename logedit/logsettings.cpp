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

LogSettings ReadLogSettings(LogSettings settings) {
    settings.place.left = GetNumberSetting(kSettings, "LogEditLeft", settings.place.left);
    settings.place.top = GetNumberSetting(kSettings, "LogEditTop", settings.place.top);
    settings.place.height = GetNumberSetting(kSettings, "LogEditHeight", settings.place.height);
    settings.place.width = GetNumberSetting(kSettings, "LogEditWidth", settings.place.width);
    settings.font.face = GetSetting(kSettings, "LogEditFontName", settings.font.face);
    const int points = GetNumberSetting(kSettings, "LogEditFontSize", settings.font.points);
    if (points > 0 && points <= kMostPoints) settings.font.points = points;
    settings.font.bold = ReadFlag("LogEditFontBold", settings.font.bold);
    settings.font.italic = ReadFlag("LogEditFontItalic", settings.font.italic);
    settings.foreColor = ReadColor("LogEditForeColor", settings.foreColor);
    settings.backColor = ReadColor("LogEditBackColor", settings.backColor);
    settings.colorsByType = ReadFlag("LogEditColorsByType", settings.colorsByType);
    return settings;
}

void WriteLogSettings(const LogSettings& settings) {
    Write("LogEditLeft", settings.place.left);
    Write("LogEditTop", settings.place.top);
    Write("LogEditHeight", settings.place.height);
    Write("LogEditWidth", settings.place.width);
    SaveSetting(kSettings, "LogEditFontName", settings.font.face);
    Write("LogEditFontSize", settings.font.points);
    Write("LogEditFontBold", settings.font.bold ? -1 : 0);
    Write("LogEditFontItalic", settings.font.italic ? -1 : 0);
    Write("LogEditForeColor", Number(settings.foreColor, kSystemForeColor));
    Write("LogEditBackColor", Number(settings.backColor, kSystemBackColor));
    Write("LogEditColorsByType", settings.colorsByType ? -1 : 0);
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
