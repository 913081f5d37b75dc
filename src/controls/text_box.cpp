#include "controls/text_box.h"

#include <algorithm>

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QToolTip>

#include "controls/popup_menu.h"
#include "controls/shown_text.h"

namespace controls {

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textChanged, this, &TextBox::Change);
}

void TextBox::SetText(const QString& text) {
  if (text == this->text()) return;
  // While the user types, the caret keeps its distance from the text's end. Otherwise the beginning is shown.
  const auto behind = this->text().size() - cursorPosition();
  {
    const QSignalBlocker quiet(this);
    setText(text);
    setCursorPosition(hasFocus() ? static_cast<int>(std::max<qsizetype>(0, text.size() - behind)) : 0);
  }
  Q_EMIT textChanged(text);
}

QString TextBox::filtered(QString text) const {
  static const QRegularExpression lineEnd(QStringLiteral("\r\n|[\n\r\u2028\u2029]"));
  text.replace(lineEnd, QStringLiteral(" "));
  if (!letters_.isEmpty()) text.removeIf([this](QChar letter) { return !letters_.contains(letter); });
  return text;
}

bool TextBox::fits(const QString& added) const {
  return text().size() - selectedText().size() + added.size() <= LongestText;
}

void TextBox::pasteFiltered(QClipboard::Mode source) {
  const QString text = filtered(QGuiApplication::clipboard()->text(source));
  if (isReadOnly() || text.isEmpty()) return;
  if (fits(text)) return insert(text);
  QToolTip::showText(mapToGlobal(rect().bottomLeft()),
                     QStringLiteral("Not pasted: a line takes no more than %1 letters").arg(LongestText), this);
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!event->isAutoRepeat()) Q_EMIT enter();
    return;
  }
  if (event == QKeySequence::Paste) return pasteFiltered(QClipboard::Clipboard);
  const QString typed = event->text();
  const bool command = typed.isEmpty() || typed.front().category() == QChar::Other_Control ||
                       (event->modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
  if (command || (filtered(typed) == typed && fits(typed))) QLineEdit::keyPressEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::MiddleButton) return QLineEdit::mouseReleaseEvent(event);
  if (QGuiApplication::clipboard()->supportsSelection()) {
    deselect();
    pasteFiltered(QClipboard::Selection);
  }
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent taken(event->preeditString(), event->attributes());
  const QString typed = filtered(event->commitString());
  taken.setCommitString(fits(typed) ? typed : QString(), event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(&taken);
  event->setAccepted(taken.isAccepted());
}

void TextBox::dragEnterEvent(QDragEnterEvent* event) {
  const QString text = filtered(event->mimeData()->text());
  if (text.isEmpty() || !fits(text)) {
    event->ignore();
  } else {
    QLineEdit::dragEnterEvent(event);
  }
}

void TextBox::dropEvent(QDropEvent* event) {
  QMimeData text;
  text.setText(filtered(event->mimeData()->text()));
  QDropEvent taken(event->position(), event->possibleActions(), &text, event->buttons(), event->modifiers());
  taken.setDropAction(event->dropAction());
  QLineEdit::dropEvent(&taken);
  event->setDropAction(taken.dropAction());
  event->setAccepted(taken.isAccepted());
}

void TextBox::contextMenuEvent(QContextMenuEvent* event) {
  const bool writes = !isReadOnly();
  const bool pastes = writes && !filtered(QGuiApplication::clipboard()->text()).isEmpty();
  // Non-modal: this box may be deleted while the menu is open.
  auto* menu = new QMenu(this);
  const auto add = [menu, this](const QString& caption, bool enabled, auto command) {
    menu->addAction(caption, this, command)->setEnabled(enabled);
  };
  add(QStringLiteral("&Undo"), writes && isUndoAvailable(), &QLineEdit::undo);
  menu->addSeparator();
  add(QStringLiteral("Cu&t"), writes && hasSelectedText(), &QLineEdit::cut);
  add(QStringLiteral("&Copy"), hasSelectedText(), &QLineEdit::copy);
  add(QStringLiteral("&Paste"), pastes, [this] { pasteFiltered(QClipboard::Clipboard); });
  add(QStringLiteral("&Delete"), writes && hasSelectedText(), &QLineEdit::del);
  menu->addSeparator();
  add(QStringLiteral("Select &All"), !text().isEmpty(), &QLineEdit::selectAll);
  popUp(menu, event->globalPos());
}

}  // namespace controls
