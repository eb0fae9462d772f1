#include "tests/logedit/reference.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "logedit/logfilter.h"
#include "logedit/logfind.h"
#include "logedit/logparser.h"
#include "logedit/logview.h"
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

namespace {

// All words of the first list in it and none of the second.
bool Passes(const std::string& line, const std::vector<std::string>& wanted, const std::vector<std::string>& unwanted) {
    const auto holds = [&](const std::string& word) {
        return FoldCase(line).find(FoldCase(word)) != std::string::npos;
    };
    return std::all_of(wanted.begin(), wanted.end(), holds) && std::none_of(unwanted.begin(), unwanted.end(), holds);
}

// The text filter with pieces of the text as words, deletions, and the way back. The view ends as it was.
std::string TextAndUndo(LogView& view, std::string_view text, uint32_t seed) {
    const auto items = [&] {
        std::vector<size_t> lines;
        for (size_t i = 0; i < view.Count(); ++i) lines.push_back(view.LineIndex(i));
        return lines;
    };
    const std::vector<size_t> all = items();
    std::vector<std::string> wanted, unwanted;
    std::string filter;
    for (size_t i = 0; i < seed % 4; ++i) {
        std::string word(text.substr(seed * (i + 7) % (text.size() + 1), 1 + (seed + i) % 4));
        std::erase_if(word, [](char c) { return c == '"' || c == '-'; });
        if (word.empty()) continue;
        const bool isWanted = (seed >> i & 4) != 0;
        (isWanted ? wanted : unwanted).push_back(word);
        filter += (isWanted ? " \"" : "  -\"") + word + '"';
    }
    view.SetText(TextFilter(filter));
    std::vector<size_t> expected;
    for (const size_t line : all)
        if (Passes(std::string(view.Log()->Line(line)), wanted, unwanted)) expected.push_back(line);
    if (items() != expected) return "text filter" + filter;

    std::vector<std::vector<size_t>> states{expected};
    for (size_t step = 1; step < 4; ++step) {
        ListSelection selected;
        selected.Reset(view.Count());
        std::vector<size_t> left;
        for (size_t i = 0; i < view.Count(); ++i) {
            const bool goes = (i * step + seed) % 3 == 0;
            if (goes) selected.Select(i, true);
            else left.push_back(states.back()[i]);
        }
        view.Delete(selected);
        if (items() != left) return "what a deletion leaves";
        if (left.size() != states.back().size()) states.push_back(left);
    }
    for (size_t step = states.size() - 1; step > 0; --step) {
        const LogView::Restored back = view.Undo();
        if (items() != states[step - 1]) return "what is undone";
        if (back.selection.SelectedCount() != states[step - 1].size() - states[step].size()) return "what is selected";
    }
    for (size_t step = 1; step < states.size(); ++step) view.Redo();
    if (items() != states.back() || view.CanRedo()) return "what is done again";
    const LogView::Hidden hidden = view.CountHidden();
    if (hidden.deleted + hidden.byText != all.size() - view.Count()) return "how many are hidden";
    while (view.CanUndo()) view.Undo();
    view.SetText({});
    return items() == all ? "" : "what comes back";
}

}  // namespace

std::string Difference(std::string_view text, size_t piece, uint32_t hidden) {
    const auto log = std::make_shared<ParsedLog>();
    LogParser parser(*log, text.size());
    bool advanced = true;
    for (size_t at = 0; at < text.size();) {
        at += text.copy(parser.Buffer() + at, piece, at);
        advanced = parser.Advance(at) && advanced;
    }
    if (!(parser.Finish(text.size()) && advanced)) return "too many players";
    const Log expected = Parse(text);
    if (parser.Consumed() != expected.consumed) return "bytes consumed";
    if (log->LineCount() != expected.lines.size()) return "number of lines";
    for (size_t i = 0; i < expected.lines.size(); ++i)
        if (log->Line(i) != expected.lines[i] || log->Info(i) != expected.info[i])
            return "line " + std::to_string(i) + ": " + expected.lines[i];
    const size_t players = log->Players().size();
    if (players + (players == 0 ? 1 : 0) != expected.players.size()) return "number of players";
    if (!std::equal(log->Players().begin(), log->Players().end(), expected.players.begin())) return "names of players";

    PlayerList include, exclude;
    include.Fill(log);
    for (size_t i = 0; i < include.Count(); ++i) include.Selection().Select(i, (hidden >> i % 3 & 1) != 0);
    MovePlayers(include, exclude);
    if (include.Count() + exclude.Count() != (players < 2 ? 0 : players)) return "players in the lists";
    std::vector<Player> in, out;
    for (size_t i = 0; i < include.Count(); ++i) in.push_back({"", static_cast<int>(include.Number(i))});
    for (size_t i = 0; i < exclude.Count(); ++i) out.push_back({"", static_cast<int>(exclude.Number(i))});
    const uint32_t mask = 0x7FF & ~(hidden << 3);
    LogView view;
    if (view.ApplyLogFilter(log, MakeLineFilter(mask, include, exclude), hidden % 2 == 0)) return "memory";
    const std::vector<size_t> shown = Filter(expected, static_cast<int>(mask), in, out);
    if (view.Count() != shown.size()) return "number of shown lines";
    for (size_t i = 0; i < shown.size(); ++i)
        if (view.LineIndex(i) != shown[i]) return "shown line " + std::to_string(i);
    if (std::string difference = TextAndUndo(view, text, hidden); !difference.empty()) return difference;
    if (view.Count() == 0) return {};

    // A piece of the text itself, looked for in what is shown.
    const std::string_view what = text.substr(hidden % (text.size() + 1), 1 + hidden % 7);
    std::optional<size_t> found;
    for (size_t i = 0; i < view.Count() && !found; ++i)
        if (FoldCase(view.Text(i)).find(FoldCase(what)) != std::string::npos) found = i;
    return FindItem(view, what, 0) == found ? "" : "what is found";
}

}  // namespace quirn::reference
