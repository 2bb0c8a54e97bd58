#include "expectation.h"
#include "fakephone.h"
#include "script.h"
#include "testcase.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QScopedPointer>
#include <QTemporaryDir>

class TestPhoneCtl : public TestCase
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void splitsLines();
    void compares();
    void reportsWhatIsThere();

    void scriptStopsAtTheFirstFailure();
    void scriptIsCheckedBeforeItRuns();
    void cannotRun();
    void phoneDiesMeanwhile();
    void watchesUntilThePhoneGoes();

private:
    struct Ended
    {
        int code;
        QString out;
        QString err;
    };
    void start(const QStringList &words);
    Ended end();
    Ended run(const QStringList &words);
    QString write(const QString &name, const QString &text);

    QScopedPointer<QTemporaryDir> m_home;
    QScopedPointer<FakePhone> m_phone;
    QProcess m_program;
};

static QJsonValue json(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}

/// A screen as the phone describes it.
static const char Screen[] = R"json({"app": "contact", "screen": "Contact", "title": "Contacts | All (1/3)",
    "softkeys": ["Add", "", "", "Menu"], "rows": ["김철수", "Jane \"J\" Doe"], "selected": -1, "start": 6, "size": 14,
    "edit": null, "popup": {"class": "MessageBox", "message": "Delete\nall?", "rows": []}, "toast": "Saved",
    "toasts": ["Copied"]})json";

static const char QuietScreen[] = R"json({"edit": "", "popup": null, "toast": null, "toasts": ["Copied"]})json";

static const char Sent[] = R"json([{"target": "call", "command": "dial(str,int)", "args": ["0301", 2]},
    {"target": "XCID", "command": "ui2http(str)", "args": []}])json";

void TestPhoneCtl::setUp()
{
    m_home.reset(new QTemporaryDir);
    m_phone.reset(new FakePhone);
    QVERIFY(m_phone->start(m_home->path()));
}

void TestPhoneCtl::tearDown()
{
    m_phone.reset();
    m_home.reset();
}

void TestPhoneCtl::start(const QStringList &words)
{
    m_program.start(QCoreApplication::applicationDirPath() + "/../bin/phonectl",
                    QStringList{"--home", m_home->path()} + words);
}

TestPhoneCtl::Ended TestPhoneCtl::end()
{
    if (!QTest::qWaitFor([this] { return m_program.state() == QProcess::NotRunning; }, 20000))
        m_program.kill();
    return {m_program.exitStatus() == QProcess::NormalExit ? m_program.exitCode() : -1,
            QString::fromUtf8(m_program.readAllStandardOutput()),
            QString::fromUtf8(m_program.readAllStandardError())};
}

TestPhoneCtl::Ended TestPhoneCtl::run(const QStringList &words)
{
    start(words);
    return end();
}

