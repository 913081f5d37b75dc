#include "mainwindows/main_window.h"

#include <algorithm>
#include <array>

#include <QCloseEvent>
#include <QIcon>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTime>

#include "controls/assets.h"
#include "controls/twips.h"
#include "platform/fonts.h"
#include "platform/system_colors.h"
#include "progressbar/main_window_bar.h"
#include "progressbar/stored_form.h"
#include "renderer/render_driver.h"
#include "toolbar/button_values.h"
#include "toolbar/main_window_tool_bar.h"
#include "toolwindow/object_selection.h"

namespace mainwindows {
namespace {

constexpr QSize ClientSize(800, 650);
constexpr int ToolBarHeight = 32;
constexpr int StatusBarHeight = 18;
constexpr QSize ProgressBarSize(801, 20);
constexpr QStringView Version = u"0.3a";
constexpr quint32 FormColor = 0xC0C0C0;
constexpr quint32 StartBackColor = 0x808080;

/// Tool tips of the toolbar's four commands, buttons 1 to 4.
constexpr std::array<QStringView, 4> CommandTips{u"Open", u"Save", u"Close", u"Background Color"};

void setBackground(QWidget& widget, quint32 color) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, platform::ColorOf(color));
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}

}  // namespace

Form1::Form1(const MainServices& services)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      Services(services),
      Config(services.ConfigFolders),
      Client(new QWidget(this)),
      Workspace(new mainwindows::Workspace(Client)),
      ToolBar(new toolbar::McToolBar(Client)),
      StatusBar(new mainwindows::StatusBar(Client)),
      Combo1(new controls::ComboBox(Client)),
      Combo2(new controls::ComboBox(Client)),
      Label1(startLabel(19, 10800, 7800)),
      Label2(startLabel(11, 8160, 8160)),
      ProgressBar1(new progressbar::ProgressBar(Client)),
      host_({*Workspace, *ProgressBar1, *Combo1, *Combo2, Queue, [this] { return ToolWindow->Combo1->Text(); }}) {
  setObjectName(QStringLiteral("Form1"));
  setWindowIcon(controls::AssetIcon(QStringLiteral("app")));
  ToolBar->UserControl_ReadProperties(toolbar::MainWindowToolBar());
  progressbar::ReadProperties(*ProgressBar1, progressbar::MainWindowBar());
  placeControls();
  Form_Load();
}

Form1::~Form1() {
  delete ToolWindow;
}

QLabel* Form1::startLabel(int pixels, double left, double top) {
  auto* label = new QLabel(Workspace);
  label->setTextFormat(Qt::PlainText);
  label->setFont(platform::ControlFont(QStringLiteral("Arial"), pixels));
  label->move(controls::ToPixels(left), controls::ToPixels(top));
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  return label;
}

void Form1::placeControls() {
  const QSize size = windowSize();
  setFixedSize(size);
  Client->resize(size);
  setBackground(*Client, FormColor);
  ToolBar->setGeometry(0, 0, size.width(), ToolBarHeight);
  auto* preview = new QScrollArea(Client);
  preview->setFrameShape(QFrame::NoFrame);
  preview->setFocusPolicy(Qt::NoFocus);
  preview->setWidget(Workspace);
  preview->setGeometry(0, ToolBarHeight, size.width(), size.height() - ToolBarHeight - StatusBarHeight);
  StatusBar->setGeometry(0, size.height() - StatusBarHeight, size.width(), StatusBarHeight);
  setBackground(*StatusBar, platform::ButtonFaceColor);
  ProgressBar1->resize(std::min(ProgressBarSize.width(), size.width() + 1), ProgressBarSize.height());
  controls::Place(*Combo1, {10560, 90, 1335, 315});
  controls::Place(*Combo2, {8760, 90, 1695, 315});
  const int beyond = std::max(0, Combo1->geometry().right() + 1 - size.width());
  for (QWidget* list : {Combo1, Combo2}) list->move(list->x() - beyond, list->y());
  for (QWidget* hidden : std::initializer_list<QWidget*>{Combo1, Combo2, ProgressBar1}) {
    hidden->hide();
    hidden->raise();
  }
  const struct {
    QWidget* control;
    const char* name;
    const char* spoken;  // what a screen reader calls it
  } names[] = {{Workspace, "Workspace", "Preview"},   {ToolBar, "ToolBar", "Commands"},
               {StatusBar, "StatusBar", "Status"},    {Combo1, "Combo1", "Color scheme"},
               {Combo2, "Combo2", "Selected button"}, {ProgressBar1, "ProgressBar1", "Progress of the drawing"}};
  for (const auto& [control, name, spoken] : names) {
    control->setObjectName(QLatin1StringView(name));
    control->setAccessibleName(QLatin1StringView(spoken));
  }
  setTabOrder(Combo2, Combo1);  // from left to right
  controls::CentreOnScreen(*this);
}

