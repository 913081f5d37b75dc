#include "controls/combo_box.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QIcon>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStandardItemModel>

#include "platform/code_page.h"
#include "platform/failure.h"

namespace controls {

namespace {

constexpr int ShownRows = 20;
constexpr int SquareSide = 11;

/// Entries with a square of a colour beside each.
class SwatchModel : public QStandardItemModel {
 public:
  SwatchModel(const std::function<QColor(const QString& entry)>& colorOf, QObject* parent)
      : QStandardItemModel(0, 1, parent), colorOf_(colorOf) {}

  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DecorationRole) return QStandardItemModel::data(index, role);
    QPixmap square(SquareSide, SquareSide);
    square.fill(colorOf_(index.data().toString()));
    QPainter painter(&square);
    painter.setPen(Qt::gray);
    painter.drawRect(square.rect().adjusted(0, 0, -1, -1));
    return QIcon(square);
  }

 private:
  std::function<QColor(const QString& entry)> colorOf_;
};

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
  setModel(new SwatchModel(colorOf, this));
  setIconSize({SquareSide, SquareSide});
}

void ComboBox::showPopup() {
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
