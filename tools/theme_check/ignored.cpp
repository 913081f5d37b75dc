#include "ignored.h"

#include <algorithm>

#include "output.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace themechecktool {
namespace {

QRegularExpression patternOf(const QString& line) {
  QString pattern = QRegularExpression::escape(line);
  pattern.replace(QStringLiteral("\\*"), QStringLiteral(".*")).replace(QStringLiteral("\\?"), QStringLiteral("."));
  return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                            QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
}

}  // namespace

Ignored::Ignored(const QString& path) {
  QByteArray bytes;
  try {
    bytes = platform::readFile(platform::programPath(path));
  } catch (const platform::Failure& failure) {
    throw platform::Failure(QStringLiteral("can't read %1 [%2]").arg(path, failure.description()));
  }
  for (const QString& line : QString::fromUtf8(bytes).split(u'\n')) {
    const QString pattern = line.trimmed();
    if (!pattern.isEmpty() && !pattern.startsWith(u'#')) patterns_.push_back(patternOf(pattern));
  }
}

bool Ignored::fits(const QString& text) const {
  return std::any_of(patterns_.begin(), patterns_.end(),
                     [&](const QRegularExpression& pattern) { return pattern.match(text).hasMatch(); });
}

int Ignored::takeOut(std::vector<themecheck::Finding>& findings) const {
  const auto gone = std::erase_if(findings, [&](themecheck::Finding& finding) {
    std::vector<themecheck::Place> places = finding.others;
    places.push_back(finding.place);
    std::erase_if(places, [&](const themecheck::Place& place) { return fits(withoutPlace(finding, place)); });
    if (places.empty()) return true;
    finding.others = std::move(places);
    placeFirst(finding);
    return false;
  });
  sortFindings(findings);
  return static_cast<int>(gone);
}

}  // namespace themechecktool
