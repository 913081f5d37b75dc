#pragma once

#include "toolwindow/value_frame.h"

namespace controls {
class NumberBar;
class TextBox;
}  // namespace controls

namespace toolwindow {

/// The frame Numbers: a text box and a scroll bar that follow each other. The bar gives whole numbers from 0. Up, Down,
/// the Page keys and the wheel count as the bar's arrows do, while the text or the bar has the focus.
class NumberFrame : public ValueFrame {
  Q_OBJECT

 public:
  NumberFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent);

  editing::Proposal proposal() const override;

 protected:
  void load(const themefiles::GroupRow& group, const QString& value) override;
  QWidget* entrance() const override;
  bool eventFilter(QObject* part, QEvent* event) override;

 private:
  void Text1_Change();
  void VScroll1_Change();
  bool count(int steps);

  controls::TextBox* const Text1;
  controls::NumberBar* const VScroll1;
  int turned_ = 0;  ///< what the wheel has turned since the last whole step
};

/// The frame FloatNumbers: numbers with a fraction, as they are typed.
class DecimalFrame : public ValueFrame {
  Q_OBJECT

 public:
  DecimalFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent);

  editing::Proposal proposal() const override;

 protected:
  void load(const themefiles::GroupRow& group, const QString& value) override;
  QWidget* entrance() const override;

 private:
  controls::TextBox* const Text4;
};

}  // namespace toolwindow
