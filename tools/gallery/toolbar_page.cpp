#include "toolbar_page.h"

#include <functional>
#include <utility>

#include <QGridLayout>
#include <QLabel>

#include "controls/assets.h"
#include "drawing/fonts.h"
#include "mainwindows/commands.h"
#include "mainwindows/main_window_tool_bar.h"
#include "toolbar/mc_toolbar.h"

namespace gallery {

namespace {

using toolbar::McToolBar;
using toolbar::Model;

constexpr int Hovered = 2;
constexpr int Pressed = 3;
constexpr int ButtonWidth = 84;
constexpr int ButtonHeight = 44;

/// Five buttons and a separator: as they are, hovered, pressed, disabled, and without a caption.
void fill(Model& model) {
  model.setValue(&toolbar::Properties::ButtonsPerRow, 10);
  model.setValue(&toolbar::Properties::ButtonsWidth, ButtonWidth);
  model.setValue(&toolbar::Properties::ButtonsHeight, ButtonHeight);
  model.SetButton_Count(6);
  const std::pair<const char*, const char*> faces[] = {{"Open", "open"},      {"Hover", "save"}, {"Pressed", "close"},
                                                       {"Off", "background"}, {"", ""},          {"", "open"}};
  int number = 0;
  for (const auto& [caption, icon] : faces) {
    ++number;
    model.SetButtonValue(number, toolbar::CaptionProperty, QString::fromLatin1(caption));
    model.SetButtonValue(number, toolbar::ToolTipTextProperty, QStringLiteral("Button %1").arg(number));
    model.SetButtonValue(number, toolbar::IconAlignmentProperty, 2);
    model.SetButtonValue(number, toolbar::IconProperty,
                         controls::assetPicture(QString::fromLatin1(icon) + QStringLiteral(".png")));
  }
  model.SetButtonValue(3, toolbar::PressedProperty, true);
  model.SetButtonValue(4, toolbar::EnabledProperty, false);
  model.SetButtonValue(5, toolbar::ButtonTypeProperty, 1);
}

/// The buttons in two rows on a frame, with ramps: those of the first row and column have none in modes 0 to 3.
void fillRows(Model& model, int mode) {
  model.setValue(&toolbar::Properties::ButtonsMode, mode);
  model.setValue(&toolbar::Properties::ButtonsPerRow, 3);
  model.setValue(&toolbar::Properties::BorderStyle, qint16(mode % 3));
  model.setValue(&toolbar::Properties::ButtonsBackColor, 0xC08040U);
  model.setValue(&toolbar::Properties::ButtonsGradientCol, 0x40F0F0U);
  model.setValue(&toolbar::Properties::ButtonsGradient, 3);
  model.setValue(&toolbar::Properties::HoverColor, 0x40C0FFU);
  model.setValue(&toolbar::Properties::ForeColor, 0x0000C0U);
}

/// Icons of so many pixels in a row, with a clear one: greyed they show what the bytes between rows do.
void fillWithOddIcons(Model& model) {
  model.setValue(&toolbar::Properties::Enabled, false);
  for (int width = 1; width <= model.Button_Count(); ++width) {
    QImage icon(width, 9, QImage::Format_ARGB32);
    for (int i = 0; i < width * 9; ++i) {
      icon.setPixel(i % width, i / width, i == 2 ? 0U : qRgb(i * 20 % 256, 255 - i * 28 % 256, i * 90 % 256));
    }
    model.SetButtonValue(width, toolbar::IconProperty, icon);
    model.SetButtonValue(width, toolbar::ButtonTypeProperty, 0);
  }
}

QImage checks() {
  QImage bitmap(8, 8, QImage::Format_RGB32);
  for (int i = 0; i < 64; ++i) bitmap.setPixel(i % 8, i / 8, (i % 8 < 4) == (i < 32) ? 0xFFE8E0D0 : 0xFFC8D8E8);
  return bitmap;
}

/// The rows of the page.
class Rows {
 public:
  explicit Rows(QWidget& page) : page_(page), grid_(new QGridLayout(&page)) { grid_->setColumnStretch(2, 1); }

