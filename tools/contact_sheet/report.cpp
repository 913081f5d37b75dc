#include "report.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include "platform/code_page.h"

namespace contactsheet {
namespace {

/// What a render says of each section. A theme's files may spell one section in several ways.
class Outcomes {
 public:
  explicit Outcomes(const renderer::RenderAccount& account) : drawn_(renderer::drawnSections(account)) {
    for (const renderer::LeftOut& entry : account.missing) {
      QStringList& reasons = reasons_[platform::upperCase(entry.section)];
      const QString reason = renderer::reasonText(entry);
      if (!reasons.contains(reason)) reasons += reason;
    }
  }

  ReportRow rowOf(const QString& section) const {
    const QString name = platform::upperCase(section);
    const QStringList reasons = reasons_.value(name);
    const bool drawn = drawn_.contains(name);
    const bool told = drawn || !reasons.isEmpty();
    return {section, drawn, told ? reasons.join(QStringLiteral("; ")) : QStringLiteral("not part of the preview")};
  }

 private:
  QSet<QString> drawn_;
  QHash<QString, QStringList> reasons_;
};

/// A text that stays in its field of the table.
QString field(QString text) {
  return text.replace(u'\t', u' ');
}

}  // namespace

std::vector<ReportRow> rowsOf(const themefiles::TagList& tags, const renderer::RenderAccount& account) {
  QStringList sections{account.background};
  for (int row = 0; row < tags.ListCount(); ++row) sections += tags.List(row);
  for (const renderer::DrawnObject& object : account.objects) sections += object.section;
  for (const renderer::LeftOut& entry : account.missing) sections += entry.section;
  const Outcomes outcomes(account);
  QSet<QString> told;
  std::vector<ReportRow> rows;
  for (const QString& section : sections) {
    const qsizetype before = told.size();
    told.insert(platform::upperCase(section));
    if (told.size() > before) rows.push_back(outcomes.rowOf(section));
  }
  return rows;
}

QByteArray reportText(const std::vector<std::vector<ReportRow>>& screens) {
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
