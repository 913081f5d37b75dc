#include "platform/console.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

bool steers(QChar letter) {
  constexpr std::array Steering{QChar::Other_Control, QChar::Other_Format, QChar::Separator_Line,
                                QChar::Separator_Paragraph};
  return std::find(Steering.begin(), Steering.end(), letter.category()) != Steering.end();
}

}  // namespace

QString onOneLine(QString text) {
  std::replace_if(text.begin(), text.end(), steers, QChar(u'?'));
  return text;
}

void print(std::FILE* stream, const QString& text) {
  write(stream, text + u'\n');
}

}  // namespace platform
