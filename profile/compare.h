#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "profile/profile.h"

// What profiles, the game and kept states differ in, row by row as a player reads it. Nobody is asked, no file is read.
namespace quirn {

struct CompareSide {
    std::string caption;  // its part of a window's title; empty: none
    Profile profile;
    std::array<std::optional<std::string>, 2> waveMarks;  // of the content; nothing: it says nothing of that message
    bool isThere = true;                                  // false: an empty column
};

// One setting (width and height are one), one name of the ignore lists, or one wave message.
struct CompareRow {
    const SettingRow* setting = nullptr;
    std::string ignoredName;
    std::optional<size_t> wave;

    std::string caption, page;
    std::vector<std::string> cells;  // one for each side
    std::vector<bool> differs;       // from the first side

    bool IsName() const { return setting == nullptr && !wave; }
    std::vector<const SettingRow*> Settings() const;  // of the table: none, one, or width and height
    bool Differs() const;
    bool Holds(std::string_view text) const;  // in any column, upper or lower case
    bool IsSameRowAs(const CompareRow& other) const;
};

// The first side must be there. A check box compares as on or off, a number as a number, and a wave message only where
// both sides say something of it.
std::vector<CompareRow> Compare(const std::vector<CompareSide>& sides);

// Makes one profile like another in these rows, as far as that one says something of them.
void TakeRows(const std::vector<CompareRow>& rows, const Profile& from, Profile& into);

}  // namespace quirn
