#include "displaysetup.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QStyleFactory>

// Outside the namespace, as the macro asks for it.
static void initResources()
{
    Q_INIT_RESOURCE(ui);
    Q_INIT_RESOURCE(shell);
}

namespace DisplaySetup {

void prepareEnvironment(const QString &platform)
{
    qputenv("QT_FONT_DPI", "72");
    // One event dispatcher everywhere, the phone's own: another library's has other ideas of nested event loops.
    qputenv("QT_NO_GLIB", "1");
    if (!platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", platform.toLocal8Bit());
    else if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void prepareApplication()
{
    initResources();
    // Roboto Condensed is narrow enough for a 92 pixel soft key at 18 points; a Nanum face has the Hangul.
    const QString phoneFamily = QStringLiteral("1V_02_GO_UI");
    QFont::insertSubstitutions(phoneFamily, {"Roboto Condensed", "NanumBarunGothic", "NanumGothic"});
    QFont font(phoneFamily, 20);
    QApplication::setFont(font);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_General, false);
}

}
