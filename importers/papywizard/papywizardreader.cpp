// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/papywizardreader.h"

#include "importers/papywizard/xmlgate.h"
#include "shoot/recordlimits.h"
#include "shoot/shottime.h"

#include <QXmlDefaultHandler>

#include <bitset>
#include <cmath>
#include <memory>
#include <new>
#include <utility>

namespace PanoHead
{

namespace
{

/** The elements of a record that are looked at. */
enum class Part {
    Other,
    Root,
    Shoot,
    Pict,
    Position,
    Time,
    Header,
    General,
    Title,
    Gps,
    Comment,
    Camera,
    Sensor,
    Bracketing,
    Lens,
    Focal,
    Shooting,
    Orientation
};
constexpr size_t kPartCount = static_cast<size_t>(Part::Orientation) + 1;

constexpr size_t indexOf(Part part)
{
    return static_cast<size_t>(part);
}

struct PartRow {
    const char *name;
    Part parent;
    Part part;
};

constexpr PartRow kParts[] = {
    { "shoot", Part::Root, Part::Shoot },
    { "header", Part::Root, Part::Header },
    { "pict", Part::Shoot, Part::Pict },
    { "position", Part::Pict, Part::Position },
    { "time", Part::Pict, Part::Time },
    { "general", Part::Header, Part::General },
    { "title", Part::General, Part::Title },
    { "gps", Part::General, Part::Gps },
    { "comment", Part::General, Part::Comment },
    { "camera", Part::Header, Part::Camera },
    { "sensor", Part::Camera, Part::Sensor },
    { "bracketing", Part::Camera, Part::Bracketing },
    { "lens", Part::Header, Part::Lens },
    { "focal", Part::Lens, Part::Focal },
    { "shooting", Part::Header, Part::Shooting },
    { "cameraOrientation", Part::Shooting, Part::Orientation },
};

Part partOf(Part parent, const QString &name)
{
    for (const PartRow &row : kParts) {
        if (row.parent == parent && name == QLatin1String(row.name)) {
            return row.part;
        }
    }
    return Part::Other;
}

/** \p fallback for text that is no number, or none that a 32-bit float can hold. */
double toNumber(const QString &text, double fallback)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && std::isfinite(static_cast<float>(number)) ? number : fallback;
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

/** The last of this name: the parser lets an element have several. */
QString valueOf(const QXmlAttributes &attributes, const char *name)
{
    for (int i = attributes.length() - 1; i >= 0; --i) {
        if (attributes.qName(i) == QLatin1String(name)) {
            return attributes.value(i);
        }
    }
    return {};
}

/**
 * Takes a record element by element from the parser that Qt's DOM uses too. A DOM of the largest
 * records would take gigabytes.
 */
class RecordHandler : public QXmlDefaultHandler
{
public:
    /** Throws std::bad_alloc. */
    std::optional<PapywizardRecord> read(const QString &text)
    {
        QXmlInputSource source;
        source.setData(text);
        auto reader = std::make_unique<QXmlSimpleReader>();
        // As the DOM sets them.
        reader->setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
        reader->setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
        reader->setFeature(
            QStringLiteral("http://qt-project.org/xml/features/report-whitespace-only-CharData"),
            false);
        reader->setContentHandler(this);
        reader->setErrorHandler(this);
        try {
            if (!reader->parse(&source, false)) {
                return std::nullopt;
            }
        } catch (const std::bad_alloc &) {
            // Qt's parser is built without exceptions: interrupted, it holds what cannot be freed.
            (void)reader.release();
            throw;
        }
        if (m_focal) {
            m_record.xmlFocal = *m_focal * m_record.sensorCoef;
        }
        return m_record;
    }

    /** Why there is no record. */
    [[nodiscard]] const ReadError &error() const { return m_error; }

    bool startElement(const QString & /*uri*/, const QString & /*localName*/, const QString &name,
                      const QXmlAttributes &attributes) override
    {
        const Part part = enter(name);
        m_open.append(part);
        begin(part, attributes);
        return m_record.shots.size() <= kMaxRecordedShots;
    }

    bool endElement(const QString & /*uri*/, const QString & /*localName*/,
                    const QString & /*name*/) override
    {
        end(m_open.takeLast());
        return true;
    }

    bool characters(const QString &text) override
    {
        if (m_collectsText) {
            m_text += text;
        }
        return true;
    }

