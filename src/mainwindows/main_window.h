#pragma once

#include <memory>

#include <QWidget>

#include "controls/work_queue.h"
#include "editing/session.h"
#include "mainwindows/command.h"
#include "mainwindows/config_file.h"
#include "platform/status_line.h"
#include "renderer/prepared_pictures.h"
#include "renderer/render_account.h"

class QLabel;
class QScrollArea;

namespace controls {
class ComboBox;
}
namespace drawing {
class Graphics;
}
namespace platform {
class Dialogs;
}
namespace progressbar {
class ProgressBar;
}
namespace renderer {
class RenderHost;
struct RenderContext;
}  // namespace renderer
namespace themefiles {
struct ModuleState;
}
namespace toolbar {
class McToolBar;
}
namespace toolwindow {
class Form2;
}

namespace mainwindows {

class StatusBar;
class Workspace;

/// What the main window gets from its surroundings; tests give their own.
struct MainServices {
  themefiles::ModuleState& state;
  platform::Dialogs& dialogs;
  drawing::Graphics& graphics;
  QStringList configFolders;  ///< where config.ini may lie
};

/// The main window: the preview with its toolbar, status bar and the choices of colour scheme and button. It is there
/// from the program's start to its end, and has what the other windows share. What works on it: see Editor.
class Form1 : public QWidget, public platform::StatusLine {
  Q_OBJECT

 public:
  Form1(const MainServices& services, CommandRows commands);
  ~Form1() override;

  const MainServices services;

  QWidget* client;           ///< the client area: 800 x 650, or what the screen has room for
  QScrollArea* previewArea;  ///< has scroll bars on a screen that is too small for the preview
  mainwindows::Workspace* Workspace;
  toolbar::McToolBar* ToolBar;
  mainwindows::StatusBar* StatusBar;
  progressbar::ProgressBar* ProgressBar1;

  /// The lists of the colour schemes, and of the screen's buttons, of which one is shown selected.
  controls::ComboBox& schemes() const { return *Combo1; }
  controls::ComboBox& buttons() const { return *Combo2; }

  /// The session of the theme that is open.
  editing::Session& session() { return session_; }
  const editing::Session& session() const { return session_; }
  ConfigFile& config() { return config_; }
  controls::WorkQueue& queue() { return queue_; }
  const controls::WorkQueue& queue() const { return queue_; }
  /// Form2 while a theme is open, else null.
  toolwindow::Form2* toolWindow() const { return toolWindow_; }
  /// Takes over the tool window of a theme that is being opened; its parent is this window.
  void setToolWindow(toolwindow::Form2* window) { toolWindow_ = window; }
  /// Unloads the tool window of a theme that is being left.
  void unloadToolWindow();

  /// What the last render drew and left out.
  const renderer::RenderAccount& account() const { return account_; }
  /// What a drawing of the chosen screen works on; only with a theme open.
  renderer::RenderContext renderContext();
  renderer::RenderContext renderContext(const themefiles::TagList& objects);
  /// Makes the next drawing read all pictures from their files.
  void forgetPictures() { pictures_.clear(); }
  /// Draws the chosen screen; called by the work queue.
  void DrawScreen();

  /// Shows the mouse's place in the status bar, counted from 1.
  void ShowMousePosition(qint16 X, qint16 Y);
  /// Shows the start picture with the two labels, on a back colour value.
  void showStartPicture(quint32 backColor);
  /// Hides the labels: the picture is that of a theme now.
  void leaveStartPicture();
  /// Enables the button of a command.
  void enableCommand(Command command, bool enabled);
  /// Whether the button of a command is enabled; true for a command without one.
  bool commandEnabled(Command command) const;

 Q_SIGNALS:
  /// The user or the end of the desktop session asks to close the window.
  void closeAsked();

 protected:
  void showReport(const QString& text) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QLabel* startLabel(int pixels, double left, double top);
  void placeControls();
  QSize windowSize() const;
  void Form_Load();
  int buttonOf(Command command) const;

  controls::ComboBox* const Combo1;  ///< the colour schemes
  controls::ComboBox* const Combo2;  ///< the screen's buttons
  QLabel* const Label1;              ///< version
  QLabel* const Label2;              ///< credit

  CommandRows commands_;
  ConfigFile config_;
  editing::Session session_;
  controls::WorkQueue queue_;
  toolwindow::Form2* toolWindow_ = nullptr;
  renderer::RenderAccount account_;
  renderer::PreparedPictures pictures_;
  std::unique_ptr<renderer::RenderHost> host_;
};

}  // namespace mainwindows
