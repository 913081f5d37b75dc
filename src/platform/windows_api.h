#pragma once

/// The declarations of the system; the first has to come first.

// clang-format off
#include <windows.h>
#include <sddl.h>
#include <shellapi.h>
#include <winioctl.h>
// clang-format on
