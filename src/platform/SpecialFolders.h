#pragma once

#include <QString>

// The user's desktop folder and the folder whose entries the system's start menu shows; absolute paths
// with '/', empty when the system has none.
QString DesktopFolder();
QString ProgramsFolder();
