#include "toolbar/main_window_tool_bar.h"

#include "controls/assets.h"
#include "platform/icons.h"
#include "platform/property_bag_bytes.h"
#include "platform/stored_values.h"
#include "toolbar/stored_form.h"

namespace toolbar {

namespace {

constexpr QSize StripSize(800, 32);
constexpr double FontPoints = 8.25;

PictureReference iconOf(const QString& name) {
  const auto file = platform::WriteIcon(controls::AssetPicture(name + QStringLiteral(".png")));
  return file ? PictureOfFile(*file) : nullptr;
}

Properties values() {
  Properties values;
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

QByteArray MainWindowToolBar() {
  StoredToolBar toolBar{values(), {}};
  for (const char* icon : {"open", "save", "close", "background"}) {
    ToolbarButton button;
    button.Caption.clear();
    button.Icon = iconOf(QString::fromLatin1(icon));
    button.Enabled = toolBar.Buttons.empty();
    toolBar.Buttons.push_back(button);
  }
  platform::PropertyBag bag;
  platform::StoreSize(bag, StripSize);
  WriteStoredForm(bag, toolBar, QFont());
  return platform::StoredBytes(bag);
}

}  // namespace toolbar
