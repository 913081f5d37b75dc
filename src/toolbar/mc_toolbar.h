#pragma once

#include <QByteArrayView>
#include <QPointer>

#include "toolbar/accessible_tool_bar.h"
#include "toolbar/control.h"
#include "toolbar/mouse_delivery.h"
#include "toolbar/tool_bar_events.h"
#include "toolbar/tool_bar_windows.h"

namespace toolbar {

/// A toolbar with rows of icon and text buttons, separators, and a popup for buttons without room. Buttons count
/// from 1. Its height follows from its buttons. Keys: Tab, arrows, Home, End, Enter, Space; Esc closes the popup.
class McToolBar : public ToolBarEvents, public AccessibleToolBarSource {
  Q_OBJECT

 public:
  /// A toolbar of the running program, with its parent's font.
  explicit McToolBar(QWidget* parent = nullptr);
  /// A toolbar has no popup, and raises no MouseEnter and MouseLeave, until its properties are read.
  explicit McToolBar(const Ambient& ambient, QWidget* parent = nullptr);
  ~McToolBar() override;

  /// Reads stored properties and the stored size. Damaged bytes are treated as an empty bag, and the result is false.
  bool UserControl_ReadProperties(QByteArrayView bytes);
  /// The properties and the size as bytes.
  QByteArray UserControl_WriteProperties() const;

  /// The properties, and the list of buttons.
  Model& buttons() { return control_.buttons(); }
  const Model& buttons() const { return control_.buttons(); }

  int Button_Count() const { return buttons().Button_Count(); }
  void SetButton_Count(int count) { buttons().SetButton_Count(count); }
  /// A button's field by number, see PropertyID. Throw std::out_of_range for a button that doesn't exist.
  void SetButtonValue(int ButtonIndex, int PropertyID, const QVariant& Value) {
    buttons().SetButtonValue(ButtonIndex, PropertyID, Value);
  }
  QVariant GetButtonValue(int ButtonIndex, int PropertyID) const {
    return buttons().GetButtonValue(ButtonIndex, PropertyID);
  }
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

/// The ambient values of a control on this parent, in the running program.
Ambient ambientOf(const QWidget* parent);

}  // namespace toolbar
