#include "tests/logedit/reference.h"

#include <algorithm>

#include "platform/text.h"

namespace quirn::reference {

namespace {

// Places count from 1; 0 is not found.
size_t InStr(const std::string& text, const std::string& what) {
    const size_t at = text.find(what);
    return at == std::string::npos ? 0 : at + 1;
}

std::string Mid(const std::string& text, size_t start, size_t length = std::string::npos) {
    return start > text.size() ? std::string() : text.substr(start - 1, length);
}

std::string Right(const std::string& text, size_t length) {
    return length >= text.size() ? text : text.substr(text.size() - length);
}

std::string Trimmed(const std::string& text) {
    return std::string(Trim(text));
}

int ChannelFlag(const std::string& digit) {
    return digit == "2" ? 256 : digit == "3" ? 512 : digit == "4" ? 1024 : 128;
}

int FindPlayer(const Log& log, const std::string& name) {
    for (size_t i = 0; i < log.players.size(); ++i)
        if (EqualNoCase(log.players[i], name)) return static_cast<int>(i);
    return -1;
}

// The packed word of a kept line.
int ParseLine(Log& log, const std::string& line) {
    const std::string prefix = Mid(line, 1, 2);
    const std::string rest = Mid(line, 3);
    const size_t p = InStr(rest, "> ");
    int flags = 32768;
    if (prefix == "P ") flags = 8;
    else if (prefix == "T ") flags = 16;
    else if (prefix == "E ") flags = 32;
    else if (prefix == "  ") flags = 1;
    else if (prefix == "C ") {
        if (Mid(Trimmed(rest), 2, 1) == ":") flags = ChannelFlag(Mid(Trimmed(rest), 1, 1));
        else if (Mid(rest, p + 3, 1) == ";") flags = ChannelFlag(Mid(rest, p + 2, 1));
        else flags = 128;
    }
    if (InStr(rest, ") killed by: ") > 0) flags = 4;
    if (p == 0) return flags == 4 ? 4 : 2;

    std::string name = Trimmed(Mid(rest, 1, p - 1));
    if (Mid(name, 1, 1) == "(") {
        name = name.size() < 2 ? "" : Mid(name, 2, name.size() - 2);
        flags = 64;
    }
    if (Mid(name, 2, 1) == ":") name = Mid(name, 3);
    if (Mid(name, 1, 1) == ":") return flags;
    int number = FindPlayer(log, name) + 1;
    if (number == 0) {
        number = log.nextPlayer++;
        log.players.resize(static_cast<size_t>(number));
        log.players.back() = name;
        if (number > 32767) log.overflow = true;
    }
    return static_cast<int>(static_cast<uint32_t>(number) << 16) + flags;
}

// A CR belongs to a line's end only before an LF.
std::vector<std::string_view> LinesOf(std::string_view file) {
    std::vector<std::string_view> lines;
    while (!file.empty()) {
        const size_t end = file.find('\n');
        std::string_view line = file.substr(0, end);
        if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        file.remove_prefix(end == std::string_view::npos ? file.size() : end + 1);
    }
    return lines;
}

}  // namespace

Log Parse(std::string_view file) {
    Log log;
    size_t k = 0;
    for (const std::string_view stored : LinesOf(file)) {
        std::string line(stored);
        log.consumed += line.size() + 2;
        if (Trimmed(line).empty() || Mid(line, 1, 2) == "[~") continue;
        if (Mid(line, 1, 1) == "{") line = Right(line, line.size() - InStr(line, "} ") - 1);
        log.lines.resize(k + 1);
        log.info.resize(k + 1);
        log.lines[k] = line;
        log.info[k] = ParseLine(log, line);
        if (log.overflow) return log;
        ++k;
    }
    return log;
}

std::vector<size_t> Filter(const Log& log, int mask, const std::vector<Player>& include,
                           const std::vector<Player>& exclude) {
    const auto holds = [](const std::vector<Player>& list, int number) {
        return std::any_of(list.begin(), list.end(), [&](const Player& player) { return player.number == number; });
    };
    std::vector<size_t> shown;
    for (size_t i = 0; i < log.lines.size(); ++i) {
        const int type = log.info[i] & 0xFFFF;
        const int player = log.info[i] / 65536;
        if ((type & ~mask) != 0) continue;
        bool show = false;
        if (exclude.empty() || player == 0) show = true;
        else if (include.size() > exclude.size()) show = !holds(exclude, player);
        else show = holds(include, player);
        if (show) shown.push_back(i);
    }
    return shown;
}

}  // namespace quirn::reference
