#include "listwindow.h"

#include "slidelistview.h"

class SlideListViewTest : public TestCase
{
    Q_OBJECT

private slots:
    void comesAndGoes()
    {
        const QRect target(20, 10, 300, 90);
        ListWindow<SlideListView> window;
        SlideListView *list = window.list;
        list->setVisible(false);
        list->setGeometry(target);
        QVERIFY(window.showNow());
        QSignalSpy shown(list, &SlideListView::showFinished), hidden(list, &SlideListView::hideFinished),
            closed(list, &SlideListView::closeFinished);
        for (int turn = 1; turn <= 4; ++turn) {
            list->show();
            if (turn == 4) { // once more while it leaves
                list->hide();
                list->show();
            }
            QVERIFY(list->isVisible() && list->geometry() != target);
            QTRY_COMPARE(shown.size(), turn);
            QCOMPARE(list->geometry(), target);

            turn == 2 ? void(list->close()) : list->hide();
            if (turn == 3)
                list->hide();
            QVERIFY2(!list->isVisible(), "it counts as shown while it leaves");
            QVERIFY(list->QWidget::isVisible());
            QTRY_VERIFY(!list->QWidget::isVisible());
            QCOMPARE(hidden.size(), turn - closed.size());
            QCOMPARE(closed.size(), turn > 1 ? 1 : 0);
        }
    }
};

PHONE_TEST_MAIN(SlideListViewTest)
#include "tst_slidelistview.moc"
