#include "game/regfile.h"

#include <algorithm>
#include <charconv>

#include "game/settingsstore.h"

namespace quirn {

namespace {

constexpr std::string_view kHead = "REGEDIT4";
constexpr std::string_view kRoot = "HKEY_CURRENT_USER\\";
constexpr std::string_view kNumberMark = "dword:";

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

// Takes a quoted text off the front of a line.
std::optional<std::string> TakeQuoted(std::string_view& line) {
    if (!line.starts_with('"')) return std::nullopt;
    std::string text;
    for (size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '"') {
            line.remove_prefix(i + 1);
            return text;
        }
        if (line[i] == '\\' && ++i == line.size()) break;
        text += line[i];
    }
    return std::nullopt;
}

void AppendHex(std::string& text, uint32_t number, size_t digits) {
    for (size_t i = digits; i-- > 0;) text += "0123456789abcdef"[number >> 4 * i & 15];
}

// The number that a text of hexadecimal digits is, all of it.
std::optional<uint32_t> HexNumber(std::string_view text) {
    uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

// A text that fits into its line and ends in the one NUL that every reader adds.
bool IsPlainText(const RegistryValue& value) {
    return value.type == RegistryType::Text && value.bytes.ends_with('\0') &&
           std::none_of(value.bytes.begin(), value.bytes.end() - 1,
                        [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

std::string ValueText(const RegistryValue& value) {
    if (IsPlainText(value)) return Quoted(std::string_view(value.bytes).substr(0, value.bytes.size() - 1));
    std::string text;
    if (value.type == RegistryType::Number && value.bytes.size() == 4) {
        text = kNumberMark;
        for (size_t i = 4; i-- > 0;) AppendHex(text, static_cast<unsigned char>(value.bytes[i]), 2);
        return text;
    }
    text = "hex(";
    const auto type = static_cast<uint32_t>(value.type);
    AppendHex(text, type, type < 16 ? 1 : 8);
    text += "):";
    for (const char byte : value.bytes) {
        if (!text.ends_with(':')) text += ',';
        AppendHex(text, static_cast<unsigned char>(byte), 2);
    }
    return text;
}

std::optional<RegistryValue> ParseNumber(std::string_view digits) {
    const auto number = HexNumber(digits);
    if (!number) return std::nullopt;
    RegistryValue value{RegistryType::Number, {}};
    for (unsigned i = 0; i < 4; ++i) value.bytes += static_cast<char>(*number >> 8 * i);
    return value;
}

// "hex(n):" and bytes.
std::optional<RegistryValue> ParseBytes(std::string_view text) {
    constexpr std::string_view kStart = "hex(";
    const size_t close = text.find("):");
    if (!text.starts_with(kStart) || close == std::string_view::npos) return std::nullopt;
    const auto type = HexNumber(text.substr(kStart.size(), close - kStart.size()));
    if (!type) return std::nullopt;
    RegistryValue value{static_cast<RegistryType>(*type), {}};
    for (text.remove_prefix(close + 2); !text.empty(); text.remove_prefix(std::min<size_t>(3, text.size()))) {
        const auto byte = HexNumber(text.substr(0, 2));
        if (!byte || (text.size() > 2 && text[2] != ',')) return std::nullopt;
        value.bytes += static_cast<char>(*byte);
    }
    return value;
}

std::optional<RegistryValue> ParseValue(std::string_view text) {
    if (text.starts_with(kNumberMark)) return ParseNumber(text.substr(kNumberMark.size()));
    if (!text.starts_with('"')) return ParseBytes(text);
    const auto plain = TakeQuoted(text);
    if (!plain || !text.empty()) return std::nullopt;
    return RegistryValue{RegistryType::Text, *plain + '\0'};
}

// A line below a section's: "name"=value.
bool ParseInto(GameValues& values, std::string_view line) {
    const auto name = TakeQuoted(line);
    if (!name || !line.starts_with('=')) return false;
    line.remove_prefix(1);
    std::optional<RegistryValue>& stored = values[*name];
    stored.reset();
    if (line == "-") return true;
    stored = ParseValue(line);
    return stored.has_value();
}

}  // namespace

std::string RegFileText(const GameSettings& settings) {
    std::string text = std::string(kHead) + "\r\n";
    for (const auto& [section, values] : settings) {
        text.append("\r\n[").append(kRoot).append(kGameKey).append(section).append("]\r\n");
        for (const auto& [name, value] : values)
            text += Quoted(name) + "=" + (value ? ValueText(*value) : "-") + "\r\n";
    }
    return text;
}

std::optional<GameSettings> ReadRegFile(std::string_view text) {
    const std::vector<std::string_view> lines = SplitLines(text);
    if (lines.empty() || lines[0] != kHead) return std::nullopt;
    const std::string start = "[" + std::string(kRoot) + kGameKey;
    GameSettings settings;
    GameValues* values = nullptr;
    for (size_t i = 1; i < lines.size(); ++i) {
        if (lines[i].empty()) continue;
        if (lines[i].starts_with(start) && lines[i].ends_with(']'))
            values = &settings[std::string(lines[i].substr(start.size(), lines[i].size() - start.size() - 1))];
        else if (values == nullptr || !ParseInto(*values, lines[i])) return std::nullopt;
    }
    return settings;
}

}  // namespace quirn
