#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "logedit/logstatistics.h"
#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/table.h"
#include "platform/timer.h"

namespace quirn {

// The window "Player Statistics" of the log editor: who speaks, kills and dies how often.
class frmLogStatistics : public Form {
public:
    // count: the statistics of the whole log or of the lines that are shown. logName: which log that is. only: the
    // player is to be seen alone.
    frmLogStatistics(std::function<std::vector<PlayerStatistics>(bool shownOnly)> count,
                     std::function<std::string()> logName, std::function<void(const std::string& player)> only);

    void Open(Form& owner);
    void LinesChanged();  // counts them anew, a moment later, while it is open

private:
    void Form_Load();
    bool Form_KeyDown(int key, bool control);
    void CountAnew();
    void ShowRows(const std::optional<std::string>& selected);
    void ShowSelected();
    std::optional<std::string> SelectedPlayer() const;
    void SortBy(int column);
    bool ComesBefore(const PlayerStatistics& a, const PlayerStatistics& b) const;
    std::string CellText(const PlayerStatistics& player, int column) const;
    double Bar(const PlayerStatistics& player, int column) const;
    void cmdOnly_Click();
    void CopyRows();

    std::function<std::vector<PlayerStatistics>(bool shownOnly)> count_;
    std::function<std::string()> logName_;
    std::function<void(const std::string& player)> only_;
    std::vector<PlayerStatistics> players_;
    std::vector<size_t> shown_;  // indexes of players
    size_t allLines_ = 0;
    size_t mostLines_ = 0;
    double bestRatio_ = 0;
    Timer pause_;
    int sortColumn_;
    bool sortsDown_ = true;

    Label Label1;
    OptionGroup source_;
    OptionButton optWhole, optShown;
    Label Label2;
    TextBox txtFind;
    Table tblPlayers;
    Button cmdOnly, cmdClose;
    Anchors anchors_;
};

}  // namespace quirn
