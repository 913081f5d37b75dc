#pragma once

#include <functional>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What floors do with files, by calls of the system alone.
namespace bench {

/// The files that a work reads, each as often as it opens it: for a floor that reads the same.
std::vector<QString> readingsOf(const QStringList& files, const std::function<void()>& work);

/// The file read with one call. Ends the program when it can't be read.
QByteArray readPlainly(const QString& native);

/// The bytes written, flushed and renamed over the file. Ends the program when they can't be written.
void writePlainly(const QString& native, const QByteArray& bytes);

}  // namespace bench
