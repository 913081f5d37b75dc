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
constexpr std::array CopiedFiles{&ThemePaths::ThemeFile, &ThemePaths::SkinFile, &ThemePaths::LanguageFile};
static_assert(CopiedFiles.size() == std::tuple_size_v<decltype(ModuleState::ownCopies)>);

QByteArray digest(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

/// Runs the work, and passes its notes to `status` even if it throws.
void withNotes(platform::StatusLine& status, const std::function<void(QStringList& notes)>& work) {
  QStringList notes;
  const auto tell = qScopeGuard([&] {
    if (!notes.isEmpty()) status.note(notes.join(QStringLiteral("; ")));
  });
  work(notes);
}

void noteOtherChanges(QStringList& notes, const QString& path, const QString& kept) {
  notes += QStringLiteral("%1 held other changes and is kept as %2").arg(path, kept);
}

platform::FileTurn turnAtCopy(const QString& copy) {
  return platform::FileTurn(copy, platform::AtLink::Replace);
}

QString gameFileOf(const QString& copy) {
  return copy.chopped(WorkingEnding.size());
}

/// A working copy that was made, and what was there before.
struct MadeCopy {
  QString path;
  QByteArray text;
  std::optional<QByteArray> older;
};

/// Makes the working copy of a file.
MadeCopy makeCopy(const QString& file, QStringList& notes) {
  const QString copy = file + WorkingEnding.toString();
  auto turn = turnAtCopy(copy);
  const platform::OpenFile original = platform::openFile(file);
  const QByteArray bytes = platform::bytesOf(original, file);
  const auto& older = turn.text();
  if (older && older != bytes) noteOtherChanges(notes, copy, keepBeside(copy, *older, u".old", *turn.present()));
  turn.replace(bytes, &original);
  return {copy, bytes, older};
}

/// The text that an edit or a Save starts from.
struct Start {
  QByteArray text;
  QString lost = {};  ///< why the working copy, which doesn't have this text, is made anew; else empty
};

/// Reads a working copy, in the turn at it. If another program has changed it, what this program wrote last is kept:
/// the next Save puts the other text in the game's file. If the copy is missing or empty, the result is what this
/// program wrote last.
Start startFrom(const platform::FileTurn& turn, const ModuleState& state, size_t file, QStringList& notes) {
  const QString& copy = state.paths.*CopiedFiles.at(file);
  const auto& present = turn.text();
  if (!state.ThemeOpened) return {present.value_or(QByteArray())};
  const QByteArray& own = state.ownCopies.at(file);
  // Another program that rewrites the file may have emptied it for a moment.
  const bool emptied = present && present->isEmpty() && !own.isEmpty();
  if (!present) return {own, QStringLiteral("%1 was gone and is made anew").arg(copy)};
  if (emptied) return {own, QStringLiteral("%1 was empty and is made anew").arg(copy)};
  if (present != own && !own.isEmpty()) {
    notes += QStringLiteral("%1 was changed by another program; what this one wrote is kept as %2")
                 .arg(copy, keepBeside(copy, own, u".old", *turn.present()));
  }
  return {*present};
}

/// Writes a working copy that is missing or empty. Nobody may read it who may not read the game's file.
void makeAnew(platform::FileTurn& turn, const QString& lost, const QString& copy, const QByteArray& text,
              QStringList& notes) {
  const auto original = platform::openIfThere(gameFileOf(copy));
  turn.replace(text, original ? &*original : nullptr);
  notes += lost;
}

/// Whether a file has that text; false if it can't be read.
bool holdsText(const QString& path, const QByteArray& text) {
  bool holds = false;
  platform::guardedSilently([&] { holds = platform::readIfThere(path) == text; });
  return holds;
}

/// Applies `change` to a working copy's text, writes it once, and checks that the file has the keys that were `edited`.
void editCopy(ModuleState& state, QString ThemePaths::*copy, platform::StatusLine& status,
              const std::vector<KeyValue>& edited, const std::function<QByteArray(const QByteArray& text)>& change) {
  const size_t file = copyNumber(copy);
  const QString& path = state.paths.*copy;
  withNotes(status, [&](QStringList& notes) {
    auto turn = turnAtCopy(path);
    const Start start = startFrom(turn, state, file, notes);
    const QByteArray changed = change(start.text);
    // A value that stands there already is written again.
    start.lost.isEmpty() ? turn.replace(changed) : makeAnew(turn, start.lost, path, changed, notes);
    state.ownCopies.at(file) = changed;
    if (edited.size() > 1 && holdsText(path, changed)) return;
    for (const KeyValue& each : edited) checkReadsBack(changed, each.section, each.key, path);
  });
}

/// Writes a text over the game's file. If another program has changed the file, its contents are kept. If the file is
/// gone, the new one may be read by whoever may read the working copy.
void saveCopy(const QString& file, const QByteArray& bytes, const QByteArray& knownDigest,
              const platform::OpenFile* copy, QStringList& notes) {
  platform::FileTurn turn(file);
  const auto& present = turn.text();
  if (present && digest(*present) != knownDigest && present != bytes) {
    noteOtherChanges(notes, file, keepBeside(file, *present, u".bak", *turn.present()));
  }
  turn.replace(bytes, present ? nullptr : copy);
}

/// Gives the working copies their former texts, except those that another program has changed since. One that fails is
/// told and holds up no other.
void putBack(const std::vector<MadeCopy>& copies, QStringList& notes) {
  for (const MadeCopy& copy : copies) {
    if (!copy.older || copy.older == copy.text) continue;
    const auto failure = platform::failureIn([&] {
      auto turn = turnAtCopy(copy.path);
      if (turn.text() == copy.text) turn.replace(*copy.older);
    });
    if (failure) notes += *failure;
  }
}

}  // namespace

