#pragma once

// While this lives, the console that the program was started in, if any, shows what it prints as UTF-8.
class Utf8Console
{
public:
    Utf8Console();
    ~Utf8Console();
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;

private:
    unsigned int m_before; // the console's character set, which others in it go on with
};
