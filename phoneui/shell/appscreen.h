#ifndef APPSCREEN_H
#define APPSCREEN_H

#include "baseappinterface.h"
#include "basewidget.h"

class ListView;

/// A small application of the shell's own: a screen with one list. A start while it is in front ends it.
class AppScreen : public BaseWidget, public BaseAppInterface
{
    Q_OBJECT
    Q_INTERFACES(BaseAppInterface)

public:
    explicit AppScreen(const QString &name);

    bool start(QWidget *parent, void *data) override;
    void end() override;

    /// A list of three rows over the whole width between status bar and soft keys, as all the phone's forms have.
    static ListView *addList(BaseWidget *screen);

protected:
    /// What stands on the status bar while this screen is in front.
    virtual QString title() const = 0;
    void setupStatus() override;
    void showEvent(QShowEvent *event) override;
    /// Shows the application, or the screen of it that was in front, over all others.
    virtual void comeToFront() { bringUp(); }
    /// The texts of the soft keys from the first on; an empty one leaves its key without a function.
    void setSoftKeys(const QStringList &texts);
};

#endif
