#include "app/Connect.h"
#include "app/MainForm.h"
#include "app/PromptsView.h"
#include "app/StartUp.h"
#include "platform/DiskFileSystem.h"
#include "platform/FontWarmUp.h"
#include "platform/HeapSettings.h"
#include "platform/SingleInstance.h"
#include "platform/SystemProcesses.h"
#include "platform/Termination.h"

#include <QApplication>
#include <QBuffer>
#include <QFontMetrics>
#include <QIcon>
#include <QImageReader>

#include <future>

namespace {

// The title pictures need Qt's JPEG plugin.
bool canReadJpeg()
{
    QByteArray start("\xFF\xD8\xFF");
    QBuffer device(&start);
    return device.open(QIODevice::ReadOnly) && QImageReader(&device, "jpg").canRead();
}

} // namespace

int main(int argc, char** argv)
{
    KeepHeapSmall();
    const std::jthread fonts = WarmUpFonts();
    const QApplication application(argc, argv);
    // Both go on beside the launcher's load, which needs neither.
    const std::jthread families([] { QFontMetrics(QFont()).horizontalAdvance(u'x'); });
    std::future<bool> jpeg = std::async(std::launch::async, canReadJpeg);
    const QString root = InstallationPaths::rootOf(QApplication::applicationFilePath());

    QIcon icon;
    for (const char* size : {"32", "64"})
        icon.addFile(QStringLiteral(":/icons/VYKlauncher-%1.png").arg(QLatin1StringView(size)));
    QApplication::setWindowIcon(icon);

    DiskFileSystem files;
    SystemProcesses processes(files);
    MainForm window;
    PromptsView prompts(&window);
    ConnectedLauncher launcher(files, processes, prompts, window, root);
    window.attach(launcher);

    SingleInstance instance(root);
    const auto activate = [&window] { window.bringToFront(); };
    const StartUpServices services{
        .claimInstance = [&] { return instance.claim(activate); },
        .activateRunningInstance = [&] { return instance.activateRunning(); },
        .claimInstanceWhenFree = [&] { instance.claimWhenFree(activate); },
        .componentsPresent = [&] { return jpeg.get(); },
        .showTips = [&window] { window.showTips(); },
    };
    const QString arguments = QApplication::arguments().mid(1).join(u' ');
    if (Main(launcher, arguments, services) != StartResult::Running)
        return 0;
    OnTermination([&window] { window.closeLauncher(); }); // the settings to save are loaded only now
    return QApplication::exec();
}
