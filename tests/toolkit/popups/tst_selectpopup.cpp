#include "boxrun.h"
#include "gridselectpopup.h"
#include "imagebutton.h"
#include "soundmanager.h"
#include "soundselectpopup.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QPointer>
#include <QPropertyAnimation>
#include <QSignalSpy>

#include <memory>

using namespace PhoneKeys;

using Prepare = void (*)(SelectPopup &);
using Keys = QList<Qt::Key>;
Q_DECLARE_METATYPE(Prepare)
Q_DECLARE_METATYPE(Keys)

static QRect corners(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

static void fill(SelectPopup &popup, int rows = 6)
{
    for (int i = 0; i < rows; ++i)
        popup.addListViewItem(QString("Choice %1").arg(i));
}

static void broadcast(const char *name)
{
    emit theCore->signalBroadcast(name, QByteArray());
}

/// A popup that slides, as the popups of the phone could.
class SlidingPopup : public SelectPopup
{
public:
    explicit SlidingPopup(QWidget *parent) : SelectPopup(parent, 0) { m_useAnimation = true; }
};

class SelectPopupTest : public OverScreenTest
{
    Q_OBJECT

private slots:
    void isBuilt();
    void keysEndIt_data();
    void keysEndIt();
    void keysPressItsButtons();
    void aKeyHeldBeforeDoesNotEndIt();
    void aClickBeyondTheRowsRejects();
    void theBroadcastEndsIt();
    void theBroadcastWinsOverTheClick();
    void isRefilledWhileItsSelectionMoves();
    void closedInAnyOrder_data();
    void closedInAnyOrder();
    void deletedWhileShown_data();
    void deletedWhileShown();
    void soundsSilenceTheKeys();
    void fastCloseLeavesTheScreen_data();
    void fastCloseLeavesTheScreen();
    void slidesAreReady_data();
    void slidesAreReady();
    void theGridTurnsItsPages();

private:
    bool screenHasKeys() const
    {
        // Windows come active once the present event is done.
        return QTest::qWaitFor([&] { return m_screen->list->hasFocus(); });
    }

};

void SelectPopupTest::isBuilt()
{
    SelectPopup popup(m_screen.get(), 5);
    QCOMPARE(popup.objectName(), QString("SelectPopup"));
    QCOMPARE(popup.geometry(), corners(190, 0, 383, 160));
    QCOMPARE(popup.listView()->geometry(), corners(5, 8, 187, 129));
    QCOMPARE(popup.listView()->pageCount(), 4);
    QCOMPARE(popup.nextButton()->geometry(), corners(7, 133, 93, 157));
    QCOMPARE(popup.okButton()->geometry(), popup.nextButton()->geometry());
    QCOMPARE(popup.cancelButton()->geometry(), corners(100, 133, 186, 157));
    QCOMPARE(popup.nextButton()->text(), QString::fromUtf8("∨"));
    QCOMPARE(popup.cancelButton()->text(), QString("Cancel"));
    QVERIFY(popup.okButton()->isHidden() && popup.isModal());
    QCOMPARE(popup.selectedIdx(), -1);

    const auto slides = popup.findChildren<QPropertyAnimation *>();
    QCOMPARE(slides.at(0)->startValue().toRect(), corners(190, 160, 383, 317));
    QCOMPARE(slides.at(0)->endValue().toRect(), corners(190, 0, 383, 157));
    popup.setGeometry(100, 20, 200, 100);
    QCOMPARE(popup.geometry(), QRect(100, 20, 200, 100));
    QCOMPARE(slides.at(0)->startValue().toRect(), corners(0, 160, 199, 319));
    QCOMPARE(slides.at(0)->endValue().toRect(), corners(0, 0, 199, 159));
    QCOMPARE(slides.at(1)->startValue().toRect(), corners(0, 0, 199, 99));
    QCOMPARE(slides.at(1)->endValue().toRect(), corners(0, 100, 199, 259));
}

void SelectPopupTest::keysEndIt_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("idx");
    const auto plain = [](SelectPopup &) {};
    const auto multiple = [](SelectPopup &popup) { popup.setMultipleCheck(true); };
    const auto withOk = [](SelectPopup &popup) {
        popup.nextButton()->hide();
        popup.okButton()->show();
    };
    const auto otherKeys = [](SelectPopup &popup) {
        popup.setCancelKey(Qt::Key_Context1);
        popup.setNextKey(Qt::Key_Context2);
    };
    const Qt::Key enter = Qt::Key_Return, down = Qt::Key_Down, page = Qt::Key_Context3, cancel = Qt::Key_Context4;
    QTest::newRow("a row") << Prepare(plain) << Keys{down, enter} << int(QDialog::Accepted) << 1;
    QTest::newRow("cancel") << Prepare(plain) << Keys{down, cancel} << int(QDialog::Rejected) << -1;
    QTest::newRow("escape") << Prepare(plain) << Keys{Qt::Key_Escape} << int(QDialog::Rejected) << -1;
    QTest::newRow("another key") << Prepare(plain) << Keys{Qt::Key_Context1, Qt::Key_5} << StillOpen << -1;
    QTest::newRow("the next page") << Prepare(plain) << Keys{page, enter} << int(QDialog::Accepted) << 4;
    QTest::newRow("the first page again")
        << Prepare(plain) << Keys{page, page, enter} << int(QDialog::Accepted) << 0;
    QTest::newRow("a checked row stays") << Prepare(multiple) << Keys{down, enter} << StillOpen << 1;
    QTest::newRow("checks are done") << Prepare(multiple) << Keys{enter, page} << int(QDialog::Accepted) << 0;
    QTest::newRow("checks are given up")
        << Prepare(multiple) << Keys{enter, cancel} << int(QDialog::Rejected) << -1;
    QTest::newRow("the OK key accepts") << Prepare(withOk) << Keys{page} << int(QDialog::Accepted) << -1;
    QTest::newRow("its own cancel key")
        << Prepare(otherKeys) << Keys{Qt::Key_Context1} << int(QDialog::Rejected) << -1;
    QTest::newRow("its own page key") << Prepare(otherKeys) << Keys{page, cancel, Qt::Key_Context2, enter}
                                      << int(QDialog::Accepted) << 4;
}

