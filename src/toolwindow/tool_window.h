#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QGroupBox>
#include <QPushButton>
#include <QTimer>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/number_bar.h"
#include "controls/swatch_button.h"
#include "controls/text_box.h"
#include "controls/work_queue.h"
#include "drawing/surface.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "renderer/highlight_cursor.h"
#include "themefiles/key_table.h"
#include "themefiles/module_state.h"
#include "themefiles/tag_listing.h"
#include "themefiles/theme_search.h"
#include "toolwindow/tool_layout.h"

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
  std::function<QString()> schemeName;       ///< the colour scheme in force
  std::function<void()> settleHand = [] {};  ///< brings what is under way in the preview to its end
};

/// The window's own list of tags, as the readers and the renderer see it.
class ListedTags : public themefiles::TagList {
 public:
  explicit ListedTags(controls::ListBox& list) : list_(list) {}
  void Clear() override { list_.Clear(); }
  void AddItem(const QString& tag) override { list_.AddItem(tag); }
  int ListCount() const override { return list_.ListCount(); }
  QString List(int row) const override { return list_.List(row); }
  int ListIndex() const override { return list_.ListIndex(); }
  void SetListIndex(int row) override { list_.SetListIndex(row); }

 private:
  controls::ListBox& list_;
};

/// The tool window: the choice of screen and object, the values of the object, and the editor of one value. It floats
/// over the main window while a theme is open; its user can't close it by itself.
class Form2 : public QWidget {
  Q_OBJECT

 public:
  Form2(ToolServices given, QWidget* owner);

  ToolServices services;

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

  ListedTags tags;
  QString listed;                          ///< the screen whose list is complete; empty while one is filling
  std::optional<themefiles::Hit> awaited;  ///< is gone to when its screen's list is complete
  QTimer marking;  ///< started by what may change which rows are marked; they are when nothing else is to be done

  /// Opens the editor area with the frame, or moves on to another frame: the window grows at the bottom.
  void ShowEditorFrame(themefiles::EditorFrame frame);
  /// Closes the editor area: the window shrinks to the lists.
  void closeEditorFrame();
  /// Hides the six frames. A focus in the editor area goes to the grid; nothing else changes.
  void HideEditorFrames();

  const ToolLayout& layout() const { return layout_; }

 Q_SIGNALS:
  /// Enter was pressed in an editor that has no use of its own for it.
  void enterPressed();

 protected:
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

  ToolLayout layout_ = loadedLayout();
  std::vector<PlacedControl> placed_;
  ToolLayout fitted_;  ///< the layout of the size that the window last gave itself
};

}  // namespace toolwindow
