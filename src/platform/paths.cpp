#include "platform/paths.h"

#include <QFileInfo>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/file_bytes.h"
#include "platform/file_names.h"

namespace platform {

namespace {

constexpr QChar Slash(u'/');

/// Whether the system's files may differ by case alone, and how many separators at the start of a path stay.
#ifdef Q_OS_WIN
constexpr bool TellsCaseApart = false;
constexpr qsizetype HeadSeparators = 2;  // they name a server
#else
constexpr bool TellsCaseApart = true;
constexpr qsizetype HeadSeparators = 1;
#endif

/// Throws what keeps from knowing whether there is something at the path.
void check(const QString& path, const FileError& error) {
  if (!error.missing) throw Failure(path.section(Slash, -1) + QStringLiteral(": ") + error.description);
}

bool exists(const QString& path) {
  const auto found = lookAt(path, AtLink::Replace);
  if (!found) check(path, found.error());
  return found && found->exists;
}

/// The entry of `folder` that equals `name` regardless of case, the first in byte order; else `name` itself.
QString entryLike(const QString& folder, const QString& name) {
  const auto entries = listNames(folder);
  if (!entries) {
    check(folder + name, entries.error());
    return name;
  }
  QString best;
  for (const QString& entry : *entries) {
    if (!sameName(entry, name)) continue;
    if (best.isEmpty() || encodedName(entry) < encodedName(best)) best = entry;
  }
  return best.isEmpty() ? name : best;
}

}  // namespace

QString plainPath(const QString& path) {
  QString plain = path;
  plain.replace(QChar(u'\\'), Slash);
  const QString doubled(2, Slash);
  for (qsizetype at = plain.indexOf(doubled, HeadSeparators - 1); at >= 0; at = plain.indexOf(doubled, at))
    plain.remove(at, 1);
  return plain;
}

QString findPath(const QString& plain) {
  if (!TellsCaseApart) return plain;
  const QStringList components = plain.split(Slash);
  QString found;
  for (qsizetype i = 0; i < components.size(); ++i) {
    if (i > 0) found += Slash;
    const QString& name = components[i];
    found +=
        name.isEmpty() || exists(found + name) ? name : entryLike(found.isEmpty() ? QStringLiteral("./") : found, name);
  }
  return found;
}

QString nativePath(const QString& path) {
  const QString plain = plainPath(path);
  try {
    return exists(plain) ? plain : findPath(plain);
  } catch (const Failure&) {
    return plain;
  }
}

QString programPath(const QString& nativePath) {
  QString path = nativePath;
  return path.replace(Slash, QChar(u'\\'));
}

bool sameFolder(const QString& a, const QString& b) {
  const QFileInfo first(nativePath(a));
  const QFileInfo second(nativePath(b));
  return first.isDir() && second.isDir() && first.canonicalFilePath() == second.canonicalFilePath();
}

}  // namespace platform