void SelectPopupTest::keysEndIt()
{
    QFETCH(Prepare, prepare);
    QFETCH(Keys, keys);
    QFETCH(int, idx);
    SelectPopup popup(m_screen.get(), 0);
    fill(popup);
    prepare(popup);
    const int result = runBox(popup, [&] {
        for (Qt::Key key : qAsConst(keys))
            click(key);
    });
    QTEST(result, "result");
    QCOMPARE(popup.selectedIdx(), idx);
    QVERIFY(screenHasKeys());
}

void SelectPopupTest::keysPressItsButtons()
{
    SelectPopup popup(m_screen.get(), 0);
    fill(popup);
    QStringList heard;
    const auto listen = [&](ImageButton *button, const QString &name) {
        connect(button, &ImageButton::isHover, this, [&heard, name](bool on) { heard += name + (on ? '+' : '-'); });
    };
    listen(popup.nextButton(), "next");
    listen(popup.okButton(), "ok");
    listen(popup.cancelButton(), "cancel");
    runBox(popup, [&] {
        click(Qt::Key_Context3);
        popup.nextButton()->hide();
        popup.okButton()->show();
        press(Qt::Key_Context3);
        click(Qt::Key_Escape);
    });
    QCOMPARE(heard, QStringList({"next+", "next-", "ok+", "cancel+", "cancel-"}));
}

void SelectPopupTest::aKeyHeldBeforeDoesNotEndIt()
{
    SelectPopup popup(m_screen.get(), 0);
    fill(popup);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Context4}) {
        press(key);
        QCOMPARE(runBox(popup, [key] { release(key); }), StillOpen);
    }
}

