// Opens a log through the Windows functions as the log editor does, and prints the time of each step and the memory:
//     bench_log FILE
// Each round is a fresh log; medians.
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/ticks.h"
#include "logedit/logfind.h"
#include "logedit/logfollower.h"
#include "logedit/logreader.h"
#include "logedit/logsave.h"
#include "logedit/logstatistics.h"
#include "platform/files.h"

namespace {

using namespace quirn;

constexpr int kRounds = 9;

// The times of the steps, by name in the order of their first round.
class Steps {
public:
    template <class Work>
    void Time(const char* name, Work work) {
        const double start = Milliseconds();
        work();
        Add(name, Milliseconds() - start);
    }

    void Add(const char* name, double time) {
        const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.name == name; });
        if (found != rows_.end()) found->times.push_back(time);
        else rows_.push_back({name, {time}});
    }

    void Print() {
        for (Row& row : rows_) {
            std::sort(row.times.begin(), row.times.end());
            std::printf("%-42s median %8.2f ms   (%.2f to %.2f)\n", row.name.c_str(), row.times[row.times.size() / 2],
                        row.times.front(), row.times.back());
        }
    }

private:
    struct Row {
        std::string name;
        std::vector<double> times;
    };
    std::vector<Row> rows_;
};

size_t MostMemory() {
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return memory.PeakWorkingSetSize;
}

// A copy of the log, to which another 10,000 lines come.
void Follow(const std::string& path, Steps& steps) {
    const std::string copy = path + ".growing";
    CopyFileA(path.c_str(), copy.c_str(), FALSE);
    std::string added;
    for (int i = 0; i < 10000; ++i) added += "  Newcomer> what came while the log was open\r\n";
    LogFollower follower;
    const auto log = follower.Start({copy}, {}, {}).Value();
    PlayerList include, exclude;
    LogView view;
    include.Fill(log);
    view.ApplyLogFilter(log, MakeLineFilter(0x7FF, include, exclude), false);
    for (int round = 0; round < kRounds; ++round) {
        std::FILE* const file = std::fopen(copy.c_str(), "ab");
        std::fwrite(added.data(), 1, added.size(), file);
        std::fclose(file);
        const size_t lines = log->LineCount(), players = log->Players().size();
        steps.Time("follow: 10,000 lines more", [&] {
            follower.Look();
            if (log->Players().size() > players) include.Add(players);
            view.Extend(lines, players);
        });
    }
    DeleteFileA(copy.c_str());
}

// What no way from file to list can do without.
void ReadOnly(const std::string& path, Steps& steps) {
    steps.Time("of which reading into fresh memory", [&] {
        FileReader file;
        if (file.Open(path)) return;
        const auto size = static_cast<size_t>(file.Size());
        const std::unique_ptr<char[]> memory(new char[size]);
        for (size_t at = 0; at < size;) {
            const Result<size_t> got = file.Read(memory.get() + at, std::min<size_t>(size - at, 256 * 1024));
            if (got.Failed() || got.Value() == 0) return;
            at += got.Value();
        }
    });
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) return 2;
    const std::string path = arguments[1];
    Steps steps;
    const size_t memoryBefore = MostMemory();
    size_t lines = 0, bytes = 0, players = 0;
    for (int round = 0; round < kRounds; ++round) {
        PlayerList include, exclude;
        LogView view;
        ListSelection selection;
        const double start = Milliseconds();
        Result<std::shared_ptr<const ParsedLog>> log = ReadLog({path}, {}, {});
        if (log.Failed()) {
            std::printf("%s\n", log.Error().description.c_str());
            return 1;
        }
        include.Fill(log.Value());
        if (view.ApplyLogFilter(log.Value(), MakeLineFilter(0x7FF, include, exclude), false)) return 1;
        steps.Add("read, parse, filter", Milliseconds() - start);
        ReadOnly(path, steps);
        lines = log.Value()->LineCount();
        bytes = log.Value()->TextSize();
        players = log.Value()->Players().size();

        for (size_t i = 0; i < include.Count(); i += 3) include.Selection().Select(i, true);
        steps.Time("move a third of the players", [&] { MovePlayers(include, exclude); });
        steps.Time("a changed filter",
                   [&] { view.ApplyLogFilter(log.Value(), MakeLineFilter(0x3FF, include, exclude), true); });
        view.ApplyLogFilter(log.Value(), MakeLineFilter(0x7FF, include, PlayerList()), false);
        steps.Time("find what is not there", [&] { FindItem(view, "zzqqxx", 0); });
        selection.Reset(view.Count());
        steps.Time("text filter: a word and not another", [&] { view.SetText(TextFilter("the -zone")); });
        steps.Time("text filter: one letter", [&] { view.SetText(TextFilter("e")); });
        steps.Time("text filter: no more", [&] { view.SetText({}); });
        steps.Time("show all", [&] { view.ShowAll(true); });
        view.ShowAll(false);
        steps.Time("statistics", [&] { CountPlayers(*log.Value()); });
        steps.Time("select all", [&] { selection.SelectAll(); });
        selection.ClearAll();
        for (size_t i = 0; i < view.Count() && i < 1600000; i += 8) selection.Select(i, true);
        steps.Time("delete 200,000 lines here and there", [&] { view.Delete(selection); });
        steps.Time("undo that", [&] { view.Undo(); });
        view.Redo();
        steps.Time("save", [&] { SaveFilteredLog(view, path + ".saved"); });
    }
    DeleteFileA((path + ".saved").c_str());
    Follow(path, steps);
    std::printf("%zu bytes, %zu lines, %zu players, %d rounds\n", bytes, lines, players, kRounds);
    steps.Print();
    const size_t most = MostMemory() - memoryBefore;
    std::printf("most memory: %.1f MB more than before (%.1f bytes a line beside the file)\n",
                static_cast<double>(most) / 1e6,
                (static_cast<double>(most) - static_cast<double>(bytes)) / static_cast<double>(lines));
    return 0;
}
