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

// Calls each(name, control, value) for every single control; `value` is the check box, list or array of
// option buttons that the control's value is in, else the control itself.
template <class ControlsType, class Each>
void eachControl(ControlsType& controls, Each each)
{
    VisitControls(controls, [&each](QStringView array, int index, auto& control) {
        if (isGamesList(array))
            return;
        const QString name = index < 0 ? array.toString() : array.toString() + u'_' + QString::number(index);
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(control)>, OptionButtons>) {
            for (int i = 0; i < control.count(); ++i)
                each(name + u'_' + QString::number(i), control[i], control);
        } else {
            each(name, control, control);
        }
    });
}

template <class Type>
int valueOf(const Type& control)
{
    if constexpr (std::is_base_of_v<CheckBox, Type>)
        return control.value();
    else if constexpr (std::is_base_of_v<ListBox, Type> || std::is_same_v<Type, OptionButtons>)
        return control.selected();
    else
        return 0;
}

template <class Type>
void setValue(Type& control, int value)
{
    if constexpr (std::is_base_of_v<CheckBox, Type> || std::is_base_of_v<ListBox, Type> ||
                  std::is_same_v<Type, OptionButtons>)
        control.startAs(value);
}

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
    eachControl(controls, [&state](const QString&, Control& control, auto& holder) {
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
        if (m_states[i] != later.m_states[i])
            different << m_states[i].name + u": "_s + m_states[i].description() + u" -> "_s +
                             later.m_states[i].description();
    return different;
}

QString ControlStates::State::description() const
{
    return u"%1%2%3%4 '%5' '%6'"_s.arg(value)
        .arg(enabled ? u""_s : u" greyed"_s, visible ? u""_s : u" hidden"_s,
             colour == Colour::Accent ? u" accent"_s : u""_s, caption, text);
}
