#include "mainwindows/main_window.h"

#include <algorithm>

#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTime>

#include "controls/assets.h"
#include "controls/combo_box.h"
#include "controls/spoken_name.h"
#include "controls/twips.h"
#include "drawing/fonts.h"
#include "drawing/system_colours.h"
#include "mainwindows/main_window_progress_bar.h"
#include "mainwindows/main_window_tool_bar.h"
#include "mainwindows/preview_host.h"
#include "mainwindows/status_bar.h"
#include "mainwindows/workspace.h"
#include "progressbar/progress_bar.h"
#include "progressbar/stored_form.h"
#include "renderer/render_context.h"
#include "renderer/render_driver.h"
#include "themefiles/module_state.h"
#include "toolbar/button_values.h"
#include "toolbar/mc_toolbar.h"
#include "toolwindow/object_reasons.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {
namespace {

constexpr QSize ClientSize(800, 650);
constexpr int ToolBarHeight = 32;
constexpr int StatusBarHeight = 18;
constexpr QSize ProgressBarSize(801, 20);
constexpr quint32 FormColor = 0xC0C0C0;
constexpr quint32 StartBackColor = 0x808080;

void setBackground(QWidget& widget, quint32 color) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, drawing::colorOf(color));
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}

}  // namespace

Form1::Form1(const MainServices& services, CommandRows commands)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      services(services),
      client(new QWidget(this)),
      previewArea(new QScrollArea(client)),
      Workspace(new mainwindows::Workspace(client)),
      ToolBar(new toolbar::McToolBar(client)),
      StatusBar(new mainwindows::StatusBar(client)),
      ProgressBar1(new progressbar::ProgressBar(client)),
      Combo1(new controls::ComboBox(client)),
      Combo2(new controls::ComboBox(client)),
      Label1(startLabel(19, 10800, 7800)),
      Label2(startLabel(11, 8160, 8160)),
      commands_(commands),
      config_(services.configFolders),
      session_(services.state, *this),
      host_(std::make_unique<PreviewHost>(PreviewControls{.Workspace = *Workspace,
                                                          .ProgressBar1 = *ProgressBar1,
                                                          .schemes = *Combo1,
                                                          .buttons = *Combo2,
                                                          .queue = queue_,
                                                          .screenName = [this] { return session_.screen(); }})) {
  setObjectName(QStringLiteral("Form1"));
  setWindowIcon(controls::assetIcon(QStringLiteral("app")));
  ToolBar->UserControl_ReadProperties(mainWindowToolBar(commands_));
  progressbar::readProperties(*ProgressBar1, mainWindowBar());
  placeControls();
  Form_Load();
}

Form1::~Form1() {
  delete toolWindow_;
  toolWindow_ = nullptr;
}

QLabel* Form1::startLabel(int pixels, double left, double top) {
  auto* label = new QLabel(Workspace);
  label->setTextFormat(Qt::PlainText);
  label->setFont(drawing::controlFont(QStringLiteral("Arial"), pixels));
  label->move(controls::toPixels(left), controls::toPixels(top));
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  return label;
}

void Form1::placeControls() {
  const QSize size = windowSize();
  setFixedSize(size);
  client->resize(size);
  setBackground(*client, FormColor);
  ToolBar->setGeometry(0, 0, size.width(), ToolBarHeight);
  previewArea->setFrameShape(QFrame::NoFrame);
  previewArea->setFocusPolicy(Qt::NoFocus);
  previewArea->setWidget(Workspace);
  previewArea->setGeometry(0, ToolBarHeight, size.width(), size.height() - ToolBarHeight - StatusBarHeight);
  StatusBar->setGeometry(0, size.height() - StatusBarHeight, size.width(), StatusBarHeight);
  setBackground(*StatusBar, drawing::ButtonFaceColor);
  ProgressBar1->resize(std::min(ProgressBarSize.width(), size.width() + 1), ProgressBarSize.height());
  controls::place(*Combo1, {10560, 90, 1335, 315});
  controls::place(*Combo2, {8760, 90, 1695, 315});
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
  } names[] = {{Workspace, "Workspace", "Preview"},
               {ToolBar, "ToolBar", "Commands"},
               {StatusBar, "StatusBar", "Status"},
               {Combo1, "Combo1", "Color scheme"},
               {Combo2, "Combo2", "Selected button"},
               {ProgressBar1, "ProgressBar1", "Progress of the drawing"},
               {Label1, "Label1", ""},
               {Label2, "Label2", ""}};
  for (const auto& [control, name, spoken] : names) {
    control->setObjectName(QLatin1StringView(name));
    controls::setSpokenName(*control, QLatin1StringView(spoken));
  }
  setTabOrder(Combo2, Combo1);  // from left to right
  setTabOrder(Combo1, Workspace);
  controls::centreOnScreen(*this);
}

