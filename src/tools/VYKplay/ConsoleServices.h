#pragma once

#include "platform/Processes.h"
#include "state/MainWindowHost.h"
#include "ui/Prompts.h"

#include <QTextStream>

// Messages go to a stream; a question is answered with No, a file dialog with Cancel and a name prompt with
// the name it suggests. A password is read from another stream.
class ConsolePrompts : public Prompts
{
public:
    ConsolePrompts(QTextStream& stream, QTextStream& input) : m_stream(stream), m_input(input) {}

    int MsgboxPos(const QString& text, int style, const QString& title) override;
    QString chooseFile(const FileQuestion&) override { return {}; }
    QString chooseFolder(const QString&, const QString&) override { return {}; }
    std::optional<QString> askName(const NameQuestion& question) override { return question.name; }
    QString askPassword(const QString& text) override;
    bool askModelCleanup(const CleanupQuestion&) override { return false; }
    bool confirmModelCleanup(const std::function<void(bool)>&) override { return false; }
    std::optional<ShortcutChoice> askShortcut(const ShortcutQuestion&) override { return {}; }
    std::unique_ptr<Progress> showProgress(const QString& what) override;
    bool openWithShell(const QString&) override { return false; }

private:
    QTextStream& m_stream;
    QTextStream& m_input;
};

// There is no window: the settings keep the position they have.
class NoWindow : public MainWindowHost
{
public:
    QSize screenSize() const override { return {}; }
    QSize size() const override { return {}; }
    QPoint position() const override { return {}; }
    void moveTo(QPoint) override {}
    bool isInNormalState() const override { return false; }
    bool isShown() const override { return false; }
    void show() override {}
    void hide() override {}
    void minimise() override {}
    void bringToFront() override {}
    void checkFont(const FontSetting&) override {}
    bool isReachableAt(QPoint) const override { return false; }
    void refresh() override {}
    void showIwadForm() override {}
    void showTexForm() override {}
    void showFontForm() override {}
    void showMusicForm(PlaylistEditor&) override {}
    void copyText(const QString&) override {}
    int logicalDpi() const override { return 96; }
    void closeLauncher() override {}
    void endProgram() override {}
};

// Runs console tools, but prints a command line in place of starting it.
class PrintingProcesses : public Processes
{
public:
    PrintingProcesses(Processes& processes, QTextStream& stream) : m_processes(processes), m_stream(stream) {}

    Captured capture(const QString& commandLine, const QString& folder) override
    {
        return m_processes.capture(commandLine, folder);
    }
    bool start(const QString& commandLine, const QString&) override
    {
        m_stream << commandLine << Qt::endl;
        return true;
    }
    bool startWatched(const QString& commandLine, const QString& folder, const ProgramWatch& watch) override
    {
        watch.settled();
        return start(commandLine, folder);
    }

private:
    Processes& m_processes;
    QTextStream& m_stream;
};
