#ifndef CONTACTSCREEN_H
#define CONTACTSCREEN_H

#include "contact.h"
#include "gridselectview.h"
#include "phonekeys.h"

#include <QTest>

/// The contact application as a person sees it.
class ContactScreen
{
public:
    Contact app;

    bool open()
    {
        app.start(nullptr, nullptr);
        return PhoneKeys::waitUntilActive(&app);
    }
    GridSelectView *grid() { return app.findChild<GridSelectView *>(); }
    QStringList names()
    {
        QStringList texts;
        for (int i = 0; i < grid()->itemSize(); ++i)
            texts.append(grid()->item(i)->text());
        return texts;
    }
    QString selectedName()
    {
        ListViewItem *cell = grid()->item(grid()->selectedIdx());
        return cell ? cell->text() : QString();
    }
};

#endif
