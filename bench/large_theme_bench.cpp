#include "controls/list_box.h"
#include "controls/list_view.h"
#include "figures.h"
#include "open_editor.h"
#include "platform/files.h"
#include "toolwindow/tool_window.h"

namespace bench {
namespace {

constexpr int Many = 20'000;
constexpr int Few = 800;
constexpr int Tenth = Many / 10;

/// So many objects of the loading screen, of no kind that is drawn, in no order.
QByteArray crowd(int objects) {
  constexpr int Step = 7919;  // a prime number
  QByteArray text = "[Theme]\r\nName=Crowd\r\n[Colors]\r\n[Loading]\r\n";
  for (int i = 0; i < objects; ++i) {
    text += "[LoadingObject" + QByteArray::number(i * Step % objects) + "]\r\nX=1\r\n\r\n";
  }
  return text;
}

/// A theme that has no pictures.
void addTheme(const QString& game, const QString& name, const QByteArray& text) {
  const QString folder = platform::programPath(game) + u'\\';
  QDir(game).mkpath(QStringLiteral("Skins/") + name);
  platform::writeFile(folder + QStringLiteral("Themes\\%1.ini").arg(name), text);
  platform::writeFile(folder + QStringLiteral("Skins\\%1\\Plain.ini").arg(name), "[Skin]\r\n[Textures]\r\n");
}

std::shared_ptr<OpenEditor> editorOfCrowd(int objects) {
  const QString name = QStringLiteral("Crowd");
  return std::make_shared<OpenEditor>(name, QStringLiteral("Loading Screen"),
                                      [&](const QString& game) { addTheme(game, name, crowd(objects)); });
}

void chooseOften(const OpenEditor& editor, int objects, int times) {
  for (int i = 0; i < times; ++i) editor.choose(QStringLiteral("Loading Screen"));
  if (editor.form.toolWindow()->objects().ListCount() != objects + 1) qFatal("not all objects are listed");
}

/// A theme of one object with so many keys.
QByteArray heap(int keys, char value) {
  QByteArray text = "[Theme]\r\nName=Heap\r\n[Colors]\r\n[Loading]\r\n[LoadingObject]\r\n";
  for (int i = 0; i < keys; ++i) text += "Key" + QByteArray::number(i) + '=' + value + "\r\n";
  return text;
}

/// All values of the heap differ from the saved ones.
std::shared_ptr<OpenEditor> editorOfHeap(int keys) {
  const QString name = QStringLiteral("Heap");
  auto editor = std::make_shared<OpenEditor>(name, QStringLiteral("Loading Screen"),
                                             [&](const QString& game) { addTheme(game, name, heap(keys, '1')); });
  platform::writeFile(editor->state.paths.ThemeFile, heap(keys, '2'));
  return editor;
}

/// Chooses the object, until all of its keys are marked.
void chooseHeap(const OpenEditor& editor, int keys) {
  const toolwindow::Form2& tools = *editor.form.toolWindow();
  tools.objects().SetListIndex(1);
  const QTreeWidgetItem* last = tools.values().topLevelItem(keys - 1);
  if (last == nullptr) qFatal("not all keys are listed");
  while (last->toolTip(0).isEmpty()) QApplication::processEvents();
}

/// The theme with sections of no screen before and behind its own, as many in all.
QByteArray padded(const QByteArray& theme, int sections) {
  QByteArray half;
  for (int i = static_cast<int>(theme.count("\n[")); i < sections; i += 2) {
    half += "[Spare" + QByteArray::number(i) + "]\r\nTex=Button\r\nX=100\r\nY=200\r\nW=64\r\nH=24\r\n\r\n";
  }
  return half + theme + "\r\n" + half;
}

/// The screen in a sample game of its own, whose theme has so many sections.
struct PaddedScreen {
  PaddedScreen(const SampleScreen& model, int sections) : screen(padInPlace(game, model, sections)) {}

  CopiedSample game;
  SampleScreen screen;

 private:
  static SampleScreen padInPlace(const CopiedSample& game, const SampleScreen& model, int sections) {
    const QString file = platform::programPath(game.path()) + QStringLiteral("\\Themes\\%1.ini").arg(model.theme());
    platform::writeFile(file, padded(platform::readFile(file), sections));
    return {game.path(), model.theme(), model.name()};
  }
};

}  // namespace

void registerListing() {
  const auto few = editorOfCrowd(Tenth);
  const auto many = editorOfCrowd(Many);
  registerBenchmark(
      {"Listing", 1.5, Held::AtMost},
      [many](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) chooseOften(*many, Many, 1);
      },
      [few](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) chooseOften(*few, Tenth, Many / Tenth);
      });
}

void registerChoosing() {
  const auto few = editorOfHeap(Tenth);
  const auto many = editorOfHeap(Many);
  registerBenchmark(
      {"ManyKeys", 1.5, Held::AtMost},
      [many](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) chooseHeap(*many, Many);
      },
      [few](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) {
          for (int i = 0; i < Many / Tenth; ++i) chooseHeap(*few, Tenth);
        }
      });
}

std::shared_ptr<SampleScreen> registerLargeTheme(const SampleScreen& screen) {
  const auto large = std::make_shared<PaddedScreen>(screen, Many);
  const auto small = std::make_shared<PaddedScreen>(screen, Few);
  registerBenchmark(
      {"LargeTheme", 1.5, Held::AtMost},
      [large](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) {
          large->screen.choose();
          large->screen.draw();
        }
        large->screen.runForGap();
      },
      [small, large](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) {
          small->screen.choose();
          small->screen.draw();
          for (std::size_t i = 0; i < small->screen.objects(); ++i) {
            benchmark::DoNotOptimize(platform::readFile(large->screen.themeFile()));
          }
        }
      });
  return {large, &large->screen};
}

}  // namespace bench
