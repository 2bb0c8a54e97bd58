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
    void theNextBelowBecomesActive();
    void aWindowThatGoesAndComesBackAtOnce();
    void raisingChangesTheOrder();
    void thePictureHasTheTopmostLast();
};

void WindowStackTest::theNextBelowBecomesActive()
{
    QWidget low;
    QLineEdit edit(&low);
    edit.setFocus();
    QDialog middle, high;
    for (QWidget *window : {&low, static_cast<QWidget *>(&middle), static_cast<QWidget *>(&high)})
        QVERIFY(showAndActivate(window));
    // One that goes below the top changes nothing.
    middle.hide();
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::activeWindow(), &high);
    high.close();
    QTRY_COMPARE(QApplication::activeWindow(), &low);
    QVERIFY(edit.hasFocus());
}

void WindowStackTest::aWindowThatGoesAndComesBackAtOnce()
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

void WindowStackTest::raisingChangesTheOrder()
{
    QWidget a, b;
    QVERIFY(showAndActivate(&a));
    QVERIFY(showAndActivate(&b));
    QCOMPARE(TestScreen::windows().windows(), (QList<QWidget *>{&a, &b}));
    a.raise();
    QTRY_COMPARE(QApplication::activeWindow(), &a);
    QCOMPARE(TestScreen::windows().windows(), (QList<QWidget *>{&b, &a}));
    QWidget bar(nullptr, Qt::WindowDoesNotAcceptFocus); // is never active
    bar.show();
    QTRY_COMPARE(QApplication::activeWindow(), &a);
    QCOMPARE(TestScreen::windows().top(), &a);
}

void WindowStackTest::thePictureHasTheTopmostLast()
{
    QWidget low, high, dim;
    dim.setAttribute(Qt::WA_TranslucentBackground);
    const struct
    {
        QWidget *window;
        QRect place;
        Qt::GlobalColor color;
    } windows[] = {{&low, {0, 26, 384, 134}, Qt::blue},
                   {&high, {0, 100, 384, 60}, Qt::red},
                   {&dim, {0, 0, 384, 160}, Qt::green}};
    for (const auto &one : windows) {
        one.window->setWindowFlag(Qt::FramelessWindowHint);
        one.window->setGeometry(one.place);
        one.window->setPalette(QPalette(one.color));
        QVERIFY(showAndActivate(one.window));
    }
    const QImage picture = TestScreen::picture();
    QCOMPARE(picture.size(), QSize(384, 160));
    QCOMPARE(picture.pixelColor(10, 10), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(10, 50), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(10, 120), QColor(Qt::red));
}

PHONE_TEST_MAIN(WindowStackTest)
#include "tst_windowstack.moc"
