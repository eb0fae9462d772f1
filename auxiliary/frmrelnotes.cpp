#include "auxiliary/frmrelnotes.h"

#include "platform/files.h"
#include "platform/measures.h"
#include "platform/text.h"
#include "platform/version.h"

namespace quirn {

namespace {

// 721 by 506 pixels at 96 dpi.
constexpr int kSmallestWidth = 721 * 15;
constexpr int kSmallestHeight = 506 * 15;

// At the smallest size. The layout counts from the whole window's size, frame included: the text is 300 less wide and
// 1600 less high, the buttons begin 930 above the lower edge and the last one 1750 before the right one.
// clang-format off
//                         left   top  width  height
constexpr Bounds kText{      90,   90, 10515, 5990};
constexpr Bounds kReadme{  5945, 6660,  1440, kButtonHeight};
constexpr Bounds kRevision{7505, 6660,  1440, kButtonHeight};
constexpr Bounds kClose{   9065, 6660,  1440, kButtonHeight};
// clang-format on

}  // namespace

frmRelNotes::frmRelNotes()
    : Form(FormBorder::SizableDialog, kSmallestWidth, kSmallestHeight),
      txtRelNotes(*this, kText, "", TextStyle::ReadPage),
      Command2(*this, kReadme, "readme.txt"),
      Command3(*this, kRevision, "revision.txt"),
      Command1(*this, kClose, "&Close"),
      anchors_(kSmallestWidth, kSmallestHeight) {
    SetCaption(std::string(kTitle) + " Readme/Revision Notes");
    SetMinimumSize(kSmallestWidth, kSmallestHeight);
    SetButtons(nullptr, &Command1);
    txtRelNotes.SetAccessibleName("Notes");
    txtRelNotes.SetFont({"Courier New", 9});
    anchors_.Add(txtRelNotes, Anchor::Grow, Anchor::Grow);
    for (Button* button : {&Command1, &Command2, &Command3}) anchors_.Add(*button, Anchor::Follow, Anchor::Follow);
    onLoad = [this] {
        ShowFile(ProgramFolder() + "\\readme.txt");
        Form_Resize();
    };
    onResize = [this] { Form_Resize(); };
    Command2.onClick = [this] { ShowFile(ProgramFolder() + "\\readme.txt"); };
    Command3.onClick = [this] { ShowFile(ProgramFolder() + "\\revision.txt"); };
    Command1.onClick = [this] { Unload(); };
}

void frmRelNotes::Form_Resize() {
    anchors_.Place(Place().width, Place().height);
}

void frmRelNotes::ShowFile(const std::string& path) {
    const Result<std::string> file = ReadWholeFile(path);
    if (file.Failed()) {
        const char* const what = FileExists(path) ? "read " : "find ";
        txtRelNotes.SetText(std::string("----\r\nERROR - Could not ") + what + path + "\r\n----");
        return;
    }
    std::string text;
    for (std::string_view line : SplitLines(file.Value())) {
        text += line;
        text += "\r\n";
    }
    txtRelNotes.SetText(text);
}

}  // namespace quirn
