#pragma once

#include "controls/look.h"
#include "platform/code_page.h"
#include "platform/file_identity.h"
#include "support/deeds.h"
#include "support/results.h"
#include "support/shown.h"

namespace support {

/// A session, written down: what each step has changed of what a user has of the program and of the game's files. A
/// picture is told by the sum of its pixels.
class Diary {
 public:
  Diary(Program& program, const GameFolder& game) : program_(program), game_(game) {
    program.form.ProgressBar1->installEventFilter(&drawings_);
    tellShown();
    tellFiles();
    lines.clear();
  }

  QStringList lines;

  /// Runs a step, and writes down what is different behind it.
  void step(const QString& what, const std::function<void()>& act) {
    const qsizetype asked = program_.dialogs.asked.size();
    drawings_.count = 0;
    lines += QStringList{u""_s, u"> "_s + what};
    act();
    settle();
    for (Shown before; before != shownNow(program_);) {  // what comes in idle time
      before = shownNow(program_);
      settle();
    }
    for (const QString& dialog : program_.dialogs.asked.sliced(asked)) lines += u"asked: "_s + dialog;
    if (drawings_.count > 0) lines += u"drawn: %1"_s.arg(drawings_.count);
    if (isPainted_ && !QTest::qWaitFor([this] { return program_.isPainted(); }, 2000)) {
      isPainted_ = false;
      lines += u"the preview isn't painted anew"_s;
    }
    tellShown();
    tellFiles();
    lines.replaceInStrings(game_.path(), u"GAME\\"_s).replaceInStrings(u"\n"_s, u"|"_s);
  }

  /// Does things one after the other, each a step.
  void run(const auto&... deeds) { (one(deeds), ...); }
  /// A control of the tool window.
  template <typename Control>
  Control& find(const char* name) const {
    auto* control = program_.tools().findChild<Control*>(QLatin1StringView(name));
    if (control == nullptr) qFatal("no control %s", name);
    return *control;
  }

 private:
  void one(const char* deed) { one(QString(QLatin1StringView(deed))); }
  void one(const QString& deed) {
    step(deed, [&] {
      Deeds deeds(program_, game_);
      const bool done = deeds.run(deed);
      for (const QString& entry : deeds.menu) lines += u"entry: "_s + entry;
      if (!done) lines += u"can't be done"_s;
    });
  }

  struct Drawings : QObject {
    bool eventFilter(QObject* /*bar*/, QEvent* event) override {
      count += event->type() == QEvent::Show;
      return false;
    }
    int count = 0;
  };

  void tellShown() {
    Shown after = shownNow(program_);
    for (const auto& line : after) {
      if (std::find(shown_.begin(), shown_.end(), line) == shown_.end()) lines += line.first + u": "_s + line.second;
    }
    QStringList gone;
    for (const auto& before : shown_) {
      const QString& name = before.first;
      const bool stands = std::any_of(after.begin(), after.end(), [&](const auto& line) { return line.first == name; });
      if (!stands) gone += name;
    }
    if (!gone.isEmpty()) lines += u"no more: "_s + gone.join(u", "_s);
    shown_ = std::move(after);
    const QImage picture = program_.picture().copy();
    if (picture == std::exchange(picture_, picture)) return;
    lines += u"picture: "_s + sumOf(picture);
  }

  /// The lines that are gone ("-") and new ("+"), in their order: what is in the longest common sequence stays.
  static QStringList changedLines(const QByteArrayList& from, const QByteArrayList& to) {
    const auto line = [](const QByteArray& bytes) { return platform::fromAnsi(bytes).remove(u'\r'); };
    std::vector<std::vector<int>> common(from.size() + 1, std::vector<int>(to.size() + 1));
    for (qsizetype i = from.size() - 1; i >= 0; --i) {
      for (qsizetype j = to.size() - 1; j >= 0; --j) {
        common[i][j] = from[i] == to[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
      }
    }
    QStringList changed;
    for (qsizetype i = 0, j = 0; i < from.size() || j < to.size();) {
      if (i < from.size() && j < to.size() && from[i] == to[j]) {
        ++i, ++j;
      } else if (j == to.size() || (i < from.size() && common[i + 1][j] >= common[i][j + 1])) {
        changed += u'-' + line(from[i++]);
      } else {
        changed += u'+' + QString::number(j + 1) + u' ' + line(to[j]);
        ++j;
      }
    }
    return changed;
  }

  /// Of each file the lines that are gone and those that are new, or that it was written anew as it was.
  void tellFiles() {
    QMap<QString, Written> after;
    const auto files = game_.files();
    for (const auto& [name, bytes] : files.asKeyValueRange()) {
      const auto identity = platform::identityOf(game_.path() + name);
      after[name] = {bytes.split('\n'), identity ? identity->number : 0, {}};
#ifndef Q_OS_WIN
      after[name].open = std::make_shared<QFile>(game_.native(name));
      after[name].open->open(QIODevice::ReadOnly);
#endif
      if (!written_.isEmpty() && !written_.contains(name)) lines += u"file %1: new"_s.arg(name);
      if (!written_.contains(name)) continue;
      const QStringList changed = changedLines(written_[name].lines, after[name].lines);
      for (const QString& line : changed) lines += u"file %1: %2"_s.arg(name, line);
      if (changed.isEmpty() && written_[name].number != after[name].number)
        lines += u"file %1: written anew"_s.arg(name);
    }
    for (const QString& name : written_.keys()) {
      if (!after.contains(name)) lines += u"file %1: no more"_s.arg(name);
    }
    written_ = std::move(after);
  }

  struct Written {
    QByteArrayList lines;
    quint64 number = 0;           ///< another one when the file was replaced,
    std::shared_ptr<QFile> open;  ///< since the system has no other file of that number as long as this one is open
  };

  Program& program_;
  const GameFolder& game_;
  Drawings drawings_;
  Shown shown_;
  QImage picture_;
  bool isPainted_ = true;  ///< it was so far
  QMap<QString, Written> written_;
};

/// A test whose functions each are a session, compared with the diary kept of it.
class DiaryTest : public QObject {
  Q_OBJECT

 protected:
  std::unique_ptr<GameFolder> game;
  std::unique_ptr<Program> program;
  std::unique_ptr<Diary> diary;

  Diary& begun() {
    diary = std::make_unique<Diary>(*program, *game);
    return *diary;
  }
  /// The diary of a session that begins with the theme open.
  Diary& opened() {
    program->open();
    return begun();
  }
  /// The same with the keyboard in the main window or in the tool window.
  Diary& openedAt(bool mainWindow) {
    Diary& d = opened();
    QWidget& active = mainWindow ? static_cast<QWidget&>(program->form) : program->tools();
    active.activateWindow();
    if (!QTest::qWaitForWindowActive(&active)) qFatal("the window isn't active");
    return d;
  }

 private Q_SLOTS:
  void initTestCase() { controls::applyLook(*qApp); }
  void init() {
    game = std::make_unique<GameFolder>();
    game->put(u"Themes/Beta.ini"_s, "[Main]\n[MainStaticB]\nX=1\n");
    QDir().mkdir(game->native(u"Skins/Beta"_s));
    game->put(u"Skins/Beta/Sole.ini"_s, "");
    program = std::make_unique<Program>(*game);
  }
  void cleanup() {
    const char* const row = QTest::currentDataTag();
    compareText(QString::fromLatin1(row != nullptr ? row : QTest::currentTestFunction()) + u".txt"_s, diary->lines);
    diary.reset();
    program.reset();
  }
};

}  // namespace support
