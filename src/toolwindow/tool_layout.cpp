#include "toolwindow/tool_layout.h"

#include <array>
#include <span>

namespace toolwindow {
namespace {

using controls::TwipsRect;

constexpr double LoadedHeight = 3105;
constexpr double LoadedFrameHeight = 735;
constexpr double ListsTop = 360;
constexpr double Gap = 30;           // between the lists, and from them to the editor area
constexpr double BelowWindow = 360;  // from the window's lower edge to the client area's, in the rules below
constexpr double FrameMargin = 300;  // height of the group box less that of the frame in it

using Place = TwipsRect ToolLayout::*;
using Side = double TwipsRect::*;

/// One step of a resize: which side of which control becomes what.
struct Step {
  Place control;
  Side side;
  double (*value)(const ToolLayout& l);
  bool onlyByUser = false;  ///< skipped while the editor area changes the window's height
};

constexpr Side L = &TwipsRect::Left;
constexpr Side T = &TwipsRect::Top;
constexpr Side W = &TwipsRect::Width;
constexpr Side H = &TwipsRect::Height;
using TL = ToolLayout;

constexpr auto WithoutEditor = std::to_array<Step>({
    {&TL::Combo1, W, [](const TL& l) { return l.Width - 110; }},
    {&TL::List1, W, [](const TL& l) { return l.Width / 2 - 110; }},
    {&TL::List1, H, [](const TL& l) { return l.Height - l.List1.Top - BelowWindow; }},
    {&TL::ListView1, L, [](const TL& l) { return l.List1.Width + l.List1.Left + Gap; }},
    {&TL::ListView1, W, [](const TL& l) { return l.Width / 2 - 40; }},
    {&TL::ListView1, H, [](const TL& l) { return l.List1.Height; }},
    {&TL::Frame1, T, [](const TL& l) { return l.List1.Height + l.List1.Top + Gap; }},
    {&TL::Frame1, W, [](const TL& l) { return l.Width - 1100; }},
    {&TL::Command1, T, [](const TL& l) { return l.Frame1.Top + 90; }},
});

constexpr auto WithEditor = std::to_array<Step>({
    {&TL::Frame1, T, [](const TL& l) { return l.Height - l.Frame1.Height - 390; }, true},
    {&TL::List1, H, [](const TL& l) { return l.Frame1.Top - ListsTop; }, true},
    {&TL::Frame1, W, [](const TL& l) { return l.Width - 1100; }},
    {&TL::List1, W, [](const TL& l) { return l.Width / 2 - 110; }},
    {&TL::ListView1, L, [](const TL& l) { return l.List1.Width + l.List1.Left + Gap; }},
    {&TL::ListView1, W, [](const TL& l) { return l.Width / 2 - 40; }},
    {&TL::ListView1, H, [](const TL& l) { return l.List1.Height; }},
    {&TL::Command1, T, [](const TL& l) { return l.Frame1.Top + 90; }},
    {&TL::Command1, L, [](const TL& l) { return l.Width - 1000; }},
    {&TL::Numbers, W, [](const TL& l) { return l.Frame1.Width - 170; }},
    {&TL::Selection, W, [](const TL& l) { return l.Numbers.Width; }},
    {&TL::Combo2, W, [](const TL& l) { return l.Selection.Width - 300; }},
    {&TL::Texts, W, [](const TL& l) { return l.Numbers.Width; }},
    {&TL::Text2, W, [](const TL& l) { return l.Texts.Width - l.Text2.Left - 240; }},
    {&TL::Command7, L, [](const TL& l) { return l.Texts.Width - 570; }},
    {&TL::Command6, L, [](const TL& l) { return l.Texts.Width - 975; }},
    {&TL::Combo5, W, [](const TL& l) { return l.Texts.Width - l.Combo5.Left - 1080; }},
    {&TL::Color, W, [](const TL& l) { return l.Numbers.Width; }},
    {&TL::Combo3, W, [](const TL& l) { return l.Color.Width - l.Combo3.Left - 620; }},
    {&TL::Command2, L, [](const TL& l) { return l.Combo3.Width + l.Combo3.Left + 70; }},
    {&TL::Texture, W, [](const TL& l) { return l.Numbers.Width; }},
    {&TL::Text3, W, [](const TL& l) { return l.Texts.Width - 900; }},
    {&TL::Command4, L, [](const TL& l) { return l.Texture.Width - 570; }},
    {&TL::Command9, L, [](const TL& l) { return l.Texture.Width - 570; }},
    {&TL::Command8, L, [](const TL& l) { return l.Texture.Width - 975; }},
    {&TL::Combo6, W, [](const TL& l) { return l.Texture.Width - l.Combo6.Left - 1080; }},
});

/// Carries out a step. Returns false if a size would be negative.
bool carryOut(ToolLayout& layout, const Step& step) {
  const double value = step.value(layout);
  const bool isSize = step.side == W || step.side == H;
  if (isSize && value < 0) return false;
  layout.*step.control.*step.side = value;
  return true;
}

}  // namespace

ToolLayout loadedLayout() {
  ToolLayout layout;
  layout.Frame1.Height = LoadedFrameHeight;
  for (const Place frame : {&TL::Selection, &TL::Texts, &TL::Color, &TL::Texture, &TL::FloatNumbers}) {
    (layout.*frame).Top = layout.Numbers.Top;
  }
  layOut(layout, layout.Width, LoadedHeight, false, false);
  return layout;
}

void layOut(ToolLayout& layout, double width, double height, bool editorShown, bool sizingEditor) {
  layout.Width = width;
  layout.Height = height;
  const std::span<const Step> steps = editorShown ? std::span<const Step>(WithEditor) : WithoutEditor;
  for (const Step& step : steps) {
    if (step.onlyByUser && sizingEditor) continue;
    if (!carryOut(layout, step)) return;
  }
}

void layOutOpening(ToolLayout& layout, const TwipsRect& frame) {
  layout.Frame1.Top = layout.List1.Height + layout.List1.Top + Gap;
  layout.Frame1.Height = frame.Height + FrameMargin;
  layOut(layout, layout.Width, layout.Frame1.Height + layout.Frame1.Top + BelowWindow, true, true);
}

void layOutClosing(ToolLayout& layout) {
  layOut(layout, layout.Width, layout.List1.Height + layout.List1.Top + BelowWindow, false, false);
}

}  // namespace toolwindow
