// collection ROOT: opens the main window on the installation ROOT and prints, in milliseconds,
//     INSTALLED LISTING ZIPS LISTING KEY
// the medians of switching to the installed games and of listing their folder, the same for the zip
// library, and the longest of the keys typed into the filter box, each until the window is painted.
#include "app/Connect.h"
#include "app/MainForm.h"
#include "app/MainWindowLoad.h"
#include "app/PromptsView.h"
#include "platform/DiskFileSystem.h"
#include "platform/SystemProcesses.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int runs = 15;

double milliseconds(const std::function<void()>& work)
{
    constexpr double perMillisecond = 1e6;
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / perMillisecond;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.at(values.size() / 2);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QString root = QDir(QApplication::arguments().value(1)).absolutePath();
    DiskFileSystem files;
    SystemProcesses processes(files);
    MainForm window;
    PromptsView prompts(&window);
    ConnectedLauncher launcher(files, processes, prompts, window, root);
    window.attach(launcher);
    LoadMainWindow(launcher);
    window.show();
    QTest::qWaitForWindowExposed(&window);

    const auto show = [&](View view) {
        return milliseconds([&] {
            launcher.controls.OptionUdir.click(view);
            window.refresh();
            window.repaint();
        });
    };
    const auto list = [](const QString& folder) {
        return milliseconds([&] { QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); });
    };
    std::vector<double> installed, games, zips, archives;
    for (int run = 0; run < runs; ++run) {
        installed.push_back(show(View::InstalledGames));
        games.push_back(list(launcher.paths.GamesPath));
        zips.push_back(show(View::ZipLibrary));
        archives.push_back(list(launcher.paths.ArchivesPath));
    }

    auto* filter = window.findChild<QLineEdit*>(QStringLiteral("edFilter"));
    double slowest = 0;
    for (const QChar key : QStringLiteral("game 99")) {
        slowest = std::max(slowest, milliseconds([&] {
                               QTest::keyClick(filter, key.toLatin1());
                               window.repaint();
                           }));
    }
    std::printf("%.2f %.2f %.2f %.2f %.2f\n", median(installed), median(games), median(zips),
                median(archives), slowest);
    return 0;
}
