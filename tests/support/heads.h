// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/headfacts.h"
#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"
#include "shoot/previewlayout.h"
#include "tests/support/hosthead.h"
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

/** A page of any head, with what else it is. */
struct HeadPage {
    QWizardPage *page;
    StructuredPanoramaProperties *description; ///< what Next hands over
    const QVector<ShootData> *shots; ///< null: the head keeps no record
};

/** What Next hands over when one button was clicked before. */
struct HandedOver {
    const char *clicked; ///< "": none
    QVector<bool> flags; ///< auto detection, clean, skip, recorded location, full turn
    QVector<int> choices; ///< level linking, stack linking, render mode
};

/** What is done with photos of the same time. */
enum class PhotoOrder {
    AsRead, ///< times mean nothing
    ByTime, ///< equal times keep the order of reading
    ByTimeUnlessEqual, ///< two equal times, and all photos stand as read
};

/** The texts of a page for records in the Papywizard schema, where the pages differ. */
struct SchemaTexts {
    QString noWarning; ///< null while the label is hidden
    QString focalWarning;
    QString rangeOfNothing; ///< of the angles when the first record cannot be read
    QString yawAfterFailure; ///< when one cannot be read after a row of three shots
    QString pitchAfterFailure;
};

/**
 * A head: how its page differs from the others in what all pages do. Its own folder brings it, in
 * tests/testhead.cpp. What only one head does is no part of it. What the head has, by its facts and
 * by what stands here, decides which rows of the tables it gets.
 */
struct Head {
    const char *name = nullptr; ///< as people write it
    const PanoHead::HeadFacts *facts = nullptr;
    const HostHead *host = nullptr;
    HeadPage (*newPage)() = nullptr;
    QByteArray (*saveState)(const HeadPage &page) = nullptr;
    void (*restoreState)(const HeadPage &page, const QByteArray &state) = nullptr;

    const char *recordName = nullptr; ///< of a record's file; null: the head keeps no record
    QByteArray (*recordOf)(const QVector<ShotAngles> &shots) = nullptr; ///< names no lens
    QByteArray (*bracketsOf)(int shots, int count) = nullptr; ///< as record(); null: none noted
    void (*parse)(const HeadPage &page, const QString &path) = nullptr; ///< its ParseConfigFile
    void (*enterPath)(const HeadPage &page, const QString &path) = nullptr; ///< in the line edit
    QByteArray fullRecord; ///< three shots, and all else that the page shows of a record
    QStringList recordFilters; ///< of the record's dialog
    bool saysUnreadable = false; ///< in a box, when a path was typed
    bool readsAnyText = false; ///< as a record, if one without shots
    const SchemaTexts *schema = nullptr; ///< null: records of another kind

    QString windowTitle;
    QString title;
    QString about; ///< behind the link
    QString logo; ///< resource; empty: the page has none

    const char *countLabel = nullptr; ///< shows the number of photos
    QString countText; ///< %1: the number
    std::vector<TextOn> freshTexts;
    std::vector<const char *> freshDisabled;
    QSize freshPicture{ 0, 0 }; ///< of the preview; empty: there is none
    bool drawsWithoutPhotos = false; ///< the preview shows a record's shots before the first photo
    PanoHead::LayoutRules layout; ///< of the preview of a record
    PhotoOrder order = PhotoOrder::AsRead;

    std::vector<OptionBox> options;
    std::vector<HandedOver> handsOver;
    bool positionsKnown = false; ///< in the description
    bool rollKnown = false;
    double overlap = 0.0;

    std::vector<const char *> choices; ///< the user's to click
    std::vector<ValueOf> entries; ///< the user's to enter
    std::vector<ValueOf> chosen; ///< all of these afterwards

    std::vector<const char *> tellingButtons; ///< besides Reset: a wizard hears of the click
    bool tellsWhileTyping = false; ///< of a path; else when it is entered
    int signalsOnRestore = 0; ///< of pages whose preview tells when it is updated
    bool rereadsOnCancel = false; ///< its record, when a dialog for another one is cancelled
    bool keepsDialogOrder = false; ///< of photos that are chosen with the record
    bool showsPhotoItself = false; ///< with the Control key, else its folder

    /** In one row, 30 degrees apart from yaw 0. */
    [[nodiscard]] QByteArray record(int shots) const;
};

Q_DECLARE_METATYPE(const Head *)

using Heads = std::vector<const Head *>;
/** Every head, in the order in which hosts list them. */
[[nodiscard]] const Heads &allHeads();
/** Those for which \p isWanted is true. */
[[nodiscard]] Heads headsThat(bool (*isWanted)(const Head &head));
/** Without those whose page works from the photos alone. */
[[nodiscard]] Heads headsWithRecords();
/** Those whose page asks for focal length and lens. */
[[nodiscard]] Heads headsWithLens();
/** Those whose page asks how the photos of a stack are linked. */
[[nodiscard]] Heads headsWithLinking();
/** Those whose page has buttons for a turned camera. */
[[nodiscard]] Heads headsThatTurn();

// For tests of what only one of them does.
[[nodiscard]] const Head &clauss();
[[nodiscard]] const Head &gigapan();
[[nodiscard]] const Head &papywizard();
[[nodiscard]] const Head &vrdrive2();

/** The page of class \p Page of a head with records. */
template <typename Page> HeadPage newPageWithShots()
{
    auto *page = new Page(nullptr);
    return { page, page, &page->shots };
}

/** The operations of a head whose page is of class \p Page. */
template <typename Page> void useStateOf(Head &head)
{
    head.saveState
        = [](const HeadPage &page) { return static_cast<const Page *>(page.page)->SaveState(); };
    head.restoreState = [](const HeadPage &page, const QByteArray &state) {
        static_cast<Page *>(page.page)->RestoreState(state);
    };
}
template <typename Page> void useRecordOf(Head &head)
{
    head.newPage = &newPageWithShots<Page>;
    head.parse = [](const HeadPage &page, const QString &path) {
        static_cast<Page *>(page.page)->ParseConfigFile(path);
    };
    useStateOf<Page>(head);
}

/** Nothing in the edits, "N/A" on \p labels. */
[[nodiscard]] std::vector<TextOn> notAvailable(const std::vector<const char *> &labels);
/** \p count shots in one row, 30 degrees apart from yaw 0. */
[[nodiscard]] QVector<ShotAngles> rowOf(int count);

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
