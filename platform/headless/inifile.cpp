#include "platform/inifile.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/headless/headless.h"
#include "platform/initext.h"

// The system's private-profile functions over files in memory.
namespace quirn {

namespace {

using headless::File;

// --- Encodings: a file that starts with a byte order mark is Unicode
// --------------------------------------------------

enum class Encoding { Ansi, Utf8, Utf16 };

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

// Code page 1252 from 0x80 to 0x9F; the five bytes without a character stand for themselves.
constexpr std::array<char16_t, 32> kUpperControls = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                     0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t ToUnicode(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80u] : byte;
}

char FromUnicode(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
    const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    return found == kUpperControls.end() ? '?' : static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

Encoding EncodingOf(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Mark)) return Encoding::Utf8;
    return bytes.starts_with(kUtf16Mark) ? Encoding::Utf16 : Encoding::Ansi;
}

std::string Decode(std::string_view bytes) {
    std::string text;
    const auto at = [&](size_t i) { return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0u; };
    switch (EncodingOf(bytes)) {
        case Encoding::Ansi: return std::string(bytes);
        case Encoding::Utf16:
            for (size_t i = kUtf16Mark.size(); i + 1 < bytes.size(); i += 2)
                text += FromUnicode(at(i) | at(i + 1) << 8);
            return text;
        case Encoding::Utf8:
            for (size_t i = kUtf8Mark.size(); i < bytes.size(); ++i) {
                const unsigned lead = at(i);
                const unsigned more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
                char32_t character = more == 0 ? lead : lead & (0x3Fu >> more);
                for (unsigned k = 0; k < more; ++k) character = character << 6 | (at(++i) & 0x3Fu);
                text += FromUnicode(character);
            }
            return text;
    }
    return text;
}

std::string Encode(std::string_view text, Encoding encoding) {
    if (encoding == Encoding::Ansi) return std::string(text);
    std::string bytes(encoding == Encoding::Utf8 ? kUtf8Mark : kUtf16Mark);
    const auto put = [&](char32_t byte) { bytes += static_cast<char>(byte); };
    for (const char c : text) {
        const char32_t character = ToUnicode(c);
        if (encoding == Encoding::Utf16) {
            put(character & 0xFF);
            put(character >> 8);
        } else if (character < 0x80) {
            put(character);
        } else if (character < 0x800) {
            put(0xC0 | character >> 6);
            put(0x80 | (character & 0x3F));
        } else {
            put(0xE0 | character >> 12);
            put(0x80 | (character >> 6 & 0x3F));
            put(0x80 | (character & 0x3F));
        }
    }
    return bytes;
}

// --- Files
// ------------------------------------------------------------------------------------------------------------

// A name without a folder means the Windows folder, not the current one.
std::string PathOf(const std::string& file) {
    return file.find_first_of("\\/:") == std::string::npos ? "C:\\Windows\\" + file : file;
}

std::string Load(const std::string& file) {
    const Result<std::string> bytes = ReadWholeFile(PathOf(file));
    return bytes.Failed() ? std::string() : Decode(bytes.Value());
}

// Lets a change make a file's new text of the old one and stores it.
template <class Change>
bool ChangeFile(const std::string& file, Change change) {
    const std::string path = PathOf(file);
    if (FolderExists(path) || !FolderExists(path.substr(0, path.find_last_of("\\/:") + 1))) return false;
    File* stored = headless::FindFile(path);
    if (stored != nullptr && (stored->readOnly || stored->holders > 0)) return false;
    if (stored == nullptr) stored = &headless::PutFile(path, {});
    // The system's functions report success on a full disk and leave the file cut, and so does this.
    headless::Store(*stored, Encode(change(Decode(stored->bytes)), EncodingOf(stored->bytes)));
    return true;
}

}  // namespace

std::string ReadIniValue(const std::string& file, const std::string& section, const std::string& key,
                         const std::string& defaultValue, size_t size) {
    if (size == 0) return {};
    std::string value = defaultValue.c_str();
    value.resize(value.find_last_not_of(' ') + 1);
    if (auto found = FindIniValue(Load(file), section.c_str(), key.c_str())) value = *std::move(found);
    return std::string(WithoutQuotes(value).substr(0, size - 1));
}

std::string ReadIniSection(const std::string& file, const std::string& section, size_t size) {
    if (size < 3) return {};
    return FindIniSection(Load(file), section.c_str()).value_or("").substr(0, size - 2);
}

bool WriteIniValue(const std::string& file, const std::string& section, const std::string& key,
                   const std::string& value) {
    return ChangeFile(file, [&](const std::string& text) {
        return WithIniKeys(text, section.c_str(), {{key.c_str(), value}});
    });
}

bool WriteIniSection(const std::string& file, const std::string& section, const std::string& entries) {
    std::vector<IniEntry> list;
    for (size_t from = 0; from < entries.size() && entries[from] != '\0';) {
        const std::string entry = entries.c_str() + from;
        from += entry.size() + 1;
        if (const size_t equals = entry.find('='); equals != std::string::npos)
            list.push_back({entry.substr(0, equals), entry.substr(equals + 1)});
    }
    return ChangeFile(file, [&](const std::string& text) { return WithIniSection(text, section.c_str(), list); });
}

}  // namespace quirn
