#include "platform/files.h"

#include <algorithm>

#include "platform/headless/headless.h"

namespace quirn {

using headless::File;
using headless::FolderOf;
using headless::KeyOf;
using headless::TheWorld;

namespace {

constexpr size_t kLongestPath = 259;

// What opening a path for reading or writing meets before it comes to the file itself.
Failure CheckPath(const std::string& path) {
    const std::string key = KeyOf(path);
    if (TheWorld().folders.contains(key)) return MakeError(ErrorNumber::PathFileAccess);
    if (path.empty() || path.ends_with('\\') || !TheWorld().folders.contains(FolderOf(key)) ||
        key.size() > kLongestPath || key.find_first_of("<>\"|?*") != std::string::npos ||
        key.find(':', 2) != std::string::npos)
        return MakeError(ErrorNumber::PathNotFound);
    return {};
}

Failure CheckReplaceable(const std::string& path) {
    if (Failure failure = CheckPath(path)) return failure;
    const File* file = headless::FindFile(path);
    if (file == nullptr) return {};
    if (file->readOnly) return MakeError(ErrorNumber::PathFileAccess);
    if (file->holders > 0) return MakeError(ErrorNumber::PermissionDenied);
    return {};
}

bool Matches(std::string_view name, std::string_view pattern) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == '*')
        return Matches(name, pattern.substr(1)) || (!name.empty() && Matches(name.substr(1), pattern));
    return !name.empty() && (pattern[0] == '?' || FoldCase(pattern[0]) == FoldCase(name[0])) &&
           Matches(name.substr(1), pattern.substr(1));
}

}  // namespace

namespace headless {

World& TheWorld() {
    static World world;
    return world;
}

void ResetWorld() {
    TheWorld() = World();
}

std::string KeyOf(const std::string& path) {
    std::string key = AbsolutePath(path);
    if (key.ends_with('\\')) key.pop_back();
    return key;
}

std::string FolderOf(const std::string& key) {
    const size_t end = key.rfind('\\');
    return end == std::string::npos ? std::string() : key.substr(0, end);
}

void MakeFolder(const std::string& path) {
    for (std::string key = KeyOf(path); !key.empty(); key = FolderOf(key)) TheWorld().folders.insert(key);
}

File& PutFile(const std::string& path, std::string_view bytes) {
    MakeFolder(FolderOf(KeyOf(path)));
    File& file = TheWorld().files[KeyOf(path)];
    Store(file, bytes);
    return file;
}

File* FindFile(const std::string& path) {
    const auto found = TheWorld().files.find(KeyOf(path));
    return found == TheWorld().files.end() || path.ends_with('\\') ? nullptr : &found->second;
}

bool Store(File& file, std::string_view bytes) {
    file.writtenLast = ++TheWorld().writes;
    std::optional<size_t>& room = TheWorld().diskRoom;
    if (!room) {
        file.bytes = bytes;
        return true;
    }
    const size_t available = *room + file.bytes.size();
    const size_t stored = std::min(available, bytes.size());
    file.bytes = bytes.substr(0, stored);
    room = available - stored;
    return stored == bytes.size();
}

}  // namespace headless

bool FileExists(const std::string& path) {
    if (path.empty() || path.ends_with('\\')) return false;
    const std::string key = KeyOf(path);
    const std::string folder = FolderOf(key);
    std::string pattern = key.substr(folder.size());
    if (pattern == "\\*.*") pattern = "\\*";  // names without a point count too
    return std::any_of(TheWorld().files.begin(), TheWorld().files.end(), [&](const auto& entry) {
        const auto& [name, file] = entry;
        const std::string itsFolder = FolderOf(name);
        return EqualNoCase(itsFolder, folder) && Matches(std::string_view(name).substr(itsFolder.size()), pattern) &&
               !file.hidden && !file.system;
    });
}

bool FolderExists(const std::string& path) {
    return !path.empty() && TheWorld().folders.contains(KeyOf(path));
}

Result<std::string> ReadWholeFile(const std::string& path) {
    if (Failure failure = CheckPath(path)) return *failure;
    const File* file = headless::FindFile(path);
    if (file == nullptr) return ErrorNumber::FileNotFound;
    if (file->holders > 0) return ErrorNumber::PermissionDenied;
    return file->bytes;
}

FileReader::~FileReader() {
    delete static_cast<std::string*>(handle_);
}

Failure FileReader::Open(const std::string& path) {
    if (Failure failure = CheckPath(path)) return failure;
    const File* file = headless::FindFile(path);
    if (file == nullptr) return MakeError(ErrorNumber::FileNotFound);
    if (file->holders > 0) return MakeError(ErrorNumber::PermissionDenied);
    handle_ = new std::string(KeyOf(path));
    size_ = file->bytes.size() + file->hollow;
    return {};
}

