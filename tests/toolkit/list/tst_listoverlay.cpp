#include "listwindow.h"
#include "testcase.h"
#include "testmain.h"

#include "core.h"
#include "listviewcheckitem.h"
#include "listviewchecklineedititem.h"
#include "listviewlineedititem.h"
#include "listviewtimeedititem.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QValidator>

namespace {

/// A number row as the edit form has it.
class NumberRow : public ListViewLineEditItem
{
public:
    using ListViewLineEditItem::ListViewLineEditItem;
    int type() override { return 17; }
};

}

/// The line edits that float over rows of text and time.
class TestListOverlay : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_core.reset(); }
    void standsOverTheField_data();
    void standsOverTheField();
    void followsTheSelection();
    void takesTheRowsSettings();
    void handsTextOver();
    void endsCompositionOfLongText();
    void passesEnterOn_data();
    void passesEnterOn();
    void clicksSideways();
    void goesWithItsRow();
    void survivesRebuilding();
    void writesPicture();

private:
    static QLineEdit *shownEdit(const QWidget *list);

    QTemporaryDir m_home;
    QScopedPointer<Core> m_core;
};

void TestListOverlay::initTestCase()
{
    const PhoneHome home(m_home.path());
    QVERIFY(home.create());
    m_core.reset(new Core(home));
}

QLineEdit *TestListOverlay::shownEdit(const QWidget *list)
{
    const auto edits = list->findChildren<QLineEdit *>("ListView::QLineEdit");
    for (QLineEdit *edit : edits) {
        if (edit->isVisible())
            return edit;
    }
    return nullptr;
}

void TestListOverlay::standsOverTheField_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    // Rows reach from 0 to 374.
    QTest::newRow("text") << "text" << 0 << 193 << 368;
    QTest::newRow("text with margin") << "text" << 20 << 213 << 368;
    QTest::newRow("number") << "number" << 20 << 218 << 369;
    QTest::newRow("check, title") << "titled" << 20 << 214 << 359;
    QTest::newRow("check, no title") << "check" << 20 << 194 << 359;
    QTest::newRow("check, no margin") << "check" << 0 << 194 << 359;
    QTest::newRow("time") << "time" << 0 << 193 << 280;
    QTest::newRow("time alone") << "24h" << 0 << 289 << 370;
}

void TestListOverlay::standsOverTheField()
{
    QFETCH(QString, kind);
    QFETCH(int, margin);
    ListWindow window;
    window.add(1);
    ListViewItem *row = nullptr;
    if (kind == "text") {
        row = new ListViewLineEditItem("Title", "text");
    } else if (kind == "number") {
        row = new NumberRow("Title", "text");
    } else if (kind == "time" || kind == "24h") {
        auto *time = new ListViewTimeEditItem("Title", "12:34", "AM");
        time->setUse_ampmSelection(kind == "time");
        row = time;
    } else {
        auto *check = new ListViewCheckLineEditItem("Title", true, kind == "titled", "text");
        check->setUseEditText(true);
        row = check;
    }
    row->setEditTextLeftMargin(margin);
    window.list->addItem(row);
    window.list->setSelectedIdx(1);
    QVERIFY(window.showNow());
    QTRY_VERIFY(shownEdit(window.list));
    QFETCH(int, left);
    QFETCH(int, right);
    QCOMPARE(shownEdit(window.list)->geometry(), QRect(QPoint(left, 34 + 6), QPoint(right, 34 + 27)));
    QTRY_VERIFY(shownEdit(window.list)->hasFocus());
}

void TestListOverlay::followsTheSelection()
{
    ListWindow window;
    window.list->addItem(new ListViewLineEditItem("Name", "Anna"));
    window.list->addItem(new ListViewTimeEditItem("At", "07:30", "AM"));
    window.add(1);
    auto *plain = new ListViewCheckLineEditItem("Check", false, true, "x");
    plain->setUseEditText(false);
    window.list->addItem(plain);
    QVERIFY(!window.list->lineEdit());
    QVERIFY(window.showNow());
    QSignalSpy changes(window.list, &ListView::changeLineEditText);

    QTRY_VERIFY(window.list->lineEdit() && window.list->lineEdit()->hasFocus());
    QCOMPARE(window.list->lineEdit()->text(), QString("Anna"));
    PhoneKeys::click(Qt::Key_Down);
    QTRY_COMPARE(shownEdit(window.list) ? shownEdit(window.list)->text() : QString(), QString("07:30"));
    QVERIFY(window.list->lineEdit()->isHidden());
    QTRY_VERIFY(shownEdit(window.list)->hasFocus());
    QCOMPARE(shownEdit(window.list)->inputMask(), QString("99:99"));
    PhoneKeys::click(Qt::Key_Down);
    QTRY_VERIFY(window.list->hasFocus());
    QVERIFY(!shownEdit(window.list));
    PhoneKeys::click(Qt::Key_Down);
    QTest::qWait(5);
    QVERIFY(!shownEdit(window.list) && window.list->hasFocus());

    window.list->setSelectedIdx(0);
    QTRY_VERIFY(window.list->lineEdit()->hasFocus());
    window.list->setSelectedIdx(-1);
    QTRY_VERIFY(window.list->hasFocus());
    QVERIFY(!shownEdit(window.list));
    QVERIFY(changes.isEmpty());
}

