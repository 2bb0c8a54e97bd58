#include "appscreen.h"

#include "core.h"
#include "listview.h"
#include "status.h"
#include "tail.h"

static constexpr QRect ListGeometry(5, 2, 374, 104);

AppScreen::AppScreen(const QString &name) : BaseWidget(nullptr), BaseAppInterface(name, nullptr)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    // It may open over an application that lets no key through to others.
    setModal(true);
}

bool AppScreen::start(QWidget *, void *)
{
    if (isVisible()) {
        end();
    } else {
        setVisible(true);
        raise();
    }
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

void AppScreen::setSoftKeys(const QStringList &texts)
{
    for (int i = 0; i < Tail::ButtonCount; ++i)
        tail->setFuncButtonText(i, texts.value(i));
}
