#include "toolbar/repaint.h"

#include "drawing/fonts.h"
#include "drawing/raster_text.h"
#include "toolbar/captions.h"
#include "toolbar/checked_numbers.h"
#include "toolbar/colours.h"
#include "toolbar/faces.h"
#include "toolbar/icon_painting.h"
#include "toolbar/layout.h"

namespace toolbar {

namespace {

constexpr quint32 GreyText = drawing::colorValue(drawing::SystemColor::GreyText);
constexpr int IconMargin = 10;
constexpr QChar ChevronSign = u'\u00BB';

/// A button as it is to be drawn.
struct ShownButton {
  int index = 0;  ///< 0 for the chevron
  PictureReference icon;
  QString caption;
  bool pressed = false;
  bool enabled = true;
  QRect box;
  int alignment = 0;
};

/// Where a button's icon and caption go.
struct Areas {
  QRect icon;
  QRect caption;
  int shift = 0;
  QString text;
};

/// None for an unknown alignment: then neither icon nor caption is drawn.
std::optional<Areas> areasOf(const ShownButton& button, int offset) {
  const int x = button.box.x();
  const int y = button.box.y();
  const int w = button.box.width();
  const int h = button.box.height();
  const int iconW = button.icon ? button.icon->Width() + IconMargin : 0;
  const int iconH = button.icon ? button.icon->Height() + IconMargin : 0;
  const int iconX = x + offset;
  const int iconY = y + offset;
  switch (button.alignment) {
    case 0:
      return Areas{{iconX, iconY, w, iconH}, {x, y + iconH, w, h - iconH}, 1, button.caption};
    case 1:
      return Areas{{iconX, iconY + h - iconH, w, iconH}, {x, y, w, h - iconH}, -1, button.caption};
    case 2:
      return Areas{{iconX, iconY, iconW, h}, {x + iconW, y, w - iconW, h}, 0, button.caption + u' '};
    case 3:
      return Areas{{iconX + w - iconW, iconY, iconW, h}, {x, y, w - iconW, h}, 0, u' ' + button.caption};
    case 4:
      return Areas{{iconX, iconY, w, h}, {x, y, w, h}, 0, button.caption};
    default:
      return std::nullopt;
  }
}

/// Throws for measures so large that sums of them could leave the range of an int.
void checkRange(const QRect& box) {
  constexpr int limit = 1 << 24;
  for (const int measure : {box.x(), box.y(), box.width(), box.height()}) {
    if (measure < -limit || measure > limit) throw std::overflow_error("a measure beyond any surface");
  }
}

class Painter {
 public:
  Painter(ButtonSurface& surface, const Scene& scene)
      : surface_(surface), raster_(surface.raster()), scene_(scene), values_(scene.buttons.values()) {}

  void background() {
    surface_.clearPicture();
    if (values_.BackGradient != 0) {
      FillGradient(raster_, raster_.rect(), values_.BackColor, values_.BackGradientCol, values_.BackGradient);
    } else if (values_.Background) {
      TilePicture(raster_, *values_.Background);
    }
    surface_.keepPicture();
  }

  void frame() {
    constexpr int Raised = 1;
    constexpr int Sunken = 2;
    const bool raised = values_.BorderStyle == Raised || !scene_.isMain;
    if (!raised && values_.BorderStyle != Sunken) return;
    Draw3DBox(raster_, values_, values_.BackColor, raster_.rect(), !raised, 0);
  }

  void listButton(int number) {
    const ToolbarButton& button = scene_.buttons.Button(number);
    const bool isHeld = number == scene_.buttons.Button_Index() && scene_.ButtonHeld;
    draw({number, button.Icon, button.Caption, button.Pressed || isHeld, button.Enabled,
          QRect(cornerOf(number), QSize(values_.ButtonsWidth, values_.ButtonsHeight)), button.IconAlignment});
  }

  void item(int number) {
    if (scene_.buttons.placeOf(number).InChevron) return;
    if (scene_.buttons.Button(number).ButtonType != 0) {
      separator(number);
    } else {
      listButton(number);
    }
  }

