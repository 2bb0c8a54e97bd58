#include "screentest.h"
#include "searchlineedit.h"

#include <QLineEdit>

using namespace PhoneKeys;

/// A search line above something that can have the focus.
class SearchLineEditTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_screen.reset(new KeyCounter);
        m_screen->setGeometry(0, 26, 384, 134);
        m_screen->setPalette(QPalette(Qt::white));
        m_search = new SearchLineEdit(m_screen.get());
        m_search->setGeometry(5, 2, 374, 33);
        m_list = new QWidget(m_screen.get());
        m_list->setFocusPolicy(Qt::StrongFocus);
        m_list->setFocus();
        QVERIFY(showAndActivate(m_screen.get()));
    }
    void tearDown() override { m_screen.reset(); }

private slots:
    void theLineEditComesWithTheFocusAndGoesWithDown()
    {
        QVERIFY(m_search->lineEdit()->isHidden());
        m_search->setFocus();
        QVERIFY(m_search->lineEdit()->hasFocus());
        clickAll({Qt::Key_Up, Qt::Key_Context4, Qt::Key_Down});
        QCOMPARE(m_screen->presses, (QList<int>{Qt::Key_Up, Qt::Key_Context4}));
        QVERIFY(m_search->lineEdit()->isHidden() && m_list->hasFocus());
        // Without another place the focus stays.
        m_search->setFocus();
        m_list->hide();
        click(Qt::Key_Down);
        QVERIFY(m_search->lineEdit()->isVisible() && m_search->lineEdit()->hasFocus());
    }

    /// The text looks the same with the line edit and without, so that nothing jumps as the focus goes.
    void theTextStaysInItsPlace()
    {
        m_search->setText("Ägypten, 김철수");
        m_search->lineEdit()->setReadOnly(true); // no cursor
        for (const int height : {33 /* local search */, 34 /* in a directory */}) {
            m_list->setFocus();
            m_search->lineEdit()->hide();
            m_search->setGeometry(5, 2, 374, height);
            const QRect field = m_search->lineEdit()->geometry();
            const QImage drawn = m_search->grab(field).toImage();
            // Letters that hang below the line are whole: they end with the field.
            const QRect last(field.left(), field.bottom(), field.width(), 1);
            QVERIFY(isInked(last) && !isInked(last.translated(0, 1)));
            m_search->setFocus();
            QCOMPARE(drawn, m_search->grab(field).toImage());
            TestScreen::shot(QString("search-focus-%1").arg(height));
        }
        m_search->setText("A text that is longer than the field of the search line has room");
        click(Qt::Key_Down);
        TestScreen::shot("search-long");
        m_search->setSearchLineMode(false);
        m_search->update();
        TestScreen::shot("search-plain");
    }

private:
    bool isInked(const QRect &line)
    {
        const QImage image = m_search->grab(line).toImage();
        int darkest = 255;
        for (int x = 0; x < image.width(); ++x)
            darkest = qMin(darkest, qGray(image.pixel(x, 0)));
        return darkest < 128;
    }

    std::unique_ptr<KeyCounter> m_screen;
    SearchLineEdit *m_search = nullptr;
    QWidget *m_list = nullptr;
};

PHONE_TEST_MAIN(SearchLineEditTest)
#include "tst_searchlineedit.moc"
