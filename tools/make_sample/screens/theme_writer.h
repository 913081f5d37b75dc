#pragma once

#include <string>

#include "screens/rows.h"

namespace sample {

/// The run of sections of one screen as text of a theme file.
std::string screenText(const Screen& screen);

}  // namespace sample
