#include "tools/engine/EngineSavegames.h"

using namespace Qt::StringLiterals;

EngineSavegames::EngineSavegames(FileSystem& files, const QString& folder, const QString& engineName)
    : m_files(files), m_folder(folder), m_engineName(engineName)
{
}

QString EngineSavegames::engineFile(int slot) const
{
    return m_folder + u'/' + m_engineName.arg(slot);
}

QString EngineSavegames::publishedFile(int slot) const
{
    return m_folder + u"/KeldraxSav%1.vyksg"_s.arg(slot);
}

// One slot's failure does not keep the others from being saved.
template <typename Action>
void EngineSavegames::forEachSlot(Action action)
{
    for (int slot = 0; slot < slotCount; ++slot) {
        try {
            action(slot);
        } catch (const FileError& error) {
            const QString problem = u"Savegame %1: %2"_s.arg(slot).arg(QString::fromUtf8(error.what()));
            if (!m_problems.contains(problem))
                m_problems += problem;
        }
    }
}

// An empty file, as a full disk leaves it, is no savegame: it is neither published nor removed.
bool EngineSavegames::isPublished(int slot) const
{
    const QByteArray written = m_files.read(engineFile(slot));
    if (written.isEmpty())
        return true;
    return written.size() < FileSystem::maximumSize && m_files.fileExists(publishedFile(slot)) &&
           m_files.read(publishedFile(slot)) == written;
}

void EngineSavegames::publishLeftOver(int slot)
{
    const QString engine = engineFile(slot);
    const QString published = publishedFile(slot);
    if (!m_files.fileExists(engine) || isPublished(slot))
        return;
    const bool conflict = m_files.fileExists(published);
    const bool engineIsNewer = !conflict || m_files.modified(engine) >= m_files.modified(published);
    if (conflict)
        m_files.copy(engineIsNewer ? published : engine, m_folder + u"/KeldraxSav%1.old"_s.arg(slot));
    if (engineIsNewer)
        m_files.copy(engine, published);
}

// An engine that found no room writes half a savegame over a whole one: the one before stays beside.
void EngineSavegames::publishOver(int slot)
{
    if (m_files.fileExists(publishedFile(slot)))
        m_files.copy(publishedFile(slot), m_folder + u"/KeldraxSav%1.old"_s.arg(slot));
    m_files.copy(engineFile(slot), publishedFile(slot));
}

void EngineSavegames::present()
{
    forEachSlot([this](int slot) {
        publishLeftOver(slot);
        if (m_files.fileExists(publishedFile(slot)))
            m_files.copy(publishedFile(slot), engineFile(slot));
        m_seen[slot] = m_files.modified(engineFile(slot));
    });
}

void EngineSavegames::presentMissing()
{
    forEachSlot([this](int slot) {
        if (m_files.fileExists(publishedFile(slot)) && !m_files.fileExists(engineFile(slot)))
            m_files.copy(publishedFile(slot), engineFile(slot));
        m_seen[slot] = m_files.modified(engineFile(slot));
    });
}

void EngineSavegames::publish()
{
    forEachSlot([this](int slot) {
        const QDateTime changed = m_files.modified(engineFile(slot));
        if (!changed.isValid() || changed == m_seen[slot])
            return;
        if (!isPublished(slot))
            publishOver(slot);
        m_seen[slot] = changed; // a change during the copy shows at the next call
    });
}

void EngineSavegames::publishAll()
{
    forEachSlot([this](int slot) {
        if (m_files.fileExists(engineFile(slot)) && !isPublished(slot))
            publishOver(slot);
    });
}

void EngineSavegames::removePublished()
{
    forEachSlot([this](int slot) {
        const QString engine = engineFile(slot);
        if (m_files.fileExists(engine) && !m_files.read(engine, 1).isEmpty() && isPublished(slot))
            m_files.remove(engine);
    });
}
