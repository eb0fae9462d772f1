#include "platform/dialogs.h"

#include <windows.h>

#include <cderr.h>  // these need windows.h first
#include <commdlg.h>
#include <dlgs.h>

#include <algorithm>

#include "platform/version.h"
#include "platform/win32/handle.h"
#include "platform/win32/metrics.h"
#include "platform/win32/window.h"

namespace quirn {

namespace {

using win32::kLongestPath;

constexpr int kPointsPerInch = 72;
constexpr int kTenthsPerPoint = 10;

std::string CurrentFolder() {
    std::string folder(kLongestPath, '\0');
    folder.resize(GetCurrentDirectoryA(kLongestPath, folder.data()));
    return folder;
}

// The window that waits for a dialog: the active one of this program or, while another program is in front, the
// foremost that can be used.
HWND DialogOwner() {
    const HWND active = GetActiveWindow();
    return active != nullptr ? active : win32::ForemostAnswerable(GetCurrentThreadId());
}

using FileFunction = BOOL(WINAPI*)(OPENFILENAMEA*);

constexpr size_t kManyPaths = 32000;  // bytes; this is the end for the system's dialog

// What the system wrote into a buffer of so many bytes; nothing when there is no answer.
std::optional<std::string> AskFile(const FileDialog& dialog, FileFunction ask, size_t room = kLongestPath) {
    std::string filter = dialog.filter + '|';
    std::replace(filter.begin(), filter.end(), '|', '\0');
    std::string path = dialog.fileName;
    path.resize(room);
    OPENFILENAMEA record{};
    record.lStructSize = sizeof(record);
    record.hwndOwner = DialogOwner();
    record.lpstrFilter = filter.c_str();
    record.nFilterIndex = static_cast<DWORD>(dialog.filterIndex);
    record.lpstrFile = path.data();
    record.nMaxFile = static_cast<DWORD>(room);
    record.lpstrInitialDir = dialog.folder.empty() ? nullptr : dialog.folder.c_str();
    record.lpstrDefExt = dialog.ending;
    record.lpstrTitle = dialog.title.empty() ? nullptr : dialog.title.c_str();
    record.Flags = dialog.flags | OFN_EXPLORER | OFN_NOCHANGEDIR;
    // The system promises to leave the current folder alone only in the dialog to save.
    const std::string folder = CurrentFolder();
    const win32::OneQuestion question(record.hwndOwner);
    BOOL chosen = ask(&record);
    if (!chosen && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
        path[0] = '\0';
        chosen = ask(&record);
    }
    SetCurrentDirectoryA(folder.c_str());
    if (!chosen && CommDlgExtendedError() == FNERR_BUFFERTOOSMALL)
        ShowMessage("So many files cannot be opened at once.", kExclamation);
    if (!chosen) return std::nullopt;
    return path;
}

// One path, or the folder's and the names of the files in it, each ended by a NUL; another NUL ends the list.
std::vector<std::string> PathsOf(const std::string& answer) {
    std::vector<std::string> paths;
    for (const char* name = answer.c_str(); *name != '\0'; name += paths.back().size() + 1) paths.emplace_back(name);
    if (paths.size() < 2) return paths;
    std::string folder = paths.front();
    if (!folder.ends_with('\\')) folder += '\\';
    paths.erase(paths.begin());
    for (std::string& path : paths)
        if (path.find_first_of(":\\") == std::string::npos) path.insert(0, folder);
    return paths;
}

std::optional<std::string> FirstPath(const std::optional<std::string>& answer) {
    return answer ? std::optional<std::string>(answer->c_str()) : std::nullopt;
}

// A font has no colour here: the list of colours that comes with underline and strikeout would promise one.
UINT_PTR CALLBACK HideColors(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_INITDIALOG)
        for (const int control : {stc4, cmb4}) ShowWindow(GetDlgItem(dialog, control), SW_HIDE);
    return 0;
}

}  // namespace

Answer ShowMessage(const std::string& text, unsigned style, const std::string& caption) {
    const HWND owner = GetActiveWindow();
    // Without an owner the box would open behind other programs and leave hidden windows of this one usable.
    if (owner == nullptr) style |= MB_SETFOREGROUND | MB_TASKMODAL;
    const win32::OneQuestion question(owner);
    switch (MessageBoxA(owner, text.c_str(), caption.empty() ? kTitle : caption.c_str(), style)) {
        case IDOK: return Answer::Ok;
        case IDYES: return Answer::Yes;
        case IDNO: return Answer::No;
        default: return Answer::Cancel;
    }
}

std::optional<std::string> AskOpenFile(const FileDialog& dialog) {
    return FirstPath(AskFile(dialog, GetOpenFileNameA));
}

std::optional<std::string> AskSaveFile(const FileDialog& dialog) {
    return FirstPath(AskFile(dialog, GetSaveFileNameA));
}

std::vector<std::string> AskOpenFiles(const FileDialog& dialog) {
    FileDialog many = dialog;
    many.flags |= kManyFiles;
    const std::optional<std::string> answer = AskFile(many, GetOpenFileNameA, kManyPaths);
    return answer ? PathsOf(*answer) : std::vector<std::string>();
}

std::optional<Font> AskFont(const Font& current) {
    LOGFONTA description{};
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    // The face that is really used, which the list of fonts has, should another one stand in for a missing font.
    const HGDIOBJ before = SelectObject(screen, win32::FontFor(current, dpi));
    GetTextFaceA(screen, LF_FACESIZE, description.lfFaceName);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    description.lfHeight = -MulDiv(current.points, dpi, kPointsPerInch);
    description.lfWeight = current.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = current.italic;
    description.lfUnderline = current.underline;
    description.lfStrikeOut = current.strikeout;
    description.lfCharSet = DEFAULT_CHARSET;
    CHOOSEFONTA record{};
    record.lStructSize = sizeof(record);
    record.hwndOwner = DialogOwner();
    record.lpLogFont = &description;
    record.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT | CF_FORCEFONTEXIST | CF_ENABLEHOOK;
    record.lpfnHook = HideColors;
    const win32::OneQuestion question(record.hwndOwner);
    if (!ChooseFontA(&record)) return std::nullopt;
    return Font{.face = description.lfFaceName,
                .points = std::max(record.iPointSize / kTenthsPerPoint, 1),
                .bold = description.lfWeight >= FW_SEMIBOLD,
                .italic = description.lfItalic != FALSE,
                .underline = description.lfUnderline != FALSE,
                .strikeout = description.lfStrikeOut != FALSE};
}

std::optional<Color> AskColor(Color current) {
    static COLORREF custom[16];  // the player's own ones, kept from one time to the next
    CHOOSECOLORA record{};
    record.lStructSize = sizeof(record);
    record.hwndOwner = DialogOwner();
    record.rgbResult = current;
    record.lpCustColors = custom;
    record.Flags = CC_RGBINIT | CC_FULLOPEN;
    const win32::OneQuestion question(record.hwndOwner);
    if (!ChooseColorA(&record)) return std::nullopt;
    return record.rgbResult;
}

}  // namespace quirn
