#include "ezxml.h"
#include "testcase.h"

#include <QTemporaryFile>

#include <fcntl.h>
#include <unistd.h>

/// What the XML reader makes of single documents, whole and damaged.
class TestEzxml : public TestCase
{
    Q_OBJECT

private slots:
    void documents_data();
    void documents();
    void utf16();
    void lists();
    void manyNames();
    void removed();
    void deepNesting();
    void declarations();
    void truncated();
    void files();
};

namespace {

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
QByteArray dump(const ezxml *element)
{
    QByteArray text = element->name;
    for (char **pair = element->attr; *pair; pair += 2)
        text.append('[').append(pair[0]).append('=').append(pair[1]).append(']');
    text.append('\'').append(element->txt).append('\'');
    for (const ezxml *child = element->child; child; child = child->ordered)
        text += '{' + QByteArray::number(qulonglong(child->off)) + ':' + dump(child) + '}';
    return text;
}

QByteArray items(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += "<item>" + QByteArray::number(i) + "</item><n" + QByteArray::number(i) + "/>";
    return text;
}

}

void TestEzxml::documents_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("tree");
    QTest::addColumn<QByteArray>("error");
    const auto row
        = [](const char *name, const QByteArray &document, const QByteArray &tree, const QByteArray &error = {}) {
              QTest::newRow(name) << document << tree << (error.isEmpty() ? error : "[error near line " + error);
          };
    row("runs joined", "<a>1<b/>2</a>", "a'12'{1:b''}");
    row("runs of all kinds", "<a>x<!-- - -- y -->&#65;<?p q?><![CDATA[<&amp;\r\n]]>z</a>", "a'xA<&amp;\nz'");
    row("less-than", "<a>&lt;&#60;&#x3c;&#x3C;</a>", "a'<<<<'");
    row("built-in", "<a b='&lt;&gt;&quot;&apos;&amp;lt;'>&amp;#60;</a>", "a[b=<>\"'&lt;]'&#60;'");
    row("no reference", "<a>&nope; & &; &#; &#x; &#0; &#x110000; &#xd800; &#12 &lt</a>",
        "a'&nope; & &; &#; &#x; &#0; &#x110000; &#xd800; &#12 &lt'");
    row("utf-8", "<\xc3\xa4>&#228;&#8364;&#x1f600;</\xc3\xa4>", "\xc3\xa4'\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80'");
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
    row("tokens", "<!DOCTYPE a [<!ATTLIST a t NMTOKENS #IMPLIED c CDATA #IMPLIED>]><a t=' x \n y ' c=' x \n '/>",
        "a[t=x y][c= x   ]''");
    row("empty", "", "''", "1]: root tag missing");
    row("one byte", "<", "''", "1]: root tag missing");
    row("no tag", "\n\nhello", "''", "3]: root tag missing");
    row("comment alone", "<!-- -->", "''", "1]: root tag missing");
    row("behind a NUL", QByteArray("<a>1<b/>\0</a>", 13), "a'1'{1:b''}", "1]: unclosed tag <a>");
    row("cut in a text", "<a>\n<b>12</b><b>34", "a'\n'{1:b'12'}{1:b''}", "2]: unclosed tag <b>");
    row("wrong end", "<a\n><b></c></a>", "a''{0:b''}", "2]: unexpected closing tag </c>");
    row("longer end", "<a></aa>", "a''", "1]: unexpected closing tag </aa>");
    row("end alone", "</a>", "''", "1]: unexpected closing tag </a>");
    row("two roots", "<a/>\n<b/>", "a''", "2]: markup outside of root element");
    row("open quote", "<a b='1></a>", "''", "1]: missing '");
    row("open tag", "<a b='1'", "''", "1]: missing >");
    row("no value", "<a b></a>", "''", "1]: missing =");
    row("less-than in a tag", "<a <b/>", "''", "1]: unexpected <");
    row("less-than in a text", "<a>1 < 2</a>", "a'1 '", "1]: unexpected <");
    row("open comment", "<a><!-- -- ></a>", "a''", "1]: unclosed <!--");
    row("open character data", "<a><![CDATA[ ]] ></a>", "a''", "1]: unclosed <![CDATA[");
    row("open instruction", "<a><?p ></a>", "a''", "1]: unclosed <?");
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

void TestEzxml::documents()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, tree);
    QFETCH(QByteArray, error);
    const Tree parsed(document);
    QCOMPARE(dump(parsed.root()), tree);
    QCOMPARE(parsed.error(), error);
}

void TestEzxml::utf16()
{
    const QString document
        = QString::fromUtf8("<?xml version='1.0'?><a b='\xea\xb0\x80'>\xc3\xa4 \xf0\x9f\x98\x80<b/></a>");
    const QByteArray expected = dump(Tree(document.toUtf8()).root());
    QByteArray little("\xff\xfe", 2);
    QByteArray big("\xfe\xff", 2);
    for (const QChar c : document) {
        little += char(c.cell());
        little += char(c.row());
        big += char(c.row());
        big += char(c.cell());
    }
    QCOMPARE(dump(Tree(little).root()), expected);
    QCOMPARE(dump(Tree(big).root()), expected);
    // Half a pair of surrogates, and half a character at the end.
    little.insert(little.indexOf(QByteArray("b\0/", 3)), QByteArray("\x00\xd8", 2));
    QCOMPARE(Tree(little + 'x').root()->child->name,
             "\xef\xbf\xbd"
             "b");
}

