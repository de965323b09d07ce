#include "engines/FoundEngines.h"

#include "engines/EngineFailure.h"
#include "engines/KnownEngines.h"
#include "platform/Paths.h"
#include "platform/Text.h"

#include <QByteArrayMatcher>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QVersionNumber>
#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

// The folders for games often lie outside the PATH of a desktop session.
QStringList systemFolders(const QProcessEnvironment& environment)
{
    return environment.value(u"PATH"_s).split(QDir::listSeparator(), Qt::SkipEmptyParts) +
           QStringList{u"/usr/local/games"_s, u"/usr/games"_s};
}

QString ownFolder(const QString& root)
{
    return root + u"/Engine"_s;
}

FoundEngine engineAt(const QString& program)
{
    const KnownEngine* known = FindKnownEngine(program);
    return {program, known ? known->title.toString() : BaseNameOf(program), {}};
}

// A program by its path or by its name; empty when there is none.
QString programNamed(const QString& wanted, const QString& root, const QProcessEnvironment& environment)
{
    const QString given = QDir::fromNativeSeparators(wanted);
    const QString path = given.contains(u'/') ? QDir(root).absoluteFilePath(given) : given;
    const QStringList folders = QStringList{ownFolder(root)} + systemFolders(environment);
    const QString program = QStandardPaths::findExecutable(path, folders);
    // The ending may be missing.
    return program.isEmpty() ? QStandardPaths::findExecutable(path + u".exe"_s, folders) : program;
}

QString wantedByEnvironment(const QProcessEnvironment& environment)
{
    return environment.value(u"KELDRAX_ENGINE"_s);
}

// Hands each occurrence of `mark`, and what follows it, to `found` until that returns false. What follows is
// cut at `reach` bytes.
void search(const FileSystem& files, const QString& path, const QByteArray& mark,
            const std::function<bool(QByteArrayView)>& found)
{
    constexpr qint64 pieceSize = 1024 * 1024;
    constexpr qsizetype reach = 32;
    const QByteArrayMatcher matcher(mark);
    try {
        const std::unique_ptr<QIODevice> file = files.open(path);
        QByteArray piece = file->read(pieceSize);
        while (piece.size() >= mark.size()) {
            const QByteArray next = file->read(pieceSize);
            const QByteArray seen = piece + next.first(qMin(next.size(), mark.size() + reach));
            for (qsizetype at = matcher.indexIn(seen); at >= 0 && at < piece.size();
                 at = matcher.indexIn(seen, at + 1))
                if (!found(QByteArrayView(seen)
                               .sliced(at + mark.size())
                               .first(qMin(reach, seen.size() - at - mark.size()))))
                    return;
            piece = next;
        }
    } catch (const FileError&) { // tells nothing
    }
}

QString choicePath(const QString& root)
{
    return root + u"/VYKLaunch/engine.vyk"_s;
}

} // namespace

QList<FoundEngine> FindEngines(const QString& root, const QProcessEnvironment& environment)
{
    QList<FoundEngine> found;
    const auto add = [&found](const QString& program) {
        const FoundEngine engine = engineAt(program);
        if (!program.isEmpty() && !found.contains(engine))
            found += engine;
    };
    if (const QString wanted = wantedByEnvironment(environment); !wanted.isEmpty())
        add(programNamed(wanted, root, environment));
    for (const QStringList& places : {QStringList{ownFolder(root)}, systemFolders(environment)})
        for (const KnownEngine& known : KnownEngines())
            add(QStandardPaths::findExecutable(known.program.toString(), places));
    return found;
}

const FoundEngine* EngineNamed(const QList<FoundEngine>& found, const QString& wanted)
{
    for (const FoundEngine& engine : found)
        if (engine.program == wanted)
            return &engine;
    for (const FoundEngine& engine : found)
        if (SameName(engine.title, wanted) || SameName(BaseNameOf(engine.program), wanted))
            return &engine;
    return nullptr;
}

FoundEngine FindEngine(const QString& wanted, const QString& root, const QProcessEnvironment& environment)
{
    const QList<FoundEngine> found = FindEngines(root, environment);
    if (!wanted.isEmpty()) {
        if (const FoundEngine* engine = EngineNamed(found, wanted))
            return *engine;
        if (const QString program = programNamed(wanted, root, environment); !program.isEmpty())
            return engineAt(program);
        throw EngineFailure(
            u"The engine \"%1\" that was chosen is no program that can be started. Choose another, or install it."_s
                .arg(wanted));
    }
    const QString ofEnvironment = wantedByEnvironment(environment);
    if (!ofEnvironment.isEmpty() && programNamed(ofEnvironment, root, environment).isEmpty())
        throw EngineFailure(
            u"KELDRAX_ENGINE names \"%1\", which is no program that can be started."_s.arg(ofEnvironment));
    if (!found.isEmpty())
        return found.first();
    QStringList names;
    for (const KnownEngine& known : KnownEngines())
        names += known.program.toString();
    throw EngineFailure(
        u"No Doom engine was found (%1). Install one, put one into the folder Engine, or name one in KELDRAX_ENGINE."_s
            .arg(names.join(u", "_s)));
}

QString VersionOf(const FileSystem& files, const QString& program)
{
    const KnownEngine* known = FindKnownEngine(program);
    if (!known)
        return {};
    QVersionNumber highest;
    search(files, program, known->versionMark.toUtf8(), [&highest](QByteArrayView rest) {
        const auto end = std::ranges::find_if(rest, [](char c) { return c != '.' && (c < '0' || c > '9'); });
        const auto version = QVersionNumber::fromString(QLatin1StringView(rest.first(end - rest.begin())));
        highest = qMax(highest, version);
        return true;
    });
    return highest.toString();
}

bool StartsOtherEngines(const FileSystem& files, const QString& root)
{
    bool is = false;
    for (const QString& name : {u"/Bin/Keldrax"_s, u"/Bin/Keldrax.exe"_s})
        if (files.fileExists(root + name))
            search(files, root + name, AdapterMark, [&is](QByteArrayView) {
                is = true;
                return false;
            });
    return is;
}

QString LoadEngineChoice(const FileSystem& files, const QString& root)
{
    QString choice;
    try {
        if (files.fileExists(choicePath(root)))
            choice = WithSlashes(ReadLines(files, choicePath(root)).value(0).trimmed());
    } catch (const FileError&) { // then it is as if none was chosen
    }
    return choice.contains(u'/') ? QDir(root).absoluteFilePath(choice) : choice;
}

void SaveEngineChoice(FileSystem& files, const QString& root, const QString& program)
{
    if (program.isEmpty())
        files.remove(choicePath(root));
    else
        WriteLines(files, choicePath(root),
                   {program.startsWith(root + u'/') ? program.sliced(root.size() + 1) : program});
}
