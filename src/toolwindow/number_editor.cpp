#include "toolwindow/number_editor.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "controls/number_bar.h"
#include "controls/text_box.h"
#include "platform/numbers.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

constexpr int WheelStep = 120;  // eighths of a degree

/// What a key adds to the number.
int countOf(const QKeyEvent& event) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return 0;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_PageUp:
      return 1;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
      return -1;
    default:
      return 0;
  }
}

/// Handles keys and wheel for the text box and the bar, in place of the bar's own handling.
class Counting : public QObject {
 public:
  explicit Counting(Form2& form) : QObject(&form), form_(form) {
    for (QObject* part : std::initializer_list<QObject*>{form.Text1, form.VScroll1}) part->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* part, QEvent* event) override {
    if (event->type() == QEvent::KeyPress)
      return part == form_.Text1 && count(countOf(static_cast<QKeyEvent&>(*event)));
    if (event->type() != QEvent::Wheel || !(form_.Text1->hasFocus() || form_.VScroll1->hasFocus())) return false;
    turned_ += static_cast<QWheelEvent&>(*event).angleDelta().y();
    count(turned_ / WheelStep);
    turned_ %= WheelStep;
    return true;
  }

 private:
  bool count(int steps) {
    form_.VScroll1->SetValue(form_.VScroll1->Value() + steps);
    return steps != 0;
  }

  Form2& form_;
  int turned_ = 0;  ///< what the wheel has turned since the last whole step
};

}  // namespace

void Text1_Change(Form2& form) {
  const int limit = form.VScroll1->limit();
  const double number = platform::numberOf(form.Text1->Text());
  const auto rounded = platform::roundToInt16(number);
  const int value = rounded.value_or(static_cast<qint16>(number > 0 ? limit + 1 : -limit));
  if (value > limit) {
    form.VScroll1->setValueQuietly(limit);
  } else {
    form.VScroll1->SetValue(value);
  }
}

void connectCounting(Form2& form) {
  new Counting(form);
}

void VScroll1_Change(Form2& form) {
  const int value = form.VScroll1->Value();
  if (value < 0) {
    form.VScroll1->SetValue(0);
  } else {
    form.Text1->SetText(QString::number(value));
  }
}

}  // namespace toolwindow
