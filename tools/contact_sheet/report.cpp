#include "report.h"

#include <algorithm>

#include <QStringList>

#include "platform/code_page.h"

namespace contactsheet {
namespace {

/// A theme's files may spell one section in several ways.
template <typename Entries>
bool names(const Entries& entries, const QString& section) {
  return std::any_of(entries.begin(), entries.end(),
                     [&](const auto& entry) { return platform::SameName(entry.section, section); });
}

QStringList reasonsFor(const QString& section, const renderer::RenderAccount& account) {
  QStringList reasons;
  for (const renderer::LeftOut& entry : account.Missing) {
    if (platform::SameName(entry.Section, section)) reasons += renderer::ReasonText(entry);
  }
  reasons.removeDuplicates();
  return reasons;
}

ReportRow rowOf(const QString& section, bool isBackground, const renderer::RenderAccount& account) {
  const QStringList reasons = reasonsFor(section, account);
  ReportRow row{section, false, reasons.join(QStringLiteral("; "))};
  // The background isn't in the account's list of objects: it is no object that can be picked.
  row.drawn = (isBackground && reasons.isEmpty()) ||
              std::any_of(account.Objects.begin(), account.Objects.end(),
                          [&](const renderer::Drawn& object) { return platform::SameName(object.Section, section); });
  if (!row.drawn && reasons.isEmpty()) row.reason = QStringLiteral("not part of the preview");
  return row;
}

/// A text that stays in its field of the table.
QString field(QString text) {
  return text.replace(u'\t', u' ');
}

}  // namespace

std::vector<ReportRow> RowsOf(const QString& background, const themefiles::TagList& tags,
                              const renderer::RenderAccount& account) {
  QStringList sections{background};
  for (int row = 0; row < tags.ListCount(); ++row) sections += tags.List(row);
  for (const renderer::Drawn& object : account.Objects) sections += object.Section;
  for (const renderer::LeftOut& entry : account.Missing) sections += entry.Section;
  std::vector<ReportRow> rows;
  for (const QString& section : sections) {
    if (!names(rows, section)) rows.push_back(rowOf(section, rows.empty(), account));
  }
  return rows;
}

QByteArray ReportText(const std::vector<std::vector<ReportRow>>& screens) {
  QString text = QStringLiteral("screen\tsection\tresult\treason\n");
  int number = 0;
  for (const std::vector<ReportRow>& rows : screens) {
    ++number;
    for (const ReportRow& row : rows) {
      text += QStringLiteral("%1\t%2\t%3\t%4\n")
                  .arg(QString::number(number), field(row.section),
                       row.drawn ? QStringLiteral("drawn") : QStringLiteral("left out"), field(row.reason));
    }
  }
  return text.toUtf8();
}

}  // namespace contactsheet
