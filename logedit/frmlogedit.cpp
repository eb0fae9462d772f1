#include "logedit/frmlogedit.h"

#include <algorithm>

#include "auxiliary/menuhelp.h"
#include "logedit/linecolors.h"
#include "logedit/logmenurows.h"
#include "logedit/logsave.h"
#include "logedit/logsettings.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/measures.h"
#include "platform/version.h"
#include "profile/documentnames.h"
#include "profile/splitpath.h"

namespace quirn {

using namespace logmenu;

namespace {

constexpr int kWidth = 12000;
constexpr int kHeight = 9000;
// 730 by 540 pixels at 96 dpi.
constexpr int kSmallestWidth = 730 * 15;
constexpr int kSmallestHeight = 540 * 15;

// The inner size for which the places are meant, here and in the panel of players. The log ends 150 before the right
// edge; the lower block ends 800 above the status bar.
constexpr int kInnerWidth = 11900;
constexpr int kInnerHeight = 8400;

// clang-format off
//                        left   top   width  height
constexpr Bounds kLog{     150,  120, 11600, 5000};
constexpr Bounds kApply{  1920, 6925,  1150, kButtonHeight};
constexpr Bounds kTypes{  4960, 5370,  5100, 1900};
constexpr Grid kBoxes{{    150,  270,  2400, kCheckHeight}, 2450, 262, 6};  // in the frame
// clang-format on

constexpr int kCountPanelWidth = 2700;
constexpr char kLogFilter[] = "All Files (*.*)|*.*|LOG Files (*.log)|*.log|Text Files (*.txt)|*.txt";
constexpr int kLogFiles = 2;  // in the filter

constexpr char kLoaded[] = "Log file has been loaded";
constexpr char kLoadFailed[] = "ERROR loading log file";
constexpr char kSaved[] = "File has been saved";
constexpr char kHowToBegin[] = "Open a log with Ctrl+O, or drop one here.";
constexpr char kAllHidden[] = "All lines are hidden or deleted.";

// "monday.log"; of several the first and the last one. Empty for the filtered lines of no log.
std::string NameOf(const LogPaths& paths) {
    if (paths.empty()) return {};
    const std::string last = SplitPath(paths.back()).File();
    return paths.size() == 1 ? last : SplitPath(paths.front()).File() + " to " + last;
}

}  // namespace

frmLogEdit::frmLogEdit(const std::string& gameFolder, LogEdit& edit)
    : Form(FormBorder::Sizable, kWidth, kHeight),
      gameFolder_(gameFolder),
      edit_(edit),
      menuBar_(MenuRows()),
      mnuLogEditPopup_(LogPopupRows()),
      mnuInExPopup_(PlayersPopupRows()),
      anchors_(kInnerWidth, kInnerHeight),
      progress_(*this, lstLog),
      lstLog(*this, kLog, "Log"),
      players_(*this, edit, anchors_),
      cmdApplyFilter(*this, kApply, "Apply Filter"),
      Frame1(*this, kTypes, "Include Message Types"),
      row_(*this, anchors_),
      StatusBar1(*this, kCountPanelWidth),
      commands_(edit, lstLog, players_, [this] { ShowCounts(); }),
      follow_(*this, edit, lstLog, players_, commands_, row_),
      find_(
          [this](const std::string& text) {
              commands_.FindNext(text);
              ShowFile();
          },
          edit.lastSearch),
      statistics_([this](bool shownOnly) { return commands_.CountPlayers(shownOnly); },
                  [this] { return NameOf(follow_.Paths()); },
                  [this](const std::string& player) { commands_.OnlyPlayer(player); }) {
    for (size_t i = 0; i < kFilterBoxCount; ++i) {
        CheckBox& box = chkFilters.emplace_back(Frame1, kBoxes.Cell(i), kFilterBoxes[i].caption);
        box.onClick = [this] { chkFilters_Click(); };
    }
    SetMinimumSize(kSmallestWidth, kSmallestHeight);
    anchors_.Add(Frame1, Anchor::Stay, Anchor::Follow)
        .Add(lstLog, Anchor::Grow, Anchor::Grow)
        .Add(cmdApplyFilter, Anchor::Stay, Anchor::Follow);
    lstLog.SetFont({.face = "Courier New", .points = 9});
    lstLog.itemText = [this](size_t item) { return edit_.view.Text(item); };
    lstLog.itemData = [this](size_t item) { return edit_.view.Info(item); };
    lstLog.itemMarks = [this](size_t item) { return edit_.view.Marks(item); };
    lstLog.itemColor = [this](size_t item, Color background) -> std::optional<Color> {
        if (!edit_.colorsByType) return std::nullopt;
        return ColorOfType(TypeOf(edit_.view.Info(item)), background);
    };
    lstLog.onMove = [this] { ShowFile(); };
    lstLog.onRightMouseDown = [this] { lstLog_MouseDown(); };
    row_.onText = [this](const std::string& text) { commands_.FilterByText(text); };
    row_.onShowAll = [this] { commands_.ShowAll(); };
    follow_.onFollow = [this](bool follows) { menuBar_.SetChecked(mnuView_Follow, follows); };
    row_.onDown = [this] { lstLog.SetFocus(); };
    players_.onMove = [this] {
        if (edit_.applyAtOnce) ApplyLogFilter();
    };
    players_.onPopUp = [this] { PopUpMenu(mnuInExPopup_, 0); };
    cmdApplyFilter.onClick = [this] { ApplyLogFilter(); };

    SetMenu(menuBar_);
    ShowMenuHelp(*this, StatusBar1, {&menuBar_, &mnuLogEditPopup_, &mnuInExPopup_}, "Close this window");

    onLoad = [this] { Form_Load(); };
    onResize = [this] { Form_Resize(); };
    onUnload = [this] { return Form_Unload(); };
    onKeyDown = [this](int key, bool control) { return Form_KeyDown(key, control); };
    onKeyPress = [this](char character) { players_.KeyPress(character); };
    onDropFiles = [this](const std::vector<std::string>& paths) { OpenLog(InOrderOfWriting(paths)); };
}

// Each time the window opens it starts anew.
void frmLogEdit::Form_Load() {
    edit_.include.Clear();
    edit_.exclude.Clear();
    edit_.view.Clear();
    edit_.view.SetText({});
    players_.Reset();
    commands_.ShowAnew();
    edit_.applyAtOnce = edit_.lineNumbers = edit_.keepDeletedOut = edit_.showUnknown = false;
    for (const int command : {mnuOptions_Apply, mnuOptions_LineNums, mnuEdit_Keep, mnuView_Unknown, mnuView_All})
        menuBar_.SetChecked(command, false);
    row_.Reset();
    follow_.Opened({});
    edit_.chkFilters.fill(1);
    for (CheckBox& box : chkFilters) box.SetValue(1);
    edit_.LogFilterMask = BuildFilterMask(edit_.chkFilters);
    SetCaption(kFullTitle);
    StatusBar1.SetText("");
    StatusBar1.SetSecondText("");

    const Bounds screen = ScreenArea();
    LogSettings settings{Place(), lstLog.FontUsed(), lstLog.ForeColor(), lstLog.BackColor(), false};
    settings.place.left = (screen.width - settings.place.width) / 2;
    settings.place.top = (screen.height - settings.place.height) / 2;
    settings = ReadLogSettings(settings);
    lstLog.SetFont(settings.font);
    lstLog.SetForeColor(settings.foreColor);
    lstLog.SetBackColor(settings.backColor);
    edit_.colorsByType = settings.colorsByType;
    menuBar_.SetChecked(mnuView_Colors, edit_.colorsByType);
    PlaceOnScreen(settings.place);
    ReadLogMRU(edit_.LogMRU);
    RefreshLogMRUMenu();
    Form_Resize();
}

// What is larger than the screen that it lies on begins at that screen's edge: its own lower and right ones would be
// out of reach.
void frmLogEdit::PlaceOnScreen(Bounds place) {
    Move(place);
    const Bounds free = WorkArea(*this);
    if (place.width >= free.width) place.width = free.width, place.left = free.left;
    if (place.height >= free.height) place.height = free.height, place.top = free.top;
    Move(place);
}

void frmLogEdit::Form_Resize() {
    if (!IsMinimized()) anchors_.Place(InnerWidth(), InnerHeight());
}

bool frmLogEdit::Form_Unload() {
    WriteLogSettings({NormalPlace(), lstLog.FontUsed(), lstLog.ForeColor(), lstLog.BackColor(), edit_.colorsByType});
    WriteLogMRU(edit_.LogMRU);
    row_.Reset();
    find_.Unload();
    statistics_.Unload();
    follow_.Opened({});
    return true;
}

bool frmLogEdit::Form_KeyDown(int key, bool control) {
    if (control && key == kKeyEnd && lstLog.HasFocus()) {
        follow_.GoToEnd();
        ShowFile();
        return true;
    }
    if (control) return false;
    if (row_.KeyDown(key)) return true;
    if (key != kKeyDelete || !lstLog.HasFocus()) return false;
    mnuLogEditPopup_Delete_Click();
    return true;
}

// What is deleted must be what the player sees: with nothing selected it is the line that he points at.
void frmLogEdit::lstLog_MouseDown() {
    if (const std::optional<size_t> item = lstLog.Pointed()) {
        if (lstLog.Selection().SelectedCount() == 0) lstLog.Select(*item);
        lstLog.SetCurrent(*item);
        ShowFile();
    }
    PopUpMenu(mnuLogEditPopup_, 0);
}

void frmLogEdit::mnuFile_Open_Click() {
    const auto path = AskOpenFile({.title = "Open",
                                   .filter = kLogFilter,
                                   .filterIndex = kLogFiles,
                                   .folder = gameFolder_,
                                   .fileName = "",
                                   .flags = kHideReadOnly});
    if (path) OpenLog({*path});
}

void frmLogEdit::mnuFile_Several_Click() {
    const std::vector<std::string> paths = AskOpenFiles({.title = "Open Several",
                                                         .filter = kLogFilter,
                                                         .filterIndex = kLogFiles,
                                                         .folder = gameFolder_,
                                                         .fileName = "",
                                                         .flags = kHideReadOnly | kFileMustExist});
    if (!paths.empty()) OpenLog(InOrderOfWriting(paths));
}

void frmLogEdit::mnuFile_SaveAs_Click() {
    const auto path = AskSaveFile({.title = "Save As",
                                   .filter = kLogFilter,
                                   .filterIndex = kLogFiles,
                                   .folder = gameFolder_,
                                   .fileName = kLogSaveName,
                                   .flags = kHideReadOnly | kOverwritePrompt});
    if (!path || !MayReplace(*path)) return;
    // A player who trusts in a file that is not there would lose his work.
    if (Failure failure = SaveFilteredLog(edit_.view, *path)) {
        ShowError(failure);
        return;
    }
    AddToLogMRU(edit_.LogMRU, *path);
    RefreshLogMRUMenu();
    StatusBar1.SetText(kSaved);
}

// One of several logs would then hold the lines of all.
bool frmLogEdit::MayReplace(const std::string& path) const {
    const LogPaths& paths = follow_.Paths();
    if (paths.size() < 2 ||
        std::none_of(paths.begin(), paths.end(), [&](const auto& log) { return IsSameFile(log, path); }))
        return true;
    return ShowMessage("'" + SplitPath(path).File() +
                           "' is one of the logs that are shown.\r\rReplace it by all the lines shown?",
                       kOkCancel | kExclamation) == Answer::Ok;
}

// By value: opening moves the list's entries.
void frmLogEdit::mnuFileMRU_Click(size_t index) {
    OpenLog({std::string(edit_.LogMRU[index])});
}

void frmLogEdit::Toggle(int command, bool& option) {
    option = !option;
    menuBar_.SetChecked(command, option);
}

void frmLogEdit::mnuOptions_LineNums_Click() {
    Toggle(mnuOptions_LineNums, edit_.lineNumbers);
    ApplyLogFilter();
}

void frmLogEdit::mnuSearch_Find_Click() {
    find_.Open(*this);
}

void frmLogEdit::FindAgain(bool upwards) {
    if (edit_.lastSearch.empty()) mnuSearch_Find_Click();
    else if (upwards) commands_.FindPrevious(edit_.lastSearch);
    else commands_.FindNext(edit_.lastSearch);
    ShowFile();
}

void frmLogEdit::mnuView_Statistics_Click() {
    statistics_.Open(*this);
}

void frmLogEdit::mnuView_Unknown_Click() {
    Toggle(mnuView_Unknown, edit_.showUnknown);
    commands_.ShowUnknown();
}

void frmLogEdit::mnuView_Colors_Click() {
    Toggle(mnuView_Colors, edit_.colorsByType);
    lstLog.ItemsChanged();
}

void frmLogEdit::mnuInExPopup_Only_Click() {
    players_.mnuInExPopup_Only_Click();
    commands_.ApplyPlayers();
}

void frmLogEdit::mnuLogEditPopup_Delete_Click() {
    commands_.Delete();
}

void frmLogEdit::RefreshLogMRUMenu() {
    bool any = false;
    for (size_t i = 0; i < edit_.LogMRU.size(); ++i) {
        const int command = mnuFileMRU + static_cast<int>(i);
        const auto caption = LogMRUCaption(edit_.LogMRU, i);
        if (caption) menuBar_.SetCaption(command, *caption);
        menuBar_.SetVisible(command, caption.has_value());
        any |= caption.has_value();
    }
    menuBar_.SetVisible(mnuFileBarMRU, any);
}

void frmLogEdit::chkFilters_Click() {
    for (size_t i = 0; i < kFilterBoxCount; ++i) edit_.chkFilters[i] = chkFilters[i].Value();
    edit_.LogFilterMask = BuildFilterMask(edit_.chkFilters);
    if (edit_.applyAtOnce) ApplyLogFilter();
}

void frmLogEdit::OpenLog(const LogPaths& paths) {
    bool begun = false;
    const ParseSteps steps{
        .onReading =
            [&](uint64_t size) {
                begun = true;
                players_.Empty();
                lstLog.SetCount(0, 0);
                progress_.Show("Reading && Parsing Log File...", size);
            },
        .onProgress = [&](uint64_t done) { progress_.SetValue(done); },
        .onPlayers =
            [&](size_t highest) {
                progress_.Show("Populating Player List...", highest);
                DoPaintEvents();
                progress_.SetValue(highest);
            },
        .onEnd = [&] { progress_.Hide(); },
    };
    const ParseResult result = ParseLogFile(edit_, paths, steps);
    if (!result.missing.empty())
        ShowMessage("ERROR - Could not find log file named '" + result.missing + "'", kCritical);
    ShowError(result.failure);
    // Without a file, or with one that cannot be opened, the lists stay as they are.
    if (begun) {
        players_.Show();
        commands_.ShowAnew();
    }
    if (!result.Loaded()) {
        StatusBar1.SetText(kLoadFailed);
        return;
    }
    follow_.Opened(paths);
    for (const std::string& path : paths) AddToLogMRU(edit_.LogMRU, path);
    RefreshLogMRUMenu();
    SetCaption(std::string(kFullTitle) + " - " + NameOf(paths));
    StatusBar1.SetText(kLoaded);
    ApplyLogFilter();
}

void frmLogEdit::ApplyLogFilter() {
    const size_t highest = edit_.LogLines->LineCount() - 1;
    progress_.Show("Applying Filter...", highest);
    const Failure failure = quirn::ApplyLogFilter(edit_);
    progress_.SetValue(highest);
    progress_.Hide();
    if (failure) ShowError(failure);
    else commands_.ShowAnew();
}

// In the list that has the keyboard; from the menu, the lines when none has it.
void frmLogEdit::SelectAll() {
    auto* const list = dynamic_cast<VirtualList*>(ActiveControl());
    (list != nullptr ? *list : lstLog).SelectAll();
}

void frmLogEdit::CopySelected() {
    if (!players_.HasFocus()) return CopyLines();
    const std::string text = players_.SelectedText();
    if (!text.empty()) ShowError(SetClipboardText(text));
}

void frmLogEdit::CopyLines() {
    const std::string text = edit_.view.SelectedText(lstLog.Selection());
    if (!text.empty()) ShowError(SetClipboardText(text));
}

void frmLogEdit::ShowCounts() {
    StatusBar1.SetSecondText(edit_.view.CountText());
    menuBar_.SetChecked(mnuView_All, edit_.view.ShowsAll());
    lstLog.SetEmptyText(commands_.HasLog() ? kAllHidden : kHowToBegin);
    row_.ShowCounts(edit_.view);
    statistics_.LinesChanged();
    ShowFile();
}

void frmLogEdit::ShowFile() {
    row_.ShowFile(commands_.FileInSight());
}

}  // namespace quirn
