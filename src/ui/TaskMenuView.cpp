#include "ui/TaskMenuView.h"

#include <QMenu>

#include <utility>

using namespace Qt::StringLiterals;

QString AsPlainCaption(const QString& caption)
{
    return QString(caption).replace(u'&', u"&&"_s);
}

namespace {

void fill(QMenu* shown, const Menu& menu, QWidget* over, const std::function<void(const MenuItem&)>& picked)
{
    bool separate = false; // there is a separator between the items above and those below
    for (const MenuItem* item : menu) {
        if (!item->visible)
            continue;
        if (item->isSeparator) {
            separate = !shown->isEmpty();
            continue;
        }
        if (std::exchange(separate, false))
            shown->addSeparator();
        if (!item->items.empty()) {
            fill(shown->addMenu(AsPlainCaption(item->caption)), item->items, over, picked);
            continue;
        }
        QAction* action = shown->addAction(AsPlainCaption(item->caption));
        action->setEnabled(item->enabled);
        // Queued: an item's task may take long, and its menu must not stand there meanwhile.
        QObject::connect(
            action, &QAction::triggered, over, [item, picked] { picked(*item); }, Qt::QueuedConnection);
    }
}

} // namespace

void PopUpTaskMenu(const Menu& menu, QWidget* over, QPoint at,
                   const std::function<void(const MenuItem&)>& picked)
{
    auto* shown = new QMenu(over);
    shown->setAccessibleName(u"Tasks"_s);
    fill(shown, menu, over, picked);
    QObject::connect(shown, &QMenu::aboutToHide, shown, &QObject::deleteLater);
    if (shown->isEmpty())
        shown->deleteLater();
    else
        shown->popup(at);
}
