#include "profile/initfiles.h"

#include "platform/files.h"
#include "platform/inifile.h"
#include "platform/version.h"

namespace quirn {

namespace {

constexpr size_t kShortestFileName = 6;
constexpr size_t kSectionBuffer = 4096;

}  // namespace

void clsIniTFiles::ApplyDefaultFile() {
    if (InitFileName.size() >= kShortestFileName) return;
    InitFileName = ProgramFolder();
    if (!InitFileName.ends_with('\\')) InitFileName += '\\';
    InitFileName += std::string(kTitle) + ".ini";
}

std::string clsIniTFiles::WriteKey(const std::string& key, const std::string& value) {
    ApplyDefaultFile();
    WriteIniValue(InitFileName, SectionName, key, value);
    return "True";
}

std::string clsIniTFiles::ReadKey(const std::string& key, const std::string& defaultValue) {
    ApplyDefaultFile();
    return ReadIniValue(InitFileName, SectionName, key, defaultValue, kValueBuffer);
}

bool clsIniTFiles::WriteEntireSection(const std::string& text) {
    ApplyDefaultFile();
    return WriteIniSection(InitFileName, SectionName, text);
}

std::string clsIniTFiles::ReadEntireSection() {
    ApplyDefaultFile();
    return ReadIniSection(InitFileName, SectionName, kSectionBuffer);
}

}  // namespace quirn
