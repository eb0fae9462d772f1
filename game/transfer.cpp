#include "game/transfer.h"

#include <utility>

#include "game/playerfiles.h"

namespace quirn {

TransferResult TransferToGame(const Profile& profile, const std::string& gameFolder) {
    TransferResult result;
    WrittenSettings settings = WriteSettings(profile);
    if (settings.overflow) result.errors.push_back(MakeError(ErrorNumber::Overflow));
    result.refused = std::move(settings.refused);
    if (gameFolder != kNotSet)
        for (RuntimeError& error : WritePlayerFiles(profile, gameFolder)) result.errors.push_back(std::move(error));
    return result;
}

Failure ReadProfileFromGame(Profile& profile, const std::string& gameFolder) {
    ReadSettings(profile);
    return ReadPlayerFiles(profile, gameFolder);
}

}  // namespace quirn
