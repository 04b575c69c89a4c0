// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/cardreport.h"

#include "host/model/displayname.h"
#include "host/model/jsonfields.h"
#include "host/model/messages.h"
#include "host/model/pathparts.h"

#include <QDateTime>

#include <algorithm>

namespace PanoHost
{

namespace
{

constexpr int kSchema = 1;

/** "papywizard or vrdrive2". */
QString headsOf(const CardRecord &record)
{
    return record.heads.join(QLatin1String(" or "));
}

/** "2024-05-01 10:00 to 10:05"; empty: no times. */
QString timesOf(const QVector<CardPhoto> &photos, const PhotoRun &run)
{
    constexpr int kDate = 10;
    constexpr int kMinutes = 16;
    const auto text = [&](int photo) {
        QString time = photos[photo].info.timeText.left(kMinutes);
        return time.replace(QLatin1Char('T'), QLatin1Char(' '));
    };
    QString first = text(run.front());
    const QString last = text(run.back());
    if (first.isEmpty() || last.isEmpty() || first == last) {
        return first;
    }
    const bool isSameDay = first.left(kDate) == last.left(kDate);
    return QStringLiteral("%1 to %2").arg(first, isSameDay ? last.mid(kDate + 1) : last);
}

/** "DCIM/IMG_0001.jpg to IMG_0026.jpg". */
QString spanOf(const QVector<CardPhoto> &photos, const PhotoRun &run)
{
    const QString first = photos[run.front()].info.path;
    const QString last = photos[run.back()].info.path;
    if (run.size() == 1) {
        return displayName(first);
    }
    return QStringLiteral("%1 to %2")
        .arg(displayName(first),
             folderOf(first) == folderOf(last) ? nameOf(last) : displayName(last));
}

/** "a.jpg, b.jpg and 7 more". */
QString listed(const QStringList &paths)
{
    constexpr int kMost = 4;
    QStringList names;
    for (const QString &path : paths.mid(0, paths.size() <= kMost + 1 ? kMost + 1 : kMost)) {
        names += displayName(path);
    }
    const int more = paths.size() - names.size();
    return names.join(QLatin1String(", "))
        + (more > 0 ? QStringLiteral(" and %1 more").arg(more) : QString());
}

/** "26 photos, with RAW". */
QString photosText(const QVector<CardPhoto> &photos, const PhotoRun &run)
{
    const auto raws = std::count_if(run.begin(), run.end(),
                                    [&photos](int photo) { return !photos[photo].raws.isEmpty(); });
    const int count = static_cast<int>(run.size());
    return counted(count, "photo")
        + (raws == 0           ? QString()
               : raws == count ? QStringLiteral(" with RAW")
                               : QStringLiteral(", %1 with RAW").arg(raws));
}

QString clockText(double seconds)
{
    constexpr double kAgreeing = 30.0;
    constexpr double kMinute = 60.0;
    constexpr double kHour = 3600.0;
    const double away = std::abs(seconds);
    if (away <= kAgreeing) {
        return {};
    }
    const QString by = away >= kHour
        ? QStringLiteral("%1 h %2 min").arg(int(away / kHour)).arg(int(away / kMinute) % 60)
        : QStringLiteral("%1 min %2 s").arg(int(away / kMinute)).arg(int(away) % 60);
    return QStringLiteral(", the camera's clock %1 %2 the head's")
        .arg(by, seconds > 0.0 ? QStringLiteral("ahead of") : QStringLiteral("behind"));
}

/** Why a shoot is thought to be one. */
QString reasonOf(const Card &card, const PlannedShoot &shoot)
{
    if (shoot.record < 0) {
        return QStringLiteral("no record: a grid? their rhythm and number look like one");
    }
    QStringList rivals;
    for (const int record : shoot.rivalRecords) {
        rivals += card.records[record].path;
    }
    if (!rivals.isEmpty()) {
        return QStringLiteral("the photos fit %1 as well; look at a picture of each shoot and keep "
                              "the right record beside its photos")
            .arg(listed(rivals));
    }
    if (!shoot.rivalPhotos.empty()) {
        QStringList others;
        for (const PhotoRun &run : shoot.rivalPhotos) {
            others += QStringLiteral("%1, %2").arg(photosText(card.photos, run),
                                                   spanOf(card.photos, run));
        }
        constexpr int kMost = 2;
        const int more = others.size() - kMost;
        return QStringLiteral("the record fits %1%2 as well; put it beside its photos")
            .arg(QStringList(others.mid(0, kMost)).join(QLatin1String(" and ")),
                 more > 0 ? QStringLiteral(" and %1 more groups").arg(more) : QString());
    }
    if (shoot.byTimes) {
        const QString times = shoot.sureness == Sureness::Sure
            ? QStringLiteral("shots and photos go together by their times")
            : QStringLiteral("%1 of %2 shots and the photos go together by their times")
                  .arg(shoot.shotCount - shoot.missingShots)
                  .arg(shoot.shotCount);
        return times + clockText(shoot.clockSeconds);
    }
    if (shoot.sureness == Sureness::Unsure) {
        return QStringLiteral("their numbers go together, their times do not; 'panohost check' "
                              "looks at the pictures too");
    }
    return static_cast<int>(shoot.photos.size()) == shoot.shotCount
        ? QStringLiteral("as many photos as shots; there are no times to compare")
        : QStringLiteral("about as many photos as shots; there are no times to compare");
}

QString surenessName(Sureness sureness)
{
    switch (sureness) {
    case Sureness::Sure:
        return QStringLiteral("sure");
    case Sureness::Likely:
        return QStringLiteral("likely");
    case Sureness::Unsure:
        break;
    }
    return QStringLiteral("unsure");
}

/** Collects lines. */
class Lines
{
public:
    Lines(const Card &card, const CardPlan &plan)
        : m_card(card)
        , m_plan(plan)
    {
    }

