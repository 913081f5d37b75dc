#pragma once

namespace mainwindows {

class Form1;

/// What the objects of a group can be brought to.
enum class Arrangement {
  LeftEdges,
  CentresAcross,
  RightEdges,
  UpperEdges,
  CentresDown,
  LowerEdges,
  GapsAcross,
  GapsDown,
  Widths,
  Heights,
};

/// Brings the group to an arrangement, by the rectangles that the last render drew: edges, centres and sizes to those
/// of the selected object, or all between the outermost two to equal gaps. That is one edit. What isn't drawn or can't
/// be changed stays, and the reason is reported.
void arrange(Form1& form, Arrangement arrangement);

}  // namespace mainwindows
