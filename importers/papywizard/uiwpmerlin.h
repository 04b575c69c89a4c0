// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/papywizard/merlintospp.h"
#include "shoot/previewlayout.h"
#include "shoot/shootstate.h"
#include "ui/pagephotos.h"
#include "ui/shootview.h"
#include "ui/withinmemory.h"
#include "ui_uiwpmerlin.h"

#include <QStringList>
#include <QWizardPage>

class ReadingThread;
class XIImageDef;

/** The wizard page of the Papywizard importer. */
class UIWPMerlin : public QWizardPage, public MerlinToSPP, public Ui::UIWPMerlinClass
{
    Q_OBJECT

public:
    explicit UIWPMerlin(QWidget *parent);
    /** Stops the reading thread. */
    ~UIWPMerlin() override;

    void initializePage() override;
    void cleanupPage() override;
    bool validatePage() override;
    [[nodiscard]] bool isComplete() const override;

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const;
    void RestoreState(const QByteArray &state);
    /** Reads the record at \p path and shows its header; the shot count tells success. */
    void ParseConfigFile(const QString &path);

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
    void showPreview();
    void usePhotos(const QStringList &photos);
    void redrawAll();

    PanoHead::ShootState m_state;
    QList<XIImageDef *> previewImages; ///< what the preview shows; not owned
    ReadingThread *m_readingThread;
    PanoHead::LowMemoryBox m_lowMemory;
    PanoHead::ShotLayout m_layout;
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
