#include "expectation.h"
#include "script.h"
#include "testcase.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMap>
#include <QProcess>
#include <QScopedPointer>
#include <QTemporaryDir>

/// A screen as the phone describes it, and what it sent, with ' for ".
static const char Screen[]
    = "{'app': 'contact', 'screen': 'Contact', 'title': 'Contacts | All (1/3)', 'rows': ['김철수', 'Jane \\'J\\' "
      "Doe'], "
      "'softkeys': ['Add', '', '', 'Menu'], 'selected': -1, 'start': 6, 'size': 14, 'edit': null, "
      "'popup': {'class': 'MessageBox', 'message': 'Delete\\nall?', 'rows': []}, "
      "'toast': 'Saved', 'toasts': ['Copied']}";
static const char QuietScreen[] = "{'edit': '', 'popup': null, 'toast': null, 'toasts': ['Copied']}";
static const char Sent[] = "[{'target': 'call', 'command': 'dial(str,int)', 'args': ['0301', 2]}, "
                           "{'target': 'XCID', 'command': 'ui2http(str)', 'args': []}]";

static QJsonValue json(const char *text)
{
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(text).replace('\'', '"'));
    return document.isArray() ? QJsonValue(document.array()) : document.object();
}

/// A phone's control socket with answers that a test lays down for requests by their first word.
class FakePhone
{
public:
    /// Listens in this home.
    bool start(const QString &home)
    {
        QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
            QLocalSocket *client = m_server.nextPendingConnection();
            QObject::connect(client, &QLocalSocket::readyRead, &m_server, [this, client] {
                while (client->canReadLine())
                    answer(client);
            });
            QObject::connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        });
        return QDir(home).mkpath("run") && m_server.listen(home + "/run/phonectl.sock");
    }

    QMap<QString, QJsonValue> answers;
    QMap<QString, QString> refusals;
    QString deadly; ///< it hangs up instead of answering this
    QStringList requests; ///< each as its words with blanks between

private:
    void answer(QLocalSocket *client)
    {
        QStringList words;
        const QJsonArray array = QJsonDocument::fromJson(client->readLine()).array();
        for (const QJsonValue &word : array)
            words.append(word.toString());
        const QString request = words.value(0);
        requests.append(words.join(' '));
        if (request == deadly)
            return client->abort();
        QJsonObject line{{"ok", !refusals.contains(request)}, {"error", refusals.value(request)}};
        if (answers.contains(request))
            line.insert("value", answers.value(request));
        client->write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    }

    QLocalServer m_server;
};

class TestPhoneCtl : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_home.reset(new QTemporaryDir);
        m_phone.reset(new FakePhone);
        QVERIFY(m_phone->start(m_home->path()));
    }
    void tearDown() override
    {
        m_phone.reset();
        m_home.reset();
    }

