#pragma once

// Numbers of the program's resources.
#define IDI_QUIRN 1
#define IDI_SPLASH 2
#define IDI_COOKIE 3
