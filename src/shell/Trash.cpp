#include "shell/Trash.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

bool Trash::discard(const QString& path)
{
    const QString actual = m_files.actualPath(path);
    if (actual.isEmpty() || (m_files.hasTrash() && m_files.moveToTrash(actual)))
        return true;
    if (m_files.hasTrash() && !m_forGood)
        m_forGood =
            m_prompts.MsgboxPos(
                NativePath(actual) +
                    u"    \r\ncan not be moved to the trash, do you wish to delete it for good?    "_s,
                Msg::YesNo + Msg::Question + Msg::SecondButton, u" Trash"_s) == Msg::ResultYes;
    if (m_forGood == false)
        return false;
    if (m_files.folderExists(actual))
        m_files.removeTree(actual);
    else
        m_files.remove(actual);
    return true;
}

QString Trash::words() const
{
    return m_files.hasTrash() ? u"\r\n It goes to the trash.    "_s : QString();
}
