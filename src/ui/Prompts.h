#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

// The message-box styles, combined by addition, and the results.
namespace Msg {
constexpr int Ok = 0;
constexpr int OkCancel = 1;
constexpr int YesNoCancel = 3;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
constexpr int SecondButton = 256; // the second button is the default
constexpr int SystemModal = 4096;

constexpr int ResultOk = 1;
constexpr int ResultCancel = 2;
constexpr int ResultYes = 6;
constexpr int ResultNo = 7;
} // namespace Msg

struct FileFilter
{
    QString filter;  // what the files are called
    QString pattern; // "*.wad", or several with a semicolon after each
};

struct FileQuestion
{
    QString title;
    QString filter;                 // of the files to choose from at first
    QString pattern;                // theirs
    QString folder;                 // where to start, with '/'
    QList<FileFilter> further = {}; // what the player can choose from instead
};

struct NameQuestion
{
    QString caption; // of the window
    QString frame;   // of the frame around the name
    QString button;  // its caption until something is typed: "OK", or "Cancel" where the name must change
    QString name;    // to start with
};

struct CleanupQuestion
{
    QString summary; // what removing the model packs would delete
    bool toolTips;   // whether the controls of the dialog explain themselves
};

struct ShortcutQuestion
{
    QString name;  // of what the shortcut is for
    bool toolTips; // whether the controls of the dialog explain themselves
};

// Where the player wants a shortcut, at least at one place, and whether its name tells the map.
struct ShortcutChoice
{
    bool StartMenuShortcut = false;
    bool DesktopShortcut = false;
    bool IncludeMapInShortcut = false;
};

// Something that takes a while is shown while this object lives.
class Progress
{
public:
    virtual ~Progress() = default;

    // `done` of `total`, in any unit. False once the player has cancelled.
    virtual bool advance(qint64 done, qint64 total) = 0;
};

// What the launcher asks the player. A window shows dialogs; a console program and the tests answer.
class Prompts
{
public:
    virtual ~Prompts() = default;

    // Shows a modal message box, centred over the main window, and returns the button: one of the
    // results above. Closing the box counts as Cancel, as No, or as OK where there is no other button.
    virtual int MsgboxPos(const QString& text, int style, const QString& title) = 0;

    // The path of the existing file that the player chose, with '/'; empty when cancelled.
    virtual QString chooseFile(const FileQuestion& question) = 0;

    // The path of the folder that the player chose, with '/'; empty when cancelled. `text` says what for,
    // `folder` is where to start.
    virtual QString chooseFolder(const QString& text, const QString& folder) = 0;

    // The name that the player typed; nothing when cancelled.
    virtual std::optional<QString> askName(const NameQuestion& question) = 0;

    // A password; empty when the player has none.
    virtual QString askPassword(const QString& text) = 0;

    // Asks whether to remove the model packs. True when the player ticked "Remove all models" and went on.
    virtual bool askModelCleanup(const CleanupQuestion& question) = 0;

    // The last question before model packs are removed; true means go on. `neverAgain` is told at once
    // whenever the player ticks or unticks "Don't ask this in the future".
    virtual bool confirmModelCleanup(const std::function<void(bool)>& neverAgain) = 0;

    // Asks where to make a shortcut; nothing when cancelled.
    virtual std::optional<ShortcutChoice> askShortcut(const ShortcutQuestion& question) = 0;

    // Says what is being done, with a way to cancel it.
    virtual std::unique_ptr<Progress> showProgress(const QString& what) = 0;

    // Opens a file (path with '/') or a web address with the system's program for it. Returns false when
    // there is none.
    virtual bool openWithShell(const QString& target) = 0;
};
