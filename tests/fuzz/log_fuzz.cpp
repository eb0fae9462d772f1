// The parser and the filter against their plain counterparts, on whatever libFuzzer makes up:
//     cmake --preset fuzz && cmake --build --preset fuzz
//     mkdir -p build/corpus && build/fuzz/tests/log_fuzz -max_len=4096 -max_total_time=1200 build/corpus
//     tests/fuzz/corpus
// New inputs go into the first folder. To keep the second one small, merge into a fresh one:
//     build/fuzz/tests/log_fuzz -merge=1 FRESH build/corpus tests/fuzz/corpus
//
// The first byte of an input says in what pieces the rest comes, the second which types and players are hidden.
#include <cstdio>
#include <cstdlib>

#include "logedit/logfilter.h"
#include "logedit/logfind.h"
#include "logedit/logparser.h"
#include "logedit/logview.h"
#include "platform/text.h"
#include "tests/logedit/reference.h"

namespace {

using namespace quirn;

void Require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "different: %s\n", what);
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    const size_t piece = data[0] == 0 ? size : data[0];
    const uint32_t hidden = data[1];
    const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);

    const auto log = std::make_shared<ParsedLog>();
    LogParser parser(*log, text.size());
    for (size_t at = 0; at < text.size();) {
        at += text.copy(parser.Buffer() + at, piece, at);
        Require(parser.Advance(at), "overflow");
    }
    Require(parser.Finish(text.size()), "overflow");

    const reference::Log expected = reference::Parse(text);
    Require(parser.Consumed() == expected.consumed, "bytes consumed");
    Require(log->LineCount() == expected.lines.size(), "number of lines");
    for (size_t i = 0; i < expected.lines.size(); ++i) {
        Require(log->Line(i) == expected.lines[i], "text of a line");
        Require(log->Info(i) == expected.info[i], "info word");
    }
    const size_t players = log->Players().size();
    Require(players + (players == 0 ? 1 : 0) == expected.players.size(), "number of players");
    for (size_t i = 0; i < players; ++i) Require(log->Players()[i] == expected.players[i], "name of a player");

    PlayerList include, exclude;
    include.Fill(log);
    for (size_t i = 0; i < include.Count(); ++i) include.Selection().Select(i, (hidden >> i % 3 & 1) != 0);
    MovePlayers(include, exclude);
    std::vector<reference::Player> in, out;
    for (size_t i = 0; i < include.Count(); ++i) in.push_back({"", static_cast<int>(include.Number(i))});
    for (size_t i = 0; i < exclude.Count(); ++i) out.push_back({"", static_cast<int>(exclude.Number(i))});
    const uint32_t mask = 0x7FF & ~(hidden << 3);
    LogView view;
    Require(!view.ApplyLogFilter(log, mask, include, exclude, hidden % 2 == 0), "memory");
    const std::vector<size_t> shown = reference::Filter(expected, static_cast<int>(mask), in, out);
    Require(view.Count() == shown.size(), "number of shown lines");
    for (size_t i = 0; i < shown.size(); ++i) Require(view.LineIndex(i) == shown[i], "a shown line");

    // A piece of the text itself, looked for in what is shown.
    if (view.Count() > 0) {
        const std::string_view what = text.substr(hidden % (text.size() + 1), 1 + hidden % 7);
        std::optional<size_t> found;
        for (size_t i = 0; i < view.Count() && !found; ++i)
            if (FoldCase(view.Text(i)).find(FoldCase(what)) != std::string::npos) found = i;
        Require(FindItem(view, what, 0) == found, "what is found");
    }
    return 0;
}
