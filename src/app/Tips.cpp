#include "app/Tips.h"

#include "platform/Text.h"

using namespace Qt::StringLiterals;

Tips::Tips(Launcher& launcher) : m_launcher(launcher)
{
    LoadTips(launcher.paths.LaunchDataPath + u"tips.txt"_s);
}

bool Tips::LoadTips(const QString& path)
{
    if (path.isEmpty() || !m_launcher.files.fileExists(path))
        return false;
    try {
        m_tips = ReadLines(m_launcher.files, path);
    } catch (const FileError&) {
        return false;
    }
    if (m_tips.isEmpty())
        m_tips << QString();
    next();
    return true;
}

void Tips::next()
{
    if (m_tips.isEmpty())
        return;
    int& number = m_launcher.settings.TipNumber;
    number = number < 0 || number >= m_tips.size() ? 1 : number + 1;
}

QString Tips::text() const
{
    if (m_tips.isEmpty())
        return u"That the "_s + u"tips.txt"_s + u" file was not found? "_s + u"\r\n\r\n"_s +
               u"This file was placed in the VYKLaunch\\Data folder when Keldrax was originally installed."_s;
    constexpr int longest = 1000; // characters that a window can show
    const QString tip = m_tips.value(m_launcher.settings.TipNumber - 1);
    return tip.size() > longest ? tip.left(longest) + u" ..."_s : tip;
}

void Tips::showAtStartup(bool on)
{
    m_launcher.settings.ShowTipsAtStartup = on;
}
