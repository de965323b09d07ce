#include "tools/engine/EngineTranslation.h"

#include "engines/EngineFailure.h"
#include "engines/EngineSwitches.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// What the command line asks for, in the launcher's terms.
struct Wishes
{
    QString iwadName; // of an IWAD in a standard place
    QString iwadFile; // or one that is named itself
    QString game;
    QStringList dataFiles, gameFiles, patches, extraFiles;
    QStringList passed; // for the engine as it stands
    QList<EngineSetting> settings;
    QString playlist;
    QStringList leftOut;
    bool ownMusic = false; // comes before the playlist's
    bool hasGame = false;
};

bool IsNumber(const QString& text)
{
    constexpr qsizetype mostDigits = 4;
    return !text.isEmpty() && text.size() <= mostDigits &&
           std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool IsSwitch(const QString& text)
{
    return text.startsWith(u'-') && !IsNumber(text.sliced(1));
}

// The values of a switch from `at` on; steps over them.
QStringList TakeValues(SwitchValues kind, const QStringList& arguments, qsizetype& at)
{
    QStringList values;
    const auto next = [&] { return at < arguments.size() ? arguments[at] : QString(); };
    const auto take = [&] { values += arguments[at++]; };
    switch (kind) {
    case SwitchValues::None:
        break;
    case SwitchValues::One:
        if (at < arguments.size() && !IsSwitch(next()))
            take();
        break;
    case SwitchValues::Number:
        if (IsNumber(next()))
            take();
        break;
    case SwitchValues::Map:
        if (IsNumber(next()))
            take();
        if (!values.isEmpty() && values[0].size() == 1 && IsNumber(next()) && next().size() == 1)
            take();
        break;
    case SwitchValues::Many:
        while (at < arguments.size() && !next().startsWith(u'-'))
            take();
        break;
    }
    return values;
}

bool IsNumeric(SwitchValues kind)
{
    return kind == SwitchValues::Number || kind == SwitchValues::Map;
}

void Pass(Wishes& wishes, const EngineSwitch& row, const QString& text, const QStringList& values)
{
    if (!text.startsWith(u'-')) {
        wishes.settings += {text.section(u' ', 0, 0), text.section(u' ', 1).toLatin1()};
        return;
    }
    wishes.passed += text.split(u' ');
    for (const QString& value : values)
        wishes.passed += IsNumeric(row.values) ? QString::number(value.toInt()) : value;
}

Wishes Read(const QStringList& arguments, const KnownEngine& engine)
{
    Wishes wishes;
    for (qsizetype at = 0; at < arguments.size();) {
        const QString& text = arguments[at++];
        const EngineSwitch* row = FindEngineSwitch(text);
        if (row == nullptr) {
            wishes.passed += text;
            continue;
        }
        const QStringList values = TakeValues(row->values, arguments, at);
        const bool incomplete = row->values != SwitchValues::None && values.isEmpty();
        const QString inEngine = InEngine(*row, engine);
        if (row->use == SwitchUse::Load && inEngine.isEmpty())
            throw EngineFailure(
                u"%1 cannot be started with a savegame. Load it in the game's own menu, or choose another engine."_s
                    .arg(engine.title));
        switch (incomplete || inEngine.isEmpty() ? SwitchUse::LeaveOut : row->use) {
        case SwitchUse::LeaveOut:
            wishes.leftOut += AsLine(QStringList{text} + values);
            break;
        case SwitchUse::Load:
        case SwitchUse::Pass:
            Pass(wishes, *row, inEngine, values);
            break;
        case SwitchUse::NamedIwad:
            wishes.iwadName = row->iwad.toString();
            break;
        case SwitchUse::IwadFile:
            wishes.iwadFile = values[0];
            break;
        case SwitchUse::GameFolder:
            wishes.game = values[0];
            wishes.hasGame = true;
            break;
        case SwitchUse::GameFiles:
            wishes.gameFiles += values;
            break;
        case SwitchUse::Patches:
            wishes.patches += values;
            break;
        case SwitchUse::DataFiles:
            wishes.dataFiles += values;
            break;
        case SwitchUse::Playlist:
            wishes.playlist = values[0];
            break;
        case SwitchUse::OwnMusic:
            wishes.ownMusic = true;
            break;
        case SwitchUse::ExtraFiles:
            wishes.extraFiles += values;
            break;
        }
    }
    return wishes;
}

QString IwadOf(const FileSystem& files, const EngineRequest& request, const Wishes& wishes)
{
    if (!wishes.iwadFile.isEmpty())
        return FindNamedFile(files, request.root, {}, wishes.iwadFile);
    if (!wishes.iwadName.isEmpty())
        return FindIwad(files, request.root, request.environment, wishes.iwadName);
    throw EngineFailure(u"No IWAD is named: -Doom, -Doom2, -Tnt, -Plutonia, -Doom1 or -iwad and a file."_s);
}

QStringList NamedFiles(const FileSystem& files, const QString& root, const QString& folder,
                       const QStringList& names)
{
    QStringList paths;
    for (const QString& name : names)
        paths += FindNamedFile(files, root, folder, name);
    return paths;
}

struct LoadedFiles
{
    QStringList wads; // the main WAD first
    QStringList patches;

    QString mainWad() const { return wads.value(0); }
};

// A zip's patches that the command line has no switch for lie beside its WADs.
QStringList UnnamedPatches(const FileSystem& files, const QString& root, const QStringList& wads)
{
    const QString folder = FolderOf(wads.value(0));
    const bool isOpenedZip = (folder + u'/').startsWith(root + u"/VYKLaunch/Zips/"_s, Qt::CaseInsensitive);
    QStringList patches = isOpenedZip ? PatchesOf(files, folder) : QStringList();
    patches.removeIf([](const QString& path) { return !EndsWith(path, u".bex"_s); });
    return patches;
}

LoadedFiles FilesOf(const FileSystem& files, const EngineRequest& request, const Wishes& wishes)
{
    const GameFolder game =
        wishes.hasGame ? FindGameFolder(files, request.root, wishes.game) : GameFolder{{}, false};
    LoadedFiles loaded{NamedFiles(files, request.root, game.path, wishes.gameFiles),
                       NamedFiles(files, request.root, game.path, wishes.patches)};
    if (!wishes.hasGame) {
        loaded.patches += UnnamedPatches(files, request.root, loaded.wads);
        return loaded;
    }
    if (loaded.wads.isEmpty() || game.autoLoading)
        loaded.wads += WadsOf(files, game.path, request.countMaps);
    loaded.patches += PatchesOf(files, game.path);
    loaded.wads.removeDuplicates();
    loaded.patches.removeDuplicates();
    if (loaded.wads.isEmpty())
        throw EngineFailure(u"The game \"%1\" has no WAD in %2."_s.arg(wishes.game, game.path));
    return loaded;
}

// The launcher looks for savegames under the main WAD's name, or else the IWAD's in lower case.
QString SaveFolder(const FileSystem& files, const QString& root, const QString& iwad, const QString& mainWad)
{
    const QString key = mainWad.isEmpty() ? BaseNameOf(iwad).toLower() : BaseNameOf(mainWad);
    if (key.isEmpty() || key == u"."_s || key == u".."_s)
        throw EngineFailure(
            u"No savegame folder can be named after %1."_s.arg(mainWad.isEmpty() ? iwad : mainWad));
    const QString folder = root + u"/UserSG/"_s + key + u"/savegame"_s;
    const QString actual = files.actualPath(folder);
    return actual.isEmpty() ? folder : actual;
}

QStringList Native(QStringList paths)
{
    std::ranges::transform(paths, paths.begin(), NativePath);
    return paths;
}

// Of what several files hold, engines take the last: so the WAD that was chosen, whose maps the player saw,
// comes after all the others; the lumps of a playlist are no map's.
QStringList InLoadOrder(const QStringList& data, const LoadedFiles& loaded, const QStringList& extra,
                        const QString& music, bool ownMusic)
{
    const QStringList musicWad = music.isEmpty() ? QStringList() : QStringList(NativePath(music));
    const QStringList game =
        Native(loaded.wads.mid(1)) + extra + Native(loaded.wads.first(qMin(1, loaded.wads.size())));
    return Native(data) + (ownMusic ? musicWad + game : game + musicWad);
}

void addMusic(const FileSystem& files, const EngineRequest& request, const Wishes& wishes, EnginePlan& plan)
{
    plan.music = PlanMusicPack(files, request.root, wishes.playlist, request.engine.music);
    for (const QString& silence : plan.music.silences)
        plan.leftOut += AsLine({u"-extmus"_s, wishes.playlist}) + u": "_s + silence;
    // Relative to the folder that the engine starts in: the engine cuts a long value.
    if (!plan.music.wad.isEmpty() && request.engine.music == MusicWay::Packs)
        plan.settings += {u"music_pack_path"_s, '"' + MusicPackFolder.toLatin1() + '"'};
}

} // namespace

