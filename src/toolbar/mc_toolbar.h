#pragma once

#include <QByteArrayView>
#include <QPointer>

#include "toolbar/accessible_tool_bar.h"
#include "toolbar/control.h"
#include "toolbar/mouse_delivery.h"
#include "toolbar/tool_bar_events.h"
#include "toolbar/tool_bar_windows.h"

namespace toolbar {

/// A strip of icon and text buttons in rows, numbered from 1, with separators, and a popup for what has no room. Its
/// height follows from its buttons. By keyboard: Tab, arrows, Home, End, Enter and Space, Esc for the popup.
class McToolBar : public ToolBarEvents, public AccessibleToolBarSource {
  Q_OBJECT

 public:
  /// A toolbar at run time, with the font of its parent.
  explicit McToolBar(QWidget* parent = nullptr);
  /// A new toolbar: without popup and leave, until its properties have been read.
  explicit McToolBar(const Ambient& ambient, QWidget* parent = nullptr);
  ~McToolBar() override;

  /// Reads the stored bytes of a toolbar and takes their size; damaged ones count as an empty bag and give false.
  bool UserControl_ReadProperties(QByteArrayView bytes);
  /// The stored bytes, with the size.
  QByteArray UserControl_WriteProperties() const;

  /// Properties, list of buttons and the operations on it.
  Model& buttons() { return control_.buttons(); }
  const Model& buttons() const { return control_.buttons(); }

  int Button_Count() const { return buttons().Button_Count(); }
  void SetButton_Count(int count) { buttons().SetButton_Count(count); }
  /// A field of a button by its number (see button_values.h). Throw std::out_of_range for a button that isn't there.
  void SetButtonValue(int ButtonIndex, int PropertyID, const QVariant& Value) {
    buttons().SetButtonValue(ButtonIndex, PropertyID, Value);
  }
  QVariant GetButtonValue(int ButtonIndex, int PropertyID) const {
    return buttons().GetButtonValue(ButtonIndex, PropertyID);
  }
  /// In pixels.
  int Height() const { return height(); }

  const Control& inner() const override { return control_; }
  QWidget* popupWindow() const override { return windows_.popup(); }
  QSize sizeHint() const override { return control_.surfaceOf(SurfaceName::Main).raster().image().size(); }
  void press(int ButtonIndex) override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void watchForm();
  void tellKeyPlace();

  ToolBarWindows windows_;
  Control control_;
  MouseDelivery mouse_;
  QPointer<QWidget> form_;  ///< whose moves and sizes close the popup
};

/// What the place of a control on this parent gives it.
Ambient ambientOf(const QWidget* parent);

}  // namespace toolbar
