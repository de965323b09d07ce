#include "ui/AskForm.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString placeholder = u" Name "_s; // stands where a name is missing: typing replaces it

} // namespace

AskForm::AskForm(const NameQuestion& question, QWidget* parent)
    : QDialog(parent),
      m_name(new QLineEdit(question.name)),
      m_button(new QPushButton(question.button)),
      m_buttonCancels(question.button == u"Cancel"_s)
{
    setObjectName(u"AskForm"_s);
    setWindowTitle(question.caption);

    m_name->setObjectName(u"edProfName"_s);
    m_name->setAccessibleName(question.frame.trimmed());
    m_name->setMinimumWidth(340);
    m_name->selectAll();
    m_name->installEventFilter(this);
    connect(m_name, &QLineEdit::textEdited, this, [this] {
        m_button->setText(u"OK"_s);
        m_buttonCancels = false;
    });

    m_button->setObjectName(u"OKButton"_s);
    m_button->setDefault(true);
    connect(m_button, &QPushButton::clicked, this, [this] { done(m_buttonCancels ? Rejected : Accepted); });

    auto* frame = new QGroupBox(question.frame.trimmed());
    auto* inFrame = new QVBoxLayout(frame);
    inFrame->addWidget(m_name);
    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(frame);
    rows->addWidget(m_button, 0, Qt::AlignRight);
}

QString AskForm::name() const
{
    return m_name->text();
}

bool AskForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && m_name->text() == placeholder) {
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        if (!typed.isEmpty() && typed.front().isPrint())
            m_name->selectAll();
    }
    return QDialog::eventFilter(watched, event);
}
