#include "mainwindows/open_files.h"

#include <algorithm>

#include "platform/code_page.h"
#include "themefiles/theme_paths.h"
#include "themefiles/working_copies.h"

namespace mainwindows {
namespace {

using themecheck::CheckedFile;
using themefiles::IniEnding;

CheckedFile openFile(const themefiles::ThemePaths& paths, const QString& copy) {
  const QString file = copy.chopped(themefiles::WorkingEnding.size());
  const QString name = file.sliced(file.lastIndexOf(u'\\') + 1).chopped(IniEnding.size());
  QString shown = file.sliced(paths.ExeDirectory.size());
  while (shown.startsWith(u'\\')) shown.remove(0, 1);
  return {name, copy, shown.replace(u'\\', u'/')};
}

/// The files of these names, the open one among them in any case.
std::vector<CheckedFile> withOpen(const CheckedFile& open, const QStringList& names) {
  std::vector<CheckedFile> files;
  bool found = false;
  for (const QString& name : names) {
    const bool isOpen = !found && platform::sameName(name, open.name);
    found = found || isOpen;
    files.push_back(isOpen ? open : CheckedFile{name, {}, {}});
  }
  if (!found) files.push_back(open);
  const QString folder = open.path.first(open.path.lastIndexOf(u'\\') + 1);
  const QString shownFolder = open.shown.first(open.shown.lastIndexOf(u'/') + 1);
  for (CheckedFile& file : files) {
    if (!file.path.isEmpty()) continue;
    file.path = folder + file.name + IniEnding;
    file.shown = shownFolder + file.name + IniEnding;
  }
  return files;
}

}  // namespace

OpenFiles::OpenFiles(const themefiles::ThemePaths& paths)
    : theme(openFile(paths, paths.ThemeFile)),
      skin(openFile(paths, paths.SkinFile)),
      language(openFile(paths, paths.LanguageFile)),
      skins(withOpen(skin, themefiles::skinsOf(paths.ExeDirectory, theme.name))),
      languages(withOpen(language, themefiles::languagesOf(paths.ExeDirectory))) {}

}  // namespace mainwindows