/// The client area's size. On a screen that is too small for it, the room there is, with scroll bars.
QSize Form1::windowSize() const {
  const QSize room = screen()->availableSize() - QSize(0, controls::toPixels(controls::FrameHeight));
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const bool low = ClientSize.height() > room.height();
  const bool narrow = ClientSize.width() + (low ? bar : 0) > room.width();
  return (ClientSize + QSize(low ? bar : 0, narrow ? bar : 0)).boundedTo(room);
}

void Form1::Form_Load() {
  setWindowTitle(QStringLiteral("Cantorama Theme Edit v." CANTORAMA_VERSION));
  ShowMousePosition(0, 0);
  showStartPicture(StartBackColor);
  Label1->setText(QStringLiteral("v." CANTORAMA_VERSION));
  Label2->setText(QStringLiteral("by Bricolo"));
  Label1->adjustSize();
  Label2->adjustSize();
  ProgressBar1->move(0, ToolBar->Height());
  for (const CommandRow& row : commands_) {
    if (row.button != 0) ToolBar->SetButtonValue(row.button, toolbar::ToolTipTextProperty, row.toolTip.toString());
  }
  services.state.BackgroundColor = 0xFFFFFF;
  if (config_.path().isEmpty()) {
    ShowStatus(platform::reportText(QStringLiteral("The game folder can't be kept in config.ini"), config_.problem()));
  }
}

void Form1::showStartPicture(quint32 backColor) {
  const QImage picture = controls::assetPicture(QStringLiteral("start.jpg"));
  Workspace->surface().wipe(drawing::colorOf(backColor));
  Workspace->surface().drawImageRect(picture, 0, 0, drawing::Surface::Width, drawing::Surface::Height);
  Workspace->Refresh();
  Label1->show();
  Label2->show();
}

void Form1::leaveStartPicture() {
  Label1->hide();
  Label2->hide();
}

void Form1::showReport(const QString& text) {
  const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
  StatusBar->setPanel(1, text.isEmpty() ? QString() : u'[' + time + QStringLiteral("] ") + text);
}

void Form1::ShowMousePosition(qint16 X, qint16 Y) {
  StatusBar->setPanel(2, QStringLiteral("x: %1  y: %2").arg(X + 1).arg(Y + 1));
}

renderer::RenderContext Form1::renderContext() {
  return renderContext(session_.objects());
}

renderer::RenderContext Form1::renderContext(const themefiles::TagList& objects) {
  return {.state = services.state,
          .tags = objects,
          .Workspace = Workspace->surface(),
          .host = *host_,
          .status = *this,
          .dialogs = services.dialogs,
          .graphics = services.graphics,
          .account = account_,
          .pictures = &pictures_};
}

void Form1::DrawScreen() {
  if (toolWindow_ == nullptr) return;
  drawing::Surface& surface = Workspace->surface();
  renderer::RenderContext context = renderContext();
  const drawing::Pen pen = surface.pen();
  try {
    platform::guarded(*this, QStringLiteral("Error while Draw Screen"), [&] { renderer::DrawScreen(context); });
  } catch (const controls::WorkAbandoned&) {
    // The drawing that replaces this one has to begin with the same pen.
    surface.setPen(pen);
    throw;
  }
  ProgressBar1->hide();
  Workspace->Refresh();
  toolwindow::showReasons(toolWindow_->objects(), account_);
}

int Form1::buttonOf(Command command) const {
  const auto row =
      std::find_if(commands_.begin(), commands_.end(), [&](const CommandRow& each) { return each.command == command; });
  return row == commands_.end() ? 0 : row->button;
}

void Form1::enableCommand(Command command, bool enabled) {
  ToolBar->SetButtonValue(buttonOf(command), toolbar::EnabledProperty, enabled);
}

bool Form1::commandEnabled(Command command) const {
  const int button = buttonOf(command);
  return button == 0 || ToolBar->GetButtonValue(button, toolbar::EnabledProperty).toBool();
}

void Form1::unloadToolWindow() {
  if (toolWindow_ == nullptr) return;
  // It is deleted from the event loop: one of its own events may be running.
  toolWindow_->hide();
  toolWindow_->deleteLater();
  toolWindow_ = nullptr;
  session_.end();
}

void Form1::closeEvent(QCloseEvent* event) {
  event->ignore();
  Q_EMIT closeAsked();
}

}  // namespace mainwindows
