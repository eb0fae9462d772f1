#include "platform/initext.h"

#include <algorithm>
#include <map>

#include "platform/text.h"

namespace quirn {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

// 0x1A is one at the ends of a line only in effect: nobody writes it elsewhere.
constexpr std::string_view kBlanks = " \t\v\f\x1A";

std::string_view TrimStart(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

// The first line of a text, its end included: CR LF, or one of the two alone.
std::string_view FirstLine(std::string_view text) {
    const size_t end = text.find_first_of(kLineEnd);
    if (end == std::string_view::npos) return text;
    return text.substr(0, text.substr(end).starts_with(kLineEnd) ? end + 2 : end + 1);
}

// A line without its end and the spaces around it; a NUL ends it too.
std::string_view ContentOf(std::string_view line) {
    return TrimIni(line.substr(0, line.find_first_of(std::string_view("\r\n\0", 3))));
}

std::optional<std::string_view> SectionName(std::string_view content) {
    if (!content.starts_with('[')) return std::nullopt;
    const size_t bracket = content.find(']');
    if (bracket == std::string_view::npos) return std::nullopt;
    return TrimIni(content.substr(1, bracket - 1));
}

// A line of a section. One without "=" is no entry, but is replaced when its key is set.
struct Line {
    std::string_view raw;
    bool isEntry;
    std::string_view key;  // empty for a blank line and a comment
    std::string_view value;
};

Line ParseLine(std::string_view raw) {
    const std::string_view content = ContentOf(raw);
    if (content.starts_with(';')) return {raw, false, {}, {}};
    const size_t equals = content.find('=');
    if (equals == std::string_view::npos) return {raw, false, content, {}};
    return {raw, true, TrimIni(content.substr(0, equals)), TrimIni(content.substr(equals + 1))};
}

// A text around one section.
struct Parts {
    std::string_view before;  // its header included
    std::vector<Line> lines;
    std::string_view after;
};

std::optional<Parts> Split(std::string_view text, std::string_view section) {
    section = TrimIni(section);
    bool inside = section.empty();
    size_t begin = 0;
    size_t at = 0;
    Parts parts;
    while (at < text.size()) {
        const std::string_view line = FirstLine(text.substr(at));
        const auto name = SectionName(ContentOf(line));
        if (name && inside) break;
        at += line.size();
        if (name && EqualNoCase(*name, section)) {
            inside = true;
            begin = at;
        } else if (inside) {
            parts.lines.push_back(ParseLine(line));
        }
    }
    if (!inside) return std::nullopt;
    parts.before = text.substr(0, begin);
    parts.after = text.substr(at);
    return parts;
}

// What comes into the file of a value: a NUL ends it.
std::string_view Written(std::string_view value) {
    return TrimStart(value.substr(0, value.find('\0')));
}

void EndLine(std::string& text) {
    if (!text.empty() && !text.ends_with('\n') && !text.ends_with('\r')) text += kLineEnd;
}

// The same, with the header appended to the text when there is none; the text is changed then.
Parts SplitOrAdd(std::string& text, std::string_view section) {
    if (auto parts = Split(text, section)) return *parts;
    EndLine(text);
    text.append("[").append(TrimStart(section)).append("]").append(kLineEnd);
    return {text, {}, {}};
}

void Append(std::string& text, const IniEntry& entry) {
    EndLine(text);
    text.append(TrimStart(entry.key)).append("=").append(Written(entry.value)).append(kLineEnd);
}

}  // namespace

std::string_view TrimIni(std::string_view text) {
    text = TrimStart(text);
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::optional<std::string> FindIniValue(std::string_view text, std::string_view section, std::string_view key) {
    const auto parts = Split(text, section);
    if (!parts) return std::nullopt;
    for (const Line& line : parts->lines)
        if (line.isEntry && EqualNoCase(line.key, TrimIni(key))) return std::string(line.value);
    return std::nullopt;
}

std::optional<std::string> FindIniSection(std::string_view text, std::string_view section) {
    const auto parts = Split(text, section);
    if (!parts) return std::nullopt;
    std::string entries;
    for (const Line& line : parts->lines) {
        if (line.isEntry) entries.append(line.key).append("=").append(line.value) += '\0';
        else if (!line.key.empty()) entries.append(line.key) += '\0';
    }
    return entries;
}

std::string WithIniKeys(std::string_view text, std::string_view section, const std::vector<IniEntry>& entries) {
    std::string whole(text);
    const Parts parts = SplitOrAdd(whole, section);

    // Where each key stands; an entry goes before a line without "=".
    std::map<std::string_view, size_t, LessNoCase> places;
    for (const bool isEntry : {true, false})
        for (size_t i = 0; i < parts.lines.size(); ++i)
            if (parts.lines[i].isEntry == isEntry && (isEntry || !parts.lines[i].key.empty()))
                places.emplace(parts.lines[i].key, i);

    std::vector<const IniEntry*> changed(parts.lines.size());
    std::vector<IniEntry> added;
    for (const IniEntry& entry : entries) {
        const auto [place, isNew] = places.emplace(TrimIni(entry.key), changed.size() + added.size());
        if (isNew) added.push_back(entry);
        else if (place->second < changed.size()) changed[place->second] = &entry;
        else added[place->second - changed.size()].value = entry.value;
    }

    // New keys come before the blank lines at the section's end.
    size_t last = parts.lines.size();
    while (last > 0 && ContentOf(parts.lines[last - 1].raw).empty()) --last;
    std::string result(parts.before);
    result.reserve(whole.size() + entries.size() * 32);
    for (size_t i = 0; i <= parts.lines.size(); ++i) {
        if (i == last)
            for (const IniEntry& entry : added) Append(result, entry);
        if (i == parts.lines.size()) break;
        const Line& line = parts.lines[i];
        if (changed[i] == nullptr) {
            result += line.raw;
            continue;
        }
        const size_t end = std::min(line.raw.find_first_of(kLineEnd), line.raw.size());
        result.append(line.key).append("=").append(Written(changed[i]->value)).append(line.raw.substr(end));
    }
    return result.append(parts.after);
}

std::string WithIniSection(std::string_view text, std::string_view section, const std::vector<IniEntry>& entries) {
    std::string whole(text);
    const Parts parts = SplitOrAdd(whole, section);
    std::string result(parts.before);
    for (const IniEntry& entry : entries) Append(result, entry);
    return result.append(parts.after);
}

}  // namespace quirn
