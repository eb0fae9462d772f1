#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/table.h"
#include "profile/versions.h"

namespace quirn {

// The dialog "Earlier Versions": what saves have replaced of one file.
class frmVersions : public Form {
public:
    // putBack: the player wants the file as this version has it. It asks, and shows what goes wrong; true when done.
    frmVersions(const std::string& profilePath, const ProfileVersions& versions,
                std::function<bool(const ProfileVersion&)> putBack);

    // The version that the player wants to be shown, which the dialog closes for.
    std::optional<ProfileVersion> Ask(Form& owner);

private:
    struct Row {
        ProfileVersion version;
        std::string differs;  // from the file as it is now, in words
    };

    void Fill();
    void Select();
    void cmdPutBack_Click();
    void cmdShow_Click();
    void cmdForgetAll_Click();
    const ProfileVersion* Current() const;

    std::string profilePath_;
    const ProfileVersions& versions_;
    std::function<bool(const ProfileVersion&)> putBack_;
    std::vector<Row> rows_;
    std::optional<ProfileVersion> shown_;

    Label Label1;
    Table tblVersions;
    Button cmdPutBack, cmdShow, cmdForgetAll, cmdClose;
    Anchors anchors_;
};

}  // namespace quirn
