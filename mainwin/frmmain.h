#pragma once

#include "platform/form.h"
#include "profile/program.h"

namespace quirn {

// The program's one document window.
class frmMain : public Form {
public:
    explicit frmMain(Program& program);

private:
    void Form_Load();
    bool Form_Unload();
    void UpdateCaption();

    Program& program_;
    std::string documentLabel_;
};

}  // namespace quirn
