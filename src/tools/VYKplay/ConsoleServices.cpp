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

QString ConsolePrompts::askPassword(const QString& text)
{
    m_stream << text << ' ' << Qt::flush;
    return m_input.readLine();
}

std::unique_ptr<Progress> ConsolePrompts::showProgress(const QString&)
{
    struct Silent : Progress // a terminal's player cancels by ending the program
    {
        bool advance(qint64, qint64) override { return true; }
    };
    return std::make_unique<Silent>();
}
