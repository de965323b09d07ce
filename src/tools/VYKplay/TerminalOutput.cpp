#include "tools/VYKplay/TerminalOutput.h"

TerminalOutput::TerminalOutput(std::FILE* stream) : m_stream(stream)
{
    open(WriteOnly);
}

qint64 TerminalOutput::writeData(const char* bytes, qint64 size)
{
    constexpr unsigned char blank = 0x20, rubout = 0x7F, lastUpperControl = 0x9F;
    constexpr char upperControls = '\xC2'; // the first byte of U+0080 to U+00BF
    QByteArray shown(bytes, size);
    for (char& byte : shown) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isControl =
            (code < blank && byte != '\n' && byte != '\t' && byte != '\r') || code == rubout;
        const bool isUpper = m_before == upperControls && code <= lastUpperControl;
        m_before = byte;
        if (isControl)
            byte = '?';
        else if (isUpper)
            byte = '\xBF'; // an upside-down question mark: the byte before stays
    }
    const auto written = std::fwrite(shown.constData(), 1, static_cast<size_t>(size), m_stream);
    std::fflush(m_stream);
    return static_cast<qint64>(written);
}
