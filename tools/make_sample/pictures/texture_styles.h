#pragma once

#include "drawing/canvas.h"

namespace sample {

/// What makes the textures of one skin look alike.
struct Look {
  Color panel, panelEdge;
  Color buttonTop, buttonBottom, buttonEdge;
  Color photoDark, photoLight;
  double roundness = 0;  // of a button's corners, as a part of half its height
};

using TextureStyle = void (*)(Canvas& canvas, const Look& look);

void paintTitleBar(Canvas& canvas, const Look& look);
void paintFootBar(Canvas& canvas, const Look& look);
void paintPanel(Canvas& canvas, const Look& look);
void paintButton(Canvas& canvas, const Look& look);
void paintSelect(Canvas& canvas, const Look& look);
void paintField(Canvas& canvas, const Look& look);
void paintRow(Canvas& canvas, const Look& look);
void paintBrightRow(Canvas& canvas, const Look& look);
void paintLane(Canvas& canvas, const Look& look);
void paintPill(Canvas& canvas, const Look& look);
void paintTrack(Canvas& canvas, const Look& look);
void paintLevel(Canvas& canvas, const Look& look);
void paintCap(Canvas& canvas, const Look& look);
void paintRecord(Canvas& canvas, const Look& look);
void paintCorner(Canvas& canvas, const Look& look);
void paintCover(Canvas& canvas, const Look& look);
void paintPhoto(Canvas& canvas, const Look& look);

}  // namespace sample
