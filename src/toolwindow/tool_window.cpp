#include "toolwindow/tool_window.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>

#include "controls/assets.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/number_bar.h"
#include "controls/spoken_name.h"
#include "controls/swatch_button.h"
#include "controls/text_box.h"
#include "drawing/system_colours.h"
#include "themefiles/colour_tables.h"
#include "themefiles/module_state.h"
#include "themefiles/screen_table.h"

namespace toolwindow {
namespace {

constexpr int NumberLimit = 10000;
constexpr int NumberAtLoad = -1000;

struct FrameRow {
  themefiles::EditorFrame frame;
  QWidget* Form2::*widget;
  controls::TwipsRect ToolLayout::*place;
};

constexpr std::array<FrameRow, 6> Frames{{
    {themefiles::EditorFrame::Numbers, &Form2::Numbers, &ToolLayout::Numbers},
    {themefiles::EditorFrame::FloatNumbers, &Form2::FloatNumbers, &ToolLayout::FloatNumbers},
    {themefiles::EditorFrame::Selection, &Form2::Selection, &ToolLayout::Selection},
    {themefiles::EditorFrame::Color, &Form2::Color, &ToolLayout::Color},
    {themefiles::EditorFrame::Texture, &Form2::Texture, &ToolLayout::Texture},
    {themefiles::EditorFrame::Texts, &Form2::Texts, &ToolLayout::Texts},
}};

const FrameRow& rowOf(themefiles::EditorFrame frame) {
  return Frames.at(static_cast<size_t>(frame));
}

/// A colour as the preview shows it.
QColor previewColor(const ToolServices& services, const QString& name) {
  const QString color = themefiles::ResolveColor(services.state, name, services.schemeName());
  return drawing::colorOf(static_cast<quint32>(themefiles::ColorToRGB(color)));
}

/// Client size of a window, in pixels, from its outer size in twips.
QSize clientSize(const ToolLayout& layout) {
  return {controls::toPixels(layout.Width - controls::FrameWidth),
          controls::toPixels(layout.Height - controls::FrameHeight)};
}

}  // namespace

Form2::Form2(ToolServices given, QWidget* owner)
    : QWidget(owner, Qt::Tool),
      services(std::move(given)),
      Combo1(new controls::ComboBox(this)),
      List1(new controls::ListBox(controls::ListBox::Order::Sorted, this)),
      ListView1(new controls::ListView(this)),
      Frame1(new QGroupBox(QStringLiteral("Edit Value"), this)),
      Command1(new QPushButton(QStringLiteral("&Update"), this)),
      Numbers(new QWidget(Frame1)),
      Text1(new controls::TextBox(Numbers)),
      VScroll1(new controls::NumberBar(NumberLimit, NumberAtLoad, Numbers)),
      FloatNumbers(new QWidget(Frame1)),
      Text4(new controls::TextBox(FloatNumbers)),
      Selection(new QWidget(Frame1)),
      Combo2(new controls::ComboBox(Selection)),
      Color(new QWidget(Frame1)),
      Combo4(new controls::ComboBox(Color)),
      Command3(iconButton(Color, QStringLiteral("plus"), QStringLiteral("Add a new Color"))),
      Command5(iconButton(Color, QStringLiteral("minus"), QStringLiteral("Remove Color"))),
      Combo3(new controls::ComboBox(Color)),
      Command2(new controls::SwatchButton(Color)),
      Texture(new QWidget(Frame1)),
      Combo6(new controls::ComboBox(Texture)),
      Command8(iconButton(Texture, QStringLiteral("plus"), QString())),
      Command9(iconButton(Texture, QStringLiteral("minus"), QString())),
      Text3(new controls::TextBox(Texture)),
      Command4(iconButton(Texture, QStringLiteral("folder"), QStringLiteral("Change Filename"))),
      Texts(new QWidget(Frame1)),
      Combo5(new controls::ComboBox(Texts)),
      Command6(iconButton(Texts, QStringLiteral("plus"), QStringLiteral("Add New Key"))),
      Command7(iconButton(Texts, QStringLiteral("minus"), QStringLiteral("Remove Key"))),
      Text2(new controls::TextBox(Texts)),
      tags(*List1) {
  using TL = ToolLayout;
  placed_ = {
      {Combo1, &TL::Combo1, "Combo1", "Screen"},
      {List1, &TL::List1, "List1", "Objects of the screen"},
      {ListView1, &TL::ListView1, "ListView1", "Keys of the object"},
      {Frame1, &TL::Frame1, "Frame1"},
      {Command1, &TL::Command1, "Command1"},
      {Numbers, &TL::Numbers, "Numbers"},
      {Text1, &TL::Text1, "Text1", "Number"},
      {VScroll1, &TL::VScroll1, "VScroll1", "Raise or lower the number"},
      {FloatNumbers, &TL::FloatNumbers, "FloatNumbers"},
      {Text4, &TL::Text4, "Text4", "Number with a fraction"},
      {Selection, &TL::Selection, "Selection"},
      {Combo2, &TL::Combo2, "Combo2", "Value"},
      {Color, &TL::Color, "Color"},
      {Combo4, &TL::Combo4, "Combo4", "Group of colors"},
      {Command3, &TL::Command3, "Command3", "Add a new Color"},
      {Command5, &TL::Command5, "Command5", "Remove Color"},
      {Combo3, &TL::Combo3, "Combo3", "Color"},
      {Command2, &TL::Command2, "Command2", "Change Color"},
      {Texture, &TL::Texture, "Texture"},
      {Combo6, &TL::Combo6, "Combo6", "Texture key"},
      {Command8, &TL::Command8, "Command8", "Add New Key"},
      {Command9, &TL::Command9, "Command9", "Remove Key"},
      {Text3, &TL::Text3, "Text3", "Image file"},
      {Command4, &TL::Command4, "Command4", "Change Filename"},
      {Texts, &TL::Texts, "Texts"},
      {Combo5, &TL::Combo5, "Combo5", "Text key"},
      {Command6, &TL::Command6, "Command6", "Add New Key"},
      {Command7, &TL::Command7, "Command7", "Remove Key"},
      {Text2, &TL::Text2, "Text2", "Words"},
  };
  setObjectName(QStringLiteral("Form2"));
  for (const PlacedControl& control : placed_) {
    control.widget->setObjectName(QLatin1StringView(control.name));
    controls::setSpokenName(*control.widget, QLatin1StringView(control.spoken));
  }
  setTabOrder(Text2, Command1);  // Update behind every editor
  setWindowTitle(QStringLiteral("Tool"));
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  for (QWidget* control : std::initializer_list<QWidget*>{Combo1, List1, ListView1, Text3}) control->setEnabled(false);
  Command2->setToolTip(QStringLiteral("Change Color"));
  HideEditorFrames();
  Frame1->hide();
  Command1->hide();
  themefiles::InitScreenTable(services.state);
  for (const themefiles::ScreenRow& row : services.state.ScreenTable) {
    if (!row.Name.isEmpty()) Combo1->AddItem(row.Name);
  }
  for (const auto& group : {"Theme", "Program", "Player"}) Combo4->AddItem(QLatin1StringView(group));
  Combo3->setSwatches([this](const QString& name) { return previewColor(services, name); });
  services.state.EditorShown = false;
  fitWindow();
  ListView1->setColumns({QStringLiteral("Item"), QStringLiteral("Value")},
                        {controls::toPixels(950), controls::toPixels(1300)});
}

QPushButton* Form2::iconButton(QWidget* frame, const QString& icon, const QString& toolTip) {
  auto* button = new QPushButton(frame);
  if (!icon.isEmpty()) button->setIcon(controls::assetIcon(icon));
  button->setToolTip(toolTip);
  return button;
}

void Form2::beginList() {
  List1->Clear();
  listed_.reset();
}

void Form2::endList() {
  listed_ = Combo1->Text();
}

bool Form2::listIsComplete() const {
  return listed_ == Combo1->Text();
}

QWidget* Form2::frameOf(themefiles::EditorFrame frame) const {
  return this->*rowOf(frame).widget;
}

void Form2::ShowEditorFrame(themefiles::EditorFrame frame) {
  frameOf(frame)->show();
  services.state.EditorShown = true;
  layOutOpening(layout_, layout_.*rowOf(frame).place);
  Frame1->show();
  Command1->show();
  fitWindow();
}

void Form2::closeEditorFrame() {
  services.state.EditorShown = false;
  layOutClosing(layout_);
  HideEditorFrames();
  Frame1->hide();
  Command1->hide();
  fitWindow();
}

bool Form2::inEditorArea(const QWidget* control) const {
  return control != nullptr && (control == Command1 || Frame1->isAncestorOf(control));
}

void Form2::HideEditorFrames() {
  // Otherwise the toolkit would give the focus to the next control.
  if (inEditorArea(focusWidget())) ListView1->setFocus();
  for (const FrameRow& row : Frames) (this->*row.widget)->hide();
}

void Form2::applyLayout() {
  for (const PlacedControl& control : placed_) controls::place(*control.widget, layout_.*control.place);
}

/// Gives the window the layout's size, and the controls their places.
void Form2::fitWindow() {
  fitted_ = layout_;
  resize(clientSize(layout_));
  applyLayout();
}

/// At a fractional scale the window system may answer a requested size with one that is a pixel off.
bool Form2::isFitted(const QSize& size) const {
  const double scale = devicePixelRatioF();
  const int slack = scale == std::floor(scale) ? 0 : 1;
  const QSize off = size - clientSize(fitted_);
  return std::abs(off.width()) <= slack && std::abs(off.height()) <= slack;
}

void Form2::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // The window system also reports sizes that the window gave itself, and late. These are laid out already.
  if (isFitted(event->size())) {
    layout_ = fitted_;
  } else {
    layOut(layout_, event->size().width() * controls::TwipsPerPixel + controls::FrameWidth,
           event->size().height() * controls::TwipsPerPixel + controls::FrameHeight, services.state.EditorShown, false);
  }
  applyLayout();
}

void Form2::closeEvent(QCloseEvent* event) {
  // The window ends with its theme, unasked. A close box may look like the program's own close (Wayland).
  event->ignore();
}

void Form2::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  QWidget* const focus = focusWidget();
  if (!enter || !inEditorArea(focus)) return QWidget::keyPressEvent(event);
  if (event->isAutoRepeat()) return;
  auto* const button = qobject_cast<QPushButton*>(focus);
  if (button != nullptr) {
    button->click();
  } else {
    Q_EMIT enterPressed();
  }
}

}  // namespace toolwindow
