#pragma once

#include "ui/Prompts.h"

#include <QStringList>
#include <QtTest>

// Answers from a queue, and fails the test on a question that nobody expected.
class QueuedPrompts : public Prompts
{
public:
    ~QueuedPrompts() override
    {
        const auto left = m_answers.size() + m_files.size() + m_names.size() + m_passwords.size() +
                          m_cleanups.size() + m_confirmations.size() + m_shortcuts.size();
        if (left > 0)
            qFatal("%lld expected questions were not asked", static_cast<long long>(left));
    }

    // The next message box is answered with `result`.
    void expectMessage(int result = Msg::ResultOk) { m_answers << result; }
    // The next file or folder dialog is answered with `path`; empty cancels.
    void expectFile(const QString& path) { m_files << path; }

    // The next name prompt is answered with `name`; nothing cancels.
    void expectName(const std::optional<QString>& name) { m_names << name; }
    void expectPassword(const QString& password) { m_passwords << password; }

    // The next model cleanup dialog is answered with `go`.
    void expectModelCleanup(bool go) { m_cleanups << go; }
    // The next confirmation is answered with `go`, after `tick` was ticked or not.
    void expectConfirmation(bool go, bool tick = false) { m_confirmations << std::pair(go, tick); }

    // The next shortcut dialog is answered with `choice`; nothing cancels.
    void expectShortcut(const std::optional<ShortcutChoice>& choice) { m_shortcuts << choice; }

    int MsgboxPos(const QString& text, int style, const QString& title) override
    {
        texts << text;
        titles << title;
        styles << style;
        if (m_answers.isEmpty() && allowMessages)
            return Msg::ResultOk;
        if (m_answers.isEmpty())
            qFatal("unexpected message: %s / %s, after: %s", qPrintable(title), qPrintable(text),
                   qPrintable(texts.join(QStringLiteral(" / "))));
        return m_answers.takeFirst();
    }

    QString chooseFile(const FileQuestion& question) override
    {
        fileQuestions << question;
        if (m_files.isEmpty())
            qFatal("unexpected file dialog: %s", qPrintable(question.title));
        return m_files.takeFirst();
    }

    QString chooseFolder(const QString& text, const QString&) override
    {
        folderTexts << text;
        if (m_files.isEmpty())
            qFatal("unexpected folder dialog: %s", qPrintable(text));
        return m_files.takeFirst();
    }

    std::optional<QString> askName(const NameQuestion& question) override
    {
        nameQuestions << question;
        if (m_names.isEmpty())
            qFatal("unexpected name prompt: %s", qPrintable(question.caption));
        return m_names.takeFirst();
    }

    QString askPassword(const QString& text) override
    {
        if (m_passwords.isEmpty())
            qFatal("unexpected password prompt: %s", qPrintable(text));
        return m_passwords.takeFirst();
    }

    bool askModelCleanup(const CleanupQuestion& question) override
    {
        cleanupSummaries << question.summary;
        if (m_cleanups.isEmpty())
            qFatal("unexpected model cleanup: %s", qPrintable(question.summary));
        return m_cleanups.takeFirst();
    }

    bool confirmModelCleanup(const std::function<void(bool)>& neverAgain) override
    {
        if (m_confirmations.isEmpty())
            qFatal("unexpected confirmation");
        const auto [go, tick] = m_confirmations.takeFirst();
        if (tick)
            neverAgain(true);
        return go;
    }

    std::optional<ShortcutChoice> askShortcut(const ShortcutQuestion& question) override
    {
        shortcutNames << question.name;
        if (m_shortcuts.isEmpty())
            qFatal("unexpected shortcut dialog: %s", qPrintable(question.name));
        return m_shortcuts.takeFirst();
    }

    std::unique_ptr<Progress> showProgress(const QString&) override
    {
        struct Steps : Progress
        {
            explicit Steps(int& left) : m_left(left) {}
            bool advance(qint64, qint64) override { return m_left < 0 || m_left-- > 0; }
            int& m_left;
        };
        return std::make_unique<Steps>(stepsUntilCancelled);
    }

    bool openWithShell(const QString& target) override
    {
        opened << target;
        return canOpen;
    }

    // What was asked, in order.
    QStringList texts, titles, opened, cleanupSummaries, shortcutNames, folderTexts;
    QList<int> styles;
    QList<FileQuestion> fileQuestions;
    QList<NameQuestion> nameQuestions;
    bool canOpen = true;
    bool allowMessages = false;   // those that nobody expected are answered with OK
    int stepsUntilCancelled = -1; // how often a progress goes on before the player cancels; negative: never

private:
    QList<int> m_answers;
    QStringList m_files;
    QList<std::optional<QString>> m_names;
    QStringList m_passwords;
    QList<bool> m_cleanups;
    QList<std::pair<bool, bool>> m_confirmations;
    QList<std::optional<ShortcutChoice>> m_shortcuts;
};
