#include "ezxml.h"
#include "testcase.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QTextCodec>

#include <expat.h>

/// A tree, freed at the end, of a text that is edited.
struct Tree
{
    explicit Tree(const QByteArray &document)
        : text(document), root(ezxml_parse_str(text.data(), size_t(text.size())))
    {
    }
    ~Tree() { ezxml_free(root); }
    Q_DISABLE_COPY(Tree)

    QByteArray text;
    ezxml *root;
};

/// An element as name, attributes, text and children: a[k=v]'text'{1:b''} with the child at offset 1.
static QByteArray dump(const ezxml *element)
{
    QByteArray text = element->name;
    for (char **pair = element->attr; *pair; pair += 2)
        text.append('[').append(pair[0]).append('=').append(pair[1]).append(']');
    text.append('\'').append(element->txt).append('\'');
    for (const ezxml *child = element->child; child; child = child->ordered)
        text += '{' + QByteArray::number(qulonglong(child->off)) + ':' + dump(child) + '}';
    return text;
}

/// For each element in document order the names and texts of its parent and of those that its lists lead to.
static QByteArray links(const ezxml *element)
{
    QByteArray text;
    for (const ezxml *other : {element->parent, element->next, element->sibling})
        text.append(other ? other->name : "-").append(' ').append(other ? other->txt : "");
    for (const ezxml *child = element->child; child; child = child->ordered)
        text += links(child);
    return text;
}

/// An item as programs write it, mostly like the others, sometimes not.
static QByteArray nearlyAlike(QRandomGenerator *random)
{
    const auto often = [random](const char *usual, const QByteArrayList &others) {
        return random->bounded(20) ? QByteArray(usual) : others[random->bounded(others.size())];
    };
    const QByteArray number = QByteArray::number(random->bounded(1000));
    QByteArray text = often("\n <item id=\"", {"<item  id=\"", "\n <item id='1' x=\"", "<item2 id=\""}) + number;
    text += often("\" k=\"v\">", {"&amp;\" k=\"v\">", "\">", "\"/>", "\r\n\">", "\""});
    for (int i = 1 + random->bounded(20) / 19; i >= 0; --i) {
        text += often("\n  <a>", {"<a>", "\r\n<a>", "\n  <!-- c --><a>", "x<a>", "&#10;<a b=\"\">"}) + number;
        text += often("</a>", {"&lt;\r\n&gt;</a>", "<![CDATA[]]></a>", "&none;</a>", "</a >", "</b>"});
        text += often("<b></b>", {"<b/>", "", "<b>&amp;</b>", "<b>\r</b>", "</b>"});
    }
    return text + often("\n </item>", {"\n</item>", "</item>", "\r</item>", "</item2>"});
}

static QByteArray items(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += "<item>" + QByteArray::number(i) + "</item><n" + QByteArray::number(i) + "/>";
    return text;
}

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

