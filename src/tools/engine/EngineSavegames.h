#pragma once

#include "platform/FileSystem.h"

#include <QStringList>
#include <array>

// The savegames of one game. In its folder the launcher finds KeldraxSav<slot>.vyksg, slots 0 to 9,
// while the engine reads and writes files of the same content under names of its own. Both lie there
// while the engine runs; no file is ever removed before its content is in place under the other name.
// A slot of two digits has no name that the launcher knows, and stays the engine's.
class EngineSavegames
{
public:
    // `engineName` is the engine's file name, %1 being the slot. `files` must outlive this object.
    EngineSavegames(FileSystem& files, const QString& folder, const QString& engineName);

    // Before the engine starts. Files left under the engine's names, after an adapter that could not
    // finish, are published first; where both names hold a savegame the newer one stays and the other
    // becomes KeldraxSav<slot>.old. Then every savegame is copied to the engine's name.
    void present();

    // The same while another game runs in the folder: copies only what the engine has no file of.
    void presentMissing();

    // Publishes what the engine wrote since the last call. Cheap when it wrote nothing.
    void publish();

    // After the engine's end: publishes what is left.
    void publishAll();

    // Removes the engine-named files whose content is published.
    void removePublished();

    // What could not be done, in words for the player; each reason once.
    const QStringList& problems() const { return m_problems; }

private:
    static constexpr int slotCount = 10;

    QString engineFile(int slot) const;
    QString publishedFile(int slot) const;
    bool isPublished(int slot) const;
    void publishLeftOver(int slot);
    void publishOver(int slot);
    template <typename Action>
    void forEachSlot(Action action);

    FileSystem& m_files;
    QString m_folder;
    QString m_engineName;
    std::array<QDateTime, slotCount> m_seen; // the engine's files as they were last copied
    QStringList m_problems;
};
