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

    // The names of the controls that show something else now, with both states: "chkMain_0: ... -> ...".
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
        int value; // a check box's, the selected button or entry; 0 for the others

        bool operator==(const State&) const = default;
        QString description() const;
    };
    std::vector<State> m_states;
};
