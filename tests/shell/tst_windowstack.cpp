#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"

#include <QDialog>
#include <QLineEdit>

using namespace PhoneKeys;

class WindowStackTest : public TestCase
{
    Q_OBJECT

private slots:
    void aWindowThatGoesAndComesBackAtOnce()
    {
        QWidget screen;
        QDialog box(&screen);
        QLineEdit other;
        QVERIFY(showAndActivate(&screen));
        for (QWidget *window : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&other)}) {
            QVERIFY(showAndActivate(window));
            window->hide();
            window->show();
            QTRY_COMPARE(QApplication::activeWindow(), window);
        }
        QVERIFY(other.hasFocus());
    }

    void raisingChangesTheOrder()
    {
        QWidget a, b, bar(nullptr, Qt::WindowDoesNotAcceptFocus); // which is never active
        QVERIFY(showAndActivate(&a) && showAndActivate(&b));
        QCOMPARE(TestScreen::windows().windows(), (QList<QWidget *>{&a, &b}));
        a.raise();
        QTRY_COMPARE(QApplication::activeWindow(), &a);
        QCOMPARE(TestScreen::windows().windows(), (QList<QWidget *>{&b, &a}));
        bar.show();
        QTRY_COMPARE(QApplication::activeWindow(), &a);
        QCOMPARE(TestScreen::windows().top(), &a);
    }

    void thePictureHasTheTopmostLast()
    {
        QWidget low, high, dim;
        dim.setAttribute(Qt::WA_TranslucentBackground);
        const auto show = [](QWidget &window, const QRect &place, const QColor &color) {
            window.setWindowFlag(Qt::FramelessWindowHint);
            window.setGeometry(place);
            window.setPalette(color);
            return showAndActivate(&window);
        };
        QVERIFY(show(low, {0, 26, 384, 134}, Qt::blue));
        QVERIFY(show(high, {0, 100, 384, 60}, Qt::red));
        QVERIFY(show(dim, {0, 0, 384, 160}, Qt::green));
        const QImage picture = TestScreen::picture();
        QCOMPARE(picture.size(), QSize(384, 160));
        QCOMPARE(picture.pixelColor(10, 10), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(10, 50), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(10, 120), QColor(Qt::red));
    }
};

PHONE_TEST_MAIN(WindowStackTest)
#include "tst_windowstack.moc"
