#include "platform/dialogs.h"

#include <windows.h>

#include <cderr.h>  // these need windows.h first
#include <commdlg.h>

#include <algorithm>

#include "platform/version.h"

namespace quirn {

namespace {

constexpr DWORD kLongestPath = 32768;

std::string CurrentFolder() {
    std::string folder(kLongestPath, '\0');
    folder.resize(GetCurrentDirectoryA(kLongestPath, folder.data()));
    return folder;
}

using FileFunction = BOOL(WINAPI*)(OPENFILENAMEA*);

std::optional<std::string> AskFile(const FileDialog& dialog, FileFunction ask) {
    std::string filter = dialog.filter + '|';
    std::replace(filter.begin(), filter.end(), '|', '\0');
    std::string path = dialog.fileName;
    path.resize(kLongestPath);
    OPENFILENAMEA record{};
    record.lStructSize = sizeof(record);
    record.hwndOwner = GetActiveWindow();
    record.lpstrFilter = filter.c_str();
    record.nFilterIndex = static_cast<DWORD>(dialog.filterIndex);
    record.lpstrFile = path.data();
    record.nMaxFile = kLongestPath;
    record.lpstrInitialDir = dialog.folder.empty() ? nullptr : dialog.folder.c_str();
    record.lpstrTitle = dialog.title.empty() ? nullptr : dialog.title.c_str();
    record.Flags = dialog.flags | OFN_EXPLORER | OFN_NOCHANGEDIR;
    // The system promises to leave the current folder alone only in the dialog to save.
    const std::string folder = CurrentFolder();
    BOOL chosen = ask(&record);
    if (!chosen && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
        path[0] = '\0';
        chosen = ask(&record);
    }
    SetCurrentDirectoryA(folder.c_str());
    if (!chosen) return std::nullopt;
    return path.c_str();
}

}  // namespace

Answer ShowMessage(const std::string& text, unsigned style, const std::string& caption) {
    const HWND owner = GetActiveWindow();
    // Without an owner the box would open behind other programs and leave hidden windows of this one usable.
    if (owner == nullptr) style |= MB_SETFOREGROUND | MB_TASKMODAL;
    switch (MessageBoxA(owner, text.c_str(), caption.empty() ? kTitle : caption.c_str(), style)) {
        case IDOK: return Answer::Ok;
        case IDYES: return Answer::Yes;
        case IDNO: return Answer::No;
        default: return Answer::Cancel;
    }
}

std::optional<std::string> AskOpenFile(const FileDialog& dialog) {
    return AskFile(dialog, GetOpenFileNameA);
}

std::optional<std::string> AskSaveFile(const FileDialog& dialog) {
    return AskFile(dialog, GetSaveFileNameA);
}

}  // namespace quirn
