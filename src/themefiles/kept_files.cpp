#include "themefiles/kept_files.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QStringList>

#include "platform/files.h"

namespace themefiles {
namespace {

constexpr int MostKept = 9;

QStringList keptNames(const QString& head) {
  QStringList names{head};
  for (int number = 2; number <= MostKept; ++number) names += head + u'.' + QString::number(number);
  return names;
}

}  // namespace

QString keepBeside(const QString& path, const QByteArray& bytes, QStringView ending) {
  QString place;
  std::vector<std::pair<qint64, QString>> others;
  for (const QString& name : keptNames(path + ending.toString())) {
    const auto kept = platform::readIfThere(name, platform::AtLink::Replace);
    if (kept == bytes) return name;
    if (kept) {
      others.emplace_back(platform::lastWritten(name), name);
    } else if (place.isEmpty()) {
      place = name;
    }
  }
  if (!place.isEmpty()) {
    platform::writeFile(place, bytes, platform::AtLink::Replace);
    return place;
  }
  place = std::min_element(others.begin(), others.end())->second;
  platform::writeFile(place, bytes, platform::AtLink::Replace);
  return QStringLiteral("%1 in place of the oldest of nine").arg(place);
}

}  // namespace themefiles