void SelectPopupTest::aClickBeyondTheRowsRejects()
{
    SelectPopup popup(m_screen.get(), 0);
    fill(popup, 2);
    QCOMPARE(runBox(popup, [&] { popup.clickedListView(2); }), int(QDialog::Rejected));
    QCOMPARE(popup.selectedIdx(), 2);
    popup.onClickOkButton();
    QCOMPARE(popup.result(), int(QDialog::Rejected));
}

void SelectPopupTest::theBroadcastEndsIt()
{
    SelectPopup popup(m_screen.get(), 0);
    fill(popup);
    popup.setMultipleCheck(true);
    const int result = runBox(popup, [&] {
        click(Qt::Key_Return);
        broadcast("closeSomethingElse()");
        QVERIFY(popup.isVisible());
        broadcast("closeSelectPopup()");
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(popup.selectedIdx(), 0);
}

void SelectPopupTest::theBroadcastWinsOverTheClick()
{
    SelectPopup popup(m_screen.get(), 0);
    fill(popup);
    // The list tells of the key before it tells of the click.
    connect(popup.listView(), &ListView::keyPressed, this, [] { broadcast("closeSelectPopup()"); });
    QCOMPARE(runBox(popup, [] { click(Qt::Key_Return); }), int(QDialog::Rejected));
    QCOMPARE(popup.selectedIdx(), -1);
}

void SelectPopupTest::isRefilledWhileItsSelectionMoves()
{
    SelectPopup popup(m_screen.get(), 0);
    fill(popup);
    connect(popup.listView(), &ListView::focusChanged, this, [&] {
        popup.listView()->itemClear();
        fill(popup, 2);
        popup.listView()->setStartIdx(0);
    });
    const Keys keys{Qt::Key_Down, Qt::Key_Context3, Qt::Key_Down, Qt::Key_Return};
    const int result = runBox(popup, [&] {
        for (const Qt::Key key : keys)
            click(key);
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(popup.selectedIdx(), 1);
}

void SelectPopupTest::closedInAnyOrder_data()
{
    QTest::addColumn<bool>("lowerFirst");
    QTest::newRow("from the top") << false;
    QTest::newRow("from below") << true;
}

void SelectPopupTest::closedInAnyOrder()
{
    QFETCH(bool, lowerFirst);
    SelectPopup lower(m_screen.get(), 0);
    fill(lower);
    int upperResult = StillOpen;
    const int lowerResult = runBox(lower, [&] {
        SelectPopup upper(&lower, 0);
        fill(upper);
        upperResult = runBox(upper, [&] {
            if (lowerFirst)
                lower.close();
            upper.close();
        });
        lower.close();
    });
    QCOMPARE(upperResult, int(QDialog::Rejected));
    QCOMPARE(lowerResult, int(QDialog::Rejected));
    QVERIFY(screenHasKeys());
}

void SelectPopupTest::deletedWhileShown_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<Keys>("keys");
    const auto byRow = [](SelectPopup &popup) {
        connect(popup.listView(), &ListView::clicked, &popup, [&popup] { delete &popup; });
    };
    const auto byResult = [](SelectPopup &popup) {
        popup.setUseFastClose(true);
        connect(&popup, &QDialog::finished, &popup, [&popup] { delete &popup; });
    };
    const auto byButton = [](SelectPopup &popup) {
        connect(popup.cancelButton(), &ImageButton::isHover, &popup, [&popup](bool on) {
            if (!on)
                delete &popup;
        });
    };
    QTest::newRow("from outside") << Prepare(nullptr) << Keys{};
    QTest::newRow("by its list") << Prepare(byRow) << Keys{Qt::Key_Return};
    QTest::newRow("by its result") << Prepare(byResult) << Keys{Qt::Key_Return};
    QTest::newRow("by its cancel") << Prepare(byResult) << Keys{Qt::Key_Escape};
    QTest::newRow("by its button") << Prepare(byButton) << Keys{Qt::Key_Context4};
}

void SelectPopupTest::deletedWhileShown()
{
    QFETCH(Prepare, prepare);
    QFETCH(Keys, keys);
    const QPointer<SelectPopup> popup = new SoundSelectPopup(m_screen.get(), 0);
    fill(*popup);
    popup->show();
    QVERIFY(waitUntilActive(popup));
    if (prepare)
        prepare(*popup);
    else
        delete popup;
    for (const Qt::Key key : qAsConst(keys))
        click(key);
    QVERIFY(!popup);
    QVERIFY2(theCore->soundManager()->isEnabledKeytone(), "the keys stayed silent");
    QVERIFY(screenHasKeys());
}

void SelectPopupTest::soundsSilenceTheKeys()
{
    SoundSelectPopup popup(m_screen.get(), 0);
    fill(popup);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        const int result = runBox(popup, [key] {
            QVERIFY(!theCore->soundManager()->isEnabledKeytone());
            click(key);
        });
        QVERIFY(result != StillOpen);
        QVERIFY(theCore->soundManager()->isEnabledKeytone());
    }
}

static void addWaysToEnd()
{
    QTest::addColumn<Prepare>("end");
    QTest::addColumn<int>("result");
    QTest::newRow("accept") << Prepare([](SelectPopup &popup) { popup.accept(); }) << int(QDialog::Accepted);
    QTest::newRow("reject") << Prepare([](SelectPopup &popup) { popup.reject(); }) << int(QDialog::Rejected);
    QTest::newRow("close") << Prepare([](SelectPopup &popup) { popup.close(); }) << int(QDialog::Rejected);
    QTest::newRow("hide") << Prepare([](SelectPopup &popup) { popup.hide(); }) << int(QDialog::Rejected);
}

void SelectPopupTest::fastCloseLeavesTheScreen_data()
{
    addWaysToEnd();
}

void SelectPopupTest::fastCloseLeavesTheScreen()
{
    QFETCH(Prepare, end);
    SelectPopup popup(m_screen.get(), 0);
    popup.setUseFastClose(true);
    const int result = runBox(popup, [&] { end(popup); });
    QTEST(result, "result");
    QCOMPARE(popup.pos(), QPoint(384, 0));
    QVERIFY(!popup.isVisible());
}

void SelectPopupTest::slidesAreReady_data()
{
    addWaysToEnd();
}

void SelectPopupTest::slidesAreReady()
{
    QFETCH(Prepare, end);
    SlidingPopup popup(m_screen.get());
    bool slid = false;
    const int result = runBox(popup, [&] {
        end(popup);
        slid = popup.QWidget::isVisible();
        QTRY_VERIFY(!popup.QWidget::isVisible());
    });
    QTEST(result, "result");
    QVERIFY2(slid, "it went at once");
    QVERIFY(!popup.isVisible());
}

void SelectPopupTest::theGridTurnsItsPages()
{
    GridSelectPopup popup(m_screen.get(), 0);
    for (int i = 0; i < 14; ++i)
        popup.addGridViewItem(QString::number(i));
    QCOMPARE(runBox(popup,
                    [&] {
                        click(Qt::Key_Down);
                        click(Qt::Key_Context3);
                        QCOMPARE(popup.gridView()->currentPage(), 2);
                        click(Qt::Key_Return);
                    }),
             int(QDialog::Accepted));
    QCOMPARE(popup.selectedIdx(), 13);

    // Left out of the grid gives the choice up, for an owner that wants it.
    popup.gridView()->setUseNaviKeyReject(true);
    popup.gridView()->setCurrentIndex(0);
    QCOMPARE(runBox(popup, [] { click(Qt::Key_Left); }), int(QDialog::Rejected));
}

PHONE_TEST_MAIN(SelectPopupTest)
#include "tst_selectpopup.moc"
