#include "app/SettingsControls.h"

#include "app/SettingsTable.h"

namespace {

constexpr int lightLevels = 256;
constexpr int usualLightLevel = 200;

void readRow(const SettingRow& row, Settings& settings, Controls& controls)
{
    if (const auto* check = std::get_if<CheckMirror>(&row.mirror))
        settings.*std::get<bool Settings::*>(row.member) = check->box(controls).ticked();
    else if (const auto* list = std::get_if<DropDownText>(&row.mirror))
        settings.*std::get<int Settings::*>(row.member) =
            list->list(controls).currentText().trimmed().toInt();
    else if (const auto* index = std::get_if<DropDownIndex>(&row.mirror))
        settings.*std::get<int Settings::*>(row.member) = index->list(controls).selected();
    else if (const auto* buttons = std::get_if<ButtonsMirror>(&row.mirror))
        settings.*std::get<int Settings::*>(row.member) = buttons->buttons(controls).selected();
    else if (const auto* text = std::get_if<TextMirror>(&row.mirror)) {
        if (const auto* number = std::get_if<int Settings::*>(&row.member))
            settings.** number = text->box(controls).number();
        else
            settings.*std::get<QString Settings::*>(row.member) = text->box(controls).text;
    }
}

void applyRow(const SettingRow& row, const Settings& loaded, Controls& controls)
{
    if (const auto* check = std::get_if<CheckMirror>(&row.mirror))
        check->box(controls).setTicked(loaded.*std::get<bool Settings::*>(row.member));
    else if (const auto* shown = std::get_if<ShownByCheck>(&row.mirror))
        shown->box(controls).setTicked(loaded.*std::get<bool Settings::*>(row.member));
    else if (const auto* list = std::get_if<DropDownText>(&row.mirror))
        list->list(controls).setCurrentText(QString::number(loaded.*std::get<int Settings::*>(row.member)));
    else if (const auto* index = std::get_if<DropDownIndex>(&row.mirror))
        index->list(controls).select(loaded.*std::get<int Settings::*>(row.member));
    else if (const auto* buttons = std::get_if<ButtonsMirror>(&row.mirror))
        buttons->buttons(controls).select(loaded.*std::get<int Settings::*>(row.member));
    else if (const auto* text = std::get_if<TextMirror>(&row.mirror)) {
        if (const auto* number = std::get_if<int Settings::*>(&row.member))
            text->box(controls).text = QString::number(loaded.**number);
        else
            text->box(controls).text = loaded.*std::get<QString Settings::*>(row.member);
    }
}

} // namespace

void ReadControlsToSettings(Settings& settings, Controls& controls)
{
    for (const SettingRow& row : SettingsTable())
        readRow(row, settings, controls);
}

void ApplySettingsToControls(Settings& settings, Controls& controls)
{
    if (settings.LightLevel >= lightLevels)
        settings.LightLevel = usualLightLevel;
    const Settings loaded = settings;
    ReadControlsToSettings(settings, controls); // the handlers see what is shown, not what is still to come
    for (const SettingRow& row : SettingsTable())
        applyRow(row, loaded, controls);
    ReadControlsToSettings(settings, controls);
}
