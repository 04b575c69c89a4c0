// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/gigapan/gigapantospp.h"
#include "importers/gigapan/gridlayout.h"
#include "ui/pagephotos.h"
#include "ui/shootview.h"
#include "ui/withinmemory.h"
#include "ui_uiwpgigapan.h"

#include <QList>
#include <QStringList>
#include <QWizardPage>

class ReadingThread;
class XIImageDef;

/** The wizard page of the Gigapan importer. */
class UIWPGigapan : public QWizardPage, public GigapanToSPP, public Ui::UIWPGigapanClass
{
    Q_OBJECT

public:
    explicit UIWPGigapan(QWidget *parent);
    /** Stops the reading thread. */
    ~UIWPGigapan() override;

    void initializePage() override;
    void cleanupPage() override;
    bool validatePage() override;
    [[nodiscard]] bool isComplete() const override;

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const;
    void RestoreState(const QByteArray &state);

public Q_SLOTS:
    void SelectImages();
    void SetRow(int value);
    void IgnoreNImages(int ignored);
    void OnChangeBracket(int bracket);
    void Reset();
    void UpdateUI();
    void UpdatePreview();
    void BrowserWeb(const QString &url);
    void OnMode0Toggled(bool checked);
    void OnMode1Toggled(bool checked);
    void OnMode2Toggled(bool checked);
    void OnMode3Toggled(bool checked);
    void OnMode4Toggled(bool checked);
    void OnLevelLinkingClicked(bool checked);
    void OnStackLinkingClicked(bool checked);

private:
    void CreateWidgets();
    void CreateConnects();
    /** Fills the description; false when the user must change something first. */
    [[nodiscard]] bool describe();
    void showPreview();
    void setGrid(qint32 &setting, int value);
    void setMode(int gridOrder, bool checked);

    QStringList images;
    QList<XIImageDef *> previewImages; ///< what the preview shows; not owned
    bool m_isUpdating = false; ///< slots that widgets call meanwhile do nothing
    ReadingThread *m_readingThread;
    PanoHead::LowMemoryBox m_lowMemory;
    PanoHead::GridLayout m_layout;
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
