#pragma once

#include <vector>

#include <QImage>
#include <QString>

#include "screens.h"

namespace contactsheet {

/// All screens in small, each over its name.
QImage overview(const std::vector<Screen>& screens);

/// Throws platform::Failure when the file can't be written.
void writePng(const QImage& picture, const QString& path);

}  // namespace contactsheet