    QStringList all()
    {
        for (int i = 0; i < m_plan.shoots.size(); ++i) {
            addShoot(i);
        }
        addIdleRecords();
        addLeftOver();
        addCopies();
        if (!m_card.results.isEmpty()) {
            add("results",
                QStringLiteral("%1 made of photos, not taken as photos: %2")
                    .arg(counted(m_card.results.size(), "picture"), listed(m_card.results)));
        }
        addRefused("bad", m_card.refused);
        addNoRecords();
        return m_lines;
    }

private:
    void add(const char *topic, const QString &text)
    {
        m_lines += QStringLiteral("%1 %2").arg(QString::fromLatin1(topic), -8).arg(onOneLine(text));
    }

    void addShoot(int index)
    {
        const PlannedShoot &shoot = m_plan.shoots[index];
        const QString times = timesOf(m_card.photos, shoot.photos);
        QString text = QString::number(index + 1) + QStringLiteral(": ")
            + (times.isEmpty() ? QString() : times + QStringLiteral(", "));
        if (shoot.record >= 0) {
            const CardRecord &record = m_card.records[shoot.record];
            text += QStringLiteral("%1 (%2), %3")
                        .arg(displayName(record.path), headsOf(record),
                             counted(shoot.shotCount, "shot"));
        } else {
            text += QStringLiteral("no record");
        }
        add("shoot", text);
        text = photosText(m_card.photos, shoot.photos) + QStringLiteral(", ")
            + spanOf(m_card.photos, shoot.photos);
        if (shoot.missingShots > 0) {
            text += QStringLiteral("; none for %1").arg(counted(shoot.missingShots, "shot"));
        }
        if (shoot.doubledShots > 0) {
            text += QStringLiteral("; %1 taken more than once")
                        .arg(counted(shoot.doubledShots, "shot"));
        }
        add("photos", text);
        add(shoot.sureness == Sureness::Unsure     ? "not sure"
                : shoot.sureness == Sureness::Sure ? "sure"
                                                   : "likely",
            reasonOf(m_card, shoot));
    }

    void addIdleRecords()
    {
        for (const int index : m_plan.idleRecords) {
            const CardRecord &record = m_card.records[index];
            const QDateTime time = record.shots.isEmpty() ? QDateTime() : record.shots.first().time;
            add("record",
                QStringLiteral("%1 (%2), %3%4: no photos found that fit; are they on another card?")
                    .arg(displayName(record.path), headsOf(record),
                         counted(record.shots.size(), "shot"),
                         time.isValid() ? QStringLiteral(", ")
                                 + time.toString(QStringLiteral("yyyy-MM-dd HH:mm"))
                                        : QString()));
        }
    }

