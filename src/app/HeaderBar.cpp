#include "app/HeaderBar.h"

#include "ui/PageBinder.h"
#include "ui/TitleView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

// A link over the dark end of the title picture.
QPushButton* link(ControlBinder& binder, Button& control, const QString& name)
{
    auto* button = new QPushButton;
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    QPalette palette = button->palette();
    palette.setColor(QPalette::ButtonText, QColor(255, 228, 216));
    button->setPalette(palette);
    binder.bind(name, control, button);
    return button;
}

} // namespace

HeaderBar::HeaderBar(TitleView* picture, Controls& controls, ControlBinder& binder, QWidget* parent)
    : QWidget(parent)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    arrange(picture, controls, binder);
    rows->addWidget(picture);
    rows->addWidget(toolsAndTabs(controls, binder));
}

void HeaderBar::arrange(TitleView* picture, Controls& controls, ControlBinder& binder)
{
    picture->setAccessibleName(u"Title picture"_s);
    auto* links = new QVBoxLayout(picture);
    links->setContentsMargins(0, 12, 16, 12);
    links->addStretch();
    links->addWidget(link(binder, controls.Home[Link::Website], u"Home_0"_s), 0, Qt::AlignRight);
    links->addWidget(link(binder, controls.Home[Link::Downloads], u"Home_3"_s), 0, Qt::AlignRight);
    links->addStretch();

    Button& title = controls.TitlePic;
    binder.bind(u"TitlePic"_s, title, picture, [picture, &title] { picture->showPicture(title.text); });
    connect(picture, &TitleView::clicked, this, [&binder, &title] { binder.run(title.clicked); });
}

QWidget* HeaderBar::toolsAndTabs(Controls& controls, ControlBinder& binder)
{
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(12, 0, 12, 0);
    row->setSpacing(4);

    PageBinder make(binder);
    for (int tool = 0; tool < static_cast<int>(Tool::TextureFolder); ++tool) // which is on a page
        row->addWidget(
            make.toolButton(NameOf(u"AuxButton"_s, tool), controls.AuxButton[static_cast<Tool>(tool)], tool));

    auto* wine = new QLabel;
    binder.bind(u"WineImage"_s, controls.WineImage, wine);
    row->addWidget(wine);
    row->addStretch();

    QList<QAbstractButton*> tabs;
    for (int i = 0; i < controls.OptionTabs.count(); ++i) {
        auto* tab = new QPushButton;
        tab->setCheckable(true);
        tab->setMinimumWidth(96);
        tab->setFocusPolicy(Qt::TabFocus); // a click leaves no focus mark
        tabs << tab;
        row->addWidget(tab);
    }
    binder.bind(u"OptionTabs"_s, controls.OptionTabs, tabs);
    return bar;
}
