#pragma once

#include <string>
#include <vector>

namespace quirn {

// The first of the favourites' rows that is empty (begins with "<"), from 0; -1 when there is none.
int FirstEmptyRow(const std::vector<std::string>& rows);

// The name of a favourite for a QRN file: its player, " - ", its zone; "<invalid>" for what the file does not have.
// (A name without a player begins with "<" and so counts as an empty slot; that is kept on purpose.)
std::string FavouriteName(const std::string& path);

}  // namespace quirn
