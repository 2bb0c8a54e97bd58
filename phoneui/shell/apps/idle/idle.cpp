#include "idle.h"

#include "callmanager.h"
#include "conffile.h"
#include "control/apppayload.h"
#include "core.h"
#include "dialer.h"
#include "phonekey.h"
#include "rowpainting.h"
#include "settingsfile.h"
#include "status.h"
#include "tail.h"

#include <QDataStream>
#include <QDateTime>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>

#include <array>

namespace {

constexpr int ClockSize = 60, DateSize = 20, FavouriteSize = 18;
constexpr QRect ClockRect(0, 8, 384, 60), DateRect(0, 68, 384, 28);
// With a favourite below, clock and date move closer.
constexpr QRect UpperClockRect(0, 0, 384, 52), UpperDateRect(0, 51, 384, 24);
constexpr int FavouriteTop = 78, FavouriteHeight = 24, FavouriteMostWidth = 340;

constexpr int CallKey = 2; // during a call, the way back to it takes the place of another

bool hasDirectoryServer()
{
    return !SettingsFile(getConfFilePath("CONFIG", "PINFO_CONF")).value("Directory_svc/Addr").isEmpty();
}

bool isOk(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}

/// A soft key and the application that it launches.
struct Idle::Way
{
    const char *label;
    const char *app;
    void (Idle::*run)() = nullptr; ///< for a way that is no mere launch
};

Idle::Idle()
    : BaseWidget(nullptr), BaseAppInterface("idle", nullptr), m_favourite(theCore->home().path("config/idle.ini"))
{
    setObjectName("idle");
    setFocusPolicy(Qt::StrongFocus);
    setupTail();
    connect(tail, &Tail::clicked, this, &Idle::softKeyClicked);
    connect(theCore->callManager(), &CallManager::callStateChanged, this, &Idle::setupTail);
    // The clock is right within a second of the minute's turn.
    m_clockTimer.setInterval(1000);
    connect(&m_clockTimer, &QTimer::timeout, this, QOverload<>::of(&QWidget::update));
}

bool Idle::start(QWidget *, void *)
{
    setVisible(true);
    raise();
    return true;
}

void Idle::end()
{
    setVisible(false);
}

struct Idle::Command
{
    const char *text;
    void (Idle::*handler)(const QStringList &items);
};

void Idle::receiveMsg(const QString &command, const QByteArray &payload)
{
    static const Command commands[] = {
        {"raiseStatus()", &Idle::raiseStatus},
        {"lowerStatus()", &Idle::lowerStatus},
        {"changedLanguage()", &Idle::changedLanguage},
        {"searchContactResult(str,str)", &Idle::searchContactResult},
        {"contactUpdatedNumber(str,str)", &Idle::contactUpdatedNumber},
        {"contactDeletedNumber(str)", &Idle::contactDeletedNumber},
        {"contactAllDelete()", &Idle::contactAllDelete},
    };
    for (const Command &known : commands) {
        if (command != QLatin1String(known.text))
            continue;
        QStringList items;
        const QVariantList decoded = AppPayload::decode(command, payload);
        for (const QVariant &item : decoded)
            items.append(item.toString());
        (this->*known.handler)(items);
        update();
    }
}

void Idle::raiseStatus(const QStringList &)
{
    if (status)
        status->setStatusIcon_isCall(true);
}

void Idle::lowerStatus(const QStringList &)
{
    if (status)
        status->setStatusIcon_isCall(false);
}

void Idle::changedLanguage(const QStringList &)
{
    setupTail();
    if (isActiveWindow())
        setupStatus();
}

void Idle::searchContactResult(const QStringList &items)
{
    m_favourite.set(items.value(0), items.value(1));
}

void Idle::contactUpdatedNumber(const QStringList &items)
{
    if (items.size() == 2)
        m_favourite.numberUpdated(items.first(), items.last());
}

void Idle::contactDeletedNumber(const QStringList &items)
{
    m_favourite.numberDeleted(items.value(0));
}

void Idle::contactAllDelete(const QStringList &)
{
    m_favourite.clear();
}

void Idle::setupStatus()
{
    theCore->setCurrentActivateApp(appName());
    if (status)
        status->setTitle(tr("Home"));
    m_hasDirectory = hasDirectoryServer();
    m_furtherWays = false;
    setupTail();
}

const Idle::Way &Idle::wayOf(int key) const
{
    using Ways = std::array<Way, Tail::ButtonCount>;
    static constexpr Way contacts{QT_TR_NOOP("Contacts"), "contact"}, history{QT_TR_NOOP("History"), "history"},
        messages{QT_TR_NOOP("Messages"), "message"}, keys{QT_TR_NOOP("Keys"), "aom"},
        call{QT_TR_NOOP("Call"), "call"}, nowhere{"", nullptr};
    static constexpr Way directory{QT_TR_NOOP("Directory"), nullptr, &Idle::openDirectory},
        further{QT_TR_NOOP(">"), nullptr, &Idle::turnWays};
    static constexpr Ways plain{contacts, history, messages, keys};
    // With a directory there is one way more than keys.
    static constexpr Ways first{contacts, history, messages, further}, second{directory, keys, nowhere, further};

    if (key == CallKey && theCore->callManager()->callState() != "IDLE")
        return call;
    const Ways &shown = !m_hasDirectory ? plain : m_furtherWays ? second : first;
    return shown[key];
}

void Idle::setupTail()
{
    for (int key = 0; key < Tail::ButtonCount; ++key)
        tail->setFuncButtonText(key, tr(wayOf(key).label));
}

void Idle::turnWays()
{
    m_furtherWays = !m_furtherWays;
    setupTail();
}

void Idle::softKeyClicked(int idx)
{
    if (idx < 0 || idx >= Tail::ButtonCount)
        return;
    const Way way = wayOf(idx);
    if (way.run)
        (this->*way.run)();
    else if (way.app)
        theCore->launch(way.app, nullptr);
}

/// The search closes the contacts with itself, so they are there below it.
void Idle::openDirectory()
{
    if (!theCore->isVisibleContact())
        theCore->launch("contact", nullptr);
    QByteArray noWord;
    QDataStream stream(&noWord, QIODevice::WriteOnly);
    stream << QString("");
    theCore->sendAppMsg("contact", "viewContactSearchDir(str)", noWord);
}

void Idle::callFavourite()
{
    if (m_favourite.isSet())
        dial(m_favourite.number(), m_favourite.name());
}

void Idle::chooseLanguage()
{
    if (status)
        status->setTitle(tr("Language"));
    m_languageChoice.run(this);
}

void Idle::keyPressEvent(QKeyEvent *event)
{
    if (isOk(event->key()))
        m_okPressed = true;
    else if (event->key() == PhoneKey::Hash)
        m_hashPressed = true;
    else
        BaseWidget::keyPressEvent(event);
}

void Idle::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        // There is nothing below the home screen to go back to.
        event->accept();
    } else if (isOk(event->key())) {
        if (m_okPressed)
            callFavourite();
        m_okPressed = false;
    } else if (event->key() == PhoneKey::Hash && m_hashPressed) {
        m_hashPressed = false;
        chooseLanguage();
    } else {
        BaseWidget::keyReleaseEvent(event);
    }
}

