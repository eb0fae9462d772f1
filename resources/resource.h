#pragma once

// Numbers of the program's resources.
#define IDI_QUIRN 1
