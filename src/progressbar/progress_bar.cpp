#include "progressbar/progress_bar.h"

#include <algorithm>
#include <iterator>

#include <QAccessible>
#include <QApplication>
#include <QPainter>

#include "drawing/fonts.h"
#include "progressbar/painting.h"

namespace progressbar {

ProgressBar::ProgressBar(QWidget* parent)
    : QWidget(parent), pacer_([this] {
        setUpdatesEnabled(true);
        update();
      }) {
  installAccessibility();
  InitProperties();
}

void ProgressBar::written(const Property& property) {
  const auto* const row = std::find_if(std::begin(PropertyRows), std::end(PropertyRows),
                                       [&](const PropertyRow& row) { return row.property == property; });
  Q_EMIT PropertyChanged(row->key.toString());
  loadPalette(palette_, state_);
  pacer_.request();
}

void ProgressBar::SetValue(int value) {
  write(&Properties::Value, std::max(std::min(value, state_.max), state_.min));
  QAccessibleValueChangeEvent event(this, state_.Value);
  QAccessible::updateAccessibility(&event);
}

void ProgressBar::SetMax(int value) {
  value = std::max(value, 1);
  if (value <= state_.min) value = state_.min + 1;
  state_.max = value;
  if (state_.Value > value) SetValue(value);
  written(&Properties::max);
}

void ProgressBar::SetMin(int value) {
  if (value >= state_.max) value = state_.max - 1;
  value = std::max(value, 0);
  state_.min = value;
  if (state_.Value < value) SetValue(value);
  written(&Properties::min);
}

void ProgressBar::set(int Properties::*property, int value) {
  if (property == &Properties::Value) {
    SetValue(value);
  } else if (property == &Properties::max) {
    SetMax(value);
  } else if (property == &Properties::min) {
    SetMin(value);
  } else {
    write(property, value);
  }
}

void ProgressBar::set(QFont Properties::*property, const QFont& value) {
  setFont(drawing::drawnFont(value));
  write(property, value);
}

void ProgressBar::InitProperties() {
  SetMax(100);
  SetMin(0);
  SetValue(50);
  set(&Properties::RoundedValue, 5);
  set(&Properties::Enabled, true);
  set(&Properties::Theme, 1);
  set(&Properties::TextForeColor, 0);
  set(&Properties::Text, QStringLiteral("Z42K ProgressBar"));
  set(&Properties::TextAlignment, 5);
  set(&Properties::TextEffect, 5);
  set(&Properties::TextEffectColor, 0xFFFFFF);
  set(&Properties::TextStyle, 3);
  set(&Properties::Orientations, 1);
  set(&Properties::TextFont, ambientFont());
}

/// Postpones the first painting to the next frame, like that of any change.
void ProgressBar::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  setUpdatesEnabled(false);
  pacer_.request();
}

void ProgressBar::paintEvent(QPaintEvent* /*event*/) {
  drawing::Raster raster(size());
  paint(raster, state_, palette_);
  QPainter painter(this);
  drawing::Show(painter, raster);
}

QFont ProgressBar::ambientFont() const {
  const QWidget* container = parentWidget();
  return container == nullptr ? QApplication::font() : container->font();
}

}  // namespace progressbar
