#include "ui/ProgressView.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// In milliseconds. The dialog is not worth showing before, and more steps a second nobody sees.
constexpr qint64 untilShown = 400;
constexpr qint64 betweenSteps = 30;

constexpr int fullBar = 1000;

} // namespace

void ProgressView::show()
{
    m_dialog = std::make_unique<QProgressDialog>(m_over);
    auto* label = new QLabel(m_what);
    label->setTextFormat(Qt::PlainText); // file names are no markup
    m_dialog->setLabel(label);
    m_dialog->setObjectName(u"Progress"_s);
    m_dialog->setWindowTitle(u"Please wait"_s);
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumWidth(360);
    m_dialog->setAutoReset(false);
    m_dialog->setAutoClose(false);
    m_dialog->findChild<QPushButton*>()->setAutoDefault(false); // an Enter too many cancels nothing
    m_dialog->show();
}

bool ProgressView::advance(qint64 done, qint64 total)
{
    if (!m_dialog) {
        if (m_sinceStart.elapsed() < untilShown)
            return true;
        show();
    } else if (m_dialog->wasCanceled()) {
        return false;
    } else if (m_sinceStep.elapsed() < betweenSteps) {
        return true;
    }
    // An unknown total shows as a bar without an end.
    const double part = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0;
    m_dialog->setMaximum(total > 0 ? fullBar : 0);
    m_dialog->setValue(static_cast<int>(std::clamp(part, 0.0, 1.0) * fullBar));
    QCoreApplication::processEvents();
    m_sinceStep.start();
    return !m_dialog->wasCanceled();
}
