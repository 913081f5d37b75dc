#include "mainwindows/main_window_tool_bar.h"

#include "controls/assets.h"
#include "drawing/icons.h"
#include "propertybag/stored_bytes.h"
#include "propertybag/stored_values.h"
#include "toolbar/stored_form.h"

namespace mainwindows {

namespace {

constexpr QSize StripSize(800, 32);
constexpr double FontPoints = 8.25;

toolbar::PictureReference iconOf(const QString& name) {
  const auto file = drawing::writeIcon(controls::assetPicture(name + QStringLiteral(".png")));
  return file ? toolbar::pictureOfFile(*file) : nullptr;
}

toolbar::Properties values() {
  toolbar::Properties values;
  values.ButtonsPerRow = 10;
  values.BackColor = 0x808080;
  values.HoverColor = 0xFFFFFF;
  values.TooTipStyle = 0;
  values.BackGradient = 3;
  values.ButtonsMode = 4;
  values.ButtonsBackColor = 0x8080FF;
  values.ButtonsGradientCol = 0x8080FF;
  values.RectBorderColor = 0xFFC0C0;
  values.Font.setFamilies({QStringLiteral("MS Sans Serif")});
  values.Font.setPointSizeF(FontPoints);
  return values;
}

}  // namespace

QByteArray mainWindowToolBar(CommandRows commands) {
  toolbar::StoredToolBar toolBar{values(), {}};
  for (const CommandRow& row : commands) {
    if (row.button == 0) continue;
    toolbar::ToolbarButton button;
    button.Caption.clear();
    button.Icon = iconOf(row.icon.toString());
    button.Enabled = toolBar.buttons.empty();
    toolBar.buttons.push_back(button);
  }
  propertybag::PropertyBag bag;
  propertybag::storeSize(bag, StripSize);
  toolbar::writeStoredForm(bag, toolBar, QFont());
  return propertybag::storedBytes(bag);
}

}  // namespace mainwindows
