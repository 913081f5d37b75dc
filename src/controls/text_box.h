#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace controls {

/// A text box of one line. A filter limits the letters that can be typed, pasted, dropped or entered by an input
/// method. Line ends in pasted or dropped text become blanks.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextBox(QWidget* parent = nullptr);

  /// Sets the letters that the user can enter; an empty filter allows all. Text set by code isn't filtered.
  void setKeyFilter(const QString& letters) { letters_ = letters; }
  QString Text() const { return text(); }
  /// Sets the text. Fires Change only if it differs from the present one.
  void SetText(const QString& text);

 Q_SIGNALS:
  /// The text has changed, by the user or by code.
  void Change();
  /// Enter was pressed.
  void enter();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  /// Pasted or dropped text as the box takes it: filtered, without line ends.
  QString filtered(QString text) const;
  /// Whether the text with this in place of what is selected is one that the box shows whole.
  bool fits(const QString& added) const;
  void pasteFiltered(QClipboard::Mode source);

  QString letters_;
};

}  // namespace controls
