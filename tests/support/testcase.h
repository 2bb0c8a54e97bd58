#ifndef TESTCASE_H
#define TESTCASE_H

#include <QObject>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <initializer_list>
#include <memory>
#include <utility>

/// The base of every test class: a Qt warning that was not announced fails the test function in which it came, and
/// so does an announced one that stayed away, or a window left open.
///
/// A class overrides `setUp` and `tearDown`, which run around each of its test functions. Each finds its folder
/// empty.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    virtual void setUp() { }
    virtual void tearDown() { }

    /// Announces one warning whose text contains this pattern.
    void expectWarning(const QString &pattern);

    std::unique_ptr<QTemporaryDir> m_dir;

private slots:
    void init();
    void cleanup();

private:
    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);

    static TestCase *s_running;
    QtMessageHandler m_formerHandler = nullptr;
    QList<QRegularExpression> m_expected;
    QStringList m_unexpected;
};

/// Nothing of a file that cannot be read.
QByteArray readFile(const QString &path);
/// Makes a file of this content and returns its path.
QString writeFile(const QString &path, const QByteArray &content);

/// The rows of a table of test data, each one struct: QFETCH(Case, c) gives it to the test function.
template <class Case> void addCases(std::initializer_list<std::pair<const char *, Case>> cases)
{
    QTest::addColumn<Case>("c");
    for (const auto &named : cases)
        QTest::newRow(named.first) << named.second;
}

#endif