EnginePlan TranslateCommandLine(const FileSystem& files, const EngineRequest& request)
{
    const Wishes wishes = Read(request.arguments, request.engine);
    const QString iwad = IwadOf(files, request, wishes);
    const LoadedFiles loaded = FilesOf(files, request, wishes);

    EnginePlan plan;
    plan.saveFolder = SaveFolder(files, request.root, iwad, loaded.mainWad());
    plan.leftOut = wishes.leftOut;
    plan.settings = wishes.settings;
    plan.arguments = {u"-iwad"_s, NativePath(iwad)};
    if (request.withMusic && !wishes.playlist.isEmpty())
        addMusic(files, request, wishes, plan);
    // Engines read the first of these switches alone, so all files stand behind one.
    QStringList data;
    for (const QString& name : wishes.dataFiles)
        try {
            data += FindNamedFile(files, request.root, request.root + u"/Data"_s, name);
        } catch (const EngineFailure& gone) { // a pack that was removed keeps nobody from playing
            plan.leftOut += AsLine({u"-data"_s, name}) + u": "_s + QString::fromUtf8(gone.what());
        }
    if (const QStringList all = InLoadOrder(data, loaded, wishes.extraFiles, plan.music.wad, wishes.ownMusic);
        !all.isEmpty())
        plan.arguments += QStringList{request.engine.fileSwitch.toString()} + all;
    if (!request.engine.patchLumpsSwitch.isEmpty())
        plan.arguments += request.engine.patchLumpsSwitch.toString();
    if (!loaded.patches.isEmpty())
        plan.arguments += QStringList{u"-deh"_s} + Native(loaded.patches);
    plan.arguments +=
        request.engine.saveFolderSwitch.toString().split(u' ') + QStringList(NativePath(plan.saveFolder));
    if (!request.engine.quietSwitch.isEmpty())
        plan.arguments += request.engine.quietSwitch.toString();
    plan.arguments += wishes.passed;
    return plan;
}

QString AsLine(const QStringList& arguments)
{
    QStringList words;
    for (const QString& argument : arguments) {
        const bool plain = !argument.isEmpty() && !argument.contains(u' ');
        words += plain ? argument : u'"' + argument + u'"';
    }
    return words.join(u' ');
}
