// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/vrdrive2/vrdrive2tospp.h"
#include "shoot/previewlayout.h"
#include "shoot/shootstate.h"
#include "ui/pagephotos.h"
#include "ui/shootview.h"
#include "ui/withinmemory.h"
#include "ui_uiwpvrdrive2.h"

#include <QStringList>
#include <QWizardPage>

class ReadingThread;
class XIImageDef;

/** The wizard page of the VR Drive 2 importer. */
class UIWPVRDrive2 : public QWizardPage, public VRDrive2ToSPP, public Ui::UIWPVRDrive2Class
{
    Q_OBJECT

public:
    explicit UIWPVRDrive2(QWidget *parent);
    /** Stops the reading thread. */
    ~UIWPVRDrive2() override;

    void initializePage() override;
    void cleanupPage() override;
    bool validatePage() override;
    [[nodiscard]] bool isComplete() const override;

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const;
    void RestoreState(const QByteArray &state);
    /** Reads the record at \p fileName; the position count tells success. */
    void ParseConfigFile(const QString &fileName);

public Q_SLOTS:
    void SelectImages();
    void SelectConfigFile();
    void SetConfigFFilename(const QString &text);
    void Reset();
    void UpdateUI();
    void UpdatePreview();
    void BrowserWeb(const QString &url);
    void OnZoomChanged();
    void OnImageLoaded();
    void OnInverseCoordinates();
    void OnRotate90();
    void OnRotate270();
    void OnLevelLinkingClicked(bool checked);
    void OnStackLinkingClicked(bool checked);
    void OnFLUseXML();
    void OnFLUseImage();

private:
    void CreateWidgets();
    void CreateConnects();
    /** Fills the description; false when the user must change something first. */
    [[nodiscard]] bool describe();
    void usePhotos(const QStringList &photos);
    void redrawAll();

    PanoHead::ShootState m_state;
    ReadingThread *m_readingThread;
    PanoHead::LowMemoryBox m_lowMemory;
    PanoHead::ShotLayout m_layout;
    QList<XIImageDef *> m_previewImages; ///< what the preview shows; not owned
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
