#include "platform/file_names.h"

#include <algorithm>

namespace platform {

namespace {

constexpr char16_t Escape = 0xDC00;
constexpr uchar Ascii = 0x7F;

bool isEscape(QChar letter) {
  return letter.unicode() > (Escape | Ascii) && letter.unicode() <= (Escape | 0xFF);
}

}  // namespace

QByteArray encodedName(const QString& name) {
  QByteArray bytes;
  qsizetype done = 0;
  for (qsizetype at = 0; at < name.size(); ++at) {
    const bool inPair = at > 0 && name[at - 1].isHighSurrogate();
    if (!isEscape(name[at]) || inPair) continue;
    bytes += QStringView(name).sliced(done, at - done).toUtf8();
    bytes += static_cast<char>(name[at].unicode() & 0xFF);
    done = at + 1;
  }
  return done == 0 ? name.toUtf8() : bytes + QStringView(name).sliced(done).toUtf8();
}

QString decodedName(QByteArrayView bytes) {
  if (bytes.isValidUtf8()) return QString::fromUtf8(bytes);
  QString name(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), name.begin(), [](char byte) {
    const auto value = static_cast<uchar>(byte);
    return QChar(value > Ascii ? static_cast<char16_t>(Escape | value) : static_cast<char16_t>(value));
  });
  return name;
}

}  // namespace platform