private slots:
    void splitsLines()
    {
        const QList<QPair<QString, QStringList>> lines = {
            {"  key  Up\tDown \r\n", {"key", "Up", "Down"}},
            {"key Up # go up", {"key", "Up"}},
            {"# 'open", {}},
            {"text a#b '#'", {"text", "a#b", "#"}},
            {"text \"a \\\"b\\\" \\\\ \\n 'c'\"", {"text", "a \"b\" \\ \\n 'c'"}},
            {"text 'a \"b\" \\'", {"text", "a \"b\" \\"}},
            {"text $'a\\nb\\'\\t\\\\\\x' a$'b'", {"text", "a\nb'\t\\\\x", "ab"}},
            {"a\"b c\"'d'\\ \\\"e $1", {"ab cd \"e", "$1"}},
            {"softkeys '' \"\" $''", {"softkeys", "", "", ""}},
        };
        QStringList words;
        for (const auto &line : lines) {
            QCOMPARE(Script::split(line.first, &words), QString());
            QCOMPARE(words, line.second);
        }
        for (const char *line : {"text 'a", "text \"a\\\"", "text $'a\\'", "text a\\"})
            QVERIFY2(!Script::split(line, &words).isEmpty(), line);
    }

    void compares()
    {
        // What a script expects in vain must be noticed; that it holds is seen by every script that runs.
        const QString failing
            = "app idle;softkeys Add '' '' '';rows 김철수;rows;row 2 '';row -1 '';start 0;edit '';"
              "no popup;sent call dial(str,int) 0301 2 '';sent call dial(str,int) 2;"
              "sent cm dial(str,int);no sent call dial(str,int)";
        const QString holding = "popup-rows;selected -1;message $'Delete\\nall?';toast Copied;toast Saved;"
                                "sent call dial(str,int) 0301 2;no sent XCID dial(str,int)";
        for (const QString &lines : {failing, holding}) {
            for (const QString &line : lines.split(';')) {
                QStringList words;
                Script::split(line, &words);
                Expectation expectation;
                QCOMPARE(expectation.parse(words), QString());
                const QJsonValue there = json(words.contains("sent") ? Sent : Screen);
                QVERIFY2(expectation.holds(there) == (lines == holding), qPrintable(line));
            }
        }
    }

    void reportsWhatIsThere()
    {
        using Report = std::tuple<QStringList, const char *, const char *>; // what is wanted, of which screen
        const QList<Report> reports = {
            {{"title", "Menu"}, Screen, "title \"Menu\", found \"Contacts | All (1/3)\""},
            {{"row", "1", "Jo"}, Screen, "row 1 \"Jo\", found \"Jane \\\"J\\\" Doe\""},
            {{"row", "7", "Jo"}, Screen, "row 7 \"Jo\", found nothing"},
            {{"rows"}, Screen, "rows (none), found \"김철수\" \"Jane \\\"J\\\" Doe\""},
            {{"toast", "Gone"}, Screen, "toast \"Gone\", found \"Copied\" \"Saved\""},
            {{"popup", "Toast"}, QuietScreen, "popup \"Toast\", found nothing"},
        };
        for (const auto &[words, screen, report] : reports) {
            Expectation expectation;
            QCOMPARE(expectation.parse(words), QString());
            QVERIFY(!expectation.holds(json(screen)));
            QCOMPARE(expectation.wanted() + ", found " + expectation.found(json(screen)), QString(report));
        }
    }

    void scriptStopsAtTheFirstFailure()
    {
        m_phone->answers["screen"] = json(Screen);
        const QString script = write("a.keys", "# opens nothing\nkey Up\n\nexpect title 'Menu'\nkey Down\n");
        QCOMPARE(run({"run", script}), 1);
        QCOMPARE(m_errors, script + ":4: expected title \"Menu\", found \"Contacts | All (1/3)\"\n");
        QVERIFY(!m_phone->requests.contains("press Down"));

        m_phone->refusals["launch"] = "no such application";
        QCOMPARE(run({"run", write("b.keys", "launch what")}), 1);
        QVERIFY2(m_errors.endsWith("b.keys:1: no such application\n"), qPrintable(m_errors));
    }

    void nothingRunsWithAFault()
    {
        for (const char *line : {"expect tittle x", "sleep soon", "watch", "keys Up", "text 'open"}) {
            QCOMPARE(run({"run", write("a.keys", "key Up\n" + QString(line))}), 2);
            QVERIFY2(m_errors.contains("a.keys:2: "), qPrintable(m_errors));
        }
        for (const char *line : {"", "jump", "hold Up", "press Up Down", "expect selected first",
                                 "run /nonexistent.keys", "--home /nonexistent key Up"}) {
            QCOMPARE(run(QString(line).split(' ', Qt::SkipEmptyParts)), 2);
            QVERIFY2(m_errors.startsWith("phonectl: "), qPrintable(m_errors));
        }
        QCOMPARE(m_phone->requests, QStringList());
    }

    void phoneDiesMeanwhile()
    {
        m_phone->deadly = "release";
        QCOMPARE(run({"key", "Up"}), 2);
        QCOMPARE(m_errors, QString("phonectl: the phone has gone\n"));
    }

    void watchesUntilThePhoneGoes()
    {
        m_phone->answers["watch"] = "UE5H";
        start({"watch"});
        QString out;
        QVERIFY(QTest::qWaitFor([&] { return (out += m_program.readAllStandardOutput()).contains('\n'); }, 20000));
        QCOMPARE(out, QString("UE5H\n"));
        m_phone.reset();
        QCOMPARE(end(), 2);
    }

private:
    void start(const QStringList &words)
    {
        m_program.start(QCoreApplication::applicationDirPath() + "/../bin/phonectl",
                        QStringList{"--home", m_home->path()} + words);
    }
    /// Waits for the program's end: its exit code.
    int end()
    {
        if (!QTest::qWaitFor([this] { return m_program.state() == QProcess::NotRunning; }, 20000))
            m_program.kill();
        m_errors = QString::fromUtf8(m_program.readAllStandardError());
        return m_program.exitStatus() == QProcess::NormalExit ? m_program.exitCode() : -1;
    }
    int run(const QStringList &words)
    {
        start(words);
        return end();
    }
    QString write(const QString &name, const QString &text)
    {
        QFile file(m_home->filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(text.toUtf8());
        return file.fileName();
    }

    QScopedPointer<QTemporaryDir> m_home;
    QScopedPointer<FakePhone> m_phone;
    QProcess m_program;
    QString m_errors;
};

QTEST_GUILESS_MAIN(TestPhoneCtl)
#include "tst_phonectl.moc"
