#include "iwads/IwadDialog.h"

#include "app/StartUp.h"
#include "catalogue/GameLists.h"
#include "catalogue/GameSelection.h"
#include "launch/ShellOpen.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

} // namespace

void IwadDialog::activate()
{
    m_warningShown = m_launcher.iwads.ShowIwads[0].isEmpty();
    m_canAdd = m_launcher.iwads.ShowIwads.back().isEmpty();
}

void IwadDialog::forgetIwads()
{
    m_launcher.iwads.Path.fill({});
    m_launcher.iwads.ShowIwads.fill({});
    m_canAdd = true;
    try {
        m_launcher.files.remove(m_launcher.paths.LaunchDataPath + u"iwads.cfg"_s);
    } catch (const FileError&) {
        // A list that stays is read at the next start and says where the files are.
    }
}

void IwadDialog::listDoomGames()
{
    if (m_launcher.settings.ListMode != doomGames)
        return;
    FillDoomGamesList(m_launcher);
    m_launcher.controls.PwadList.select(0);
}

void IwadDialog::search()
{
    forgetIwads();
    QStringList storedFiles;
    SearchIwads(m_launcher.iwads, storedFiles, m_launcher.files, m_launcher.paths, m_launcher.environment);
    auto& boxes = m_launcher.iwads.ShowIwads;
    std::copy_n(storedFiles.cbegin(), std::min<qsizetype>(storedFiles.size(), std::ssize(boxes)),
                boxes.begin());
    m_warningShown = boxes[0].isEmpty();
    listDoomGames();
}

void IwadDialog::reset()
{
    forgetIwads();
    m_warningShown = false;
    m_canSearch = true;
    Controls& controls = m_launcher.controls;
    if (m_launcher.settings.ListMode == doomGames)
        for (ListBox* list :
             {&controls.PwadList, &controls.PwadShowlist, &controls.MapList, &controls.SaveGameList})
            list->clear();
    controls.LaunchButton.enabled = CanLaunchSelection(m_launcher);
}

bool IwadDialog::checkIwad(const QString& path)
{
    const std::optional<GameFamily> family = FamilyOfIwad(path);
    if (family)
        m_launcher.iwads.of(*family) = path;
    return family.has_value();
}

void IwadDialog::addIwad()
{
    IwadPaths& iwads = m_launcher.iwads;
    QString folder =
        m_launcher.files.folderExists(iwads.IwadFolder) ? iwads.IwadFolder : m_launcher.paths.RootPath;
    if (!m_lastFolder.isEmpty())
        folder = iwads.IwadFolder = m_lastFolder;
    const QString chosen = m_launcher.prompts.chooseFile(
        {.title = u"Add an IWAD"_s, .filter = u"WAD Files"_s, .pattern = u"*.wad"_s, .folder = folder});
    if (!chosen.isEmpty()) {
        m_lastFolder = FolderOf(chosen);
        auto& boxes = iwads.ShowIwads;
        const auto box =
            std::ranges::find_if(boxes, [](const QString& text) { return !EndsWith(text, u".wad"_s); });
        if (box == boxes.end())
            return;
        *box = chosen;
        m_warningShown = false;
        if (!checkIwad(chosen)) {
            box->clear();
            m_launcher.prompts.MsgboxPos(u"This does not appear to be a correct Doom Iwad.   "_s,
                                         Msg::Ok + Msg::Information, QString());
            return;
        }
        m_canSearch = false;
    }
    m_canAdd = iwads.ShowIwads.back().isEmpty();
    listDoomGames();
    try {
        SaveIwadList(iwads, m_launcher.files, m_launcher.paths);
    } catch (const FileError&) {
        m_launcher.prompts.MsgboxPos(u"The Iwad locations could not be saved.    "_s,
                                     Msg::Ok + Msg::Exclamation, u" Access error"_s);
    }
}

bool IwadDialog::accept()
{
    if (m_launcher.iwads.ShowIwads[0].isEmpty()) {
        const int answer = m_launcher.prompts.MsgboxPos(
            u"The Iwad locations must be set for the Launcher to function.    \r\n"
            "      Do you still wish to exit the VYKLauncher setup?"_s,
            Msg::YesNo + Msg::Question, u"Configuration error"_s);
        if (answer != Msg::ResultYes)
            return false;
        ShutDownLauncher(m_launcher);
        return true;
    }
    const int view = m_launcher.settings.ListMode;
    if (view != doomGames)
        OptionUdirClick(m_launcher, view);
    const bool wasShown = m_launcher.window.isShown();
    m_launcher.window.show();
    if (wasShown && view == doomGames && m_launcher.settings.SelectedDoomGame.isEmpty())
        m_launcher.controls.PwadList.select(0);
    return true;
}

void IwadDialog::openHelp()
{
    const QString help = m_launcher.paths.RootPath + u"/VYK_Docs/Help/Iwad location.txt"_s;
    if (m_launcher.files.fileExists(help))
        ShellOpen(m_launcher.prompts, m_launcher.files.actualPath(help));
}
