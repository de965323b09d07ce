#include "catalogue/GamesPage.h"

#include "ui/FilterView.h"
#include "ui/HeadingView.h"
#include "ui/ListView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

QVBoxLayout* newColumn()
{
    constexpr int underHeading = 4;
    auto* column = new QVBoxLayout;
    column->setSpacing(underHeading);
    return column;
}

QLabel* heading(Controls& controls, ControlBinder& binder, Heading which)
{
    Button& control = controls.Auto[which];
    auto* label = new HeadingView;
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setMinimumHeight(20);
    binder.bind(NameOf(u"Auto"_s, static_cast<int>(which)), control, label);
    QObject::connect(label, &HeadingView::clicked, &binder, [&binder, &control] {
        if (control.clicked)
            binder.run(control.clicked);
    });
    return label;
}

// The heading of the games list with the switch to the scripted maps beside it.
QBoxLayout* gamesHeading(Controls& controls, ControlBinder& binder)
{
    auto* scriptedMaps = new QToolButton;
    binder.bind(u"ImageCM"_s, controls.ImageCM, scriptedMaps);
    auto* row = new QHBoxLayout;
    row->addWidget(heading(controls, binder, Heading::Games), 1);
    row->addWidget(scriptedMaps);
    return row;
}

ListView* list(ControlBinder& binder, ListBox& control, const QString& objectName,
               const QString& accessibleName, const QString& whyEmpty, const QString& whyNoneInSight = {})
{
    auto* view = new ListView(whyEmpty, whyNoneInSight);
    view->setAccessibleName(accessibleName);
    binder.bind(objectName, control, view);
    return view;
}

} // namespace

GamesPage::GamesPage(Controls& controls, ControlBinder& binder, QWidget* parent) : QWidget(parent)
{
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(12);
    columns->addLayout(gamesColumn(controls, binder), 5);
    columns->addLayout(filesColumn(controls, binder), 4);
    columns->addLayout(mapsColumn(controls, binder), 2);
}

QBoxLayout* GamesPage::gamesColumn(Controls& controls, ControlBinder& binder)
{
    auto* views = new QHBoxLayout;
    QList<QAbstractButton*> buttons;
    for (int i = 0; i < controls.OptionUdir.count(); ++i) {
        buttons << new QRadioButton;
        views->addWidget(buttons.last());
    }
    views->addStretch();
    binder.bind(u"OptionUdir"_s, controls.OptionUdir, buttons);

    ListView* games =
        list(binder, controls.PwadList, u"PwadList"_s, u"Games"_s, u"No games found"_s, u"No game matches"_s);
    m_filter = new FilterView(u"Find a game"_s, games);
    binder.bind(u"edFilter"_s, controls.edFilter, m_filter);

    auto* column = newColumn();
    column->addLayout(views);
    column->addLayout(gamesHeading(controls, binder));
    column->addWidget(m_filter);
    column->addWidget(games);
    return column;
}

void GamesPage::findGame()
{
    m_filter->setFocus();
    m_filter->selectAll();
}

QBoxLayout* GamesPage::filesColumn(Controls& controls, ControlBinder& binder)
{
    ListView* files =
        list(binder, controls.PwadShowlist, u"PwadShowlist"_s, u"Game files"_s, u"No game is selected"_s);
    ListView* saves =
        list(binder, controls.SaveGameList, u"SaveGameList"_s, u"Savegames"_s, u"No savegames yet"_s);
    auto* column = newColumn();
    column->addWidget(heading(controls, binder, Heading::Files));
    column->addWidget(files);
    column->addWidget(heading(controls, binder, Heading::SaveGames));
    column->addWidget(saves);
    connect(&binder, &ControlBinder::written, this, [&controls, column, files, saves] {
        const bool tall = controls.MainForm.saveGamesTall;
        column->setStretchFactor(files, tall ? 1 : 2);
        column->setStretchFactor(saves, tall ? 2 : 1);
    });
    return column;
}

QBoxLayout* GamesPage::mapsColumn(Controls& controls, ControlBinder& binder)
{
    auto* column = newColumn();
    column->addWidget(heading(controls, binder, Heading::Maps));
    column->addWidget(list(binder, controls.MapList, u"MapList"_s, u"Maps"_s, u"No maps"_s));
    return column;
}
