#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "controls/combo_box.h"
#include "controls/number_bar.h"
#include "controls/swatch_button.h"
#include "controls/text_box.h"
#include "toolwindow/tool_window.h"

namespace support {

/// A control of a window by its object name.
template <typename Control>
Control* named(const QWidget& window, const char* name) {
  auto* control = window.findChild<Control*>(QLatin1StringView(name));
  if (control == nullptr) qFatal("no control %s", name);
  return control;
}

/// The controls of the tool window's editor area by the names that the game's world gives.
struct Editors {
  explicit Editors(const toolwindow::Form2& window) : window(window) {}
  const toolwindow::Form2& window;
  template <typename Control>
  Control* at(const char* name) const {
    return named<Control>(window, name);
  }
  QPushButton* const Command1 = at<QPushButton>("Command1");
  controls::TextBox* const Text1 = at<controls::TextBox>("Text1");
  controls::NumberBar* const VScroll1 = at<controls::NumberBar>("VScroll1");
  controls::TextBox* const Text4 = at<controls::TextBox>("Text4");
  controls::ComboBox* const Combo2 = at<controls::ComboBox>("Combo2");
  controls::ComboBox* const Combo4 = at<controls::ComboBox>("Combo4");
  QPushButton* const Command3 = at<QPushButton>("Command3");
  QPushButton* const Command5 = at<QPushButton>("Command5");
  controls::ComboBox* const Combo3 = at<controls::ComboBox>("Combo3");
  controls::SwatchButton* const Command2 = at<controls::SwatchButton>("Command2");
  controls::ComboBox* const Combo6 = at<controls::ComboBox>("Combo6");
  QPushButton* const Command8 = at<QPushButton>("Command8");
  QPushButton* const Command9 = at<QPushButton>("Command9");
  controls::TextBox* const Text3 = at<controls::TextBox>("Text3");
  QPushButton* const Command4 = at<QPushButton>("Command4");
  controls::ComboBox* const Combo5 = at<controls::ComboBox>("Combo5");
  QPushButton* const Command6 = at<QPushButton>("Command6");
  QPushButton* const Command7 = at<QPushButton>("Command7");
  controls::TextBox* const Text2 = at<controls::TextBox>("Text2");
};

}  // namespace support
