// Every text of every screen in every language has room where it stands. All names in it are short, so whatever is
// cut is a word of the phone's own. PHONE_SHEETS=FOLDER also leaves a picture of all screens for each language.

#include "everyapp.h"
#include "phonekey.h"
#include "phonescript.h"
#include "softkeypainting.h"
#include "testcase.h"
#include "testmain.h"
#include "textrecorder.h"
#include "toast.h"

#include <QPainter>

class FitTest : public TestCase
{
    Q_OBJECT

private slots:
    void everyTextHasRoom_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en_US", "de_DE", "es_ES", "it_IT", "ru_RU", "tr_TR", "ko_KR"})
            QTest::newRow(language) << language;
    }

    void everyTextHasRoom()
    {
        QFETCH(QString, language);
        m_apps.reset(new EveryApp(language));
        m_apps->idle.start(nullptr, nullptr);
        PhoneScript script;
        for (const QByteArray &road : readFile(QFINDTESTDATA("roads.txt")).split('\n'))
            addRoad(&script, QString::fromUtf8(road).trimmed());
        m_faults = QStringList();
        m_pictures.clear();
        m_seen.clear();
        const QString fault = script.run();
        m_toast.reset();
        m_apps.reset();
        QCOMPARE(fault, QString());
        saveSheet(language);
        m_faults.removeDuplicates();
        for (const QString &text : qAsConst(m_faults))
            qInfo("%s", qPrintable(text));
        QVERIFY(m_faults.isEmpty());
        if (language == "en_US")
            QCOMPARE(unseenTexts().join(", "), QString());
    }

