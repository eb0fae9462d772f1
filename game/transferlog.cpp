#include "game/transferlog.h"

#include <algorithm>

#include "game/playerfiles.h"
#include "game/regfile.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/initext.h"

namespace quirn {

namespace {

constexpr const char* kWayNames[] = {"Run", "Tray", "Command line", "Not run", "Undo", "Put back", "Compare"};

constexpr char kNew[] = ".new";  // ends the name of a folder that is not complete, or being removed
constexpr char kBeforeReg[] = "\\before.reg";
constexpr char kAfterReg[] = "\\after.reg";
constexpr char kAfter[] = "after-";
constexpr char kInfo[] = "\\transfer.ini";
constexpr char kUnfinished[] = "\\unfinished.ini";
constexpr char kLeftReg[] = "\\left.reg";
constexpr char kLeftNames[] = "\\left-ignore.txt";
constexpr char kLeftInfo[] = "\\left.ini";
constexpr char kSection[] = "Transfer";

// How files are told of in an INI: what it says for one that is not there.
constexpr char kNoFile[] = "no file";
constexpr char kAFile[] = "file";

std::string Read(std::string_view text, std::string_view key) {
    return FindIniValue(text, kSection, key).value_or("");
}

size_t ReadCount(std::string_view text, std::string_view key) {
    return static_cast<size_t>(std::max(0, ToInteger(Read(text, key)).value_or(0)));
}

std::string IniText(const std::vector<IniEntry>& entries) {
    return WithIniKeys("", kSection, entries);
}

std::string WordFor(const std::optional<std::string>& bytes) {
    return bytes ? kAFile : kNoFile;
}

std::optional<TransferEntry> ReadEntry(const std::string& folder, const std::string& time) {
    const Result<std::string> info = ReadWholeFile(folder + kInfo);
    if (info.Failed()) return std::nullopt;
    const std::string& text = info.Value();
    TransferEntry entry;
    entry.folder = folder;
    entry.time = time;
    entry.note.profile = Read(text, "Profile");
    for (size_t way = 0; way < std::size(kWayNames); ++way)
        if (Read(text, "Way") == kWayNames[way]) entry.note.way = static_cast<TransferWay>(way);
    entry.gameFolder = Read(text, "GameFolder");
    entry.settings = ReadCount(text, "Settings");
    entry.overwrote = ReadCount(text, "Overwrote");
    for (const char* name : kPlayerFiles)
        if (!Read(text, kAfter + std::string(name)).empty()) entry.files.emplace_back(name);
    entry.finished = !FindEntry(folder + kUnfinished);
    return entry;
}

// Where an entry keeps its copy of a file.
std::string CopyOf(const std::string& folder, const std::string& prefix, const std::string& name) {
    std::string path = folder;
    return path.append("\\").append(prefix).append(name);
}

// The settings in one of an entry's texts, and the files with their names' prefix.
Result<GameState> ReadState(const std::string& folder, const char* regFile, const std::string& prefix) {
    const Result<std::string> reg = ReadWholeFile(folder + regFile);
    if (reg.Failed()) return reg.Error();
    const Result<std::string> info = ReadWholeFile(folder + kInfo);
    if (info.Failed()) return info.Error();
    std::optional<GameSettings> settings = ReadRegFile(reg.Value());
    if (!settings) return ErrorNumber::PathFileAccess;
    GameState state{std::move(*settings), {}};
    for (const char* name : kPlayerFiles) {
        const std::string word = Read(info.Value(), prefix + name);
        if (word == kNoFile) state.files[name] = std::nullopt;
        if (word != kAFile) continue;
        Result<std::string> bytes = ReadWholeFile(CopyOf(folder, prefix, name));
        if (bytes.Failed()) return bytes.Error();
        state.files[name] = bytes.Take();
    }
    return state;
}

Failure WriteFiles(const std::string& folder, const std::string& prefix, const GameFiles& files, Flush flush) {
    for (const auto& [name, bytes] : files)
        if (bytes)
            if (Failure failure = WritePlainFile(CopyOf(folder, prefix, name), *bytes, flush)) return failure;
    return {};
}

// All of an entry. What a player goes back by is on the disk before the game is touched.
Failure WriteEntry(const std::string& folder, const std::string& info, const GameState& before,
                   const GameState& after) {
    if (Failure failure = MakeFolders(folder)) return failure;
    if (Failure failure = WritePlainFile(folder + kUnfinished, IniText({{"Finished", "0"}}))) return failure;
    if (Failure failure = WriteFiles(folder, "", before.files, Flush::Yes)) return failure;
    if (Failure failure = WriteFiles(folder, kAfter, after.files, Flush::No)) return failure;
    if (Failure failure = WritePlainFile(folder + kInfo, info)) return failure;
    if (Failure failure = WritePlainFile(folder + kAfterReg, RegFileText(after.settings))) return failure;
    return WritePlainFile(folder + kBeforeReg, RegFileText(before.settings), Flush::Yes);
}

Failure RemoveEntry(const std::string& folder) {
    // First it stops being an entry: what cannot be removed now is swept later.
    if (Failure failure = RenameEntry(folder, folder + kNew)) return failure;
    return RemoveFolderWithFiles(folder + kNew);
}

// What the file holds already is not written again.
Failure WriteChanged(const std::string& path, const std::string& bytes) {
    const Result<std::string> old = ReadWholeFile(path);
    if (!old.Failed() && old.Value() == bytes) return {};
    return WritePlainFile(path, bytes);
}

}  // namespace

const char* NameOf(TransferWay way) {
    return kWayNames[static_cast<size_t>(way)];
}

TransferLog::TransferLog(const std::string& dataFolder)
    : folder_(dataFolder.empty() ? "" : dataFolder + "\\Transfers") {}

std::vector<std::string> TransferLog::Times() const {
    std::vector<std::string> times;
    const Result<std::vector<FolderEntry>> folders =
        folder_.empty() ? Result<std::vector<FolderEntry>>(ErrorNumber::PathNotFound) : ListFolder(folder_);
    if (folders.Failed()) return times;
    for (const FolderEntry& folder : folders.Value())
        if (folder.isFolder && !folder.name.ends_with(kNew)) times.push_back(folder.name);
    std::sort(times.rbegin(), times.rend());
    return times;
}

std::vector<TransferEntry> TransferLog::Entries() const {
    std::vector<TransferEntry> found;
    for (const std::string& time : Times())
        if (auto entry = ReadEntry(folder_ + "\\" + time, time)) found.push_back(*std::move(entry));
    return found;
}

std::optional<TransferEntry> TransferLog::Last() const {
    for (const std::string& time : Times())
        if (auto entry = ReadEntry(folder_ + "\\" + time, time)) return entry;
    return std::nullopt;
}

Result<GameState> TransferLog::Before(const TransferEntry& entry) const {
    return ReadState(entry.folder, kBeforeReg, "");
}

Result<GameState> TransferLog::After(const TransferEntry& entry) const {
    return ReadState(entry.folder, kAfterReg, kAfter);
}

Result<GameState> TransferLog::WholeBefore(const TransferEntry& entry) const {
    Result<GameState> before = Before(entry);
    if (before.Failed()) return before;
    GameState whole = before.Take();
    std::vector<TransferEntry> entries = Entries();
    for (auto later = entries.rbegin(); later != entries.rend(); ++later) {
        if (later->time <= entry.time || !EqualNoCase(later->gameFolder, entry.gameFolder)) continue;
        const Result<GameState> had = Before(*later);
        if (had.Failed()) return had;
        for (const auto& [name, bytes] : had.Value().files) whole.files.try_emplace(name, bytes);
    }
    return whole;
}

Failure TransferLog::Forget(const TransferEntry& entry) const {
    return RemoveEntry(entry.folder);
}

Failure TransferLog::ForgetAll() const {
    Failure first;
    for (const TransferEntry& entry : Entries())
        if (Failure failure = Forget(entry); failure && !first) first = std::move(failure);
    return first;
}

Result<std::string> TransferLog::Begin(const TransferEntry& entry, const GameState& before,
                                       const GameState& after) const {
    if (folder_.empty()) return ErrorNumber::PathNotFound;
    std::vector<IniEntry> info{{"Profile", entry.note.profile},
                               {"Way", NameOf(entry.note.way)},
                               {"GameFolder", entry.gameFolder},
                               {"Settings", std::to_string(entry.settings)},
                               {"Overwrote", std::to_string(entry.overwrote)}};
    for (const auto& [name, bytes] : before.files) info.push_back({name, WordFor(bytes)});
    for (const auto& [name, bytes] : after.files) info.push_back({kAfter + name, WordFor(bytes)});

    const std::string folder = NewPathByTime(folder_, entry.time, "");
    Failure failure = WriteEntry(folder + kNew, IniText(info), before, after);
    if (!failure) failure = RenameEntry(folder + kNew, folder);
    if (!failure) return folder;
    RemoveFolderWithFiles(folder + kNew);
    return *failure;
}

Failure TransferLog::Finish(const std::string& entryFolder) const {
    const std::string mark = entryFolder + kUnfinished;
    return RemoveFile(mark) || !FindEntry(mark) ? Failure() : MakeError(ErrorNumber::PathFileAccess);
}

void TransferLog::Sweep() const {
    const Result<std::vector<FolderEntry>> folders = ListFolder(folder_);
    if (folder_.empty() || folders.Failed()) return;
    for (const FolderEntry& folder : folders.Value())
        if (folder.isFolder && folder.name.ends_with(kNew)) RemoveFolderWithFiles(folder_ + "\\" + folder.name);
    if (folders.Value().size() <= kKept) return;
    const std::vector<std::string> times = Times();
    for (size_t i = kKept; i + 1 < times.size(); ++i) RemoveEntry(folder_ + "\\" + times[i]);
}

std::optional<LeftState> TransferLog::Left() const {
    if (folder_.empty()) return std::nullopt;
    const Result<std::string> info = ReadWholeFile(folder_ + kLeftInfo);
    const Result<std::string> reg = ReadWholeFile(folder_ + kLeftReg);
    if (info.Failed() || reg.Failed()) return std::nullopt;
    std::optional<GameSettings> settings = ReadRegFile(reg.Value());
    if (!settings) return std::nullopt;
    LeftState left{Read(info.Value(), "Time"), Read(info.Value(), "GameFolder"), {std::move(*settings), {}}};
    for (const char* name : kPlayerFiles) {
        std::string word = Read(info.Value(), name);
        if (word.empty()) continue;
        std::optional<std::string>& mark = left.state.files[name];
        if (word == kNoFile) continue;
        if (name == std::string_view(kIgnoreFile)) {
            Result<std::string> names = ReadWholeFile(folder_ + kLeftNames);
            if (names.Failed()) return std::nullopt;
            word = names.Take();
        }
        mark = std::move(word);
    }
    return left;
}

Failure TransferLog::Leave(const LeftState& left) const {
    if (folder_.empty()) return {};
    if (Failure failure = MakeFolders(folder_)) return failure;
    std::vector<IniEntry> info{{"Time", left.time}, {"GameFolder", left.gameFolder}};
    for (const auto& [name, mark] : left.state.files) {
        const bool isNames = name == kIgnoreFile;
        info.push_back({name, !mark ? kNoFile : isNames ? kAFile : *mark});
        if (!isNames || !mark) continue;
        if (Failure failure = WriteChanged(folder_ + kLeftNames, *mark)) return failure;
    }
    if (Failure failure = WriteChanged(folder_ + kLeftReg, RegFileText(left.state.settings))) return failure;
    return WriteChanged(folder_ + kLeftInfo, IniText(info));
}

}  // namespace quirn
