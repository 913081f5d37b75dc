#pragma once

#include <QByteArray>
#include <QString>

/// Backups of texts that a write would lose.
namespace themefiles {

/// Writes a backup beside a file: with `ending` (".old") after its name or, if that backup exists, ".old.2" to
/// ".old.9". A text that has a backup already isn't written again. If there are nine, the oldest is replaced. Returns
/// the backup's path for a report, which also says what was replaced. Throws platform::Failure.
QString keepBeside(const QString& path, const QByteArray& bytes, QStringView ending);

}  // namespace themefiles
