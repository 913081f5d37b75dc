#pragma once

#include <QStringView>

namespace mainwindows {

inline constexpr QStringView Version = u"0.3a";

}  // namespace mainwindows
