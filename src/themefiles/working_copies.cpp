#include "themefiles/working_copies.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include <QCryptographicHash>
#include <QStringList>

#include "platform/failure.h"
#include "platform/files.h"
#include "themefiles/ini_access.h"

namespace themefiles {
namespace {

/// The files of a theme in the order in which they are copied.
constexpr std::array<QString ThemePaths::*, 3> CopiedFiles{&ThemePaths::ThemeFile, &ThemePaths::SkinFile,
                                                           &ThemePaths::LanguageFile};

QByteArray digest(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

QString keepBeside(const QString& path, const QByteArray& bytes, QStringView ending) {
  QString kept = path + ending.toString();
  platform::WriteFile(kept, bytes);
  return kept;
}

/// Tells all that `work` notes, at once: the status line holds one report. A failure carries it along.
void telling(platform::StatusLine& status, const std::function<void(QStringList& notes)>& work) {
  QStringList notes;
  try {
    work(notes);
  } catch (const platform::Failure& failure) {
    notes.prepend(failure.description());
    throw platform::Failure(notes.join(QStringLiteral("; ")));
  }
  if (!notes.isEmpty()) status.ShowStatus(notes.join(QStringLiteral("; ")));
}

void noteOtherChanges(QStringList& notes, const QString& path, const QString& kept) {
  notes += QStringLiteral("%1 held other changes and is kept as %2").arg(path, kept);
}

/// Makes the working copy of a file; gives what stands in both.
QByteArray makeCopy(const QString& file, QStringList& notes) {
  const QString copy = file + WorkingEnding.toString();
  const QByteArray bytes = platform::ReadFile(file);
  if (platform::FileExists(copy)) {
    const QByteArray older = platform::ReadFile(copy);
    if (older != bytes) noteOtherChanges(notes, copy, keepBeside(copy, older, u".old"));
  }
  platform::WriteFile(copy, bytes);
  return bytes;
}

/// Sees to a working copy that isn't as this program left it; gives what the user has to know of that. The program's
/// own text is worth keeping only with edits in it.
QString mindOwnCopy(const ModuleState& state, size_t file) {
  if (!state.ThemeOpened) return {};
  const QString& copy = state.Paths.*CopiedFiles.at(file);
  const QByteArray& own = state.OwnCopies.at(file);
  if (!platform::FileExists(copy)) {
    platform::WriteFile(copy, own);
    return QStringLiteral("%1 was gone and is made anew").arg(copy);
  }
  if (platform::ReadFile(copy) == own || digest(own) == state.FileDigests.at(file)) return {};
  return QStringLiteral("%1 was changed by another program; what this one wrote is kept as %2")
      .arg(copy, keepBeside(copy, own, u".old"));
}

/// Copies a working copy over its file; gives what stands in both now.
QByteArray saveCopy(const QString& copy, const QByteArray& knownDigest, QStringList& notes) {
  const QString file = copy.chopped(WorkingEnding.size());
  const QByteArray bytes = platform::ReadFile(copy);
  if (platform::FileExists(file)) {
    const QByteArray present = platform::ReadFile(file);
    if (digest(present) != knownDigest && present != bytes) {
      noteOtherChanges(notes, file, keepBeside(file, present, u".bak"));
    }
  }
  platform::WriteFile(file, bytes);
  return bytes;
}

/// A file and what stood in it.
struct KeptFile {
  QString path;
  QByteArray bytes;
};

/// The working copies of the theme that is open, as they are now; none without one.
std::vector<KeptFile> openCopies(const ModuleState& state) {
  std::vector<KeptFile> copies;
  if (!state.ThemeOpened) return copies;
  for (const auto file : CopiedFiles) {
    const QString& path = state.Paths.*file;
    if (platform::FileExists(path)) copies.push_back({path, platform::ReadFile(path)});
  }
  return copies;
}

void putBack(const std::vector<KeptFile>& files) {
  for (const KeptFile& file : files) {
    if (!platform::FileExists(file.path) || platform::ReadFile(file.path) != file.bytes) {
      platform::WriteFile(file.path, file.bytes);
    }
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
  state.Paths = opened;
  std::transform(copies.begin(), copies.end(), state.FileDigests.begin(), digest);
  state.OwnCopies = copies;
  state.ThemeOpened = true;
}

QString PutInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& Section, const QString& Key,
                  const std::optional<QString>& Value) {
  const auto file = static_cast<size_t>(std::find(CopiedFiles.begin(), CopiedFiles.end(), copy) - CopiedFiles.begin());
  const QString note = mindOwnCopy(state, file);
  state.OwnCopies.at(file) = PutINIChecked(Section, Key, Value, state.Paths.*copy);
  return note;
}

void SaveWorkingCopies(ModuleState& state, platform::StatusLine& status) {
  telling(status, [&](QStringList& notes) {
    for (size_t i = 0; i < CopiedFiles.size(); ++i) {
      const QString note = mindOwnCopy(state, i);
      if (!note.isEmpty()) notes += note;
      state.OwnCopies.at(i) = saveCopy(state.Paths.*CopiedFiles.at(i), state.FileDigests.at(i), notes);
      state.FileDigests.at(i) = digest(state.OwnCopies.at(i));
    }
  });
  state.Changed = false;
}

void ForgetTheme(ModuleState& state) {
  state.Changed = false;
  state.Paths = {};
  state.ThemeOpened = false;
  state.FileDigests = {};
  state.OwnCopies = {};
  state.ThemeColors = {};
  state.ScreenTable = {};
}

}  // namespace themefiles
