#pragma once

#include "editing/session.h"
#include "support/panel.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"
#include "themefiles/working_copies.h"

namespace support {

/// A list of objects that tells the session what is chosen in it, as that of a window does.
class ClickedTags : public themefiles::SortedTags {
 public:
  void SetListIndex(int row) override {
    SortedTags::SetListIndex(row);
    if (session != nullptr && row >= 0) session->objectClicked(editing::Chooser::List);
  }
  editing::Session* session = nullptr;
};

/// A theme that is open in a session, without windows. `steps` has what the session tells, in order.
class OpenTheme {
 public:
  explicit OpenTheme(const QByteArray& theme, const QByteArray& skin = {}, const QByteArray& language = {})
      : session(state, panel) {
    folder.put(u"theme.ini"_s, linesOf(theme));
    folder.put(u"skin.ini"_s, linesOf("[Textures]|" + skin));
    folder.put(u"language.ini"_s, linesOf("[Text]|" + language));
    themefiles::InitScreenTable(state);
    themefiles::ThemePaths paths;
    paths.ThemeFile = folder.path(u"theme.ini"_s);
    paths.SkinFile = folder.path(u"skin.ini"_s);
    paths.LanguageFile = folder.path(u"language.ini"_s);
    themefiles::MakeWorkingCopies(state, paths, panel);
    themefiles::ReadColors(state, panel);
    connectSteps();
    tags.session = &session;
    session.begin(tags);
  }

  /// The text of a working copy, with "|" for its line ends.
  QByteArray copy(const char* name) const {
    return folder.get(QString::fromLatin1(name) + u".ini.tmp"_s).replace("\r\n", "|");
  }
  void putCopy(const char* name, const QByteArray& text) const {
    folder.put(QString::fromLatin1(name) + u".ini.tmp"_s, linesOf(text));
  }
  /// Chooses a screen and lists it.
  void screen(const QString& name, const QString& kept = {}) {
    session.chooseScreen(name);
    session.listObjects(kept, [] {});
  }
  /// What has been told since the last call.
  QString told() { return std::exchange(steps, {}).join(u", "_s); }
  QString report() const { return panel.texts.isEmpty() ? QString() : panel.texts.last(); }

  Folder folder;
  themefiles::ModuleState state;
  Panel panel;
  ClickedTags tags;
  editing::Session session;
  QStringList steps;

 private:
  void connectSteps() {
    using editing::Session;
    const auto note = [this](auto signal, const QString& step) {
      QObject::connect(&session, signal, [this, step] { steps += step; });
    };
    note(&Session::settling, u"settles"_s);
    note(&Session::changed, u"Save"_s);
    note(&Session::drawWanted, u"draws"_s);
    note(&Session::colorsChanged, u"colours"_s);
    note(&Session::ended, u"ends"_s);
    QObject::connect(&session, &Session::membersChanged,
                     [this] { steps += u'{' + session.members().join(u' ') + u'}'; });
    QObject::connect(&session, &Session::markWanted, [this](editing::MarkReason reason) {
      const QString reasons[] = {u"mark in the work"_s, u"mark"_s, u"mark again"_s};
      steps += reasons[static_cast<int>(reason)];
    });
    QObject::connect(&session, &Session::valuesRead, [this](const std::vector<themefiles::ValueRow>& rows) {
      QStringList keys;
      for (const themefiles::ValueRow& row : rows) keys += row.Item;
      steps += session.object() + u'(' + keys.join(u' ') + u')';
    });
    QObject::connect(&session, &Session::valueWritten, [this](int row, const QString& key, const QString& value) {
      steps += QString::number(row) + u' ' + key + u'=' + value;
    });
    QObject::connect(&session, &Session::screenWanted, [this](const QString& name) { steps += u"to "_s + name; });
    QObject::connect(&session, &Session::rowWanted,
                     [this](const themefiles::Hit& hit) { steps += u"to row "_s + QString::number(hit.row); });
  }
};

}  // namespace support
