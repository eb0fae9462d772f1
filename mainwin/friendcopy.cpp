#include "mainwin/friendcopy.h"

#include "mainwin/frmfriendcopy.h"
#include "mainwin/saving.h"
#include "platform/dialogs.h"
#include "profile/documentnames.h"
#include "profile/profilefile.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

// A name that is neither the profile's nor the open one's.
std::optional<std::string> AskFile(const Program& program, const std::string& file) {
    FileDialog dialog{.title = "Copy Without Password",
                      .filter = "QRN Files (*.qrn)|*.qrn|All Files (*.*)|*.*",
                      .folder = program.qrnFolder,
                      .fileName = SplitPath(SaveAsName(file)).name + "-copy.qrn",
                      .flags = kOverwritePrompt | kHideReadOnly,
                      .ending = "qrn"};
    for (;;) {
        std::optional<std::string> path = AskSaveFile(dialog);
        if (!path || (!IsSameFile(*path, file) && !IsSameFile(*path, program.CurrentFile))) return path;
        ShowMessage("The copy needs a name of its own: " + *path + " is the profile itself.", kExclamation);
    }
}

}  // namespace

bool SaveCopyForFriend(Form& owner, Program& program, const Profile& profile, const std::string& file) {
    const std::optional<LeftOut> leftOut = frmFriendCopy().Ask(owner);
    if (!leftOut) return false;
    const std::optional<std::string> path = AskFile(program, file);
    if (!path) return false;
    const Failure failure =
        SaveKeepingVersion(program, *path, [&] { return SaveProfileCopy(CopyForFriend(profile, *leftOut), *path); });
    ShowError(failure);
    return !failure;
}

}  // namespace quirn
