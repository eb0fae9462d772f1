#pragma once

#include <functional>
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

// Told about each box that was not the next expected one. Such a box is answered with Cancel.
void SetDialogFailureReport(std::function<void(const std::string&)> report);

}  // namespace quirn::headless
