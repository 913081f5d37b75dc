#include "theme.h"

#include <QDir>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_paths.h"

namespace contactsheet {
namespace {

void copyFile(const QString& from, const QString& to) {
  QByteArray bytes;
  try {
    bytes = platform::readFile(from);
  } catch (const platform::Failure& failure) {
    throw platform::Failure(
        QStringLiteral("can't read %1 [%2]").arg(platform::nativePath(from), failure.description()));
  }
  platform::writeFile(to, bytes);
}

}  // namespace

Theme::Theme(const QString& gameFolder, const QString& theme, const QString& skin, const QString& language,
             platform::StatusLine& status) {
  if (!folder_.isValid()) throw platform::Failure(QStringLiteral("no temporary folder: ") + folder_.errorString());
  const QString copies = platform::programPath(folder_.path());
  const QString game = platform::programPath(QDir(gameFolder).absolutePath()) + u'\\';
  const themefiles::ThemePaths chosen = themefiles::pathsOf(game, theme, skin, language);
  themefiles::ThemePaths& paths = state_.paths = chosen;
  paths.ThemeFile = copies + QStringLiteral("\\theme.ini");
  paths.SkinFile = copies + QStringLiteral("\\skin.ini");
  paths.LanguageFile = copies + QStringLiteral("\\language.ini");
  copyFile(chosen.ThemeFile, paths.ThemeFile);
  copyFile(chosen.SkinFile, paths.SkinFile);
  copyFile(chosen.LanguageFile, paths.LanguageFile);
  state_.ThemeOpened = true;
  themefiles::InitScreenTable(state_);
  themefiles::ReadColors(state_, status);
}

QString Theme::schemeNamed(const QString& name) const {
  const QStringList schemes = themefiles::schemeNames(state_);
  if (name.isEmpty()) return schemes.value(0);
  if (schemes.contains(name)) return name;
  throw platform::Failure(
      QStringLiteral("no colour scheme '%1'; there are: %2").arg(name, schemes.join(QStringLiteral(", "))));
}

}  // namespace contactsheet
