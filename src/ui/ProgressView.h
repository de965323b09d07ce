#pragma once

#include "ui/Prompts.h"

#include <QElapsedTimer>
#include <QProgressDialog>

// A modal progress dialog over `over`. What is done before it would be read shows none.
class ProgressView : public Progress
{
public:
    ProgressView(const QString& what, QWidget* over) : m_what(what), m_over(over) { m_sinceStart.start(); }

    bool advance(qint64 done, qint64 total) override;

private:
    void show();

    QString m_what;
    QWidget* m_over;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceStep;
    std::unique_ptr<QProgressDialog> m_dialog; // from when it is shown on
};
