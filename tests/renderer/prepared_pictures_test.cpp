#include "renderer/prepared_pictures.h"

#include <algorithm>
#include <filesystem>

#include <QRandomGenerator>

#include "drawing/fitted_picture.h"
#include "renderer/trial_drawing.h"
#include "support/row_name.h"
#include "support/stage.h"

using namespace support;

namespace {

namespace fs = std::filesystem;
constexpr QRgb Old = qRgb(255, 0, 0);
constexpr QRgb New = qRgb(0, 255, 0);

void copyTimes(const fs::path& from, const fs::path& to) {
  fs::last_write_time(to, fs::last_write_time(from));
}

bool isSettled(const QString& picture) {
  return platform::isSettled(*platform::identityOf(picture));
}

QImage noise(int width, int height) {
  QRandomGenerator numbers(static_cast<quint32>(width));
  return pictureOf(width, height, [&](int, int) { return numbers.generate(); });
}

}  // namespace

class PreparedPicturesTest : public QObject {
  Q_OBJECT

 private:
  Folder folder_;

 private Q_SLOTS:
  void initTestCase() { folder_.put(u"big.bmp"_s, encoded(noise(64, 48), "bmp")); }

  void fittedAsDrawnStretched() {
    for (const QRect& target : {QRect(3, 4, 161, 97), QRect(700, 560, 161, 97), QRect(-50, -30, 161, 97),
                                QRect(-9, 5, 1000, 700), QRect(750, 1, 64, 48), QRect(5, -700, 30, 640),
                                QRect(9, 9, 1, 1), QRect(800, 0, 9, 9), QRect(9, 9, -9, 9), QRect(9, 9, 0, 9)}) {
      const RowName name(QByteArray::number(target.x()) + ' ' + QByteArray::number(target.width()));
      const QImage opaque = noise(64, 48).convertToFormat(QImage::Format_RGB32);
      for (const QImage& picture : {noise(64, 48), noise(512, 20), plainPicture(9, 9, qRgba(250, 1, 90, 254)),
                                    opaque.convertToFormat(QImage::Format_ARGB32)}) {
        drawing::Surface stretched, blended;
        for (auto* const surface : {&stretched, &blended}) surface->wipe(Qt::white);
        stretched.takeDirty();
        stretched.drawImageRect(picture, target.x(), target.y(), target.width(), target.height());
        QCOMPARE(stretched.takeDirty(), target.isEmpty() ? QRect() : target & QRect(0, 0, 800, 600));
        const QRect part = drawing::partOnSurface(target);
        const QImage fitted = drawing::withoutUnusedAlpha(drawing::fittedPicture(picture, target.size(), part));
        QVERIFY(fitted.width() <= 800 && fitted.height() <= 600);
        blended.drawImage(fitted, target.x() + part.x(), target.y() + part.y());
        QCOMPARE(blended.image(), stretched.image());
      }
    }
  }

