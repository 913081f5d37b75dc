#include "propertybag/stored_values.h"

#include <cmath>

namespace propertybag {

namespace {

constexpr double ExtentsPerPixel = 2540.0 / 96;
constexpr QStringView ExtentX = u"_extentx";
constexpr QStringView ExtentY = u"_extenty";

int toExtent(int pixels) {
  return static_cast<int>(std::lround(pixels * ExtentsPerPixel));
}

int toPixels(int extent) {
  return static_cast<int>(std::lround(extent / ExtentsPerPixel));
}

}  // namespace

std::optional<QSize> storedSize(const PropertyBag& bag) {
  const auto width = storedAs<int>(bag.ReadProperty(ExtentX.toString(), {}));
  const auto height = storedAs<int>(bag.ReadProperty(ExtentY.toString(), {}));
  if (!width || !height) return std::nullopt;
  return QSize(toPixels(*width), toPixels(*height));
}

void storeSize(PropertyBag& bag, const QSize& pixels) {
  bag.WriteProperty(ExtentX.toString(), toExtent(pixels.width()), {});
  bag.WriteProperty(ExtentY.toString(), toExtent(pixels.height()), {});
}

}  // namespace propertybag
