#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/registry.h"
#include "profile/profile.h"

// The game's settings in the current user's registry: one key per section below "Software\Virgin\SubSpace". Keys are
// opened, never made: this program configures an installed game, it does not install one. A key that is missing has no
// values and takes none.
namespace quirn {

// A text (REG_SZ, with the NUL that the registry keeps), a number (REG_DWORD), or nothing when the value is missing
// or of another type.
using SettingValue = std::variant<std::monostate, std::string, int>;

inline constexpr long kUnsupportedType = -1;

// Below the current user's root; a section's name follows.
inline constexpr char kGameKey[] = "Software\\Virgin\\SubSpace\\";

// One value of a section's key, which is opened once for all: on Wine each opening is a call to another process.
SettingValue QueryValue(const RegistryKey& key, const std::string& name);

// The same from a key that is open. The status is the registry's, or kUnsupportedType; the value is then as it was.
long QueryValueEx(const RegistryKey& key, const std::string& name, SettingValue& value);

// Writes one value as text or number. A value that the game keeps in another type (binary, say) is left alone.
// The status is the registry's, or kUnsupportedType for such a value.
long SetKeyValue(const RegistryKey& key, const std::string& name, const SettingValue& value, RegistryType type);

// The same into a key that is open; nothing is written for another type, and the status is then 0.
long SetValueEx(const RegistryKey& key, const std::string& name, RegistryType type, const SettingValue& value);

// A stored value as a profile's text: nothing for one that is missing or of another type.
std::string TextOfStored(const std::optional<RegistryValue>& value);

// Reads every setting of the profile. What is missing becomes an empty text.
void ReadSettings(Profile& profile);

// A setting that the registry did not take, with the status of SetKeyValue.
struct RefusedValue {
    std::string section;
    std::string name;
    long status;
};

struct WrittenSettings {
    bool overflow = false;  // some numbers do not fit 32 bits and are left as the game has them
    std::vector<RefusedValue> refused;
};

// Writes every setting of the profile; what fails does not stop the rest.
WrittenSettings WriteSettings(const Profile& profile);

}  // namespace quirn
