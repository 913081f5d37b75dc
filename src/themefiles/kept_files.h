#pragma once

#include <QByteArray>
#include <QString>

#include "platform/files.h"

/// Backups of texts that a write would lose.
namespace themefiles {

/// Writes a backup beside a file, in the turn at that file: with `ending` (".old") after its name or, if that backup
/// exists, ".old.2" to ".old.9". A text that has a backup already isn't written again. If there are nine, the oldest is
/// replaced. Nobody may read the backup who may not read `like`. Returns the backup's path for a report, which also
/// says what was replaced. Throws platform::Failure.
QString keepBeside(const QString& path, const QByteArray& bytes, QStringView ending, const platform::OpenFile& like);

}  // namespace themefiles
