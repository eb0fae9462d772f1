#include "mainwin/frmmain.h"

#include "game/settingsstore.h"
#include "mainwin/appsettings.h"
#include "platform/files.h"
#include "platform/version.h"

namespace quirn {

namespace {

constexpr int kWidth = 8748;
constexpr int kHeight = 6456;

constexpr char kGameSettingsLabel[] = "<current SS settings>";

}  // namespace

frmMain::frmMain(Program& program) : Form(FormBorder::Fixed, kWidth, kHeight), program_(program) {
    onLoad = [this] { Form_Load(); };
    onUnload = [this] { return Form_Unload(); };
}

void frmMain::Form_Load() {
    program_.helpFile = ProgramFolder() + "\\QUIRN.HLP";
    Move(ReadMainPlace(Place()));
    ReadLists(program_);
    documentLabel_ = kGameSettingsLabel;
    UpdateCaption();
    ReadProfileFromGame(program_.profile, program_.gameFolder);
    if (program_.quiet) Hide();
}

bool frmMain::Form_Unload() {
    // A minimised window keeps nothing, on purpose, not even the recent files and favourites.
    if (!IsMinimized()) WriteMainSettings(program_, Place());
    program_.ending = true;
    return true;
}

// A second copy finds the first by the start of this text.
void frmMain::UpdateCaption() { SetCaption(VersionTitle() + " - " + documentLabel_); }

}  // namespace quirn
