#include "mainwin/saving.h"

#include "profile/versions.h"

namespace quirn {

Failure SaveKeepingVersion(Program& program, const std::string& path, const std::function<Failure()>& save) {
    const ProfileVersions versions(program.dataFolder, path);
    const Result<std::string> kept = versions.KeepPresent();
    Failure failure = save();
    program.keptLastVersion = !kept.Failed() || failure;
    if (!kept.Failed()) versions.Settle(kept.Value());
    return failure;
}

}  // namespace quirn
