#include "tests/testing/user.h"

#include <tlhelp32.h>

// Files that are held, processes.
namespace user {

namespace {

HANDLE heldFile = INVALID_HANDLE_VALUE;

std::string Release(const Words&) {
    if (heldFile != INVALID_HANDLE_VALUE) CloseHandle(heldFile);
    heldFile = INVALID_HANDLE_VALUE;
    return Done();
}

// Keeps a file open and shares it with nobody, as another program that works on it would.
std::string Hold(const Words& words) {
    Release(words);
    heldFile = CreateFileA(Word(words, 1).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    return heldFile != INVALID_HANDLE_VALUE ? Done() : Error("could not open it");
}

std::string Processes(const Words&) {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    std::vector<std::string> rows;
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry))
        rows.push_back(Done(Member("pid", static_cast<long long>(entry.th32ProcessID)) + "," +
                            Member("name", Quoted(entry.szExeFile))));
    CloseHandle(snapshot);
    return Done(Member("processes", List(rows)));
}

std::string End(const Words& words) {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, static_cast<DWORD>(Number(words, 1)));
    if (!process) return Error("no such process");
    TerminateProcess(process, 99);
    WaitForSingleObject(process, 5000);
    CloseHandle(process);
    return Done();
}

}  // namespace

Commands FileCommands() {
    return {
        {"hold", Hold},  // FILE
        {"release", Release},
        {"processes", Processes},
        {"end", End},  // PROCESS
    };
}

}  // namespace user
