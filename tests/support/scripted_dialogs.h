#pragma once

#include <deque>

#include <QColor>
#include <QStringList>

#include "platform/dialogs.h"

namespace support {

using namespace Qt::StringLiterals;

/// Answers in the order given; without one, as a user who only wants out: No, Cancel.
class ScriptedDialogs : public platform::Dialogs {
 public:
  std::deque<platform::BoxAnswer> boxes;
  std::deque<QString> inputs, files;
  std::deque<std::optional<QColor>> colors;
  QStringList asked;  ///< "title: text" of each dialog

  platform::BoxAnswer messageBox(QWidget*, const QString& text, const QString& title, platform::BoxKind kind) override {
    asked += title + u": "_s + text;
    const bool question = kind == platform::BoxKind::YesNoDefaultNo;
    return question ? next(boxes, platform::BoxAnswer::No) : platform::BoxAnswer::Ok;
  }
  QString inputBox(QWidget*, const QString& prompt, const QString& title) override {
    asked += title + u": "_s + prompt;
    return next(inputs);
  }
  QString openFile(QWidget*, const platform::FileRequest& request) override {
    asked += request.title + u": "_s + request.folder;
    return next(files);
  }
  std::optional<QColor> chooseColor(QWidget*, const QColor& present) override {
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

}  // namespace support