/// That of the client area; on a screen that is too small for it, what the screen has, with room for scroll bars.
QSize Form1::windowSize() const {
  const QSize room = screen()->availableSize() - QSize(0, controls::ToPixels(controls::FrameHeight));
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const bool low = ClientSize.height() > room.height();
  const bool narrow = ClientSize.width() + (low ? bar : 0) > room.width();
  return (ClientSize + QSize(low ? bar : 0, narrow ? bar : 0)).boundedTo(room);
}

void Form1::Form_Load() {
  setWindowTitle(QStringLiteral("Cantorama Theme Edit") + QStringLiteral(" v.") + Version.toString());
  ShowMousePosition(0, 0);
  ShowStartPicture(StartBackColor);
  Label1->setText(QStringLiteral("v.") + Version.toString());
  Label2->setText(QStringLiteral("by Bricolo"));
  Label1->adjustSize();
  Label2->adjustSize();
  ProgressBar1->move(0, ToolBar->Height());
  for (size_t i = 0; i < CommandTips.size(); ++i) {
    ToolBar->SetButtonValue(static_cast<int>(i) + 1, toolbar::ToolTipTextProperty, CommandTips.at(i).toString());
  }
  Services.State.BackgroundColor = 0xFFFFFF;
  if (Config.Path().isEmpty()) {
    ShowStatus(platform::ReportText(QStringLiteral("The game folder can't be kept in config.ini"), Config.Problem()));
  }
}

void Form1::ShowStartPicture(quint32 backColor) {
  const QImage picture = controls::AssetPicture(QStringLiteral("start.jpg"));
  Workspace->Surface().Wipe(platform::ColorOf(backColor));
  Workspace->Surface().DrawImageRect(picture, 0, 0, platform::Surface::Width, platform::Surface::Height);
  Workspace->Refresh();
  Label1->show();
  Label2->show();
}

void Form1::showReport(const QString& text) {
  StatusBar->SetPanel(1,
                      u'[' + QTime::currentTime().toString(QStringLiteral("HH:mm:ss")) + QStringLiteral("] ") + text);
}

void Form1::ShowMousePosition(qint16 X, qint16 Y) {
  StatusBar->SetPanel(2, QStringLiteral("x: %1  y: %2").arg(X + 1).arg(Y + 1));
}

void Form1::DrawScreen() {
  if (ToolWindow == nullptr) return;
  platform::Surface& surface = Workspace->Surface();
  renderer::RenderContext context{Services.State,   ToolWindow->Tags,  surface, host_,    *this,
                                  Services.Dialogs, Services.Graphics, Account, &Pictures};
  const platform::Pen pen = surface.pen();
  try {
    platform::Guarded(*this, QStringLiteral("Error while Draw Screen"), [&] { renderer::DrawScreen(context); });
  } catch (const controls::WorkAbandoned&) {
    // The render that takes this one's place begins with the pen that this one found.
    surface.setPen(pen);
    throw;
  }
  ProgressBar1->hide();
  Workspace->Refresh();
  toolwindow::ShowReasons(*ToolWindow, Account);
}

void Form1::EnableButton(int button, bool enabled) {
  ToolBar->SetButtonValue(button, toolbar::EnabledProperty, enabled);
}

void Form1::closeEvent(QCloseEvent* event) {
  event->ignore();
  Q_EMIT CloseAsked();
}

}  // namespace mainwindows