void TestListOverlay::takesTheRowsSettings()
{
    ListWindow window;
    auto *secret = new ListViewLineEditItem("Secret", "abc");
    secret->setEchoPasswordMode(true);
    secret->setEditTextDisabled(true);
    secret->setMaxLength(4);
    auto *address = new ListViewLineEditItem("Address", "10.0.0.1");
    address->setIPValidate(true);
    auto *port = new ListViewLineEditItem("Port", "20000");
    port->setSipPortValidate(true);
    auto *check = new ListViewCheckLineEditItem("Check", true, "free");
    for (ListViewItem *row : {static_cast<ListViewItem *>(secret), static_cast<ListViewItem *>(address),
                              static_cast<ListViewItem *>(port), static_cast<ListViewItem *>(check)})
        window.list->addItem(row);
    QVERIFY(window.showNow());
    const auto accepts = [&](const char *text) {
        QString copy = text;
        int at = 0;
        return window.list->lineEdit()->validator()->validate(copy, at) == QValidator::Acceptable;
    };
    const auto select = [&](int idx) {
        window.list->setSelectedIdx(idx);
        window.list->checkFocus();
    };

    select(0);
    QLineEdit *edit = window.list->lineEdit();
    QCOMPARE(edit->echoMode(), QLineEdit::Password);
    QVERIFY(edit->isReadOnly());
    QCOMPARE(edit->maxLength(), 4);
    QVERIFY(!edit->validator());
    QCOMPARE(edit->font().pointSize(), 20);

    select(1);
    QCOMPARE(edit->echoMode(), QLineEdit::Normal);
    QVERIFY(!edit->isReadOnly());
    QCOMPARE(edit->maxLength(), 4); // a row without a limit leaves the one before
    QVERIFY(accepts("255.1.09.200") && !accepts("256.1.1.1") && !accepts("1.2.3"));
    select(2);
    QVERIFY(accepts("10000") && accepts("65535") && !accepts("9999"));
    select(1);
    QCOMPARE(window.list->findChildren<QValidator *>().size(), 1);
    select(3);
    QVERIFY(!edit->validator());
    QCOMPARE(edit, window.list->lineEdit());
}

void TestListOverlay::handsTextOver()
{
    ListWindow window;
    auto *name = new ListViewLineEditItem("Name", "A");
    auto *check = new ListViewCheckLineEditItem("Check", true, "B");
    auto *time = new ListViewTimeEditItem("At", "07:30", "AM");
    window.list->addItem(name);
    window.list->addItem(check);
    window.list->addItem(time);
    QVERIFY(window.showNow());
    QSignalSpy texts(window.list, &ListView::textChanged);
    QSignalSpy changes(window.list, &ListView::changeLineEditText);
    QTRY_VERIFY(shownEdit(window.list));

    QTest::keyClicks(shownEdit(window.list), "nn");
    QCOMPARE(name->editText(), QString("Ann"));
    PhoneKeys::click(Qt::Key_Down);
    QTRY_COMPARE(shownEdit(window.list)->text(), QString("B"));
    QTest::keyClicks(shownEdit(window.list), "b");
    QCOMPARE(check->editText(), QString("Bb"));
    PhoneKeys::click(Qt::Key_Down);
    QTRY_COMPARE(shownEdit(window.list)->text(), QString("07:30"));
    QTest::keyClicks(shownEdit(window.list), "12");
    QCOMPARE(time->getTime(), QString("12:30"));
    QCOMPARE(texts.count(), 5);
    QCOMPARE(changes.count(), 5);
    QCOMPARE(changes.at(1).at(0).toInt(), 0);
    QCOMPARE(changes.at(1).at(1).toString(), QString("Ann"));
    QCOMPARE(changes.at(2).at(0).toInt(), 1);
}

