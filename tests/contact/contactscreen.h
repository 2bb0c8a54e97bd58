#ifndef CONTACTSCREEN_H
#define CONTACTSCREEN_H

#include "contact.h"
#include "gridselectview.h"
#include "phonekeys.h"
#include "tail.h"

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
    /// The two-row chooser of the phonebooks, the one list that is no grid.
    ListView *chooser()
    {
        const QList<ListView *> lists = app.findChildren<ListView *>();
        for (ListView *list : lists) {
            if (!qobject_cast<GridSelectView *>(list))
                return list;
        }
        return nullptr;
    }
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
    QStringList softKeys()
    {
        QStringList texts;
        for (int i = 0; i < Tail::ButtonCount; ++i)
            texts.append(app.findChild<Tail *>()->funcButtonText(i));
        return texts;
    }
};

#endif