    bool fatalError(const QXmlParseException &exception) override
    {
        const bool isTooLong = m_record.shots.size() > kMaxRecordedShots;
        m_error = { isTooLong ? QStringLiteral("more than %1 pictures").arg(kMaxRecordedShots)
                              : QStringLiteral("not well-formed XML (%1)").arg(exception.message()),
                    exception.lineNumber() };
        return false;
    }

private:
    /** Of elements with the same name the first counts, but for the pictures. */
    Part enter(const QString &name)
    {
        if (m_open.isEmpty()) {
            return Part::Root;
        }
        const Part part = partOf(m_open.last(), name);
        if (part == Part::Pict) {
            m_seen.reset(indexOf(Part::Position));
            m_seen.reset(indexOf(Part::Time));
        } else if (m_seen.test(indexOf(part))) {
            return Part::Other;
        }
        m_seen.set(indexOf(part));
        return part;
    }

    void begin(Part part, const QXmlAttributes &attributes)
    {
        const auto number = [&attributes](const char *name, double fallback) {
            return toNumber(valueOf(attributes, name), fallback);
        };
        switch (part) {
        case Part::Shoot:
            m_record.hasShoot = true;
            break;
        case Part::Pict: {
            ShootData shot;
            shot.id = valueOf(attributes, "id").toInt();
            shot.bracket = valueOf(attributes, "bracket").toInt();
            m_record.shots.append(shot);
            m_record.times.append(QString());
            break;
        }
        case Part::Position:
            // A roll attribute is passed over: the values that heads write there are often wrong.
            m_record.shots.last().yaw = static_cast<float>(number("yaw", 0.0));
            m_record.shots.last().pitch = static_cast<float>(number("pitch", 0.0));
            break;
        case Part::Sensor:
            m_record.sensorCoef = number("coef", 1.0);
            break;
        case Part::Bracketing:
            m_record.nbPicts = valueOf(attributes, "nbPicts").toInt();
            break;
        case Part::Lens:
            m_focal = 0.0;
            if (valueOf(attributes, "type")
                    .trimmed()
                    .compare(QLatin1String("fisheye"), Qt::CaseInsensitive)
                == 0) {
                m_record.xmlLensType = static_cast<int>(LensModel::Fisheye);
            }
            break;
        case Part::Time:
        case Part::Title:
        case Part::Gps:
        case Part::Comment:
        case Part::Focal:
        case Part::Orientation:
            m_collectsText = true;
            break;
        default:
            break;
        }
    }

    void end(Part part)
    {
        switch (part) {
        case Part::Time: {
            const QString text = takeText();
            m_record.shots.last().time = QDateTime::fromString(text, Qt::TextDate);
            if (text.trimmed().size() <= kMaxShotTimeLength) {
                m_record.times.last() = text.trimmed();
            }
            break;
        }
        case Part::Title:
            m_record.title = takeText().trimmed();
            break;
        case Part::Gps:
            m_record.gps = takeText().trimmed();
            break;
        case Part::Comment:
            m_record.comment = takeText().trimmed();
            break;
        case Part::Focal:
            m_focal = toNumber(takeText().trimmed(), 0.0);
            break;
        case Part::Orientation:
            m_record.portrait = takeText().trimmed().toLower() == QLatin1String("portrait");
            break;
        default:
            break;
        }
    }

    /** All the text in the element that ends, that of its children included. */
    QString takeText()
    {
        m_collectsText = false;
        return std::exchange(m_text, {});
    }

    PapywizardRecord m_record;
    ReadError m_error;
    QVector<Part> m_open; // of the elements around the place where the parser is
    std::bitset<kPartCount> m_seen;
    std::optional<double> m_focal; // of the lens; the crop factor may come behind it
    QString m_text;
    bool m_collectsText = false;
};

QT_WARNING_POP

std::nullopt_t fail(ReadError *error, const ReadError &what)
{
    if (error != nullptr) {
        *error = what;
    }
    return std::nullopt;
}

} // namespace

std::optional<PapywizardRecord> readPapywizard(QByteArray bytes, ReadError *error)
{
    const QString text = decodeXml(std::exchange(bytes, {}));
    if (const std::optional<ReadError> refusal = xmlRefusal(text)) {
        return fail(error, *refusal);
    }
    RecordHandler handler;
    const std::optional<PapywizardRecord> record = handler.read(text);
    return record ? record : fail(error, handler.error());
}

} // namespace PanoHead
