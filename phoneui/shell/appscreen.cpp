#include "appscreen.h"

#include "core.h"
#include "listview.h"
#include "status.h"
#include "tail.h"

#include <QApplication>

static constexpr QRect ListGeometry(5, 2, 374, 104);

AppScreen::AppScreen(const QString &name) : BaseWidget(nullptr), BaseAppInterface(name, nullptr)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    // It may come up over a screen that is modal.
    setModal(true);
}

bool AppScreen::start(QWidget *, void *)
{
    for (const QWidget *window = QApplication::activeWindow(); window; window = window->parentWidget()) {
        if (window == this) {
            end();
            return true;
        }
    }
    comeToFront();
    return true;
}

void AppScreen::end()
{
    close();
}

ListView *AppScreen::addList(BaseWidget *screen)
{
    auto *list = new ListView(screen);
    list->setGeometry(ListGeometry);
    screen->setFocusProxy(list);
    return list;
}

void AppScreen::setupStatus()
{
    theCore->setCurrentActivateApp(appName());
    if (status)
        status->setTitle(title());
}

void AppScreen::showEvent(QShowEvent *event)
{
    BaseWidget::showEvent(event);
    updateStatus();
}

void AppScreen::setSoftKeys(const QStringList &texts)
{
    for (int i = 0; i < Tail::ButtonCount; ++i)
        tail->setFuncButtonText(i, texts.value(i));
}
