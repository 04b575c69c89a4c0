// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/xmlgate.h"

#include "importers/papywizard/papywizardreader.h"
#include "tests/support/testprogram.h"

#include <QDomDocument>
#include <QRandomGenerator>
#include <QTest>
#include <QTextCodec>
#include <QXmlDefaultHandler>

#include <algorithm>

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

/** What the parser made of a document. */
struct DomSize {
    int depth = 0; // the document element is at depth 1
    int nodes = 0; // attributes included, the document and its type left out
    int maxAttributes = 0;
};

void measure(const QDomNode &node, int depth, DomSize &size)
{
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isDocumentType()) {
            continue;
        }
        ++size.nodes;
        if (child.isElement()) {
            const int attributes = child.attributes().size();
            size.depth = std::max(size.depth, depth + 1);
            size.nodes += attributes;
            size.maxAttributes = std::max(size.maxAttributes, attributes);
        }
        measure(child, depth + 1, size);
    }
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
/** How deep the parser goes, also in a document that it refuses further behind. */
class DepthMeter : public QXmlDefaultHandler
{
public:
    explicit DepthMeter(const QByteArray &document)
    {
        QXmlInputSource source;
        source.setData(document);
        QXmlSimpleReader reader;
        reader.setContentHandler(this);
        reader.parse(source);
    }

    [[nodiscard]] int deepest() const { return m_deepest; }

    bool startElement(const QString & /*uri*/, const QString & /*localName*/,
                      const QString & /*name*/, const QXmlAttributes & /*attributes*/) override
    {
        m_deepest = std::max(m_deepest, ++m_depth);
        return true;
    }

    bool endElement(const QString & /*uri*/, const QString & /*localName*/,
                    const QString & /*name*/) override
    {
        --m_depth;
        return true;
    }

private:
    int m_depth = 0;
    int m_deepest = 0;
};
QT_WARNING_POP

/** Small documents with one of everything that can begin, end or hide a tag. */
QVector<QByteArray> seeds()
{
    return {
        "<p><a b='1' c=\"2\">x<d/></a><!-- <e> --><f>y</f></p>",
        "<?xml version='1.0' encoding='UTF-8'?>\n<p><?x <a> ?><![CDATA[<b>]]>&amp;&#60;<c/></p>\n",
        "<!DOCTYPE p [<!ENTITY e 'text'><!-- ' --><!ATTLIST p b CDATA \"q\">]><p "
        "b='&e;'>&e;<a/></p>",
        "<!DOCTYPE p SYSTEM 'x]>' [<?y ' ?><!ELEMENT p (a|b)*>]><p><a>]</a><b>&no;</b></p>",
        "<!-- <p> --><p a='>' b='-->'><a><a><a/></a></a>-->]]</p><!-- ' --><?z?>"
    };
}

