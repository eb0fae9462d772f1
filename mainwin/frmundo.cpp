#include "mainwin/frmundo.h"

#include "mainwin/transferwords.h"
#include "platform/measures.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr int kWidth = 6180;
constexpr int kHeight = 2445;

// clang-format off
//                         left   top  width  height
constexpr Bounds kQuestion{ 180,  180,  5820, 3 * kLabelHeight};
constexpr Bounds kBack{     180,  870,  5820, 2 * kLabelHeight};
constexpr Bounds kStay{     180, 1350,  5820, 2 * kLabelHeight};
constexpr Bounds kPutBack{ 1620, 1920,  1380, kButtonHeight};
constexpr Bounds kShow{    3120, 1920,  1380, kButtonHeight};
constexpr Bounds kCancel{  4620, 1920,  1380, kButtonHeight};
// clang-format on

std::string Question(const TransferEntry& entry, const std::string& presentGameFolder) {
    const std::string name = NameInWords(entry);
    std::string text = entry.finished
                           ? "Put back the settings that the game had before " + name + " was transferred?"
                           : "The transfer of " + name + " was not finished. Put back what the game had before it?";
    if (!EqualNoCase(entry.gameFolder, presentGameFolder))
        text += " Files go back into " + DoubleAmpersands(entry.gameFolder) + ".";
    return text;
}

std::string WhatStays(const GameState& changed) {
    if (changed.IsEmpty()) return {};
    return "The game has changed " + WordsFor(changed) + " since then. That stays, unless you tick it under Show.";
}

}  // namespace

frmUndo::frmUndo(const TransferEntry& entry, const Undo& undo, const std::string& presentGameFolder)
    : Form(FormBorder::Dialog, kWidth, kHeight),
      Label1(*this, kQuestion, Question(entry, presentGameFolder)),
      Label2(*this, kBack, "What goes back: " + WordsFor(undo.back) + "."),
      Label3(*this, kStay, WhatStays(undo.changedSince)),
      cmdPutBack(*this, kPutBack, "&Put Back"),
      cmdShow(*this, kShow, "&Show..."),
      cmdCancel(*this, kCancel, "Cancel") {
    SetCaption("Undo Last Transfer");
    SetButtons(&cmdPutBack, &cmdCancel);
    cmdPutBack.SetEnabled(!undo.back.IsEmpty() || !entry.finished);
    cmdPutBack.onClick = [this] { Choose(Choice::PutBack); };
    cmdShow.onClick = [this] { Choose(Choice::Show); };
    cmdCancel.onClick = [this] { Unload(); };
}

frmUndo::Choice frmUndo::Ask(Form& owner) {
    ShowModal(owner);
    return choice_;
}

void frmUndo::Choose(Choice choice) {
    choice_ = choice;
    Unload();
}

}  // namespace quirn
