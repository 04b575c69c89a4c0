// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/papywizard/merlintospp.h"
#include "importers/papywizard/schemapage.h"
#include "ui_uiwpmerlin.h"

/** The wizard page of the Papywizard importer. */
class UIWPMerlin : public QWizardPage, public MerlinToSPP, public Ui::UIWPMerlinClass
{
    Q_OBJECT

public:
    explicit UIWPMerlin(QWidget *parent);
    ~UIWPMerlin() override { PanoHead::endReading(this, m_readingThread); }
    void CreateWidgets();
    void CreateConnects() { PanoHead::connectSchemaPage(this, m_readingThread); }

    void initializePage() override { m_photos.drawAnew(); }
    void cleanupPage() override { Reset(); }
    bool validatePage() override { return PanoHead::handOver(*this, m_photos); }
    [[nodiscard]] bool isComplete() const override
    {
        return PanoHead::isReadAndRecorded(m_state, *m_readingThread);
    }

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const { return {}; }
    void RestoreState(const QByteArray & /*state*/) { UpdatePreview(); }
    /** Fills the description; false when the user must change something first. */
    [[nodiscard]] bool describe();
    /** Reads the record at \p path and shows its header; the shot count tells success. */
    void ParseConfigFile(const QString &path);

public Q_SLOTS:
    void SelectImages();
    void SelectConfigFile();
    void SetConfigFFilename(const QString &text) { PanoHead::takeRecord(*this, m_state, text); }
    void Reset();
    void UpdateUI();
    void UpdatePreview();
    void BrowserWeb(const QString &url) { PanoHead::openInBrowser(url); }
    void OnZoomChanged() { redrawAll(); }
    void OnImageLoaded();
    void OnInverseCoordinates();
    void OnRotate90() { turn(90.0F); }
    void OnRotate270() { turn(-90.0F); }
    void OnLevelLinkingClicked(bool checked) { PanoHead::linkAllLevels(*this, checked); }
    void OnStackLinkingClicked(bool checked) { PanoHead::linkHard(*this, checked); }
    void OnFLUseXML() { useLens({ xmlFocal, xmlLensType }); }
    void OnFLUseImage() { useLens({ m_state.imageFocal, m_state.imageLensType }); }

private:
    void turn(float degrees);
    void useLens(const PanoHead::LensFacts &lens);
    void redrawAll();

    PanoHead::ShootState m_state;
    QList<XIImageDef *> previewImages; ///< what the preview shows; not owned
    ReadingThread *m_readingThread = nullptr;
    PanoHead::ShotLayout m_layout;
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
