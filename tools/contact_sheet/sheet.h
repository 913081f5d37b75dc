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

/// Writes a file of the output; a link at its name is replaced, so that nothing is written where it leads. Throws
/// platform::Failure when the file can't be written.
void writeOutput(const QString& path, const QByteArray& bytes);

}  // namespace contactsheet
