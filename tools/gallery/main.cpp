#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QHBoxLayout>
#include <QScrollArea>

#include "controls/look.h"
#include "progress_page.h"
#include "toolbar_page.h"

namespace {

std::unique_ptr<QWidget> makeGallery() {
  auto gallery = std::make_unique<QWidget>();
  auto* const columns = new QHBoxLayout(gallery.get());
  columns->addWidget(gallery::makeToolBarPage().release(), 0, Qt::AlignTop);
  columns->addWidget(gallery::makeProgressPage().release(), 0, Qt::AlignTop);
  return gallery;
}

int save(QWidget& gallery, const QString& path) {
  gallery.resize(gallery.sizeHint());
  if (gallery.grab().save(path, "PNG")) return 0;
  std::fprintf(stderr, "cantorama-gallery: can't write %s\n", path.toLocal8Bit().constData());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  QStringList words;
  for (int word = 0; word < argc; ++word) words += QString::fromLocal8Bit(argv[word]);
  QCommandLineParser parser;
  const bool isRead = parser.parse(words);
  const QStringList pictures = parser.positionalArguments();
  if (!isRead || pictures.size() > 1) {
    std::fputs("usage: cantorama-gallery [PICTURE]\n", stderr);
    return 2;
  }
  if (!pictures.isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  controls::applyLook(application);
  std::unique_ptr<QWidget> gallery = makeGallery();
  if (!pictures.isEmpty()) return save(*gallery, pictures.constFirst());
  QScrollArea window;
  window.setWindowTitle(QStringLiteral("Gallery of the controls"));
  window.resize(gallery->sizeHint());
  window.setWidget(gallery.release());
  window.show();
  return QApplication::exec();
}
