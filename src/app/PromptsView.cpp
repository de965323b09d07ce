#include "app/PromptsView.h"

#include "options/ConfirmForm.h"
#include "platform/Paths.h"
#include "shortcuts/ShortcutForm.h"
#include "ui/AskForm.h"
#include "ui/ProgressView.h"
#include "ui/TaskMenuView.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int buttonMask = 7;
constexpr int iconMask = 0x70;

QMessageBox::StandardButtons buttonsOf(int style)
{
    switch (style & buttonMask) {
    case Msg::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Msg::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Msg::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style)
{
    switch (style & iconMask) {
    case Msg::Critical:
        return QMessageBox::Critical;
    case Msg::Question:
        return QMessageBox::Question;
    case Msg::Exclamation:
        return QMessageBox::Warning;
    case Msg::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

int resultOf(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Msg::ResultYes;
    case QMessageBox::No:
        return Msg::ResultNo;
    case QMessageBox::Cancel:
        return Msg::ResultCancel;
    default:
        return Msg::ResultOk;
    }
}

// As the file dialog wants it.
QString filterText(const FileFilter& filter)
{
    if (filter.pattern == u"*.*"_s)
        return filter.filter + u" (*)"_s; // a name need not have an extension
    const QString patterns = filter.pattern.split(u';', Qt::SkipEmptyParts).join(u' ');
    return filter.filter + u" ("_s + patterns + u' ' + patterns.toUpper() +
           u')'; // names compare without regard to case
}

} // namespace

QWidget* PromptsView::over() const
{
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog ? dialog : m_mainWindow;
}

int PromptsView::MsgboxPos(const QString& text, int style, const QString& title)
{
    QMessageBox box(over());
    box.setIcon(iconOf(style));
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText); // file names are no markup
    box.setText(QString(text).replace(u"\r\n"_s, u"\n"_s));
    box.setStandardButtons(buttonsOf(style));
    const bool asksYesNo = (style & buttonMask) == Msg::YesNo || (style & buttonMask) == Msg::YesNoCancel;
    if (style & Msg::SecondButton)
        box.setDefaultButton(asksYesNo ? QMessageBox::No : QMessageBox::Cancel);
    if ((style & buttonMask) == Msg::YesNo)
        box.setEscapeButton(QMessageBox::No);

    // Centred over the main window, not kept inside the screen.
    box.ensurePolished();
    box.adjustSize();
    const QRect main = m_mainWindow->frameGeometry();
    box.move(main.left() + (main.width() - box.width()) / 2, main.top() + (main.height() - box.height()) / 2);
    return resultOf(static_cast<QMessageBox::StandardButton>(box.exec()));
}

QString PromptsView::chooseFile(const FileQuestion& question)
{
    QStringList filters{filterText({question.filter, question.pattern})};
    for (const FileFilter& filter : question.further)
        filters << filterText(filter);
    return WithSlashes(
        QFileDialog::getOpenFileName(over(), question.title, question.folder, filters.join(u";;"_s)));
}

QString PromptsView::chooseFolder(const QString& text, const QString& folder)
{
    const QString title = QString(text).replace(u"\r\n"_s, u" - "_s); // a title has one line
    return WithSlashes(QFileDialog::getExistingDirectory(over(), title, folder));
}

std::optional<QString> PromptsView::askName(const NameQuestion& question)
{
    AskForm form(question, over());
    return form.exec() == QDialog::Accepted ? std::optional(form.name()) : std::nullopt;
}

QString PromptsView::askPassword(const QString& text)
{
    QInputDialog box(over());
    box.setObjectName(u"Password"_s);
    box.setWindowTitle(u"Password"_s);
    box.setLabelText(AsPlainCaption(text)); // file names are no markup
    box.findChild<QLabel*>()->setTextFormat(Qt::PlainText);
    box.setTextEchoMode(QLineEdit::Password);
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

bool PromptsView::askModelCleanup(const CleanupQuestion& question)
{
    return ShortcutForm(question, over()).exec() == QDialog::Accepted;
}

std::optional<ShortcutChoice> PromptsView::askShortcut(const ShortcutQuestion& question)
{
    ShortcutForm form(question, over());
    return form.exec() == QDialog::Accepted ? std::optional(form.choice()) : std::nullopt;
}

bool PromptsView::confirmModelCleanup(const std::function<void(bool)>& neverAgain)
{
    return ConfirmForm(neverAgain, over()).exec() == QDialog::Accepted;
}

std::unique_ptr<Progress> PromptsView::showProgress(const QString& what)
{
    return std::make_unique<ProgressView>(what, over());
}

bool PromptsView::openWithShell(const QString& target)
{
    const bool isAddress = target.startsWith(u"http://"_s) || target.startsWith(u"https://"_s);
    return QDesktopServices::openUrl(isAddress ? QUrl(target) : QUrl::fromLocalFile(target));
}
