#pragma once

#include <QByteArray>
#include <QString>

/// Texts that a write would lose, kept in files of their own.
namespace themefiles {

/// Keeps a text beside a file: under its name with `ending` (".old") behind, or, since no kept text takes the place of
/// another one, with ".old.2" to ".old.9". A text that is kept already isn't kept again. Of nine others the one that
/// was written first goes. Gives the path, and what went, as a report tells it. Throws platform::Failure.
QString keepBeside(const QString& path, const QByteArray& bytes, QStringView ending);

}  // namespace themefiles
