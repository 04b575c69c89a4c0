// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/gridchoice.h"
#include "host/import/heads.h"
#include "host/import/shotfit.h"
#include "host/model/delivery.h"
#include "host/model/panorama.h"

#include <optional>

namespace PanoHost
{

class PageNames;

/** Where a page field takes its value from. */
enum class ValueSource {
    Default, ///< the photos where they say it, else the record
    Photos,
    Record,
    Given,
};

enum class PhotoOrder { ByName, ByTime, AsGiven };

/** A check box or radio button of the page and the state that the user wants. */
struct ButtonState {
    QString name;
    bool checked;
};

/** A page on which the user has chosen record, photos and options. */
struct FilledPage {
    QWizardPage *page = nullptr;
    SourceInfo source;
    DeliveryLog *deliveries = nullptr; ///< of all hand-overs of the page
    const PageNames *names = nullptr; ///< of the photos matched to its shots; null: it has its own
    JoinWishes wishes; ///< what the page does not ask
};

/** One import as the user wants it. */
struct ImportRequest {
    std::optional<FilledPage> filled; ///< nothing else counts then
    const HeadFacts *head = nullptr;
    QString record; ///< absolute path; empty for heads without one
    QStringList photos; ///< absolute paths, in the order given
    PhotoOrder order = PhotoOrder::ByName;
    /** Photos are matched to the shots of the record first, by all that is known of them; ordered
     * by name only. */
    bool matchesPhotos = false;
    /** Which photo belongs to which shot: `photos` and `order` do not count then. */
    std::optional<ShotFit> fit;
    ValueSource focalSource = ValueSource::Default;
    double focal35mm = 0.0; ///< when given
    ValueSource lensSource = ValueSource::Default;
    LensModel lens = LensModel::Standard; ///< when given
    int clockwiseTurns = 0; ///< quarter turns of the camera; negative: to the left
    bool invertPitch = false;
    std::optional<GridChoice> grid; ///< of heads without a record
    QVector<ButtonState> buttons; ///< in the order in which they are pressed
    bool ignoreExifRotation = false;
    bool wantsLayout = false; ///< the layout picture too, for which photos are decoded
    QString pluginPath; ///< file or folder of the library; empty: the usual places
};

} // namespace PanoHost
