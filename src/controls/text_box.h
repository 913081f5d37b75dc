#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace controls {

/// A text box of one line. With a filter it takes only the letters named, whether typed, pasted, dropped or from an
/// input method; line ends in foreign text become blanks.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextBox(QWidget* parent = nullptr);

  /// The letters that the user can enter; empty lets all through. Text set by code isn't filtered.
  void setKeyFilter(const QString& letters) { letters_ = letters; }
  QString Text() const { return text(); }
  /// Sets the text and, on a difference only, fires Change.
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
  /// Foreign text as this box takes it.
  QString filtered(QString text) const;
  void pasteFiltered(QClipboard::Mode source);

  QString letters_;
};

}  // namespace controls
