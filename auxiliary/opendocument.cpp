#include "auxiliary/opendocument.h"

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace quirn {

void OpenDocument(Form& owner, const std::string& target) {
    if (OpenWithRegisteredProgram(owner, target)) return;
    ShowMessage("Unable to load '" + target + "' : " + MakeError(ErrorNumber::FileNotFound).description, kExclamation);
}

}  // namespace quirn
