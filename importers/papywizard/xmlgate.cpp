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
        while (m_refusal.isEmpty() && m_pos < m_text.size()) {
            step();
        }
        if (m_refusal.isEmpty()) {
            return std::nullopt;
        }
        const auto end = m_text.cbegin() + std::min(m_pos, m_text.size());
        const auto line = std::count(m_text.cbegin(), end, QLatin1Char('\n'));
        return ReadError{ m_refusal, static_cast<int>(line) + 1 };
    }

private:
    void step()
    {
        if (m_text.at(m_pos) != QLatin1Char('<')) {
            skipText();
        } else if (startsWith(QLatin1String("<!--"))) {
            skipPast(QLatin1String("-->"));
        } else if (startsWith(QLatin1String("<![CDATA["))) {
            count(1);
            skipPast(QLatin1String("]]>"));
        } else if (startsWith(QLatin1String("<?"))) {
            skipPast(QLatin1String("?>"));
        } else if (startsWith(QLatin1String("<!"))) {
            skipDoctype();
        } else if (startsWith(QLatin1String("</"))) {
            --m_depth;
            skipPast(QLatin1String(">"));
        } else {
            skipElement();
        }
    }

    [[nodiscard]] bool startsWith(QLatin1String token) const
    {
        return m_text.midRef(m_pos, token.size()) == token;
    }

    void skipPast(QLatin1String token)
    {
        const int found = m_text.indexOf(token, m_pos);
        m_pos = found < 0 ? m_text.size() : found + token.size();
    }

    void skipText()
    {
        count(1);
        while (m_pos < m_text.size() && m_text.at(m_pos) != QLatin1Char('<')) {
            lookForReference();
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
        while (m_pos < m_text.size()) {
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
                count(1);
                if (++attributes > m_limits.maxAttributes) {
                    refuse(QStringLiteral("more than %1 attributes on one element")
                               .arg(m_limits.maxAttributes));
                }
                skipAttributeValue(c);
            } else {
                ++m_pos;
            }
        }
    }

    void skipAttributeValue(QChar quote)
    {
        ++m_pos;
        while (m_pos < m_text.size() && m_text.at(m_pos) != quote) {
            lookForReference();
            ++m_pos;
        }
        ++m_pos;
    }

    /** To the '>' outside quotes, brackets and comments, but never beyond the permitted length. */
    void skipDoctype()
    {
        const int start = m_pos;
        const int limit = std::min<int>(m_text.size(), start + m_limits.maxDoctypeLength);
        bool inSubset = false;
        while (m_pos < limit) {
            const QChar c = m_text.at(m_pos);
            if (startsWith(QLatin1String("<!--"))) {
                skipPast(QLatin1String("-->"));
            } else if (startsWith(QLatin1String("<?"))) {
                skipPast(QLatin1String("?>"));
            } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
                m_pos = m_text.indexOf(c, m_pos + 1);
                m_pos = m_pos < 0 ? m_text.size() : m_pos + 1;
            } else {
                ++m_pos;
                if (c == QLatin1Char('[')) {
                    inSubset = true;
                } else if (c == QLatin1Char(']')) {
                    inSubset = false;
                } else if (c == QLatin1Char('>') && !inSubset) {
                    break;
                }
            }
        }
        if (m_pos - start > m_limits.maxDoctypeLength
            || (m_pos == limit && limit < m_text.size())) {
            refuse(QStringLiteral("a document type declaration longer than %1 characters")
                       .arg(m_limits.maxDoctypeLength));
        }
        noteEntities(m_text.midRef(start, std::min(m_pos, m_text.size()) - start));
    }

    void noteEntities(const QStringRef &declaration)
    {
        if (!declaration.contains(QLatin1String("<!ENTITY"))) {
            return;
        }
        const bool nested
            = declaration.contains(QLatin1Char('&')) || declaration.contains(QLatin1Char('%'));
        const int longest
            = nested ? std::max(declaration.size(), m_limits.maxNestedEntity) : declaration.size();
        m_longestEntity = std::max(m_longestEntity, longest);
    }

    void lookForReference()
    {
        if (m_longestEntity == 0 || m_text.at(m_pos) != QLatin1Char('&')) {
            return;
        }
        m_expansion += m_longestEntity;
        if (m_expansion > m_limits.maxExpansion) {
            refuse(QStringLiteral("too many references to entities of its own"));
        }
    }

    void count(int nodes)
    {
        m_nodes += nodes;
        if (m_nodes > m_limits.maxNodes) {
            refuse(QStringLiteral("more than %1 elements, attributes and texts")
                       .arg(m_limits.maxNodes));
        }
    }

    void refuse(const QString &reason)
    {
        if (m_refusal.isEmpty()) {
            m_refusal = reason;
        }
    }

    const QString &m_text;
    const XmlLimits &m_limits;
    int m_pos = 0;
    int m_depth = 0;
    int m_nodes = 0;
    int m_longestEntity = 0; // 0: no entity is declared
    int m_expansion = 0;
    QString m_refusal;
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
    // The DOM's own decoder, in the pieces in which the DOM reads a device: what is scanned is what
    // will be parsed.
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