/// What the XML reader makes of single documents, whole and damaged, and of all that the installed packages hold.
class TestEzxml : public TestCase
{
    Q_OBJECT

private slots:
    void documents()
    {
        QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
        for (int i = 1; i < 40; ++i)
            bomb += QString("<!ENTITY e%1 '&e%2;&e%2;'>").arg(i).arg(i - 1).toLatin1();
        // What it shows, the document, its tree and the error.
        const QList<QByteArrayList> rows = {
            // Half a pair of surrogates in a name, and half a character at the end.
            {"halves", QByteArray("\377\376<\0\0\330a\0/\0>\0x", 13), "\357\277\275a''"},
            {"runs of all kinds", "<a>x<!-- - -- y -->&#65;<?p q?><![CDATA[<&amp;\r\n]]>z</a>", "a'xA<&amp;\nz'"},
            {"no reference", "<a>&nope; & &; &#; &#x; &#0; &#x110000; &#xd800; &#12 &lt</a>",
             "a'&nope; & &; &#; &#x; &#0; &#x110000; &#xd800; &#12 &lt'"},
            {"utf-8", "<\xc3\xa4>&#228;&#8364;&#x1f600;</\xc3\xa4>",
             "\xc3\xa4'\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80'"},
            {"line ends", "<a>1\r\n2\r3\n\r</a>", "a'1\n2\n3\n\n'"},
            {"attributes", "\xef\xbb\xbf<a b = \"1'\"\n\tc='2\"\r\n&#10;3'></a >", "a[b=1'][c=2\" \n3]''"},
            {"entities",
             "<!DOCTYPE a [<!ENTITY % p 'P'><!ENTITY i 'in &#38;lt; %p;'><!ENTITY o \"o&i;o\"><!ENTITY o 'no'>"
             "<!ENTITY x SYSTEM 'f'>]><a b='&o;'>&o;&x;</a>",
             "a[b=oin < Po]'oin < Po&x;'"},
            {"included declarations",
             "<!DOCTYPE a [<!ENTITY % p '<!ENTITY e \"1\">'> %p; %unknown; <!ENTITY e2 '2'>]><a>&e;&e2;</a>",
             "a'1&e2;'"},
            {"tokens",
             "<!DOCTYPE a [<!ATTLIST a t NMTOKENS #IMPLIED c CDATA #IMPLIED>]><a t=' x \n y ' c=' x \n '/>",
             "a[t=x y][c= x   ]''"},
            {"empty", "", "''", "1]: root tag missing"},
            {"no tag", "\n\nhello", "''", "3]: root tag missing"},
            {"behind a NUL", QByteArray("<a>1<b/>\0</a>", 13), "a'1'{1:b''}", "1]: unclosed tag <a>"},
            {"cut in a text", "<a>\n<b>12</b><b>34", "a'\n'{1:b'12'}{1:b''}", "2]: unclosed tag <b>"},
            {"wrong end", "<a\n><b></c></a>", "a''{0:b''}", "2]: unexpected closing tag </c>"},
            // The two names meet in one place of the tables.
            {"end of a like name", "<a><value>&lt;</value><value>1</value><vue>2</value></a>",
             "a''{0:value'<'}{0:value'1'}{0:vue'2'}", "1]: unexpected closing tag </value>"},
            {"two roots", "<a/>\n<b/>", "a''", "2]: markup outside of root element"},
            {"open quote", "<a b='1></a>", "''", "1]: missing '"},
            {"no value", "<a b></a>", "''", "1]: missing ="},
            {"less-than in a tag", "<a <b/>", "''", "1]: unexpected <"},
            {"less-than in a text", "<a>1 < 2</a>", "a'1 '", "1]: unexpected <"},
            {"open comment", "<a><!-- -- ></a>", "a''", "1]: unclosed <!--"},
            {"open document type", "<!DOCTYPE a [<!ENTITY e 'x'>", "''", "1]: unclosed <!DOCTYPE"},
            {"open attribute list", "<!DOCTYPE a [<!ATTLIST a b CDATA", "''", "1]: unclosed <!ATTLIST"},
            {"bad attribute list", "<!DOCTYPE a [<!ATTLIST a b CDATA x>]><a/>", "''", "1]: malformed <!ATTLIST"},
            {"circle", "<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a/>", "''",
             "1]: circular entity declaration &e"},
            {"circle of parameters", "<!DOCTYPE a [<!ENTITY % p '&#37;p;'>%p;]><a/>", "''",
             "1]: circular entity declaration &p"},
            {"bomb", bomb + "]><a>1<b/>&e39;</a>", "a'1'{1:b''}", "1]: entities expand too far"},
            {"long name", "<a></" + QByteArray(200, 'x') + ">", "a''",
             "1]: unexpected closing tag </" + QByteArray(81, 'x')}};
        for (const QByteArrayList &row : rows) {
            const Tree tree(row.at(1));
            const QByteArray error = row.size() > 3 ? "[error near line " + row.at(3) : "";
            QCOMPARE(row.at(0) + ": " + dump(tree.root) + ezxml_error(tree.root),
                     row.at(0) + ": " + row.at(2) + error);
        }
    }

    void lists()
    {
        const Tree tree("<r><item>1</item><data>2</data><item>3</item><x/></r>");
        ezxml *first = ezxml_child(tree.root, "item");
        ezxml *data = ezxml_child(tree.root, "data");
        QVERIFY(first->ordered == data && first->sibling == data && first->next->sibling == data);
        QCOMPARE(first->next->txt, "3");
        QCOMPARE(ezxml_idx(first, 1), data->ordered);
        QVERIFY(!data->next && data->sibling == ezxml_child(tree.root, "x"));
        QVERIFY(!ezxml_child(tree.root, "nothing") && !ezxml_child(nullptr, "item") && !ezxml_attr(nullptr, "a"));
    }

    /// So many names that they are no longer looked through one by one, twice over.
    void manyNames()
    {
        const Tree tree("<r>" + items(30) + items(40) + "</r>");
        int count = 0;
        for (const ezxml *item = ezxml_child(tree.root, "item"); item; item = item->next, ++count)
            QCOMPARE(QByteArray(item->txt).toInt(), count < 30 ? count : count - 30);
        QCOMPARE(count, 70);
        QCOMPARE(ezxml_idx(ezxml_child(tree.root, "n29"), 1)->ordered->name, "item");
        QCOMPARE(ezxml_idx(ezxml_child(tree.root, "n29"), 2), nullptr);
    }

