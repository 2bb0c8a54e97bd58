#include "gridselectpopup.h"
#include "listviewcheckitem.h"
#include "screentest.h"
#include "soundmanager.h"
#include "soundselectpopup.h"

using namespace PhoneKeys;

class FilledPopup : public SoundSelectPopup
{
public:
    explicit FilledPopup(QWidget *parent, int rows = 6) : SoundSelectPopup(parent, 0) { add(rows); }
    void add(int rows)
    {
        for (int i = 1; i <= rows; ++i)
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
    void keysEndIt()
    {
        const int enter = Qt::Key_Return, down = Qt::Key_Down, page = Qt::Key_Context3, cancel = Qt::Key_Context4,
                  yes = QDialog::Accepted, no = QDialog::Rejected;
        // Many choices or one, the keys, the result and the index, the looks of the next, OK and cancel buttons.
        const QList<std::tuple<bool, QList<int>, int, int, QString>> endings
            = {{false, {down, enter}, yes, 1, ""},
               {false, {down, cancel}, no, -1, "2+2-"},
               {false, {Qt::Key_Escape}, no, -1, "2+2-"},
               {false, {Qt::Key_Context1, Qt::Key_5}, StillOpen, -1, ""},
               {false, {page, page, enter}, yes, 0, "0+0-0+0-"},
               {true, {down, enter}, StillOpen, 1, ""},
               {true, {enter, page}, yes, 0, "0+0-"},
               {true, {enter, cancel}, no, -1, "2+2-"}};
        for (const auto &[multiple, keys, expectedResult, idx, expectedLooks] : endings) {
            FilledPopup popup(m_screen.get());
            popup.setMultipleCheck(multiple);
            QString looks;
            keepLooks({popup.nextButton(), popup.okButton(), popup.cancelButton()}, &looks);
            const int result = runBox(popup, [&, keys = keys] {
                QVERIFY(!theCore->soundManager()->isEnabledKeytone());
                clickAll(keys);
            });
            QCOMPARE(result, expectedResult);
            QCOMPARE(popup.selectedIdx(), idx);
            QCOMPARE(looks, expectedLooks);
            QVERIFY(theCore->soundManager()->isEnabledKeytone());
            QVERIFY(screenHasKeys());
        }
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
        const int result = runBox(popup, [&] {
            broadcast("closeSomethingElse()");
            QVERIFY(popup.isVisible());
            broadcast("closeSelectPopup()");
        });
        QCOMPARE(result, int(QDialog::Rejected));
        // It wins over the click: the list tells of the key before it tells of the click.
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

    void deletedWhileShown()
    {
        const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Context4};
        for (int signal = 0; signal < 5; ++signal) {
            QPointer<SelectPopup> popup = new FilledPopup(m_screen.get());
            const auto remove = [&] { delete popup; };
            QVERIFY(showAndActivate(popup));
            popup->setUseFastClose(signal > 1);
            switch (signal) {
            case 0: remove(); break;
            case 1: connect(popup->listView(), &ListView::clicked, this, remove); break;
            case 4: connect(popup->cancelButton(), &ImageButton::isHover, this, remove); break;
            default: connect(popup, &QDialog::finished, this, remove); break;
            }
            if (popup)
                press(keys[signal]);
            if (popup)
                release(keys[signal]);
            QVERIFY(!popup);
            QVERIFY2(theCore->soundManager()->isEnabledKeytone(), "the keys stayed silent");
            QVERIFY(screenHasKeys());
        }
    }

    void pictures()
    {
        FilledPopup popup(m_screen.get(), 9);
        popup.listView()->item(4)->setItemSelectEnable(false);
        popup.listView()->setSelectedIdx(5);
        shoot(popup, "popup-rows", {360, 55});
        popup.setContentsTitle("Bell");
        popup.setContentsTitlePos(18, -8);
        popup.listView()->setGeometry(5, 38, 183, 92);
        popup.listView()->setPageCount(3);
        shoot(popup, "popup-titled", {360, 110});
        popup.listView()->itemClear();
        popup.listView()->setShowEmptyString(true);
        shoot(popup, "popup-empty", {});
        popup.setMultipleCheck(true);
        popup.nextButton()->setText("Done");
        for (int i = 0; i < 5; ++i)
            popup.listView()->addItem(new ListViewCheckItem(QString("Group %1").arg(i), i % 2));
        popup.listView()->setStartIdx(0);
        popup.listView()->setSelectedIdx(0);
        shoot(popup, "popup-checks", {300, 50});
        GridSelectPopup grid(m_screen.get(), 0);
        for (const QChar sign : QString(".,?!@#&%*()/:;"))
            grid.addGridViewItem(sign);
        runBox(grid, [] { clickAll({Qt::Key_Down, Qt::Key_Context3, Qt::Key_Return}); });
        QCOMPARE(grid.selectedIdx(), 13); // on the second page
        grid.gridView()->setCurrentIndex(0);
        shoot(grid, "popup-grid", {200, 20});
    }

private:
    /// The popup as it comes, and with Enter held: then this pixel of its selection is black.
    static void shoot(SelectPopupBase &popup, const QString &name, QPoint ofSelection)
    {
        QVERIFY(showAndActivate(&popup));
        TestScreen::shot(name);
        press(Qt::Key_Return);
        TestScreen::shot(name + "-pressed");
        if (!ofSelection.isNull())
            QCOMPARE(TestScreen::picture().pixelColor(ofSelection), QColor(Qt::black));
        popup.hide();
    }
};

PHONE_TEST_MAIN(SelectPopupTest)
#include "tst_selectpopup.moc"
