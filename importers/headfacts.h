// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/about.h"
#include "model/lensmodel.h"
#include "shoot/recordfile.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>
#include <vector>

struct ShootData;

namespace PanoHead
{

/** What a head's record says, as far as it is looked at without a page. */
struct RecordSummary {
    int shotCount = 0;
    int bracketCount = 1; ///< photos per position; 1 without brackets
    double focal35mm = 0.0; ///< 0: the record names none
    LensModel lens = LensModel::NotChosen; ///< `NotChosen`: the record names none
    QStringList remarks; ///< what the importer leaves out of it, in English, for the user
    QString title; ///< that the photographer gave the shoot; empty: none
};

/** One photo of a shoot as the head writes it down. */
struct NotedShot {
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
    double rollDegrees = 0.0;
    int level = 0; ///< which exposure of its position, from 0
    QDateTime time; ///< by the head's clock, as `readShotTime`; invalid: the record has none
};
/** Where a reader has found the shots; each the only exposure of its position, without a time. */
[[nodiscard]] QVector<NotedShot> notedShots(const QVector<ShootData> &shots);

/** A shoot for a head to write down: demo and tests play heads. */
struct NotedShoot {
    QVector<NotedShot> shots; ///< one per photo, in order
    int bracketCount = 1; ///< photos per position
    double focal35mm = 24.0;
    LensModel lens = LensModel::Standard;
    bool isPortrait = false;
    QString title; ///< any text
    bool exactAngles = false; ///< with more digits than the head writes
};

/** A choice that only this head's page offers, and the command line's option for it. */
struct OwnChoice {
    const char *option; ///< "--output-mode"
    const char *words; ///< "ldr|hdr"
    const char *help; ///< one sentence, no full stop
    const char *buttons; ///< of the page, one for each word
};

/** How the demo plays the head. */
struct DemoFacts {
    double playDegrees = 0.0; ///< how far the head stops from where its record says
    bool inBrackets = false; ///< three exposures at each position
    double leastPsnrDecibels = 40.0; ///< of the panorama in normal size
};

/**
 * What is to be known of a head outside its folder. The command line, the wizard, the demo and the
 * tests ask here instead of for its name.
 */
struct HeadFacts {
    const About *about = nullptr; ///< what its plug-in says
    const char *title = nullptr; ///< as people write it
    /** Stands for its record in messages and ends like all its records; null: it keeps none. */
    const char *record = nullptr;
    /** The record in \p bytes. Nothing, with a reason, when it is of no use; remarks when it is. */
    std::optional<RecordSummary> (*summary)(const QByteArray &bytes, ReadError *error) = nullptr;
    /**
     * Every shot of a record that `summary` accepts, in the order in which photos belong to them,
     * pointing where the page says when none of its buttons is pressed. Nothing, with a reason, for
     * other records. Null: the head does not tell its shots.
     */
    std::optional<QVector<NotedShot>> (*shots)(const QByteArray &bytes, ReadError *error) = nullptr;
    /**
     * A record that `shots` accepts with only those of its shots that are listed, counted from 0,
     * rising, for the head to take again. Nothing, with a reason, where it cannot be made. Null:
     * the head runs no records.
     */
    std::optional<QByteArray> (*excerpt)(const QByteArray &bytes, const QVector<int> &shots,
                                         ReadError *error)
        = nullptr;
    /** The record that the head writes of \p shoot. */
    QByteArray (*write)(const NotedShoot &shoot) = nullptr;
    bool notesBrackets = false; ///< records say how many photos belong to a position
    bool notesWholeDegrees = false; ///< records hold no fractions of a degree
    bool hasLens = false; ///< its page asks for focal length and lens
    bool hasLinking = false; ///< its page asks how the photos of a stack are linked
    bool turnsCamera = false; ///< its page has buttons for a turned camera
    bool ordersByTime = true; ///< its page puts the photos in the order of their times
    bool cleansLinks = false; ///< its page has wrong links removed unless told otherwise
    std::vector<OwnChoice> ownChoices;
    DemoFacts demo;

    /** A head without a record sweeps a grid, which the user describes. */
    [[nodiscard]] bool isGrid() const { return record == nullptr; }
    /** On the command line: the plug-in's name in lower case. */
    [[nodiscard]] QString name() const { return about->nameText().toLower(); }
    /** Whether \p path ends like a record of this head, ".xml" in any case. */
    [[nodiscard]] bool isRecord(const QString &path) const;
};

/** Every head, in the order in which hosts list them. */
[[nodiscard]] std::vector<const HeadFacts *> allHeadFacts();
/** The head \p name, as on the command line; null when there is none. */
[[nodiscard]] const HeadFacts *headFactsOf(const QString &name);

} // namespace PanoHead