/** \p document with one to four pieces put in, taken out or exchanged. */
QByteArray mutated(const QByteArray &document, QRandomGenerator &random)
{
    static const QVector<QByteArray> pieces = { "<",
                                                ">",
                                                "/>",
                                                "</",
                                                "</a>",
                                                "<a>",
                                                "<a/>",
                                                "<a b='",
                                                "'",
                                                "\"",
                                                "<!--",
                                                "-->",
                                                "<!-->",
                                                "--",
                                                "<!--->",
                                                "<?",
                                                "?>",
                                                "<?x ",
                                                "<![CDATA[",
                                                "]]>",
                                                "]",
                                                "[",
                                                "<!",
                                                "<!DOCTYPE p>",
                                                "<!DOCTYPE p [",
                                                "]>",
                                                "<!ENTITY e '<'>",
                                                "<!ENTITY e \"&f;\">",
                                                "<!ENTITY f 'v'>",
                                                "<!ENTITY % q ']><p>'>",
                                                "%q;",
                                                "&e;",
                                                "&f;",
                                                "&no;",
                                                "&lt;",
                                                "&#60;",
                                                "&#x3c;",
                                                "&#65596;",
                                                "&",
                                                ";",
                                                "%",
                                                "=",
                                                " ",
                                                "\n",
                                                "\r",
                                                "\t",
                                                "-",
                                                "!",
                                                "?",
                                                "/",
                                                "x",
                                                QByteArray(1, '\0'),
                                                "\xef\xbf\xbe",
                                                "\xef\xbf\xbf",
                                                "\xc3\xa9",
                                                "\xff",
                                                "&#0;",
                                                "<p>",
                                                "</p>" };
    QByteArray text = document;
    const int changes = 1 + static_cast<int>(random.bounded(4));
    for (int i = 0; i < changes; ++i) {
        const int at = static_cast<int>(random.bounded(text.size() + 1));
        const int removed = random.bounded(3) == 0 ? static_cast<int>(random.bounded(8)) : 0;
        const bool inserts = removed == 0 || random.bounded(2) == 0;
        const int piece = static_cast<int>(random.bounded(pieces.size()));
        text.replace(at, removed, inserts ? pieces.at(piece) : QByteArray());
    }
    return text;
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
    void mutantsKeepGateAndParserInStep_data();
    void mutantsKeepGateAndParserInStep();
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
    row(
        "4,096 attributes",
        [] {
            QByteArray document = "<p";
            for (int i = 0; i < 4096; ++i) {
                document += " a" + QByteArray::number(i) + "=''";
            }
            return document + ">t</p>";
        }(),
        "t");
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
    row("instruction with two question marks",
        "<p><?x ?"
        "?>t</p>",
        "t");
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

    const QString depth = QStringLiteral("nested more than 256 deep");
    const QString entities = QStringLiteral("more than plain text");
    const QString references = QStringLiteral("too many references");
    const QString doctype = QStringLiteral("longer than 4096 characters");
    const QString attributes = QStringLiteral("more than 4096 attributes");
    const QString nodes = QStringLiteral("more than 8000000 elements");
    const QByteArray a158 = opened(158);

    QTest::newRow("257 levels") << nested(257) << depth;
    QTest::newRow("30,000 levels, closed") << nested(kDeadly) << depth;
    QTest::newRow("30,000 levels, open") << opened(kDeadly) << depth;
    QTest::newRow("30,000 levels with attributes")
        << QByteArray("<a b='/>'>").repeated(kDeadly) << depth;

    const QByteArray reproducer
        = "<!DOCTYPE p[<!ENTITY e \"" + a158 + "\">]><p>" + QByteArray("&e;").repeated(158);
    QCOMPARE(reproducer.size(), 979);
    QTest::newRow("979 bytes: open tags in an entity") << reproducer << entities;
    QTest::newRow("closed tags in an entity")
        << withDoctype("<!ENTITY e '" + opened(60) + "x" + QByteArray("</a>").repeated(60) + "'>",
                       QByteArray("&e;").repeated(500))
        << entities;
    QTest::newRow("tags of character references in an entity")
        << withDoctype("<!ENTITY e '" + QByteArray("&#60;a>").repeated(158) + "'>",
                       QByteArray("&e;").repeated(158))
        << entities;
    QTest::newRow("tags of hexadecimal references")
        << withDoctype("<!ENTITY e '" + QByteArray("&#x0003C;a>").repeated(158) + "'>",
                       QByteArray("&e;").repeated(158))
        << entities;
    QTest::newRow("tags of references beyond 16 bits, cut by the parser")
        << withDoctype("<!ENTITY e '" + QByteArray("&#65596;a>").repeated(158) + "'>",
                       QByteArray("&e;").repeated(158))
        << entities;
    QTest::newRow("ampersand of a reference beyond 16 bits")
        << withDoctype("<!ENTITY f 'x'><!ENTITY e '&#x10026;f;'>", "&e;") << entities;

    QTest::newRow("50,000 characters x 5,000") << withDoctype(
        "<!ENTITY e '" + QByteArray(50'000, 'x') + "'>", QByteArray("&e;").repeated(5'000))
                                               << doctype;
    QTest::newRow("4,000 characters x 50,000") << withDoctype(
        "<!ENTITY e '" + QByteArray(4'000, 'x') + "'>", QByteArray("&e;").repeated(50'000))
                                               << references;
    QTest::newRow("4,000 characters x 50,000 in attributes")
        << withDoctype("<!ENTITY e '" + QByteArray(4'000, 'x') + "'>",
                       "<a b='" + QByteArray("&e;").repeated(50'000) + "'/>")
        << references;
    QTest::newRow("billion laughs")
        << withDoctype("<!ENTITY a 'lol'><!ENTITY b '&a;&a;&a;'><!ENTITY c '&b;&b;&b;'>", "&c;")
        << entities;
    QTest::newRow("chain of entities declared backwards") << withDoctype(
        "<!ENTITY a '" + QByteArray("&b;").repeated(300) + "'><!ENTITY b '"
            + QByteArray("&c;").repeated(300) + "'><!ENTITY c '" + QByteArray(300, 'x') + "'>",
        "&a;") << entities;
    QTest::newRow("chain of entities through '&#38;'")
        << withDoctype("<!ENTITY b '" + QByteArray(1'000, 'x') + "'><!ENTITY a '"
                           + QByteArray("&#38;b;").repeated(400) + "'>",
                       "&a;")
        << entities;
    QTest::newRow("entity of parameter entities") << withDoctype(
        "<!ENTITY % q '" + opened(300) + "'><!ENTITY e '" + QByteArray("%q;").repeated(300) + "'>",
        "&e;") << entities;
    QTest::newRow("parameter entity that ends the DOCTYPE") << "<!DOCTYPE p[<!ENTITY e '" + a158
            + "'><!ENTITY % q ']><p>'>%q;"
            + QByteArray("&e;").repeated(158) << entities;
    QTest::newRow("parameter entity without markup")
        << withDoctype("<!ENTITY % q 'x'>", "t") << entities;

    QByteArray declarations;
    for (int i = 0; i < 1'000; ++i) {
        declarations += "<!ENTITY n" + QByteArray::number(i) + " 'x'>";
    }
    QTest::newRow("1,000 entity declarations") << withDoctype(declarations, "t") << doctype;
    QByteArray doctypes;
    for (int i = 0; i < 1'000; ++i) {
        doctypes += "<!DOCTYPE p [<!ENTITY n" + QByteArray::number(i) + " 'x'>]>";
    }
    QTest::newRow("1,000 DOCTYPEs with one entity each")
        << doctypes + QByteArray("<p>t</p>") << doctype;
    QTest::newRow("60,000 parentheses in the DTD")
        << withDoctype("<!ELEMENT p " + QByteArray(60'000, '('), "t") << doctype;
    QTest::newRow("DOCTYPE of 4,097 characters")
        << QByteArray("<!DOCTYPE p SYSTEM '" + QByteArray(4097 - 22, 'x') + "'><p>t</p>")
        << doctype;
    QTest::newRow("DOCTYPE that never ends")
        << QByteArray("<!DOCTYPE p [").append(5'000, ' ') << doctype;
    QTest::newRow("DOCTYPE with an endless comment")
        << QByteArray("<!DOCTYPE p [<!--").append(5'000, ' ') << doctype;
    QTest::newRow("DOCTYPE with an endless literal")
        << QByteArray("<!DOCTYPE p SYSTEM '").append(5'000, ' ') << doctype;

    QByteArray attributed = "<p";
    for (int i = 0; i < 4097; ++i) {
        attributed += " a" + QByteArray::number(i) + "=''";
    }
    QTest::newRow("4,097 attributes") << attributed + QByteArray("/>") << attributes;
    QTest::newRow("8,000,000 elements and their parent")
        << "<p>" + QByteArray("<a/>").repeated(8'000'000) + "</p>" << nodes;
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

    QTest::newRow("comment that begins with '>'") << QByteArray("<!--><a b='--><p>");
    QTest::newRow("comment in the DTD that begins with '>'")
        << QByteArray("<!DOCTYPE p[<!--><!ELEMENT a '-->]><p>");
    QTest::newRow("comment that begins with '->'") << QByteArray("<!---><a b='--><p>");
    QTest::newRow("empty comment") << QByteArray("<!----><p>");
    QTest::newRow("comment with a quote") << QByteArray("<!-- <a b=\" --><p>");
    QTest::newRow("comment with a CDATA start") << QByteArray("<!-- <![CDATA[ --><p>");
    QTest::newRow("CDATA with a comment start") << QByteArray("<p><![CDATA[<!--]]>");
    QTest::newRow("CDATA in two halves") << QByteArray("<p><![CDATA[]]]]><![CDATA[>]]>");
    QTest::newRow("instruction with a quote") << QByteArray("<p><?x ' <a b=\" ?>");
    QTest::newRow("instruction with a comment start") << QByteArray("<p><?x <!-- ?>");
    QTest::newRow("instruction with two question marks") << QByteArray("<p><?x <!-- ?"
                                                                       "?>");
    QTest::newRow("declaration with '?>' in a value")
        << QByteArray("<?xml version='1.0?>' encoding=\"UTF-8\"?><p>");
    QTest::newRow("'>' in an attribute") << QByteArray("<p a='></p>' b=\"<!--\">");
    QTest::newRow("'/>' in an attribute") << QByteArray("<p a='/>'>");
    QTest::newRow("other quote in an attribute") << QByteArray("<p a='\"' b=\"'\">");
    QTest::newRow("quote as text") << QByteArray("<p>' \"");
    QTest::newRow("comment end as text") << QByteArray("<p>-- > ?> ]");
    QTest::newRow("DOCTYPE end in a system name") << QByteArray("<!DOCTYPE p SYSTEM \"'\" []><p>");
    QTest::newRow("DOCTYPE with '>' in a default value")
        << QByteArray("<!DOCTYPE p [<!ATTLIST p b CDATA ']>'>]><p>");
    QTest::newRow("DTD comment with a bracket") << QByteArray("<!DOCTYPE p [<!-- ]> -->]><p>");
    QTest::newRow("DTD comment with a quote") << QByteArray("<!DOCTYPE p [<!-- ' -->]><p>");
    QTest::newRow("DTD instruction with a quote") << QByteArray("<!DOCTYPE p [<?x \" ?>]><p>");
    QTest::newRow("two DOCTYPEs") << QByteArray("<!DOCTYPE p><!DOCTYPE p []><p>");
    QTest::newRow("closed elements before") << QByteArray("<p>").append(nested(200));
    QTest::newRow("noncharacter as text") << QByteArray("<p>\xef\xbf\xbf<!--\xef\xbf\xbe-->");
    QTest::newRow("entity with a bracket")
        << QByteArray("<!DOCTYPE p[<!ENTITY e ']]'>]><p a='&e;'>&e;");
    QTest::newRow("entity with quotes")
        << QByteArray("<!DOCTYPE p[<!ENTITY e '&#34;&#39;'>]><p a=\"&e;\">&e;");
    for (const char *part : { "<![CDATA[", "<", "<!", "<!--", "<?x ", "<a b='", "</", "&#60;" }) {
        const QByteArray value = QByteArray(part).replace("'", "&#39;");
        QTest::newRow(("entity with the part " + QByteArray(part)).constData())
            << QByteArray("<!DOCTYPE p[<!ENTITY e \"" + value + "\">]><p>&e;!--]]>'<a b='-->?>");
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
    for (const char *end : { "<",
                             "<p",
                             "<p a",
                             "<p a=",
                             "<p a='",
                             "<p a='x",
                             "<p a='x'",
                             "<p>",
                             "<p>&",
                             "<p>&#",
                             "<p>&x",
                             "<p></",
                             "<p></p",
                             "<!",
                             "<!-",
                             "<!--",
                             "<!-- -",
                             "<!-- --",
                             "<![",
                             "<![CDATA[",
                             "<![CDATA[]",
                             "<![CDATA[]]",
                             "<?",
                             "<?x",
                             "<?x ?",
                             "<!DOCTYPE",
                             "<!DOCTYPE p [",
                             "<!DOCTYPE p [<!--",
                             "<!DOCTYPE p [<?",
                             "<!DOCTYPE p [<!ENTITY e '",
                             "<!DOCTYPE p [<!ENTITY e 'x",
                             "<!DOCTYPE p [<!ENTITY e '&",
                             "<!DOCTYPE p [<!ENTITY e '&#",
                             "<p/",
                             "</p>",
                             "</a></a></a><p>" }) {
        QTest::newRow(end) << QByteArray(end);
    }
}

/** The gate lets them pass or not; the reader refuses them and neither reads beyond the end. */
void TestXmlGate::brokenDocumentsEndTheScan()
{
    QFETCH(QByteArray, document);
    reasonFor(document);
    QVERIFY(!readPapywizard(document));
}

void TestXmlGate::mutantsKeepGateAndParserInStep_data()
{
    QTest::addColumn<QByteArray>("seed");
    int number = 0;
    for (const QByteArray &seed : seeds()) {
        QTest::newRow(("document " + QByteArray::number(++number)).constData()) << seed;
    }
}

/**
 * However far the parser gets in a document, it goes no deeper than the gate has seen. What both
 * accept must have been understood alike: the depth agrees exactly, and the parser keeps no more
 * nodes and attributes than the gate has counted.
 */
void TestXmlGate::mutantsKeepGateAndParserInStep()
{
    QFETCH(QByteArray, seed);

    QRandomGenerator random(20260510);
    int parsed = 0;
    for (int i = 0; i < 4'000; ++i) {
        const QByteArray document = i == 0 ? seed : mutated(seed, random);
        const QString reason = reasonFor(document);
        if (!reason.isEmpty()) {
            // Small documents are refused for what their entities hold, and for nothing else.
            QVERIFY2(document.contains("<!ENTITY") && reason.contains(QLatin1String("plain text")),
                     document.constData());
            continue;
        }
        XmlLimits limits;
        limits.maxDepth = DepthMeter(document).deepest() - 1;
        QVERIFY2(!reasonFor(document, limits).isEmpty() || limits.maxDepth < 0,
                 document.constData());
        QDomDocument dom;
        if (!dom.setContent(document)) {
            continue;
        }
        ++parsed;
        DomSize size;
        measure(dom, 0, size);
        limits.maxDepth = size.depth;
        // Nothing counts behind the noncharacters at which the parser stops reading.
        const bool cut = document.contains("\xef\xbf\xbe") || document.contains("\xef\xbf\xbf");
        QVERIFY2(cut || reasonFor(document, limits).isEmpty(), document.constData());
        limits = XmlLimits();
        limits.maxNodes = size.nodes - 1;
        QVERIFY2(!reasonFor(document, limits).isEmpty(), document.constData());
        limits = XmlLimits();
        limits.maxAttributes = size.maxAttributes - 1;
        QVERIFY2(!reasonFor(document, limits).isEmpty() || size.maxAttributes == 0,
                 document.constData());
    }
    QVERIFY2(parsed > 100, qPrintable(QString::number(parsed)));
}

TEST_CLASS(TestXmlGate, QCoreApplication)
#include "tst_xmlgate.moc"
