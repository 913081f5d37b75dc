#include "drawing/jpeg_pictures.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <iterator>
#include <utility>

// These need <cstdio> before them, and this order.
#include <jerror.h>
#include <jpeglib.h>

namespace drawing {

namespace {

/// Warnings of the library that cost no pixels; all others do.
constexpr int Harmless[] = {JWRN_ADOBE_XFORM, JWRN_BOGUS_PROGRESSION, JWRN_EXTRANEOUS_DATA,
                            JWRN_JFIF_MAJOR,  JWRN_NOT_SEQUENTIAL,    JWRN_TOO_MUCH_DATA};

/// The limit for the passes of a progressive picture. Real pictures have far fewer, and each pass takes as long as the
/// whole picture.
constexpr int MostScans = 100;

/// The library's error handling, with the place to jump to when decoding fails.
struct Reports {
  jpeg_error_mgr library;
  std::jmp_buf end;
};

[[noreturn]] void giveUp(j_common_ptr state) {
  std::longjmp(reinterpret_cast<Reports*>(state->err)->end, 1);
}

void onMessage(j_common_ptr state, int level) {
  constexpr int Warning = -1;
  const bool harmless = std::find(std::begin(Harmless), std::end(Harmless), state->err->msg_code) != std::end(Harmless);
  if (level == Warning && !harmless) giveUp(state);
}

void onProgress(j_common_ptr state) {
  if (reinterpret_cast<j_decompress_ptr>(state)->input_scan_number > MostScans) giveUp(state);
}

/// Decodes one file. The library's jumps skip no destructor, since decode has no local objects that need one.
class Decoder {
 public:
  Decoder() {
    state_.err = jpeg_std_error(&reports_.library);
    reports_.library.error_exit = giveUp;
    reports_.library.emit_message = onMessage;
  }
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder() { jpeg_destroy_decompress(&state_); }

  bool decode(const QByteArrayView& bytes, qint64 largest) {
    if (setjmp(reports_.end) != 0) return false;
    jpeg_create_decompress(&state_);
    progress_.progress_monitor = onProgress;
    state_.progress = &progress_;
    jpeg_mem_src(&state_, reinterpret_cast<const uchar*>(bytes.data()), static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&state_, TRUE);
    if (static_cast<qint64>(state_.image_width) * state_.image_height > largest) return false;
    const bool ofPrint = state_.num_components == 4;
    state_.out_color_space = ofPrint ? JCS_CMYK : Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRA : JCS_EXT_ARGB;
    jpeg_start_decompress(&state_);
    picture_ =
        QImage(static_cast<int>(state_.output_width), static_cast<int>(state_.output_height), QImage::Format_ARGB32);
    if (picture_.isNull()) return false;
    while (state_.output_scanline < state_.output_height) {
      uchar* row = picture_.scanLine(static_cast<int>(state_.output_scanline));
      jpeg_read_scanlines(&state_, &row, 1);
      if (ofPrint) colorsOfPrint(reinterpret_cast<QRgb*>(row));
    }
    const bool whole = hasAllScans();
    jpeg_finish_decompress(&state_);
    return whole;
  }

  QImage takePicture() { return std::move(picture_); }

 private:
  /// Converts a row of CMYK, in which each ink is stored inverted.
  void colorsOfPrint(QRgb* row) const {
    for (JDIMENSION x = 0; x < state_.output_width; ++x) {
      const auto* const ink = reinterpret_cast<const uchar*>(row + x);
      const int black = ink[3];
      row[x] = qRgb(black * ink[0] / 255, black * ink[1] / 255, black * ink[2] / 255);
    }
  }

  /// Whether every component has all its data. A cut progressive file lacks scans.
  bool hasAllScans() const {
    for (int i = 0; i < state_.num_components; ++i) {
      if (state_.comp_info[i].quant_table == nullptr) return false;
      if (state_.coef_bits == nullptr) continue;
      const int* const missing = state_.coef_bits[i];
      if (std::any_of(missing, missing + DCTSIZE2, [](int bits) { return bits != 0; })) return false;
    }
    return true;
  }

  Reports reports_{};
  jpeg_progress_mgr progress_{};
  jpeg_decompress_struct state_{};
  QImage picture_;
};

}  // namespace

QImage decodeJpeg(QByteArrayView bytes, qint64 largest) {
  Decoder decoder;
  return decoder.decode(bytes, largest) ? decoder.takePicture() : QImage();
}

}  // namespace drawing
