#include "progressbar/progress_bar.h"

#include <algorithm>

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

template <typename T>
void ProgressBar::write(T& member, const T& value, QStringView key) {
  member = value;
  Q_EMIT PropertyChanged(key.toString());
  loadPalette(palette_, state_);
  pacer_.request();
}

void ProgressBar::SetValue(int value) {
  write(state_.Value, std::max(std::min(value, state_.max), state_.min), u"Value");
  QAccessibleValueChangeEvent event(this, state_.Value);
  QAccessible::updateAccessibility(&event);
}

void ProgressBar::SetMax(int value) {
  value = std::max(value, 1);
  if (value <= state_.min) value = state_.min + 1;
  state_.max = value;
  if (state_.Value > value) SetValue(value);
  write(state_.max, value, u"Max");
}

void ProgressBar::SetMin(int value) {
  if (value >= state_.max) value = state_.max - 1;
  value = std::max(value, 0);
  state_.min = value;
  if (state_.Value < value) SetValue(value);
  write(state_.min, value, u"Min");
}

void ProgressBar::SetTextFont(const QFont& value) {
  setFont(drawing::drawnFont(value));
  write(state_.TextFont, value, u"TextFont");
}

void ProgressBar::SetRoundedValue(int value) {
  write(state_.RoundedValue, value, u"RoundedValue");
}
void ProgressBar::SetEnabled(bool value) {
  write(state_.Enabled, value, u"Enabled");
}
void ProgressBar::SetTheme(int value) {
  write(state_.Theme, value, u"Theme");
}
void ProgressBar::SetTextStyle(int value) {
  write(state_.TextStyle, value, u"TextStyle");
}
void ProgressBar::SetOrientations(int value) {
  write(state_.Orientations, value, u"Orientations");
}
void ProgressBar::SetTextAlignment(int value) {
  write(state_.TextAlignment, value, u"TextAlignment");
}
void ProgressBar::SetText(const QString& value) {
  write(state_.Text, value, u"Text");
}
void ProgressBar::SetTextEffectColor(quint32 value) {
  write(state_.TextEffectColor, value, u"TextEffectColor");
}
void ProgressBar::SetTextEffect(int value) {
  write(state_.TextEffect, value, u"TextEffect");
}
void ProgressBar::SetTextForeColor(quint32 value) {
  write(state_.TextForeColor, value, u"TextForeColor");
}
void ProgressBar::SetPBSCustomeColor1(quint32 value) {
  write(state_.PBSCustomeColor1, value, u"PBSCustomeColor1");
}
void ProgressBar::SetPBSCustomeColor2(quint32 value) {
  write(state_.PBSCustomeColor2, value, u"PBSCustomeColor2");
}

void ProgressBar::InitProperties() {
  SetMax(100);
  SetMin(0);
  SetValue(50);
  SetRoundedValue(5);
  SetEnabled(true);
  SetTheme(1);
  SetTextForeColor(0);
  SetText(QStringLiteral("Z42K ProgressBar"));
  SetTextAlignment(5);
  SetTextEffect(5);
  SetTextEffectColor(0xFFFFFF);
  SetTextStyle(3);
  SetOrientations(1);
  SetTextFont(ambientFont());
}

/// Showing is a change as any other: what it uncovers and covers is painted in the next frame.
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
