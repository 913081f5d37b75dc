#include "toolwindow/edit_reports.h"

#include "platform/code_page.h"
#include "platform/dialogs.h"
#include "platform/numbers.h"
#include "themefiles/working_copies.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

bool usableName(const QString& name) {
  if (name.isEmpty() || platform::trimBlanks(name) != name) return false;
  if (name.startsWith(u';') || name.startsWith(u'[')) return false;
  for (const QChar letter : {QChar(u'='), QChar(u'\r'), QChar(u'\n'), QChar(u'\0')}) {
    if (name.contains(letter)) return false;
  }
  return !name.startsWith(u'\t') && !name.endsWith(u'\t') && platform::toAnsi(name).has_value();
}

}  // namespace

QString tooLongText(const QString& key) {
  return QStringLiteral("%1 is too long to be edited here").arg(key);
}

bool writeAtOnce(Form2& form, QStringView step, QString themefiles::ThemePaths::*copy, const QString& section,
                 const QString& key, const std::optional<QString>& value) {
  const ToolServices& services = form.services;
  return writeAtOnce(form, step,
                     [&] { themefiles::putInCopy(services.state, copy, section, key, value, services.status); });
}

bool writeAtOnce(Form2& form, QStringView step, const std::function<void()>& write) {
  platform::StatusLine& status = form.services.status;
  form.markLater();
  return platform::guarded(status, step.toString(), [&] {
    write();
    const QString kept = QStringLiteral("Kept in the working copy; the next Update makes Save available");
    status.ShowStatus(kept);
  });
}

void showErrorBox(Form2& form, const QString& text) {
  form.services.dialogs.messageBox(&form, text, QStringLiteral("Error"), platform::BoxKind::Error);
}

bool acceptNewName(Form2& form, const QString& name) {
  if (usableName(name)) return true;
  showErrorBox(form, QStringLiteral("This name can't be used!"));
  return false;
}

}  // namespace toolwindow