void MakeWorkingCopies(ModuleState& state, const ThemePaths& chosen, platform::StatusLine& status) {
  std::vector<MadeCopy> copies;
  withNotes(status, [&](QStringList& notes) {
    try {
      for (const auto file : CopiedFiles) copies.push_back(makeCopy(chosen.*file, notes));
    } catch (...) {
      if (state.ThemeOpened) putBack(copies, notes);
      throw;
    }
  });
  state.paths = chosen;
  for (size_t i = 0; i < CopiedFiles.size(); ++i) {
    state.paths.*CopiedFiles.at(i) = copies.at(i).path;
    state.fileDigests.at(i) = digest(copies.at(i).text);
    state.ownCopies.at(i) = copies.at(i).text;
    state.savedCopies.at(i) = copies.at(i).text;
  }
  state.ThemeOpened = true;
}

size_t copyNumber(QString ThemePaths::*copy) {
  return static_cast<size_t>(std::find(CopiedFiles.begin(), CopiedFiles.end(), copy) - CopiedFiles.begin());
}

void putInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& Section, const QString& Key,
               const std::optional<QString>& Value, platform::StatusLine& status) {
  editCopy(state, copy, status, {{Section, Key, {}}},
           [&](const QByteArray& text) { return changedText(text, Section, Key, Value); });
}

void putValuesInCopy(ModuleState& state, QString ThemePaths::*copy, const std::vector<KeyValue>& values,
                     platform::StatusLine& status) {
  editCopy(state, copy, status, values, [&](QByteArray text) {
    for (const auto& [section, key, value] : values) text = changedText(text, section, key, value);
    return text;
  });
}

void putLinesInCopy(ModuleState& state, QString ThemePaths::*copy, const std::vector<KeyedLine>& lines,
                    platform::StatusLine& status) {
  std::vector<KeyValue> edited;
  edited.reserve(lines.size());
  for (const auto& [section, key, line] : lines) edited.push_back({section, key, {}});
  editCopy(state, copy, status, edited, [&](const QByteArray& text) { return changedLines(text, lines); });
}

QByteArray presentText(const ModuleState& state, QString ThemePaths::*copy) {
  const auto present = platform::readIfThere(state.paths.*copy, platform::AtLink::Replace);
  return present && !present->isEmpty() ? *present : state.ownCopies.at(copyNumber(copy));
}

void restoreCopy(ModuleState& state, QString ThemePaths::*copy, platform::StatusLine& status) {
  const auto present = platform::readIfThere(state.paths.*copy, platform::AtLink::Replace);
  if (present && (!present->isEmpty() || state.ownCopies.at(copyNumber(copy)).isEmpty())) return;
  editCopy(state, copy, status, {}, [](const QByteArray& text) { return text; });
}

void saveWorkingCopies(ModuleState& state, platform::StatusLine& status) {
  withNotes(status, [&](QStringList& notes) {
    for (size_t i = 0; i < CopiedFiles.size(); ++i) {
      const QString& copy = state.paths.*CopiedFiles.at(i);
      auto turn = turnAtCopy(copy);
      const Start start = startFrom(turn, state, i, notes);
      if (!start.lost.isEmpty()) makeAnew(turn, start.lost, copy, start.text, notes);
      saveCopy(gameFileOf(copy), start.text, state.fileDigests.at(i), turn.present(), notes);
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
