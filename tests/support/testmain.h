#ifndef TESTMAIN_H
#define TESTMAIN_H

#include "displaysetup.h"
#include "testscreen.h"

#include <QApplication>
#include <QTest>

/// The main function of a test program with screens: the phone's display, offscreen, with its fonts and its order
/// of windows.
#define PHONE_TEST_MAIN(TestClass)                                                                                 \
    int main(int argc, char **argv)                                                                                \
    {                                                                                                              \
        DisplaySetup::prepareEnvironment();                                                                        \
        QApplication app(argc, argv);                                                                              \
        DisplaySetup::prepareApplication();                                                                        \
        TestScreen screen;                                                                                         \
        TestClass test;                                                                                            \
        return QTest::qExec(&test, argc, argv);                                                                    \
    }

#endif