  /// Draws the chevron. Returns whether it is pressed.
  bool chevron() {
    const bool pressed = scene_.buttons.Button_Index() == 0 && scene_.ButtonHeld;
    const int frame = values_.BorderStyle == 0 ? 0 : 2;
    const QRect box(scene_.innerSize.width() - ChevronZone,
                    checkedInt(static_cast<qint64>(scene_.innerSize.height()) - values_.ButtonsHeight - frame),
                    ChevronWidth, values_.ButtonsHeight);
    draw({0, nullptr, ChevronSign, pressed, true, box, 0});
    return pressed;
  }

 private:
  QPoint cornerOf(int number) const {
    const ButtonPlace& place = scene_.buttons.placeOf(number);
    return {place.PosX, place.PosY};
  }

  void draw(ShownButton button) {
    checkRange(button.box);
    const bool enabled = button.enabled && values_.Enabled;
    const bool hover = button.index == scene_.buttons.Button_Index();
    const Face face = drawFace(raster_, values_, button.box, hover, button.pressed);
    const QPoint corner = button.box.topLeft();
    button.box.adjust(0, 0, -face.shrink, -face.shrink);
    if (const auto areas = areasOf(button, face.offset)) {
      if (button.icon) DrawIcon(raster_, *button.icon, areas->icon, enabled, face.shadow);
      const QRgb color = TranslateColor(enabled ? values_.ForeColor : GreyText);
      if (!button.caption.isEmpty()) {
        DrawCaption(raster_, values_.Font, color, areas->text, areas->caption, areas->shift);
      }
    }
    designMark(button.index, corner, values_.ButtonsWidth);
  }

  void separator(int number) {
    const QPoint corner = cornerOf(number);
    const int width = values_.ButtonsSeperatorWidth;
    const int height = values_.ButtonsHeight;
    checkRange(QRect(corner, QSize(width, height)));
    if (values_.ShowSeperator) {
      const int x = nearestInt(corner.x() + width / 2.0);
      const int y = corner.y() + 2;
      raster_.Line(x, y, x, y + height - 6, BlendColors(values_.BackColor, 0));
      raster_.Line(x + 1, y, x + 1, y + height - 6, BlendColors(values_.BackColor, 0xFFFFFF));
    }
    designMark(number, corner, width);
  }

  /// In a form's designer each button shows its number, and the button Button_Index a bar.
  void designMark(int number, const QPoint& corner, int width) {
    if (scene_.UserMode) return;
    const QRgb color = TranslateColor(values_.ForeColor);
    const int x = corner.x();
    const int y = corner.y();
    drawing::Print(raster_, drawing::drawnFont(values_.Font), QString::number(number), x, y + 2, color);
    const int mode = values_.ButtonsMode;
    if (number != scene_.buttons.Button_Index() || (mode != 0 && mode != 2 && mode != 3)) return;
    raster_.Rectangle(x + 1, y + 1, x + width - 2, y + 4, color, TranslateColor(values_.ButtonsBackColor));
  }

  ButtonSurface& surface_;
  drawing::Raster& raster_;
  const Scene& scene_;
  const Properties& values_;
};

/// Runs a part of the drawing. A failure ends only this part.
template <typename Part>
void guarded(Part part) {
  try {
    part();
  } catch (const std::exception&) {
    return;
  }
}

}  // namespace

bool paint(ButtonSurface& surface, const Scene& scene, bool& backgroundDrawn) {
  if (surface.raster().rect().isEmpty()) return false;
  Painter painter(surface, scene);
  bool opens = false;
  guarded([&] {
    surface.Cls();
    surface.SetBackColor(TranslateColor(scene.buttons.values().BackColor));
    if (!backgroundDrawn) {
      painter.background();
      backgroundDrawn = true;
    }
    painter.frame();
    if (!scene.isMain) {
      for (const int number : scene.HiddenButtons) guarded([&] { painter.listButton(number); });
      return;
    }
    for (int i = 1; i <= scene.buttons.Button_Count(); ++i) guarded([&] { painter.item(i); });
    if (!scene.HiddenButtons.empty()) guarded([&] { opens = painter.chevron(); });
  });
  return opens;
}

}  // namespace toolbar
