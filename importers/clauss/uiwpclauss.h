// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/clauss/clausstospp.h"
#include "ui/recordpage.h"
#include "ui_uiwpclauss.h"

/** The wizard page of the Clauss Rodeon importer. */
class UIWPClauss : public QWizardPage, public ClaussToSPP, public Ui::UIWPClaussClass
{
    Q_OBJECT

public:
    explicit UIWPClauss(QWidget *parent);
    ~UIWPClauss() override { PanoHead::endReading(this, m_readingThread); }
    void CreateWidgets() { PanoHead::prepareRecordPage(*this, m_readingThread, m_photos); }
    void CreateConnects() { PanoHead::connectPlainPage(this, m_readingThread); }

    void initializePage() override { }
    void cleanupPage() override;
    bool validatePage() override { return PanoHead::handOver(*this, m_photos); }
    [[nodiscard]] bool isComplete() const override
    {
        return PanoHead::isReadAndRecorded(m_state, *m_readingThread);
    }

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const { return {}; }
    void RestoreState(const QByteArray & /*state*/) { UpdatePreview(); }
    /**
     * Reads the script at \p fileName; a box says when that fails. The host may delete the page
     * while the box is open.
     */
    void ParseConfigFile(const QString &fileName);
    /** Fills the description; always true. */
    [[nodiscard]] bool describe();

public Q_SLOTS:
    void SelectImages();
    void SelectConfigFile();
    void SetConfigFFilename();
    void Reset();
    void UpdateUI();
    void UpdatePreview();
    void BrowserWeb(const QString &url) { PanoHead::openInBrowser(url); }
    void OnInverseCoordinates();

private:
    void showPreview();

    PanoHead::ShootState m_state;
    QList<XIImageDef *> previewImages; ///< what the preview shows; not owned
    PanoHead::PlainRecord m_record;
    ReadingThread *m_readingThread = nullptr;
    PanoHead::ShotLayout m_layout;
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
