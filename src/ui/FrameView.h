#pragma once

#include <QGroupBox>

// A frame with a title. Greying it greys the title alone: what is inside keeps its own look and reaction.
class FrameView : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

    bool isGreyed() const { return m_greyed; }
    void setGreyed(bool greyed);

protected:
    void initStyleOption(QStyleOptionGroupBox* option) const override;

private:
    bool m_greyed = false;
};
