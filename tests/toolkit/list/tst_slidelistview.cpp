#include "listwindow.h"
#include "slidelistview.h"
#include "testcase.h"
#include "testmain.h"

#include <QPropertyAnimation>
#include <QSignalSpy>

using Leave = void (*)(SlideListView &);
Q_DECLARE_METATYPE(Leave)

static const QRect target(20, 10, 300, 90);

class SlideListViewTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_window.reset(new ListWindow<SlideListView>);
        m_window->list->setVisible(false);
        m_window->list->setGeometry(target);
        QVERIFY(m_window->showNow());
    }

    void tearDown() override { m_window.reset(); }

private slots:
    void waitsOffTheScreen_data();
    void waitsOffTheScreen();
    void comesAndGoes_data();
    void comesAndGoes();
    void isShownAgainWhileItLeaves();
    void timesAndCurves();

private:
    std::unique_ptr<ListWindow<SlideListView>> m_window;
};

void SlideListViewTest::waitsOffTheScreen_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QPoint>("waits");
    QTest::newRow("no slide") << 0 << QPoint(20, 10);
    QTest::newRow("from below") << 1 << QPoint(20, 10 + 100);
    QTest::newRow("from above") << 2 << QPoint(20, 10 - 100);
    QTest::newRow("from the left by the display") << 3 << QPoint(20 - 384, 10);
    QTest::newRow("from the right by the screen") << 4 << QPoint(20 + 200, 10);
}

void SlideListViewTest::waitsOffTheScreen()
{
    QFETCH(int, type);
    QFETCH(QPoint, waits);
    SlideListView &list = *m_window->list;
    QCOMPARE(list.getSlideType(), SlideListView::SlideFromBottom);
    QCOMPARE(list.getScreenRect(), QRect(0, 0, 384, 160));
    list.setScreenRect(QRect(0, 0, 200, 100));
    list.setSlideType(static_cast<SlideListView::eSlideType>(type));
    QCOMPARE(list.geometry(), QRect(waits, target.size()));
    list.setGeometry(target.x(), target.y(), 200, 50);
    QCOMPARE(list.geometry(), QRect(waits, QSize(200, 50)));
}

void SlideListViewTest::comesAndGoes_data()
{
    QTest::addColumn<Leave>("leave");
    QTest::addColumn<int>("hidden");
    QTest::addColumn<int>("closed");
    QTest::newRow("hidden") << Leave([](SlideListView &list) { list.hide(); }) << 1 << 0;
    QTest::newRow("closed") << Leave([](SlideListView &list) { list.close(); }) << 0 << 1;
    const auto twice = [](SlideListView &list) {
        list.hide();
        list.hide();
    };
    QTest::newRow("hidden twice") << Leave(twice) << 1 << 0;
}

void SlideListViewTest::comesAndGoes()
{
    QFETCH(Leave, leave);
    SlideListView &list = *m_window->list;
    list.setUseAnimation(false);
    QVERIFY(list.useAnimation());
    QSignalSpy shown(&list, &SlideListView::showFinished);
    QSignalSpy hidden(&list, &SlideListView::hideFinished);
    QSignalSpy closed(&list, &SlideListView::closeFinished);
    for (int turn = 1; turn <= 2; ++turn) {
        list.show();
        QVERIFY(list.isVisible());
        QVERIFY(list.geometry() != target);
        QTRY_COMPARE(shown.size(), turn);
        QCOMPARE(list.geometry(), target);

        leave(list);
        QVERIFY2(!list.isVisible(), "it counts as shown while it leaves");
        QVERIFY(list.QWidget::isVisible());
        QTRY_VERIFY(!list.QWidget::isVisible());
        QCOMPARE(list.geometry(), target.translated(0, 160));
        QTEST(int(hidden.size()) / turn, "hidden");
        QTEST(int(closed.size()) / turn, "closed");
    }
}

void SlideListViewTest::isShownAgainWhileItLeaves()
{
    SlideListView &list = *m_window->list;
    QSignalSpy shown(&list, &SlideListView::showFinished);
    QSignalSpy hidden(&list, &SlideListView::hideFinished);
    QSignalSpy closed(&list, &SlideListView::closeFinished);
    list.show();
    list.hide();
    list.show();
    QVERIFY(list.isVisible());
    QTRY_COMPARE(shown.size(), 1);
    QVERIFY(list.isVisible());
    QCOMPARE(list.geometry(), target);
    list.close();
    QTRY_COMPARE(closed.size(), 1);
    QVERIFY(hidden.isEmpty());
}

void SlideListViewTest::timesAndCurves()
{
    SlideListView &list = *m_window->list;
    const auto slides = list.findChildren<QPropertyAnimation *>();
    QCOMPARE(slides.at(0)->duration(), 100);
    QCOMPARE(slides.at(1)->duration(), 70);
    QCOMPARE(list.getHideDuration(), 100);
    QCOMPARE(slides.at(1)->easingCurve(), QEasingCurve(QEasingCurve::InQuad));
    QCOMPARE(list.getHideAnimationType(), QEasingCurve(QEasingCurve::Linear));
    list.setHideDuration(30);
    list.setShowAnimationType(QEasingCurve::InOutSine);
    QCOMPARE(slides.at(1)->duration(), 30);
    QCOMPARE(slides.at(0)->easingCurve(), list.getShowAnimationType());
}

PHONE_TEST_MAIN(SlideListViewTest)
#include "tst_slidelistview.moc"
