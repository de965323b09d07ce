#pragma once

#include <QColor>
#include <QHash>
#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <array>

// The tips of one window: texts for its controls, and the small window that shows the one of the control
// under the pointer. A text is plain and may have several lines, separated by CR LF. Lengths are in layout
// units, times in milliseconds.
class clsToolTip : public QObject
{
    Q_OBJECT

public:
    enum Delay { Automatic, Reshow, Autopop, Initial }; // the automatic one sets the other three
    enum Side { Left, Top, Right, Bottom };

    clsToolTip();
    ~clsToolTip() override;

    // Makes the tip's window unless there is one. `parent` owns it if this object does not go first.
    // Returns whether there is one.
    bool Create(QWidget* parent);

    // Gives `control` a text. Returns false, and changes nothing, before Create, for a control that has its
    // text already and for one that can have none.
    bool AddTool(QWidget* control, const QString& text = {});
    void RemoveTool(QWidget* control);
    bool HasToolTip(const QWidget* control) const { return m_texts.contains(control); }
    int ToolCount() const { return static_cast<int>(m_texts.size()); }

    // The text as it is shown; empty when the control was not added. Setting it then changes nothing.
    QString ToolText(const QWidget* control) const;
    void setToolText(QWidget* control, const QString& text);

    // Of `which` and `side` the lower two bits count.
    int DelayTime(int which) const;
    void setDelayTime(int which, int milliseconds);
    int Margin(int side) const;
    void setMargin(int side, int margin);

    // Longer lines wrap; negative: none does.
    int MaxTipWidth() const { return m_maxTipWidth; }
    void setMaxTipWidth(int width) { m_maxTipWidth = width; }

    // The system's until they are set.
    QColor BackColor() const;
    void setBackColor(const QColor& colour) { m_backColor = colour; }
    QColor ForeColor() const;
    void setForeColor(const QColor& colour) { m_foreColor = colour; }

    // While it is to be shown and not empty, it becomes the first line of every text that is stored.
    // Setting it also has it shown.
    QString ToolTipHeader() const { return m_header; }
    void setToolTipHeader(const QString& header);
    bool ToolTipHeaderShow() const { return m_headerShow; }
    void setToolTipHeaderShow(bool show) { m_headerShow = show; }

    // The tip's window; 0 before Create.
    quintptr hWnd() const;
    quintptr ToolTipHandle() const { return hWnd(); }

    // Whether a control can have a text: labels, pictures and frames cannot.
    static bool fIsWindow(const QWidget* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void store(QWidget* control, const QString& text);
    void enter(QWidget* control);
    void leave();
    void showTip();
    void hideTip();
    bool isTipShown() const;

    QHash<const QObject*, QString> m_texts;
    QPointer<QLabel> m_tip;
    QWidget* m_under = nullptr; // the control under the pointer
    QTimer m_untilShown, m_untilHidden;
    QTimer m_sinceTip; // runs while a tip that has just gone makes the next one a further one
    std::array<int, 4> m_delays{};
    std::array<int, 4> m_margins{};
    int m_maxTipWidth = -1;
    QColor m_backColor, m_foreColor;
    QString m_header;
    bool m_headerShow = false;
};

// Makes the tip's window with the widths and delays that all windows use, and without a header.
void SetUpToolTips(clsToolTip& toolTips, QWidget* window);
