#include "catalogue/InstallGame.h"
#include "engines/FoundEngines.h"
#include "fuzz/Fuzz.h"
#include "iwads/IwadSearch.h"
#include "music/AutoPlaylist.h"
#include "options/DisplayResolution.h"
#include "platform/Text.h"
#include "state/FontSetting.h"
#include "wad/ToolBridge.h"

// The files of a few lines, each read by what reads it.
void Try(const QByteArray& bytes)
{
    OneFile files(bytes);
    const QString root = QStringLiteral("/root");
    const InstallationPaths paths(root);
    LoadFontSetting(files, root);
    IwadPaths iwads;
    QStringList stored;
    LoadIwadList(iwads, stored, files, paths);
    SaveIwadList(iwads, files, paths);
    ReadAutoPlaylists(files, paths);
    LoadLastInstallFolder(files, paths);
    LoadEngineChoice(files, root);
    GetCurrentRes(files, paths);
    CheckPwad(files, paths, QStringLiteral("/a/b.wad"));
    // A text without quotes and line ends is one field when it is written as one.
    QString text = FromAnsi(bytes);
    text.removeIf([](QChar c) { return c == u'"' || c == u'\r' || c == u'\n' || c == u' ' || c == u'\t'; });
    Require(text.isEmpty() || FieldsOf(AsField(text)) == QStringList(text));
    Require(FirstField(AsField(text)) == text);
    Require(FromAnsi(ToAnsi(text)) == text);
}
