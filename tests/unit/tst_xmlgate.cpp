// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/xmlgate.h"

#include "importers/papywizard/papywizardreader.h"
#include "tests/support/testprogram.h"

#include <QDomDocument>
#include <QTest>
#include <QTextCodec>

#include <vector>

Q_DECLARE_METATYPE(PanoHead::XmlLimits)

using PanoHead::decodeXml;
using PanoHead::ReadError;
using PanoHead::readPapywizard;
using PanoHead::XmlLimits;
using PanoHead::xmlRefusal;

namespace
{

/** More than the parser's stack holds: about 25,000 levels end the process. */
constexpr int kDeadly = 30'000;

QByteArray opened(int depth)
{
    return QByteArray("<a>").repeated(depth);
}

QByteArray nested(int depth)
{
    return opened(depth) + QByteArray("</a>").repeated(depth);
}

/** A document of one element with the declaration and the content given. */
QByteArray withDoctype(const QByteArray &subset, const QByteArray &content)
{
    return "<!DOCTYPE p [" + subset + "]><p>" + content + "</p>";
}

/** \p text \p count times, with 0, 1, 2... for its percent sign. */
QByteArray numbered(const QByteArray &text, int count)
{
    QByteArray all;
    for (int i = 0; i < count; ++i) {
        all += QByteArray(text).replace('%', QByteArray::number(i));
    }
    return all;
}

struct Document {
    const char *name;
    QByteArray text;
};
using Documents = std::vector<Document>;

Documents deepDocuments()
{
    return { { "257 levels", nested(257) },
             { "30,000 levels, closed", nested(kDeadly) },
             { "30,000 levels, open", opened(kDeadly) },
             { "30,000 levels with attributes", QByteArray("<a b='/>'>").repeated(kDeadly) } };
}

Documents documentsWithMarkupInEntities()
{
    const QByteArray a158 = opened(158);
    const QByteArray e158 = QByteArray("&e;").repeated(158);
    const auto entity = [](const QByteArray &value, const QByteArray &content) {
        return withDoctype("<!ENTITY e '" + value + "'>", content);
    };
    return {
        { "979 bytes: open tags in an entity",
          "<!DOCTYPE p[<!ENTITY e \"" + a158 + "\">]><p>" + e158 },
        { "closed tags in an entity",
          entity(opened(60) + "x" + QByteArray("</a>").repeated(60),
                 QByteArray("&e;").repeated(500)) },
        { "tags of character references in an entity",
          entity(QByteArray("&#60;a>").repeated(158), e158) },
        { "tags of hexadecimal references", entity(QByteArray("&#x0003C;a>").repeated(158), e158) },
        { "tags of references beyond 16 bits, cut by the parser",
          entity(QByteArray("&#65596;a>").repeated(158), e158) },
        { "ampersand of a reference beyond 16 bits",
          withDoctype("<!ENTITY f 'x'><!ENTITY e '&#x10026;f;'>", "&e;") },
        { "billion laughs",
          withDoctype("<!ENTITY a 'lol'><!ENTITY b '&a;&a;&a;'><!ENTITY c '&b;&b;&b;'>", "&c;") },
        { "chain of entities declared backwards",
          withDoctype("<!ENTITY a '" + QByteArray("&b;").repeated(300) + "'><!ENTITY b '"
                          + QByteArray("&c;").repeated(300) + "'><!ENTITY c '"
                          + QByteArray(300, 'x') + "'>",
                      "&a;") },
        { "chain of entities through '&#38;'",
          withDoctype("<!ENTITY b '" + QByteArray(1'000, 'x') + "'><!ENTITY a '"
                          + QByteArray("&#38;b;").repeated(400) + "'>",
                      "&a;") },
        { "entity of parameter entities",
          withDoctype("<!ENTITY % q '" + opened(300) + "'><!ENTITY e '"
                          + QByteArray("%q;").repeated(300) + "'>",
                      "&e;") },
        { "parameter entity that ends the DOCTYPE",
          "<!DOCTYPE p[<!ENTITY e '" + a158 + "'><!ENTITY % q ']><p>'>%q;" + e158 },
        { "parameter entity without markup", withDoctype("<!ENTITY % q 'x'>", "t") },
    };
}

Documents documentsWithLongDoctypes()
{
    return {
        { "50,000 characters x 5,000",
          withDoctype("<!ENTITY e '" + QByteArray(50'000, 'x') + "'>",
                      QByteArray("&e;").repeated(5'000)) },
        { "1,000 entity declarations", withDoctype(numbered("<!ENTITY n% 'x'>", 1'000), "t") },
        { "1,000 DOCTYPEs with one entity each",
          numbered("<!DOCTYPE p [<!ENTITY n% 'x'>]>", 1'000) + "<p>t</p>" },
        { "60,000 parentheses in the DTD",
          withDoctype("<!ELEMENT p " + QByteArray(60'000, '('), "t") },
        { "DOCTYPE of 4,097 characters",
          "<!DOCTYPE p SYSTEM '" + QByteArray(4097 - 22, 'x') + "'><p>t</p>" },
        { "DOCTYPE that never ends", QByteArray("<!DOCTYPE p [").append(5'000, ' ') },
        { "DOCTYPE with an endless comment", QByteArray("<!DOCTYPE p [<!--").append(5'000, ' ') },
        { "DOCTYPE with an endless literal",
          QByteArray("<!DOCTYPE p SYSTEM '").append(5'000, ' ') },
    };
}

void addRefused(const char *reason, const Documents &documents)
{
    for (const Document &document : documents) {
        QTest::newRow(document.name) << document.text << QString::fromLatin1(reason);
    }
}

/** "", or why the gate does not let the document pass. */
QString reasonFor(const QByteArray &document, const XmlLimits &limits = {})
{
    const std::optional<ReadError> refusal = xmlRefusal(decodeXml(document), limits);
    return refusal ? refusal->reason : QString();
}

/** The document element's text as the parser reads it; null when it does not. */
QString parsedText(const QByteArray &document)
{
    QDomDocument dom;
    if (!dom.setContent(document)) {
        return QString();
    }
    const QString text = dom.documentElement().text();
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace

class TestXmlGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentsWithinTheLimitsPass_data();
    void documentsWithinTheLimitsPass();
    void whatWouldHarmTheParserIsRefused_data();
    void whatWouldHarmTheParserIsRefused();
    void nothingHidesATagFromTheScan_data();
    void nothingHidesATagFromTheScan();
    void limitsHoldExactly_data();
    void limitsHoldExactly();
    void everyPartCountsAsANode_data();
    void everyPartCountsAsANode();
    void endOfAnElementGivesItsLevelBack();
    void referencesTimesDeclarationAreLimited();
    void referencesToCharactersAreNoExpansions();
    void everyEncodingIsDecodedBeforeTheScan_data();
    void everyEncodingIsDecodedBeforeTheScan();
    void decodingAnswersTheWholeText_data();
    void decodingAnswersTheWholeText();
    void refusalNamesItsLine_data();
    void refusalNamesItsLine();
    void refusalStopsTheScan();
    void brokenDocumentsEndTheScan_data();
    void brokenDocumentsEndTheScan();
};

void TestXmlGate::documentsWithinTheLimitsPass_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QByteArray &document, const char *text) {
        QTest::newRow(name) << document << QString::fromUtf8(text);
    };
    row("plain", "<p>t</p>", "t");
    row("256 levels", "<p>" + nested(255) + "t</p>", "t");
    row("4,096 attributes", "<p" + numbered(" a%=''", 4096) + ">t</p>", "t");
    row("DOCTYPE of 4,096 characters",
        "<!DOCTYPE p SYSTEM '" + QByteArray(4096 - 22, 'x') + "'><p>t</p>", "t");
    row("entity that is text", withDoctype("<!ENTITY e 'x'>", "&e;&e;"), "xx");
    row("entity that is a number", withDoctype("<!ENTITY auml '&#228;&#xE4;'>", "&auml;"),
        "\u00e4\u00e4");
    row("entity with predefined ones",
        withDoctype("<!ENTITY e 'a&lt;b&amp;lt;c&gt;&apos;&quot;'>", "&e;"), "a<b&lt;c>'\"");
    row("quote from an entity in an attribute",
        withDoctype("<!ENTITY e '&#34;>&#39;'>", "<a b=\"&e;\">t</a>"), "t");
    row("undeclared entity is empty", "<p>a&nosuch;b</p>", "ab");
    row("parameter entity without any entity", "<!DOCTYPE p [%q;]><p>t</p>", "t");
    row("percent sign in a default value", withDoctype("<!ATTLIST p b CDATA '100%'>", "t"), "t");
    row("percent sign beside an entity",
        withDoctype("<!ENTITY e 'x'><!ATTLIST p b CDATA '100%'>", "&e;"), "x");
    row("undeclared parameter entity in an entity", withDoctype("<!ENTITY e 'x%q;y'>", "&e;"),
        "xy");
    row("two DOCTYPEs", "<!DOCTYPE p><!DOCTYPE p [<!ENTITY e 'x'>]><p>&e;</p>", "x");
    row("'>' in an attribute", "<p a='>'><b c=\"/>\"/>t</p>", "t");
    row("comment that begins with '>'", "<!-->x--><p>t</p>", "t");
    row("comment that begins with '->'", "<!--->x--><p>t</p>", "t");
    row("quote in a DTD comment", withDoctype("<!-- ' --><!ENTITY e 'x'>", "&e;"), "x");
    row("quote in a DTD instruction", withDoctype("<?x \" ?><!ENTITY e 'x'>", "&e;"), "x");
    row("DOCTYPE end inside its system name",
        "<!DOCTYPE p SYSTEM ']>' [<!ENTITY e 'x'>]><p>&e;</p>", "x");
    row("instruction with two question marks", "<p><?x ?\?>t</p>", "t");
    row("brackets around CDATA", "<p>[<![CDATA[<x>]]]]>]</p>", "[<x>]]]");
    row("duplicate attribute", "<p a='1' a='2'>t</p>", "t");
    row("XML version 9.9", "<?xml version='9.9'?><p>t</p>", "t");
    row("text behind the parser's end mark", "<p>t</p>\xef\xbf\xbf<<<&", "t");
}

void TestXmlGate::documentsWithinTheLimitsPass()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, text);

    QCOMPARE(reasonFor(document), QString());
    QCOMPARE(parsedText(document), text);
    QVERIFY(readPapywizard(document).has_value());
}

void TestXmlGate::whatWouldHarmTheParserIsRefused_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("reason");

    addRefused("nested more than 256 deep", deepDocuments());
    const Documents markup = documentsWithMarkupInEntities();
    QCOMPARE(markup.front().text.size(), 979);
    addRefused("more than plain text", markup);
    const QByteArray longEntity = "<!ENTITY e '" + QByteArray(4'000, 'x') + "'>";
    const QByteArray references = QByteArray("&e;").repeated(50'000);
    addRefused("too many references",
               { { "4,000 characters x 50,000", withDoctype(longEntity, references) },
                 { "4,000 characters x 50,000 in attributes",
                   withDoctype(longEntity, "<a b='" + references + "'/>") } });
    addRefused("longer than 4096 characters", documentsWithLongDoctypes());
    addRefused("more than 4096 attributes",
               { { "4,097 attributes", "<p" + numbered(" a%=''", 4097) + "/>" } });
    addRefused("more than 8000000 elements",
               { { "8,000,000 elements and their parent",
                   "<p>" + QByteArray("<a/>").repeated(8'000'000) + "</p>" } });
}

void TestXmlGate::whatWouldHarmTheParserIsRefused()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, reason);

    const QString given = reasonFor(document);
    QVERIFY2(given.contains(reason), qPrintable(given));

    ReadError error;
    QVERIFY(!readPapywizard(document, &error));
    QCOMPARE(error.reason, given);
    QVERIFY(error.line > 0);
}

/** Each of these once made scan and parser disagree on where the next element begins. */
void TestXmlGate::nothingHidesATagFromTheScan_data()
{
    QTest::addColumn<QByteArray>("prefix");
    const auto row
        = [](const QByteArray &name, const QByteArray &prefix) { QTest::newRow(name) << prefix; };

    row("comment that begins with '>'", "<!--><a b='--><p>");
    row("comment in the DTD that begins with '>'", "<!DOCTYPE p[<!--><!ELEMENT a '-->]><p>");
    row("comment that begins with '->'", "<!---><a b='--><p>");
    row("empty comment", "<!----><p>");
    row("comment with a quote", "<!-- <a b=\" --><p>");
    row("comment with a CDATA start", "<!-- <![CDATA[ --><p>");
    row("CDATA with a comment start", "<p><![CDATA[<!--]]>");
    row("CDATA in two halves", "<p><![CDATA[]]]]><![CDATA[>]]>");
    row("instruction with a quote", "<p><?x ' <a b=\" ?>");
    row("instruction with a comment start", "<p><?x <!-- ?>");
    row("instruction with two question marks", "<p><?x <!-- ?\?>");
    row("declaration with '?>' in a value", "<?xml version='1.0?>' encoding=\"UTF-8\"?><p>");
    row("'>' in an attribute", "<p a='></p>' b=\"<!--\">");
    row("'/>' in an attribute", "<p a='/>'>");
    row("other quote in an attribute", "<p a='\"' b=\"'\">");
    row("quote as text", "<p>' \"");
    row("comment end as text", "<p>-- > ?> ]");
    row("DOCTYPE end in a system name", "<!DOCTYPE p SYSTEM \"'\" []><p>");
    row("DOCTYPE with '>' in a default value", "<!DOCTYPE p [<!ATTLIST p b CDATA ']>'>]><p>");
    row("DTD comment with a bracket", "<!DOCTYPE p [<!-- ]> -->]><p>");
    row("DTD comment with a quote", "<!DOCTYPE p [<!-- ' -->]><p>");
    row("DTD instruction with a quote", "<!DOCTYPE p [<?x \" ?>]><p>");
    row("two DOCTYPEs", "<!DOCTYPE p><!DOCTYPE p []><p>");
    row("closed elements before", "<p>" + nested(200));
    row("noncharacter as text", "<p>\xef\xbf\xbf<!--\xef\xbf\xbe-->");
    row("entity with a bracket", "<!DOCTYPE p[<!ENTITY e ']]'>]><p a='&e;'>&e;");
    row("entity with quotes", "<!DOCTYPE p[<!ENTITY e '&#34;&#39;'>]><p a=\"&e;\">&e;");
    for (const char *part : { "<![CDATA[", "<", "<!", "<!--", "<?x ", "<a b='", "</", "&#60;" }) {
        const QByteArray value = QByteArray(part).replace("'", "&#39;");
        row(QByteArray("entity with the part ") + part,
            "<!DOCTYPE p[<!ENTITY e \"" + value + "\">]><p>&e;!--]]>'<a b='-->?>");
    }
}

void TestXmlGate::nothingHidesATagFromTheScan()
{
    QFETCH(QByteArray, prefix);

    QVERIFY(!reasonFor(prefix + opened(kDeadly)).isEmpty());
    QVERIFY(!reasonFor(prefix + nested(kDeadly) + "</p>").isEmpty());
}

void TestXmlGate::limitsHoldExactly_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<XmlLimits>("exact");
    QTest::addColumn<XmlLimits>("oneLess");

    const auto limits = [](int depth, int nodes, int attributes, int doctype) {
        XmlLimits result;
        result.maxDepth = depth;
        result.maxNodes = nodes;
        result.maxAttributes = attributes;
        result.maxDoctypeLength = doctype;
        return result;
    };
    QTest::newRow("depth") << QByteArray("<p><a/><a><b></b></a><a/></p>") << limits(3, 99, 9, 99)
                           << limits(2, 99, 9, 99);
    // p, a, its two attributes, one text
    QTest::newRow("nodes") << QByteArray("<p><a b='' c=\"\"/>t</p>") << limits(9, 5, 9, 99)
                           << limits(9, 4, 9, 99);
    // p, comment, instruction, CDATA, text, reference and the text behind it
    QTest::newRow("other nodes") << QByteArray("<p><!----><?x ?><![CDATA[]]>t&e;</p>")
                                 << limits(9, 7, 9, 99) << limits(9, 6, 9, 99);
    QTest::newRow("predefined references are text")
        << QByteArray("<p>&amp;&#65;&lt;</p>") << limits(9, 2, 9, 99) << limits(9, 1, 9, 99);
    QTest::newRow("attributes of one element")
        << QByteArray("<p x=''><a b='' c=\"\"/><a d=''/></p>") << limits(9, 99, 2, 99)
        << limits(9, 99, 1, 99);
    QTest::newRow("DOCTYPE") << QByteArray("<!DOCTYPE p []><p/>") << limits(9, 99, 9, 15)
                             << limits(9, 99, 9, 14);
    QTest::newRow("DOCTYPEs together") << QByteArray("<!DOCTYPE p><!DOCTYPE p []><p/>")
                                       << limits(9, 99, 9, 27) << limits(9, 99, 9, 26);
    QTest::newRow("DOCTYPE as the whole document")
        << QByteArray("<!DOCTYPE p []>") << limits(9, 99, 9, 15) << limits(9, 99, 9, 14);
}

void TestXmlGate::limitsHoldExactly()
{
    QFETCH(QByteArray, document);
    QFETCH(XmlLimits, exact);
    QFETCH(XmlLimits, oneLess);

    QCOMPARE(reasonFor(document, exact), QString());
    QVERIFY(!reasonFor(document, oneLess).isEmpty());
}

void TestXmlGate::everyPartCountsAsANode_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<int>("most"); // beside their parent, where 1,000 are permitted

    QTest::newRow("elements") << QByteArray("<a/>") << 999;
    QTest::newRow("comments") << QByteArray("<!---->") << 999;
    QTest::newRow("instructions") << QByteArray("<?x ?>") << 999;
    QTest::newRow("CDATA") << QByteArray("<![CDATA[]]>") << 999;
    // one text, then each with the text behind it
    QTest::newRow("undeclared entities") << QByteArray("&x;") << 499;
    QTest::newRow("texts between elements") << QByteArray("x<a/>") << 499;
}

void TestXmlGate::everyPartCountsAsANode()
{
    QFETCH(QByteArray, part);
    QFETCH(int, most);

    XmlLimits limits;
    limits.maxNodes = 1'000;
    QCOMPARE(reasonFor("<p>" + part.repeated(most) + "</p>", limits), QString());
    QVERIFY(!reasonFor("<p>" + part.repeated(most + 1) + "</p>", limits).isEmpty());
}

void TestXmlGate::endOfAnElementGivesItsLevelBack()
{
    XmlLimits limits;
    limits.maxDepth = 2;
    QCOMPARE(reasonFor("<p>" + QByteArray("<a></a><a/><a b='>'/>").repeated(100) + "</p>", limits),
             QString());
}

void TestXmlGate::referencesTimesDeclarationAreLimited()
{
    const QByteArray subset = "<!ENTITY e 'x'>";
    // "<!DOCTYPE p [<!ENTITY e 'x'>]>" has 30 characters: 24,000 / 30 = 800 references
    QCOMPARE(reasonFor(withDoctype(subset, QByteArray("&e;").repeated(800))), QString());
    QVERIFY(!reasonFor(withDoctype(subset, QByteArray("&e;").repeated(801))).isEmpty());
    const QByteArray half = QByteArray("&e;").repeated(400);
    QCOMPARE(reasonFor(withDoctype(subset, "<a b='" + half + "'/>" + half)), QString());
    QVERIFY(!reasonFor(withDoctype(subset, "<a b='" + half + "'/>&e;" + half)).isEmpty());
    // Where no entity is declared, references cost nothing.
    QCOMPARE(reasonFor("<p>" + QByteArray("&amp;").repeated(100'000) + "</p>"), QString());
    // References in comments, instructions and CDATA are none.
    const QByteArray many = QByteArray("&e;").repeated(801);
    QCOMPARE(reasonFor(withDoctype(
                 subset, "<!--" + many + "--><?x " + many + "?><![CDATA[" + many + "]]>")),
             QString());
}

/** Whatever the document declares: nobody can declare these anew. */
void TestXmlGate::referencesToCharactersAreNoExpansions()
{
    const QByteArray subset = "<!ENTITY e 'x'><!ENTITY amp 'xxxxxxxx'>";
    const QByteArray plain = QByteArray("&amp;&lt;&gt;&apos;&quot;&#65;&#x41;").repeated(10'000);
    QCOMPARE(reasonFor(withDoctype(subset, plain)), QString());
    QCOMPARE(reasonFor(withDoctype(subset, "<a b=\"" + plain + "\"/>")), QString());
    QCOMPARE(parsedText(withDoctype(subset, "&amp;&e;&#65;")), QStringLiteral("&xA"));
    QVERIFY(readPapywizard(withDoctype(subset, plain)).has_value());
    // 24,000 / 54 characters = 444 references of its own between them
    const QByteArray mixed = "&amp;&e;&#65;";
    QCOMPARE(reasonFor(withDoctype(subset, mixed.repeated(444))), QString());
    QVERIFY(!reasonFor(withDoctype(subset, mixed.repeated(445))).isEmpty());
}

void TestXmlGate::everyEncodingIsDecodedBeforeTheScan_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<bool>("declared");

    QTest::newRow("UTF-8") << QByteArray("UTF-8") << false;
    QTest::newRow("UTF-8, declared") << QByteArray("UTF-8") << true;
    QTest::newRow("UTF-16 little endian with mark") << QByteArray("UTF-16LE") << false;
    QTest::newRow("UTF-16 big endian with mark") << QByteArray("UTF-16BE") << false;
    QTest::newRow("UTF-32 little endian with mark") << QByteArray("UTF-32LE") << false;
    QTest::newRow("UTF-32 big endian with mark") << QByteArray("UTF-32BE") << false;
    QTest::newRow("ISO 8859-1") << QByteArray("ISO-8859-1") << true;
    QTest::newRow("Shift_JIS") << QByteArray("Shift_JIS") << true;
    QTest::newRow("ISO 2022-JP") << QByteArray("ISO-2022-JP") << true;
    if (QTextCodec::codecForName("UTF-7") != nullptr) {
        QTest::newRow("UTF-7") << QByteArray("UTF-7") << true;
    }
}

void TestXmlGate::everyEncodingIsDecodedBeforeTheScan()
{
    QFETCH(QByteArray, codec);
    QFETCH(bool, declared);

    QTextCodec *const encoder = QTextCodec::codecForName(codec);
    QVERIFY(encoder != nullptr);
    const auto encoded = [&](const QByteArray &body) {
        const QByteArray declaration = "<?xml version='1.0' encoding='" + codec + "'?>";
        if (declared) {
            return declaration + encoder->fromUnicode(QString::fromLatin1(body));
        }
        // Encoders of more than one byte per unit begin with a byte order mark.
        return encoder->fromUnicode(QString::fromLatin1(body));
    };
    // Longer than the pieces in which the parser reads.
    const QByteArray blanks(3'000, ' ');
    QCOMPARE(parsedText(encoded("<p>" + blanks + "t</p>")).trimmed(), QStringLiteral("t"));
    QCOMPARE(reasonFor(encoded("<p>" + blanks + "t</p>")), QString());
    QVERIFY(!reasonFor(encoded(opened(kDeadly))).isEmpty());
    QVERIFY(!reasonFor(encoded("<p>" + blanks + opened(kDeadly))).isEmpty());
}

void TestXmlGate::decodingAnswersTheWholeText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("byte order mark is dropped")
        << QByteArray("\xef\xbb\xbf<p/>") << QStringLiteral("<p/>");
    QTest::newRow("Latin-1 declared")
        << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><p>\xe9</p>")
        << QString::fromUtf8("<?xml version='1.0' encoding='ISO-8859-1'?><p>\u00e9</p>");
    QTest::newRow("invalid UTF-8")
        << QByteArray("<p>\xff</p>") << QString::fromUtf8("<p>\ufffd</p>");
    // The character stands across the border of the first piece of 1,024 bytes.
    QTest::newRow("character across pieces")
        << QByteArray(1'023, ' ').append("\xc3\xa9")
        << QString(1'023, QLatin1Char(' ')).append(QChar(0xe9));
    QTest::newRow("unknown encoding counts as UTF-8")
        << QByteArray("<?xml version='1.0' encoding='nonsense'?><p>\xc3\xa9</p>")
        << QString::fromUtf8("<?xml version='1.0' encoding='nonsense'?><p>\u00e9</p>");
    QTest::newRow("NUL") << QByteArray("<p>a\0b</p>", 10) << QString::fromLatin1("<p>a\0b</p>", 10);
}

void TestXmlGate::decodingAnswersTheWholeText()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(decodeXml(bytes), text);
}

void TestXmlGate::refusalNamesItsLine_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("line");

    QTest::newRow("first line") << nested(257) << 1;
    QTest::newRow("one element a line") << QByteArray("<a>\n").repeated(300) << 257;
    QTest::newRow("attributes on line 2")
        << QByteArray("<p>\n<a" + QByteArray(" b=''").repeated(4'097) + "\n\n/></p>") << 2;
    QTest::newRow("references on line 3, text goes on") << QByteArray(
        withDoctype("<!ENTITY e 'x'>", "\n\n" + QByteArray("&e;").repeated(900) + "\n\n"))
                                                        << 3;
    QTest::newRow("nodes") << QByteArray("<p>" + QByteArray("<a/>\n").repeated(4'000'001) + "</p>")
                           << 4'000'000;
}

void TestXmlGate::refusalNamesItsLine()
{
    QFETCH(QByteArray, document);
    const std::optional<ReadError> refusal = xmlRefusal(decodeXml(document));
    QVERIFY(refusal.has_value());
    QTEST(refusal->line, "line");
}

/** References enough to overflow a counter that goes on after the refusal. */
void TestXmlGate::refusalStopsTheScan()
{
    const QByteArray subset = "<!ENTITY e '" + QByteArray(4'000, 'x') + "'>";
    const QByteArray flood(2'000'000, '&');
    QVERIFY(!reasonFor(withDoctype(subset, flood)).isEmpty());
    QVERIFY(!reasonFor(withDoctype(subset, "<a b='" + flood)).isEmpty());
}

void TestXmlGate::brokenDocumentsEndTheScan_data()
{
    QTest::addColumn<QByteArray>("document");

    QTest::newRow("empty") << QByteArray();
    const QList<QByteArray> ends
        = QByteArray("<|<p|<p a|<p a=|<p a='|<p a='x|<p a='x'|<p>|<p>&|<p>&#|<p>&x|<p></|<p></p|"
                     "<!|<!-|<!--|<!-- -|<!-- --|<![|<![CDATA[|<![CDATA[]|<![CDATA[]]|<?|<?x|"
                     "<?x ?|<!DOCTYPE|<!DOCTYPE p [|<!DOCTYPE p [<!--|<!DOCTYPE p [<?|"
                     "<!DOCTYPE p [<!ENTITY e '|<!DOCTYPE p [<!ENTITY e 'x|"
                     "<!DOCTYPE p [<!ENTITY e '&|<!DOCTYPE p [<!ENTITY e '&#|<p/|</p>|"
                     "</a></a></a><p>")
              .split('|');
    for (const QByteArray &end : ends) {
        QTest::newRow(end.constData()) << end;
    }
}

/** The gate lets them pass or not; the reader refuses them and neither reads beyond the end. */
void TestXmlGate::brokenDocumentsEndTheScan()
{
    QFETCH(QByteArray, document);
    reasonFor(document);
    QVERIFY(!readPapywizard(document));
}

TEST_CLASS(TestXmlGate, QCoreApplication)
#include "tst_xmlgate.moc"
