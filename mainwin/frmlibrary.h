#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/table.h"
#include "platform/timer.h"
#include "profile/library.h"

namespace quirn {

// What the window "Profile Library" asks for and what it can do with the profile at the keyboard, each by its path.
struct LibraryDeeds {
    std::function<LibraryReader()> Read;
    std::function<int(const std::string& path)> FavouriteNumber;  // 1 to 5; 0: it is none
    std::function<bool(const LibraryEntry& entry)> IsInGame;      // the game holds exactly this now
    std::function<void(const std::string&path)> Open, Play, Compare, Rename, CopyForFriend, Versions, Link,
        ShowInFolder, Delete;
    std::function<void(const std::string& path, size_t slot)> MakeFavourite;  // slot counts from 0
    std::function<bool()> canDo;                                              // nothing waits before the main window
};

// The window "Profile Library": all profiles in a table that can be sorted and searched. It reads them a few at a time,
// so that a slow folder freezes nothing, and stays open beside its owner.
class frmLibrary : public Form {
public:
    explicit frmLibrary(LibraryDeeds deeds);

    // current: the profile that is at the keyboard first.
    void Open(Form& owner, const std::string& folder, const std::string& current);
    void Refresh();  // reads everything anew; the current row stays as long as it is there
    void ShowWhatCanBeDone();

private:
    struct Row {
        LibraryEntry entry;
        int favourite = 0;
        bool inGame = false;
    };

    void FillTable();
    std::vector<MenuRow> MoreRows();
    void Form_Load();
    bool Form_KeyDown(int key, bool control);
    void ReadSome();
    void ShowRows();
    bool Holds(const Row& row, const std::string& wanted) const;
    bool ComesBefore(const Row& a, const Row& b) const;
    void SortBy(int column);
    std::string CellText(const Row& row, int column) const;
    const Row* Current() const;
    void Do(const std::function<void(const std::string&)>& deed);
    void MakeFavourite(size_t slot);

    LibraryDeeds deeds_;
    LibraryReader reader_;
    std::vector<Row> rows_;
    std::vector<size_t> shown_;  // indexes of rows
    std::string wanted_;         // the path that becomes current when its row comes
    int sortColumn_ = 0;
    bool sortsDown_ = false;
    Timer readTimer_;

    Label Label1;
    TextBox txtFind;
    Table tblProfiles;
    Label lblCount;
    Button cmdPlay, cmdOpen, cmdCompare, cmdMore, cmdClose;
    Menu mnuMore;
    Anchors anchors_;
};

}  // namespace quirn
