#include "pictures/backgrounds.h"
#include "pictures/glyphs.h"
#include "pictures/textures.h"
#include "screens/screens.h"
#include "screens/theme_writer.h"
#include "themes/themes.h"

namespace sample {

namespace {

constexpr const char* StagelightSkins = "Skins/Stagelight/";

constexpr const char* Head =
    "; Stagelight, the sample theme with every screen\n"
    "\n"
    "[Theme]\n"
    "Name=Stagelight\n"
    "Creator=The sample workshop\n"
    "\n"
    "[Colors]\n"
    "Accent=255 150 40\n"
    "Title=255 244 226\n"
    "Body=236 232 246\n"
    "Muted=186 178 208\n"
    "Gold=255 208 92\n"
    "Rose=232 92 130\n"
    "Teal=64 196 190\n"
    "Plum=142 94 220\n"
    "White=255 255 255\n"
    "Ink=24 18 44\n"
    "Good=110 224 132\n"
    "Bad=252 100 96\n"
    "\n";

/// In an order that lets each run end at the next one: a stem stands before the longer stems that begin with it.
std::vector<Screen> screensInOrder() {
  std::vector<Screen> screens = {loadingScreen(), mainScreen(),  songScreen(),
                                 singScreen(),    scoreScreen(), optionsScreen()};
  for (Screen& page : optionPages()) screens.push_back(std::move(page));
  for (const auto screen : {top5Screen, levelScreen, nameScreen}) screens.push_back(screen());
  for (Screen& page : partyScreens()) screens.push_back(std::move(page));
  for (const auto screen :
       {songMenuScreen, songJumptoScreen, statMainScreen, statDetailScreen, checkPopupScreen, errorPopupScreen}) {
    screens.push_back(screen());
  }
  return screens;
}

struct Skin {
  const char* name;
  const char* title;
  const char* prefix;
  const Look& look;
  std::string BackgroundKey::*background;
};

const Skin Skins[] = {
    {"Dusk", "Dusk over the stage", "dusk_", DuskLook, &BackgroundKey::dusk},
    {"Neon", "Neon at night", "neon_", NeonLook, &BackgroundKey::neon},
};

std::string skinText(const Skin& skin) {
  std::string text = "[Skin]\nName=" + std::string(skin.title) + "\nAutor=The sample workshop\n\n[Textures]\n";
  for (const BackgroundKey& key : backgroundKeys()) text += key.key + "=" + key.*skin.background + "\n";
  for (const TextureKey& key : textureKeys()) text += key.key + "=" + skin.prefix + key.file + "\n";
  for (const Glyph& glyph : glyphs()) text += std::string(glyph.key) + "=" + glyph.file + "\n";
  return text;
}

}  // namespace

void writeStagelight(const Output& output) {
  std::string theme = Head;
  for (const Screen& screen : screensInOrder()) theme += screenText(screen);
  output.writeLines("Themes/Stagelight.ini", theme);
  for (const Skin& skin : Skins) {
    output.writeLines(StagelightSkins + std::string(skin.name) + ".ini", skinText(skin));
    writeTextures(output, StagelightSkins, skin.prefix, skin.look);
  }
  writeGlyphs(output, StagelightSkins);
  writeBackgrounds(output, StagelightSkins);
}

}  // namespace sample
