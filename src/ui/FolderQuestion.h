#pragma once

#include <QString>

// The text of a folder dialog: where the folder is now, as far as that is short enough, and the question.
// `current` has the system's own separators.
QString FolderQuestion(const QString& current, const QString& question);
