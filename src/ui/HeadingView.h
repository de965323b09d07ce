#pragma once

#include <QLabel>

// A heading that can be clicked.
class HeadingView : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

Q_SIGNALS:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
