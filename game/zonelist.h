#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

// The zones (game servers) that the game offers: "favorite.lst" in its folder. Its lines that are not blank come in
// pairs, "name,address,port" and a marker character with the description.
namespace quirn {

struct Zone {
    std::string name;
    std::string address;
    std::string port;
    std::string description;
};

// A pair without a comma becomes an "[Invalid Zone]", so that list entries and zones stay in step. With one comma the
// port is empty; further commas belong to the port. A last zone without a second line has no description.
std::vector<Zone> ParseZoneList(std::string_view text);

// Failure: the file cannot be opened.
Result<std::vector<Zone>> ReadZoneList(const std::string& gameFolder);

// The 0-based index of the first zone whose name contains the text, letter by letter; -1 when none does. So a name that
// is part of an earlier zone's name finds that one, and an empty text the first of all: both are kept on purpose.
int FindZoneIndex(const std::vector<Zone>& zones, std::string_view Text);

// What the chat box makes of its text: trimmed, with "?chat=" in front. Nothing stays nothing.
std::string NormalizeChatName(std::string_view text);

}  // namespace quirn
