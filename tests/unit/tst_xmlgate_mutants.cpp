// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/xmlgate.h"

#include "tests/support/testprogram.h"

#include <QDomDocument>
#include <QRandomGenerator>
#include <QTest>
#include <QXmlDefaultHandler>

#include <algorithm>

using PanoHead::decodeXml;
using PanoHead::XmlLimits;
using PanoHead::xmlRefusal;

namespace
{

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
    static const QList<QByteArray> pieces
        = QByteArrayLiteral("<|>|/>|</|</a>|<a>|<a/>|<a b='|'|\"|<!--|-->|<!-->|--|<!--->|<?|?>|"
                            "<?x |<![CDATA[|]]>|]|[|<!|<!DOCTYPE p>|<!DOCTYPE p [|]>|"
                            "<!ENTITY e '<'>|<!ENTITY e \"&f;\">|<!ENTITY f 'v'>|"
                            "<!ENTITY % q ']><p>'>|%q;|&e;|&f;|&no;|&lt;|&#60;|&#x3c;|&#65596;|&|;|"
                            "%|=| |\n|\r|\t|-|!|?|/|x|\0|\xef\xbf\xbe|\xef\xbf\xbf|\xc3\xa9|\xff|"
                            "&#0;|<p>|</p>")
              .split('|');
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

/** Documents that nobody would write, read by the gate and by the parser. */
class TestXmlGateMutants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mutantsKeepGateAndParserInStep_data();
    void mutantsKeepGateAndParserInStep();
};

void TestXmlGateMutants::mutantsKeepGateAndParserInStep_data()
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
void TestXmlGateMutants::mutantsKeepGateAndParserInStep()
{
    QFETCH(QByteArray, seed);

    QRandomGenerator random(20260510);
    int parsed = 0;
    for (int i = 0; i < 4'000; ++i) {
        const QByteArray document = i == 0 ? seed : mutated(seed, random);
        const QString text = decodeXml(document);
        if (const auto refusal = xmlRefusal(text)) {
            // Small documents are refused for what their entities hold, and for nothing else.
            QVERIFY2(document.contains("<!ENTITY")
                         && refusal->reason.contains(QLatin1String("plain text")),
                     document.constData());
            continue;
        }
        XmlLimits limits;
        limits.maxDepth = DepthMeter(document).deepest() - 1;
        QVERIFY2(xmlRefusal(text, limits) || limits.maxDepth < 0, document.constData());
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
        QVERIFY2(cut || !xmlRefusal(text, limits), document.constData());
        limits = XmlLimits();
        limits.maxNodes = size.nodes - 1;
        QVERIFY2(xmlRefusal(text, limits), document.constData());
        limits = XmlLimits();
        limits.maxAttributes = size.maxAttributes - 1;
        QVERIFY2(xmlRefusal(text, limits) || size.maxAttributes == 0, document.constData());
    }
    QVERIFY2(parsed > 100, qPrintable(QString::number(parsed)));
}

TEST_CLASS(TestXmlGateMutants, QCoreApplication)
#include "tst_xmlgate_mutants.moc"
