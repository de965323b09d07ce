#include "state/Controls.h"

#include "state/ControlTable.h"
#include "state/OptionTable.h"

using namespace Qt::StringLiterals;

Controls::Controls()
{
    for (const OptionRow& row : OptionTable()) {
        if (!row.caption)
            continue;
        ControlOf(row, *this)->caption = QString::fromUtf16(row.caption);
        if (const auto* check = std::get_if<CheckMirror>(&row.mirror))
            check->of(*this).startAs(row.value);
    }
    for (const ControlRow& row : ControlTable())
        row.of(*this).caption = QString::fromUtf16(row.caption);

    // What has no meaning to this version of the engine, or no place in the window.
    for (Control* unused : std::initializer_list<Control*>{
             &chkVYKOpts[VYKOpts::Spare], &chkSound[Sound::Spare7], &chkSound[Sound::Spare8],
             &chkGraphics[Graphics::Spare0], &chkGraphics[Graphics::Spare1], &chkEffects[Effects::Spare],
             &chkEffects[Effects::Splashes], &ChkModelOpts[ModelOpts::Unused], &ChkCM, &chkAutoSelect})
        unused->visible = false;

    Sep3.isSeparator = sep1.isSeparator = true;
    for (MenuItem& game : mcAutoSelect)
        mcAuto.items.push_back(&game);

    for (const QString& channels : {u"64"_s, u"128"_s})
        cbChannels.add(channels);
    for (int level = 0; level <= 4; ++level)
        cbScaler.add(QString::number(level));
    SkillsLevel[SkillList::Advanced].add(u" Start game from New"_s);
    SkillsLevel[SkillList::Basic].add(u"Start game from New"_s);
    for (const QString& skill : {u"1 - I'm too young to die"_s, u"2 - Hey, not too rough"_s,
                                 u"3 - Hurt me plenty"_s, u"4 - Ultra-Violence"_s, u"5 - NIGHTMARE"_s})
        for (ListBox& list : SkillsLevel)
            list.add(skill);

    LaunchButton.colour = Colour::Accent;
}
