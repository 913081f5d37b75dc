#pragma once

#include <QImage>
#include <QtGlobal>

/// The two ways to put a colour into a picture (Format_ARGB32, alpha is kept). Colour numbers are 0 to 255.
namespace renderer {

/// The intensity of an object that has none.
inline constexpr float NoIntensity = -1.0F;

struct ColorNumbers {
  float R = 0;
  float G = 0;
  float B = 0;
  friend bool operator==(const ColorNumbers&, const ColorNumbers&) = default;
};

/// A colour in the double hexcone of hue (degrees), lightness and saturation (0 to 1).
struct HSL {
  double H = 0;
  double L = 0;
  double S = 0;
};

struct RGB {
  double R = 0;
  double G = 0;
  double B = 0;
};

/// The hue doesn't depend on the scale of the channels; lightness and saturation want them from 0 to 1. The usual
/// hexcone formulas; a spread below 0.00001 counts as grey, of hue 0.
HSL RGBToHSL(double r, double g, double b);
RGB HSLToRGB(double H, double L, double S);

/// Gives every pixel the hue of the colour; lightness and saturation stay, and so a grey pixel stays.
void colorize(QImage& picture, const ColorNumbers& color);

/// Puts the colour times the intensity (NoIntensity: the colour itself) into every pixel that isn't white, by a bitwise
/// OR: black becomes the colour. False, and nothing changed, when a channel leaves 0 to 255 and a pixel would take it.
bool recolourFont(QImage& picture, const ColorNumbers& color, float intensity);

}  // namespace renderer
