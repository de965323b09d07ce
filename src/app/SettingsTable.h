#pragma once

#include "app/Controls.h"
#include "app/Settings.h"

#include <span>
#include <variant>

// How a line of config.vyk is written.
enum class LineKind {
    Text,       // the whole line
    Number,     // 16 bits, signed
    LongNumber, // 32 bits, signed
    Flag,       // 1 or 0
};

using SettingMember = std::variant<bool Settings::*, int Settings::*, QString Settings::*>;

// The control that shows a setting, found in the window's controls.
struct NoMirror
{
};
struct CheckMirror
{
    CheckBox& (*box)(Controls&);
};
struct ShownByCheck // the box's handler alone keeps the setting in step; only shown from here
{
    CheckBox& (*box)(Controls&);
};
struct TextMirror
{
    TextBox& (*box)(Controls&);
};
struct DropDownText // the drop-down list's text as a number
{
    ListBox& (*list)(Controls&);
};
struct DropDownIndex
{
    ListBox& (*list)(Controls&);
};
struct ButtonsMirror
{
    OptionButtons& (*buttons)(Controls&);
};
using Mirror =
    std::variant<NoMirror, CheckMirror, ShownByCheck, TextMirror, DropDownText, DropDownIndex, ButtonsMirror>;

using Default = std::variant<bool, int, const char16_t*>;

struct SettingRow
{
    int line; // counted from 1
    LineKind kind;
    SettingMember member;
    Default start;
    Mirror mirror;
};

// All lines of config.vyk in order. The last two are absent under "/WINE".
std::span<const SettingRow> SettingsTable();
constexpr int WinePositionLines = 2;
