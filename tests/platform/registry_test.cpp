#include "platform/registry.h"

#include <map>

#include "platform/settings.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;
using namespace std::string_literals;

constexpr char kPath[] = "Software\\Vellick\\Options";

class RegistryTest : public WorldTest {};

TEST_F(RegistryTest, QueriesTypeSizeAndBytes) {
    const struct {
        const char* name;
        uint32_t type;
        std::string bytes;
    } rows[] = {{"text", 1, "abc\0"s},
                {"without NUL", 1, "abc"s},
                {"nothing", 1, ""s},
                {"\xC9t\xE9", 1, "\x80\x93\x81\xE9\0"s},
                {"number", 4, "\x44\x33\x22\x11"s},
                {"binary", 3, "\0\1\2"s}};
    for (const auto& row : rows) {
        PutValue(kPath, row.name, row.type, row.bytes);
        const RegistryKey key(kPath);
        auto type = RegistryType::None;
        uint32_t size = 0;
        std::string buffer(64, '*');
        size = 64;
        EXPECT_EQ(key.Query(row.name, &type, buffer.data(), &size), kRegistrySuccess) << row.name;
        EXPECT_EQ(static_cast<uint32_t>(type), row.type) << row.name;
        EXPECT_EQ(buffer.substr(0, size), row.bytes) << row.name;

        if (row.bytes.size() < 2) continue;
        buffer.assign(64, '*');
        size = static_cast<uint32_t>(row.bytes.size() - 1);
        EXPECT_EQ(key.Query(row.name, &type, buffer.data(), &size), kRegistryMoreData) << row.name;
        EXPECT_EQ(size, row.bytes.size()) << row.name;
        EXPECT_EQ(buffer, std::string(64, '*')) << row.name;
    }
    EXPECT_FALSE(RegistryKey("Software\\Vellick\\Option").IsOpen());
    const RegistryKey key("SOFTWARE\\vellick\\options");
    auto type = RegistryType::None;
    uint32_t size = 64;
    std::string buffer(64, '*');
    EXPECT_EQ(key.Query("missing", &type, buffer.data(), &size), kRegistryNotFound);
    EXPECT_EQ(size, 64u);
    size = 64;
    EXPECT_EQ(key.Query("\xE9T\xC9", &type, buffer.data(), &size), kRegistrySuccess);  // names fold by the code page
}

TEST_F(RegistryTest, SetsValues) {
    MakeKey(kPath);
    const RegistryKey key(kPath);
    const uint32_t number = 0x11223344;
    EXPECT_EQ(key.Set("Name", RegistryType::Number, &number, 4), kRegistrySuccess);
    EXPECT_EQ(GetValue(kPath, "name"), (StoredValue{4, "\x44\x33\x22\x11"}));
    EXPECT_EQ(key.Set("NAME", RegistryType::Text, "x\xE9", 3), kRegistrySuccess);  // another type takes its place
    EXPECT_EQ(GetValue(kPath, "name"), (StoredValue{1, "x\xE9\0"s}));
}

TEST_F(RegistryTest, KeepsAndRemovesWholeValues) {
    MakeKey(kPath);
    const RegistryKey key(kPath);
    const std::map<std::string, RegistryValue> values{
        {"\xC9t\xE9", {RegistryType::Text, "without NUL"}},
        {"", {RegistryType::Text, "\0"s}},
        {"empty", {static_cast<RegistryType>(3), ""}},
        {"long", {static_cast<RegistryType>(3), std::string(5000, '\xE9')}}};
    for (const auto& [name, value] : values) EXPECT_EQ(key.Write(name, value), kRegistrySuccess);
    RegistryValue read;
    EXPECT_EQ(key.Read("LONG", read), kRegistrySuccess);
    EXPECT_EQ(read, values.at("long"));
    EXPECT_EQ(key.Remove("Long"), kRegistrySuccess);
    EXPECT_EQ(key.Remove("long"), kRegistryNotFound);
    EXPECT_EQ(key.Read("long", read), kRegistryNotFound);
}

TEST_F(RegistryTest, KeepsSettings) {
    EXPECT_EQ(GetSetting("File Locations", "SubSpace", "<not set>"), "<not set>");
    SaveSetting("File Locations", "SubSpace", "C:\\Game \x80\xE9 ");
    EXPECT_EQ(GetSetting("FILE LOCATIONS", "subspace", "x"), "C:\\Game \x80\xE9 ");
    EXPECT_EQ(GetValue("Software\\QUIRN\\File Locations", "SubSpace"), (StoredValue{1, "C:\\Game \x80\xE9 \0"s}));
    SaveSetting("File Locations", "SubSpace", "");
    EXPECT_EQ(GetSetting("File Locations", "SubSpace", "x"), "");  // empty is not missing

    // What other programs may have left there.
    PutValue("Software\\QUIRN\\Settings", "number", 4, "\1\0\0\0"s);
    PutValue("Software\\QUIRN\\Settings", "without NUL", 1, "abc");
    PutValue("Software\\QUIRN\\Settings", "nothing", 1, "");
    EXPECT_EQ(GetSetting("Settings", "number", "d"), "d");
    EXPECT_EQ(GetSetting("Settings", "without NUL", "d"), "abc");
    EXPECT_EQ(GetSetting("Settings", "nothing", "d"), "");
}

}  // namespace
}  // namespace quirn
