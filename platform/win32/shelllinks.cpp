#include <windows.h>

#include <objbase.h>  // these need windows.h first
#include <shlobj.h>

#include <array>

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "platform/win32/com.h"

// Links (.lnk files) on the desktop and in the Start menu.
namespace quirn {

namespace win32 {

void InitCom() {
    static const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    (void)com;
}

namespace {

constexpr int kDeepest = 4;  // folders of the Start menu in one another

std::array<wchar_t, MAX_PATH> Wide(const std::string& path) {
    std::array<wchar_t, MAX_PATH> wide{};
    MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

// A new link object and the interface by which it is loaded and saved.
struct Link {
    ComPtr<IShellLinkA> link;
    ComPtr<IPersistFile> file;

    HRESULT Make() {
        InitCom();
        const HRESULT result =
            CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA, link.Place());
        return FAILED(result) ? result : link->QueryInterface(IID_IPersistFile, file.Place());
    }
};

// As it stands in the link: a target that has moved is not searched for. Empty when there is none.
std::string TargetOf(const std::string& path) {
    Link link;
    std::array<char, MAX_PATH> target{};
    if (FAILED(link.Make()) || FAILED(link.file->Load(Wide(path).data(), STGM_READ))) return {};
    if (link.link->GetPath(target.data(), static_cast<int>(target.size()), nullptr, 0) != S_OK) return {};
    return target.data();
}

void FindTargets(const std::string& folder, const std::string& fileName, int depth, std::vector<std::string>& found) {
    const Result<std::vector<FolderEntry>> entries = ListFolder(folder);
    if (entries.Failed()) return;
    for (const FolderEntry& entry : entries.Value()) {
        const std::string path = folder + "\\" + entry.name;
        if (entry.isFolder && depth < kDeepest) FindTargets(path, fileName, depth + 1, found);
        if (entry.isFolder || !FoldCase(entry.name).ends_with(".LNK")) continue;
        std::string target = TargetOf(path);
        if (EqualNoCase(target.substr(target.rfind('\\') + 1), fileName)) found.push_back(std::move(target));
    }
}

}  // namespace

}  // namespace win32

Failure MakeDesktopLink(const std::string& name, const std::string& arguments) {
    std::array<char, MAX_PATH> desktop{};
    std::array<char, MAX_PATH> program{};
    win32::Link made;
    HRESULT result = SHGetFolderPathA(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, SHGFP_TYPE_CURRENT, desktop.data());
    if (result == S_OK && GetModuleFileNameA(nullptr, program.data(), MAX_PATH) == 0) result = E_FAIL;
    if (result == S_OK) result = made.Make();
    if (SUCCEEDED(result)) result = made.link->SetPath(program.data());
    if (SUCCEEDED(result)) result = made.link->SetArguments(arguments.c_str());
    if (SUCCEEDED(result)) result = made.link->SetWorkingDirectory(ProgramFolder().c_str());
    if (SUCCEEDED(result))
        result = made.file->Save(win32::Wide(std::string(desktop.data()) + "\\" + name + ".lnk").data(), TRUE);
    return SUCCEEDED(result) ? Failure() : MakeError(ErrorNumber::PathFileAccess);
}

std::vector<std::string> StartMenuPrograms(const std::string& fileName) {
    std::vector<std::string> found;
    for (const int menu : {CSIDL_PROGRAMS, CSIDL_COMMON_PROGRAMS}) {
        std::array<char, MAX_PATH> folder{};
        if (SHGetFolderPathA(nullptr, menu, nullptr, SHGFP_TYPE_CURRENT, folder.data()) == S_OK)
            win32::FindTargets(folder.data(), fileName, 0, found);
    }
    return found;
}

}  // namespace quirn
