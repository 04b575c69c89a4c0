// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/common/anglerange.h"
#include "importers/papywizard/merlintospp.h"
#include "ui_uiwpmerlin.h"

#include <QStringList>
#include <QWizardPage>

class ReadingThread;
class XIImageDef;

namespace PanoHead
{
struct ShootFacts;
class PreviewLabel;
} // namespace PanoHead

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
    void setExtents(const PanoHead::AngleExtents &extents);
    void usePhotos(const QStringList &photos);
    void presetLens(double focalMm, int lensType);
    void redrawAll();
    [[nodiscard]] PanoHead::AngleExtents extents() const;
    [[nodiscard]] PanoHead::ShootFacts recordFacts() const;
    [[nodiscard]] PanoHead::ShootFacts photoFacts() const;
    [[nodiscard]] QString warning() const;

    QString configPath;
    QStringList images;
    qint32 shotCount = -1; ///< -1: nothing is parsed
    double imageFocal = 0.0; ///< mm, mean of the photos; 0: unknown
    qint32 imageLensType = 0; ///< of the last photo
    float yawMin = 0.0F;
    float yawMax = 0.0F;
    float pitchMin = 0.0F;
    float pitchMax = 0.0F;
    QList<XIImageDef *> previewImages; ///< what the preview shows, by capture time; not owned
    ReadingThread *m_readingThread;
    PanoHead::PreviewLabel *m_preview = nullptr;
};
