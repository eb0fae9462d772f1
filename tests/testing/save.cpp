// Loads a QRN file and saves it under another name, with the program's own code and real files, for the journeys that
// look at what saving leaves behind:
//     save SOURCE TARGET GAMEFOLDER [again]
// Prints the number of the run-time error, or 0. With "again" it saves until it is ended, a line each time.
#include <cstdio>
#include <cstring>

#include "profile/profilefile.h"

int main(int count, char** arguments) {
    if (count < 4) return 2;
    quirn::Profile profile;
    quirn::InitCatalogue(profile);
    if (quirn::LoadProfile(profile, arguments[1]) != quirn::LoadResult::Loaded) return 3;
    const bool again = count > 4 && std::strcmp(arguments[4], "again") == 0;
    do {
        const quirn::Failure failure = quirn::SaveProfile(profile, arguments[3], arguments[2]);
        std::printf("%d\n", failure ? failure->number : 0);
        std::fflush(stdout);
    } while (again);
    return 0;
}