  void add(const QString& title, const std::function<void(Model&)>& change, int width = 460, bool userMode = true,
           int hovered = Hovered) {
    auto* const bar = new McToolBar({userMode, drawing::controlFont(QStringLiteral("MS Sans Serif"), 11)}, &page_);
    bar->UserControl_ReadProperties({});
    fill(bar->buttons());
    change(bar->buttons());
    bar->resize(width, bar->height());
    bar->setFixedWidth(width);
    bar->buttons().pointAt(hovered);
    bar->buttons().setValue(&toolbar::Properties::ButtonsWidth, ButtonWidth);
    put(title, bar);
  }
  void put(const QString& title, QWidget* bar) {
    auto* const label = new QLabel(title);
    label->setTextFormat(Qt::PlainText);
    grid_->addWidget(label, row_, 0);
    grid_->addWidget(bar, row_++, 1, Qt::AlignLeft);
  }

 private:
  QWidget& page_;
  QGridLayout* grid_;
  int row_ = 0;
};

void addGradients(Rows& rows) {
  for (int kind = 0; kind <= 7; ++kind) {
    rows.add(QStringLiteral("BackGradient, ButtonsGradient %1").arg(kind), [kind](Model& model) {
      model.setValue(&toolbar::Properties::ButtonsMode, 5);
      model.setValue(&toolbar::Properties::BackColor, 0x808080U);
      model.setValue(&toolbar::Properties::BackGradient, kind);
      model.setValue(&toolbar::Properties::ButtonsBackColor, 0xC08040U);
      model.setValue(&toolbar::Properties::ButtonsGradient, kind);
    });
  }
}

void addAlignments(Rows& rows) {
  for (int alignment = 0; alignment <= 5; ++alignment) {
    rows.add(QStringLiteral("IconAlignment %1").arg(alignment), [alignment](Model& model) {
      for (int i = 1; i <= model.Button_Count(); ++i) {
        model.SetButtonValue(i, toolbar::IconAlignmentProperty, alignment);
      }
      model.SetButtonValue(1, toolbar::CaptionProperty, QStringLiteral("A longer caption"));
    });
  }
}

}  // namespace

std::unique_ptr<QWidget> makeToolBarPage() {
  auto page = std::make_unique<QWidget>();
  Rows rows(*page);
  auto* const own = new McToolBar(toolbar::ambientOf(page.get()), page.get());
  own->UserControl_ReadProperties(mainwindows::mainWindowToolBar(mainwindows::commandRows()));
  own->setFixedWidth(460);
  rows.put(QStringLiteral("Main window"), own);
  for (int mode = 0; mode <= 6; ++mode) {
    rows.add(QStringLiteral("ButtonsMode %1").arg(mode),
             [mode](Model& model) { model.setValue(&toolbar::Properties::ButtonsMode, mode); });
  }
  for (int mode = 0; mode <= 7; ++mode) {
    rows.add(
        QStringLiteral("ButtonsMode %1, two rows").arg(mode), [mode](Model& model) { fillRows(model, mode); }, 300,
        true, mode % 2 == 0 ? Hovered : Pressed);
  }
  addGradients(rows);
  addAlignments(rows);
  rows.add(QStringLiteral("Disabled"), [](Model& model) { model.setValue(&toolbar::Properties::Enabled, false); });
  rows.add(QStringLiteral("Icons of 1 to 6 pixels"), fillWithOddIcons);
  rows.add(QStringLiteral("RectBorderColor"), [](Model& model) {
    model.setValue(&toolbar::Properties::ButtonsMode, 4);
    model.setValue(&toolbar::Properties::RectBorderColorAutoBlend, false);
    model.setValue(&toolbar::Properties::RectBorderColor, 0x00C000U);
  });
  rows.add(QStringLiteral("Sunken frame, tiled background"), [](Model& model) {
    model.setValue(&toolbar::Properties::BorderStyle, 2);
    model.setValue(&toolbar::Properties::Background, toolbar::pictureOfImage(checks()));
  });
  rows.add(
      QStringLiteral("Chevron"), [](Model& model) { model.setValue(&toolbar::Properties::ShowChevron, true); }, 300);
  rows.add(
      QStringLiteral("In a designer"), [](Model& model) { model.setValue(&toolbar::Properties::ShowSeperator, false); },
      460, false);
  return page;
}

}  // namespace gallery
