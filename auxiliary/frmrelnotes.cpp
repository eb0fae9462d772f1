#include "auxiliary/frmrelnotes.h"

#include "platform/files.h"
#include "platform/text.h"
#include "platform/version.h"

namespace quirn {

namespace {

// 721 by 506 pixels at 96 dpi.
constexpr int kSmallestWidth = 721 * 15;
constexpr int kSmallestHeight = 506 * 15;

// The layout counts from the whole window's size, frame included.
constexpr int kMargin = 90;
constexpr int kBelowText = 1600;
constexpr int kBesideText = 300;
constexpr int kButtonsFromBottom = 930;
constexpr int kCloseFromRight = 1750;
constexpr Bounds kButton{0, 0, 1440, 345};
constexpr int kButtonStep = 1560;

}  // namespace

frmRelNotes::frmRelNotes()
    : Form(FormBorder::SizableDialog, kSmallestWidth, kSmallestHeight),
      txtRelNotes(*this, {kMargin, kMargin, kSmallestWidth - kBesideText, kSmallestHeight - kBelowText}, "",
                  TextStyle::ReadPage),
      Command2(*this, kButton, "readme.txt"),
      Command3(*this, kButton, "revision.txt"),
      Command1(*this, kButton, "&Close") {
    SetCaption(std::string(kTitle) + " Readme/Revision Notes");
    SetMinimumSize(kSmallestWidth, kSmallestHeight);
    SetButtons(nullptr, &Command1);
    txtRelNotes.SetFont({"Courier New", 9});
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
    const int width = Place().width;
    const int height = Place().height;
    txtRelNotes.Move({kMargin, kMargin, width - kBesideText, height - kBelowText});
    // The three stand side by side and end with the rightmost.
    int left = width - kCloseFromRight;
    for (Button* button : {&Command1, &Command3, &Command2}) {
        button->Move({left, height - kButtonsFromBottom, kButton.width, kButton.height});
        left -= kButtonStep;
    }
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
