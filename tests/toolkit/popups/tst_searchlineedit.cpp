#include "phonekeys.h"
#include "searchlineedit.h"
#include "testcase.h"
#include "testmain.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>

#include <memory>

using namespace PhoneKeys;

/// A screen with a search line above something that can have the focus, which counts the keys that it is left.
class SearchScreen : public QWidget
{
public:
    SearchScreen() : search(new SearchLineEdit(this)), list(new QWidget(this))
    {
        setGeometry(0, 26, 384, 134);
        QPalette white(Qt::white);
        setPalette(white);
        search->setGeometry(5, 2, 374, 33);
        list->setGeometry(5, 35, 374, 70);
        list->setFocusPolicy(Qt::StrongFocus);
        list->setFocus();
    }

    SearchLineEdit *search;
    QWidget *list;
    QList<int> presses;

protected:
    void keyPressEvent(QKeyEvent *event) override { presses.append(event->key()); }
};

class SearchLineEditTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_screen.reset(new SearchScreen);
        QVERIFY(showAndActivate(m_screen.get()));
    }

    void tearDown() override { m_screen.reset(); }

private slots:
    void theLineEditComesWithTheFocusAndGoesWithDown();
    void withoutAnotherPlaceTheFocusStays();
    void otherKeysReachTheScreen();
    void textChangesAreTold();
    void theTextStaysInItsPlace_data();
    void theTextStaysInItsPlace();
    void pictures();

private:
    std::unique_ptr<SearchScreen> m_screen;
};

void SearchLineEditTest::theLineEditComesWithTheFocusAndGoesWithDown()
{
    SearchLineEdit *search = m_screen->search;
    QSignalSpy entered(search, &SearchLineEdit::enterFocus), left(search, &SearchLineEdit::leaveFocus);
    QVERIFY(search->lineEdit()->isHidden());
    search->setFocus();
    QVERIFY(search->lineEdit()->hasFocus());
    QCOMPARE(search->lineEdit()->geometry(), QRect(QPoint(8, 5), QPoint(374 - 35, 33 - 8)));
    QCOMPARE(entered.size(), 1);

    click(Qt::Key_Down);
    QVERIFY(search->lineEdit()->isHidden());
    QVERIFY(m_screen->list->hasFocus());
    QCOMPARE(left.size(), 1);
    QVERIFY(m_screen->presses.isEmpty());

    search->setFocus();
    m_screen->list->setFocus();
    QVERIFY(search->lineEdit()->isVisible());
    QCOMPARE(left.size(), 1);
}

void SearchLineEditTest::withoutAnotherPlaceTheFocusStays()
{
    m_screen->list->hide();
    m_screen->search->setFocus();
    click(Qt::Key_Down);
    QVERIFY(m_screen->search->lineEdit()->isVisible());
    QVERIFY(m_screen->search->lineEdit()->hasFocus());
}

void SearchLineEditTest::otherKeysReachTheScreen()
{
    m_screen->search->setFocus();
    click(Qt::Key_Up);
    click(Qt::Key_Context4);
    QCOMPARE(m_screen->presses, (QList<int>{Qt::Key_Up, Qt::Key_Context4}));
}

void SearchLineEditTest::textChangesAreTold()
{
    QSignalSpy changed(m_screen->search, &SearchLineEdit::textChanged);
    m_screen->search->setText("Anna");
    m_screen->search->setText("Anna");
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toString(), QString("Anna"));
    m_screen->search->setFocus();
    QTest::keyClicks(m_screen->search->lineEdit(), "b");
    QCOMPARE(changed.size(), 2);
    QCOMPARE(m_screen->search->text(), QString("Annab"));
}

void SearchLineEditTest::theTextStaysInItsPlace_data()
{
    QTest::addColumn<int>("height");
    QTest::newRow("local search") << 33;
    QTest::newRow("directory search") << 34;
}

static bool isInked(const QPixmap &picture, int line)
{
    const QImage image = picture.toImage();
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, line).lightness() < 128)
            return true;
    }
    return false;
}

/// The text looks the same with the line edit and without, so that nothing jumps as the focus goes.
void SearchLineEditTest::theTextStaysInItsPlace()
{
    QFETCH(int, height);
    SearchLineEdit *search = m_screen->search;
    search->setGeometry(5, 2, 374, height);
    search->setText(QString::fromUtf8("Ägypten, 김철수"));
    const QRect field = search->lineEdit()->geometry();
    const QImage drawn = search->grab(field).toImage();
    // Letters that hang below the line are whole: they end with the field.
    QVERIFY(isInked(search->grab(field), field.height() - 1));
    QVERIFY(!isInked(search->grab(field.translated(0, 1)), field.height() - 1));
    search->lineEdit()->setReadOnly(true); // no cursor
    search->setFocus();
    const QImage edited = search->grab(field).toImage();
    search->lineEdit()->setCursorPosition(0);
    QCOMPARE(drawn, edited);
}

void SearchLineEditTest::pictures()
{
    SearchLineEdit *search = m_screen->search;
    TestScreen::shot("search-empty");
    search->setText(QString::fromUtf8("Ägypten (gj) 김철수"));
    TestScreen::shot("search-text");
    search->setFocus();
    TestScreen::shot("search-focus");
    click(Qt::Key_Down);
    search->setText("A text that is longer than the field of the search line has room");
    TestScreen::shot("search-long");
    search->setSearchLineMode(false);
    search->update();
    TestScreen::shot("search-plain");
}

PHONE_TEST_MAIN(SearchLineEditTest)
#include "tst_searchlineedit.moc"
