#include "screenreport.h"

#include "baseappinterface.h"
#include "basewidget.h"
#include "gridselectview.h"
#include "imagebutton.h"
#include "listview.h"
#include "messageboxbase.h"
#include "selectpopup.h"
#include "status.h"
#include "tail.h"
#include "toast.h"
#include "toastlog.h"
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

/// The texts of those buttons that show.
QJsonArray buttonTexts(const QList<ImageButton *> &buttons)
{
    QJsonArray texts;
    for (ImageButton *button : buttons) {
        if (!button->isHidden())
            texts.append(button->text());
    }
    return texts;
}

QJsonObject boxReport(MessageBoxBase *box)
{
    const QString lines = box->subMessage().isEmpty() ? box->message() : box->message() + '\n' + box->subMessage();
    return {{"title", box->getTitle()},
            {"message", lines},
            {"buttons", buttonTexts({box->additionalButton(), box->okButton(), box->cancelButton()})},
            {"rows", QJsonArray()},
            {"selected", -1}};
}

QJsonObject listPopupReport(SelectPopupBase *popup)
{
    auto *list = popup->findChild<ListView *>();
    return {{"title", popup->contentsTitle()},
            {"message", QString()},
            {"buttons", buttonTexts({popup->nextButton(), popup->okButton(), popup->cancelButton()})},
            {"rows", rowTexts(list)},
            {"selected", list->selectedIdx()}};
}

/// The topmost window above the screen, as far as it is a box or a popup.
QJsonValue popupReport(const WindowStack &windows, const BaseWidget *screen)
{
    const QList<QWidget *> stack = windows.windows();
    for (int i = stack.size() - 1; i >= 0 && stack.at(i) != screen; --i) {
        QJsonObject report;
        if (auto *box = qobject_cast<MessageBoxBase *>(stack.at(i)))
            report = boxReport(box);
        else if (auto *popup = qobject_cast<SelectPopupBase *>(stack.at(i)))
            report = listPopupReport(popup);
        else
            continue;
        report["class"] = className(stack.at(i));
        return report;
    }
    return QJsonValue::Null;
}

QJsonValue toastReport()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *toast = qobject_cast<Toast *>(widget);
        if (toast && toast->isVisible())
            return toast->message();
    }
    return QJsonValue::Null;
}

}

QJsonObject screenReport(const WindowStack &windows, Status *status, const ToastLog &toasts)
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
        {"popup", popupReport(windows, screen)},
        {"toast", toastReport()},
        {"toasts", toasts.texts()},
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
