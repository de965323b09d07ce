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
        if (!m_answers.isEmpty() || !m_files.isEmpty())
            qFatal("%lld expected questions were not asked",
                   static_cast<long long>(m_answers.size() + m_files.size()));
    }

    // The next message box is answered with `result`.
    void expectMessage(int result = Msg::ResultOk) { m_answers << result; }
    // The next file dialog is answered with `path`; empty cancels.
    void expectFile(const QString& path) { m_files << path; }

    int MsgboxPos(const QString& text, int style, const QString& title) override
    {
        texts << text;
        titles << title;
        styles << style;
        if (m_answers.isEmpty())
            qFatal("unexpected message: %s / %s", qPrintable(title), qPrintable(text));
        return m_answers.takeFirst();
    }

    QString chooseFile(const FileQuestion& question) override
    {
        fileQuestions << question;
        if (m_files.isEmpty())
            qFatal("unexpected file dialog: %s", qPrintable(question.title));
        return m_files.takeFirst();
    }

    bool openWithShell(const QString& target) override
    {
        opened << target;
        return canOpen;
    }

    // What was asked, in order.
    QStringList texts, titles, opened;
    QList<int> styles;
    QList<FileQuestion> fileQuestions;
    bool canOpen = true;

private:
    QList<int> m_answers;
    QStringList m_files;
};
