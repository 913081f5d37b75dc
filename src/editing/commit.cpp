#include "editing/commit.h"

#include <algorithm>
#include <iterator>

#include "editing/reference_keys.h"
#include "editing/reports.h"
#include "editing/theme_colours.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/ini_reading.h"
#include "platform/numbers.h"
#include "renderer/object_passes.h"
#include "themefiles/ini_access.h"
#include "themefiles/mark_record.h"
#include "themefiles/tag_reader.h"
#include "themefiles/working_copies.h"

namespace editing {
namespace {

using themefiles::EditorFrame;
using themefiles::ThemePaths;

/// Throws platform::Failure for a section that can't be written into.
void checkSection(const QString& section) {
  if (section.isEmpty()) throw platform::Failure(QStringLiteral("no object is selected"));
  if (section.contains(u']') || section.startsWith(u'\t') || section.endsWith(u'\t')) {
    throw platform::Failure(QStringLiteral("the section %1 can't be found again").arg(section));
  }
}

QString assignment(const QString& key, const QString& value) {
  return key + QStringLiteral(" = ") + value;
}

/// What is told of a key of the language or the skin: "words 'SONG' = Choose a song".
QString contentAssignment(QString ThemePaths::*copy, const QString& name, const QString& content) {
  const bool isWords = copy == &ThemePaths::LanguageFile;
  return assignment((isWords ? QStringLiteral("words '") : QStringLiteral("texture '")) + name + u'\'', content);
}

void put(const Session& session, QString ThemePaths::*copy, const QString& section, const QString& key,
         const QString& value) {
  themefiles::putInCopy(session.state(), copy, section, key, value, session.status());
}

/// The value before an edit; none if there is none, or if it can't be read.
std::optional<QString> presentValue(const Session& session, QString ThemePaths::*copy, const QString& section,
                                    const QString& key) {
  std::optional<QString> value;
  platform::guardedSilently(
      [&] { value = themefiles::wholeValue(themefiles::presentText(session.state(), copy), section, key); });
  return value;
}

/// A row that is edited: the section and the key that it stands for.
struct Target {
  QString section;
  QString key;   ///< its identity
  QString name;  ///< as the row shows it
};

/// Writes a reference into the theme, and what it stands for into the file that has that. Adds to `told` which of both
/// has changed.
void writeReference(const Session& session, const Target& target, ReferenceKind kind, const Proposal& proposal,
                    QStringList& told) {
  const QString& name = *proposal.value;
  const ReferenceFile file = fileOf(kind);
  themefiles::checkLineText(proposal.content);
  const bool renamed = presentValue(session, &ThemePaths::ThemeFile, target.section, target.key) != name;
  const bool refilled = presentValue(session, file.copy, file.section, name) != proposal.content;
  put(session, &ThemePaths::ThemeFile, target.section, target.key, name);
  put(session, file.copy, file.section, name, proposal.content);
  if (!refilled) return;
  if (renamed) told += assignment(target.name, name);
  told += contentAssignment(file.copy, name, proposal.content);
}

void write(const Session& session, const Target& target, EditorFrame frame, const Proposal& proposal,
           QStringList& told) {
  if (!proposal.value) throw platform::Failure(QStringLiteral("nothing is selected"));
  const auto kind = referenceOf(frame);
  if (kind) {
    writeReference(session, target, *kind, proposal, told);
  } else {
    put(session, &ThemePaths::ThemeFile, target.section, target.key, *proposal.value);
  }
}

/// Brings a value that was written into the row and into the record that the mark is drawn from.
void show(Session& session, int row, const QString& key, const QString& value) {
  Q_EMIT session.valueWritten(row, key, value);
  themefiles::followCommit(session.state().CursorRect, key, value);
}

/// The steps of a commit behind its writes; `told` is what it has changed.
void finish(Session& session, const QStringList& sections, const QString& told) {
  session.state().Changed = true;
  Q_EMIT session.changed();
  session.status().showDone(told);
  Q_EMIT session.drawWanted();
  // If another object was picked during the drawing, it has its mark already.
  if (sections.contains(session.section())) Q_EMIT session.markWanted(MarkReason::Committed);
}

KeyPlace placeOf(const SavedLine& saved) {
  return {saved.copy, saved.section, saved.key};
}

QString toldOf(const QString& section, const QStringList& assignments) {
  return section + QStringLiteral(": ") + assignments.join(QStringLiteral(", "));
}

/// Runs a commit. Returns whether it succeeded.
bool run(Session& session, const std::function<void()>& steps) {
  const auto scope = std::make_shared<platform::ReportScope>(session.status());
  session.status().startAnew();
  const bool done = platform::guarded(session.status(), WriteStep.toString(), steps);
  Q_EMIT session.differencesDue();
  Q_EMIT session.edited(scope);
  return done;
}

/// A commit into a row. `write` gives the row's new value, none if it stays, and adds to `told` what has changed if
/// that isn't the row's value.
bool runInRow(Session& session, const EditedRow& row,
              const std::function<std::optional<QString>(const Target& target, QStringList& told)>& write) {
  return run(session, [&] {
    if (row.number < 0) throw platform::Failure(QStringLiteral("no row is selected"));
    const Target target{session.section(), themefiles::keyIdentity(row.key), platform::trimBlanks(row.key)};
    checkSection(target.section);
    QStringList told;
    const auto value = write(target, told);
    if (value) show(session, row.number, target.key, *value);
    if (told.isEmpty()) told += assignment(target.name, value.value_or(row.value));
    finish(session, {target.section}, toldOf(target.section, told));
  });
}

/// Whether a value of that group stands for what the line has.
bool refersTo(std::optional<themefiles::KeyGroup> group, const QString& value, const SavedLine& line) {
  if (!platform::sameName(value, line.key)) return false;
  if (group == themefiles::KeyGroup::Color) return isColor(placeOf(line));
  const auto kind = group ? referenceOf(themefiles::rowOf(*group).frame) : std::nullopt;
  return kind && fileOf(*kind).copy == line.copy;
}

/// What the chosen object's references and colours stand for has been put back: an open editor of one shows it.
void showContents(Session& session, const std::vector<SavedLine>& written) {
  QByteArray file;
  platform::guardedSilently([&] { file = themefiles::presentText(session.state(), &ThemePaths::ThemeFile); });
  const auto section = platform::toAnsi(session.section()).value_or(QByteArray());
  const auto lines = platform::iniLines(platform::findIniSection(file, section).value_or(QByteArrayView()));
  for (const platform::IniLine& line : lines) {
    if (platform::lineOf(lines, line.key) != &line) continue;  // the first of a key counts
    const QString key = themefiles::keyIdentity(platform::fromAnsi(line.key));
    const QString value = platform::fromAnsi(platform::unquoted(line.value));
    const bool shows = std::any_of(written.begin(), written.end(), [&](const SavedLine& each) {
      return refersTo(themefiles::groupOf(key), value, each);
    });
    if (shows) Q_EMIT session.valueWritten(-1, key, themefiles::rowValue(line.line));
  }
}

/// The steps behind the writes of saved lines.
void followPutBack(Session& session, const std::vector<SavedLine>& written) {
  if (written.empty()) return;
  QStringList sections;
  QStringList colors;
  bool isReadAnew = false;
  for (const SavedLine& line : written) {
    if (isColor(placeOf(line))) {
      colors += line.key;
    } else if (line.copy == &ThemePaths::ThemeFile) {
      sections += line.section;
      isReadAnew = isReadAnew || (line.isGone && platform::sameName(line.section, session.section()));
    }
  }
  if (!colors.isEmpty()) followColors(session, colors);
  if (isReadAnew) {
    Q_EMIT session.valuesRead(themefiles::ReadTag(session.state(), session.object(), session.status()));
  } else {
    for (const SavedLine& line : written) {
      if (line.copy != &ThemePaths::ThemeFile || !platform::sameName(line.section, session.section())) continue;
      show(session, -1, themefiles::keyIdentity(line.key), themefiles::rowValue(line.line));
    }
  }
  if (!isReadAnew && (!colors.isEmpty() || written.size() > static_cast<size_t>(sections.size())))
    showContents(session, written);
  const QString told = QStringLiteral("Put back: ") + countOf(static_cast<int>(written.size()));
  if (static_cast<qsizetype>(written.size()) > colors.size()) {
    const bool isChosen = std::any_of(sections.begin(), sections.end(), [&](const QString& section) {
      return platform::sameName(section, session.section());
    });
    return finish(session, isChosen ? QStringList{session.section()} : QStringList(), told);
  }
  session.status().showDone(told);
  session.status().ShowStatus(KeptInCopy.toString());
}

}  // namespace

QString changeText(EditorFrame frame, const QString& key, const Proposal& before, const Proposal& proposal) {
  if (!proposal.value) return {};
  QStringList changes;
  const auto kind = referenceOf(frame);
  if (proposal.value != before.value) changes += assignment(platform::trimBlanks(key), *proposal.value);
  if (kind && proposal.content != before.content) {
    changes += contentAssignment(fileOf(*kind).copy, *proposal.value, proposal.content);
  }
  return changes.join(QStringLiteral(", "));
}

bool commitRow(Session& session, const EditedRow& row, const std::function<Proposal(EditorFrame)>& editor) {
  return runInRow(session, row, [&](const Target& target, QStringList& told) -> std::optional<QString> {
    const auto group = themefiles::groupOf(target.key);
    if (!group) return std::nullopt;
    if (row.value.size() > LongestValue) throw platform::Failure(tooLongText(row.key));
    const EditorFrame frame = themefiles::rowOf(*group).frame;
    const Proposal proposal = editor(frame);
    write(session, target, frame, proposal, told);
    return proposal.value;
  });
}

bool putSavedBack(Session& session, const EditedRow& row, const SavedValue& saved) {
  return runInRow(session, row, [&](const Target& target, QStringList& told) {
    putLinesBack(session.state(), saved.lines, session.status());
    for (const SavedLine& line : saved.lines) {
      const bool isReferred = line.copy != &ThemePaths::ThemeFile;
      const QString content = platform::trimBlanks(platform::fromAnsi(line.line).section(u'=', 1));
      told += isReferred ? contentAssignment(line.copy, line.key, content) : assignment(target.name, saved.value);
    }
    return std::optional(saved.value);
  });
}

QString countOf(int values) {
  return QString::number(values) + (values == 1 ? QStringLiteral(" value") : QStringLiteral(" values"));
}

bool putBack(Session& session, const std::vector<KeyPlace>& places) {
  return run(session, [&] {
    const std::vector<SavedLine> lines = savedLines(session.state(), places);
    std::vector<SavedLine> written;
    std::optional<QString> failure;
    for (const auto copy : {&ThemePaths::ThemeFile, &ThemePaths::SkinFile, &ThemePaths::LanguageFile}) {
      std::vector<SavedLine> own;
      std::copy_if(lines.begin(), lines.end(), std::back_inserter(own),
                   [&](const SavedLine& line) { return line.copy == copy; });
      failure = platform::failureIn([&] { putLinesBack(session.state(), own, session.status()); });
      if (failure) break;
      written.insert(written.end(), own.begin(), own.end());
    }
    followPutBack(session, written);
    if (failure) throw platform::Failure(*failure);
    if (written.empty()) session.status().ShowStatus(QStringLiteral("Nothing to put back"));
  });
}

bool commitValues(Session& session, const std::vector<renderer::TrialValues>& objects) {
  bool written = false;
  run(session, [&] {
    std::vector<themefiles::KeyValue> all;
    QStringList sections;
    const QString button = renderer::buttonOfText(session.section());
    QStringList told;
    for (const auto& [section, values] : objects) {
      checkSection(section);
      QStringList assignments;
      for (const auto& [key, value] : values) {
        all.push_back({section, themefiles::keyIdentity(key), value});
        assignments += assignment(key, value);
      }
      sections += section;
      if (platform::sameName(section, button)) sections += session.section();  // which goes along
      told += toldOf(section, assignments);
    }
    themefiles::putValuesInCopy(session.state(), &ThemePaths::ThemeFile, all, session.status());
    written = true;
    for (const auto& [section, key, value] : all) {
      if (section == session.section()) show(session, -1, key, value);
    }
    finish(session, sections, told.join(QStringLiteral("; ")));
  });
  return written;
}

}  // namespace editing
