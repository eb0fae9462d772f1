#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"

// Dialogs that a test answers in advance. They take the place of the real ones in the Windows tests too.
namespace quirn::headless {

struct MessageBox {
    std::string text;
    unsigned style = kPlain;
    Answer answer = Answer::Ok;
    std::string caption;
};

// Boxes come in the order in which they were expected.
void ExpectMessageBox(MessageBox box);

// The boxes that were expected and have not come; forgets them.
std::vector<MessageBox> TakeMissingBoxes();

// The next file dialog to open or to save is answered so; nothing means that the player cancels. An empty title fits
// any title.
void ExpectOpenFile(const std::string& title, std::optional<std::string> answer);
void ExpectSaveFile(const std::string& title, std::optional<std::string> answer);
void ExpectOpenFiles(const std::string& title, std::vector<std::string> answer);

// How many expected file dialogs have not come; forgets them.
size_t TakeMissingFileDialogs();

// The same for the choosers of fonts and colours.
void ExpectFont(std::optional<Font> answer);
void ExpectColor(std::optional<Color> answer);
size_t TakeMissingChoosers();
const Font& LastFontAsked();  // what they were preset with
Color LastColorAsked();

// What the last file dialog was asked for.
const FileDialog& LastFileDialog();

// A dialog that is open, and its answer: what is not set is Cancel.
struct Dialog {
    enum class Kind { Message, OpenFile, SaveFile, Font, Color } kind;
    std::string text;    // or the title
    unsigned style = 0;  // of the box, or the flags of the file dialog
    Answer answer = Answer::Cancel;
    std::vector<std::string> paths{};  // the first one counts where one is asked for
    std::optional<Font> font{};
    std::optional<Color> color{};
};

// Someone who answers all dialogs, in place of the answers given in advance. Returns when the dialog is to go.
void SetDialogPlayer(std::function<void(Dialog&)> answer);

// A test fails with this text.
void ReportFailure(const std::string& text);

// Told about each box or dialog that was not the next expected one. Such a one is answered with Cancel.
void SetDialogFailureReport(std::function<void(const std::string&)> report);

}  // namespace quirn::headless
