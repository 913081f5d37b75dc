#pragma once

#include <functional>
#include <vector>

#include <QString>
#include <QStringList>

namespace bench {

/// The files that a work reads, each as often as it opens it: for a floor that reads the same.
std::vector<QString> readingsOf(const QStringList& files, const std::function<void()>& work);

/// Reads each of them whole.
void readAll(const std::vector<QString>& files);

}  // namespace bench
