#include "toolwindow/number_frames.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "controls/number_bar.h"
#include "controls/text_box.h"
#include "platform/numbers.h"

namespace toolwindow {
namespace {

constexpr int NumberLimit = 10000;
constexpr int NumberAtLoad = -1000;
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

}  // namespace

NumberFrame::NumberFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent)
    : ValueFrame(services, parent),
      Text1(new controls::TextBox(this)),
      VScroll1(new controls::NumberBar(NumberLimit, NumberAtLoad, this)) {
  placed.add(*this, &ToolLayout::Numbers, "Numbers");
  placed.add(*Text1, &ToolLayout::Text1, "Text1", "Number");
  placed.add(*VScroll1, &ToolLayout::VScroll1, "VScroll1", "Raise or lower the number");
  Text1->setKeyFilter(QStringLiteral("0123456789"));
  connect(Text1, &controls::TextBox::Change, this, &NumberFrame::Text1_Change);
  watch(*Text1);
  connect(VScroll1, &controls::NumberBar::Change, this, &NumberFrame::VScroll1_Change);
  connect(VScroll1, &controls::NumberBar::actionTriggered, this, &NumberFrame::touch);
  for (QObject* part : std::initializer_list<QObject*>{Text1, VScroll1}) part->installEventFilter(this);
}

void NumberFrame::load(const themefiles::GroupRow& /*group*/, const QString& value) {
  Text1->SetText(value);
}

QWidget* NumberFrame::entrance() const {
  return Text1;
}

editing::Proposal NumberFrame::proposal() const {
  return {Text1->Text(), {}};
}

/// Sets the bar to the text's number. The text stays as typed if the number is beyond the bar's range.
void NumberFrame::Text1_Change() {
  const int limit = VScroll1->limit();
  const double number = platform::numberOf(Text1->Text());
  const auto rounded = platform::roundToInt16(number);
  const int value = rounded.value_or(static_cast<qint16>(number > 0 ? limit + 1 : -limit));
  if (value > limit) {
    VScroll1->setValueQuietly(limit);
  } else {
    VScroll1->SetValue(value);
  }
}

/// Sets the text to the bar's value. A value below 0 becomes 0.
void NumberFrame::VScroll1_Change() {
  const int value = VScroll1->Value();
  if (value < 0) {
    VScroll1->SetValue(0);
  } else {
    Text1->SetText(QString::number(value));
  }
}

/// Handles keys and wheel for the text box and the bar, in place of the bar's own handling.
bool NumberFrame::eventFilter(QObject* part, QEvent* event) {
  if (event->type() == QEvent::KeyPress) return part == Text1 && count(countOf(static_cast<QKeyEvent&>(*event)));
  if (event->type() != QEvent::Wheel || !(Text1->hasFocus() || VScroll1->hasFocus())) return false;
  turned_ += static_cast<QWheelEvent&>(*event).angleDelta().y();
  count(turned_ / WheelStep);
  turned_ %= WheelStep;
  return true;
}

bool NumberFrame::count(int steps) {
  if (steps != 0) touch();
  VScroll1->SetValue(VScroll1->Value() + steps);
  return steps != 0;
}

DecimalFrame::DecimalFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent)
    : ValueFrame(services, parent), Text4(new controls::TextBox(this)) {
  placed.add(*this, &ToolLayout::FloatNumbers, "FloatNumbers");
  placed.add(*Text4, &ToolLayout::Text4, "Text4", "Number with a fraction");
  Text4->setKeyFilter(QStringLiteral("0123456789."));
  watch(*Text4);
}

void DecimalFrame::load(const themefiles::GroupRow& /*group*/, const QString& value) {
  Text4->SetText(value);
}

QWidget* DecimalFrame::entrance() const {
  return Text4;
}

editing::Proposal DecimalFrame::proposal() const {
  return {Text4->Text(), {}};
}

}  // namespace toolwindow
