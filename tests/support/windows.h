#pragma once

#include <deque>
#include <functional>

#include "mainwindows/main_window.h"
#include "mainwindows/open_theme.h"
#include "support/theme_doubles.h"

/// What the tests of the windows share: dialogs that answer by script, a game folder, and the program on it.
namespace support {

using namespace Qt::StringLiterals;

/// Answers in the order given; without one, as a user who only wants out: No, Cancel.
class ScriptedDialogs : public platform::Dialogs {
 public:
  std::deque<platform::BoxAnswer> boxes;
  std::deque<QString> inputs, files;
  std::deque<std::optional<QColor>> colors;
  QStringList asked;  ///< "title: text" of each dialog

  platform::BoxAnswer MessageBox(QWidget*, const QString& text, const QString& title, platform::BoxKind kind) override {
    asked += title + u": "_s + text;
    const bool question = kind == platform::BoxKind::YesNoDefaultNo;
    return question ? next(boxes, platform::BoxAnswer::No) : platform::BoxAnswer::Ok;
  }
  QString InputBox(QWidget*, const QString& prompt, const QString& title) override {
    asked += title + u": "_s + prompt;
    return next(inputs);
  }
  QString OpenFile(QWidget*, const platform::FileRequest& request) override {
    asked += request.title + u": "_s + request.folder;
    return next(files);
  }
  std::optional<QColor> ChooseColor(QWidget*, const QColor& present) override {
    asked += u"colour: "_s + present.name();
    return next(colors);
  }

 private:
  template <typename Answer>
  static Answer next(std::deque<Answer>& answers, Answer without = {}) {
    if (answers.empty()) return without;
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

/// A game folder of its own in a temporary place; relative paths are written with "/".
class GameFolder : public Folder {
 public:
  /// Vocora.exe, the languages Deutsch and English, and the theme Alpha with the skins One and Two.
  GameFolder();

  /// The program's form of it, with the separator behind it.
  QString path() const { return Folder::path({}) + u'\\'; }
  void write(const QString& relative, const QByteArray& bytes) const { put(relative, bytes); }
  QByteArray read(const QString& relative) const { return get(relative); }
  void setWritable(const QString& relative, bool writable) const { protect(relative, !writable); }
  /// A picture in the folder of the theme's skins, of one colour.
  void addPicture(const char* name, const QColor& color, const QSize& size = {4, 4}) const;
  /// All files with their bytes.
  QMap<QString, QByteArray> files() const;
};

inline const QString ThemeFile = u"Themes/Alpha.ini"_s;
inline const QString SkinFile = u"Skins/Alpha/One.ini"_s;
inline const QString LanguageFile = u"Languages/English.ini"_s;
inline const QString ThemeCopy = ThemeFile + u".tmp"_s;
inline const QString SkinCopy = SkinFile + u".tmp"_s;
inline const QString LanguageCopy = LanguageFile + u".tmp"_s;

/// The program's windows with their events connected.
class Program {
 public:
  /// config.ini in a folder of its own; the game folder is stored in it unless that is asked away.
  explicit Program(const GameFolder& game, bool storeFolder = true);
  ~Program();

  themefiles::ModuleState state;
  ScriptedDialogs dialogs;
  platform::Graphics graphics;
  QTemporaryDir settings;
  mainwindows::Form1 form;

  toolwindow::Form2& tools() const { return *form.ToolWindow; }
  const QImage& picture() const { return form.Workspace->Surface().image(); }
  QString status() const { return form.StatusBar->Panel(1).mid(11); }  ///< without the time
  bool enabled(int button) const;
  /// Which of the toolbar's buttons are enabled: "+--+".
  QString buttons() const;

  /// A click of the mouse on a button of the toolbar.
  void click(int button);
  /// Clicks Open and runs `act` on the Open Theme dialog; gives whether it came up. `act` has to end it.
  bool openDialog(const std::function<void(mainwindows::Form3&)>& act);
  /// Opens the theme by name, with its first skin and English.
  void open(const QString& theme = u"Alpha"_s);
  /// Chooses a screen, or an object, by name.
  void screen(const QString& name);
  void tag(const QString& name);
  /// A click on the row of the grid that shows the key.
  void row(const QString& key);
  /// A grid of this one row, and a click on it.
  void soleRow(const QString& key, const QString& value);
  /// Enters a number into the editor that is open, or into that of a key, and Update.
  void update(const QString& text);
  void change(const QString& key, const QString& text);
  /// Changes a number of LoadingStaticA.
  void edit(const QString& key = u"X"_s, const QString& text = u"77"_s);
  /// The value that the grid shows for the key.
  QString value(const QString& key) const;
};

/// A test whose functions each get the program on a game folder of its own, with the theme open.
class ProgramTest : public QObject {
  Q_OBJECT

 protected:
  std::unique_ptr<GameFolder> game;
  std::unique_ptr<Program> program;

 protected Q_SLOTS:
  virtual void init();
  void cleanup();
};

/// The entries of a drop-down list.
QStringList entries(const controls::ComboBox& list);

/// Serves what is pending, deletions too.
void settle();

}  // namespace support
