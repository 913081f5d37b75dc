#include "screens/screens.h"

namespace sample {

Screen checkPopupScreen() {
  const Place yes{220, 340, 170, 54};
  const Place no{410, 340, 170, 54};
  return {
      .stem = "CheckPopup",
      .statics =
          {
              {"Static1Panel", "Panel", {160, 170, 480, 250}, "White"},
              {"Static2Bar", "RowBright", {176, 188, 448, 48}, "ColorDark", "Colorized"},
              {"Static3Sign", "GlyphQuestion", {190, 256, 70, 70}, "Gold", "Font Black"},
          },
      .texts =
          {
              {"TextMessage", 280, 266, 0, 11, 0, "Body", "CHECK_MESSAGE"},
              {"TextTitle", 400, 188 + middleOf(48, 1, 9), 1, 9, 1, "White", "CHECK_TITLE"},
          },
      .buttons =
          {
              {"Button1", "Button", yes, HueLook, {caption(yes, "YES")}, "SelectH=60"},
              {"Button2", "Button", no, HueLook, {caption(no, "NO")}, "SelectH=60"},
          },
  };
}

Screen errorPopupScreen() {
  const Place okay{315, 372, 170, 54};
  return {
      .stem = "ErrorPopup",
      .statics =
          {
              {"Static1Panel", "PanelWide", {100, 150, 600, 300}, "White"},
              {"Static2Bar", "RowBright", {116, 170, 568, 54}, "Bad", "Colorized"},
              {"Static3Sign", "GlyphWarning", {140, 250, 96, 96}, "Bad", "Font Black"},
              {"Static4Line", "Track", {260, 330, 400, 8}, "White"},
          },
      .texts =
          {
              {"TextError", 264, 254, 0, 11, 0, "Body", "ERROR_MESSAGE"},
              {"TextHelp", 264, 292, 0, 9, 0, "Muted", "ERROR_HELP"},
              {"TextTitle", 140, 170 + middleOf(54, 1, 10), 1, 10, 0, "White", "ERROR_TITLE"},
          },
      .buttons =
          {
              {"Button1", "Button", okay, HueLook, {caption(okay, "OKAY")}, "SelectH=60"},
              {"Button2Sign", "GlyphQuestion", {620, 372, 54, 54}, InkLook, {}, "Reflection=0"},
          },
  };
}

}  // namespace sample
