#include "listwindow.h"

#include "editfieldgeometry.h"
#include "listviewcheckitem.h"
#include "listviewchecklineedititem.h"
#include "listviewlineedititem.h"
#include "listviewtimeedititem.h"

#include <QLineEdit>

/// A number row as the edit form has it.
class NumberRow : public ListViewLineEditItem
{
public:
    using ListViewLineEditItem::ListViewLineEditItem;
    int type() override { return 17; }
};

/// The line edits that float over rows of text and time.
class TestListOverlay : public PhoneTest
{
    Q_OBJECT

    void setUp() override
    {
        PhoneTest::setUp();
        m_window.reset(new ListWindow<>);
        m_list = m_window->list;
    }
    void tearDown() override
    {
        m_window.reset();
        PhoneTest::tearDown();
    }

private slots:
    void followsTheSelectionAndHandsTextOver()
    {
        auto *name = new ListViewLineEditItem("Name", "A");
        auto *check = new ListViewCheckLineEditItem("Check", true, "B");
        auto *plain = new ListViewCheckLineEditItem("Check", false, true, "x");
        plain->setUseEditText(false);
        auto *time = new ListViewTimeEditItem("At", "07:30", "AM");
        name->setEditTextLeftMargin(20);
        showRows({name, check, time, new ListViewCheckItem("Plain", false), plain});
        const QRect row(0, 0, 367, 34); // beside the scroll bar
        QSignalSpy changes(m_list, &ListView::changeLineEditText);

        QTRY_COMPARE(shownText(), QString("A"));
        QCOMPARE(focusedEdit()->geometry(), EditFieldGeometry::lineEdit(row, 20));
        TestScreen::shot("overlay-text");
        QTest::keyClicks(focusedEdit(), "nn");
        PhoneKeys::click(Down);
        QTRY_COMPARE(shownText(), QString("B"));
        QTest::keyClicks(focusedEdit(), "b");
        PhoneKeys::click(Down);
        QTRY_COMPARE(shownText(), QString("07:30"));
        QCOMPARE(focusedEdit()->geometry(), EditFieldGeometry::timeEdit(row.translated(0, 68), true));
        QTest::keyClicks(focusedEdit(), "12");
        TestScreen::shot("overlay-time");
        QCOMPARE(QStringList({name->editText(), check->editText(), time->getTime()}),
                 QStringList({"Ann", "Bb", "12:30"}));
        for (int plainRow = 0; plainRow < 2; ++plainRow) {
            PhoneKeys::click(Down);
            QTRY_VERIFY(m_list->hasFocus() && !shownEdit());
        }
        m_list->setSelectedIdx(0);
        QTRY_VERIFY(m_list->lineEdit()->hasFocus());
        m_list->removeItem(0);
        QTRY_COMPARE(shownText(), QString("Bb"));
        m_list->setSelectedIdx(-1);
        QTRY_VERIFY(m_list->hasFocus() && !shownEdit());
        QCOMPARE(values(changes), (QList<int>{0, 0, 1, 2, 2}));
        QCOMPARE(changes.at(1).at(1).toString(), QString("Ann"));
    }

    void endsCompositionOfLongText()
    {
        auto *name = new ListViewLineEditItem("Name", "123");
        name->setMaxBytes(5);
        name->setMaxLength(30);
        showRows({name});
        QTRY_VERIFY(focusedEdit());
        m_phone->core.setIMEStatus(IMECapital, true);
        bool lostFocus = false;
        connect(qApp, &QApplication::focusChanged, m_list, [&](QWidget *former) { lostFocus |= former == m_list; });
        QSignalSpy changes(m_list, &ListView::changeLineEditText);
        QTest::keyClicks(m_list->lineEdit(), "45");
        QVERIFY(!lostFocus);
        m_list->lineEdit()->setText("김철수"); // nine bytes
        QVERIFY(lostFocus && m_list->lineEdit()->hasFocus());
        QCOMPARE(m_phone->core.getIMEStatus(), IMECapital);
        QCOMPARE(changes.last().at(1).toString(), name->editText());
    }

    void passesEnterAndArrowsOn()
    {
        showRows({new ListViewLineEditItem("Name", "A"), new NumberRow("Number", "1")});
        QSignalSpy clicks(m_list, &ListView::clicked);
        QTRY_COMPARE(shownText(), QString("A"));
        PhoneKeys::click(Enter);
        QVERIFY2(clicks.isEmpty(), "a text field keeps Enter");
        PhoneKeys::click(Down);
        QTRY_COMPARE(shownText(), QString("1"));
        QCOMPARE(focusedEdit()->geometry(), EditFieldGeometry::numberEdit(QRect(0, 34, 375, 34), 0));
        PhoneKeys::click(Enter);
        QCOMPARE(values(clicks), QList<int>{1});
        // The line edit keeps Left and Right for its cursor; the list acts when it has the focus itself.
        QTest::sendKeyEvent(QTest::Press, m_list, Right, QString(), Qt::NoModifier);
        QCOMPARE(values(clicks), (QList<int>{1, 1}));
    }

    void survivesRebuilding()
    {
        showRows({new ListViewLineEditItem("Name", "A")});
        QTRY_VERIFY(focusedEdit());
        connect(m_list, &ListView::textChanged, m_list, [&] {
            m_list->itemClear();
            m_window->add(2);
        });
        QTest::keyClicks(focusedEdit(), "b");
        PhoneKeys::click(Down);
        QTRY_VERIFY(!shownEdit());
    }

private:
    void showRows(std::initializer_list<ListViewItem *> rows)
    {
        m_window->add(rows);
        QVERIFY(m_window->showNow());
    }
    QLineEdit *shownEdit() const
    {
        const auto edits = m_list->findChildren<QLineEdit *>("ListView::QLineEdit");
        for (QLineEdit *edit : edits) {
            if (edit->isVisible())
                return edit;
        }
        return nullptr;
    }
    /// The line edit that shows and has the focus, a moment after the key.
    QLineEdit *focusedEdit() const
    {
        QTest::qWait(10);
        return shownEdit() && shownEdit()->hasFocus() ? shownEdit() : nullptr;
    }
    QString shownText() const { return focusedEdit() ? focusedEdit()->text() : QString(); }

    std::unique_ptr<ListWindow<>> m_window;
    ListView *m_list = nullptr;
};

PHONE_TEST_MAIN(TestListOverlay)
#include "tst_listoverlay.moc"
