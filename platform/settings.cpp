#include "platform/settings.h"

#include "platform/text.h"

namespace quirn {

int GetNumberSetting(const std::string& section, const std::string& key, int defaultValue) {
    return ToInteger(GetSetting(section, key, std::to_string(defaultValue))).value_or(defaultValue);
}

}  // namespace quirn
