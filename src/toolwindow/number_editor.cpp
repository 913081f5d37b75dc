#include "toolwindow/number_editor.h"

#include "platform/numbers.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {

void Text1_Change(Form2& form) {
  const int limit = form.VScroll1->Limit();
  const double number = platform::NumberOf(form.Text1->Text());
  const auto rounded = platform::RoundToInt16(number);
  const int value = rounded.value_or(static_cast<qint16>(number > 0 ? limit + 1 : -limit));
  if (value > limit) {
    form.VScroll1->SetValueQuietly(limit);
  } else {
    form.VScroll1->SetValue(value);
  }
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
