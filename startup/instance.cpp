#include "startup/instance.h"

#include "platform/dialogs.h"
#include "platform/text.h"
#include "platform/version.h"

namespace quirn {

WindowHandle FindWindowContaining(const std::string& TitleText) {
    const std::string wanted = FoldCase(TitleText);
    for (WindowHandle window = FirstTopLevelWindow(); window != 0; window = NextTopLevelWindow(window))
        if (FoldCase(WindowCaption(window)).find(wanted) != std::string::npos) return window;
    return 0;
}

void HandOverToRunningCopy() {
    const WindowHandle window = FindWindowContaining(VersionTitle());
    if (window != 0 && ShowNormal(window)) BringToFront(window);
    else ShowMessage(std::string(kTitle) + " is already running.", kInformation);
}

}  // namespace quirn
