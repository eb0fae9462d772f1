#pragma once

#include <string>

#include "platform/anchors.h"
#include "platform/form.h"

namespace quirn {

// Shows "readme.txt" or "revision.txt" of the program's folder.
class frmRelNotes : public Form {
public:
    frmRelNotes();

private:
    void Form_Resize();
    void ShowFile(const std::string& path);

    TextBox txtRelNotes;
    Button Command2, Command3, Command1;
    Anchors anchors_;
};

}  // namespace quirn
