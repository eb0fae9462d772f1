#include "mainwin/frmmain.h"
#include "mainwin/menurows.h"
#include "platform/headless/headless.h"
#include "platform/settings.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/profiles.h"
#include "tests/testing/userinput.h"

namespace quirn {
namespace {

using namespace test;
using headless::TheWorld;

class MenuTextsTest : public WorldTest {};

TEST_F(MenuTextsTest, NamesShowTheirAmpersandsAndItemsTheirHelp) {
    PutFile(Scratch() + "\\favorite.lst", "Alpha Reach,a.example,5000\r\n-First\r\n");
    SaveSetting("MRUList", "MRU0", "C:\\R&D.QRN");
    SaveSetting("Favourites", "Fav1Name", "Tom & Jerry");
    Program program;
    program.gameFolder = Scratch();
    InitCatalogue(program.profile);
    frmMain window(program);
    window.Load();
    EXPECT_EQ(window.MenuBar()->Find(mnuFileMRU)->caption, "&1 C:\\R&&D.QRN");
    PointAt(window, MenuPart::Item, mnuFile_Import);
    EXPECT_EQ(ControlOf<StatusBar>(window, "").Text(), "Import a SubSpace macro or text file");
    TheWorld().trayIcons.back()->UserPoints(kMouseRightDown);
    EXPECT_EQ(TheWorld().poppedUpMenus.back().menu->Find(mnuPUTrayIcon_Fav)->caption, "Tom && Jerry");
    window.Unload();
}

}  // namespace
}  // namespace quirn
