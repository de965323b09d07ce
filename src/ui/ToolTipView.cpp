#include "ui/ToolTipView.h"

#include "ui/TitleView.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QGroupBox>
#include <QGuiApplication>
#include <QScreen>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int automaticDelay = 500;
constexpr int furtherTip = 500; // for so long, a tip that has gone makes the next one a further one

size_t lowBits(int which)
{
    return static_cast<size_t>(which & 3);
}

// Painted as the system paints its tips.
class TipWindow : public QLabel
{
public:
    explicit TipWindow(QWidget* parent) : QLabel(parent, Qt::ToolTip)
    {
        setTextFormat(Qt::PlainText);
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        setForegroundRole(QPalette::ToolTipText);
        setBackgroundRole(QPalette::ToolTipBase);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_ShowWithoutActivating);
    }

    void paintEvent(QPaintEvent* event) override
    {
        QStyleOptionFrame panel;
        panel.initFrom(this);
        QStylePainter(this).drawPrimitive(QStyle::PE_PanelTipLabel, panel);
        QLabel::paintEvent(event);
    }
};

// Below the pointer, or above it where there is no room; always on its screen.
QPoint placeOf(QSize tip, QPoint pointer)
{
    constexpr QPoint below(2, 21);
    constexpr int above = 4;
    const QScreen* screen = QGuiApplication::screenAt(pointer);
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->geometry();
    QPoint place = pointer + below;
    if (place.y() + tip.height() > room.bottom())
        place.setY(pointer.y() - above - tip.height());
    place.setX(std::max(room.left(), std::min(place.x(), room.right() - tip.width())));
    place.setY(std::max(room.top(), place.y()));
    return place;
}

} // namespace

clsToolTip::clsToolTip()
{
    setDelayTime(Automatic, automaticDelay);
    for (QTimer* timer : {&m_untilShown, &m_untilHidden, &m_sinceTip})
        timer->setSingleShot(true);
    m_sinceTip.setInterval(furtherTip);
    connect(&m_untilShown, &QTimer::timeout, this, &clsToolTip::showTip);
    connect(&m_untilHidden, &QTimer::timeout, this, &clsToolTip::hideTip);
}

clsToolTip::~clsToolTip()
{
    delete m_tip;
}

bool clsToolTip::Create(QWidget* parent)
{
    if (!m_tip)
        m_tip = new TipWindow(parent);
    return true;
}

bool clsToolTip::AddTool(QWidget* control, const QString& text)
{
    if (!m_tip || !fIsWindow(control) || HasToolTip(control))
        return false;
    store(control, text);
    control->installEventFilter(this);
    connect(control, &QObject::destroyed, this, [this, control] {
        if (m_under == control)
            leave();
        m_texts.remove(control);
    });
    return true;
}

void clsToolTip::RemoveTool(QWidget* control)
{
    if (!HasToolTip(control))
        return;
    if (m_under == control)
        leave();
    control->removeEventFilter(this);
    disconnect(control, nullptr, this, nullptr);
    m_texts.remove(control);
    control->setAccessibleDescription({});
}

QString clsToolTip::ToolText(const QWidget* control) const
{
    const QString text = m_texts.value(control);
    return text.left(text.indexOf(QChar::Null)); // all of it when there is none
}

void clsToolTip::setToolText(QWidget* control, const QString& text)
{
    if (!HasToolTip(control))
        return;
    store(control, text);
    if (m_under == control && isTipShown())
        showTip();
}

void clsToolTip::store(QWidget* control, const QString& text)
{
    const bool headed = m_headerShow && !m_header.isEmpty();
    m_texts[control] = headed ? m_header + u"\r\n"_s + text : text;
    control->setAccessibleDescription(ToolText(control).simplified());
}

int clsToolTip::DelayTime(int which) const
{
    return m_delays[lowBits(which)];
}

void clsToolTip::setDelayTime(int which, int milliseconds)
{
    constexpr int autopopToInitial = 10;
    constexpr int initialToReshow = 5;
    m_delays[lowBits(which)] = milliseconds;
    if (lowBits(which) == Automatic)
        m_delays = {milliseconds, milliseconds / initialToReshow, milliseconds * autopopToInitial,
                    milliseconds};
}

