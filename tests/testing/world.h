#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/dialogs.h"

// The world around a test, the same for both back ends: files and registry in memory natively; on Windows real files in
// a folder of their own and the real registry under a key of its own.
namespace quirn::test {

// The running test's own folder, without a "\" at its end; empty at the start, gone afterwards.
std::string Scratch();

void PutFile(const std::string& path, std::string_view bytes);  // its folder must exist
void PutHugeFile(const std::string& path, uint64_t size);       // of so many bytes, which take no room
std::optional<std::string> FileBytes(const std::string& path);  // empty when there is no such file
void MakeFolder(const std::string& path);
void SetReadOnly(const std::string& path);
void SetHidden(const std::string& path);

// Another program has the file open and shares it with nobody, until the end of this object's life.
class HeldFile {
public:
    explicit HeldFile(const std::string& path);
    ~HeldFile();
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

private:
    void* handle_;
};

// Values as they are stored. Types are the system's: 1 a text, 3 bytes, 4 a number. A text's NUL is not added.
struct StoredValue {
    uint32_t type;
    std::string bytes;
    bool operator==(const StoredValue&) const = default;
};

void MakeKey(const std::string& path);  // and the keys above it
void PutValue(const std::string& path, const std::string& name, uint32_t type, std::string_view bytes);
std::optional<StoredValue> GetValue(const std::string& path, const std::string& name);
bool KeyExists(const std::string& path);

// The next message box must be this one; it is answered so. Any other fails the test and is answered with Cancel, and
// so does a box that has not come when the test ends. No caption means the program's title.
void ExpectMessage(const std::string& text, unsigned style = kPlain, Answer answer = Answer::Ok,
                   const std::string& caption = {});

// A fixture for tests that touch any of this.
class WorldTest : public ::testing::Test {
protected:
    WorldTest();
    ~WorldTest() override;
};

// For main and the fixture.
void OpenWorld();   // once, before the first test
void CloseWorld();  // once, after the last
void ResetWorld();

}  // namespace quirn::test
