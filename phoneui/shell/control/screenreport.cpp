#include "screenreport.h"

#include "baseappinterface.h"
#include "basewidget.h"
#include "gridselectview.h"
#include "listview.h"
#include "status.h"
#include "tail.h"
#include "windowstack.h"

#include <QApplication>
#include <QJsonArray>
#include <QLineEdit>

namespace {

QString className(const QObject *object)
{
    return object ? QString::fromLatin1(object->metaObject()->className()) : QString();
}

/// The topmost full screen; popups may lie over it.
BaseWidget *activeScreen(const WindowStack &windows)
{
    const QList<QWidget *> stack = windows.windows();
    for (int i = stack.size() - 1; i >= 0; --i) {
        if (auto *screen = qobject_cast<BaseWidget *>(stack.at(i)))
            return screen;
    }
    return nullptr;
}

QString appOf(QWidget *widget)
{
    for (QObject *object = widget; object; object = object->parent()) {
        if (auto *app = dynamic_cast<BaseAppInterface *>(object))
            return app->appName();
    }
    return QString();
}

/// The list that the keys act on, else the first that shows.
ListView *activeList(QWidget *window)
{
    ListView *shown = nullptr;
    const QList<ListView *> lists = window->findChildren<ListView *>();
    for (ListView *list : lists) {
        if (!list->isVisible() || list->window() != window)
            continue;
        if (list->hasFocus() || list->isAncestorOf(QApplication::focusWidget()))
            return list;
        if (!shown)
            shown = list;
    }
    return shown;
}

/// The first index of the rows that show, and how many there are at most.
QPair<int, int> window(ListView *list)
{
    if (auto *grid = qobject_cast<GridSelectView *>(list))
        return {(grid->currentPage() - 1) * grid->itemCountPerPage(), grid->itemCountPerPage()};
    return {list->startIdx(), list->pageCount()};
}

QJsonArray rowTexts(ListView *list)
{
    QJsonArray rows;
    const auto shown = window(list);
    for (int i = shown.first; i < shown.first + shown.second && i < list->itemSize(); ++i) {
        if (ListViewItem *row = list->item(i))
            rows.append(row->text());
    }
    return rows;
}

QJsonArray softKeys(const BaseWidget *screen)
{
    QJsonArray texts;
    auto *tail = screen ? screen->findChild<Tail *>() : nullptr;
    for (int i = 0; i < Tail::ButtonCount; ++i)
        texts.append(tail ? tail->funcButtonText(i) : QString());
    return texts;
}

}

QJsonObject screenReport(const WindowStack &windows, Status *status)
{
    BaseWidget *screen = activeScreen(windows);
    QJsonObject report{
        {"app", appOf(screen)},
        {"screen", className(screen)},
        {"title", status ? status->title() : QString()},
        {"softkeys", softKeys(screen)},
        {"rows", QJsonArray()},
        {"selected", -1},
        {"start", 0},
        {"size", 0},
        {"edit", QJsonValue::Null},
        {"popup", QJsonValue::Null},
        {"toast", QJsonValue::Null},
        {"toasts", QJsonArray()},
        {"focus", className(QApplication::focusWidget())},
    };
    if (ListView *list = screen ? activeList(screen) : nullptr) {
        report["rows"] = rowTexts(list);
        report["selected"] = list->selectedIdx();
        report["start"] = window(list).first;
        report["size"] = list->itemSize();
    }
    if (auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        report["edit"] = edit->text();
    return report;
}
