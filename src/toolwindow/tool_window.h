#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QWidget>

#include "themefiles/key_table.h"
#include "themefiles/theme_search.h"
#include "toolwindow/listed_tags.h"
#include "toolwindow/tool_layout.h"

class QGroupBox;
class QPushButton;

namespace controls {
class ComboBox;
class ListBox;
class ListView;
class NumberBar;
class SwatchButton;
class TextBox;
class WorkQueue;
}  // namespace controls
namespace drawing {
class Surface;
}
namespace platform {
class Dialogs;
class StatusLine;
}  // namespace platform
namespace renderer {
class CursorMark;
}
namespace themefiles {
struct ModuleState;
}

namespace toolwindow {

/// What the tool window uses of the rest of the program.
struct ToolServices {
  themefiles::ModuleState& state;
  platform::StatusLine& status;
  platform::Dialogs& dialogs;
  drawing::Surface& Workspace;
  renderer::CursorMark& mark;
  controls::WorkQueue& queue;
  std::function<void()> enableSave;
  std::function<QString()> schemeName;         ///< the colour scheme in force
  std::function<void()> settleHand = [] {};    ///< ends what the user's hand is doing on the preview
  std::function<void()> objectChosen = [] {};  ///< another object is selected, and its mark placed
};

/// The tool window: the choice of screen and object, the values of the object, and the editor of one value. It floats
/// over the main window while a theme is open; its user can't close it by itself.
class Form2 : public QWidget {
  Q_OBJECT

 public:
  const ToolServices services;

  controls::ComboBox* Combo1;     ///< the screen
  controls::ListBox* List1;       ///< the screen's objects
  controls::ListView* ListView1;  ///< the object's keys and values
  QGroupBox* Frame1;              ///< the editor area
  QPushButton* Command1;          ///< Update

  QWidget* Numbers;
  controls::TextBox* Text1;
  controls::NumberBar* VScroll1;

  QWidget* FloatNumbers;
  controls::TextBox* Text4;

  QWidget* Selection;
  controls::ComboBox* Combo2;  ///< the values of a key with a fixed list

  QWidget* Color;
  controls::ComboBox* Combo4;        ///< the group of colours
  QPushButton* Command3;             ///< add a colour
  QPushButton* Command5;             ///< remove the colour
  controls::ComboBox* Combo3;        ///< the colour's name
  controls::SwatchButton* Command2;  ///< shows the colour, and changes it

  QWidget* Texture;
  controls::ComboBox* Combo6;  ///< the texture key
  QPushButton* Command8;       ///< add a texture key
  QPushButton* Command9;       ///< remove the texture key
  controls::TextBox* Text3;    ///< the image's file name
  QPushButton* Command4;       ///< choose the image

  QWidget* Texts;
  controls::ComboBox* Combo5;  ///< the text key
  QPushButton* Command6;       ///< add a text key
  QPushButton* Command7;       ///< remove the text key
  controls::TextBox* Text2;    ///< the words

  ListedTags tags;  ///< List1, as the readers and the renderer see it

  QString markReport;  ///< what was last told of a mark that couldn't be placed

  /// Empties List1, which isn't complete until endList.
  void beginList();
  /// List1 now has all tags of the chosen screen.
  void endList();
  /// Whether List1 has all tags of the chosen screen.
  bool listIsComplete() const;
  /// Sets the search hit that is picked when its screen's list is complete; none drops the one that waits.
  void await(const std::optional<themefiles::Hit>& hit) { awaited_ = hit; }
  /// The hit that waits.
  const std::optional<themefiles::Hit>& awaited() const { return awaited_; }

  /// Something may differ from the saved files, or no longer: has the marks renewed when the program is idle.
  void markLater() { Q_EMIT markingAsked(); }

  /// Opens the editor area with the frame, or moves on to another frame: the window grows at the bottom.
  void ShowEditorFrame(themefiles::EditorFrame frame);
  /// Closes the editor area: the window shrinks to the lists.
  void closeEditorFrame();
  /// Hides the six frames. If a control of the editor area has the focus, the grid gets it.
  void HideEditorFrames();

  const ToolLayout& layout() const { return layout_; }

 Q_SIGNALS:
  /// Enter was pressed in an editor that has no use of its own for it.
  void enterPressed();
  /// See markLater.
  void markingAsked();

 protected:
  /// The window without its events, see makeForm2.
  Form2(ToolServices given, QWidget* owner);

  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct PlacedControl {
    QWidget* widget;
    controls::TwipsRect ToolLayout::*place;
    const char* name;
    const char* spoken = "";  ///< what a screen reader calls a control that shows no name of its own
  };

  QPushButton* iconButton(QWidget* frame, const QString& icon, const QString& toolTip);
  QWidget* frameOf(themefiles::EditorFrame frame) const;
  bool inEditorArea(const QWidget* control) const;
  void applyLayout();
  void fitWindow();
  bool isFitted(const QSize& size) const;

  std::optional<QString> listed_;  ///< the screen whose list is complete
  std::optional<themefiles::Hit> awaited_;
  ToolLayout layout_ = loadedLayout();
  std::vector<PlacedControl> placed_;
  ToolLayout fitted_;  ///< the layout of the size that the window last gave itself
};

}  // namespace toolwindow
