#include "tools/engine/KnownEngines.h"

#include "platform/Paths.h"
#include "tools/engine/EngineFailure.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr KnownEngine engines[] = {
    {u"crispy-doom", u"-savedir", u"doomsav%1.dsg", u"-nogui"},
    {u"chocolate-doom", u"-savedir", u"doomsav%1.dsg", u"-nogui"},
    {u"woof", u"-save", u"woofsav%1.dsg", u"-nogui"},
    {u"dsda-doom", u"-save", u"dsda-doom-savegame%1.dsg", u""},
};

// The folders for games often lie outside the PATH of a desktop session.
QStringList ProgramFolders(const QProcessEnvironment& environment)
{
    return environment.value(u"PATH"_s).split(QDir::listSeparator(), Qt::SkipEmptyParts) +
           QStringList{u"/usr/local/games"_s, u"/usr/games"_s};
}

} // namespace

const KnownEngine& ConventionsOf(const QString& program)
{
    const auto row = std::ranges::find_if(engines, [&](const KnownEngine& known) {
        return SameName(BaseNameOf(program), known.program.toString());
    });
    return row == std::end(engines) ? engines[0] : *row;
}

QString FindEngine(const QString& root, const QProcessEnvironment& environment)
{
    const QStringList own{root + u"/Engine"_s};
    const QStringList folders = ProgramFolders(environment);
    const QString wanted = environment.value(u"KELDRAX_ENGINE"_s);
    if (!wanted.isEmpty()) {
        const QString given = QDir::fromNativeSeparators(wanted);
        const QString path = given.contains(u'/') ? QFileInfo(given).absoluteFilePath() : given;
        QString program = QStandardPaths::findExecutable(path, own + folders);
        if (program.isEmpty()) // the ending may be missing
            program = QStandardPaths::findExecutable(path + u".exe"_s, own + folders);
        if (program.isEmpty())
            throw EngineFailure(
                u"KELDRAX_ENGINE names \"%1\", which is no program that can be started."_s.arg(wanted));
        return program;
    }
    QStringList names;
    for (const KnownEngine& known : engines)
        names += known.program.toString();
    for (const QStringList& places : {own, folders})
        for (const QString& name : names)
            if (const QString program = QStandardPaths::findExecutable(name, places); !program.isEmpty())
                return program;
    throw EngineFailure(
        u"No Doom engine was found (%1). Install one, put one into the folder Engine, or name one in KELDRAX_ENGINE."_s
            .arg(names.join(u", "_s)));
}
