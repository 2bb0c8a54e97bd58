#include "listwindow.h"

#include "slidelistview.h"

static const QRect target(20, 10, 300, 90);

class SlideListViewTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_window.reset(new ListWindow<SlideListView>);
        m_list = m_window->list;
        m_list->setVisible(false);
        m_list->setGeometry(target);
        QVERIFY(m_window->showNow());
    }
    void tearDown() override { m_window.reset(); }

private slots:
    void waitsOffTheScreen()
    {
        // By type: no slide, from below, from above, from the left by the display, from the right by the screen.
        const QPoint offsets[] = {{0, 0}, {0, 100}, {0, -100}, {-384, 0}, {200, 0}};
        m_list->setScreenRect(QRect(0, 0, 200, 100));
        for (int type = 0; type < 5; ++type) {
            m_list->setGeometry(target);
            m_list->setSlideType(static_cast<SlideListView::eSlideType>(type));
            QCOMPARE(m_list->geometry(), target.translated(offsets[type]));
            m_list->setGeometry(target.x(), target.y(), 200, 50);
            QCOMPARE(m_list->geometry(), QRect(target.topLeft() + offsets[type], QSize(200, 50)));
        }
    }

    void comesAndGoes()
    {
        QSignalSpy shown(m_list, &SlideListView::showFinished), hidden(m_list, &SlideListView::hideFinished),
            closed(m_list, &SlideListView::closeFinished);
        for (int turn = 1; turn <= 4; ++turn) {
            m_list->show();
            QVERIFY(m_list->isVisible() && m_list->geometry() != target);
            QTRY_COMPARE(shown.size(), turn);
            QCOMPARE(m_list->geometry(), target);

            turn == 2 ? void(m_list->close()) : m_list->hide();
            if (turn == 4)
                m_list->hide();
            QVERIFY2(!m_list->isVisible(), "it counts as shown while it leaves");
            QVERIFY(m_list->QWidget::isVisible());
            QTRY_VERIFY(!m_list->QWidget::isVisible());
            QCOMPARE(m_list->geometry(), target.translated(0, 160));
            QCOMPARE(hidden.size(), turn - closed.size());
            QCOMPARE(closed.size(), turn > 1 ? 1 : 0);
        }
    }

    void isShownAgainWhileItLeaves()
    {
        QSignalSpy shown(m_list, &SlideListView::showFinished), hidden(m_list, &SlideListView::hideFinished),
            closed(m_list, &SlideListView::closeFinished);
        m_list->show();
        m_list->hide();
        m_list->show();
        QVERIFY(m_list->isVisible());
        QTRY_COMPARE(shown.size(), 1);
        QVERIFY(m_list->isVisible());
        QCOMPARE(m_list->geometry(), target);
        m_list->close();
        QTRY_COMPARE(closed.size(), 1);
        QVERIFY(hidden.isEmpty());
    }

private:
    std::unique_ptr<ListWindow<SlideListView>> m_window;
    SlideListView *m_list = nullptr;
};

PHONE_TEST_MAIN(SlideListViewTest)
#include "tst_slidelistview.moc"
