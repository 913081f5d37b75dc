#pragma once

#include <optional>

#include "propertybag/property_bag.h"
#include "toolbar/button_surface.h"
#include "toolbar/layout.h"
#include "toolbar/model.h"
#include "toolbar/surroundings.h"

namespace toolbar {

class ToolBarEvents;

/// The arguments of a mouse event on a surface. X and Y are in its pixels.
struct MouseArguments {
  qint16 Button = 0;  ///< 1 left, 2 right, 4 middle; FromPopup for a move in the popup
  qint16 Shift = 0;   ///< 1 Shift, 2 Control, 4 Alt
  float X = 0;
  float Y = 0;

  static constexpr qint16 FromPopup = 999;
};

/// The toolbar without its windows: draws its surfaces and reacts to input.
class Control : private ModelView {
 public:
  Control(Windows& windows, ToolBarEvents& events, const Ambient& ambient);

  Model& buttons() { return model_; }
  const Model& buttons() const { return model_; }
  const std::vector<int>& HiddenButtons() const { return layout_.HiddenButtons; }
  const ButtonSurface& surfaceOf(SurfaceName name) const { return name == SurfaceName::Main ? main_ : chevron_; }
  SurfaceName picDraw() const { return picDraw_; }
  bool UserMode() const { return ambient_.UserMode; }

  /// Reads the toolbar from a bag. A bag with wrong values is treated as an empty one, and the result is false.
  bool UserControl_ReadProperties(const propertybag::PropertyBag& bag);
  void UserControl_WriteProperties(propertybag::PropertyBag& bag) const;

  /// Sets the size inside the control's widget.
  void resize(const QSize& innerSize);
  void UserControl_Resize();
  /// Draws the current surface, picDraw.
  void Repaint();

  // Mouse events of the surfaces. All except moves count only if they come from the surface picDraw.
  void picMain_MouseMove(MouseArguments arguments);
  void picChevron_MouseMove(MouseArguments arguments);
  void picDraw_MouseDown(SurfaceName from, MouseArguments arguments);
  void picDraw_MouseUp(SurfaceName from, MouseArguments arguments);
  void picDraw_Click(SurfaceName from);
  void picDraw_DblClick(SurfaceName from);

  /// The other messages of the control's windows, by number.
  enum Message { Move = 3, Size = 5, KillFocus = 8, Timer = 275, MouseMove = 512, MouseLeave = 675 };
  /// Handles a message after its window has handled it. `surface` is used for MouseMove and MouseLeave, `place` (in the
  /// surface's pixels) for MouseMove. Does nothing before UserControl_ReadProperties and in a form's designer.
  void zSubclass_Proc(int uMsg, SurfaceName surface = SurfaceName::Main, QPoint place = {});

  // Keyboard access. The button that keys have chosen is drawn as if the pointer were over it.
  /// The buttons that keys can reach, 0 for the chevron. While the popup is open and in use, those of the popup.
  std::vector<int> keyPlaces() const;
  /// Moves by so many buttons and starts over at the ends. If no button is chosen, takes the first or the last one.
  void stepByKey(int places);
  /// Chooses the first or the last button.
  void endByKey(bool last);
  void pointByKey(int index);
  /// Clicks the chosen button. On the chevron, opens the popup and chooses its first button.
  void pressByKey();
  /// Chooses the first button unless one is chosen already. Returns whether it did.
  bool enterByKey();
  void leaveByKey();
  /// Closes the popup and chooses the chevron. Returns whether the popup was open.
  bool escapeByKey();

 private:
  void PropertyChanged(QStringView name) override;
  void react(Effect effect) override;

  ButtonSurface& drawn() { return picDraw_ == SurfaceName::Main ? main_ : chevron_; }
  void layOut();
  void showChevronPopup();
  std::optional<int> pointedAt(const MouseArguments& arguments);
  void pointAt(int index);
  void movedTo(SurfaceName surface, QPoint place);
  void left();
  void showToolTip();

  Windows& windows_;
  ToolBarEvents& events_;
  Ambient ambient_;
  Model model_;
  ButtonSurface main_;
  ButtonSurface chevron_;
  SurfaceName picDraw_ = SurfaceName::Main;
  QSize innerSize_;
  Layout layout_;
  bool backgroundDrawn_ = false;  ///< one flag for both surfaces
  bool isHooked_ = false;
  bool mouseInside_ = false;
  bool buttonHeld_ = false;
  bool byKey_ = false;  ///< Button_Index was chosen by the keyboard
  QPoint lastPlace_;
  int timerTicks_ = 0;
};

}  // namespace toolbar
