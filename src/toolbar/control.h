#pragma once

#include <optional>

#include "propertybag/property_bag.h"
#include "toolbar/button_surface.h"
#include "toolbar/layout.h"
#include "toolbar/model.h"
#include "toolbar/surroundings.h"

namespace toolbar {

class ToolBarEvents;

/// What the mouse or its buttons do to a surface; X and Y in its pixels.
struct MouseArguments {
  qint16 Button = 0;  ///< 1 left, 2 right, 4 middle; of a move from the popup FromPopup
  qint16 Shift = 0;   ///< 1 Shift, 2 Control, 4 Alt
  float X = 0;
  float Y = 0;

  static constexpr qint16 FromPopup = 999;
};

/// The toolbar less its windows: its surfaces, what is drawn on them, and what input does.
class Control : private ModelView {
 public:
  Control(Windows& windows, ToolBarEvents& events, const Ambient& ambient);

  Model& buttons() { return model_; }
  const Model& buttons() const { return model_; }
  const std::vector<int>& HiddenButtons() const { return layout_.HiddenButtons; }
  const ButtonSurface& surfaceOf(SurfaceName name) const { return name == SurfaceName::Main ? main_ : chevron_; }
  SurfaceName picDraw() const { return picDraw_; }
  bool UserMode() const { return ambient_.UserMode; }

  /// A toolbar out of a bag. A bag with wrong values counts as an empty one and gives false.
  bool UserControl_ReadProperties(const propertybag::PropertyBag& bag);
  void UserControl_WriteProperties(propertybag::PropertyBag& bag) const;

  /// The host gives the control its inner size.
  void resize(const QSize& innerSize);
  void UserControl_Resize();
  /// Draws the whole surface that buttons are drawn on at the moment.
  void Repaint();

  // What the surfaces deliver. All but moves are taken from the surface of picDraw only.
  void picMain_MouseMove(MouseArguments arguments);
  void picChevron_MouseMove(MouseArguments arguments);
  void picDraw_MouseDown(SurfaceName from, MouseArguments arguments);
  void picDraw_MouseUp(SurfaceName from, MouseArguments arguments);
  void picDraw_Click(SurfaceName from);
  void picDraw_DblClick(SurfaceName from);

  /// The messages that surfaces don't report by themselves.
  enum Message { Move = 3, Size = 5, KillFocus = 8, Timer = 275, MouseMove = 512, MouseLeave = 675 };
  /// A message after the window has dealt with it. Does nothing before UserControl_ReadProperties and in a form's
  /// designer. `surface` counts for MouseMove and MouseLeave, `place` in its pixels for MouseMove.
  void zSubclass_Proc(int uMsg, SurfaceName surface = SurfaceName::Main, QPoint place = {});

  // The keyboard's way through the buttons; its place looks like the pointer's.
  /// The buttons that keys reach (0 is the chevron): those of the popup while that is open and drawn on.
  std::vector<int> keyPlaces() const;
  /// Moves on by so many places, round the ends; the first or last one from nowhere.
  void stepByKey(int places);
  /// The first or the last one.
  void endByKey(bool last);
  void pointByKey(int index);
  /// Clicks the button, or opens the popup and goes to its first button.
  void pressByKey();
  /// The keyboard comes: to the first place, unless one is pointed at. Whether it went there.
  bool enterByKey();
  void leaveByKey();
  /// Closes the popup and goes back to the chevron; whether it was open.
  bool escapeByKey();

 private:
  void PropertyChanged(QStringView name) override;
  void react(Effect effect) override;

  ButtonSurface& drawn() { return picDraw_ == SurfaceName::Main ? main_ : chevron_; }
  void layOut();
  void showChevronPopup();
  std::optional<int> pointedAt(const MouseArguments& arguments);
  bool canHover(int number, float x) const;
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
  bool backgroundDrawn_ = false;  ///< of whichever surface was drawn last
  bool isHooked_ = false;
  bool mouseInside_ = false;
  bool buttonHeld_ = false;
  bool byKey_ = false;  ///< the keyboard put Button_Index where it is
  QPoint lastPlace_;
  int timerTicks_ = 0;
};

}  // namespace toolbar
