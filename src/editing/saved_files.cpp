#include "editing/saved_files.h"

#include "themefiles/working_copies.h"

namespace editing {
namespace {

using themefiles::ThemePaths;

}  // namespace

ComparedFile::ComparedFile(const themefiles::ModuleState& state, QString ThemePaths::*of)
    : copy(of),
      now(platform::IniText(themefiles::presentText(state, of))),
      saved(platform::IniText(state.savedCopies.at(themefiles::copyNumber(of)))) {}

ComparedFiles::ComparedFiles(const themefiles::ModuleState& state)
    : theme(state, &ThemePaths::ThemeFile),
      skin(state, &ThemePaths::SkinFile),
      language(state, &ThemePaths::LanguageFile) {}

const ComparedFile& ComparedFiles::of(QString ThemePaths::*copy) const {
  if (copy == &ThemePaths::SkinFile) return skin;
  return copy == &ThemePaths::LanguageFile ? language : theme;
}

bool differ(const platform::IniLine* a, const platform::IniLine* b) {
  if (a == nullptr || b == nullptr) return a != b;
  return a->value != b->value;
}

}  // namespace editing