  /// Every way a file can change: never a picture of before, and the new one, or the reason, at once.
  void changedFiles() {
    const QString picture = u"skin/A.bmp"_s;
    const QByteArray green = encoded(plainPicture(8, 4, New), "bmp");
    using Change = std::function<void(const fs::path& file, Stage& stage)>;
    const std::vector<std::tuple<const char*, Change, std::optional<QRgb>>> changes{
        {"untouched", [](const fs::path&, Stage&) {}, Old},
        {"written in place", [&](const fs::path&, Stage& stage) { stage.folder.put(picture, green); }, New},
        {"written in place, with the old time",
         [&](const fs::path& file, Stage& stage) {
           const auto time = fs::last_write_time(file);
           stage.folder.put(picture, green);
           fs::last_write_time(file, time);
         },
         New},
        {"renamed over by one of the same size and time",
         [&](const fs::path& file, Stage& stage) {
           stage.folder.put(picture + u'2', green);
           copyTimes(file, file.string() + "2");
           fs::rename(file.string() + "2", file);
         },
         New},
        {"deleted", [](const fs::path& file, Stage&) { fs::remove(file); }, {}},
        {"torn", [&](const fs::path&, Stage& stage) { stage.folder.put(picture, "no picture"); }, {}},
        {"folder renamed and another in its place",
         [&](const fs::path& file, Stage& stage) {
           fs::rename(file.parent_path(), file.parent_path().string() + "2");
           fs::create_directory(file.parent_path());
           stage.folder.put(picture, green);
           copyTimes(file.parent_path().string() + "2/A.bmp", file);
         },
         New},
        {"another skin",
         [&](const fs::path& file, Stage& stage) {
           const fs::path other = file.parent_path().parent_path() / "other";
           fs::create_directory(other);
           stage.folder.put(u"other/A.bmp"_s, green);
           copyTimes(file, other / "A.bmp");
           stage.state.paths.SkinDirectory = stage.folder.path(u"other"_s);
         },
         New},
    };
    const QByteArray red = encoded(plainPicture(8, 4, Old), "bmp");
    std::vector<std::unique_ptr<Stage>> stages;
    std::vector<std::unique_ptr<renderer::PreparedPictures>> stores;
    for (std::size_t i = 0; i < changes.size(); ++i) {
      Stage& stage = *stages.emplace_back(std::make_unique<Stage>());
      stage.pictures = stores.emplace_back(std::make_unique<renderer::PreparedPictures>()).get();
      fs::create_directory(stage.folder.native(u"skin"_s).toStdString());
      stage.state.paths.SkinDirectory = stage.folder.path(u"skin"_s);
      stage.skin = "A=A.bmp|";
      stage.setTheme("[MainBackground]|Tex=A|[MainStatic]|Tex=A|Color=P1Dark|X=5|Y=5|W=8|H=8|");
      QElapsedTimer clock;
      clock.start();
      stage.folder.put(picture, red);
      stage.draw();
      QVERIFY2(stores[i]->bytes() == 0 || clock.elapsed() > 1900, "kept so soon after a change");
    }
    QTRY_VERIFY(isSettled(stages.back()->folder.path(picture)));
    for (std::size_t i = 0; i < changes.size(); ++i) {
      const auto& [name, change, color] = changes[i];
      const RowName row(name);
      Stage& stage = *stages[i];
      stage.draw();
      // For a frame of a drag the unscaled picture is kept as well, until the screen is drawn.
      const qsizetype kept = stores[i]->bytes();
      renderer::TrialFiles files;
      renderer::drawTrial(stage.context(), {{u"MainStatic"_s, {{u"W"_s, u"9"_s}}}}, files);
      QVERIFY(kept > 0 && stores[i]->bytes() > kept);
      stage.draw();
      QCOMPARE(stores[i]->bytes(), kept);
      change(stage.folder.native(picture).toStdString(), stage);
      for (int drawing = 0; drawing < 2; ++drawing) {
        stage.draw();
        QCOMPARE(stage.pixel(700, 9), color.value_or(qRgb(255, 255, 255)));
        QCOMPARE(stage.pixel(9, 9), color.value_or(qRgb(255, 255, 255)));
        QCOMPARE(stage.account.missing.size(), color ? 0U : 2U);
      }
    }
  }

  /// While an object is sized, its unscaled picture stands in for the file, and counts.
  void objectInHand() {
    QTRY_VERIFY(isSettled(folder_.path(u"big.bmp"_s)));
    renderer::PreparedPictures store(64 * 48 * 4 + 9000);
    const auto request = [&](int width) {
      return renderer::PictureRequest{folder_.path(u"big.bmp"_s), {}, QRect(0, 0, width, 40)};
    };
    for (const int width : {30, 40}) QVERIFY(!store.get(request(width), false).picture.isNull());
    QVERIFY(store.bytes() > 70 * 40 * 4 && store.bytes() < 64 * 48 * 4);
    for (const int width : {50, 51, 52}) {
      QCOMPARE(store.get(request(width), true).picture, renderer::prepare(nullptr, request(width)).picture);
      QVERIFY(store.bytes() >= 64 * 48 * 4 && store.bytes() <= 64 * 48 * 4 + 9000);
    }
    // As many of them as there is room for.
    renderer::PreparedPictures roomy(3 * 64 * 48 * 4);
    const renderer::Recoloring other{renderer::Recoloring::Type::Colorized, {10, 20, 30}};
    for (auto* const one : {&store, &roomy}) {
      for (const auto& recoloring : {renderer::Recoloring(), other}) {
        const renderer::PictureRequest inHand{folder_.path(u"big.bmp"_s), recoloring, QRect(0, 0, 53, 40)};
        QCOMPARE(one->get(inHand, true).picture, renderer::prepare(nullptr, inHand).picture);
      }
    }
    QVERIFY(roomy.bytes() == 2 * 64 * 48 * 4 && store.bytes() <= 64 * 48 * 4 + 9000);
    store.letGo();
    for (const int width : {30, 40}) store.get(request(width), false);
    QVERIFY(store.bytes() > 70 * 40 * 4 && store.bytes() < 64 * 48 * 4);  // there is room for both as before
    // A file that has just changed may change again unseen.
    QElapsedTimer clock;
    clock.start();
    folder_.put(u"fresh.bmp"_s, encoded(noise(64, 48), "bmp"));
    store.get({folder_.path(u"fresh.bmp"_s), {}, QRect(0, 0, 30, 40)}, true);
    QVERIFY(store.bytes() < 64 * 48 * 4 || clock.elapsed() > 1900);
    copyTimes(folder_.native(u"big.bmp"_s).toStdString(), folder_.native(u"fresh.bmp"_s).toStdString());
    QVERIFY(!isSettled(folder_.path(u"fresh.bmp"_s)) || clock.elapsed() > 1900);
  }
};

QTEST_MAIN(PreparedPicturesTest)
#include "prepared_pictures_test.moc"
