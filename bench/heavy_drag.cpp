#include <chrono>
#include <cstdio>
#include <thread>

#include "figures.h"
#include "renderer/trial_drawing.h"
#include "support/stage.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int Pictures = 60;
constexpr int Pixels = 1024;

/// A picture with soft edges, unlike the others.
QImage pictureOf(int number) {
  QImage picture(Pixels, Pixels, QImage::Format_ARGB32);
  for (int y = 0; y < Pixels; ++y) {
    for (int x = 0; x < Pixels; ++x) {
      picture.setPixel(x, y, qRgba(x * number & 0xFF, y & 0xFF, (x ^ y) & 0xFF, (x + y) & 0xFF));
    }
  }
  return picture;
}

void fill(support::Stage& stage) {
  QByteArray theme;
  for (int number = 0; number < Pictures; ++number) {
    const QByteArray name = "Heavy" + QByteArray::number(number);
    stage.folder.put(QString::fromLatin1(name) + QStringLiteral(".png"),
                     support::encoded(pictureOf(number + 1), "png"));
    stage.skin += QByteArray(name) + '=' + name + ".png|";
    theme += "[MainStatic" + QByteArray::number(number) + "]|Tex=" + name +
             "|Color=P1Dark|W=160|H=120|X=" + QByteArray::number(number % 10 * 70) +
             "|Y=" + QByteArray::number(number / 10 * 90) + (number % 20 == 0 ? "|TYPE=Colorized|" : "|");
  }
  stage.setTheme(theme);
}

}  // namespace

bool drawHeavyDrag() {
  using namespace std::chrono_literals;
  constexpr int Frames = 600;
  constexpr double FrameTime = 16.7;
  constexpr double Reach = 1;
  support::Stage stage;
  fill(stage);
  renderer::PreparedPictures store;
  renderer::TrialFiles files;
  stage.pictures = &store;
  std::this_thread::sleep_for(2100ms);  // until the files count as unchanged
  stage.draw();
  int late = 0;
  for (int frame = 0; frame < Frames; ++frame) {
    const Clock::time_point start = Clock::now();
    const bool sizes = frame >= Frames / 2;
    renderer::drawTrial(stage.context(),
                        {{QStringLiteral("MainStatic30"),
                          {{sizes ? QStringLiteral("W") : QStringLiteral("X"), QString::number(frame)}}}},
                        files);
    late += std::chrono::duration<double, std::milli>(Clock::now() - start).count() > FrameTime ? 1 : 0;
  }
  const double share = 100.0 * late / Frames;
  std::printf("frames of a drag over %d large pictures that take longer than %.1f ms: %.2f %% (reach: under %.0f)\n",
              Pictures, FrameTime, share, Reach);
  return share < Reach;
}

}  // namespace bench
