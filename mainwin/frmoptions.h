#pragma once

#include <array>
#include <functional>
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
    void cmdBrowse1_Click();
    void cmdAddFav_Click();
    void AddFavourite();
    void cmdRemoveFav_Click();
    void cmdClearFav_Click();
    void ClearRow(int row);
    void Commit();

    Program& program_;
    std::function<void()> applied_;
    std::array<std::string, 5> paths_;  // of the favourites, while the dialog is open
    bool subLocChanged_ = false;        // set by Browse only: typing into a box is not committed, on purpose
    bool qrnLocChanged_ = false;

    TabStrip SSTab1;
    TabPage locationsPage;
    Label Label1;
    TextBox txtSubLoc;
    Button cmdBrowse0;
    Label Label2;
    TextBox txtQRNLoc;
    Button cmdBrowse1;
    TabPage favouritesPage;
    ListBox lstFavourites;
    Button cmdAddFav, cmdRemoveFav, cmdClearFav;
    Button cmdOK, cmdCancel, cmdApply;
};

}  // namespace quirn
