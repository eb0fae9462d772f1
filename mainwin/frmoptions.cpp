#include "mainwin/frmoptions.h"

#include <algorithm>

#include "game/findgame.h"
#include "mainwin/favourites.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/measures.h"
#include "platform/text.h"
#include "profile/documentnames.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr int kWidth = 6150;
constexpr int kHeight = 3555;

// clang-format off
//                         left   top  width  height
constexpr Bounds kTabs{     120,  120,  5910, 2850};
constexpr Bounds kOk{      1650, 3090,  1380, kButtonHeight};
constexpr Bounds kCancel{  3150, 3090,  1380, kButtonHeight};
constexpr Bounds kApply{   4650, 3090,  1380, kButtonHeight};
// On the page "File Locations":
constexpr Bounds kSubLabel{ 180,  240,  5400, kLabelHeight};
constexpr Bounds kSubLoc{   180,  480,  4200,  300};
constexpr Bounds kBrowse0{ 4500,  450,  1140, kButtonHeight};
constexpr Bounds kFound{    180,  840,  4200, 2 * kLabelHeight};
constexpr Bounds kUseIt{   4500,  855,  1140, kButtonHeight};
constexpr Bounds kQrnLabel{ 180, 1350,  5400, kLabelHeight};
constexpr Bounds kQrnLoc{   180, 1590,  4200,  300};
constexpr Bounds kBrowse1{ 4500, 1560,  1140, kButtonHeight};
constexpr Bounds kTyped{    180, 1950,  4200, kLabelHeight};
// On the page "Favourites":
constexpr Bounds kList{     180,  240,  4200, 1815};
constexpr Bounds kAdd{     4500,  240,  1140, kButtonHeight};
constexpr Bounds kRemove{  4500,  690,  1140, kButtonHeight};
constexpr Bounds kClear{   4500, 1140,  1140, kButtonHeight};
// clang-format on

// An empty folder would stand for the root of the current drive.
std::string LocationIn(const TextBox& box) {
    return Trim(box.Text()).empty() ? kNotSet : box.Text();
}

constexpr char kTypedText[] = "A typed folder is not kept: use Browse.";

std::string InWords(const GamePlace& place) {
    if (!place.program) return "There is no subspace.exe.";
    if (!place.zones) return "Found: subspace.exe, but no favorite.lst";
    return "Found: subspace.exe, " + std::to_string(*place.zones) + (*place.zones == 1 ? " zone" : " zones");
}

}  // namespace

frmOptions::frmOptions(Program& program, std::function<void()> applied)
    : Form(FormBorder::Dialog, kWidth, kHeight),
      program_(program),
      applied_(std::move(applied)),
      SSTab1(*this, kTabs),
      locationsPage(SSTab1, "File Locations"),
      Label1(locationsPage, kSubLabel, "Location of   Subspace.exe :"),
      txtSubLoc(locationsPage, kSubLoc, kNotSet),
      cmdBrowse0(locationsPage, kBrowse0, "Browse..."),
      lblFound(locationsPage, kFound, "", Alignment::Left, Label::kShowsData),
      cmdUseIt(locationsPage, kUseIt, "Use It"),
      Label2(locationsPage, kQrnLabel, "Default location of QRN files :"),
      txtQRNLoc(locationsPage, kQrnLoc, kNotSet),
      cmdBrowse1(locationsPage, kBrowse1, "Browse..."),
      lblTyped(locationsPage, kTyped, ""),
      favouritesPage(SSTab1, "Favourites"),
      lstFavourites(favouritesPage, kList, ListStyle::Extended),
      cmdAddFav(favouritesPage, kAdd, "Add"),
      cmdRemoveFav(favouritesPage, kRemove, "Remove"),
      cmdClearFav(favouritesPage, kClear, "Clear All"),
      cmdOK(*this, kOk, "OK"),
      cmdCancel(*this, kCancel, "Cancel"),
      cmdApply(*this, kApply, "Apply") {
    SetCaption("Options");
    SetButtons(&cmdOK, &cmdCancel);
    lstFavourites.SetAccessibleName("Favourites");
    onLoad = [this] { Form_Load(); };
    txtSubLoc.onChange = [this] {
        if (subLocChanged_) Changed();
        ShowLocations();
    };
    txtQRNLoc.onChange = [this] {
        if (qrnLocChanged_) Changed();
        ShowLocations();
    };
    cmdUseIt.onClick = [this] { cmdUseIt_Click(); };
    cmdBrowse0.onClick = [this] { cmdBrowse0_Click(); };
    cmdBrowse1.onClick = [this] { cmdBrowse1_Click(); };
    lstFavourites.onClick = [this] { ShowRowCommands(); };
    lstFavourites.onDoubleClick = [this](int row) { lstFavourites_DblClick(row); };
    cmdAddFav.onClick = [this] { cmdAddFav_Click(); };
    cmdRemoveFav.onClick = [this] { cmdRemoveFav_Click(); };
    cmdClearFav.onClick = [this] { cmdClearFav_Click(); };
    cmdApply.onClick = [this] { Commit(); };
    cmdCancel.onClick = [this] { Unload(); };
    cmdOK.onClick = [this] {
        Commit();
        Unload();
    };
}

