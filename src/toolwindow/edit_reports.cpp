#include "toolwindow/edit_reports.h"

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themefiles/working_copies.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

bool usableName(const QString& name) {
  if (name.isEmpty() || platform::TrimBlanks(name) != name) return false;
  if (name.startsWith(u';') || name.startsWith(u'[')) return false;
  for (const QChar letter : {QChar(u'='), QChar(u'\r'), QChar(u'\n'), QChar(u'\0')}) {
    if (name.contains(letter)) return false;
  }
  return !name.startsWith(u'\t') && !name.endsWith(u'\t') && platform::ToAnsi(name).has_value();
}

}  // namespace

QString tooLongText(const QString& key) {
  return QStringLiteral("%1 is too long to be edited here").arg(key);
}

bool WriteAtOnce(Form2& form, QStringView step, QString themefiles::ThemePaths::*copy, const QString& section,
                 const QString& key, const std::optional<QString>& value) {
  ToolServices& services = form.Services;
  return writeAtOnce(form, step,
                     [&] { themefiles::PutInCopy(services.State, copy, section, key, value, services.Status); });
}

bool writeAtOnce(Form2& form, QStringView step, const std::function<void()>& write) {
  platform::StatusLine& status = form.Services.Status;
  form.Marking.start();
  return platform::Guarded(status, step.toString(), [&] {
    write();
    const QString kept = QStringLiteral("Kept in the working copy; the next Update makes Save available");
    status.ShowStatus(kept);
  });
}

void ShowErrorBox(Form2& form, const QString& text) {
  form.Services.Dialogs.MessageBox(&form, text, QStringLiteral("Error"), platform::BoxKind::Error);
}

bool AcceptNewName(Form2& form, const QString& name) {
  if (usableName(name)) return true;
  ShowErrorBox(form, QStringLiteral("This name can't be used!"));
  return false;
}

}  // namespace toolwindow
