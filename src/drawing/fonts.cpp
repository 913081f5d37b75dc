#include "drawing/fonts.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontInfo>

#include "drawing/shipped_fonts.h"

namespace drawing {

namespace {

struct Substitute {
  const char* face;
  const char* family;
  QFont::Weight weight;
};

/// Substitutes for faces that aren't installed: free fonts from the distribution's packages. The last row is for every
/// other face.
constexpr Substitute Substitutes[] = {
    {"Eurostar Regular Extended", "DejaVu Sans", QFont::Normal},
    {"Eurostar Black", "Lato", QFont::Black},
    {"Arial Black", "Lato", QFont::Black},
    {"MS Sans Serif", "Liberation Sans", QFont::Normal},
    {"Arial", "Liberation Sans", QFont::Normal},
    {"Courier New", "Liberation Mono", QFont::Normal},
    {nullptr, "Liberation Sans", QFont::Normal},
};

/// Whether the face is installed in a form that can be drawn at any size. Asking the font takes a hundredth of the time
/// of listing all families. A family that two foundries offer has the foundry in brackets after its name.
bool isInstalled(const QString& face) {
  const QString family = QFontInfo(QFont(face)).family();
  const bool same = family.compare(face, Qt::CaseInsensitive) == 0 ||
                    family.startsWith(face + QStringLiteral(" ["), Qt::CaseInsensitive);
  return same && QFontDatabase::isSmoothlyScalable(family);
}

QFont fontOf(const QString& face) {
  addShippedFonts();
  if (isInstalled(face)) return QFont(face);
  const Substitute* row = Substitutes;
  while (row->face && face.compare(QLatin1String(row->face), Qt::CaseInsensitive) != 0) ++row;
  return QFont(QString::fromLatin1(row->family), -1, row->weight);
}

}  // namespace

QFont inGreySteps(const QFont& font) {
  constexpr auto GreySteps = QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias);
  if (font.hintingPreference() == QFont::PreferNoHinting && font.styleStrategy() == GreySteps) return font;
  QFont grey = font;
  grey.setHintingPreference(QFont::PreferNoHinting);
  grey.setStyleStrategy(GreySteps);
  return grey;
}

QFont faceFont(const QString& face) {
  return inGreySteps(fontOf(face));
}

QFont controlFont(const QString& face, int pixels) {
  QFont font = faceFont(face);
  font.setPixelSize(pixels);
  return font;
}

QFont drawnFont(const QFont& font) {
  QFont drawn = faceFont(font.family());
  if (drawn.weight() == QFont::Normal) drawn.setWeight(font.weight());
  drawn.setItalic(font.italic());
  drawn.setUnderline(font.underline());
  drawn.setStrikeOut(font.strikeOut());
  if (font.pointSizeF() > 0) drawn.setPointSizeF(std::min(font.pointSizeF(), LargestPoints));
  if (font.pixelSize() > 0) drawn.setPixelSize(font.pixelSize());
  return drawn;
}

}  // namespace drawing
