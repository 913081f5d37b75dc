#pragma once

#include <random>

#include <QTimer>

#include "mainwindows/command.h"
#include "support/windows.h"

/// A user without sense: random events through the real windows, and what must hold whatever the user does.
namespace endurance {

using namespace Qt::StringLiterals;

/// How often each thing has occurred that has to.
using Counts = QMap<QString, int>;

/// What a command without a button is counted by.
QString commandName(const mainwindows::CommandRow& row);

class Chance {
 public:
  explicit Chance(quint32 seed) : engine_(seed) {}
  /// A number from 0 to below - 1; 0 for an empty range.
  int below(int limit) { return limit < 2 ? 0 : static_cast<int>(engine_() % static_cast<quint32>(limit)); }
  bool one(int in) { return below(in) == 0; }
  template <typename List>
  auto of(const List& list) {
    return list[static_cast<size_t>(below(static_cast<int>(std::size(list))))];
  }

 private:
  std::mt19937 engine_;
};

/// Answers at random, now and then after a while in which events come in.
class RandomDialogs : public platform::Dialogs {
 public:
  RandomDialogs(Chance& chance, Counts& counts) : chance_(chance), counts_(counts) {}
  platform::BoxAnswer messageBox(QWidget* parent, const QString& text, const QString& title,
                                 platform::BoxKind kind) override;
  QString inputBox(QWidget* parent, const QString& prompt, const QString& title) override;
  QString openFile(QWidget* parent, const platform::FileRequest& request) override;
  std::optional<QColor> chooseColor(QWidget* parent, const QColor& present) override;

 private:
  bool answered(const char* answer);

  Chance& chance_;
  Counts& counts_;
};

/// The program on a game folder, and what happens to it.
class Monkey {
 public:
  explicit Monkey(quint32 seed);

  /// One thing that a user does, one to a few events.
  void step();
  int events() const { return events_; }
  int yields() const { return yields_; }
  const Counts& counts() const { return counts_; }
  /// What is wrong; empty when all is well.
  const QString& fault() const { return fault_; }

 private:
  void start();
  void check();
  void checkYield();
  void checkTheme();
  void checkColors();
  void noteSave();
  void readStatus();
  void require(bool holds, const QString& what);

  void act();
  void answerOpenDialog();
  void touch(QWidget& area, Qt::FindChildOptions depth = Qt::FindChildrenRecursively);
  void use(QWidget& control);
  void choose(controls::ComboBox& list);
  void pick(QAbstractItemView& list);
  void type(QLineEdit& box);
  void gesture();
  void arrowKeys();
  void drag();
  void shortcut();
  void command();
  void review();
  void resize();
  void loseFolder();
  void protectFiles();
  void key(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {});
  void click(QWidget& widget, const QPoint& place);

  mainwindows::Form1& form() const { return program_->form; }
  const themefiles::ModuleState& state() const { return program_->state; }

  Chance chance_;
  Counts counts_;
  RandomDialogs dialogs_;
  support::GameFolder game_;
  QTemporaryDir noThemes_;
  std::unique_ptr<support::Program> program_;
  QTimer dialogDriver_;
  QMap<QString, QByteArray> expected_;  ///< the files of the game as they have to be
  QString lastStatus_;
  QString fault_;
  int events_ = 0;
  int yields_ = 0;
  int works_ = 0;   ///< running passes
  int nested_ = 0;  ///< actions that run inside yields
};

}  // namespace endurance
