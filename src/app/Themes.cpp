#include "app/Themes.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

void GetTitlePic(Launcher& launcher)
{
    const QString folder = launcher.paths.LaunchPath + u"Themes/"_s;
    const QString standard = folder + u"default.jpg"_s;
    if (!launcher.files.fileExists(standard))
        return;
    QStringList pictures{launcher.files.actualPath(standard)};
    for (const QString& name : launcher.files.files(folder))
        if ((EndsWith(name, u".jpg"_s) || EndsWith(name, u".bmp"_s)) && !SameName(name, u"default.jpg"_s))
            pictures << folder + name;
    int& index = launcher.settings.TitlePicIndex;
    if (index < 0 || index >= pictures.size())
        index = 0;
    launcher.facts.titlePictures = pictures;
}

void ConnectThemes(Launcher& launcher)
{
    launcher.controls.TitlePic.clicked = [&launcher] {
        ++launcher.settings.TitlePicIndex;
        GetTitlePic(launcher);
    };
}
