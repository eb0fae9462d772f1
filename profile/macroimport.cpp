#include "profile/macroimport.h"

#include "platform/files.h"
#include "platform/text.h"

namespace quirn {

Result<bool> ImportMacroFile(Profile& profile, const std::string& path) {
    const Result<std::string> text = ReadWholeFile(path);
    if (text.Failed()) return text.Error();
    bool changed = false;
    int index = 0;
    for (const std::string_view line : SplitLines(text.Value())) {
        if (++index > kMacroCount) break;
        std::string& macro = profile.Messages.Value(index);
        if (macro == line) continue;
        macro = line;
        changed = true;
    }
    return changed;
}

}  // namespace quirn
