#include "game/zonelist.h"

#include "platform/files.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr char kInvalid[] = "[Invalid Zone]";
constexpr char kInvalidDescription[] = "[Invalid Zone found in your zone list]";
constexpr std::string_view kChatCommand = "?chat=";

Zone MakeZone(std::string_view line, std::string_view description) {
    const size_t comma = line.find(',');
    if (comma == std::string_view::npos) return {kInvalid, kInvalid, kInvalid, kInvalidDescription};
    Zone zone;
    zone.name = line.substr(0, comma);
    line.remove_prefix(comma + 1);
    const size_t second = line.find(',');
    zone.address = line.substr(0, second);
    if (second != std::string_view::npos) zone.port = line.substr(second + 1);
    if (!description.empty()) zone.description = description.substr(1);  // the first character is a marker
    return zone;
}

}  // namespace

std::vector<Zone> ParseZoneList(std::string_view text) {
    std::vector<std::string_view> lines;
    for (std::string_view line : SplitLines(text)) {
        line = Trim(line);
        if (!line.empty()) lines.push_back(line);
    }
    std::vector<Zone> zones;
    for (size_t i = 0; i < lines.size(); i += 2)
        zones.push_back(MakeZone(lines[i], i + 1 < lines.size() ? lines[i + 1] : std::string_view()));
    return zones;
}

Result<std::vector<Zone>> ReadZoneList(const std::string& gameFolder) {
    const Result<std::string> text = ReadWholeFile(gameFolder + "\\favorite.lst");
    if (text.Failed()) return text.Error();
    return ParseZoneList(text.Value());
}

int FindZoneIndex(const std::vector<Zone>& zones, std::string_view Text) {
    for (size_t i = 0; i < zones.size(); ++i)
        if (zones[i].name.find(Text) != std::string::npos) return static_cast<int>(i);
    return -1;
}

std::string NormalizeChatName(std::string_view text) {
    const std::string name(Trim(text));
    if (name.empty() || EqualNoCase(name.substr(0, kChatCommand.size()), kChatCommand)) return name;
    return std::string(kChatCommand) + name;
}

}  // namespace quirn