QString TestPhoneCtl::write(const QString &name, const QString &text)
{
    QFile file(m_home->filePath(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toUtf8());
    return file.fileName();
}

void TestPhoneCtl::splitsLines()
{
    const QList<QPair<QString, QStringList>> lines = {
        {"  key  Up\tDown \r\n", {"key", "Up", "Down"}},
        {"key Up # go up", {"key", "Up"}},
        {"# 'open", {}},
        {"text a#b '#'", {"text", "a#b", "#"}},
        {R"(text "a \"b\" \\ \n 'c'")", {"text", R"(a "b" \ \n 'c')"}},
        {R"(text 'a "b" \')", {"text", R"(a "b" \)"}},
        {R"(text $'a\nb\'\t\\\x' a$'b')", {"text", "a\nb'\t\\\\x", "ab"}},
        {R"(a"b c"'d'\ \"e $1)", {"ab cd \"e", "$1"}},
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

void TestPhoneCtl::compares()
{
    // What a script expects in vain must be noticed; that it holds is seen by every script that runs.
    const QList<QStringList> failing = {
        {"app", "idle"},
        {"softkeys", "Add", "", "", ""},
        {"rows", "김철수"},
        {"rows"},
        {"row", "2", ""},
        {"row", "-1", ""},
        {"start", "0"},
        {"edit", ""},
        {"toast", "Gone"},
        {"no", "popup"},
        {"no", "toast"},
        {"sent", "call", "dial(str,int)", "0301", "2", ""},
        {"sent", "call", "dial(str,int)", "2"},
        {"sent", "cm", "dial(str,int)"},
        {"no", "sent", "call", "dial(str,int)"},
    };
    const QList<QStringList> holding = {{"popup-rows"},
                                        {"selected", "-1"},
                                        {"message", "Delete\nall?"},
                                        {"toast", "Copied"},
                                        {"toast", "Saved"},
                                        {"sent", "call", "dial(str,int)", "0301", "2"},
                                        {"no", "sent", "XCID", "dial(str,int)"}};
    for (const QStringList &words : holding + failing) {
        Expectation expectation;
        QCOMPARE(expectation.parse(words), QString());
        const QJsonValue there
            = words.contains("sent") ? QJsonValue(QJsonDocument::fromJson(Sent).array()) : json(Screen);
        QVERIFY2(expectation.holds(there) == holding.contains(words), qPrintable(words.join(' ')));
    }
}

void TestPhoneCtl::reportsWhatIsThere()
{
    const struct
    {
        QStringList words;
        const char *screen, *report;
    } reports[] = {
        {{"title", "Menu"}, Screen, R"=(title "Menu", found "Contacts | All (1/3)")="},
        {{"selected", "3"}, Screen, "selected 3, found -1"},
        {{"row", "1", "Jo"}, Screen, R"(row 1 "Jo", found "Jane \"J\" Doe")"},
        {{"row", "7", "Jo"}, Screen, R"(row 7 "Jo", found nothing)"},
        {{"rows"}, Screen, R"(rows (none), found "김철수" "Jane \"J\" Doe")"},
        {{"toast", "Gone"}, Screen, R"(toast "Gone", found "Copied" "Saved")"},
        {{"popup", "Toast"}, QuietScreen, R"(popup "Toast", found nothing)"},
        {{"edit", "x"}, QuietScreen, R"(edit "x", found "")"},
        {{"no", "toast"}, Screen, R"(no toast, found "Saved")"},
    };
    for (const auto &one : reports) {
        Expectation expectation;
        QCOMPARE(expectation.parse(one.words), QString());
        QVERIFY(!expectation.holds(json(one.screen)));
        QCOMPARE(expectation.wanted() + ", found " + expectation.found(json(one.screen)), QString(one.report));
    }
}

void TestPhoneCtl::scriptStopsAtTheFirstFailure()
{
    m_phone->setAnswers("screen", {json(Screen)});
    const QString script = write("a.keys", "# opens nothing\nkey Up\n\nexpect title 'Menu'\nkey Down\n");
    Ended ended = run({"run", script});
    QCOMPARE(ended.code, 1);
    QCOMPARE(ended.err, script + ":4: expected title \"Menu\", found \"Contacts | All (1/3)\"\n");
    QVERIFY(!m_phone->requests().contains("press Down"));

    m_phone->setRefusal("launch", "no such application");
    ended = run({"run", write("b.keys", "launch what")});
    QCOMPARE(ended.code, 1);
    QVERIFY2(ended.err.endsWith("b.keys:1: no such application\n"), qPrintable(ended.err));
}

void TestPhoneCtl::scriptIsCheckedBeforeItRuns()
{
    for (const char *line : {"expect tittle x", "sleep soon", "watch", "keys Up", "text 'open"}) {
        const Ended ended = run({"run", write("a.keys", "key Up\n" + QString(line))});
        QCOMPARE(ended.code, 2);
        QVERIFY2(ended.err.contains("a.keys:2: "), qPrintable(ended.err));
    }
    QCOMPARE(m_phone->requests(), QStringList());
}

void TestPhoneCtl::cannotRun()
{
    const QList<QStringList> faults = {
        {},
        {"jump"},
        {"hold", "Up"},
        {"press", "Up", "Down"},
        {"expect", "selected", "first"},
        {"run", "/nonexistent.keys"},
        {"--home", "/nonexistent", "key", "Up"},
    };
    for (const QStringList &words : faults) {
        const Ended ended = run(words);
        QCOMPARE(ended.code, 2);
        QVERIFY2(ended.err.startsWith("phonectl: "), qPrintable(ended.err));
    }
    QCOMPARE(m_phone->requests(), QStringList());
}

void TestPhoneCtl::phoneDiesMeanwhile()
{
    m_phone->setDeadly("release");
    const Ended ended = run({"key", "Up"});
    QCOMPARE(ended.code, 2);
    QCOMPARE(ended.err, QString("phonectl: the phone has gone\n"));
}

void TestPhoneCtl::watchesUntilThePhoneGoes()
{
    m_phone->setAnswers("watch", {QString("UE5H")});
    start({"watch"});
    QString out;
    QVERIFY(QTest::qWaitFor([&] { return (out += m_program.readAllStandardOutput()).contains('\n'); }, 20000));
    QCOMPARE(out, QString("UE5H\n"));
    m_phone.reset();
    QCOMPARE(end().code, 2);
}

QTEST_GUILESS_MAIN(TestPhoneCtl)
#include "tst_phonectl.moc"
