#include "ezxml.h"
#include "testcase.h"

#include <QDirIterator>
#include <QTextCodec>

#include <expat.h>

/// Follows a tree while Expat reads the same document, and notes the first place where they differ.
class Comparison
{
public:
    explicit Comparison(ezxml *root) : m_root(root) { }

    /// False when the document is damaged.
    bool run(const QByteArray &document)
    {
        m_parser = XML_ParserCreate(nullptr);
        XML_SetUserData(m_parser, this);
        XML_SetElementHandler(
            m_parser, [](void *self, const char *name, const char **pairs) { of(self)->start(name, pairs); },
            [](void *self, const char *) { of(self)->end(); });
        XML_SetCharacterDataHandler(m_parser, [](void *self, const char *text, int length) {
            of(self)->m_texts.last().append(text, length);
        });
        const bool isWhole = XML_Parse(m_parser, document.constData(), document.size(), 1) == XML_STATUS_OK;
        XML_ParserFree(m_parser);
        return isWhole;
    }
    QByteArray difference() const { return m_difference; }

private:
    static Comparison *of(void *self) { return static_cast<Comparison *>(self); }

    void expect(bool isSame, const char *what)
    {
        if (!isSame && m_difference.isEmpty())
            m_difference
                = QByteArray(what) + " in line " + QByteArray::number(int(XML_GetCurrentLineNumber(m_parser)));
    }

    void start(const char *name, const char **pairs)
    {
        ezxml *element = !m_open ? m_root : m_latest ? m_latest->ordered : m_open->child;
        expect(element && qstrcmp(element->name, name) == 0, name);
        if (!m_difference.isEmpty())
            return;
        expect(!m_open || (element->off == size_t(m_texts.last().size()) && element->parent == m_open), "place");
        for (int i = 0; pairs[i]; i += 2) {
            const bool isWritten = i < XML_GetSpecifiedAttributeCount(m_parser);
            expect(qstrcmp(ezxml_attr(element, pairs[i]), pairs[i + 1]) == 0, pairs[i]);
            expect(!isWritten || (element->attr[i] && qstrcmp(element->attr[i], pairs[i]) == 0), pairs[i]);
        }
        expect(!element->attr[XML_GetSpecifiedAttributeCount(m_parser)], "more attributes");
        m_open = element;
        m_latest = nullptr;
        m_texts.append(QByteArray());
    }

    void end()
    {
        if (!m_difference.isEmpty())
            return;
        expect(m_texts.takeLast() == m_open->txt, "text");
        expect(!(m_latest ? m_latest->ordered : m_open->child), "more elements");
        m_latest = m_open;
        m_open = m_open->parent;
    }

    ezxml *m_root;
    XML_Parser m_parser = nullptr;
    ezxml *m_open = nullptr;
    ezxml *m_latest = nullptr; // the last child of the open element
    QList<QByteArray> m_texts{QByteArray()};
    QByteArray m_difference;
};

static QByteArray utf16(const QByteArray &utf8, const char *codec)
{
    return QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(utf8)); // with a byte-order mark
}

/// The reader against Expat, over the documents that the installed packages hold.
class TestEzxmlExpat : public TestCase
{
    Q_OBJECT

private slots:
    void installedDocuments()
    {
        int compared = 0;
        for (const char *folder :
             {"/usr/share/mime", "/usr/share/X11/xkb/rules", "/usr/share/fontconfig/conf.avail"}) {
            QDirIterator files(folder, {"*.xml", "*.conf"}, QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QByteArray document = file.readAll();
                for (QByteArray text : {document, utf16(document, "UTF-16LE"), utf16(document, "UTF-16BE")}) {
                    ezxml *root = ezxml_parse_str(text.data(), size_t(text.size()));
                    Comparison comparison(root);
                    const bool isFit = comparison.run(document);
                    const QByteArray error = ezxml_error(root);
                    ezxml_free(root);
                    if (!isFit)
                        continue;
                    QVERIFY2(error.isEmpty(), file.fileName().toLocal8Bit() + ": " + error);
                    QVERIFY2(comparison.difference().isEmpty(),
                             file.fileName().toLocal8Bit() + ": " + comparison.difference());
                    ++compared;
                }
            }
        }
        qInfo("%d documents compared", compared);
        QVERIFY2(compared > 900, "the packages that hold the documents are missing");
    }
};

QTEST_GUILESS_MAIN(TestEzxmlExpat)
#include "tst_ezxmlexpat.moc"
