// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/xmlgate.h"

#include <QBuffer>
#include <QXmlInputSource>

#include <algorithm>

namespace PanoHead
{

namespace
{

/** What a reference that stands for plain text is called: these five, or a number. */
bool isPredefined(const QStringRef &name)
{
    return name == QLatin1String("amp") || name == QLatin1String("lt")
        || name == QLatin1String("gt") || name == QLatin1String("apos")
        || name == QLatin1String("quot");
}

/** The text between the '&' at \p pos and its ';'; empty when there is none. */
QStringRef referenceName(const QString &text, int pos)
{
    constexpr int kLongestName = 64; // longer ones are never predefined
    const QStringRef ahead = text.midRef(pos + 1, kLongestName);
    return ahead.left(std::max(ahead.indexOf(QLatin1Char(';')), 0));
}

/** Whether the reference at \p pos adds text to an entity's value that can never become markup. */
bool isPlainReference(const QString &text, int pos)
{
    const QStringRef name = referenceName(text, pos);
    if (!name.startsWith(QLatin1Char('#'))) {
        return isPredefined(name);
    }
    const bool isHex = name.startsWith(QLatin1String("#x"));
    bool ok = false;
    const uint code = isHex ? name.mid(2).toUInt(&ok, 16) : name.mid(1).toUInt(&ok, 10);
    const QChar character(static_cast<ushort>(code)); // the parser cuts it to 16 bits as well
    return ok && character != QLatin1Char('<') && character != QLatin1Char('&');
}

/** One pass over a document, following the grammar just far enough to count. */
class Scan
{
public:
    Scan(const QString &text, const XmlLimits &limits)
        : m_text(text)
        , m_limits(limits)
    {
    }

    std::optional<ReadError> refusal()
    {
        while (!isDone()) {
            step();
        }
        return m_refusal;
    }

private:
    [[nodiscard]] bool isDone() const { return m_refusal || m_pos >= m_text.size(); }

    void step()
    {
        if (m_text.at(m_pos) != QLatin1Char('<')) {
            skipText();
        } else if (startsWith(QLatin1String("<!--"))) {
            count(1);
            skipSpan(QLatin1String("<!--"), QLatin1String("-->"));
        } else if (startsWith(QLatin1String("<![CDATA["))) {
            count(1);
            skipSpan(QLatin1String("<![CDATA["), QLatin1String("]]>"));
        } else if (startsWith(QLatin1String("<?"))) {
            count(1);
            skipSpan(QLatin1String("<?"), QLatin1String("?>"));
        } else if (startsWith(QLatin1String("<!"))) {
            skipDoctype();
        } else if (startsWith(QLatin1String("</"))) {
            --m_depth;
            skipSpan(QLatin1String("</"), QLatin1String(">"));
        } else {
            skipElement();
        }
    }

    [[nodiscard]] bool startsWith(QLatin1String token) const
    {
        return m_text.midRef(m_pos, token.size()) == token;
    }

    /** Beyond the \p closing behind the \p opening: in "<!-->" the comment has only begun. */
    void skipSpan(QLatin1String opening, QLatin1String closing)
    {
        const int found = m_text.indexOf(closing, m_pos + opening.size());
        m_pos = found < 0 ? m_text.size() : found + closing.size();
    }

    void skipText()
    {
        count(1);
        while (!isDone() && m_text.at(m_pos) != QLatin1Char('<')) {
            if (m_text.at(m_pos) == QLatin1Char('&') && isEntityReference()) {
                count(2); // the reference, and the text behind it
                noteExpansion();
            }
            ++m_pos;
        }
    }

    void skipElement()
    {
        ++m_pos;
        count(1);
        if (++m_depth > m_limits.maxDepth) {
            refuse(QStringLiteral("elements nested more than %1 deep").arg(m_limits.maxDepth));
        }
        int attributes = 0;
        while (!isDone()) {
            const QChar c = m_text.at(m_pos);
            if (c == QLatin1Char('>')) {
                ++m_pos;
                return;
            }
            if (startsWith(QLatin1String("/>"))) {
                --m_depth;
                m_pos += 2;
                return;
            }
            if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
                countAttribute(++attributes);
                skipAttributeValue(c);
            } else {
                ++m_pos;
            }
        }
    }

    void skipAttributeValue(QChar quote)
    {
        ++m_pos;
        while (!isDone() && m_text.at(m_pos) != quote) {
            if (m_text.at(m_pos) == QLatin1Char('&') && isEntityReference()) {
                noteExpansion();
            }
            ++m_pos;
        }
        ++m_pos;
    }

