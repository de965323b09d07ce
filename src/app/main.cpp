#include "app/MainForm.h"
#include "app/StartUp.h"
#include "platform/DiskFileSystem.h"
#include "platform/SingleInstance.h"
#include "platform/SystemProcesses.h"
#include "ui/PromptsView.h"

#include <QApplication>
#include <QImageReader>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QString root = InstallationPaths::rootOf(QApplication::applicationFilePath());

    DiskFileSystem files;
    SystemProcesses processes(files);
    MainForm window;
    PromptsView prompts(&window);
    Launcher launcher(files, processes, prompts, window, root);
    window.build(launcher);

    SingleInstance instance(root);
    const auto activate = [&window] { window.bringToFront(); };
    const StartUpServices services{
        .claimInstance = [&] { return instance.claim(activate); },
        .activateRunningInstance = [&] { return instance.activateRunning(); },
        .claimInstanceWhenFree = [&] { instance.claimWhenFree(activate); },
        .componentsPresent = [] { return QImageReader::supportedImageFormats().contains("jpg"); },
        .showTips = [] {},
    };
    const QString arguments = QApplication::arguments().mid(1).join(u' ');
    return Main(launcher, arguments, services) == StartResult::Running ? QApplication::exec() : 0;
}
