#pragma once

#include <limits>

#include <QFont>

#include "propertybag/property_bag.h"
#include "propertybag/stored_values.h"

namespace support {

/// A bag as a row tells it: "Max=300, Enabled=false, BorderStyle=1s, Text="a b", TextFont=Ab 9pt". A number with an s
/// behind it is a short one.
inline propertybag::PropertyBag bagOf(const QString& told) {
  propertybag::PropertyBag bag;
  for (const QString& entry : told.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
    const QString text = entry.section(u'=', 1);
    const qlonglong number = text.toLongLong();
    QVariant value = number > std::numeric_limits<int>::max() ? QVariant(text.toUInt()) : QVariant(text.toInt());
    if (text.startsWith(u'"')) value = text.sliced(1).chopped(1);
    if (text == u"true" || text == u"false") value = text == u"true";
    if (text.endsWith(u's')) value = QVariant::fromValue(text.chopped(1).toShort());
    if (text.endsWith(u"pt")) value = QFont(text.section(u' ', 0, -2), text.section(u' ', -1).chopped(2).toInt());
    if (text.endsWith(u"px")) {
      QFont font(text.section(u' ', 0, -2));
      font.setPixelSize(text.section(u' ', -1).chopped(2).toInt());
      value = font;
    }
    if (text.endsWith(u" file")) value = QVariant::fromValue(propertybag::StoredPicture{text.chopped(5).toLatin1()});
    bag.WriteProperty(entry.section(u'=', 0, 0), value, {});
  }
  return bag;
}

/// What a bag holds, in its order and as a row tells it.
inline QString toldOf(const propertybag::PropertyBag& bag) {
  QStringList entries;
  for (const auto& [key, value] : bag.records()) {
    QString text = value.toString();
    if (value.typeId() == QMetaType::QString) text = u'"' + text + u'"';
    if (value.typeId() == QMetaType::Short) text += u's';
    if (value.typeId() == QMetaType::QFont)
      text = QStringLiteral("%1 %2pt").arg(value.value<QFont>().family()).arg(value.value<QFont>().pointSizeF());
    entries += key + u'=' + text;
  }
  return entries.join(QStringLiteral(", "));
}

}  // namespace support
