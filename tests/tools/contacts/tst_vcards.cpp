#include "testcase.h"
#include "vcardfile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTextCodec>

static QByteArray eucKr(const char *text)
{
    return QTextCodec::codecForName("EUC-KR")->fromUnicode(QString::fromUtf8(text));
}

static QByteArray quoted(const QByteArray &bytes)
{
    QByteArray text;
    for (const char byte : bytes)
        text += '=' + QByteArray(1, byte).toHex().toUpper();
    return text;
}

/// vCards as phones and computers write them, and the way out and back in.
class TestVCards : public TestCase
{
    Q_OBJECT

private slots:
    void cards()
    {
        const QByteArray kim = "김철수", korean = eucKr("김철수");
        struct Card
        {
            const char *title;
            QByteArray text;
            QString name, memo = {};
            QStringList groups = {};
        };
        const QList<Card> cards
            = {{"2.1 quoted UTF-8, folded in a letter",
                card("N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:" + quoted("김") + ";=\r\n" + quoted("철수")
                         + ";;;\r\nTEL:1",
                     "2.1"),
                kim},
               {"2.1 quoted EUC-KR",
                card("FN;CHARSET=EUC-KR;ENCODING=QUOTED-PRINTABLE:" + quoted(korean) + "\r\nTEL:1", "2.1"), kim},
               {"2.1 raw EUC-KR", card("FN;CHARSET=EUC-KR:" + korean + "\r\nTEL:1", "2.1"), kim},
               {"2.1 EUC-KR unannounced", card("FN:" + korean + "\r\nTEL:1", "2.1"), kim},
               {"2.1 note", card("FN:A\r\nNOTE;ENCODING=QUOTED-PRINTABLE:one=0D=0Atwo\r\nTEL:1", "2.1"), "A",
                "one\ntwo"},
               {"3.0 escapes",
                card("FN:Doe\\, John\r\nNOTE:a\\nb\\, c\\; d\r\nCATEGORIES:Work,Fam\\, ily\r\nTEL:1"),
                "Doe, John",
                "a\nb, c; d",
                {"Work", "Fam, ily"}},
               {"3.0 folded line", card("FN:John\r\n  Doe\r\nTEL:1"), "John Doe"},
               {"4.0", card("FN:" + kim + "\r\nTEL;VALUE=uri;TYPE=cell:tel:1", "4.0"), kim},
               {"line feeds only, byte order mark",
                "\xef\xbb\xbf" + card("FN:" + kim + "\r\nTEL:1").replace("\r\n", "\n"), kim},
               {"small letters", "begin:vcard\r\nversion:3.0\r\nfn:A\r\ntel:1\r\nend:vcard\r\n", "A"},
               {"parts of a western name", card("N:Doe;John;;Dr.;\r\nTEL:1"), "Dr. John Doe"},
               {"organization alone", card("N:;;;;\r\nORG:Acme\r\nTEL:1"), "Acme"},
               {"number alone", card("TEL:1"), ""},
               {"a card within", card("FN:Boss\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:Aide\r\nEND:VCARD\r\nTEL:1", "2.1"),
                "Boss"}};
        for (const auto &[title, text, name, memo, groups] : cards) {
            const VCardFile file = read(text);
            QVERIFY2(file.contacts.size() == 1 && file.skipped.isEmpty(), title);
            const ContactImport entry = file.contacts.first();
            QCOMPARE(entry.contact.name, name);
            QCOMPARE(entry.contact.memo, memo);
            QCOMPARE(entry.groups, groups);
            QCOMPARE(entry.contact.telnum1, QString("1"));
        }
    }

    void kinds()
    {
        const QList<std::tuple<QByteArray, QString, ContactData::Telnum_Type>> lines = {
            {"TEL;TYPE=WORK:+82 (2) 555-0101", "+8225550101", ContactData::Company},
            {"TEL;TYPE=CELL:*55#", "*55#", ContactData::Mobile},
            {"TEL;TYPE=WORK,CELL:1", "1", ContactData::Mobile},
            {"TEL;TYPE=HOME,VOICE,PREF:1", "1", ContactData::Home},
            {"TEL;HOME;FAX:1", "1", ContactData::Fax},
            {"TEL;TYPE=X-OWN:1", "1", ContactData::Etc},
            {"item1.TEL;type=CELL;type=pref:1", "1", ContactData::Mobile},
            {"TEL;VALUE=uri;TYPE=\"voice,work\":tel:+1-555;ext=9", "+1555", ContactData::Company},
        };
        for (const auto &[line, number, kind] : lines) {
            const ContactData contact = read(card("FN:A\r\n" + line)).contacts.value(0).contact;
            QVERIFY2(contact.telnum1 == number && contact.telnum1_type == kind, line);
        }
    }

