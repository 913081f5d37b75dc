#pragma once

#include "controls/twips.h"

namespace toolwindow {

/// Places of the tool window's controls in twips. Children of a frame are placed relative to it.
struct ToolLayout {
  controls::TwipsRect Combo1{0, 0, 5770, 315};
  controls::TwipsRect List1{0, 360, 2895, 2385};
  controls::TwipsRect ListView1{2925, 360, 2840, 2385};
  controls::TwipsRect Frame1{0, 2760, 4815, 4335};
  controls::TwipsRect Command1{4920, 2880, 855, 375};

  // The six editor frames inside Frame1, and what is in them.
  controls::TwipsRect Numbers{120, 240, 4575, 400};
  controls::TwipsRect Text1{120, 10, 855, 285};
  controls::TwipsRect VScroll1{960, 10, 255, 285};

  controls::TwipsRect FloatNumbers{120, 720, 4575, 400};
  controls::TwipsRect Text4{120, 10, 855, 285};

  controls::TwipsRect Selection{120, 1200, 4575, 400};
  controls::TwipsRect Combo2{120, 10, 4215, 315};

  controls::TwipsRect Color{120, 1680, 4575, 400};
  controls::TwipsRect Combo4{120, 15, 975, 315};
  controls::TwipsRect Command3{1150, 10, 315, 315};
  controls::TwipsRect Command5{1560, 10, 315, 315};
  controls::TwipsRect Combo3{2040, 10, 1815, 315};
  controls::TwipsRect Command2{4000, 10, 315, 315};

  controls::TwipsRect Texture{120, 2160, 4575, 800};
  controls::TwipsRect Combo6{120, 15, 3375, 315};
  controls::TwipsRect Command8{3600, 10, 315, 315};
  controls::TwipsRect Command9{4000, 10, 315, 315};
  controls::TwipsRect Text3{120, 400, 3735, 285};
  controls::TwipsRect Command4{4000, 400, 315, 315};

  controls::TwipsRect Texts{120, 3240, 4575, 800};
  controls::TwipsRect Combo5{120, 15, 3375, 315};
  controls::TwipsRect Command6{3600, 10, 315, 315};
  controls::TwipsRect Command7{4005, 10, 315, 315};
  controls::TwipsRect Text2{120, 400, 4215, 285};

  // The window's outer size.
  double Width = 5775 + controls::FrameWidth;
  double Height = 0;
};

/// The layout of a window that has just been loaded: no editor area, the six frames one over the other.
ToolLayout loadedLayout();

/// Lays the controls out for the window's outer size. With an editor open the lists get the height that the editor area
/// leaves, unless the window's height changes because the editor area does (`sizingEditor`). The layout stops at the
/// first step that would give a control a negative size.
void layOut(ToolLayout& layout, double width, double height, bool editorShown, bool sizingEditor);

/// Opens the editor area for a frame: the group box fits it and the window grows at the bottom.
void layOutOpening(ToolLayout& layout, const controls::TwipsRect& frame);

/// Closes the editor area: the window shrinks to the lists.
void layOutClosing(ToolLayout& layout);

}  // namespace toolwindow
