// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/csv/csvtospp.h"
#include "shoot/previewlayout.h"
#include "shoot/shootstate.h"
#include "ui/pagephotos.h"
#include "ui/shootview.h"
#include "ui/withinmemory.h"
#include "ui_uiwpcsv.h"

#include <QStringList>
#include <QWizardPage>

class ReadingThread;

/** The wizard page of the importer of shot lists. */
class UIWPCsv : public QWizardPage, public CsvToSPP, public Ui::UIWPCsvClass
{
    Q_OBJECT

public:
    explicit UIWPCsv(QWidget *parent);
    /** Stops the reading thread. */
    ~UIWPCsv() override;

    void initializePage() override;
    void cleanupPage() override;
    bool validatePage() override;
    [[nodiscard]] bool isComplete() const override;

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const;
    void RestoreState(const QByteArray &state);
    /**
     * Reads the list at \p fileName; a box says when that fails. The host may delete the page
     * while the box is open.
     */
    void ParseConfigFile(const QString &fileName);

public Q_SLOTS:
    void SelectImages();
    void SelectConfigFile();
    void SetConfigFFilename();
    void Reset();
    void UpdateUI();
    void UpdatePreview();
    void BrowserWeb(const QString &url);
    void OnInverseCoordinates();

private:
    void CreateWidgets();
    void CreateConnects();
    /** Fills the description; false when the user must change something first. */
    [[nodiscard]] bool describe();
    /** Makes \p path the page's list; false when the host deleted the page meanwhile. */
    [[nodiscard]] bool readList(const QString &path);
    void showPreview();
    void usePhotos(const QStringList &photos);

    PanoHead::ShootState m_state;
    QList<XIImageDef *> previewImages; ///< what the preview shows; not owned
    bool m_isReadingList = false; ///< until its error box is closed
    ReadingThread *m_readingThread;
    PanoHead::LowMemoryBox m_lowMemory;
    PanoHead::ShotLayout m_layout;
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
