#include "iwads/IwadDialog.h"

#include "catalogue/GameLists.h"
#include "iwads/IwadSearch.h"
#include "platform/Paths.h"
#include "shell/ShellOpen.h"
#include "ui/FileErrorReport.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void IwadDialog::activate()
{
    m_warningShown = m_launcher.facts.iwads.ShowIwads[0].isEmpty();
    m_canAdd = m_launcher.facts.iwads.ShowIwads.back().isEmpty();
}

void IwadDialog::forgetIwads()
{
    m_launcher.facts.iwads.Path.fill({});
    m_launcher.facts.iwads.ShowIwads.fill({});
    m_canAdd = true;
    try {
        m_launcher.files.remove(m_launcher.paths.LaunchDataPath + u"iwads.cfg"_s);
    } catch (const FileError&) {
        // A list that stays is read at the next start and says where the files are.
    }
}

void IwadDialog::readAgain()
{
    Facts& facts = m_launcher.facts;
    facts.iwadsOnDisk =
        ReadIwadFacts(facts.iwads, m_launcher.files, m_launcher.paths, m_launcher.environment);
    if (m_launcher.view() == View::DoomGames)
        SelectView(m_launcher, View::DoomGames);
}

void IwadDialog::search()
{
    forgetIwads();
    QStringList storedFiles;
    SearchIwads(m_launcher.facts.iwads, storedFiles, m_launcher.files, m_launcher.paths,
                m_launcher.environment);
    auto& boxes = m_launcher.facts.iwads.ShowIwads;
    std::copy_n(storedFiles.cbegin(), std::min<qsizetype>(storedFiles.size(), std::ssize(boxes)),
                boxes.begin());
    m_warningShown = boxes[0].isEmpty();
    readAgain();
}

void IwadDialog::reset()
{
    forgetIwads();
    m_warningShown = false;
    m_canSearch = true;
    readAgain();
}

bool IwadDialog::checkIwad(const QString& path)
{
    const std::optional<GameFamily> family = FamilyOfIwad(path);
    if (family)
        m_launcher.facts.iwads.of(*family) = path;
    return family.has_value();
}

void IwadDialog::addIwad()
{
    IwadPaths& iwads = m_launcher.facts.iwads;
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
        if (box == boxes.end()) {
            m_launcher.prompts.MsgboxPos(
                u"The list holds four Iwads already, press Reset to make a new one.    "_s,
                Msg::Ok + Msg::Information, u"Configuration error"_s);
            return;
        }
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
    readAgain();
    try {
        SaveIwadList(iwads, m_launcher.files, m_launcher.paths);
    } catch (const FileError& error) {
        if (ReportCause(m_launcher.prompts, error))
            return;
        m_launcher.prompts.MsgboxPos(u"The Iwad locations could not be saved.    "_s,
                                     Msg::Ok + Msg::Exclamation, u" Access error"_s);
    }
}

bool IwadDialog::accept()
{
    if (m_launcher.facts.iwads.ShowIwads[0].isEmpty()) {
        const int answer = m_launcher.prompts.MsgboxPos(
            u"The Iwad locations must be set for the Launcher to function.    \r\n"
            "      Do you still wish to exit the VYKLauncher setup?"_s,
            Msg::YesNo + Msg::Question, u"Configuration error"_s);
        if (answer != Msg::ResultYes)
            return false;
        if (m_launcher.window.isShown())
            m_launcher.window.closeLauncher(); // with what the player set
        else
            ShutDownLauncher(m_launcher);
        return true;
    }
    if (m_launcher.view() != View::DoomGames)
        SelectView(m_launcher, m_launcher.view());
    m_launcher.window.show();
    return true;
}

void IwadDialog::openHelp()
{
    const QString help = m_launcher.paths.RootPath + u"/VYK_Docs/Help/Iwad location.txt"_s;
    if (m_launcher.files.fileExists(help))
        ShellOpen(m_launcher.prompts, m_launcher.files.actualPath(help));
}