    void addLeftOver()
    {
        constexpr int kMost = 20;
        int named = 0;
        int more = 0;
        for (const PhotoRun &run : m_plan.leftOver) {
            if (++named > kMost) {
                more += static_cast<int>(run.size());
                continue;
            }
            const QString times = timesOf(m_card.photos, run);
            add("left",
                QStringLiteral("%1, %2%3: of no shoot")
                    .arg(photosText(m_card.photos, run), spanOf(m_card.photos, run),
                         times.isEmpty() ? QString() : QStringLiteral(", ") + times));
        }
        if (more > 0) {
            add("left", QStringLiteral("and %1 more, which --json names").arg(more));
        }
    }

    void addCopies()
    {
        QStringList copies;
        for (const CardPhoto &photo : m_card.photos) {
            copies += photo.copies;
        }
        for (const CardRecord &record : m_card.records) {
            copies += record.copies;
        }
        if (!copies.isEmpty()) {
            add("copies",
                QStringLiteral("%1 the same as others, taken once: %2")
                    .arg(counted(copies.size(), "file"), listed(copies)));
        }
    }

    void addRefused(const char *topic, const QVector<RefusedFile> &files)
    {
        constexpr int kMost = 20;
        for (const RefusedFile &file : files.mid(0, kMost)) {
            add(topic, QStringLiteral("%1: %2").arg(displayName(file.path), file.why));
        }
        if (files.size() > kMost) {
            add(topic, QStringLiteral("and %1 more, which --json names").arg(files.size() - kMost));
        }
    }

    void addNoRecords()
    {
        QStringList paths;
        for (const RefusedFile &file : m_card.noRecords) {
            paths += file.path;
        }
        if (!paths.isEmpty()) {
            add("other",
                QStringLiteral("%1 like a record and not one of a head: %2")
                    .arg(paths.size() == 1 ? QStringLiteral("1 file that ends")
                                           : QStringLiteral("%1 files that end").arg(paths.size()),
                         listed(paths)));
        }
    }

