#include "themefiles/kept_files.h"

#include <optional>

#include <QStringList>

namespace themefiles {
namespace {

constexpr int MostKept = 9;

QStringList keptNames(const QString& head) {
  QStringList names{head};
  for (int number = 2; number <= MostKept; ++number) names += head + u'.' + QString::number(number);
  return names;
}

/// A backup that is there already.
struct Backup {
  QString name;
  qint64 written;
};

}  // namespace

QString keepBeside(const QString& path, const QByteArray& bytes, QStringView ending, const platform::OpenFile& like) {
  QString place;
  std::optional<Backup> oldest;
  for (const QString& name : keptNames(path + ending.toString())) {
    const auto kept = platform::openIfThere(name, platform::AtLink::Replace);
    if (!kept) {
      if (place.isEmpty()) place = name;
      continue;
    }
    if (platform::bytesOf(*kept, name) == bytes) return name;
    if (!oldest || kept->lastWritten() < oldest->written) oldest = {name, kept->lastWritten()};
  }
  const bool isFree = !place.isEmpty();
  if (!isFree) place = oldest->name;
  platform::FileTurn(place, platform::AtLink::Replace).replace(bytes, &like);
  return isFree ? place : QStringLiteral("%1 in place of the oldest of nine").arg(place);
}

}  // namespace themefiles
