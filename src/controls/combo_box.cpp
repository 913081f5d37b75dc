#include "controls/combo_box.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QIcon>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>

#include "platform/code_page.h"
#include "platform/failure.h"

namespace controls {

namespace {

constexpr int ShownRows = 20;
constexpr int SquareSide = 11;

/// A square of the colour in a thin frame.
QIcon square(const QColor& color) {
  QPixmap picture(SquareSide, SquareSide);
  picture.fill(color);
  QPainter painter(&picture);
  painter.setPen(Qt::gray);
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
  QIcon icon(picture);
  icon.addPixmap(picture, QIcon::Selected);  // not tinted
  return icon;
}

}  // namespace

ComboBox::ComboBox(QWidget* parent) : WheelWithFocus(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMaxVisibleItems(ShownRows);
  connect(this, &QComboBox::activated, this, [this] { Q_EMIT Click(Cause::User); });
}

void ComboBox::Clear() {
  clear();
}

void ComboBox::AddItem(const QString& text) {
  const int selected = currentIndex();
  addItem(text);
  if (colorOf_) setItemIcon(count() - 1, square(colorOf_(text)));
  setCurrentIndex(selected);
}

void ComboBox::RemoveItem(int index) {
  if (index < 0 || index >= count()) throw platform::Failure(QStringLiteral("Invalid entry of a list"));
  if (index == currentIndex()) setCurrentIndex(-1);
  removeItem(index);
}

void ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= count()) throw platform::Failure(QStringLiteral("Invalid entry of a list"));
  setCurrentIndex(index);
  if (index >= 0) Q_EMIT Click(Cause::Code);
}

int ComboBox::entryLike(const QString& name) const {
  int entry = 0;
  while (entry < count() && !platform::sameName(List(entry), name)) ++entry;
  return entry < count() ? entry : -1;
}

bool ComboBox::selectText(const QString& text) {
  const int entry = findText(text);
  if (entry >= 0) SetListIndex(entry);
  return entry >= 0;
}

void ComboBox::SetText(const QString& text) {
  if (!selectText(text)) throw platform::Failure(QStringLiteral("Invalid entry of a list"));
}

void ComboBox::setSwatches(const std::function<QColor(const QString& entry)>& colorOf) {
  colorOf_ = colorOf;
}

void ComboBox::updateSwatches() {
  for (int entry = 0; colorOf_ && entry < count(); ++entry) setItemIcon(entry, square(colorOf_(List(entry))));
}

void ComboBox::showPopup() {
  updateSwatches();
  const QRect desktop = screen()->availableGeometry();
  const int frame = 2 * view()->frameWidth() + 2;
  const int bar = count() > ShownRows ? view()->verticalScrollBar()->sizeHint().width() : 0;
  const int longest = view()->sizeHintForColumn(0) + frame + bar;
  view()->setMinimumWidth(std::clamp(longest, width(), std::max(width(), desktop.width())));
  QComboBox::showPopup();
  QWidget* popup = view()->window();
  const int beyond = popup->geometry().right() - desktop.right();
  if (beyond > 0) popup->move(std::max(desktop.left(), popup->x() - beyond), popup->y());
}

}  // namespace controls
