#include "output.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/console.h"

namespace themechecktool {
namespace {

using themecheck::Finding;
using themecheck::Level;

QString counted(int number, const QString& what) {
  return QStringLiteral("%1 %2%3").arg(QString::number(number), what, number == 1 ? QString() : QStringLiteral("s"));
}

QString field(const QString& text) {
  return text.isEmpty() ? QStringLiteral("-") : text;
}

}  // namespace

Counts countsOf(const std::vector<Finding>& findings) {
  Counts counts;
  for (const Finding& finding : findings) {
    ++(finding.level == Level::Error     ? counts.errors
       : finding.level == Level::Warning ? counts.warnings
                                         : counts.notes);
  }
  return counts;
}

QString ignoredText(const Counts& counts) {
  return QStringLiteral("%1 ignored").arg(counts.ignored);
}

QString countsText(const Counts& counts) {
  QStringList texts{counted(counts.errors, QStringLiteral("error")),
                    counted(counts.warnings, QStringLiteral("warning")), counted(counts.notes, QStringLiteral("note"))};
  if (counts.ignored > 0) texts += ignoredText(counts);
  return texts.join(QStringLiteral(", "));
}

QString withoutPlace(const Finding& finding, const themecheck::Place& place) {
  return QStringList{nameOf(finding.level), field(place.section), field(place.key), finding.text}.join(
      QStringLiteral(": "));
}

QString lineOf(const Finding& finding) {
  const themecheck::Place& place = finding.place;
  QStringList head{place.file, QString::number(place.line)};
  if (place.column > 0) head += QString::number(place.column);
  const QString where = finding.where.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(finding.where);
  return platform::onOneLine(head.join(u':') + QStringLiteral(": ") + withoutPlace(finding, place) +
                             furtherSections(finding) + where);
}

QByteArray jsonOf(const std::vector<Finding>& findings) {
  QJsonArray array;
  for (const Finding& finding : findings) {
    array += QJsonObject{{QStringLiteral("file"), finding.place.file},
                         {QStringLiteral("line"), finding.place.line},
                         {QStringLiteral("column"), finding.place.column},
                         {QStringLiteral("level"), nameOf(finding.level)},
                         {QStringLiteral("section"), finding.place.section},
                         {QStringLiteral("key"), finding.place.key},
                         {QStringLiteral("text"), finding.text + furtherSections(finding)},
                         {QStringLiteral("skins"), QJsonArray::fromStringList(finding.skins)},
                         {QStringLiteral("languages"), QJsonArray::fromStringList(finding.languages)},
                         {QStringLiteral("schemes"), QJsonArray::fromStringList(finding.schemes)}};
  }
  return QJsonDocument(array).toJson();
}

}  // namespace themechecktool
