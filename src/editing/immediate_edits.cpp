#include "editing/immediate_edits.h"

#include "editing/reports.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themefiles/working_copies.h"

namespace editing {

bool writeAtOnce(Session& session, QStringView step, const std::function<void()>& write) {
  const bool done = platform::guarded(session.status(), step.toString(), [&] {
    write();
    session.status().ShowStatus(KeptInCopy.toString());
  });
  Q_EMIT session.differencesDue();
  return done;
}

bool writeAtOnce(Session& session, QStringView step, QString themefiles::ThemePaths::*copy, const QString& section,
                 const QString& key, const std::optional<QString>& value) {
  return writeAtOnce(session, step,
                     [&] { themefiles::putInCopy(session.state(), copy, section, key, value, session.status()); });
}

bool isUsableName(const QString& name) {
  if (name.isEmpty() || platform::trimBlanks(name) != name) return false;
  if (name.startsWith(u';') || name.startsWith(u'[')) return false;
  for (const QChar letter : {QChar(u'='), QChar(u'\r'), QChar(u'\n'), QChar(u'\0')}) {
    if (name.contains(letter)) return false;
  }
  return !name.startsWith(u'\t') && !name.endsWith(u'\t') && platform::toAnsi(name).has_value();
}

}  // namespace editing
