#include "app/ControlStates.h"

#include "app/VisitControls.h"

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

// What a game has, not how it is started.
bool isGamesList(QStringView name)
{
    return name == u"PwadList" || name == u"PwadShowlist" || name == u"MapList" || name == u"SaveGameList";
}

// One of an array of option buttons.
template <class Buttons>
struct ButtonOf
{
    Buttons& buttons;
    int index;
};

// Calls each(name, control, value) for every single control; `value` is what the control's value is in.
template <class ControlsType, class Each>
void eachControl(ControlsType& controls, Each each)
{
    VisitControls(controls, [&each](QStringView array, int index, auto& control) {
        if (isGamesList(array))
            return;
        const QString name = index < 0 ? array.toString() : array.toString() + u'_' + QString::number(index);
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(control)>, OptionButtons>) {
            for (int i = 0; i < control.count(); ++i)
                each(name + u'_' + QString::number(i), control[i], ButtonOf{control, i});
        } else {
            each(name, control, control);
        }
    });
}

int valueOf(const CheckBox& box)
{
    return box.value();
}
int valueOf(const ListBox& list)
{
    return list.selected();
}
int valueOf(const ButtonOf<const OptionButtons>& button)
{
    return button.buttons.selected() == button.index ? 1 : 0;
}
int valueOf(const Control&)
{
    return 0;
}

void setValue(CheckBox& box, int value)
{
    box.startAs(value);
}
void setValue(ListBox& list, int value)
{
    list.startAs(value);
}
void setValue(const ButtonOf<OptionButtons>& button, int value)
{
    if (value == 1)
        button.buttons.startAs(button.index);
}
void setValue(Control&, int) {}

} // namespace

ControlStates::ControlStates(const Controls& controls)
{
    eachControl(controls, [this](const QString& name, const Control& control, const auto& holder) {
        m_states.push_back({name, control.caption, control.text, control.toolTip, control.enabled,
                            control.visible, control.colour, valueOf(holder)});
    });
}

void ControlStates::restore(Controls& controls) const
{
    auto state = m_states.begin();
    eachControl(controls, [&state](const QString&, Control& control, auto&& holder) {
        control.caption = state->caption;
        control.text = state->text;
        control.toolTip = state->toolTip;
        control.enabled = state->enabled;
        control.visible = state->visible;
        control.colour = state->colour;
        setValue(holder, state->value);
        ++state;
    });
}

QStringList ControlStates::differences(const ControlStates& later) const
{
    QStringList different;
    for (size_t i = 0; i < m_states.size(); ++i)
        if (m_states[i] != later.m_states[i] && (m_states[i].visible || later.m_states[i].visible))
            different << m_states[i].name + u": "_s + m_states[i].description() + u" -> "_s +
                             later.m_states[i].description();
    return different;
}

QString ControlStates::State::description() const
{
    return u"%1%2%3%4 '%5' '%6'"_s.arg(value).arg(
        enabled ? u""_s : u" greyed"_s, visible ? u""_s : u" hidden"_s,
        colour == Colour::Accent ? u" accent"_s : u""_s, caption, text);
}
