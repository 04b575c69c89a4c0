// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/importrequest.h"
#include "host/import/pagedriver.h"
#include "host/import/pagenames.h"
#include "host/import/shootcheck.h"
#include "host/model/panorama.h"
#include "host/plugin/pluginlibrary.h"

#include <QPixmap>
#include <QTemporaryDir>

#include <memory>

namespace PanoHost
{

/**
 * One import through the real page of the loaded library: from files and options to a panorama.
 * Each step throws the CommandError that says why it cannot be done.
 */
class ImportJob
{
public:
    ImportJob(PanoHostApplication &app, ImportRequest request, JobWatch watch);
    ~ImportJob();
    ImportJob(const ImportJob &) = delete;
    ImportJob &operator=(const ImportJob &) = delete;

    /** Everything that can be said before the page gets record and photos. */
    void checkInputs();
    /** The same, and what record and photos say. */
    void examine();
    /** Loads the library, fills its page, waits for the photos and sets the options. */
    void preparePage();
    /** After `preparePage`: the page's layout picture in full size. */
    [[nodiscard]] QPixmap layout();
    /** After `preparePage`: presses Next and joins what was delivered with the photos' data. */
    [[nodiscard]] Panorama handOver();

    /** What is known until now. */
    [[nodiscard]] const ShootCheck &check() const { return m_check; }

private:
    [[nodiscard]] const ImportPlugin &openPlugin();
    [[nodiscard]] QStringList namesForPage();
    void chooseLensFor(const QVector<PhotoInfo> &photos);
    [[nodiscard]] QVector<PhotoInfo> photoInfos() const;
    void turnCamera();
    void pressButtons();

    PanoHostApplication &m_app;
    ImportRequest m_request;
    JobWatch m_watch;
    ShootCheck m_check;
    PageNames m_names;
    QStringList m_warnings;
    JoinWishes m_wishes;
    /// Dialogs list the folder where they begin, in the last one thousands of files may lie.
    QTemporaryDir m_dialogFolder;
    std::unique_ptr<PluginLibrary> m_library;
    SourceInfo m_source;
    std::unique_ptr<PageDriver> m_page; ///< before the library: goes first
};

/**
 * All steps in one: the panorama that \p request describes, or why there is none. \p layout becomes
 * the page's layout picture where it is not null.
 */
[[nodiscard]] Result<Panorama> importShoot(PanoHostApplication &app, const ImportRequest &request,
                                           const JobWatch &watch, QImage *layout = nullptr);

} // namespace PanoHost
