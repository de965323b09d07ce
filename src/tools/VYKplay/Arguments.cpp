#include "tools/VYKplay/Arguments.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

const struct
{
    const char16_t* name;
    View view;
} views[] = {{u"installed", View::InstalledGames}, {u"doom", View::DoomGames}, {u"zips", View::ZipLibrary}};

std::optional<View> viewNamed(const QString& name)
{
    for (const auto& row : views)
        if (name.compare(QString::fromUtf16(row.name), Qt::CaseInsensitive) == 0)
            return row.view;
    return std::nullopt;
}

Arguments wrong(const QString& what)
{
    Arguments arguments;
    arguments.wrong = what;
    return arguments;
}

} // namespace

Arguments ParseArguments(const QStringList& given)
{
    const QCommandLineOption map(u"map"_s, {}, u"MAP"_s), save(u"save"_s, {}, u"SLOT"_s), newGame(u"new"_s),
        skill(u"skill"_s, {}, u"1-5"_s), dryRun(u"dry-run"_s), view(u"view"_s, {}, u"VIEW"_s),
        root(u"root"_s, {}, u"DIR"_s), gwad(u"gwad"_s), engine(u"engine"_s, {}, u"NAME"_s),
        remove(u"remove"_s), help(QStringList{u"h"_s, u"help"_s});
    QCommandLineParser parser;
    parser.addOptions({map, save, newGame, skill, dryRun, view, root, gwad, engine, remove, help});
    if (!parser.parse(QStringList{u"VYKplay"_s} + given))
        return wrong(parser.errorText());
    Arguments arguments;
    if (parser.isSet(help))
        return arguments;

    QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return wrong(u"Say what to do: list, maps, play, engines, install or integrate."_s);
    const QString command = words.takeFirst();
    arguments.root = parser.value(root);
    if (parser.isSet(view)) {
        arguments.view = viewNamed(parser.value(view));
        if (!arguments.view)
            return wrong(u"There is no view \"%1\"."_s.arg(parser.value(view)));
    }

    const bool playOptions = parser.isSet(map) || parser.isSet(save) || parser.isSet(newGame) ||
                             parser.isSet(skill) || parser.isSet(dryRun) || parser.isSet(engine);
    if (command != u"play" && playOptions)
        return wrong(u"--map, --save, --new, --skill, --engine and --dry-run belong to play."_s);

    if (command != u"install" && parser.isSet(gwad))
        return wrong(u"--gwad belongs to install."_s);

    if (command != u"integrate" && parser.isSet(remove))
        return wrong(u"--remove belongs to integrate."_s);

    if (command == u"integrate") {
        arguments.command = Arguments::Command::Integrate;
        arguments.remove = parser.isSet(remove);
        return words.isEmpty() ? arguments : wrong(u"integrate takes no names."_s);
    }
    if (command == u"engines") {
        arguments.command = Arguments::Command::Engines;
        return words.isEmpty() ? arguments : wrong(u"engines takes no names."_s);
    }
    if (command == u"install") {
        arguments.command = Arguments::Command::Install;
        arguments.files = words;
        arguments.asGwad = parser.isSet(gwad);
        return words.isEmpty() ? wrong(u"install takes one or more .wad or .zip files."_s) : arguments;
    }
    if (command == u"list") {
        arguments.command = Arguments::Command::List;
        if (words.size() > 1)
            return wrong(u"list takes one view at the most."_s);
        if (!words.isEmpty() && !(arguments.view = viewNamed(words.first())))
            return wrong(u"There is no view \"%1\"."_s.arg(words.first()));
        return arguments;
    }
    if (command != u"maps" && command != u"play")
        return wrong(u"There is no command \"%1\"."_s.arg(command));
    arguments.command = command == u"maps" ? Arguments::Command::Maps : Arguments::Command::Play;
    if (words.size() != 1)
        return wrong(u"%1 takes one game; put a name with blanks into quotes."_s.arg(command));
    arguments.game = words.first();

    arguments.map = parser.value(map);
    arguments.slot = parser.value(save);
    arguments.newGame = parser.isSet(newGame);
    arguments.engine = parser.value(engine);
    arguments.dryRun = parser.isSet(dryRun);
    if (parser.isSet(map) + parser.isSet(save) + parser.isSet(newGame) > 1)
        return wrong(u"Choose one of --map, --save and --new."_s);
    if (parser.isSet(skill)) {
        arguments.skill = parser.value(skill).toInt();
        if (arguments.skill < 1 || arguments.skill > 5)
            return wrong(u"--skill takes a number from 1 to 5."_s);
        if (arguments.newGame)
            return wrong(u"--new starts the game as the engine does, without a skill."_s);
    }
    return arguments;
}

QString UsageText()
{
    return u"VYKplay list [doom|installed|zips]\n"
           "VYKplay maps GAME\n"
           "VYKplay play GAME [--map MAP | --save SLOT | --new] [--skill 1-5] [--engine NAME] [--dry-run]\n"
           "VYKplay engines\n"
           "VYKplay install FILE... [--gwad]\n"
           "VYKplay integrate [--remove]\n"
           "\n"
           "  --gwad                      as a game that loads its files itself\n"
           "  integrate                   puts the launcher into this user's menu\n"
           "  --remove                    takes it out again\n"
           "  --view doom|installed|zips  where to look for GAME (else the first that has it)\n"
           "  --root DIR                  the installation (else the one this program lies in)\n"
           "  --engine NAME               the engine for this start, of those that engines lists\n"
           "  --dry-run                   print the command line that would be started\n"
           "\n"
           "Names are without regard to case. Exit status: 0 done, 1 refused, 2 wrong usage.\n"_s;
}
