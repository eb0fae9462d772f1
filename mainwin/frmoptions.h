#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "mainwin/program.h"
#include "platform/form.h"

namespace quirn {

// The dialog "Options": the two folders and the five favourites. Its changes reach the program by Apply and OK only.
class frmOptions : public Form {
public:
    // applied is called after each commit, to build the tray menu anew.
    frmOptions(Program& program, std::function<void()> applied);

    enum Tab { kFileLocations = 0, kFavourites = 1 };
    void SelectTab(Tab tab) { SSTab1.SetTab(tab); }

private:
    void Form_Load();
    void cmdBrowse0_Click();
    void cmdUseIt_Click();
    void cmdBrowse1_Click();
    void SetGameLocation(const std::string& folder);
    void ShowLocations();
    void cmdAddFav_Click();
    // place: the row that takes it; none: the first that is empty.
    void AddFavourite(const std::string& folder, const std::string& name, std::optional<int> place = {});
    void lstFavourites_DblClick(int row);
    void ShowRowCommands();
    void cmdRemoveFav_Click();
    void cmdClearFav_Click();
    void ClearRow(int row);
    void Commit();
    void Changed();

    Program& program_;
    std::function<void()> applied_;
    std::string otherGame_;             // the folder of a game that has been found; empty: none
    std::array<std::string, 5> paths_;  // of the favourites, while the dialog is open
    bool subLocChanged_ = false;        // set by Browse only: typing into a box is not committed, on purpose
    bool qrnLocChanged_ = false;

    TabStrip SSTab1;
    TabPage locationsPage;
    Label Label1;
    TextBox txtSubLoc;
    Button cmdBrowse0;
    Label lblFound;
    Button cmdUseIt;
    Label Label2;
    TextBox txtQRNLoc;
    Button cmdBrowse1;
    Label lblTyped;
    TabPage favouritesPage;
    ListBox lstFavourites;
    Button cmdAddFav, cmdRemoveFav, cmdClearFav;
    Button cmdOK, cmdCancel, cmdApply;
};

}  // namespace quirn
