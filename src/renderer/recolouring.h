#pragma once

#include <QImage>
#include <QtGlobal>

/// The two ways to recolour a picture in Format_ARGB32. Alpha stays. Colour numbers are 0 to 255.
namespace renderer {

/// Stands for an object without an intensity.
inline constexpr float NoIntensity = -1.0F;

struct ColorNumbers {
  float R = 0;
  float G = 0;
  float B = 0;
  friend bool operator==(const ColorNumbers&, const ColorNumbers&) = default;
};

/// A colour as hue (in degrees), lightness and saturation (0 to 1).
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

/// Converts with the usual formulas. Lightness and saturation need channels from 0 to 1; the hue is right for any
/// scale. Channels that differ by less than 0.00001 count as grey, with hue 0.
HSL RGBToHSL(double r, double g, double b);
RGB HSLToRGB(double H, double L, double S);

/// Gives every pixel the hue of the colour. Lightness and saturation stay, so grey pixels stay grey.
void colorize(QImage& picture, const ColorNumbers& color);

/// Combines every pixel with the colour times the intensity by a bitwise OR, so black becomes the colour and white
/// stays. NoIntensity stands for 1. False if a channel is out of the range 0 to 255 and any pixel isn't white.
bool recolorFont(QImage& picture, const ColorNumbers& color, float intensity);

}  // namespace renderer
