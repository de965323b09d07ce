#pragma once

#include "app/Controls.h"

// What the option controls show at one moment, to compare it or to go back to it. The lists of games,
// files, maps and savegames are not part of it.
class ControlStates
{
public:
    explicit ControlStates(const Controls& controls);

    // Everything as it was; runs no handler.
    void restore(Controls& controls) const;

    // The controls that show something else there, with both states: "chkMain_0: ... -> ...". One that is
    // hidden in both shows nothing.
    QStringList differences(const ControlStates& later) const;

private:
    struct State
    {
        QString name;
        QString caption;
        QString text;
        QString toolTip;
        bool enabled;
        bool visible;
        Colour colour;
        int value; // a check box's, 1 for the selected button, a list's entry; 0 for the others

        bool operator==(const State&) const = default;
        QString description() const;
    };
    std::vector<State> m_states;
};
