// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/shootreport.h"

#include <QCoreApplication>

namespace PanoHost
{

/** What the user can have done about a row. */
enum class StripAction {
    ChooseRecord,
    ChoosePhotos,
    RemovePhotos, ///< the files of the row
    ReplacePhotos, ///< each file of the row by another
    FitPhotos,
    SwitchHead, ///< to the one that reads the record
    EnterFocal,
    ShowShots, ///< those to be taken again
};

/** One line about a shoot. */
struct StripRow {
    enum class State { Good, Working, Trouble };

    QString name; ///< of the row, for programs: "next", "record", "photos", "order", ...
    QString title; ///< for the user
    QString text; ///< one line
    State state = State::Good;
    QVector<StripAction> actions = {};
    QStringList files = {}; ///< that the actions are about
    QVector<int> shots = {}; ///< of the record, from 0, that they are about

    bool operator==(const StripRow &other) const
    {
        return name == other.name && title == other.title && text == other.text
            && state == other.state && actions == other.actions && files == other.files
            && shots == other.shots;
    }
};

/** A plug-in's page as the user has left it. */
struct PageState {
    bool isComplete = false; ///< Next can be pressed
    bool isReading = false;
    int given = 0; ///< photos on the page
    QString record; ///< path on the page
    bool isFitted = false; ///< the page has the photos as they were matched
    double wishedFocal35mm = 0.0; ///< 0: none
    bool isWishRemembered = false; ///< from an earlier shoot
    QStringList otherRecords; ///< given with the one on the page, and not taken
    QStringList own; ///< given with the photos, and none of them
    /** What is known of exactly these; null: not known yet. */
    const ShootReport *report = nullptr;
};

/** "WHAT: WHY; TRY", without what names options of the command line. */
[[nodiscard]] QString windowText(Failure failure);

/** What to say about the shoot on a page, most urgent first. */
class StripTexts
{
    Q_DECLARE_TR_FUNCTIONS(PanoHost::StripTexts)
public:
    StripTexts(const HeadFacts &head, PageState state);

    [[nodiscard]] QVector<StripRow> rows() const;
    /** "2 things to look at", "Everything agrees". */
    [[nodiscard]] static QString summary(const QVector<StripRow> &rows);
    [[nodiscard]] static QString actionText(StripAction action);

private:
    [[nodiscard]] StripRow next() const;
    [[nodiscard]] StripRow record() const;
    [[nodiscard]] StripRow photos() const;
    [[nodiscard]] StripRow order() const;
    [[nodiscard]] StripRow focal() const;
    [[nodiscard]] QVector<StripRow> others() const;
    [[nodiscard]] StripRow leftOut() const;
    [[nodiscard]] const Finding *finding(const char *topic) const;
    [[nodiscard]] bool canBeFitted() const;

    const HeadFacts &m_head;
    PageState m_state;
};

} // namespace PanoHost
