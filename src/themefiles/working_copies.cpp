#include "themefiles/working_copies.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include <QCryptographicHash>
#include <QScopeGuard>
#include <QStringList>

#include "platform/failure.h"
#include "platform/files.h"
#include "themefiles/ini_access.h"
#include "themefiles/kept_files.h"

namespace themefiles {
namespace {

/// The files of a theme in the order in which they are copied.
constexpr std::array<QString ThemePaths::*, 3> CopiedFiles{&ThemePaths::ThemeFile, &ThemePaths::SkinFile,
                                                           &ThemePaths::LanguageFile};

QByteArray digest(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

/// Runs the work, and passes its notes to `status` even if it throws.
void telling(platform::StatusLine& status, const std::function<void(QStringList& notes)>& work) {
  QStringList notes;
  const auto tell = qScopeGuard([&] {
    if (!notes.isEmpty()) status.note(notes.join(QStringLiteral("; ")));
  });
  work(notes);
}

void noteOtherChanges(QStringList& notes, const QString& path, const QString& kept) {
  notes += QStringLiteral("%1 held other changes and is kept as %2").arg(path, kept);
}

std::optional<QByteArray> readCopy(const QString& copy) {
  return platform::readIfThere(copy, platform::AtLink::Replace);
}

void writeCopy(const QString& copy, const QByteArray& bytes) {
  platform::writeFile(copy, bytes, platform::AtLink::Replace);
}

/// Makes the working copy of a file and returns the contents.
QByteArray makeCopy(const QString& file, QStringList& notes) {
  const QString copy = file + WorkingEnding.toString();
  const QByteArray bytes = platform::readFile(file);
  const auto older = readCopy(copy);
  if (older && older != bytes) noteOtherChanges(notes, copy, keepBeside(copy, *older, u".old"));
  writeCopy(copy, bytes);
  return bytes;
}

/// The text that an edit or a Save starts from.
struct Start {
  QByteArray text;
  bool isThere = true;  ///< the working copy has this text
};

/// Reads a working copy. If another program has changed it, what this program wrote last is kept: the next Save puts
/// the other text in the game's file. If the copy is missing or empty, the result is what this program wrote last.
Start startFrom(const ModuleState& state, size_t file, QStringList& notes) {
  const QString& copy = state.paths.*CopiedFiles.at(file);
  const auto standing = readCopy(copy);
  if (!state.ThemeOpened) return {standing.value_or(QByteArray()), standing.has_value()};
  const QByteArray& own = state.ownCopies.at(file);
  // Another program that rewrites the file may have emptied it for a moment.
  const bool emptied = standing && standing->isEmpty() && !own.isEmpty();
  if (!standing || emptied) {
    const QString note =
        emptied ? QStringLiteral("%1 was empty and is made anew") : QStringLiteral("%1 was gone and is made anew");
    notes += note.arg(copy);
    return {own, false};
  }
  if (standing != own && !own.isEmpty()) {
    notes += QStringLiteral("%1 was changed by another program; what this one wrote is kept as %2")
                 .arg(copy, keepBeside(copy, own, u".old"));
  }
  return {*standing};
}

/// Applies `change` to a working copy's text, writes it once, and checks that the file has the keys.
void editCopy(ModuleState& state, QString ThemePaths::*copy, platform::StatusLine& status, const QString& section,
              const QStringList& keys, const std::function<QByteArray(const QByteArray& text)>& change) {
  const size_t file = copyNumber(copy);
  const QString& path = state.paths.*copy;
  telling(status, [&](QStringList& notes) {
    const Start start = startFrom(state, file, notes);
    const QByteArray changed = change(start.text);
    if (!start.isThere || changed != start.text) writeCopy(path, changed);
    state.ownCopies.at(file) = changed;
    for (const QString& key : keys) checkReadsBack(changed, section, key, path);
  });
}

/// Writes a text over the game's file. If another program has changed the file, its contents are kept.
void saveCopy(const QString& file, const QByteArray& bytes, const QByteArray& knownDigest, QStringList& notes) {
  const auto present = platform::readIfThere(file);
  if (present && digest(*present) != knownDigest && present != bytes) {
    noteOtherChanges(notes, file, keepBeside(file, *present, u".bak"));
  }
  platform::writeFile(file, bytes);
}

/// A file and its former contents.
struct KeptFile {
  QString path;
  QByteArray bytes;
};

/// The current working copies of the open theme, or none.
std::vector<KeptFile> openCopies(const ModuleState& state) {
  std::vector<KeptFile> copies;
  if (!state.ThemeOpened) return copies;
  for (const auto file : CopiedFiles) {
    const QString& path = state.paths.*file;
    if (auto bytes = readCopy(path)) copies.push_back({path, std::move(*bytes)});
  }
  return copies;
}

void putBack(const std::vector<KeptFile>& files) {
  for (const KeptFile& file : files) {
    if (readCopy(file.path) != file.bytes) writeCopy(file.path, file.bytes);
  }
}

}  // namespace

void MakeWorkingCopies(ModuleState& state, const ThemePaths& chosen, platform::StatusLine& status) {
  std::array<QByteArray, CopiedFiles.size()> copies;
  ThemePaths opened = chosen;
  const std::vector<KeptFile> before = openCopies(state);
  telling(status, [&](QStringList& notes) {
    try {
      for (size_t i = 0; i < CopiedFiles.size(); ++i) {
        copies.at(i) = makeCopy(chosen.*CopiedFiles.at(i), notes);
        opened.*CopiedFiles.at(i) += WorkingEnding.toString();
      }
    } catch (const platform::Failure&) {
      putBack(before);
      throw;
    }
  });
  state.paths = opened;
  std::transform(copies.begin(), copies.end(), state.fileDigests.begin(), digest);
  state.ownCopies = copies;
  state.savedCopies = copies;
  state.ThemeOpened = true;
}

size_t copyNumber(QString ThemePaths::*copy) {
  return static_cast<size_t>(std::find(CopiedFiles.begin(), CopiedFiles.end(), copy) - CopiedFiles.begin());
}

void putInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& Section, const QString& Key,
               const std::optional<QString>& Value, platform::StatusLine& status) {
  editCopy(state, copy, status, Section, {Key},
           [&](const QByteArray& text) { return changedText(text, Section, Key, Value); });
}

void putValuesInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& section,
                     const std::vector<std::pair<QString, QString>>& values, platform::StatusLine& status) {
  QStringList keys;
  for (const auto& [key, value] : values) keys += key;
  editCopy(state, copy, status, section, keys, [&](QByteArray text) {
    for (const auto& [key, value] : values) text = changedText(text, section, key, value);
    return text;
  });
}

void putLineInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& section, const QString& key,
                   const QByteArray& line, platform::StatusLine& status) {
  editCopy(state, copy, status, section, {key},
           [&](const QByteArray& text) { return changedLine(text, section, key, line); });
}

void saveWorkingCopies(ModuleState& state, platform::StatusLine& status) {
  telling(status, [&](QStringList& notes) {
    for (size_t i = 0; i < CopiedFiles.size(); ++i) {
      const QString& copy = state.paths.*CopiedFiles.at(i);
      const Start start = startFrom(state, i, notes);
      if (!start.isThere) writeCopy(copy, start.text);
      saveCopy(copy.chopped(WorkingEnding.size()), start.text, state.fileDigests.at(i), notes);
      state.ownCopies.at(i) = start.text;
      state.fileDigests.at(i) = digest(start.text);
      state.savedCopies.at(i) = start.text;
    }
  });
  state.Changed = false;
}

void forgetTheme(ModuleState& state) {
  state.Changed = false;
  state.paths = {};
  state.ThemeOpened = false;
  state.fileDigests = {};
  state.ownCopies = {};
  state.savedCopies = {};
  state.ThemeColors = {};
  state.ScreenTable = {};
}

}  // namespace themefiles
