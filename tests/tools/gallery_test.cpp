#include "support/picture_results.h"
#include "support/tool_runs.h"

class GalleryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// The toolbar and the progress bar in all their looks.
  void looks() {
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("gallery.png"));
    support::runTool(QStringLiteral(GALLERY), 0, {picture});
    support::runTool(QStringLiteral(GALLERY), 1, {folder.filePath(QStringLiteral("none/gallery.png"))});
    support::runTool(QStringLiteral(GALLERY), 2, {picture, picture});
    support::comparePicture(QStringLiteral("gallery.png"), QImage(picture));
  }
};

QTEST_MAIN(GalleryTest)
#include "gallery_test.moc"
