#pragma once

#include "state/Controls.h"
#include "state/Settings.h"

#include <span>
#include <variant>

// Every setting that config.vyk stores, and the option that shows it. A new option is one row here, one
// switch in the launch's table, and one place on a page.

// How a line of config.vyk is written.
enum class LineKind {
    Text,       // the whole line
    Number,     // 16 bits, signed
    LongNumber, // 32 bits, signed
    Flag,       // 1 or 0
};

using SettingMember = std::variant<bool Settings::*, int Settings::*, QString Settings::*>;

// The control that shows a setting, found in the window's controls, and how.
struct NoMirror
{
};
struct CheckMirror
{
    CheckBox& (*of)(Controls&);
};
struct TextMirror
{
    TextBox& (*of)(Controls&);
};
struct DropDownText // the drop-down list's text as a number
{
    ListBox& (*of)(Controls&);
};
struct DropDownIndex
{
    ListBox& (*of)(Controls&);
};
struct ButtonsMirror
{
    OptionButtons& (*of)(Controls&);
};
using Mirror = std::variant<NoMirror, CheckMirror, TextMirror, DropDownText, DropDownIndex, ButtonsMirror>;

using Default = std::variant<bool, int, const char16_t*>;

struct OptionRow
{
    int line; // of config.vyk, counted from 1
    LineKind kind;
    SettingMember member;
    Default start; // without a line
    Mirror mirror = NoMirror{};
    const char16_t* caption = nullptr;
    int value = 0; // of a check box, until the settings are shown
    const char16_t* tip = nullptr;
    const char16_t* engineSwitch = nullptr; // what the option becomes on the engine's command line
};

// All lines of config.vyk in order. The last two are absent under "/WINE".
std::span<const OptionRow> OptionTable();
constexpr int WinePositionLines = 2;

// Every setting's default.
Settings DefaultSettings();

// The control of a row; null for a row without one, and for option buttons.
Control* ControlOf(const OptionRow& row, Controls& controls);
