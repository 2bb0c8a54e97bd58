#include "gridselectpopup.h"
#include "imagebutton.h"
#include "screentest.h"
#include "soundmanager.h"
#include "soundselectpopup.h"

using namespace PhoneKeys;

using Prepare = void (*)(SelectPopup &);

struct Ending
{
    Prepare prepare;
    QList<int> keys;
    int result, idx;
};
Q_DECLARE_METATYPE(Ending)

/// A popup with rows, which may slide, as the popups of the phone could.
class FilledPopup : public SoundSelectPopup
{
public:
    explicit FilledPopup(QWidget *parent, int rows = 6, bool slides = false) : SoundSelectPopup(parent, 0)
    {
        m_useAnimation = slides;
        add(rows);
    }
    void add(int rows)
    {
        for (int i = 0; i < rows; ++i)
            addListViewItem(QString("Choice %1").arg(i));
    }
};

static void broadcast(const char *name)
{
    emit theCore->signalBroadcast(name, QByteArray());
}

class SelectPopupTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void keysEndIt_data()
    {
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
        const int enter = Qt::Key_Return, down = Qt::Key_Down, page = Qt::Key_Context3, cancel = Qt::Key_Context4,
                  yes = QDialog::Accepted, no = QDialog::Rejected;
        addCases<Ending>({{"a row", {plain, {down, enter}, yes, 1}},
                          {"cancel", {plain, {down, cancel}, no, -1}},
                          {"escape", {plain, {Qt::Key_Escape}, no, -1}},
                          {"another key", {plain, {Qt::Key_Context1, Qt::Key_5}, StillOpen, -1}},
                          {"the next page", {plain, {page, enter}, yes, 4}},
                          {"the first page again", {plain, {page, page, enter}, yes, 0}},
                          {"a checked row stays", {multiple, {down, enter}, StillOpen, 1}},
                          {"checks are done", {multiple, {enter, page}, yes, 0}},
                          {"checks are given up", {multiple, {enter, cancel}, no, -1}},
                          {"the OK key accepts", {withOk, {page}, yes, -1}},
                          {"its own cancel key", {otherKeys, {Qt::Key_Context1}, no, -1}},
                          {"its own page key", {otherKeys, {page, cancel, Qt::Key_Context2, enter}, yes, 4}}});
    }

    void keysEndIt()
    {
        QFETCH(Ending, c);
        FilledPopup popup(m_screen.get());
        c.prepare(popup);
        const int result = runBox(popup, [&] {
            QVERIFY(!theCore->soundManager()->isEnabledKeytone());
            clickAll(c.keys);
        });
        QCOMPARE(result, c.result);
        QCOMPARE(popup.selectedIdx(), c.idx);
        QVERIFY(theCore->soundManager()->isEnabledKeytone());
        QVERIFY(screenHasKeys());
    }

    void keysPressItsButtons()
    {
        FilledPopup popup(m_screen.get());
        QStringList heard;
        const auto listen = [&](ImageButton *button, const QString &name) {
            connect(button, &ImageButton::isHover, this,
                    [&heard, name](bool on) { heard += name + (on ? '+' : '-'); });
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

    void aKeyHeldBeforeDoesNotEndIt()
    {
        FilledPopup popup(m_screen.get());
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Context4}) {
            press(key);
            QCOMPARE(runBox(popup, [key] { release(key); }), StillOpen);
        }
    }

    void theBroadcastEndsIt()
    {
        FilledPopup popup(m_screen.get());
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

    void theBroadcastWinsOverTheClick()
    {
        FilledPopup popup(m_screen.get());
        // The list tells of the key before it tells of the click.
        connect(popup.listView(), &ListView::keyPressed, this, [] { broadcast("closeSelectPopup()"); });
        QCOMPARE(runBox(popup, [] { click(Qt::Key_Return); }), int(QDialog::Rejected));
        QCOMPARE(popup.selectedIdx(), -1);
    }

    void isRefilledWhileItsSelectionMoves()
    {
        FilledPopup popup(m_screen.get());
        connect(popup.listView(), &ListView::focusChanged, this, [&] {
            popup.listView()->itemClear();
            popup.add(2);
            popup.listView()->setStartIdx(0);
        });
        const int result = runBox(popup, [] {
            clickAll({Qt::Key_Down, Qt::Key_Context3, Qt::Key_Down, Qt::Key_Return});
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(popup.selectedIdx(), 1);
    }

    void closedInAnyOrder()
    {
        for (const bool lowerFirst : {false, true}) {
            FilledPopup lower(m_screen.get());
            int upperResult = StillOpen;
            const int lowerResult = runBox(lower, [&] {
                FilledPopup upper(&lower);
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
    }

    void deletedWhileShown()
    {
        static const QList<int> keys[]
            = {{}, {Qt::Key_Return}, {Qt::Key_Return}, {Qt::Key_Escape}, {Qt::Key_Context4}};
        for (int signal = 0; signal < 5; ++signal) {
            QPointer<SelectPopup> popup = new FilledPopup(m_screen.get());
            const auto remove = [&] { delete popup; };
            popup->show();
            QVERIFY(waitUntilActive(popup));
            popup->setUseFastClose(signal > 1);
            switch (signal) {
            case 0: remove(); break;
            case 1: connect(popup->listView(), &ListView::clicked, this, remove); break;
            case 4: connect(popup->cancelButton(), &ImageButton::isHover, this, remove); break;
            default: connect(popup, &QDialog::finished, this, remove); break;
            }
            for (const int key : keys[signal]) {
                press(Qt::Key(key));
                if (popup)
                    release(Qt::Key(key));
            }
            QVERIFY(!popup);
            QVERIFY2(theCore->soundManager()->isEnabledKeytone(), "the keys stayed silent");
            QVERIFY(screenHasKeys());
        }
    }

    void leavesInEveryWay()
    {
        const std::function<void(SelectPopup &)> ends[]
            = {[](SelectPopup &popup) { popup.accept(); }, [](SelectPopup &popup) { popup.reject(); },
               [](SelectPopup &popup) { popup.close(); }, [](SelectPopup &popup) { popup.hide(); }};
        for (int i = 0; i < 4; ++i) {
            FilledPopup fast(m_screen.get()), sliding(m_screen.get(), 6, true);
            fast.setUseFastClose(true);
            QCOMPARE(runBox(fast, [&] { ends[i](fast); }), i == 0 ? 1 : 0);
            QCOMPARE(fast.pos(), QPoint(384, 0));
            QVERIFY(!fast.isVisible());

            bool slid = false;
            const int result = runBox(sliding, [&] {
                ends[i](sliding);
                slid = sliding.QWidget::isVisible();
                QTRY_VERIFY(!sliding.QWidget::isVisible());
            });
            QCOMPARE(result, i == 0 ? 1 : 0);
            QVERIFY2(slid, "it went at once");
            QVERIFY(!sliding.isVisible());
        }
    }

    void theGridTurnsItsPages()
    {
        GridSelectPopup popup(m_screen.get(), 0);
        for (int i = 0; i < 14; ++i)
            popup.addGridViewItem(QString::number(i));
        const int result = runBox(popup, [&] {
            clickAll({Qt::Key_Down, Qt::Key_Context3});
            QCOMPARE(popup.gridView()->currentPage(), 2);
            click(Qt::Key_Return);
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(popup.selectedIdx(), 13);

        // Left out of the grid gives the choice up, for an owner that wants it.
        popup.gridView()->setUseNaviKeyReject(true);
        popup.gridView()->setCurrentIndex(0);
        QCOMPARE(runBox(popup, [] { click(Qt::Key_Left); }), int(QDialog::Rejected));
    }

private:
    bool screenHasKeys() const
    {
        // Windows come active once the present event is done.
        return QTest::qWaitFor([&] { return m_screen->list->hasFocus(); });
    }
};

PHONE_TEST_MAIN(SelectPopupTest)
#include "tst_selectpopup.moc"
