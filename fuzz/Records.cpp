#include "fuzz/Fuzz.h"
#include "records/GameRecords.h"

void Try(const QByteArray& bytes)
{
    OneFile files(bytes);
    for (const GameKind kind : {GameKind::Doom, GameKind::Pwad, GameKind::Gwad, GameKind::Archive}) {
        Truth truth;
        truth.facts.game.kind = kind;
        truth.facts.game.name = QStringLiteral("Game");
        truth.facts.game.files = {QStringLiteral("a.wad")};
        truth.selection.file = QStringLiteral("a.wad");
        GameRecords records(files, InstallationPaths(QStringLiteral("/root")), truth);
        records.map();
        records.gwadFile();
        Require(records.LastSavegame().size() <= 1);
        records.SaveLastMap();
        records.SaveGwadSelection();
    }
}
