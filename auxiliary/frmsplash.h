#pragma once

#include "platform/form.h"

namespace quirn {

// The picture that is up while the program starts. A key press closes it.
class frmSplash : public Form {
public:
    frmSplash();

private:
    Picture Picture1;
    Label lblName, lblTitle, lblVersion;
};

}  // namespace quirn
