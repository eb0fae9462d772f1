#include "platform/inifile.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/headless/headless.h"

// The rules of the system's private-profile functions, as measured, over files in memory. Like Windows it changes lines
// in place and leaves all others, blank ones too, byte for byte.
namespace quirn {

namespace {

using headless::File;

constexpr std::string_view kLineEnd = "\r\n";

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

// --- Lines
// ------------------------------------------------------------------------------------------------------------

// What counts as a blank at the ends of a line, a name or a value. 0x1A does at the ends of a line only in effect:
// nobody writes it elsewhere.
constexpr std::string_view kBlanks = " \t\v\f\x1A";

std::string_view TrimStart(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

std::string_view TrimBlanks(std::string_view text) {
    text = TrimStart(text);
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

enum class LineKind { Blank, Comment, Section, Entry, Bare };

struct Line {
    std::string raw;  // with its line end
    LineKind kind;
    std::string name;   // of a section or an entry; the whole text of a bare line
    std::string value;  // of an entry, quotes and all
};

Line ParseLine(std::string_view raw) {
    Line line{std::string(raw), LineKind::Blank, {}, {}};
    const std::string_view text = TrimBlanks(raw.substr(0, raw.find_first_of(std::string_view("\r\n\0", 3))));
    if (text.empty()) return line;
    const size_t bracket = text.find(']');
    const size_t equals = text.find('=');
    if (text.starts_with(';')) {
        line.kind = LineKind::Comment;
    } else if (text.starts_with('[') && bracket != std::string_view::npos) {
        line.kind = LineKind::Section;
        line.name = TrimBlanks(text.substr(1, bracket - 1));
    } else if (equals != std::string_view::npos) {
        line.kind = LineKind::Entry;
        line.name = TrimBlanks(text.substr(0, equals));
        line.value = TrimBlanks(text.substr(equals + 1));
    } else {
        line.kind = LineKind::Bare;
        line.name = text;
    }
    return line;
}

using Lines = std::vector<Line>;

Lines Parse(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const size_t end = text.find_first_of(kLineEnd);
        const size_t length = end == std::string_view::npos            ? text.size()
                              : text.substr(end).starts_with(kLineEnd) ? end + 2
                                                                       : end + 1;
        lines.push_back(ParseLine(text.substr(0, length)));
        text.remove_prefix(length);
    }
    return lines;
}

// --- Sections
// ---------------------------------------------------------------------------------------------------------

// A section's lines without its header. Lines before the first header belong to the section without a name.
struct Range {
    size_t begin;
    size_t end;
};

std::optional<Range> FindSection(const Lines& lines, std::string_view section) {
    size_t begin = 0;
    if (!section.empty()) {
        const auto header = std::find_if(lines.begin(), lines.end(), [&](const Line& line) {
            return line.kind == LineKind::Section && EqualNoCase(line.name, section);
        });
        if (header == lines.end()) return std::nullopt;
        begin = static_cast<size_t>(header - lines.begin()) + 1;
    }
    size_t end = begin;
    while (end < lines.size() && lines[end].kind != LineKind::Section) ++end;
    return Range{begin, end};
}

std::optional<size_t> FindKey(const Lines& lines, Range range, LineKind kind, std::string_view key) {
    for (size_t i = range.begin; i < range.end; ++i)
        if (lines[i].kind == kind && EqualNoCase(lines[i].name, key)) return i;
    return std::nullopt;
}

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// --- Files
// ------------------------------------------------------------------------------------------------------------

// A name without a folder means the Windows folder, not the current one.
std::string PathOf(const std::string& file) {
    return file.find_first_of("\\/:") == std::string::npos ? "C:\\Windows\\" + file : file;
}

Lines Load(const std::string& file) {
    const Result<std::string> bytes = ReadWholeFile(PathOf(file));
    return bytes.Failed() ? Lines() : Parse(Decode(bytes.Value()));
}

// Lets a change work on a file's lines and stores them.
template <class Change>
bool ChangeFile(const std::string& file, Change change) {
    const std::string path = PathOf(file);
    if (FolderExists(path) || !FolderExists(path.substr(0, path.find_last_of("\\/:") + 1))) return false;
    File* stored = headless::FindFile(path);
    if (stored != nullptr && (stored->readOnly || stored->holders > 0)) return false;
    if (stored == nullptr) stored = &headless::PutFile(path, {});
    const Encoding encoding = EncodingOf(stored->bytes);
    Lines lines = Parse(Decode(stored->bytes));
    change(lines);
    std::string text;
    for (const Line& line : lines) text += line.raw;
    // The system's functions report success on a full disk and leave the file cut, and so does this.
    headless::Store(*stored, Encode(text, encoding));
    return true;
}

void Insert(Lines& lines, size_t at, const std::string& text) {
    if (at > 0 && !lines[at - 1].raw.ends_with('\n') && !lines[at - 1].raw.ends_with('\r'))
        lines[at - 1].raw += kLineEnd;
    lines.insert(lines.begin() + static_cast<Lines::difference_type>(at), ParseLine(text + std::string(kLineEnd)));
}

Range FindOrMakeSection(Lines& lines, const std::string& section) {
    if (const auto found = FindSection(lines, TrimBlanks(section))) return *found;
    Insert(lines, lines.size(), "[" + std::string(TrimStart(section)) + "]");
    return {lines.size(), lines.size()};
}

}  // namespace

std::string ReadIniValue(const std::string& file, const std::string& section, const std::string& key,
                         const std::string& defaultValue, size_t size) {
    if (size == 0) return {};
    const Lines lines = Load(file);
    std::optional<size_t> found;
    if (const auto range = FindSection(lines, TrimBlanks(section.c_str())))
        found = FindKey(lines, *range, LineKind::Entry, TrimBlanks(key.c_str()));
    std::string_view value;
    if (found) {
        value = lines[*found].value;
    } else {
        value = defaultValue.c_str();
        value = value.substr(0, value.find_last_not_of(' ') + 1);
    }
    return std::string(WithoutQuotes(value).substr(0, size - 1));
}

std::string ReadIniSection(const std::string& file, const std::string& section, size_t size) {
    if (size < 3) return {};
    const Lines lines = Load(file);
    const auto range = FindSection(lines, TrimBlanks(section.c_str()));
    if (!range) return {};
    std::string entries;
    for (size_t i = range->begin; i < range->end; ++i) {
        const Line& line = lines[i];
        if (line.kind == LineKind::Entry) entries += line.name + "=" + line.value + '\0';
        else if (line.kind == LineKind::Bare) entries += line.name + '\0';
    }
    return entries.substr(0, size - 2);
}

bool WriteIniValue(const std::string& file, const std::string& section, const std::string& key,
                   const std::string& value) {
    return ChangeFile(file, [&](Lines& lines) {
        const Range range = FindOrMakeSection(lines, section.c_str());
        const std::string_view name = TrimBlanks(key.c_str());
        const std::string content = "=" + std::string(TrimStart(value.c_str()));
        auto found = FindKey(lines, range, LineKind::Entry, name);
        if (!found) found = FindKey(lines, range, LineKind::Bare, name);
        if (found) {
            Line& line = lines[*found];
            const size_t end = std::min(line.raw.find_first_of(kLineEnd), line.raw.size());
            line.raw = line.name + content + line.raw.substr(end);
            return;
        }
        size_t at = range.end;
        while (at > range.begin && lines[at - 1].kind == LineKind::Blank) --at;
        Insert(lines, at, std::string(TrimStart(key.c_str())) + content);
    });
}

bool WriteIniSection(const std::string& file, const std::string& section, const std::string& entries) {
    return ChangeFile(file, [&](Lines& lines) {
        const Range range = FindOrMakeSection(lines, section.c_str());
        const auto place = [&](size_t at) { return lines.begin() + static_cast<Lines::difference_type>(at); };
        lines.erase(place(range.begin), place(range.end));
        size_t at = range.begin;
        for (size_t from = 0; from < entries.size() && entries[from] != '\0';) {
            const std::string entry = entries.c_str() + from;
            from += entry.size() + 1;
            const size_t equals = entry.find('=');
            if (equals == std::string::npos) continue;
            Insert(lines, at++,
                   std::string(TrimStart(entry.substr(0, equals))) + "=" +
                       std::string(TrimStart(std::string_view(entry).substr(equals + 1))));
        }
    });
}

}  // namespace quirn
