// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/alignment.h"
#include "host/align/photoresiduals.h"
#include "host/model/panorama.h"
#include "host/plugin/panohostapplication.h"

#include <QHash>
#include <QWizardPage>

#include <optional>

class QLabel;
class QPushButton;
class QScrollArea;
class QTabWidget;

namespace PanoHost
{

class PositionsTable;
class SavedList;
class ShootPanel;

/** The last page: what was delivered, and saving it. */
class ResultPage : public QWizardPage
{
    Q_OBJECT
public:
    explicit ResultPage(PanoHostApplication &app, QWidget *parent = nullptr);

    /** Takes over the wizard's description. */
    void initializePage() override;
    /** Asks whether to go without having saved anything. */
    [[nodiscard]] bool confirmUnsaved();

    /** What is shown; nothing when the delivery could not be used. */
    [[nodiscard]] const std::optional<Panorama> &panorama() const { return m_panorama; }

    /** What was found out about the shoot, before or after this page was entered. */
    void setRemarks(const QStringList &remarks);
    /** There is something that has been saved nowhere. */
    [[nodiscard]] bool isUnsaved() const { return m_panorama && m_files.paths.isEmpty(); }

    /** Writes the project, the description or the table; shows what happened. False when it failed.
     */
    bool saveProject(const QString &path);
    bool saveJson(const QString &path);
    bool saveTable(const QString &path);

    /** Where an alignment of this panorama has put the photos, and how well; until then it is not
     * known. */
    void setAlignment(const Alignment &alignment, const PhotoResiduals &residuals);
    /** Shows \p position, counted from 0, as selected. */
    void selectPosition(int position);

Q_SIGNALS:
    /** The user has selected \p position, counted from 0. */
    void positionSelected(int position);

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct SavedFiles {
        QStringList paths; ///< in the order in which they were saved
        std::optional<ProjectReference> project; ///< the last one among them
    };

    void createWidgets();
    void showPanorama(const Result<Panorama> &panorama);
    [[nodiscard]] const QByteArray &identity();
    void recallFiles();
    void showTexts(const Result<Panorama> &panorama);
    void showSaved(const Result<QString> &saved, const QString &path);
    void askForProject();
    void askForJson();
    void askForTable();
    void openInHugin();
    /** In the folder of what was saved last, or else in the proposed one. */
    void askAndSave(const QString &caption, const QString &suffix, const QString &filter,
                    bool (ResultPage::*save)(const QString &path));

    PanoHostApplication &m_app;
    std::optional<Panorama> m_panorama;
    /** What was saved of each panorama, by what tells it from others. */
    QHash<QByteArray, SavedFiles> m_memory;
    SavedFiles m_files; ///< of the one shown
    QByteArray m_identity; ///< of the one shown; empty: not worked out yet
    QString m_folder; ///< where files of this panorama go; empty: not chosen yet
    QLabel *m_summary = nullptr;
    QLabel *m_warnings = nullptr;
    QLabel *m_warningIcon = nullptr;
    QLabel *m_remarks = nullptr;
    SavedList *m_saved = nullptr;
    QTabWidget *m_views = nullptr;
    ShootPanel *m_picture = nullptr;
    PositionsTable *m_table = nullptr;
    QScrollArea *m_lines = nullptr;
    QPushButton *m_enterFocal = nullptr;
    QPushButton *m_saveProject = nullptr;
    QPushButton *m_saveJson = nullptr;
    QPushButton *m_saveTable = nullptr;
    QPushButton *m_openHugin = nullptr;
};

} // namespace PanoHost
