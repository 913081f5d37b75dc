#include "progress_page.h"

#include <functional>

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "drawing/fonts.h"
#include "mainwindows/main_window_progress_bar.h"
#include "progressbar/progress_bar.h"
#include "progressbar/stored_form.h"

namespace gallery {

namespace {

using progressbar::ProgressBar;

/// A row of bars that differ in one property.
struct Row {
  QStringView title;
  int progressbar::Properties::*property;
  QList<int> values;
  QSize size;
  std::function<void(ProgressBar&)> rest = nullptr;
};

constexpr QSize Wide(100, 22);
constexpr QSize Broad(190, 40);
constexpr QSize Tall(24, 90);

void vertical(ProgressBar& bar) {
  bar.set(&progressbar::Properties::Orientations, 2);
  bar.set(&progressbar::Properties::TextStyle, 1);
}

void disabled(ProgressBar& bar) {
  bar.set(&progressbar::Properties::Enabled, false);
}

void verticalDisabled(ProgressBar& bar) {
  vertical(bar);
  disabled(bar);
}

void large(ProgressBar& bar) {
  bar.set(&progressbar::Properties::Text, QStringLiteral("Effect"));
  bar.set(&progressbar::Properties::TextFont, drawing::controlFont(QStringLiteral("Arial"), 24));
  bar.set(&progressbar::Properties::TextForeColor, 0x0000C0);
  bar.set(&progressbar::Properties::TextEffectColor, 0xFFC000);
}

void largeDisabled(ProgressBar& bar) {
  large(bar);
  disabled(bar);
}

void third(ProgressBar& bar) {
  bar.SetMax(3);
  bar.SetValue(1);
}

void percentOf200(ProgressBar& bar) {
  bar.SetMax(200);
  bar.SetMin(1);
  bar.set(&progressbar::Properties::TextStyle, 2);
}

const QList<Row>& rows() {
  static const QList<int> themes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  static const QList<int> effects = {1, 2, 3, 4, 5, 6};
  static const QList<Row> all = {
      {u"Theme", &progressbar::Properties::Theme, themes, Wide},
      {u"Theme, disabled", &progressbar::Properties::Theme, themes, Wide, disabled},
      {u"Theme, vertical", &progressbar::Properties::Theme, themes, Tall, vertical},
      {u"Theme, vertical, disabled", &progressbar::Properties::Theme, themes, Tall, verticalDisabled},
      {u"Theme, 9 x 10", &progressbar::Properties::Theme, themes, QSize(9, 10)},
      {u"Theme, 4 x 5", &progressbar::Properties::Theme, themes, QSize(4, 5)},
      {u"Theme, 4 x 7, vertical", &progressbar::Properties::Theme, themes, QSize(7, 4), vertical},
      {u"TextEffect", &progressbar::Properties::TextEffect, effects, Broad, large},
      {u"TextEffect, disabled", &progressbar::Properties::TextEffect, effects, Broad, largeDisabled},
      {u"TextAlignment", &progressbar::Properties::TextAlignment, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, QSize(109, 35)},
      {u"TextStyle", &progressbar::Properties::TextStyle, {1, 2, 3, 4}, Broad, third},
      {u"Value", &progressbar::Properties::Value, {0, 1, 33, 50, 99, 100}, Broad},
      {u"Value, of 200", &progressbar::Properties::Value, {1, 2, 67, 200}, Broad, percentOf200},
      {u"RoundedValue", &progressbar::Properties::RoundedValue, {0, 2, 3, 6, 10, 20, 40, 100}, QSize(140, 40)},
      {u"RoundedValue, 11 x 9", &progressbar::Properties::RoundedValue, {0, 2, 3, 6, 10, 20}, QSize(11, 9)},
      {u"Orientations", &progressbar::Properties::Orientations, {1, 2, 3}, Broad},
  };
  return all;
}

std::unique_ptr<ProgressBar> barOf(const Row& row, int value) {
  auto bar = std::make_unique<ProgressBar>();
  bar->setFixedSize(row.size);
  bar->set(&progressbar::Properties::Text, QStringLiteral("Text"));
  bar->set(&progressbar::Properties::TextFont, drawing::controlFont(QStringLiteral("Arial"), 11));
  bar->set(&progressbar::Properties::PBSCustomeColor1, 0x404040);
  bar->set(&progressbar::Properties::PBSCustomeColor2, 0xC0C0C0);
  if (row.rest) row.rest(*bar);
  bar->set(row.property, value);
  bar->setToolTip(QString::number(value));
  return bar;
}

}  // namespace

std::unique_ptr<QWidget> makeProgressPage() {
  auto page = std::make_unique<QWidget>();
  auto* const column = new QVBoxLayout(page.get());
  auto* const grid = new QGridLayout;
  column->addLayout(grid);
  for (const Row& row : rows()) {
    const int line = grid->rowCount();
    auto* const title = new QLabel(row.title.toString());
    title->setTextFormat(Qt::PlainText);
    grid->addWidget(title, line, 0);
    auto* const bars = new QHBoxLayout;
    for (const int value : row.values) bars->addWidget(barOf(row, value).release());
    bars->addStretch();
    grid->addLayout(bars, line, 1);
  }
  auto* const own = new ProgressBar;
  progressbar::readProperties(*own, mainwindows::mainWindowBar());
  own->setFixedSize(own->size());
  column->addWidget(own);
  column->addStretch();
  return page;
}

}  // namespace gallery
