// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/papywizardexcerpt.h"

#include "importers/papywizard/xmlgate.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <utility>

namespace PanoHead
{

namespace
{

/** Copies a record part by part. */
class Copy
{
public:
    Copy(const QString &text, const QVector<int> &shots)
        : m_shots(shots)
        , m_reader(text)
        , m_writer(&m_copy)
    {
        m_reader.setNamespaceProcessing(false);
    }

    std::optional<QByteArray> run(ReadError *error)
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            step();
        }
        if (m_reader.hasError()) {
            if (error != nullptr) {
                *error = { QStringLiteral("not strictly XML (%1)").arg(m_reader.errorString()),
                           static_cast<int>(m_reader.lineNumber()) };
            }
            return std::nullopt;
        }
        return m_copy;
    }

private:
    void step()
    {
        switch (m_reader.tokenType()) {
        case QXmlStreamReader::StartElement:
            if (isPicture() && !std::binary_search(m_shots.begin(), m_shots.end(), m_picture++)) {
                m_blanks.clear(); // the line on which it began
                m_reader.skipCurrentElement();
                return;
            }
            begin();
            return;
        case QXmlStreamReader::EndElement:
            writeBlanks();
            m_writer.writeEndElement();
            --m_depth;
            m_isInShoot = m_isInShoot && m_depth > 1;
            return;
        case QXmlStreamReader::Characters:
            if (m_reader.isWhitespace() && !m_reader.isCDATA()) {
                m_blanks += m_reader.text();
                return;
            }
            break;
        case QXmlStreamReader::Invalid:
            return;
        default:
            break;
        }
        writeOther();
    }

    /** Of elements named `shoot` the first counts. */
    [[nodiscard]] bool isPicture() const
    {
        return m_isInShoot && m_depth == 2 && m_reader.name() == QLatin1String("pict");
    }

    void begin()
    {
        if (m_depth > 0) {
            writeBlanks();
        }
        m_blanks.clear();
        if (++m_depth == 2 && !m_hadShoot && m_reader.name() == QLatin1String("shoot")) {
            m_hadShoot = m_isInShoot = true;
        }
        m_writer.writeStartElement(m_reader.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            m_writer.writeAttribute(attribute.qualifiedName().toString(),
                                    attribute.value().toString());
        }
    }

    /** Around the root the reader tells little of blanks: each part gets a line there. */
    void writeOther()
    {
        if (m_depth == 0) {
            m_blanks.clear();
        }
        writeBlanks();
        if (m_reader.isDTD()) {
            m_writer.writeDTD(m_reader.text().trimmed().toString());
        } else {
            m_writer.writeCurrentToken(m_reader);
        }
        if (m_depth == 0 && !m_reader.isEndDocument()) {
            m_writer.writeCharacters(QStringLiteral("\n"));
        }
    }

    void writeBlanks()
    {
        if (!m_blanks.isEmpty()) {
            m_writer.writeCharacters(std::exchange(m_blanks, {}));
        }
    }

    const QVector<int> &m_shots;
    QXmlStreamReader m_reader;
    QByteArray m_copy;
    QXmlStreamWriter m_writer;
    QString m_blanks; // read, and not yet written
    int m_picture = 0; // the next one
    int m_depth = 0; // open elements
    bool m_hadShoot = false;
    bool m_isInShoot = false;
};

} // namespace

std::optional<QByteArray> papywizardExcerpt(const QByteArray &bytes, const QVector<int> &shots,
                                            ReadError *error)
{
    return Copy(decodeXml(bytes), shots).run(error);
}

} // namespace PanoHead
