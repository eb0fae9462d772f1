#include "mainwin/appsettings.h"

#include "platform/files.h"
#include "platform/settings.h"

namespace quirn {

namespace {

constexpr char kFileLocations[] = "File Locations";
constexpr char kFavourites[] = "Favourites";

std::string RecentKey(size_t i) {
    return "MRU" + std::to_string(i);
}
std::string FavouriteKey(size_t i, const char* part) {
    return "Fav" + std::to_string(i + 1) + part;
}

}  // namespace

void ReadFileLocations(Program& program) {
    program.gameFolder = GetSetting(kFileLocations, "SubSpace", kNotSet);
    program.qrnFolder = GetSetting(kFileLocations, "QRN Files", ProgramFolder());
}

void ReadLists(Program& program) {
    for (size_t i = 0; i < program.recentFiles.size(); ++i)
        program.recentFiles[i] = GetSetting(kRecentList, RecentKey(i), "");
    for (size_t i = 0; i < program.favourites.size(); ++i) {
        program.favourites[i].name = GetSetting(kFavourites, FavouriteKey(i, "Name"), EmptyFavouriteName(i));
        program.favourites[i].path = GetSetting(kFavourites, FavouriteKey(i, "Path"), "");
    }
}

Bounds ReadMainPlace(Bounds place) {
    constexpr int kFirstPlace = 1000;
    place.left = GetNumberSetting(kSettings, "MainLeft", kFirstPlace);
    place.top = GetNumberSetting(kSettings, "MainTop", kFirstPlace);
    return place;
}

void WriteMainSettings(const Program& program, const Bounds& place) {
    SaveSetting(kSettings, "MainLeft", std::to_string(place.left));
    SaveSetting(kSettings, "MainTop", std::to_string(place.top));
    SaveSetting(kFileLocations, "SubSpace", program.gameFolder);
    SaveSetting(kFileLocations, "QRN Files", program.qrnFolder);
    for (size_t i = 0; i < program.recentFiles.size(); ++i)
        SaveSetting(kRecentList, RecentKey(i), program.recentFiles[i]);
    for (size_t i = 0; i < program.favourites.size(); ++i) {
        SaveSetting(kFavourites, FavouriteKey(i, "Name"), program.favourites[i].name);
        SaveSetting(kFavourites, FavouriteKey(i, "Path"), program.favourites[i].path);
    }
}

}  // namespace quirn
