#include "profile/library.h"

#include <iterator>
#include <set>

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/initext.h"
#include "platform/text.h"
#include "profile/settingtable.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr char kDialogSection[] = "Dialog";
constexpr uint64_t kLargest = 16 << 20;  // bytes; what is larger is a log that lies there, not a profile

constexpr std::string_view kEnding = ".qrn";

bool HasOwnEnding(std::string_view path) {
    return path.size() > kEnding.size() && EqualNoCase(path.substr(path.size() - kEnding.size()), kEnding);
}

std::string ShipOf(const std::string& number) {
    const auto ship = ToInteger(number);
    return ship && *ship >= 0 && static_cast<size_t>(*ship) < std::size(setting::kShipTypes)
               ? setting::kShipTypes[*ship]
               : "";
}

std::string NameOf(const std::string& path) {
    const std::string file = path.substr(path.rfind('\\') + 1);
    if (HasOwnEnding(file)) return file.substr(0, file.size() - kEnding.size());
    return file.find('.') == std::string::npos ? file + " (no .qrn)" : file;
}

}  // namespace

LibraryReader::LibraryReader(const std::string& folder, const std::vector<std::string>& others) {
    std::set<std::string, LessNoCase> known;
    const Result<std::vector<FolderEntry>> entries = ListFolder(folder);
    folderIsRead_ = !entries.Failed();
    if (folderIsRead_) {
        for (const FolderEntry& entry : entries.Value()) {
            if (entry.isFolder || entry.size > kLargest) continue;
            files_.push_back({AbsolutePath(folder + "\\" + entry.name), entry.size, entry.writtenLast, false});
            known.insert(files_.back().path);
        }
    }
    for (const std::string& other : others)
        if (const std::string path = AbsolutePath(other); !path.empty() && known.insert(path).second)
            files_.push_back({path, 0, 0, true});
}

std::optional<LibraryEntry> LibraryReader::Next() {
    File& file = files_[next_++];
    LibraryEntry entry{file.path, NameOf(file.path), {}, {}, {}, {}, file.changed, true};
    if (file.isOther) {
        const std::optional<FolderEntry> found = FindEntry(file.path);
        entry.folder = SplitPath(file.path).Folder();
        entry.isThere = found.has_value();
        if (!found) return entry;
        if (found->isFolder || found->size > kLargest) return std::nullopt;
        entry.changed = found->writtenLast;
    }
    const Result<std::string> text = ReadWholeFile(file.path);
    // A profile that is held now is listed by its name.
    if (text.Failed()) return HasOwnEnding(file.path) ? std::optional(entry) : std::nullopt;
    if (!FindIniSection(text.Value(), kDialogSection)) return std::nullopt;
    const auto read = [&](const char* key) {
        return std::string(WithoutQuotes(FindIniValue(text.Value(), kDialogSection, key).value_or("")));
    };
    entry.pilot = read("PlayerName");
    entry.zone = read("ServerArena");
    entry.ship = ShipOf(read("PlayerShipType"));
    return entry;
}

}  // namespace quirn