void Idle::showEvent(QShowEvent *event)
{
    BaseWidget::showEvent(event);
    updateStatus();
    m_clockTimer.start();
}

void Idle::hideEvent(QHideEvent *event)
{
    m_clockTimer.stop();
    BaseWidget::hideEvent(event);
}

void Idle::paintEvent(QPaintEvent *event)
{
    BaseWidget::paintEvent(event);
    QPainter painter(this);
    paintClock(&painter);
    if (m_favourite.isSet())
        paintFavourite(&painter);
}

void Idle::paintClock(QPainter *painter)
{
    const QDateTime now = QDateTime::currentDateTime();
    const bool upper = m_favourite.isSet();

    QFont clock = font();
    clock.setPointSize(ClockSize);
    clock.setWeight(QFont::Light);
    painter->setFont(clock);
    painter->setPen(QColor(0x22, 0x22, 0x22));
    painter->drawText(upper ? UpperClockRect : ClockRect, Qt::AlignCenter,
                      now.toString(theCore->use24HourTime() ? "hh:mm" : "h:mm AP"));

    QFont date = font();
    date.setPointSize(DateSize);
    painter->setFont(date);
    painter->setPen(QColor(0x55, 0x55, 0x55));
    painter->drawText(upper ? UpperDateRect : DateRect, Qt::AlignCenter,
                      QLocale(theCore->languageName()).toString(now.date(), QLocale::LongFormat));
}

void Idle::paintFavourite(QPainter *painter)
{
    static constexpr int Side = 12, Gap = 6;
    static const QColor ground(0x22, 0x22, 0x22);

    QFont small = font();
    small.setPointSize(FavouriteSize);
    painter->setFont(small);
    const QPixmap sign
        = RowPainting::inked(QPixmap(QStringLiteral(":/ui/images/title/status_call.png")), Qt::white);
    const int aroundText = 2 * Side + sign.width() + Gap;
    const QString text = painter->fontMetrics().elidedText(m_favourite.name().isEmpty() ? m_favourite.number()
                                                                                        : m_favourite.name(),
                                                           Qt::ElideRight, FavouriteMostWidth - aroundText);
    const int plateWidth = aroundText + painter->fontMetrics().horizontalAdvance(text);
    const QRect plate((width() - plateWidth) / 2, FavouriteTop, plateWidth, FavouriteHeight);

    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ground);
    painter->drawRoundedRect(plate, FavouriteHeight / 2.0, FavouriteHeight / 2.0);
    RowPainting::drawCentred(painter, plate, plate.left() + Side, sign);
    painter->setPen(Qt::white);
    painter->drawText(plate.adjusted(Side + sign.width() + Gap, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text);
}
