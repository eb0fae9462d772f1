#include "platform/folders.h"

#include "platform/files.h"
#include "platform/headless/headless.h"

namespace quirn {

using headless::FolderOf;
using headless::KeyOf;
using headless::TheWorld;

namespace {

bool IsIn(const std::string& key, const std::string& folder) {
    return EqualNoCase(FolderOf(key), folder);
}

// A path in the first folder, or that folder itself, as it is below the second.
std::string Moved(const std::string& key, const std::string& from, const std::string& to) {
    return to + key.substr(from.size());
}

bool IsBelow(const std::string& key, const std::string& folder) {
    return EqualNoCase(key, folder) || EqualNoCase(key.substr(0, folder.size() + 1), folder + "\\");
}

}  // namespace

Result<std::vector<FolderEntry>> ListFolder(const std::string& folder) {
    if (!FolderExists(folder)) return ErrorNumber::PathNotFound;
    const std::string key = KeyOf(folder);
    std::vector<FolderEntry> entries;
    for (const std::string& path : TheWorld().folders)
        if (IsIn(path, key)) entries.push_back({path.substr(key.size() + 1), true, 0, 0});
    for (const auto& [path, file] : TheWorld().files) {
        if (IsIn(path, key))
            entries.push_back({path.substr(key.size() + 1), false, file.bytes.size() + file.hollow, file.writtenLast});
    }
    return entries;
}

std::optional<FolderEntry> FindEntry(const std::string& path) {
    const Result<std::vector<FolderEntry>> entries = ListFolder(FolderOf(KeyOf(path)));
    if (entries.Failed()) return std::nullopt;
    for (const FolderEntry& entry : entries.Value())
        if (EqualNoCase(KeyOf(path), FolderOf(KeyOf(path)) + "\\" + entry.name)) return entry;
    return std::nullopt;
}

Failure MakeFolders(const std::string& folder) {
    const std::string key = KeyOf(folder);
    if (key.empty() || !TheWorld().folders.contains(key.substr(0, key.find('\\'))))
        return MakeError(ErrorNumber::PathNotFound);
    for (std::string path = key; !path.empty(); path = FolderOf(path))
        if (headless::FindFile(path) != nullptr) return MakeError(ErrorNumber::PathFileAccess);
    headless::MakeFolder(folder);
    return {};
}

Failure RemoveFolder(const std::string& folder) {
    const Result<std::vector<FolderEntry>> entries = ListFolder(folder);
    if (entries.Failed()) return entries.Error();
    if (!entries.Value().empty()) return MakeError(ErrorNumber::PathFileAccess);
    TheWorld().folders.erase(KeyOf(folder));
    return {};
}

Failure RenameEntry(const std::string& from, const std::string& to) {
    const std::string source = KeyOf(from);
    const std::string target = KeyOf(to);
    const headless::File* const renamed = headless::FindFile(from);
    if (renamed != nullptr && renamed->holders > 0) return MakeError(ErrorNumber::PermissionDenied);
    if ((!FolderExists(from) && renamed == nullptr) || !FolderExists(FolderOf(target)))
        return MakeError(ErrorNumber::PathNotFound);
    if (FolderExists(to) || headless::FindFile(to) != nullptr) return MakeError(ErrorNumber::PathFileAccess);
    const auto folders = TheWorld().folders;
    for (const std::string& path : folders) {
        if (!IsBelow(path, source)) continue;
        TheWorld().folders.erase(path);
        TheWorld().folders.insert(Moved(path, source, target));
    }
    const auto files = TheWorld().files;
    for (const auto& [path, file] : files) {
        if (!IsBelow(path, source)) continue;
        TheWorld().files.erase(path);
        TheWorld().files[Moved(path, source, target)] = file;
    }
    return {};
}

bool IsOnLocalDisk(const std::string& folder) {
    return folder.size() > 1 && folder[1] == ':';
}

bool IsOnOtherComputer(const std::string& path) {
    return path.starts_with("\\\\");
}

std::vector<std::string> ProgramPlaces() {
    return {"C:", "C:\\Program Files"};
}

std::string LocalDataFolder() {
    return TheWorld().localDataFolder;
}

}  // namespace quirn
