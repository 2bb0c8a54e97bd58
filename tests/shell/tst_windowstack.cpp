#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"

#include <QDialog>
#include <QLineEdit>

class WindowStackTest : public TestCase
{
    Q_OBJECT

private slots:
    void theNextBelowBecomesActive();
    void aWindowShownAgainAtOnceIsActive();
    void raisingChangesTheOrder();
    void aWindowThatGoesAndComesBackAtOnce();
    void aWindowWithoutFocusIsNeverActive();
    void thePictureHasTheTopmostLast();
};

static void place(QWidget *window, const QRect &rect, Qt::GlobalColor colour)
{
    window->setWindowFlag(Qt::FramelessWindowHint);
    window->setGeometry(rect);
    QPalette palette;
    palette.setColor(QPalette::Window, colour);
    window->setPalette(palette);
}

void WindowStackTest::theNextBelowBecomesActive()
{
    QWidget low;
    QLineEdit edit(&low);
    edit.setFocus();
    QVERIFY(PhoneKeys::showAndActivate(&low));
    QDialog middle, high;
    QVERIFY(PhoneKeys::showAndActivate(&middle));
    QVERIFY(PhoneKeys::showAndActivate(&high));
    // One that goes below the top changes nothing.
    middle.hide();
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::activeWindow(), &high);
    high.close();
    QTRY_COMPARE(QApplication::activeWindow(), &low);
    QVERIFY(edit.hasFocus());
}

void WindowStackTest::aWindowShownAgainAtOnceIsActive()
{
    QWidget screen;
    QDialog box(&screen);
    QVERIFY(PhoneKeys::showAndActivate(&screen));
    QVERIFY(PhoneKeys::showAndActivate(&box));
    box.hide();
    box.show();
    QTRY_COMPARE(QApplication::activeWindow(), &box);
}

void WindowStackTest::raisingChangesTheOrder()
{
    QWidget a, b;
    QVERIFY(PhoneKeys::showAndActivate(&a));
    QVERIFY(PhoneKeys::showAndActivate(&b));
    QCOMPARE(TestScreen::windows().windows(), (QList<QWidget *>{&a, &b}));
    a.raise();
    QTRY_COMPARE(QApplication::activeWindow(), &a);
    QCOMPARE(TestScreen::windows().windows(), (QList<QWidget *>{&b, &a}));
}

void WindowStackTest::aWindowThatGoesAndComesBackAtOnce()
{
    QLineEdit low, high;
    QVERIFY(PhoneKeys::showAndActivate(&low));
    QVERIFY(PhoneKeys::showAndActivate(&high));
    high.hide();
    high.show();
    QTRY_COMPARE(QApplication::activeWindow(), &high);
    QVERIFY(high.hasFocus());
}

void WindowStackTest::aWindowWithoutFocusIsNeverActive()
{
    QWidget screen;
    QVERIFY(PhoneKeys::showAndActivate(&screen));
    QWidget bar(nullptr, Qt::WindowDoesNotAcceptFocus);
    bar.show();
    QTRY_COMPARE(QApplication::activeWindow(), &screen);
    QCOMPARE(TestScreen::windows().top(), &screen);
}

void WindowStackTest::thePictureHasTheTopmostLast()
{
    QWidget low, high;
    place(&low, QRect(0, 26, 384, 134), Qt::blue);
    place(&high, QRect(0, 100, 384, 60), Qt::red);
    QWidget dim;
    dim.setAttribute(Qt::WA_TranslucentBackground);
    place(&dim, QRect(0, 0, 384, 160), Qt::green);
    QVERIFY(PhoneKeys::showAndActivate(&low));
    QVERIFY(PhoneKeys::showAndActivate(&high));
    QVERIFY(PhoneKeys::showAndActivate(&dim));
    const QImage picture = TestScreen::picture();
    QCOMPARE(picture.size(), QSize(384, 160));
    QCOMPARE(picture.pixelColor(10, 10), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(10, 50), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(10, 120), QColor(Qt::red));
}

PHONE_TEST_MAIN(WindowStackTest)
#include "tst_windowstack.moc"
