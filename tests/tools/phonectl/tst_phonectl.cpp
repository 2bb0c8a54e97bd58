#include "expectation.h"
#include "script.h"
#include "testcase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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

/// How phonectl reads a line, and what it makes of a screen.
class TestPhoneCtl : public TestCase
{
    Q_OBJECT

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
};

QTEST_GUILESS_MAIN(TestPhoneCtl)
#include "tst_phonectl.moc"
