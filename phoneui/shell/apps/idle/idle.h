#ifndef IDLE_H
#define IDLE_H

#include "baseappinterface.h"
#include "basewidget.h"
#include "favourite.h"
#include "languagechoice.h"

#include <QTimer>

/// The home screen: the clock, the date, the favourite to call, and the way into the applications. It is always
/// there below the others.
class Idle : public BaseWidget, public BaseAppInterface
{
    Q_OBJECT
    Q_INTERFACES(BaseAppInterface)

public:
    Idle();

    bool start(QWidget *parent, void *data) override;
    void end() override;
    void receiveMsg(const QString &command, const QByteArray &payload) override;

protected:
    void setupStatus() override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Command;
    struct Way;

    /// Where a soft key leads at the moment.
    const Way &wayOf(int key) const;
    void setupTail();
    void softKeyClicked(int idx);
    void turnWays();
    void openDirectory();
    void callFavourite();
    void chooseLanguage();

    void raiseStatus(const QStringList &items);
    void lowerStatus(const QStringList &items);
    void changedLanguage(const QStringList &items);
    void searchContactResult(const QStringList &items);
    void contactUpdatedNumber(const QStringList &items);
    void contactDeletedNumber(const QStringList &items);
    void contactAllDelete(const QStringList &items);

    void paintClock(QPainter *painter);
    void paintFavourite(QPainter *painter);

    QTimer m_clockTimer;
    Favourite m_favourite;
    LanguageChoice m_languageChoice;
    bool m_hasDirectory = false; ///< the phone is set up with a directory server
    bool m_furtherWays = false; ///< the second set of soft keys shows
    bool m_okPressed = false; ///< here, and not in what closed above
    bool m_hashPressed = false; ///< the same
};

#endif