    /**
     * To the '>' outside literals, brackets and comments. The parser takes several declarations in
     * one document: their lengths are added up.
     */
    void skipDoctype()
    {
        const int start = m_pos;
        const int permitted = m_limits.maxDoctypeLength - m_doctypeLength;
        const int limit = m_text.size() - start > permitted ? start + permitted : m_text.size();
        bool inSubset = false;
        bool isClosed = false;
        m_doctypeIsPlain = true;
        while (!isClosed && m_pos < limit) {
            const QChar c = m_text.at(m_pos);
            if (startsWith(QLatin1String("<!--"))) {
                count(1);
                skipSpan(QLatin1String("<!--"), QLatin1String("-->"));
            } else if (startsWith(QLatin1String("<?"))) {
                count(1);
                skipSpan(QLatin1String("<?"), QLatin1String("?>"));
            } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
                skipLiteral(c);
            } else {
                m_doctypeIsPlain = m_doctypeIsPlain && c != QLatin1Char('%');
                inSubset = c == QLatin1Char('[') || (inSubset && c != QLatin1Char(']'));
                isClosed = c == QLatin1Char('>') && !inSubset;
                ++m_pos;
            }
        }
        if (m_pos > limit || (!isClosed && limit < m_text.size())) {
            refuse(QStringLiteral("document type declarations longer than %1 characters")
                       .arg(m_limits.maxDoctypeLength));
        }
        m_doctypeLength += m_pos - start;
        noteEntities(m_text.midRef(start, m_pos - start));
    }

    void skipLiteral(QChar quote)
    {
        ++m_pos;
        while (m_pos < m_text.size() && m_text.at(m_pos) != quote) {
            const QChar c = m_text.at(m_pos);
            if (c == QLatin1Char('<')
                || (c == QLatin1Char('&') && !isPlainReference(m_text, m_pos))) {
                m_doctypeIsPlain = false;
            }
            ++m_pos;
        }
        m_pos = std::min(m_pos + 1, m_text.size());
    }

    /**
     * Entities may hold plain text only. With parts of markup in them ("<!-", "<a b='") nothing
     * short of expanding them shows where an element begins, and a chain of entities expands to
     * more than the parser's own check sees.
     */
    void noteEntities(const QStringRef &declaration)
    {
        if (!declaration.contains(QLatin1String("<!ENTITY"))) {
            return;
        }
        if (!m_doctypeIsPlain) {
            refuse(QStringLiteral("entities of its own that are more than plain text"));
        }
        m_longestEntity = std::max(m_longestEntity, declaration.size());
    }

    /** Whether the reference here stands for an entity; the others stand for a character each. */
    [[nodiscard]] bool isEntityReference() const
    {
        return !startsWith(QLatin1String("&#")) && !isPredefined(referenceName(m_text, m_pos));
    }

    void noteExpansion()
    {
        m_expansion += m_longestEntity;
        if (m_expansion > m_limits.maxExpansion) {
            refuse(QStringLiteral("too many references to entities of its own"));
        }
    }

    void count(int nodes)
    {
        m_nodes += nodes;
        if (m_nodes > m_limits.maxNodes) {
            refuse(QStringLiteral("more than %1 elements, attributes, texts and other parts")
                       .arg(m_limits.maxNodes));
        }
    }

    /** The \p number-th of an element, from 1. */
    void countAttribute(int number)
    {
        count(1);
        if (number > m_limits.maxAttributes) {
            refuse(QStringLiteral("more than %1 attributes on one element")
                       .arg(m_limits.maxAttributes));
        }
    }

    void refuse(const QString &reason)
    {
        if (m_refusal) {
            return;
        }
        const auto *end = m_text.cbegin() + std::min(m_pos, m_text.size());
        const auto line = std::count(m_text.cbegin(), end, QLatin1Char('\n'));
        m_refusal = ReadError{ reason, static_cast<int>(line) + 1 };
    }

    const QString &m_text;
    const XmlLimits &m_limits;
    int m_pos = 0;
    int m_depth = 0;
    int m_nodes = 0;
    int m_doctypeLength = 0;
    bool m_doctypeIsPlain = true; // no markup, references or parameter entities in its literals
    int m_longestEntity = 0; // 0: no entity is declared
    int m_expansion = 0;
    std::optional<ReadError> m_refusal;
};

} // namespace

std::optional<ReadError> xmlRefusal(const QString &text, const XmlLimits &limits)
{
    return Scan(text, limits).refusal();
}

QString decodeXml(const QByteArray &bytes)
{
    QByteArray content = bytes;
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    // The parser's own decoder, in the pieces in which it reads a device.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QXmlInputSource source(&buffer);
    QString text = source.data();
    while (!buffer.atEnd()) {
        source.fetchData();
        text += source.data();
    }
    QT_WARNING_POP
    return text;
}

} // namespace PanoHead