void frmOptions::Form_Load() {
    txtSubLoc.SetText(program_.gameFolder);
    txtQRNLoc.SetText(program_.qrnFolder);
    std::vector<std::string> rows;
    for (size_t i = 0; i < program_.favourites.size(); ++i) {
        rows.push_back(program_.favourites[i].name);
        paths_[i] = program_.favourites[i].path;
    }
    lstFavourites.SetItems(std::move(rows));
    if (!LookForGame(program_.gameFolder).IsWhole()) otherGame_ = FindGame();
    cmdApply.SetEnabled(false);
    ShowLocations();
    ShowRowCommands();
}

// What is typed into the first box counts once Browse has been used.
void frmOptions::ShowLocations() {
    const bool typed = !subLocChanged_ && txtSubLoc.Text() != program_.gameFolder;
    const GamePlace place = typed ? GamePlace() : LookForGame(txtSubLoc.Text());
    const bool other = !place.IsWhole() && !otherGame_.empty();
    const std::string text = typed ? kTypedText : other ? "Found a game in " + otherGame_ : InWords(place);
    lblFound.SetText(text);
    lblFound.SetToolTip(text);  // a long path is cut
    cmdUseIt.SetVisible(other);
    cmdUseIt.SetToolTip(otherGame_);
    lblTyped.SetText(!qrnLocChanged_ && txtQRNLoc.Text() != program_.qrnFolder ? kTypedText : "");
}

void frmOptions::ShowRowCommands() {
    const auto isSet = [](const std::string& path) { return !path.empty(); };
    cmdRemoveFav.SetEnabled(!lstFavourites.SelectedItems().empty());
    cmdClearFav.SetEnabled(std::any_of(paths_.begin(), paths_.end(), isSet));
}

void frmOptions::Changed() {
    cmdApply.SetEnabled(true);
}

void frmOptions::SetGameLocation(const std::string& folder) {
    txtSubLoc.SetText(folder);
    subLocChanged_ = true;
    Changed();
    ShowLocations();
}

void frmOptions::cmdUseIt_Click() {
    SetGameLocation(otherGame_);
    cmdOK.SetFocus();
}

void frmOptions::cmdBrowse0_Click() {
    FileDialog dialog;
    dialog.title = "Locate Subspace.EXE";
    dialog.filter = "EXE Files (*.exe)|*.exe";
    dialog.folder = ProgramFolder();
    dialog.fileName = kGameProgram;
    dialog.flags = kHideReadOnly | kPathMustExist | kFileMustExist;
    if (const auto chosen = AskOpenFile(dialog)) SetGameLocation(SplitPath(*chosen).Folder());
}

// The player picks any file in the wanted folder; it need not exist.
void frmOptions::cmdBrowse1_Click() {
    FileDialog dialog;
    dialog.title = "Default QRN File Location";
    dialog.filter = "Pick Any File|*.*";
    dialog.folder = txtQRNLoc.Text();
    dialog.fileName = "AnyFile";
    dialog.flags = kHideReadOnly;
    if (const auto chosen = AskOpenFile(dialog)) {
        txtQRNLoc.SetText(SplitPath(*chosen).Folder());
        qrnLocChanged_ = true;
        Changed();
        ShowLocations();
    }
}

void frmOptions::cmdAddFav_Click() {
    if (FirstEmptyRow(lstFavourites.Items()) < 0) {
        ShowMessage("No room to add more. Remove one first.", kExclamation);
        return;
    }
    AddFavourite(program_.qrnFolder, "*.qrn");
}

// An empty row takes a favourite at its own place; the open profile is the first choice.
void frmOptions::lstFavourites_DblClick(int row) {
    if (row < 0 || !lstFavourites.Items()[static_cast<size_t>(row)].starts_with('<')) return;
    const std::string& current = program_.CurrentFile;
    if (IsUntitled(current)) AddFavourite(program_.qrnFolder, "*.qrn", row);
    else AddFavourite(SplitPath(current).Folder(), SplitPath(current).File(), row);
}

void frmOptions::AddFavourite(const std::string& folder, const std::string& name, std::optional<int> place) {
    FileDialog dialog;
    dialog.title = "Add Favourite QRN File";
    dialog.filter = "QRN Files|*.qrn";
    dialog.folder = folder;
    dialog.fileName = name;
    dialog.flags = kHideReadOnly | kPathMustExist | kFileMustExist;
    const auto chosen = AskOpenFile(dialog);
    if (!chosen) return;
    const int row = place.value_or(FirstEmptyRow(lstFavourites.Items()));
    lstFavourites.SetItem(row, FavouriteName(*chosen));
    paths_[static_cast<size_t>(row)] = *chosen;
    Changed();
    ShowRowCommands();
}

void frmOptions::cmdRemoveFav_Click() {
    for (const int row : lstFavourites.SelectedItems()) ClearRow(row);
    ShowRowCommands();
}

void frmOptions::cmdClearFav_Click() {
    for (int row = 0; row < static_cast<int>(paths_.size()); ++row) ClearRow(row);
    ShowRowCommands();
}

void frmOptions::ClearRow(int row) {
    lstFavourites.SetItem(row, EmptyFavouriteName(static_cast<size_t>(row)));
    paths_[static_cast<size_t>(row)].clear();
    Changed();
}

void frmOptions::Commit() {
    if (subLocChanged_) program_.gameFolder = LocationIn(txtSubLoc);
    if (qrnLocChanged_) program_.qrnFolder = LocationIn(txtQRNLoc);
    for (size_t i = 0; i < paths_.size(); ++i) program_.favourites[i] = {lstFavourites.Items()[i], paths_[i]};
    applied_();
    cmdApply.SetEnabled(false);
    ShowLocations();
}

}  // namespace quirn
