// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QString>
#include <QVector>

/** One page with the files of one shoot. */
template <typename Page> struct PageShoot {
    ShootFolder folder;
    Page page{ nullptr };
    PageDriver driver{ &page };

    [[nodiscard]] QString writeRecord(const RecordXml &record,
                                      const QString &name = QStringLiteral("shoot.xml")) const
    {
        return folder.write(name, record.bytes());
    }
    void loadRecord(const RecordXml &record) const
    {
        driver.load(kSelectRecord, { writeRecord(record) });
    }
    void loadPhotos(int count, const FakePhoto &photo = {}) const
    {
        driver.load(kSelectPhotos, folder.addPhotos(count, photo));
    }
};

inline FakePhoto photoWith(float focalMm, int lensType = 0)
{
    FakePhoto photo;
    photo.focalMm = focalMm;
    photo.lensType = lensType;
    return photo;
}

inline RecordXml rowWithLens(int count, const QString &focal,
                             const QString &lensType = QStringLiteral("rectilinear"))
{
    RecordXml record = RecordXml::row(count);
    record.focal = focal;
    record.lensType = lensType;
    return record;
}

inline RecordXml bracketedRow(int count, const QString &nbPicts)
{
    RecordXml record = RecordXml::row(count);
    record.nbPicts = nbPicts;
    return record;
}

/** A warning as its label shows it. */
inline QString red(const char *text)
{
    return QLatin1String("<p style='color:red'>") + QLatin1String(text) + QLatin1String("</p>");
}

inline QVector<float> pitchesOf(const QVector<ShootData> &shots)
{
    QVector<float> pitches;
    for (const ShootData &shot : shots) {
        pitches.append(shot.pitch);
    }
    return pitches;
}

inline QVector<float> rollsOf(const QVector<ShootData> &shots)
{
    QVector<float> rolls;
    for (const ShootData &shot : shots) {
        rolls.append(shot.roll);
    }
    return rolls;
}
