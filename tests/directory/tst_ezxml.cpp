#include "ezxml.h"
#include "testcase.h"

#include <QRandomGenerator>
#include <QTemporaryFile>

#include <fcntl.h>
#include <unistd.h>

/// A tree, freed at the end, of a text that is edited.
class Tree
{
public:
    explicit Tree(const QByteArray &document)
        : m_text(document), m_root(ezxml_parse_str(m_text.data(), size_t(m_text.size())))
    {
    }
    ~Tree() { ezxml_free(m_root); }
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;

    ezxml *root() const { return m_root; }
    QByteArray error() const { return ezxml_error(m_root); }

private:
    QByteArray m_text;
    ezxml *m_root;
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

/// What the XML reader makes of single documents, whole and damaged.
class TestEzxml : public TestCase
{
    Q_OBJECT

private slots:
    void documents_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("tree");
        QTest::addColumn<QByteArray>("error");
        const auto row = [](const char *name, const QByteArray &document, const QByteArray &tree,
                            const QByteArray &error = {}) {
            QTest::newRow(name) << document << tree << (error.isEmpty() ? error : "[error near line " + error);
        };
        row("runs of all kinds", "<a>x<!-- - -- y -->&#65;<?p q?><![CDATA[<&amp;\r\n]]>z</a>", "a'xA<&amp;\nz'");
        row("no reference", "<a>&nope; & &; &#; &#x; &#0; &#x110000; &#xd800; &#12 &lt</a>",
            "a'&nope; & &; &#; &#x; &#0; &#x110000; &#xd800; &#12 &lt'");
        row("utf-8", "<\xc3\xa4>&#228;&#8364;&#x1f600;</\xc3\xa4>",
            "\xc3\xa4'\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80'");
        row("line ends", "<a>1\r\n2\r3\n\r</a>", "a'1\n2\n3\n\n'");
        row("attributes", "\xef\xbb\xbf<a b = \"1'\"\n\tc='2\"\r\n&#10;3'></a >", "a[b=1'][c=2\" \n3]''");
        row("entities",
            "<!DOCTYPE a [<!ENTITY % p 'P'><!ENTITY i 'in &#38;lt; %p;'><!ENTITY o \"o&i;o\"><!ENTITY o 'no'>"
            "<!ENTITY x SYSTEM 'f'>]><a b='&o;'>&o;&x;</a>",
            "a[b=oin < Po]'oin < Po&x;'");
        row("included declarations",
            "<!DOCTYPE a [<!ENTITY % p '<!ENTITY e \"1\">'> %p; %unknown; <!ENTITY e2 '2'>]>"
            "<a>&e;&e2;</a>",
            "a'1&e2;'");
        row("tokens",
            "<!DOCTYPE a [<!ATTLIST a t NMTOKENS #IMPLIED c CDATA #IMPLIED>]><a t=' x \n y ' c=' x \n '/>",
            "a[t=x y][c= x   ]''");
        row("empty", "", "''", "1]: root tag missing");
        row("no tag", "\n\nhello", "''", "3]: root tag missing");
        row("behind a NUL", QByteArray("<a>1<b/>\0</a>", 13), "a'1'{1:b''}", "1]: unclosed tag <a>");
        row("cut in a text", "<a>\n<b>12</b><b>34", "a'\n'{1:b'12'}{1:b''}", "2]: unclosed tag <b>");
        row("wrong end", "<a\n><b></c></a>", "a''{0:b''}", "2]: unexpected closing tag </c>");
        // The two names meet in one place of the tables.
        row("end of a like name", "<a><value>&lt;</value><value>1</value><vue>2</value></a>",
            "a''{0:value'<'}{0:value'1'}{0:vue'2'}", "1]: unexpected closing tag </value>");
        row("two roots", "<a/>\n<b/>", "a''", "2]: markup outside of root element");
        row("open quote", "<a b='1></a>", "''", "1]: missing '");
        row("no value", "<a b></a>", "''", "1]: missing =");
        row("less-than in a tag", "<a <b/>", "''", "1]: unexpected <");
        row("less-than in a text", "<a>1 < 2</a>", "a'1 '", "1]: unexpected <");
        row("open comment", "<a><!-- -- ></a>", "a''", "1]: unclosed <!--");
        row("open document type", "<!DOCTYPE a [<!ENTITY e 'x'>", "''", "1]: unclosed <!DOCTYPE");
        row("open attribute list", "<!DOCTYPE a [<!ATTLIST a b CDATA", "''", "1]: unclosed <!ATTLIST");
        row("bad attribute list", "<!DOCTYPE a [<!ATTLIST a b CDATA x>]><a/>", "''", "1]: malformed <!ATTLIST");
        row("circle", "<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a/>", "''",
            "1]: circular entity declaration &e");
        row("circle of parameters", "<!DOCTYPE a [<!ENTITY % p '&#37;p;'>%p;]><a/>", "''",
            "1]: circular entity declaration &p");
        QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
        for (int i = 1; i < 40; ++i)
            bomb += QString("<!ENTITY e%1 '&e%2;&e%2;'>").arg(i).arg(i - 1).toLatin1();
        row("bomb", bomb + "]><a>1<b/>&e39;</a>", "a'1'{1:b''}", "1]: entities expand too far");
        row("long name", "<a></" + QByteArray(200, 'x') + ">", "a''",
            "1]: unexpected closing tag </" + QByteArray(81, 'x'));
    }