    const Card &m_card;
    const CardPlan &m_plan;
    QStringList m_lines;
};

/** Photos in a document. */
struct PhotoList {
    QStringList photos;
    QStringList raws;
};

/** A record in a document. */
struct NamedRecord {
    QString path;
    QStringList heads;
    int shots = 0;
};

/** A shoot in a document. */
struct NamedShoot {
    NamedRecord record;
    Sureness sureness = Sureness::Unsure;
    QString reason;
    QString begin;
    QString end;
    PhotoList photos;
    int missingShots = 0;
    int doubledShots = 0;
    std::optional<double> clockSeconds;
    QStringList rivalRecords;
    QVector<PhotoList> rivalPhotos;
};

/** The whole document. */
struct NamedPlan {
    QVector<NamedShoot> shoots;
    QVector<NamedRecord> idleRecords;
    QVector<PhotoList> leftOver;
    QStringList copies;
    QStringList results;
    QVector<RefusedFile> refused;
    QVector<RefusedFile> noRecords;
};

constexpr auto kPhotoListFields = [](JsonFields &json, auto &list) {
    json.field("photos", list.photos, "in the order in which they were taken");
    json.field("raws", list.raws, "RAW files of the same pictures, not among the photos");
};

constexpr auto kRecordFields = [](JsonFields &json, auto &record) {
    json.field("file", record.path);
    json.field("heads", record.heads, "that may have written it, as on the command line");
    json.field("shots", record.shots, About().atLeast(0));
};

constexpr auto kShootFields = [](JsonFields &json, auto &shoot) {
    json.field("record", shoot.record.path, About("null: none, a grid?").orNull());
    json.field("heads", shoot.record.heads, "that may have written it, as on the command line");
    json.field("shots", shoot.record.shots, About("of the record").atLeast(0));
    json.word("sureness", shoot.sureness, { Sureness::Sure, Sureness::Likely, Sureness::Unsure },
              &surenessName);
    json.field("reason", shoot.reason, "for people");
    json.field("begin", shoot.begin, About("by the camera's clock").orNull());
    json.field("end", shoot.end, About("by the camera's clock").orNull());
    kPhotoListFields(json, shoot.photos);
    json.field("missingShots", shoot.missingShots, About("shots without a photo").atLeast(0));
    json.field("doubledShots", shoot.doubledShots, About("shots with several photos").atLeast(0));
    json.field("clockSeconds", shoot.clockSeconds,
               About("camera minus head; null: times were of no use").orNull());
    json.field("rivalRecords", shoot.rivalRecords, "these photos fit them as well");
    json.list("rivalPhotos", shoot.rivalPhotos, kPhotoListFields, "They fit the record as well.");
};

constexpr auto kRefusedFields = [](JsonFields &json, auto &file) {
    json.field("file", file.path);
    json.field("why", file.why);
};

constexpr auto kPlanFields = [](JsonFields &json, auto &plan) {
    json.constant("schema", kSchema);
    json.list("shoots", plan.shoots, kShootFields, "In the order of time.");
    json.list("idleRecords", plan.idleRecords, kRecordFields, "No photos fit them.");
    json.list("leftOver", plan.leftOver, kPhotoListFields,
              "Photos that no record fits, one entry for each group.");
    json.field("copies", plan.copies, "files that are the same as others");
    json.field("results", plan.results, "pictures that were made of photos");
    json.list("refused", plan.refused, kRefusedFields, "Files and folders that cannot be used.");
    json.list("noRecords", plan.noRecords, kRefusedFields, "Files that only end like records.");
};

PhotoList listOf(const Card &card, const PhotoRun &run)
{
    PhotoList list;
    for (const int photo : run) {
        list.photos += card.photos[photo].info.path;
        list.raws += card.photos[photo].raws;
    }
    return list;
}

NamedRecord recordOf(const CardRecord &record)
{
    return { record.path, record.heads, record.shots.size() };
}

NamedShoot shootOf(const Card &card, const PlannedShoot &shoot)
{
    NamedShoot named;
    if (shoot.record >= 0) {
        named.record = recordOf(card.records[shoot.record]);
    }
    named.sureness = shoot.sureness;
    named.reason = reasonOf(card, shoot);
    named.begin = card.photos[shoot.photos.front()].info.timeText;
    named.end = card.photos[shoot.photos.back()].info.timeText;
    named.photos = listOf(card, shoot.photos);
    named.missingShots = shoot.missingShots;
    named.doubledShots = shoot.doubledShots;
    if (shoot.byTimes) {
        named.clockSeconds = shoot.clockSeconds;
    }
    for (const int record : shoot.rivalRecords) {
        named.rivalRecords += card.records[record].path;
    }
    for (const PhotoRun &run : shoot.rivalPhotos) {
        named.rivalPhotos += listOf(card, run);
    }
    return named;
}

} // namespace

QStringList planLines(const Card &card, const CardPlan &plan)
{
    return Lines(card, plan).all();
}

QString planSummary(const Card &card, const CardPlan &plan)
{
    std::size_t left = 0;
    for (const PhotoRun &run : plan.leftOver) {
        left += run.size();
    }
    const auto unsure
        = std::count_if(plan.shoots.begin(), plan.shoots.end(), [](const PlannedShoot &shoot) {
              return shoot.sureness == Sureness::Unsure;
          });
    return QStringLiteral("%1%2 in %3 and %4; %5 left over")
        .arg(counted(plan.shoots.size(), "shoot"),
             unsure == 0 ? QString() : QStringLiteral(" (%1 not sure)").arg(unsure),
             counted(card.photos.size(), "photo"), counted(card.records.size(), "record"),
             counted(static_cast<int>(left), "photo"));
}

QByteArray planToJson(const Card &card, const CardPlan &plan)
{
    NamedPlan named;
    for (const PlannedShoot &shoot : plan.shoots) {
        named.shoots += shootOf(card, shoot);
    }
    for (const int record : plan.idleRecords) {
        named.idleRecords += recordOf(card.records[record]);
    }
    for (const PhotoRun &run : plan.leftOver) {
        named.leftOver += listOf(card, run);
    }
    for (const CardPhoto &photo : card.photos) {
        named.copies += photo.copies;
    }
    for (const CardRecord &record : card.records) {
        named.copies += record.copies;
    }
    named.results = card.results;
    named.refused = card.refused;
    named.noRecords = card.noRecords;
    return writeJson(
        [&named](JsonFields &fields) {
            const NamedPlan &whole = named;
            kPlanFields(fields, whole);
        },
        {});
}

QByteArray planSchema()
{
    return jsonSchema("https://orvane.invalid/panohost-sort.schema.json",
                      "Which photos of a card belong to which record (schema 1)",
                      "Paths are absolute. Readers ignore keys that they do not know.",
                      [](JsonFields &fields) {
                          const NamedPlan plan;
                          kPlanFields(fields, plan);
                      });
}

} // namespace PanoHost
