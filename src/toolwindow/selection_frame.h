#pragma once

#include "toolwindow/value_frame.h"

namespace toolwindow {

/// The frame Selection: the values of a key with a fixed list.
class SelectionFrame : public ValueFrame {
  Q_OBJECT

 public:
  SelectionFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent);

  editing::Proposal proposal() const override;

 protected:
  void load(const themefiles::GroupRow& group, const QString& value) override;
  QWidget* entrance() const override;

 private:
  void selectNumbered(const QString& value);

  controls::ComboBox* const Combo2;
};

}  // namespace toolwindow
