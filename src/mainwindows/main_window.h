#pragma once

#include <optional>

#include <QLabel>
#include <QWidget>

#include "controls/combo_box.h"
#include "controls/work_queue.h"
#include "drawing/graphics.h"
#include "mainwindows/config_file.h"
#include "mainwindows/preview_host.h"
#include "mainwindows/preview_picking.h"
#include "mainwindows/status_bar.h"
#include "mainwindows/workspace.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "progressbar/progress_bar.h"
#include "renderer/prepared_pictures.h"
#include "renderer/render_account.h"
#include "renderer/render_context.h"
#include "themefiles/module_state.h"
#include "toolbar/mc_toolbar.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {

class PreviewHand;

/// What the main window gets from its surroundings; tests give their own.
struct MainServices {
  themefiles::ModuleState& state;
  platform::Dialogs& dialogs;
  drawing::Graphics& graphics;
  QStringList configFolders;  ///< where config.ini may lie
};

/// What is chosen on the screen while it is listed and drawn anew.
struct KeptChoices {
  QString screen;
  QString object;
  quint8 button = 1;
};

/// The main window: the preview with its toolbar, status bar and the choices of colour scheme and button. It is there
/// from the program's start to its end.
class Form1 : public QWidget, public platform::StatusLine {
  Q_OBJECT

 public:
  explicit Form1(const MainServices& services);
  ~Form1() override;

  MainServices services;
  ConfigFile config;
  controls::WorkQueue queue;

  QWidget* client;  ///< the client area: 800 x 650, or what the screen has room for
  mainwindows::Workspace* Workspace;
  toolbar::McToolBar* ToolBar;
  mainwindows::StatusBar* StatusBar;
  controls::ComboBox* Combo1;  ///< the colour scheme
  controls::ComboBox* Combo2;  ///< which button is shown selected
  QLabel* Label1;              ///< version
  QLabel* Label2;              ///< credit
  progressbar::ProgressBar* ProgressBar1;
  toolwindow::Form2* toolWindow = nullptr;  ///< Form2 while a theme is open
  renderer::RenderAccount account;          ///< what the last render drew and left out
  renderer::PreparedPictures pictures;      ///< what the renders keep of the picture files
  PreviewPicking picking;
  PreviewHand* hand = nullptr;      ///< moves and sizes objects on the preview; comes with the events
  std::optional<KeptChoices> kept;  ///< while a refresh of the screen is on its way

  /// Shows the mouse's place in the status bar, counted from 1.
  void ShowMousePosition(qint16 X, qint16 Y);
  /// Shows the start picture with the two labels, on a back colour value.
  void showStartPicture(quint32 backColor);
  /// Draws the chosen screen; called by the work queue.
  void DrawScreen();
  void enableButton(int button, bool enabled);
  /// What a drawing of the chosen screen works on; only with a theme open.
  renderer::RenderContext renderContext();

 Q_SIGNALS:
  /// The user, or the session's end, wants the window closed.
  void closeAsked();

 protected:
  void showReport(const QString& text) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QLabel* startLabel(int pixels, double left, double top);
  void placeControls();
  QSize windowSize() const;
  void Form_Load();

  PreviewHost host_;
};

}  // namespace mainwindows
