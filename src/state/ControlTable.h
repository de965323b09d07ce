#pragma once

#include "state/Controls.h"

#include <span>

// The controls that show no setting: how they are captioned when the window is built, and their tips.
struct ControlRow
{
    Control& (*of)(Controls&);
    const char16_t* caption;
    const char16_t* tip = nullptr;
};

std::span<const ControlRow> ControlTable();
