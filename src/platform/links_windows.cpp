#include "platform/links_windows.h"

#include <algorithm>

#include <QByteArray>
#include <QtEndian>

#include "platform/windows_calls.h"

namespace platform {

namespace {

/// What the file system keeps of the link at a path; empty if there is no link, or nothing.
FileResult<QByteArray> keptOfLink(const QString& native) {
  const auto path = widePath(native);
  if (!path) return path.error();
  const auto file = openPresent(*path, FILE_READ_ATTRIBUTES, AtLink::Replace);
  if (file.isMissing()) return QByteArray();
  if (!file) return file.error();
  const auto kind = kindOf(*file);
  if (!kind) return kind.error();
  if (!kind->isLink) return QByteArray();
  QByteArray kept(MAXIMUM_REPARSE_DATA_BUFFER_SIZE, Qt::Uninitialized);
  DWORD size = 0;
  const auto got = called(::DeviceIoControl(handleOf(*file), FSCTL_GET_REPARSE_POINT, nullptr, 0, kept.data(),
                                            static_cast<DWORD>(kept.size()), &size, nullptr));
  if (!got) return got.error();
  kept.truncate(static_cast<qsizetype>(size));
  return kept;
}

}  // namespace

QString linkTarget(const QString& native, QByteArrayView kept) {
  // 32-bit tag; 16-bit length, 16 bits of nothing; 16-bit place and length of the target, and of its shown form; 32-bit
  // flags; both forms. Places count from behind the flags.
  constexpr qsizetype Head = 20;
  constexpr quint32 Relative = 1;
  const auto number16 = [&](qsizetype at) { return qFromLittleEndian<quint16>(kept.data() + at); };
  const auto number32 = [&](qsizetype at) { return qFromLittleEndian<quint32>(kept.data() + at); };
  if (kept.size() < Head || number32(0) != IO_REPARSE_TAG_SYMLINK) return {};
  const qsizetype place = Head + number16(8);
  const qsizetype length = number16(10);
  if (place + length > kept.size()) return {};
  QString target(length / 2, Qt::Uninitialized);
  for (qsizetype i = 0; i < target.size(); ++i) target[i] = QChar(number16(place + 2 * i));
  if ((number32(16) & Relative) != 0) {
    return native.left(std::max(native.lastIndexOf(u'/'), native.lastIndexOf(u'\\')) + 1) + target;
  }
  // The system's own form of a whole path.
  if (target.startsWith(u"\\??\\")) target.replace(1, 1, u'\\');
  return target;
}

FileResult<QString> followLinks(QString native) {
  constexpr int LongestChain = 40;
  for (int i = 0; i < LongestChain; ++i) {
    const auto kept = keptOfLink(native);
    if (!kept) return kept.error();
    if (kept->isEmpty()) return native;
    const QString target = linkTarget(native, *kept);
    if (target.isEmpty()) return noRegularFile();
    native = target;
  }
  return systemError(ERROR_CANT_RESOLVE_FILENAME);
}

}  // namespace platform
