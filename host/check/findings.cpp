// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/findings.h"

#include "host/check/knownlens.h"
#include "host/model/displayname.h"
#include "host/model/jsonfields.h"
#include "host/model/panorama.h"
#include "host/model/pathparts.h"
#include "host/model/said.h"

#include <algorithm>

namespace PanoHost
{

namespace
{

QString focalOrUnknown(double focal35mm)
{
    return focal35mm > 0.0 ? millimetres(focal35mm) : Said::tr("not known");
}

struct Findings {
    QVector<Finding> findings;
    bool isImportable = false;
};

constexpr auto kFindingFields = [](JsonFields &json, const Finding &finding) {
    json.derived("topic", finding.topic);
    json.derived("text", finding.text, "one line");
    json.derived("trouble", finding.kind == Finding::Kind::Trouble, "the user should look at it");
    json.derived("files", finding.files, "the photos that it is about; none: all");
    QVector<qint32> numbers;
    for (const int shot : finding.shots) {
        numbers += shot + 1;
    }
    json.derived("shots", numbers, "of the record, from 1, that it is about; none: all");
    json.derived("sureness", finding.sureness, About("how likely it is so").atLeast(0).atMost(1));
    json.derived("cure", finding.cure, "what to do");
    using Action = Finding::Action;
    json.word("action", finding.action,
              { Action::None, Action::ReplacePhotos, Action::FitPhotos, Action::EnterFocal,
                Action::Reshoot },
              actionName);
};

constexpr auto kDocumentFields = [](JsonFields &json, const Findings &document) {
    json.constant("schema", 1);
    json.derived("importable", document.isImportable, "whether 'panohost import' would take it");
    json.list("findings", document.findings, kFindingFields);
};

} // namespace

Finding recordFinding(const QString &path, const PanoHead::RecordSummary &record)
{
    return { QStringLiteral("record"),
             Said::tr("%1: %2, bracket %3, focal %4, lens %5")
                 .arg(displayName(path), counted(record.shotCount, "shot"),
                      QString::number(record.bracketCount), focalOrUnknown(record.focal35mm),
                      lensText(record.lens)) };
}

Finding badPhotoFinding(const QString &path, const QString &why)
{
    Finding finding{ QStringLiteral("bad"), QStringLiteral("%1: %2").arg(displayName(path), why),
                     Finding::Kind::Trouble };
    finding.files = QStringList(path);
    finding.cure = Said::tr("copy it from the card again");
    finding.action = Finding::Action::ReplacePhotos;
    return finding;
}

Finding photosFinding(const QVector<PhotoInfo> &photos, int given)
{
    const KnownLens facts = knownLensOf(photos);
    return { QStringLiteral("photos"),
             Said::tr("%1 given, %2 readable, focal %3, lens %4")
                 .arg(QString::number(given), QString::number(photos.size()),
                      focalOrUnknown(facts.focal35mm), lensText(facts.lens)),
             photos.size() == given ? Finding::Kind::Fact : Finding::Kind::Trouble };
}

std::optional<Finding> lensFinding(const KnownLens &photos, double recordFocal35mm)
{
    if (photos.focal35mm > 0.0 || recordFocal35mm > 0.0) {
        return {};
    }
    Finding finding{ QStringLiteral("lens"),
                     Said::tr("neither the photos nor the record name the focal length"),
                     Finding::Kind::Trouble };
    finding.cure = Said::tr("give it, as for 35 mm film: --focal 24");
    finding.action = Finding::Action::EnterFocal;
    return finding;
}

Finding orderFinding(const QVector<PhotoInfo> &photos)
{
    const QString topic = QStringLiteral("order");
    for (int i = 1; i < photos.size(); ++i) {
        const PhotoInfo &before = photos.at(i - 1);
        const PhotoInfo &photo = photos.at(i);
        if (before.timeMs == 0 || photo.timeMs == 0) {
            return { topic,
                     Said::tr("not all photos have a capture time"),
                     Finding::Kind::Fact,
                     { before.timeMs == 0 ? before.path : photo.path } };
        }
        if (photo.timeMs < before.timeMs) {
            Finding finding{
                topic,
                Said::tr("%1 was taken before %2").arg(nameOf(photo.path), nameOf(before.path)),
                Finding::Kind::Trouble
            };
            finding.files = QStringList{ before.path, photo.path };
            finding.cure = Said::tr("try --order time");
            finding.action = Finding::Action::FitPhotos;
            return finding;
        }
    }
    return { topic, Said::tr("capture times agree") };
}

Finding gapFinding(const QVector<PhotoInfo> &photos)
{
    Finding none{ QStringLiteral("gaps"), Said::tr("none") };
    QVector<qint64> pauses;
    for (int i = 1; i < photos.size(); ++i) {
        pauses += photos.at(i).timeMs - photos.at(i - 1).timeMs;
    }
    if (pauses.isEmpty()) {
        return none;
    }
    const auto *longest = std::max_element(pauses.cbegin(), pauses.cend());
    QVector<qint64> sorted = pauses;
    std::sort(sorted.begin(), sorted.end());
    constexpr qint64 kNotableFactor = 4;
    constexpr qint64 kNotableMs = 5000;
    const qint64 usual = sorted.at(sorted.size() / 2);
    if (*longest < std::max(kNotableMs, usual * kNotableFactor)) {
        return none;
    }
    const int before = static_cast<int>(longest - pauses.cbegin());
    return { none.topic,
             Said::tr("%1 s after %2 (usually %3 s)")
                 .arg(QString::number(*longest / 1000), nameOf(photos.at(before).path),
                      QString::number(usual / 1000)),
             Finding::Kind::Trouble,
             { photos.at(before).path, photos.at(before + 1).path } };
}

QVector<Finding> photoFindings(const QVector<PhotoInfo> &photos, int given)
{
    return { photosFinding(photos, given), orderFinding(photos), gapFinding(photos) };
}

QString actionName(Finding::Action action)
{
    static const QStringList names{ QStringLiteral("none"), QStringLiteral("replace"),
                                    QStringLiteral("fit"), QStringLiteral("focal"),
                                    QStringLiteral("reshoot") };
    return names.at(static_cast<int>(action));
}

QByteArray findingsToJson(const QVector<Finding> &findings, bool importable)
{
    const Findings document{ findings, importable };
    return writeJson([&](JsonFields &fields) { kDocumentFields(fields, document); }, {});
}

QByteArray findingsSchema()
{
    return jsonSchema("https://orvane.invalid/panohost-check.schema.json",
                      "What panohost has found out about a shoot (schema 1)",
                      "Paths are absolute. Readers ignore keys that they do not know.",
                      [](JsonFields &fields) { kDocumentFields(fields, Findings()); });
}

} // namespace PanoHost
