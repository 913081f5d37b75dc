#include "platform/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/code_page.h"

namespace platform {

namespace {

constexpr QChar Slash(u'/');

bool stands(const QString& path) {
  const QFileInfo info(path);
  return info.exists() || info.isSymbolicLink();
}

/// The entry of `folder` that is `name` but for case, the first in byte order; `name` itself when there is none.
QString entryLike(const QString& folder, const QString& name) {
  QString best;
  const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  for (const QString& entry : QDir(folder).entryList(all, QDir::Unsorted)) {
    if (!SameName(entry, name)) continue;
    if (best.isEmpty() || QFile::encodeName(entry) < QFile::encodeName(best)) best = entry;
  }
  return best.isEmpty() ? name : best;
}

}  // namespace

QString PlainPath(const QString& path) {
  QString plain = path;
  plain.replace(QChar(u'\\'), Slash);
#ifdef Q_OS_WIN
  constexpr qsizetype from = 1;  // two separators at the head name a machine
#else
  constexpr qsizetype from = 0;
#endif
  const QString doubled(2, Slash);
  for (qsizetype at = plain.indexOf(doubled, from); at >= 0; at = plain.indexOf(doubled, at)) plain.remove(at, 1);
  return plain;
}

QString FindPath(const QString& plain) {
#ifdef Q_OS_WIN
  return plain;
#else
  const QStringList components = plain.split(Slash);
  QString found;
  for (qsizetype i = 0; i < components.size(); ++i) {
    if (i > 0) found += Slash;
    const QString& name = components[i];
    found +=
        name.isEmpty() || stands(found + name) ? name : entryLike(found.isEmpty() ? QDir::currentPath() : found, name);
  }
  return found;
#endif
}

QString NativePath(const QString& path) {
  const QString plain = PlainPath(path);
  return QFileInfo::exists(plain) ? plain : FindPath(plain);
}

QString ProgramPath(const QString& nativePath) {
  QString path = nativePath;
  return path.replace(Slash, QChar(u'\\'));
}

bool SameFolder(const QString& a, const QString& b) {
  const QFileInfo first(NativePath(a));
  const QFileInfo second(NativePath(b));
  return first.isDir() && second.isDir() && first.canonicalFilePath() == second.canonicalFilePath();
}

}  // namespace platform
