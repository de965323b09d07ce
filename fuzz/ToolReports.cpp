#include "fuzz/Fuzz.h"
#include "tools/VYKplay/ConsoleServices.h"
#include "wad/ToolBridge.h"

namespace {

// A tool that says what it likes.
class Saying : public Processes
{
public:
    explicit Saying(const QByteArray& output) : m_output(output) {}
    Captured capture(const QString&, const QString&) override { return {true, {}, m_output}; }
    bool start(const QString&, const QString&) override { return false; }
    bool startWatched(const QString&, const QString&, const ProgramWatch&) override { return false; }

private:
    QByteArray m_output;
};

} // namespace

void Try(const QByteArray& bytes)
{
    OneFile files(bytes);
    Saying processes(bytes);
    QString said;
    QTextStream err(&said), input(&said);
    ConsolePrompts prompts(err, input);
    NoWindow window;
    Launcher launcher(files, processes, prompts, window, QStringLiteral("/root"));
    const int key = CountWadMaps(launcher, QStringLiteral("/a.wad"));
    Require(key >= 0 && key < 1000000000);
    for (const QString& map : ListWadMaps(launcher, QStringLiteral("/a.wad")))
        Require(map.size() <= 5);
    const auto savegames = ListSavegameHeaders(launcher, QStringLiteral("/s"));
    for (const SaveGame& game : savegames.value())
        Require(game.slot.size() == 1);
}
