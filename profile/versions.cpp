#include "profile/versions.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/initext.h"
#include "platform/text.h"
#include "platform/version.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr char kEnding[] = ".qrn";  // so that a version can be opened as a profile without any help
constexpr size_t kLongestName = 60;

// Of the path as the system sees it, so that every way of writing it gives the same (FNV-1a).
std::string SumOf(const std::string& path) {
    uint32_t sum = 2166136261u;
    for (const char c : FoldCase(path)) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619u;
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(sum));
    return digits.data();
}

std::string WithoutTimeOfSaving(const std::string& text) {
    return WithIniKeys(text, kTitle, {{"Modified", ""}});
}

bool HoldTheSame(const std::string& file, const std::string& other) {
    const Result<std::string> bytes = ReadWholeFile(file);
    const Result<std::string> otherBytes = ReadWholeFile(other);
    return !bytes.Failed() && !otherBytes.Failed() &&
           WithoutTimeOfSaving(bytes.Value()) == WithoutTimeOfSaving(otherBytes.Value());
}

}  // namespace

ProfileVersions::ProfileVersions(const std::string& dataFolder, const std::string& profilePath)
    : path_(AbsolutePath(profilePath)) {
    if (!dataFolder.empty())
        folder_ = dataFolder + "\\Versions\\" + SplitPath(path_).name.substr(0, kLongestName) + " " + SumOf(path_);
}

std::vector<ProfileVersion> ProfileVersions::List() const {
    std::vector<ProfileVersion> versions;
    const Result<std::vector<FolderEntry>> files =
        folder_.empty() ? Result<std::vector<FolderEntry>>(ErrorNumber::PathNotFound) : ListFolder(folder_);
    if (files.Failed()) return versions;
    for (const FolderEntry& file : files.Value())
        if (!file.isFolder && file.name.ends_with(kEnding))
            versions.push_back(
                {folder_ + "\\" + file.name, file.name.substr(0, file.name.size() + 1 - sizeof(kEnding))});
    std::sort(versions.begin(), versions.end(), [](auto& a, auto& b) { return a.time > b.time; });
    return versions;
}

Result<std::string> ProfileVersions::KeepPresent() const {
    const Result<std::string> bytes = ReadWholeFile(path_);
    if (bytes.Failed() && IsMissingFile(bytes.Error())) return std::string();
    if (bytes.Failed()) return bytes.Error();
    if (folder_.empty()) return ErrorNumber::PathNotFound;
    if (Failure failure = MakeFolders(folder_)) return *failure;
    const std::string version = NewPathByTime(folder_, SortableTime(), kEnding);
    if (Failure failure = WriteWholeFile(version, bytes.Value())) return *failure;
    return version;
}

void ProfileVersions::Settle(const std::string& version) const {
    if (version.empty()) return;
    if (HoldTheSame(version, path_)) {
        RemoveFile(version);
        return;
    }
    SweepFolder(folder_);
    const std::vector<ProfileVersion> versions = List();
    for (size_t i = kKept; i < versions.size(); ++i) RemoveFile(versions[i].file);
    SweepFiles();
}

// Files come and go, and nobody tells when one is gone for good.
void ProfileVersions::SweepFiles() const {
    const std::string all = folder_.substr(0, folder_.rfind('\\') + 1);
    const Result<std::vector<FolderEntry>> listed = ListFolder(all.substr(0, all.size() - 1));
    if (listed.Failed() || listed.Value().size() <= kFiles) return;
    std::vector<FolderEntry> folders = listed.Value();
    std::erase_if(folders, [&](const FolderEntry& entry) { return !entry.isFolder || all + entry.name == folder_; });
    std::sort(folders.begin(), folders.end(), [](auto& a, auto& b) { return a.writtenLast > b.writtenLast; });
    for (size_t i = kFiles - 1; i < folders.size(); ++i) RemoveFolderWithFiles(all + folders[i].name);
}

void ProfileVersions::MoveTo(const ProfileVersions& other) const {
    if (!folder_.empty()) RenameEntry(folder_, other.folder_);
}

Failure ProfileVersions::ForgetAll() const {
    Failure first;
    for (const ProfileVersion& version : List())
        if (!RemoveFile(version.file) && !first) first = MakeError(ErrorNumber::PathFileAccess);
    return first;
}

}  // namespace quirn
