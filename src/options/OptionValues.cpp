#include "options/OptionValues.h"

#include "state/OptionTable.h"

namespace {

struct Connect
{
    const OptionRow& row;
    Settings& settings;
    Controls& controls;

    void operator()(const NoMirror&) const {}
    void operator()(const CheckMirror& mirror) const
    {
        CheckBox& box = mirror.of(controls);
        bool& setting = settings.*std::get<bool Settings::*>(row.member);
        box.clicked = [&box, &setting] { setting = box.ticked(); };
    }
    void operator()(const TextMirror& mirror) const
    {
        TextBox& box = mirror.of(controls);
        box.typed = [&box, &row = row, &settings = settings] {
            if (const auto* number = std::get_if<int Settings::*>(&row.member))
                settings.** number = box.number();
            else
                settings.*std::get<QString Settings::*>(row.member) = box.text;
        };
    }
    void operator()(const DropDownText& mirror) const
    {
        ListBox& list = mirror.of(controls);
        list.clicked = [&list, &setting = number()] { setting = list.selectedText().toInt(); };
    }
    void operator()(const DropDownIndex& mirror) const
    {
        ListBox& list = mirror.of(controls);
        list.clicked = [&list, &setting = number()] { setting = list.selected(); };
    }
    void operator()(const ButtonsMirror& mirror) const
    {
        mirror.of(controls).clicked = [&setting = number()](int index) { setting = index; };
    }

private:
    int& number() const { return settings.*std::get<int Settings::*>(row.member); }
};

struct Show
{
    const OptionRow& row;
    const Settings& settings;
    Controls& controls;

    void operator()(const NoMirror&) const {}
    void operator()(const CheckMirror& mirror) const
    {
        mirror.of(controls).startAs(settings.*std::get<bool Settings::*>(row.member) ? 1 : 0);
    }
    void operator()(const TextMirror& mirror) const
    {
        const auto* number = std::get_if<int Settings::*>(&row.member);
        mirror.of(controls).text =
            number ? QString::number(settings.**number) : settings.*std::get<QString Settings::*>(row.member);
    }
    void operator()(const DropDownText& mirror) const
    {
        mirror.of(controls).showText(QString::number(number()));
    }
    void operator()(const DropDownIndex& mirror) const { mirror.of(controls).startAs(number()); }
    void operator()(const ButtonsMirror& mirror) const { mirror.of(controls).startAs(number()); }

private:
    int number() const { return settings.*std::get<int Settings::*>(row.member); }
};

} // namespace

void ConnectOptionValues(Settings& settings, Controls& controls)
{
    for (const OptionRow& row : OptionTable())
        std::visit(Connect{row, settings, controls}, row.mirror);
}

void ShowOptionValues(const Settings& settings, Controls& controls)
{
    for (const OptionRow& row : OptionTable())
        std::visit(Show{row, settings, controls}, row.mirror);
}

void Then(CheckBox& box, std::function<void()> what)
{
    box.clicked = [first = box.clicked, what = std::move(what)] {
        first();
        what();
    };
}
