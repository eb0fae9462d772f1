#pragma once

// The numbers of the commands in the log editor's menu bar and its two pop-up menus. The rows stand in logmenurows.cpp.
namespace quirn {

// The main window's menu has some of these names too.
namespace logmenu {

enum Command : int {
    mnuFile = 1,
    mnuFile_Open,
    mnuFile_SaveAs,
    mnuFileBar1,
    mnuFileMRU,  // the first of five
    mnuFileBarMRU = mnuFileMRU + 5,
    mnuFile_Close,
    mnuOptions,
    mnuOptions_Font,
    mnuOptions_Color,
    mnuOptions_Color_Foreground,
    mnuOptions_Color_Background,
    mnuOptions_Apply,
    mnuOptions_LineNums,
    mnuSearch,
    mnuSearch_Find,
    mnuLogEditPopup,
    mnuLogEditPopup_Delete,
    mnuLogEditPopup_Font,
    mnuInExPopup,
    mnuInExPopup_All,
    mnuInExPopup_Invert,
    mnuSearch_Next,
    mnuSearch_Previous,
    mnuEdit,
    mnuEdit_Undo,
    mnuEdit_Redo,
    mnuEditBarCopy,
    mnuEdit_Copy,
    mnuEdit_All,
    mnuEditBarKeep,
    mnuEdit_Keep,
    mnuView,
    mnuView_Text,
    mnuView_All,
    mnuViewBarUnknown,
    mnuView_Unknown,
    mnuLogEditPopupBarCopy,
    mnuLogEditPopup_Copy,
    mnuLogEditPopup_Only,
    mnuLogEditPopup_Hide,
    mnuLogEditPopup_Everyone,
    mnuInExPopup_Only,
    mnuView_Statistics,
    mnuView_Reload,
    mnuView_Follow,
    mnuView_Colors,
    mnuFile_Several,
    mnuView_Previous,
    mnuView_Next,
    mnuViewBarLogs,
    mnuViewBarColors,
};

}  // namespace logmenu

}  // namespace quirn
