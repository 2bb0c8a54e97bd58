#include "screentest.h"
#include "searchlineedit.h"

#include <QLineEdit>

using namespace PhoneKeys;

/// A screen with a search line above something that can have the focus.
class SearchScreen : public KeyCounter
{
public:
    SearchScreen() : search(new SearchLineEdit(this)), list(new QWidget(this))
    {
        setGeometry(0, 26, 384, 134);
        setPalette(QPalette(Qt::white));
        search->setGeometry(5, 2, 374, 33);
        list->setGeometry(5, 35, 374, 70);
        list->setFocusPolicy(Qt::StrongFocus);
        list->setFocus();
    }

    SearchLineEdit *search;
    QWidget *list;
};

static bool isInked(const QPixmap &picture, int line)
{
    const QImage image = picture.toImage();
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, line).lightness() < 128)
            return true;
    }
    return false;
}

class SearchLineEditTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_screen.reset(new SearchScreen);
        m_search = m_screen->search;
        QVERIFY(showAndActivate(m_screen.get()));
    }
    void tearDown() override { m_screen.reset(); }

private slots:
    void theLineEditComesWithTheFocusAndGoesWithDown()
    {
        QSignalSpy entered(m_search, &SearchLineEdit::enterFocus), left(m_search, &SearchLineEdit::leaveFocus);
        QVERIFY(m_search->lineEdit()->isHidden());
        m_search->setFocus();
        QVERIFY(m_search->lineEdit()->hasFocus());
        QCOMPARE(entered.size(), 1);
        clickAll({Qt::Key_Up, Qt::Key_Context4, Qt::Key_Down});
        QCOMPARE(m_screen->presses, (QList<int>{Qt::Key_Up, Qt::Key_Context4}));
        QVERIFY(m_search->lineEdit()->isHidden() && m_screen->list->hasFocus());
        QCOMPARE(left.size(), 1);

        m_search->setFocus();
        m_screen->list->setFocus();
        QVERIFY(m_search->lineEdit()->isVisible());
        QCOMPARE(left.size(), 1);

        // Without another place the focus stays.
        m_search->setFocus();
        m_screen->list->hide();
        click(Qt::Key_Down);
        QVERIFY(m_search->lineEdit()->isVisible() && m_search->lineEdit()->hasFocus());
    }

    void textChangesAreTold()
    {
        QSignalSpy changed(m_search, &SearchLineEdit::textChanged);
        m_search->setText("Anna");
        m_search->setText("Anna");
        QCOMPARE(changed.size(), 1);
        m_search->setFocus();
        QTest::keyClicks(m_search->lineEdit(), "b");
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.last().first().toString(), QString("Annab"));
        QCOMPARE(m_search->text(), QString("Annab"));
    }

    /// The text looks the same with the line edit and without, so that nothing jumps as the focus goes.
    void theTextStaysInItsPlace()
    {
        m_search->setText("Ägypten, 김철수");
        m_search->lineEdit()->setReadOnly(true); // no cursor
        for (const int height : {33 /* local search */, 34 /* in a directory */}) {
            m_screen->list->setFocus();
            m_search->lineEdit()->hide();
            m_search->setGeometry(5, 2, 374, height);
            const QRect field = m_search->lineEdit()->geometry();
            const QImage drawn = m_search->grab(field).toImage();
            // Letters that hang below the line are whole: they end with the field.
            QVERIFY(isInked(m_search->grab(field), field.height() - 1));
            QVERIFY(!isInked(m_search->grab(field.translated(0, 1)), field.height() - 1));
            m_search->setFocus();
            QCOMPARE(drawn, m_search->grab(field).toImage());
        }
    }

    void pictures()
    {
        TestScreen::shot("search-empty");
        m_search->setText("Ägypten (gj) 김철수");
        TestScreen::shot("search-text");
        m_search->setFocus();
        TestScreen::shot("search-focus");
        click(Qt::Key_Down);
        m_search->setText("A text that is longer than the field of the search line has room");
        TestScreen::shot("search-long");
        m_search->setSearchLineMode(false);
        m_search->update();
        TestScreen::shot("search-plain");
    }

private:
    std::unique_ptr<SearchScreen> m_screen;
    SearchLineEdit *m_search = nullptr;
};

PHONE_TEST_MAIN(SearchLineEditTest)
#include "tst_searchlineedit.moc"