    void deepNesting()
    {
        const int depth = 300000;
        const Tree tree(QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth - 1));
        int found = 0;
        for (const ezxml *element = tree.root; element; element = element->child)
            ++found;
        QCOMPARE(found, depth);
        QCOMPARE(QByteArray(ezxml_error(tree.root)), "[error near line 1]: unclosed tag <a>");
    }

    void declarations()
    {
        const Tree tree("<?p one?><!DOCTYPE a [<!ATTLIST b c CDATA '&lt;' d (x|y) ' y ' e ID #IMPLIED><?p two?>]>"
                        "<a><b d='x'/></a>");
        ezxml *b = ezxml_child(tree.root, "b");
        QCOMPARE(ezxml_attr(b, "c"), "<");
        QCOMPARE(ezxml_attr(b, "d"), "x");
        QCOMPARE(ezxml_attr(b, "e"), nullptr);
        const char **instructions = ezxml_pi(b, "p");
        QCOMPARE(QByteArray(instructions[0]) + instructions[1], QByteArray("onetwo"));
        QVERIFY(!instructions[2] && !ezxml_pi(b, "none")[0]);
    }

    /// Elements like one before them are read at once, except behind a document type: the tree is the same.
    void alike()
    {
        QRandomGenerator random(1);
        int whole = 0;
        for (int round = 0; round < 3000; ++round) {
            QByteArray document = "<r>";
            for (int i = random.bounded(20); i >= 0; --i)
                document += nearlyAlike(&random);
            document += "</r>";
            const Tree atOnce(document), each("<!DOCTYPE r>" + document);
            whole += *ezxml_error(atOnce.root) == 0;
            QCOMPARE(ezxml_error(atOnce.root), ezxml_error(each.root));
            QCOMPARE(dump(atOnce.root), dump(each.root));
            QCOMPARE(links(atOnce.root), links(each.root));
        }
        QVERIFY(whole > 300 && whole < 2700);
    }

    void files()
    {
        QCOMPARE(ezxml_parse_file("/nowhere/to/be/found.xml"), nullptr);
        QCOMPARE(ezxml_parse_file("/"), nullptr); // a folder opens and cannot be read
        QCOMPARE(ezxml_parse_fd(-1), nullptr);
        for (const QByteArray &document : {QByteArray(), "<a>" + QByteArray(20000, 'x') + "</a>"}) {
            QTemporaryFile file;
            QVERIFY(file.open() && file.write(document) >= 0 && file.flush());
            for (const bool isStream : {false, true}) {
                std::FILE *opened = std::fopen(file.fileName().toLocal8Bit(), "r");
                ezxml *root = isStream ? ezxml_parse_fp(opened) : ezxml_parse_fd(fileno(opened));
                QCOMPARE(qstrlen(root->txt), document.isEmpty() ? 0u : 20000u);
                QCOMPARE(ezxml_error(root), document.isEmpty() ? "[error near line 1]: root tag missing" : "");
                ezxml_free(root);
                std::fclose(opened);
            }
        }
    }

    /// The reader against Expat.
    void installedDocuments()
    {
        int compared = 0;
        for (const char *folder :
             {"/usr/share/mime", "/usr/share/X11/xkb/rules", "/usr/share/fontconfig/conf.avail"}) {
            QDirIterator files(folder, {"*.xml", "*.conf"}, QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QByteArray document = readFile(files.next());
                for (QByteArray text : {document, utf16(document, "UTF-16LE"), utf16(document, "UTF-16BE")}) {
                    ezxml *root = ezxml_parse_str(text.data(), size_t(text.size()));
                    Comparison comparison(root);
                    const bool isFit = comparison.run(document);
                    const QByteArray error = ezxml_error(root);
                    ezxml_free(root);
                    if (!isFit)
                        continue;
                    QVERIFY2(error.isEmpty(), files.filePath().toLocal8Bit() + ": " + error);
                    QVERIFY2(comparison.difference().isEmpty(),
                             files.filePath().toLocal8Bit() + ": " + comparison.difference());
                    ++compared;
                }
            }
        }
        qInfo("%d documents compared", compared);
        QVERIFY2(compared > 900, "the packages that hold the documents are missing");
    }
};

QTEST_GUILESS_MAIN(TestEzxml)
#include "tst_ezxml.moc"
