#include "tools/VYKplay/ConsoleServices.h"

int ConsolePrompts::MsgboxPos(const QString& text, int style, const QString& title)
{
    if (!title.trimmed().isEmpty())
        m_stream << title.trimmed() << ": ";
    m_stream << text.simplified() << Qt::endl;
    constexpr int buttonMask = 7;
    switch (style & buttonMask) {
    case Msg::YesNo:
    case Msg::YesNoCancel:
        return Msg::ResultNo;
    case Msg::OkCancel:
        return Msg::ResultCancel;
    default:
        return Msg::ResultOk;
    }
}