void TestListOverlay::endsCompositionOfLongText()
{
    ListWindow window;
    auto *name = new ListViewLineEditItem("Name", "123");
    name->setMaxBytes(5);
    name->setMaxLength(30);
    window.list->addItem(name);
    QVERIFY(window.showNow());
    QTRY_VERIFY(window.list->lineEdit());
    m_core->setIMEStatus(IMECapital, true);
    bool lostFocus = false;
    connect(qApp, &QApplication::focusChanged, window.list,
            [&](QWidget *former, QWidget *) { lostFocus |= former == window.list; });
    QSignalSpy changes(window.list, &ListView::changeLineEditText);

    QTest::keyClicks(window.list->lineEdit(), "45");
    QVERIFY(!lostFocus);
    window.list->lineEdit()->setText(QString::fromUtf8("김철수")); // nine bytes
    QVERIFY(lostFocus);
    QVERIFY(window.list->lineEdit()->hasFocus());
    QCOMPARE(m_core->getIMEStatus(), IMECapital);
    QCOMPARE(changes.last().at(1).toString(), name->editText());
}

void TestListOverlay::passesEnterOn_data()
{
    QTest::addColumn<bool>("number");
    QTest::newRow("a text field keeps Enter") << false;
    QTest::newRow("a number field is clicked") << true;
}

void TestListOverlay::passesEnterOn()
{
    QFETCH(bool, number);
    ListWindow window;
    window.list->addItem(number ? new NumberRow("Number", "1") : new ListViewLineEditItem("Name", "A"));
    QVERIFY(window.showNow());
    QTRY_VERIFY(shownEdit(window.list) && shownEdit(window.list)->hasFocus());
    QSignalSpy clicks(window.list, &ListView::clicked);
    PhoneKeys::click(Qt::Key_Return);
    QCOMPARE(clicks.count(), number ? 1 : 0);
}

void TestListOverlay::clicksSideways()
{
    ListWindow window;
    window.list->addItem(new NumberRow("Number", "1"));
    QVERIFY(window.showNow());
    QSignalSpy clicks(window.list, &ListView::clicked);
    // The line edit keeps Left and Right for its cursor; the list acts when it has the focus itself.
    QTest::sendKeyEvent(QTest::Press, window.list, Qt::Key_Right, QString(), Qt::NoModifier);
    QCOMPARE(clicks.count(), 1);
}

void TestListOverlay::goesWithItsRow()
{
    ListWindow window;
    window.add(1);
    window.list->addItem(new ListViewLineEditItem("Name", "A"));
    window.list->addItem(new ListViewLineEditItem("Memo", "B"));
    window.add(1);
    window.list->setSelectedIdx(1);
    QVERIFY(window.showNow());
    QTRY_VERIFY(shownEdit(window.list));
    window.list->removeItem(1);
    QTRY_COMPARE(shownEdit(window.list)->text(), QString("B"));
    window.list->removeItem(1);
    QTRY_VERIFY(!shownEdit(window.list));
    QVERIFY(window.list->hasFocus());
}

void TestListOverlay::survivesRebuilding()
{
    ListWindow window;
    window.list->addItem(new ListViewLineEditItem("Name", "A"));
    QVERIFY(window.showNow());
    QTRY_VERIFY(shownEdit(window.list));
    connect(window.list, &ListView::textChanged, window.list, [&] {
        window.list->itemClear();
        window.add(2);
    });
    QTest::keyClicks(shownEdit(window.list), "b");
    PhoneKeys::click(Qt::Key_Down);
    QTRY_VERIFY(!shownEdit(window.list));
    window.list->itemClear();
    window.list->setSelectedIdx(-1);
    QTest::qWait(5);
    QVERIFY(window.list->hasFocus());
}

void TestListOverlay::writesPicture()
{
    ListWindow window;
    window.list->addItem(new ListViewLineEditItem("Name", "Jörg Ågren"));
    window.list->addItem(new ListViewTimeEditItem("Alarm", "07:30", "AM"));
    window.list->addItem(new ListViewCheckItem("Plain", true));
    QVERIFY(window.showNow());
    QTRY_VERIFY(shownEdit(window.list) && shownEdit(window.list)->hasFocus());
    const QString folder = qEnvironmentVariable("PHONE_PICTURES");
    const auto picture = [&](const char *name) {
        const QImage image = window.grab().toImage();
        if (!folder.isEmpty())
            image.scaled(image.size() * 2).save(folder + "/" + name + ".png");
        return image;
    };
    picture("overlay-text");
    PhoneKeys::click(Qt::Key_Down);
    QTRY_VERIFY(shownEdit(window.list) && shownEdit(window.list)->text() == "07:30");
    QTest::qWait(10);
    picture("overlay-time");
}

PHONE_TEST_MAIN(TestListOverlay)

#include "tst_listoverlay.moc"
