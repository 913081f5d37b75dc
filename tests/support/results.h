#pragma once

#include <algorithm>
#include <functional>

#include <QFile>
#include <QTest>

// Whole results that are kept as data beside a test, in its folder RESULTS. `scripts/renew_results` writes them anew.

namespace support {

inline bool renewsResults() {
  return qEnvironmentVariableIsSet("RENEW_RESULTS");
}

inline QString resultFile(const QString& name) {
  return QStringLiteral(RESULTS "/") + name;
}

/// Fails with what was found in a file of results, and where.
inline void failResult(const QString& file, int line, const QString& report) {
  const QString hint = QStringLiteral("\n(scripts/renew_results takes it over)");
  QTest::qFail(qPrintable(report + hint), qPrintable(file), line);
}

/// Compares a text, line by line, with the file of that name.
inline void compareText(const QString& name, const QStringList& got) {
  constexpr qsizetype MostShown = 12;
  const QString path = resultFile(name);
  QFile file(path);
  QStringList expected;
  if (file.open(QIODevice::ReadOnly)) expected = QString::fromUtf8(file.readAll()).chopped(1).split(u'\n');
  file.close();
  if (got == expected) return;
  if (renewsResults()) {
    if (!file.open(QIODevice::WriteOnly) || file.write(got.join(u'\n').toUtf8() + '\n') < 0) qFatal("can't write");
    return;
  }
  // The lines from the first to the last that differ.
  const auto first = std::mismatch(expected.begin(), expected.end(), got.begin(), got.end()).first - expected.begin();
  const QStringList left = expected.sliced(first), came = got.sliced(first);
  const auto same = std::mismatch(left.rbegin(), left.rend(), came.rbegin(), came.rend()).first - left.rbegin();
  QString report;
  for (const auto& [lines, sign] : {std::pair(&left, "\n- "), {&came, "\n+ "}}) {
    const QStringList differ = lines->first(lines->size() - same);
    for (const QString& line : differ.first(std::min(MostShown, differ.size())))
      report += QLatin1StringView(sign) + line;
    if (differ.size() > MostShown) report += QStringLiteral("\n  and %1 more").arg(differ.size() - MostShown);
  }
  failResult(path, int(first) + 1, QStringLiteral("differs from here:") + report);
}

/// The bytes that a row tells: "|" ends a line, \x and two digits is a byte.
inline QByteArray bytesOf(QByteArray told, const char* lineEnd = "\n") {
  told.replace('|', lineEnd);
  for (qsizetype at = told.indexOf("\\x"); at >= 0; at = told.indexOf("\\x", at + 1)) {
    told.replace(at, 4, QByteArray::fromHex(told.mid(at + 2, 2)));
  }
  return told;
}

/// The other way round, with line ends of CR LF: what a row tells of bytes.
inline QString rowOf(QByteArray bytes) {
  QString row;
  for (const char byte : std::as_const(bytes.replace("\r\n", "|"))) {
    const bool plain = byte >= ' ' && byte <= '~';
    row += plain ? QString(QLatin1Char(byte)) : QStringLiteral("\\x%1").arg(uchar(byte), 2, 16, QLatin1Char('0'));
  }
  return row.endsWith(u' ') ? row.chopped(1) + QStringLiteral("\\x20") : row;
}

/// Compares a text whose rows are "given -> told": what is told of each anew. Other lines stay.
inline void compareRows(const QString& name, const std::function<QString(const QString& given)>& tell) {
  QFile file(resultFile(name));
  if (!file.open(QIODevice::ReadOnly)) return failResult(file.fileName(), 1, QStringLiteral("is missing"));
  QStringList rows = QString::fromUtf8(file.readAll()).chopped(1).split(u'\n');
  file.close();
  for (QString& row : rows) {
    const qsizetype arrow = row.indexOf(u" ->");
    if (arrow < 0) continue;
    const QString told = tell(row.first(arrow));
    row = row.first(arrow + 3) + (told.isEmpty() ? told : u' ' + told);
  }
  compareText(name, rows);
}

}  // namespace support
