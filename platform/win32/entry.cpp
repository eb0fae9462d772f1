#include <windows.h>

#include "platform/form.h"
#include "startup/main.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    quirn::CallHandler(quirn::Main);
    return 0;
}