uint64_t FileReader::WrittenLast() const {
    const File* file = headless::FindFile(*static_cast<std::string*>(handle_));
    return file == nullptr ? 0 : file->writtenLast;
}

Failure FileReader::GoTo(uint64_t position) {
    position_ = position;
    return {};
}

Result<size_t> FileReader::Read(char* buffer, size_t bytes) {
    const File* file = headless::FindFile(*static_cast<std::string*>(handle_));
    if (file == nullptr || position_ >= file->bytes.size()) return size_t{0};
    const size_t got = file->bytes.copy(buffer, bytes, static_cast<size_t>(position_));
    position_ += got;
    return got;
}

FileReplacer::~FileReplacer() {
    Abandon();
}

void FileReplacer::Abandon() {
    if (path_.empty()) return;
    if (File* file = headless::FindFile(unfinished_)) file->beingWritten = false;
    RemoveFile(unfinished_);
    path_.clear();
}

Failure FileReplacer::Open(const std::string& path) {
    Abandon();
    if (Failure failure = CheckReplaceable(path)) return failure;
    SweepUnfinished(path);
    unfinished_ = UnfinishedPath(path);
    if (headless::FindFile(unfinished_) != nullptr) return MakeError(ErrorNumber::PermissionDenied);
    path_ = AbsolutePath(path);
    TheWorld().files[KeyOf(unfinished_)].beingWritten = true;
    return {};
}

Failure FileReplacer::Write(std::string_view bytes) {
    File* file = headless::FindFile(unfinished_);
    if (file == nullptr) return MakeError(ErrorNumber::DeviceIo);
    const std::optional<size_t>& room = TheWorld().diskRoom;
    // The whole content anew at each piece would take a big file a long time.
    if (!room) file->bytes += bytes;
    else if (!headless::Store(*file, file->bytes + std::string(bytes))) return MakeError(ErrorNumber::DiskFull);
    return {};
}

Failure FileReplacer::Finish(Flush) {
    Failure failure = CheckReplaceable(path_);
    if (!failure) {
        RemoveFile(path_);
        auto entry = TheWorld().files.extract(KeyOf(unfinished_));
        entry.key() = KeyOf(path_);
        entry.mapped().beingWritten = false;
        TheWorld().files.insert(std::move(entry));
        path_.clear();
    }
    Abandon();
    return failure;
}

Failure WritePlainFile(const std::string& path, std::string_view bytes, Flush) {
    if (Failure failure = CheckReplaceable(path)) return failure;
    if (!headless::Store(TheWorld().files[KeyOf(path)], bytes)) return MakeError(ErrorNumber::DiskFull);
    return {};
}

bool RemoveFile(const std::string& path) {
    File* file = headless::FindFile(path);
    if (file == nullptr || file->readOnly || file->beingWritten || file->holders > 0) return false;
    headless::Store(*file, {});
    TheWorld().files.erase(KeyOf(path));
    return true;
}

bool DiskIsFull(const std::string&, size_t bytes) {
    return TheWorld().diskRoom.value_or(bytes) < bytes;
}

std::string AbsolutePath(const std::string& path) {
    if (path.empty()) return path;
    std::string whole = path;
    std::replace(whole.begin(), whole.end(), '/', '\\');
    const std::string& current = TheWorld().currentFolder;
    if (whole.size() >= 2 && whole[1] == ':') {
        // "C:name" starts at the current folder of that drive.
        if (whole.size() == 2 || whole[2] != '\\')
            whole =
                (FoldCase(whole[0]) == FoldCase(current[0]) ? current : whole.substr(0, 2)) + "\\" + whole.substr(2);
    } else {
        whole = whole.starts_with('\\') ? current.substr(0, 2) + whole : current + "\\" + whole;
    }
    std::vector<std::string> parts;
    for (size_t at = 3; at < whole.size();) {
        const size_t end = std::min(whole.find('\\', at), whole.size());
        const std::string part = whole.substr(at, end - at);
        at = end + 1;
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
    }
    // The system drops points and spaces at the end of a path.
    if (!parts.empty() && !whole.ends_with('\\')) parts.back().resize(parts.back().find_last_not_of(". ") + 1);
    std::string result = whole.substr(0, 2);
    for (const std::string& part : parts) result += "\\" + part;
    if (parts.empty() || whole.ends_with('\\')) result += "\\";
    return result;
}

std::string ProgramFolder() {
    return TheWorld().programFolder;
}

std::string ShortPath(const std::string& path) {
    return path.find(' ') == std::string::npos ? path : std::string();
}

}  // namespace quirn
