// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/shootreport.h"

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QWizardPage>

#include <memory>
#include <optional>

namespace PanoHost
{

/**
 * What the user has put onto one plug-in's page: files by their true paths, fields, and what the
 * page does not ask. The page forgets all of it when it is left backwards; the keeper gives it
 * back.
 */
class PageKeeper : public QObject
{
    Q_OBJECT
public:
    /** \p page and \p app outlive it. */
    PageKeeper(QWizardPage *page, const HeadFacts &head, PanoHostApplication &app,
               QObject *parent = nullptr);
    ~PageKeeper() override;

    [[nodiscard]] QWizardPage *page() const { return m_page; }
    [[nodiscard]] const HeadFacts &head() const { return m_head; }
    [[nodiscard]] QString record() const;
    [[nodiscard]] const QStringList &photos() const { return m_photos; }
    /** The page has its photos as they were matched to the shots. */
    [[nodiscard]] bool isFitted() const { return m_names != nullptr; }
    [[nodiscard]] bool isReading() const;
    /** What there is on the page, to be looked at. */
    [[nodiscard]] ImportRequest request() const;
    /** For the hand-over. */
    [[nodiscard]] FilledPage filled() const;

    // These have the page do it, and throw the CommandError that says why it did not.
    void enterRecord(const QString &path);
    void give(const QStringList &photos);
    void give(const FittedPhotos &fitted);

    /** The page's dialog was answered with \p files, unless the keeper did so itself. */
    void note(const QStringList &files);
    /** The page may have been reset. */
    void pageChanged();
    /** The page has heard of all its photos. */
    void readingEnded();

    /** The page is about to forget. */
    void keep();
    /** What was kept, but for what has been given since, is dropped. */
    void forgetKept() { m_kept.reset(); }
    /** The page has been entered anew. */
    void giveBack();

    /** Files that came with those on the page and were not taken. */
    void setNotTaken(const QStringList &otherRecords, const QStringList &own);
    [[nodiscard]] const QStringList &otherRecords() const { return m_otherRecords; }
    [[nodiscard]] const QStringList &own() const { return m_own; }

    /** As for 35 mm film; 0: nobody has said it. */
    [[nodiscard]] double focal35mm() const;
    void setFocal35mm(double focal35mm);

Q_SIGNALS:
    /** Files, fields or whether Next can be pressed. */
    void changed();

private:
    using Fields = QMap<QString, QVariant>;
    struct Kept {
        QString record;
        QStringList photos;
        std::optional<FittedPhotos> fitted;
        QStringList turns;
        Fields fields;
        double focal35mm = 0.0;
    };

    void followFields();
    void offer(const QStringList &names);
    [[nodiscard]] Fields fields() const;
    void setFields(const Fields &fields);

    QWizardPage *m_page;
    const HeadFacts &m_head;
    PanoHostApplication &m_app;
    QStringList m_photos;
    std::unique_ptr<PageNames> m_names;
    std::optional<FittedPhotos> m_fitted;
    QString m_turnedRecord;
    QStringList m_turns; ///< buttons that turn what the record says, as they were pressed
    QStringList m_otherRecords;
    QStringList m_own;
    double m_focal35mm = 0.0; ///< where the page has no field for it
    bool m_isOffering = false;
    std::optional<Kept> m_kept;
    std::optional<Fields> m_awaited; ///< until the photos are read, from which the page sets some
};

} // namespace PanoHost
