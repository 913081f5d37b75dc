#pragma once

#include "support/hand.h"

namespace support {

/// Objects that the theme has in addition, two of them texts of buttons that have others already.
inline constexpr const char* More = R"([LoadingButtonGoText2]|X=20|Y=22|Font=0|Size=7|Text=HELLO|Color=Red
[LoadingButtonWide]|Tex=Plate|X=15|Y=500|W=90|H=40|Color=Blue|DColor=Red|INT=1|DINT=1|Type=Colorized|Texts=1
[LoadingButtonWideText1]|X=5|Y=6|Font=1|Size=8|Text=GO|Color=Red
[LoadingStaticB]|Tex=Plate|X=5|Y=400|W=121|H=31|Color=Blue|Type=Colorized
)";

/// A test of several objects at once.
class GroupTest : public HandTest {
 protected:
  /// LoadingStaticA, and with it the two buttons and a text of one.
  void group() const {
    program->tag(u"LoadingStaticA"_s);
    for (const QPoint& place : {QPoint(340, 320), QPoint(370, 250), QPoint(340, 230)}) {
      QTest::mouseClick(&preview(), Qt::LeftButton, Qt::ShiftModifier, place);
    }
  }

  void openCrowded() {
    program = nullptr;
    game = std::make_unique<GameFolder>();
    QByteArray theme =
        QByteArray(AlphaTheme).replace("Texts=1", "Texts=2").replace("[Main]", QByteArray(More) + "[Main]");
    game->put(ThemeFile, theme.replace("|", "\n").replace("\n", "\r\n"));
    program = std::make_unique<Program>(*game);
    program->open();
  }
};

}  // namespace support
