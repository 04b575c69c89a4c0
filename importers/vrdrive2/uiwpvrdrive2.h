// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/papywizard/schemapage.h"
#include "importers/vrdrive2/vrdrive2tospp.h"
#include "ui_uiwpvrdrive2.h"

/** The wizard page of the VR Drive 2 importer. */
class UIWPVRDrive2 : public QWizardPage, public VRDrive2ToSPP, public Ui::UIWPVRDrive2Class
{
    Q_OBJECT

public:
    explicit UIWPVRDrive2(QWidget *parent);
    ~UIWPVRDrive2() override { PanoHead::endReading(this, m_readingThread); }
    void CreateWidgets();
    void CreateConnects() { PanoHead::connectSchemaPage(this, m_readingThread); }

    void initializePage() override { }
    void cleanupPage() override { Reset(); }
    bool validatePage() override { return PanoHead::handOver(*this, m_photos); }
    [[nodiscard]] bool isComplete() const override
    {
        return PanoHead::isReadAndRecorded(m_state, *m_readingThread);
    }

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const { return {}; }
    void RestoreState(const QByteArray & /*state*/) { UpdatePreview(); }
    /** Reads the record at \p fileName; the position count tells success. */
    void ParseConfigFile(const QString &fileName);
    /** Fills the description; false when the user must change something first. */
    [[nodiscard]] bool describe();

public Q_SLOTS:
    void SelectImages();
    void SelectConfigFile();
    void SetConfigFFilename(const QString &text) { PanoHead::takeRecord(*this, m_state, text); }
    void Reset();
    void UpdateUI();
    void UpdatePreview();
    void BrowserWeb(const QString &url) { PanoHead::openInBrowser(url); }
    void OnZoomChanged();
    void OnImageLoaded();
    void OnInverseCoordinates();
    void OnRotate90() { turn(90.0F); }
    void OnRotate270() { turn(-90.0F); }
    void OnLevelLinkingClicked(bool checked) { PanoHead::linkAllLevels(*this, checked); }
    void OnStackLinkingClicked(bool checked) { PanoHead::linkHard(*this, checked); }
    void OnFLUseXML() { useLens({ xmlFocal, xmlLensType }); }
    void OnFLUseImage() { useLens({ m_state.imageFocal, m_state.imageLensType }); }

private:
    void redrawAll();
    void turn(float degrees);
    void useLens(const PanoHead::LensFacts &lens);

    PanoHead::ShootState m_state;
    QList<XIImageDef *> m_previewImages; ///< what the preview shows; not owned
    ReadingThread *m_readingThread = nullptr;
    PanoHead::ShotLayout m_layout;
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