    void documents()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, tree);
        QFETCH(QByteArray, error);
        const Tree parsed(document);
        QCOMPARE(dump(parsed.root()), tree);
        QCOMPARE(parsed.error(), error);
    }

    void halfCharacters()
    {
        // Half a pair of surrogates in a name, and half a character at the end.
        const QByteArray text("\xff\xfe<\0\x00\xd8"
                              "a\0/\0>\0x",
                              13);
        QCOMPARE(Tree(text).root()->name,
                 "\xef\xbf\xbd"
                 "a");
    }

    void lists()
    {
        const Tree tree("<r><item>1</item><data>2</data><item>3</item><x/></r>");
        ezxml *first = ezxml_child(tree.root(), "item");
        ezxml *data = ezxml_child(tree.root(), "data");
        QCOMPARE(ezxml_child(tree.root(), nullptr), first);
        QCOMPARE(first->ordered, data);
        QCOMPARE(first->sibling, data);
        QCOMPARE(first->next->txt, "3");
        QCOMPARE(ezxml_idx(first, 1), data->ordered);
        QCOMPARE(first->next->sibling, data);
        QCOMPARE(data->next, nullptr);
        QCOMPARE(data->sibling, ezxml_child(tree.root(), "x"));
        QCOMPARE(ezxml_child(tree.root(), "nothing"), nullptr);
        QCOMPARE(ezxml_child(nullptr, "item"), nullptr);
        QCOMPARE(ezxml_attr(nullptr, "item"), nullptr);
    }

    /// So many names that they are no longer looked through one by one, twice over, inside and beside each other.
    void manyNames()
    {
        const Tree tree("<r>" + items(30) + "<in>" + items(40) + items(40) + "</in>" + items(40) + "</r>");
        for (const auto &[parent, first, names] :
             {std::tuple(tree.root(), 30, 42), {ezxml_child(tree.root(), "in"), 40, 41}}) {
            int count = 0;
            for (const ezxml *item = ezxml_child(parent, "item"); item; item = item->next, ++count)
                QCOMPARE(QByteArray(item->txt).toInt(), count < first ? count : count - first);
            QCOMPARE(count, first + 40);
            for (const ezxml *name = parent->child; name; name = name->sibling)
                ++count;
            QCOMPARE(count, first + 40 + names);
            QCOMPARE(ezxml_idx(ezxml_child(parent, "n29"), 1)->ordered->name, "item");
            QCOMPARE(ezxml_idx(ezxml_child(parent, "n29"), 2), nullptr);
        }
    }

    void deepNesting()
    {
        const int depth = 300000;
        const Tree tree(QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth - 1));
        int found = 0;
        for (const ezxml *element = tree.root(); element; element = element->child)
            ++found;
        QCOMPARE(found, depth);
        QCOMPARE(tree.error(), "[error near line 1]: unclosed tag <a>");
    }

    void declarations()
    {
        const Tree tree(
            "<?xml version='1.0' standalone='yes'?><?p one?><!DOCTYPE a [<!ATTLIST b c CDATA '&lt;' d (x|y) "
            "' y ' e ID #IMPLIED><?p two?>]><a><b d='x'/><?q?></a>");
        QCOMPARE(reinterpret_cast<const ezxml_root *>(tree.root())->standalone, short(1));
        ezxml *b = ezxml_child(tree.root(), "b");
        QCOMPARE(ezxml_attr(b, "c"), "<");
        QCOMPARE(ezxml_attr(b, "d"), "x");
        QCOMPARE(ezxml_attr(b, "e"), nullptr);
        const char **instructions = ezxml_pi(b, "p");
        QCOMPARE(instructions[0], "one");
        QCOMPARE(instructions[1], "two");
        QCOMPARE(instructions[2], nullptr);
        QCOMPARE(ezxml_pi(b, "q")[0], "");
        QCOMPARE(ezxml_pi(b, "none")[0], nullptr);
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
            whole += atOnce.error().isEmpty();
            QCOMPARE(atOnce.error(), each.error());
            QCOMPARE(dump(atOnce.root()), dump(each.root()));
            QCOMPARE(links(atOnce.root()), links(each.root()));
        }
        QVERIFY(whole > 300 && whole < 2700);
    }

    /// Cut anywhere, a document yields what came before.
    void truncated()
    {
        const QByteArray document
            = "<?xml version='1.0'?><!DOCTYPE r [<!ENTITY e 'e'><!ATTLIST r a CDATA 'd'>]><r a=\"&e;\">"
              "<!-- c --><item>1</item>&e;<![CDATA[x]]><item>2</item><?p q?></r>";
        for (int length = 0; length < document.size(); ++length) {
            const Tree tree(document.left(length));
            QVERIFY(!tree.error().isEmpty());
            const int whole = document.left(length).count("</item>");
            for (int i = 0; i < whole; ++i)
                QCOMPARE(QByteArray(ezxml_idx(ezxml_child(tree.root(), "item"), i)->txt).toInt(), i + 1);
        }
    }

    void files()
    {
        QCOMPARE(ezxml_parse_file("/nowhere/to/be/found.xml"), nullptr);
        QCOMPARE(ezxml_parse_file("/"), nullptr); // a folder opens and cannot be read
        QCOMPARE(ezxml_parse_fd(-1), nullptr);
        QTemporaryFile file;
        QVERIFY(file.open());
        const QByteArray path = file.fileName().toLocal8Bit();
        for (const int length : {0, 20000}) {
            file.write(length ? "<a>" + QByteArray(length, 'x') + "</a>" : "");
            file.flush();
            for (const bool stream : {false, true}) {
                std::FILE *opened = std::fopen(path, "r");
                ezxml *root = stream ? ezxml_parse_fp(opened) : ezxml_parse_fd(fileno(opened));
                QCOMPARE(qstrlen(root->txt), uint(length));
                QCOMPARE(ezxml_error(root), length ? "" : "[error near line 1]: root tag missing");
                ezxml_free(root);
                std::fclose(opened);
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestEzxml)
#include "tst_ezxml.moc"
