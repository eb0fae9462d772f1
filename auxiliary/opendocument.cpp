#include "auxiliary/opendocument.h"

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace quirn {

void OpenDocument(Form& owner, const std::string& target) {
    if (const Failure failure = OpenWithRegisteredProgram(owner, target))
        ShowMessage("Unable to load '" + target + "' : " + failure->description, kExclamation);
}

}  // namespace quirn
