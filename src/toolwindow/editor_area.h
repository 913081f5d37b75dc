#pragma once

#include <vector>

#include <QObject>

#include "editing/commit.h"
#include "themefiles/key_table.h"
#include "toolwindow/placed_controls.h"
#include "toolwindow/tool_services.h"

class QGroupBox;
class QPushButton;

namespace toolwindow {

class ValueFrame;

/// The editor area of the tool window: the six frames, of which at most one is shown, and Update. It knows what the
/// user has changed there and not taken over.
class EditorArea : public QObject {
  Q_OBJECT

 public:
  /// Its controls are the window's; none of them is shown yet.
  EditorArea(const ToolServices& services, PlacedControls& placed, QWidget* window);

  ValueFrame& frameOf(themefiles::EditorFrame frame) const { return *frames_.at(static_cast<size_t>(frame)); }
  /// Shows the area with that frame, besides one that is shown already.
  void show(themefiles::EditorFrame frame);
  void hideFrames();
  void hide();
  /// Whether a control is one of the area.
  bool has(const QWidget* control) const;
  /// Enter in the area, with the focus on that control of it.
  void pressEnter(QWidget* focus);

  /// What the user has changed and not taken over: "not taken over: X = 450"; empty for nothing.
  QString pendingChanges() const;
  /// That is lost: says so behind all that the running work has to report.
  void dropChanges();

  /// What a frame proposes. It counts as changed by the user until that was written.
  editing::Proposal propose(themefiles::EditorFrame frame);
  void proposalWritten();
  void proposalEnded() { proposing_ = nullptr; }

 Q_SIGNALS:
  /// Update was pressed, or Enter behind a change.
  void updateWanted();
  /// Enter was pressed, and nothing has been changed.
  void leaveWanted();

 private:
  void enterPressed();

  const ToolServices& services_;
  QGroupBox* const Frame1;
  QPushButton* Command1 = nullptr;   ///< Update
  std::vector<ValueFrame*> frames_;  ///< by EditorFrame
  ValueFrame* proposing_ = nullptr;  ///< what it proposes is being written
};

}  // namespace toolwindow