int clsToolTip::Margin(int side) const
{
    return m_margins[lowBits(side)];
}

void clsToolTip::setMargin(int side, int margin)
{
    m_margins[lowBits(side)] = margin;
}

QColor clsToolTip::BackColor() const
{
    return m_backColor.isValid() ? m_backColor : QToolTip::palette().color(QPalette::ToolTipBase);
}

QColor clsToolTip::ForeColor() const
{
    return m_foreColor.isValid() ? m_foreColor : QToolTip::palette().color(QPalette::ToolTipText);
}

void clsToolTip::setToolTipHeader(const QString& header)
{
    m_header = header;
    m_headerShow = true;
}

quintptr clsToolTip::hWnd() const
{
    return m_tip ? m_tip->winId() : 0;
}

bool clsToolTip::fIsWindow(const QWidget* control)
{
    return control && !qobject_cast<const QLabel*>(control) && !qobject_cast<const TitleView*>(control) &&
           !qobject_cast<const QGroupBox*>(control);
}

bool clsToolTip::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        if (m_texts.contains(watched))
            enter(static_cast<QWidget*>(watched));
        break;
    case QEvent::Leave:
    case QEvent::Hide:
        if (watched == m_under)
            leave();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::WindowDeactivate:
        if (m_under)
            hideTip();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void clsToolTip::enter(QWidget* control)
{
    if (control == m_under)
        return;
    if (m_under)
        leave();
    m_under = control;
    qApp->installEventFilter(this); // for what happens elsewhere in the meantime: a key, another window
    m_untilShown.start(DelayTime(m_sinceTip.isActive() ? Reshow : Initial));
}

void clsToolTip::leave()
{
    hideTip();
    m_under = nullptr;
    qApp->removeEventFilter(this);
}

void clsToolTip::showTip()
{
    const QString text = ToolText(m_under).replace(u"\r\n"_s, u"\n"_s);
    if (text.isEmpty()) {
        hideTip();
        return;
    }
    QPalette palette = QToolTip::palette();
    palette.setColor(QPalette::ToolTipBase, BackColor());
    palette.setColor(QPalette::ToolTipText, ForeColor());
    m_tip->setPalette(palette);
    m_tip->setFont(QToolTip::font());
    m_tip->setText(text);
    m_tip->setWordWrap(m_maxTipWidth >= 0);

    const int frame = m_tip->style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, m_tip);
    const QMargins margins = QMargins(m_margins[Left], m_margins[Top], m_margins[Right], m_margins[Bottom]) +
                             QMargins(frame, frame, frame, frame);
    m_tip->setContentsMargins(margins);
    const int width = m_maxTipWidth >= 0 ? m_maxTipWidth : QWIDGETSIZE_MAX;
    const int flags = m_maxTipWidth >= 0 ? Qt::TextWordWrap : 0;
    const QRect lines = m_tip->fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), flags, text);
    m_tip->resize(lines.size().grownBy(margins) + QSize(1, 1)); // a fraction too little would wrap again
    m_tip->move(placeOf(m_tip->size(), QCursor::pos()));
    m_tip->show();
    m_tip->raise();
    m_untilHidden.start(DelayTime(Autopop));
}

void clsToolTip::hideTip()
{
    m_untilShown.stop();
    m_untilHidden.stop();
    if (isTipShown()) {
        m_tip->hide();
        m_sinceTip.start();
    }
}

bool clsToolTip::isTipShown() const
{
    const QLabel* tip = m_tip.data();
    return tip && tip->isVisible();
}

void SetUpToolTips(clsToolTip& toolTips, QWidget* window)
{
    toolTips.Create(window);
    toolTips.setMaxTipWidth(240);
    toolTips.setDelayTime(clsToolTip::Autopop, 20000);
    toolTips.setDelayTime(clsToolTip::Reshow, 800);
    toolTips.setDelayTime(clsToolTip::Initial, 300);
    toolTips.setMargin(clsToolTip::Bottom, 2);
    toolTips.setMargin(clsToolTip::Top, 2);
    toolTips.setMargin(clsToolTip::Left, 5);
    toolTips.setMargin(clsToolTip::Right, 5);
    toolTips.setToolTipHeader({});
}
