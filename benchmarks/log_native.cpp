#include <benchmark/benchmark.h>

#include <cstring>

#include "benchmarks/loggenerator.h"
#include "logedit/logfind.h"
#include "logedit/logparser.h"
#include "logedit/logstatistics.h"
#include "logedit/logview.h"

// The steps of the log editor by themselves, in memory, with few players (300) and many (30000).
namespace {

using namespace quirn;

constexpr size_t kBytes = 100'000'000;

const std::string& Text(int64_t players) {
    static const std::string few = GenerateLog({kBytes, 300, 1});
    static const std::string many = GenerateLog({kBytes, 30000, 1});
    return players == 300 ? few : many;
}

std::shared_ptr<const ParsedLog> Parse(const std::string& text) {
    const auto log = std::make_shared<ParsedLog>();
    LogParser parser(*log, text.size());
    text.copy(parser.Buffer(), text.size());
    parser.Finish(text.size());
    return log;
}

void CopyMemory(benchmark::State& state) {
    const std::string& text = Text(300);
    std::string copy = text;
    for (auto _ : state) {
        std::memcpy(copy.data(), text.data(), text.size());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}
BENCHMARK(CopyMemory)->Unit(benchmark::kMillisecond);

void ParseText(benchmark::State& state) {
    const std::string& text = Text(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        ParsedLog log;
        LogParser parser(log, text.size());
        text.copy(parser.Buffer(), text.size());
        state.ResumeTiming();
        benchmark::DoNotOptimize(parser.Finish(text.size()));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}
BENCHMARK(ParseText)->Arg(300)->Arg(30000)->Unit(benchmark::kMillisecond);

// Every third player excluded, and one type.
void ChangeFilter(benchmark::State& state) {
    const auto log = Parse(Text(state.range(0)));
    PlayerList include, exclude;
    include.Fill(log);
    for (size_t i = 0; i < include.Count(); i += 3) include.Selection().Select(i, true);
    MovePlayers(include, exclude);
    LogView view;
    for (auto _ : state) view.ApplyLogFilter(log, MakeLineFilter(0x3FF, include, exclude), false);
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(log->LineCount()));
}
BENCHMARK(ChangeFilter)->Arg(300)->Arg(30000)->Unit(benchmark::kMillisecond);

// Not there; with line numbers and possibly in them; there in every tenth line, from hit to hit.
void Find(benchmark::State& state, const char* what, bool lineNumbers) {
    const auto log = Parse(Text(300));
    PlayerList include, exclude;
    LogView view;
    view.ApplyLogFilter(log, MakeLineFilter(0x7FF, include, exclude), lineNumbers);
    for (auto _ : state)
        for (auto at = FindItem(view, what, 0); at; at = FindItem(view, what, *at + 1)) benchmark::DoNotOptimize(at);
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(log->TextSize()));
}
BENCHMARK_CAPTURE(Find, missing, "zzqqxx", false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, missing_tags, "99zzqq", true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find, killed_by, "KILLED BY: k", false)->Unit(benchmark::kMillisecond);

void FilterByText(benchmark::State& state, const char* text) {
    const auto log = Parse(Text(300));
    LogView view;
    view.ApplyLogFilter(log, LineFilter{0x7FF}, false);
    for (auto _ : state) view.SetText(TextFilter(text));
    state.counters["lines"] = static_cast<double>(view.Count());
}
BENCHMARK_CAPTURE(FilterByText, word_without_another, "the -zone")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FilterByText, letter, "e")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FilterByText, without_a_word, "-the")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FilterByText, two_words, "you the")->Unit(benchmark::kMillisecond);

void Statistics(benchmark::State& state) {
    const auto log = Parse(Text(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(CountPlayers(*log));
}
BENCHMARK(Statistics)->Arg(300)->Arg(30000)->Unit(benchmark::kMillisecond);

void DeleteEighth(benchmark::State& state) {
    const auto log = Parse(Text(300));
    PlayerList include, exclude;
    LogView view;
    ListSelection selection;
    for (auto _ : state) {
        state.PauseTiming();
        view.ApplyLogFilter(log, MakeLineFilter(0x7FF, include, exclude), false);
        selection.Reset(view.Count());
        for (size_t i = 0; i < view.Count(); i += 8) selection.Select(i, true);
        state.ResumeTiming();
        view.Delete(selection);
    }
}
BENCHMARK(DeleteEighth)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
