#include "mainwin/loading.h"

#include "platform/dialogs.h"

namespace quirn {

bool LoadProfileAndTell(Profile& profile, const std::string& fileName) {
    switch (LoadProfile(profile, fileName)) {
        case LoadResult::Loaded: return true;
        case LoadResult::LoadedFromEarlierVersion:
            ShowMessage("WARNING - The file '" + fileName + "' was created with an earlier version.\r" +
                            "It is recommended that you review the settings and re-save the file.",
                        kExclamation);
            return true;
        case LoadResult::NotFound:
            ShowMessage("ERROR - Could not find profile named '" + fileName + "'", kCritical);
            return false;
        case LoadResult::NotValid:
            ShowMessage("ERROR - The file '" + fileName + "' is not a valid QRN file.", kCritical);
            return false;
    }
    return false;
}

std::optional<std::vector<Zone>> LoadZoneList(const std::string& gameFolder,
                                              const std::function<void()>& setGameFolder) {
    for (;;) {
        Result<std::vector<Zone>> zones = ReadZoneList(gameFolder);
        if (!zones.Failed()) return zones.Take();
        if (ShowMessage("Cannot find FAVORITE.LST, make sure the location of the subspace.exe is set correctly.",
                        kOkCancel + kQuestion) != Answer::Ok)
            return std::nullopt;
        setGameFolder();
    }
}

}  // namespace quirn
