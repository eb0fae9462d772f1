// The log editor's work without its windows, one job for each process, to be timed against other programs:
//     logtool generate FILE BYTES PLAYERS SEED
//     logtool show FILE               reads, parses, sorts the players, filters with everything shown
//     logtool find FILE TEXT          the same, and searches all of it for a text
//     logtool save FILE OTHER         the same, and saves what is shown
// Prints what was found, and the milliseconds of the last step by itself.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "benchmarks/loggenerator.h"
#include "logedit/logfind.h"
#include "logedit/logreader.h"
#include "logedit/logsave.h"
#include "platform/files.h"

namespace {

using namespace quirn;

double Milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

[[noreturn]] void End(const Failure& failure) {
    if (failure) std::fprintf(stderr, "logtool: %s\n", failure->description.c_str());
    std::fflush(stdout);
    // What is left to do is giving the memory back, which the system does faster.
    std::_Exit(failure ? 1 : 0);
}

Failure Generate(const std::string& path, char** arguments) {
    LogShape shape;
    shape.bytes = std::strtoul(arguments[0], nullptr, 10);
    shape.players = std::strtoul(arguments[1], nullptr, 10);
    shape.seed = std::strtoul(arguments[2], nullptr, 10);
    FileReplacer file;
    Failure failure = file.Open(path);
    if (!failure) failure = file.Write(GenerateLog(shape));
    return failure ? failure : file.Finish();
}

}  // namespace

int main(int count, char** arguments) {
    const std::string command = count > 2 ? arguments[1] : "";
    if (command == "generate" && count == 6) End(Generate(arguments[2], arguments + 3));
    if (command != "show" && count != 4) return 2;

    double start = Milliseconds();
    Result<std::shared_ptr<const ParsedLog>> log = ReadLog({arguments[2]}, {}, {});
    if (log.Failed()) End(log.Error());
    PlayerList include, exclude;
    include.Fill(log.Value());
    LogView view;
    if (Failure failure = view.ApplyLogFilter(log.Value(), MakeLineFilter(0xFFFF, include, exclude), false))
        End(failure);
    std::printf("%zu lines, %zu players, ", view.Count(), log.Value()->Players().size());
    if (command != "show") start = Milliseconds();
    if (command == "find") std::printf("%s, ", FindItem(view, arguments[3], 0) ? "found" : "not found");
    if (command == "save")
        if (Failure failure = SaveFilteredLog(view, arguments[3])) End(failure);
    std::printf("%.2f ms\n", Milliseconds() - start);
    End({});
}