    void brokenCards()
    {
        // The lines 1 to 5, 6, 7 to 9, 10 to 14, 15 to 18, 19 and 20, 21 to 24, and from 25.
        const QByteArray text = card("FN:First\r\nTEL:1") + "stray\r\n" + "BEGIN:VCARD\r\nFN:No end\r\nTEL:2\r\n"
            + card("FN:Second\r\nTEL:3") + card("NOTE:nobody") + "FN:No begin\r\nEND:VCARD\r\n" + card("TEL:abc")
            + "BEGIN:VCARD\r\nFN:Cut off";
        const VCardFile file = read(text);
        QCOMPARE(file.contacts.size(), 2);
        QCOMPARE(file.contacts.last().contact.name, QString("Second"));
        QStringList skipped;
        for (const VCardFile::Skipped &card : file.skipped)
            skipped.append(QStringLiteral("%1 %2").arg(card.line).arg(card.reason));
        QCOMPARE(skipped,
                 QStringList({"7 no END:VCARD", "15 no name and no number", "20 END:VCARD without BEGIN:VCARD",
                              "21 no name and no number", "25 no END:VCARD"}));
        QCOMPARE(file.cardsRead(), 7);
    }

    void outAndBack()
    {
        ContactImport full;
        ContactData &contact = full.contact;
        contact.name = " Doe, \"John\"; \\n \\\\ 김😀  x ";
        for (int slot = 1; slot < ContactData::NumberCount; slot += 2) // with gaps
            contact.setNumber(slot, QString("+%1*#").arg(slot), static_cast<ContactData::Telnum_Type>(slot / 2));
        contact.setEmails({"", "a@b", "a@b"});
        contact.memo = "one\ntwo\\nthree\\;four\r\nfive;,:=\t\\" + QString("김철수, ").repeated(100);
        contact.bell = "/ring tones/a,b;c%20\\d.wav";
        contact.buddyId = "kim@example.com;x";
        contact.extra = "e\nx\ntra";
        contact.picture = ":/ui/images/album/a b.png";
        full.groups = QStringList{"Z", "A, b", "C;d", "E\\", " f "};
        for (const ContactImport &one : {full, ContactImport()}) {
            const VCardFile file = read(VCardBridge::write(one, {}) + card("FN:Next\r\nTEL:1"));
            QCOMPARE(file.contacts.size(), 2);
            QVERIFY2(file.contacts.first().contact == one.contact, VCardBridge::write(one, {}));
            QCOMPARE(file.contacts.first().groups, one.groups);
        }
    }

    void photos()
    {
        QByteArray red;
        QBuffer bytes(&red);
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(bytes.open(QIODevice::WriteOnly) && image.save(&bytes, "PNG"));
        const QByteArray base64 = red.toBase64();
        const VCardFile file = read(
            card("FN:A\r\nPHOTO;ENCODING=BASE64;PNG:" + base64.left(20) + "\r\n " + base64.mid(20) + "\r\n", "2.1")
            + card("FN:B\r\nPHOTO;ENCODING=b;TYPE=PNG:" + base64)
            + card("FN:C\r\nPHOTO:data:image/png;base64," + base64, "4.0")
            + card("FN:D\r\nPHOTO;ENCODING=b;TYPE=PNG:" + QByteArray("no picture").toBase64())
            + card("FN:E\r\nPHOTO;VALUE=uri:http://example.com/x.png"));
        const QString text = PhotoStore::pictureText(red);
        QVERIFY(text.startsWith("photo:") && text.endsWith(".png") && !text.contains('/'));
        QStringList pictures;
        for (const ContactImport &entry : file.contacts)
            pictures.append(entry.contact.picture);
        QCOMPARE(pictures, QStringList({text, text, text, "", ""}));
        // Out and into another home, where the photo is not yet.
        const QByteArray card = VCardBridge::write(file.contacts.first(), red);
        QVERIFY(QFile::remove(text));
        QCOMPARE(read(card).contacts.first().contact.picture, text);
        QCOMPARE(QImage(text), image);
    }

private:
    void setUp() override { QDir::setSearchPaths("photo", {m_dir->path()}); }
    void tearDown() override { QDir::setSearchPaths("photo", {}); }

    VCardFile read(QByteArray text) const
    {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        return VCardFile::read(&buffer, PhotoStore(m_dir->path()));
    }
    static QByteArray card(const QByteArray &lines, const QByteArray &version = "3.0")
    {
        return "BEGIN:VCARD\r\nVERSION:" + version + "\r\n" + lines + "\r\nEND:VCARD\r\n";
    }
};

QTEST_GUILESS_MAIN(TestVCards)
#include "tst_vcards.moc"
