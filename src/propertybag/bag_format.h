#pragma once

#include <QByteArray>

/// The format of stored bags, for reader and writer. All numbers are little endian.
namespace propertybag::bag {

inline constexpr char Mark[] = "-LB";
inline constexpr quint16 Version = 9;
inline constexpr quint32 Magic = 0xB293;
inline constexpr qsizetype HeaderSize = 17;
/// Bytes at the start that the two length fields don't count.
inline constexpr qsizetype Uncounted = 9;

enum Tag : quint16 { Int16Tag = 2, Int32Tag = 3, StringTag = 8, BooleanTag = 11, ObjectTag = 13 };

inline constexpr qsizetype RecordHead = 12;
inline constexpr qsizetype Alignment = 4;
inline constexpr qint16 StoredTrue = -1;

inline constexpr qsizetype ClassSize = 16;
inline constexpr char PictureClass[] = "\x04\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\x00\xAA\x00\x4B\xB8\x51";
inline constexpr char FontClass[] = "\x03\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\x00\xAA\x00\x4B\xB8\x51";
inline constexpr quint32 PictureMark = 0x746C;
inline constexpr quint8 FontVersion = 1;
inline constexpr double SizesPerPoint = 10000;

}  // namespace propertybag::bag