private:
    void addRoad(PhoneScript *script, const QString &road)
    {
        if (road.startsWith('#') || road.isEmpty())
            return;
        static const QRegularExpression blanks("(?<!\\\\) ");
        const QStringList words = road.split(blanks);
        for (const QString &word : words) {
            auto turns = std::make_shared<int>(0);
            script->call(action(word)).until(word + " to be done", [turns] {
                return !PhoneKey::pending() && ++*turns > 2;
            });
        }
        script->call([this] { m_apps->goHome(); }).untilActive("Idle");
    }

    std::function<void()> action(const QString &word)
    {
        const QMap<QString, std::function<void()>> actions{{"@", [this] { look(); }},
                                                           {"people", [this] { m_apps->addPeople(); }},
                                                           {"book", [this] { m_apps->addPhonebook(); }},
                                                           {"directory", [this] { m_apps->addDirectory(); }},
                                                           {"found", [this] { m_apps->answer(true); }},
                                                           {"nothing", [this] { m_apps->answer(false); }}};
        if (actions.contains(word))
            return actions.value(word);
        if (word.startsWith('='))
            return [word] { PhoneKey::postText(word.mid(1)); };
        const QStringList parts = word.split(':');
        const QString what = parts.first();
        if (what == "launch")
            return [parts] { theCore->launch(parts.at(1), nullptr); };
        if (what == "groups")
            return [this, parts] { m_apps->addGroups(parts.at(1).toInt()); };
        if (what == "send") {
            const QStringList items = parts.mid(3);
            return [this, parts, items] { m_apps->phone.send(parts.at(1), parts.at(2), QVariant(items).toList()); };
        }
        if (what == "toast") {
            const QString text = QString(parts.at(2)).replace("\\n", "\n").remove('\\');
            return [this, parts, text] {
                const QByteArray context = parts.at(1).toLatin1();
                m_toast.reset(new Toast(QCoreApplication::translate(context, text.toUtf8()), 0, &m_apps->idle));
                m_toast->setIcon(QPixmap(":ui/images/widget/error_emoti.png"));
                m_toast->show();
            };
        }
        const int code = PhoneKey::code(word);
        if (code == 0)
            qWarning("%s is no word of a road", qPrintable(word));
        return [code] {
            PhoneKey::post(code, true);
            PhoneKey::post(code, false);
        };
    }

    void look()
    {
        const QImage picture = TestScreen::picture();
        if (!m_pictures.contains(picture))
            m_pictures.append(picture);
        const QList<QWidget *> windows = TestScreen::windows().windows();
        for (QWidget *window : windows)
            lookAt(window);
    }

    void lookAt(QWidget *window)
    {
        static constexpr qreal Touch = 0.75; // of a pixel
        const QList<DrawnText> texts = recordTexts(window);
        const auto report = [&](const DrawnText &text, const QString &what) {
            const QString place
                = QString("%1 in %2")
                      .arg(text.widget->metaObject()->className(), window->metaObject()->className());
            m_faults.append(QString("\"%1\" (%2) %3").arg(text.text, place, what));
        };
        for (const DrawnText &text : texts) {
            m_seen += QString(text.text).remove(' ');
            const bool isKey = text.widget->inherits("TailButton") || text.widget->inherits("ImageButton")
                || text.widget->inherits("TextButton");
            const int outline = isKey ? SoftKeyPainting::OutlineSide : 0;
            const qreal left = text.ink.left() - text.place.left() - outline;
            const qreal right = text.place.right() - text.ink.right() - outline;
            const qreal top = text.ink.top() - text.place.top(), bottom = text.place.bottom() - text.ink.bottom();
            if (text.text.contains(QChar(0x2026)))
                report(text, "is shortened");
            if (qMin(left, right) < -Touch)
                report(text, QString("is too wide by %1").arg(-left - right));
            if (qMin(top, bottom) < -Touch)
                report(text, QString("is too high by %1").arg(-qMin(top, bottom)));
            for (const DrawnText &other : texts) {
                // What is selected is drawn again, over itself.
                if (&other < &text && other.widget == text.widget && other.text != text.text
                    && text.ink.intersects(other.ink))
                    report(text, '"' + other.text + "\" is in its way");
            }
        }
    }

    /// The texts to which no road leads, but for those that are drawn as a picture or not at all.
    QStringList unseenTexts()
    {
        static const QRegularExpression translation("<translation>([^<]*)</translation>"), border("[|\n()/]|%\\d");
        static const QStringList hidden{"Monday",   "Tuesday", "Wednesday", "Thursday",      "Friday",
                                        "Saturday", "Sunday",  "Office",    "Unassigned.wav"};
        QStringList unseen;
        for (const char *catalogue : {"toolkit/translations/toolkit.ts", "shell/translations/shell.ts",
                                      "apps/contact/translations/contact.ts"}) {
            const QByteArray words = readFile(QFINDTESTDATA(QString("../../phoneui/") + catalogue));
            if (words.isEmpty())
                qWarning("%s cannot be read", catalogue);
            auto matches = translation.globalMatch(QString::fromUtf8(words));
            while (matches.hasNext()) {
                const QString text = matches.next().captured(1).replace("&gt;", ">").replace("&lt;", "<");
                const QStringList pieces = text.split(border);
                for (const QString &piece : pieces) {
                    if (!hidden.contains(text) && !m_seen.contains(QString(piece).remove(' ')))
                        unseen.append(text);
                }
            }
        }
        return unseen;
    }

    void saveSheet(const QString &language)
    {
        static constexpr int Columns = 5, Gap = 8;
        const QString folder = qEnvironmentVariable("PHONE_SHEETS");
        if (folder.isEmpty())
            return;
        const QSize step = DisplaySetup::Size + QSize(Gap, Gap);
        const int rows = (m_pictures.size() + Columns - 1) / Columns;
        QImage sheet(Columns * step.width() + Gap, rows * step.height() + Gap, QImage::Format_RGB32);
        sheet.fill(Qt::gray);
        QPainter painter(&sheet);
        for (int i = 0; i < m_pictures.size(); ++i)
            painter.drawImage(Gap + i % Columns * step.width(), Gap + i / Columns * step.height(),
                              m_pictures.at(i));
        painter.end();
        QVERIFY(sheet.convertToFormat(QImage::Format_Grayscale8).save(folder + '/' + language + ".png"));
    }

    std::unique_ptr<EveryApp> m_apps;
    std::unique_ptr<Toast> m_toast;
    QList<QImage> m_pictures;
    QString m_seen; ///< all texts, without blanks
    QStringList m_faults;
};

PHONE_TEST_MAIN(FitTest)
#include "tst_fit.moc"
