#pragma once

#include <QString>
#include <QStringList>

// A text that names what could not be removed, one path a line: relative to `root` (without a separator at
// its end) where it lies below it. After the first ten it says how many more there are.
QString RemovalReport(const QStringList& paths, const QString& root);