void TestEzxml::lists()
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
    QCOMPARE(ezxml_attr(first, "item"), nullptr);
}

/// So many names that they are no longer looked through one by one, twice over, inside and beside each other.
void TestEzxml::manyNames()
{
    const QByteArray inner = items(40) + items(40);
    const Tree tree("<r>" + items(30) + "<in>" + inner + "</in>" + items(40) + "</r>");
    const auto check = [](ezxml *parent, int first, int second) {
        int count = 0;
        for (const ezxml *item = ezxml_child(parent, "item"); item; item = item->next)
            QCOMPARE(QByteArray(item->txt).toInt(), count < first ? count++ : count++ - first);
        QCOMPARE(count, first + second);
        int names = 0;
        for (const ezxml *name = parent->child; name; name = name->sibling)
            ++names;
        QCOMPARE(names, 41 + (first == 30));
        QCOMPARE(ezxml_idx(ezxml_child(parent, "n29"), 1)->ordered->name, "item");
        QCOMPARE(ezxml_idx(ezxml_child(parent, "n29"), 2), nullptr);
    };
    check(tree.root(), 30, 40);
    check(ezxml_child(tree.root(), "in"), 40, 40);
}

void TestEzxml::removed()
{
    const Tree tree("<r><a/>1<b/><a x='1'/><c/></r>");
    ezxml_free(ezxml_child(tree.root(), "a"));
    QCOMPARE(dump(tree.root()), "r'1'{1:b''}{1:a[x=1]''}{1:c''}");
    QCOMPARE(tree.root()->child->sibling->sibling->name, "c");
    ezxml_free(ezxml_child(tree.root(), "c"));
    QCOMPARE(tree.root()->child->sibling->sibling, nullptr);
    ezxml_free(nullptr);
}

void TestEzxml::deepNesting()
{
    const int depth = 300000;
    const Tree tree(QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth - 1));
    int found = 0;
    for (const ezxml *element = tree.root(); element; element = element->child)
        ++found;
    QCOMPARE(found, depth);
    QCOMPARE(tree.error(), "[error near line 1]: unclosed tag <a>");
}

void TestEzxml::declarations()
{
    const Tree tree(
        "<?xml version='1.0' standalone='yes'?><?p one?><!DOCTYPE a [<!ATTLIST b c CDATA '&lt;' d (x|y) ' y '"
        " e ID #IMPLIED><?p two?>]><a><b d='x'/><?q?></a>");
    const ezxml_root *root = reinterpret_cast<const ezxml_root *>(tree.root());
    QCOMPARE(root->standalone, short(1));
    ezxml *b = ezxml_child(tree.root(), "b");
    QCOMPARE(ezxml_attr(b, "c"), "<");
    QCOMPARE(ezxml_attr(b, "d"), "x");
    QCOMPARE(ezxml_attr(b, "e"), nullptr);
    QCOMPARE(b->attr[3], " ");
    QCOMPARE(root->attr[0][0], "b");
    QCOMPARE(root->attr[0][5], "y");
    const char **instructions = ezxml_pi(b, "p");
    QCOMPARE(instructions[0], "one");
    QCOMPARE(instructions[1], "two");
    QCOMPARE(instructions[2], nullptr);
    QCOMPARE(ezxml_pi(b, "q")[0], "");
    QCOMPARE(ezxml_pi(b, "none")[0], nullptr);
    QCOMPARE(root->ent[0], "lt;");
    QCOMPARE(root->ent[1], "&#60;");
}

/// Cut anywhere, a document yields what came before.
void TestEzxml::truncated()
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

void TestEzxml::files()
{
    QCOMPARE(ezxml_parse_file("/nowhere/to/be/found.xml"), nullptr);
    QCOMPARE(ezxml_parse_file("/"), nullptr); // a folder opens and cannot be read
    QCOMPARE(ezxml_parse_fd(-1), nullptr);
    QTemporaryFile file;
    QVERIFY(file.open());
    const QByteArray path = file.fileName().toLocal8Bit();
    ezxml *empty = ezxml_parse_file(path);
    QCOMPARE(ezxml_error(empty), "[error near line 1]: root tag missing");
    QCOMPARE(empty->txt, "");
    ezxml_free(empty);
    file.write("<a>" + QByteArray(20000, 'x') + "</a>");
    file.flush();
    for (const bool stream : {false, true}) {
        std::FILE *opened = std::fopen(path, "r");
        ezxml *root = stream ? ezxml_parse_fp(opened) : ezxml_parse_fd(fileno(opened));
        QCOMPARE(qstrlen(root->txt), 20000u);
        ezxml_free(root);
        std::fclose(opened);
    }
}

QTEST_GUILESS_MAIN(TestEzxml)
#include "tst_ezxml.moc"
