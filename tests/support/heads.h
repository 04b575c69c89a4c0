// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QByteArray>
#include <QMetaType>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QWizardPage>

#include <vector>

/** A text that a page shows. */
struct TextOn {
    const char *widget;
    QString text;
};

/** A check box and the field of the description that it fills. */
struct OptionBox {
    const char *box;
    bool StructuredPanoramaProperties::*field;
};

/** The state of one widget. */
struct ValueOf {
    const char *widget;
    const char *property;
    QVariant value;
};

/** Where the head looked for one shot. */
struct ShotAngles {
    double yawDegrees;
    double pitchDegrees;
};

/** A page of any head, with what else it is. */
struct HeadPage {
    QWizardPage *page;
    StructuredPanoramaProperties *description; ///< what Next hands over
    const QVector<ShootData> *shots; ///< null: the head keeps no record
};

/**
 * One of the four heads: how its page differs from the others in what all pages do. What only one
 * head does is no part of it.
 */
struct Head {
    const char *name;
    HeadPage (*newPage)();
    QByteArray (*saveState)(const HeadPage &page);
    void (*restoreState)(const HeadPage &page, const QByteArray &state);

    const char *recordName; ///< of a record's file; null: the head keeps no record
    QByteArray (*record)(int shots); ///< in one row, 30 degrees apart from yaw 0
    QByteArray (*recordOf)(const QVector<ShotAngles> &shots); ///< some know whole degrees only
    void (*parse)(const HeadPage &page, const QString &path); ///< ParseConfigFile of the page
    QByteArray fullRecord; ///< three shots, and all else that the page shows of a record
    QStringList recordFilters; ///< of the record's dialog

    const char *countLabel; ///< shows the number of photos
    QString countText; ///< %1: the number
    std::vector<TextOn> freshTexts;
    std::vector<const char *> freshDisabled;
    QSize freshPicture{ 0, 0 }; ///< of the preview; empty: there is none
    bool drawsWithoutPhotos; ///< the preview shows a record's shots before the first photo

    std::vector<OptionBox> options;
    bool positionsKnown; ///< in the description
    bool rollKnown;
    double overlap;

    std::vector<const char *> choices; ///< the user's to click
    std::vector<ValueOf> entries; ///< the user's to enter
    std::vector<ValueOf> chosen; ///< all of these afterwards
};

Q_DECLARE_METATYPE(const Head *)
Q_DECLARE_METATYPE(QVector<ShotAngles>)

[[nodiscard]] const Head &papywizard();
[[nodiscard]] const Head &gigapan();
[[nodiscard]] const Head &vrDrive2();
[[nodiscard]] const Head &clauss();

using Heads = std::vector<const Head *>;
[[nodiscard]] Heads allHeads();
/** Without the Gigapan, whose page works from the photos alone. */
[[nodiscard]] Heads headsWithRecords();

/** Adds \p heads as test data: "head". */
void addHeads(const Heads &heads);
/** Adds the dialogs of all pages as test data: "head" and "button". */
void addDialogs();

/** The page of a head with the files of one shoot. Deletes the page unless somebody else has. */
struct HeadShoot {
    explicit HeadShoot(const Head &shotWith);
    ~HeadShoot();
    HeadShoot(const HeadShoot &) = delete;
    HeadShoot &operator=(const HeadShoot &) = delete;

    /** Writes a record of \p shots; \p folderName, if any, ends with a slash. */
    [[nodiscard]] QString writeRecord(int shots, const QString &folderName = {}) const;
    /** Chooses a record of \p shots; does nothing for a head that keeps no record. */
    void loadRecord(int shots) const;
    void loadPhotos(int count, const FakePhoto &photo = {}) const;
    /** Chooses the full record and as many photos of 24 mm. */
    void loadEverything() const;

    /** What the page must show when it holds \p photos photos. */
    [[nodiscard]] QString countOf(int photos) const;
    /** What the page shows as the number of photos. */
    [[nodiscard]] QString count() const { return driver.text(head.countLabel); }
    /** The value that the property has now. */
    [[nodiscard]] QVariant value(const ValueOf &of) const;

    const Head &head;
    ShootFolder folder;
    HeadPage made;
    QPointer<QWizardPage> page;
    PageDriver driver;
};
