#include "screens/screens.h"

namespace sample {

namespace {

std::string player(int number, const char* shade) {
  return numbered("P", number) + shade;
}

std::string digit(int number) {
  return std::to_string(number);
}

ButtonRow partyButton(const std::string& name, const Place& at, const std::string& key) {
  return {name, "ButtonSmall", at, HueLook, {caption(at, key, 0, 9)}, numbered("SelectH=", at.h + 4)};
}

Screen newRoundScreen() {
  Screen screen{
      .stem = "PartyNewRound",
      .chrome = {Side::Left, "ROUND", "PARTY_HELP", "GlyphPlay", "Rose"},
      .statics = {{"StaticRound", "PanelWide", {250, 84, 300, 90}, "White"},
                  {"StaticNext", "Row", {240, 434, 320, 62}, "White"},
                  {"StaticVersus", "GlyphMic", {340, 230, 120, 120}, "Gold", "Font Black"}},
      .texts = {{"TextNext", 400, 436, 0, 9, 1, "Body", "ROUND_NEXT"},
                {"TextRound", 400, 84 + middleOf(90, 1, 11), 1, 11, 1, "Gold", "ROUND_NUMBER"},
                {"TextSong", 400, 464, 0, 9, 1, "Muted", "SONG_TITLE_5"}},
      .buttons = {partyButton("ButtonNext", {300, 500, 200, 50}, "CONTINUE")},
  };
  for (int team = 1; team <= 2; ++team) {
    const int x = team == 1 ? 40 : 500;
    screen.statics.push_back({numbered("StaticTeam", team), "Panel", {x, 190, 260, 230}, "White"});
    screen.statics.push_back(
        {numbered("StaticTeam", team) + "Bar", "RowBright", {x + 14, 206, 232, 50}, player(team, "Dark"), "Colorized"});
    screen.texts.push_back(
        {numbered("TextTeam", team), x + 130, 206 + middleOf(50, 1, 9), 1, 9, 1, "White", numbered("TEAM_", team)});
    for (int member = 1; member <= 3; ++member) {
      screen.texts.push_back({numbered("TextTeam", team) + numbered("Player", member), x + 30, 224 + member * 44, 0, 10,
                              0, player(team, "Lightest"), numbered("SINGER_", 2 * member - 2 + team)});
    }
  }
  screen.buttons.push_back(partyButton("ButtonQuit", {80, 500, 180, 50}, "BACK"));
  return screen;
}

Screen scoreTableScreen() {
  Screen screen{
      .stem = "PartyScore",
      .chrome = {Side::Middle, "PARTY_SCORE", "PARTY_HELP", "GlyphCup", "Teal"},
      .statics = {{"StaticLead", "Row", {60, 462, 680, 42}, "White"}},
      .texts = {{"TextWinner", 400, 462 + middleOf(42, 1, 8), 1, 8, 1, "Gold", "PARTY_LEADS"}},
      .buttons = {partyButton("ButtonDetails", {190, 508, 200, 46}, "STAT_DETAIL"),
                  partyButton("ButtonNext", {410, 508, 200, 46}, "CONTINUE")},
  };
  constexpr int Points[] = {11, 9, 6};
  for (int team = 1; team <= 3; ++team) {
    const int y = 92 + (team - 1) * 124;
    const int points = Points[team - 1];
    screen.statics.push_back({numbered("StaticTeam", team), "PanelWide", {60, y, 680, 116}, "White"});
    screen.statics.push_back({numbered("StaticTeam", team) + "Bar1", "Track", {250, y + 66, 380, 28}, "White"});
    screen.statics.push_back({numbered("StaticTeam", team) + "Bar2",
                              "Level",
                              {256, y + 71, points * 31, 18},
                              player(team, "Light"),
                              "Colorized"});
    screen.statics.push_back({numbered("StaticTeam", team) + "Sign",
                              team == 1 ? "GlyphCrown" : "GlyphPeople",
                              {100, y + 18, 80, 80},
                              player(team, "Dark"),
                              "Font Black"});
    screen.texts.push_back(
        {numbered("TextTeam", team), 250, y + 12, 1, 9, 0, player(team, "Light"), numbered("TEAM_", team)});
    screen.texts.push_back({numbered("TextTeam", team) + "Points", 712, y + 54, 1, 11, 2, "White", digit(points)});
  }
  return screen;
}

Screen winScreen() {
  Screen screen{
      .stem = "PartyWin",
      .chrome = {Side::Right, "PARTY_WIN", "PARTY_HELP", "GlyphCrown", "Gold"},
      .statics = {{"StaticCrown", "GlyphCrown", {335, 96, 130, 130}, "Gold", "Font Black"}},
      .texts = {{"TextCongratulation", 400, 86, 0, 11, 1, "Title", "PARTY_CHEER"}},
      .buttons = {partyButton("ButtonAgain", {30, 96, 190, 50}, "AGAIN"),
                  partyButton("ButtonQuit", {580, 96, 190, 50}, "BACK")},
  };
  struct Step {
    int team, x, top;
  };
  constexpr Step Steps[] = {{1, 300, 240}, {2, 90, 320}, {3, 510, 370}};
  for (const Step& step : Steps) {
    const int height = 540 - step.top;
    screen.statics.push_back(
        {numbered("StaticStep", step.team), "PanelTall", {step.x, step.top, 200, height}, "White"});
    screen.statics.push_back({numbered("StaticStep", step.team) + "Bar",
                              "RowBright",
                              {step.x + 12, step.top + 14, 176, 46},
                              player(step.team, "Dark"),
                              "Colorized"});
    screen.texts.push_back({numbered("TextStep", step.team), step.x + 100, step.top + 14 + middleOf(46, 0, 10), 0, 10,
                            1, "White", numbered("TEAM_", step.team)});
    screen.texts.push_back({numbered("TextStep", step.team) + "Number", step.x + 100, step.top + 62, 1, 16, 1,
                            player(step.team, "Light"), digit(step.team)});
  }
  return screen;
}

Screen optionsOfPartyScreen() {
  Screen screen{
      .stem = "PartyOptions",
      .chrome = {Side::Left, "PARTY_OPTIONS", "PARTY_HELP", "GlyphGear", "Rose"},
      .statics = {{"StaticPanel", "Panel", {120, 90, 560, 410}, "White"}},
      .texts = {{"TextAbout", 400, 450, 0, 9, 1, "Gold", "PARTY_ABOUT"}},
      .buttons = {partyButton("ButtonExit", {410, 506, 190, 46}, "BACK"),
                  partyButton("ButtonNext", {200, 506, 190, 46}, "CONTINUE")},
  };
  const std::string words[][2] = {{"PARTY_LEVEL", "EASY"},
                                  {"PARTY_TEAMS", "3"},
                                  {"PARTY_MEMBERS", "4"},
                                  {"PARTY_ROUNDS", "7"},
                                  {"PARTY_JOKERS", "ON"}};
  int row = 0;
  for (const auto& [label, value] : words) {
    const int y = 112 + row * 66;
    ++row;
    screen.texts.push_back({numbered("TextLabel", row), 150, y + middleOf(50, 0, 10), 0, 10, 0, "Body", label});
    screen.texts.push_back({numbered("TextValue", row), 525, y + middleOf(50, 0, 10), 0, 10, 1, "White", value});
    screen.statics.push_back({numbered("StaticRow", row), "Row", {136, y - 2, 528, 54}, "White"});
    screen.buttons.push_back({numbered("Select", row), "Select", {390, y, 270, 50}, FrameLook});
  }
  return screen;
}

Screen playersScreen() {
  Screen screen{
      .stem = "PartyPlayer",
      .chrome = {Side::Right, "PARTY_PLAYERS", "PARTY_HELP", "GlyphPeople", "Accent"},
      .texts = {{"TextMembers", 400, 76, 0, 9, 1, "Body", "PARTY_WHO"}},
      .buttons = {partyButton("ButtonZNext", {300, 504, 200, 48}, "CONTINUE")},
  };
  for (int team = 1; team <= 3; ++team) {
    const int x = 20 + (team - 1) * 258;
    const Place head{x + 14, 120, 216, 60};
    screen.statics.push_back({numbered("StaticTeam", team), "PanelTall", {x, 106, 244, 390}, "White"});
    screen.buttons.push_back({numbered("ButtonTeam", team),
                              "Button",
                              head,
                              {"Colorized", "Accent", "1", player(team, "Dark"), "0.8"},
                              {caption(head, numbered("TEAM_", team), 1, 8)}});
    for (int member = 1; member <= 4; ++member) {
      const Place at{x + 24, 130 + member * 68, 196, 56};
      screen.buttons.push_back({numbered("ButtonTeam", team) + numbered("Player", member),
                                "Field",
                                at,
                                {"Plain", "Accent", "1", player(team, "Light"), "0.5"},
                                {caption(at, numbered("SINGER_", (team - 1) * 4 + member), 0, 9)}});
      screen.buttons.back().texts.front().color = "Ink";
    }
  }
  return screen;
}

}  // namespace

std::vector<Screen> partyScreens() {
  return {newRoundScreen(), scoreTableScreen(), winScreen(), optionsOfPartyScreen(), playersScreen()};
}

}  // namespace sample
