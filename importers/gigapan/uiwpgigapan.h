// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/gigapan/gigapantospp.h"
#include "importers/gigapan/gridlayout.h"
#include "importers/gigapan/gridorder.h"
#include "ui/headpage.h"
#include "ui_uiwpgigapan.h"

/** The wizard page of the Gigapan importer. */
class UIWPGigapan : public QWizardPage, public GigapanToSPP, public Ui::UIWPGigapanClass
{
    Q_OBJECT

public:
    explicit UIWPGigapan(QWidget *parent);
    ~UIWPGigapan() override { PanoHead::endReading(this, m_readingThread); }
    void CreateWidgets();
    void CreateConnects();

    void initializePage() override { Reset(); }
    void cleanupPage() override;
    bool validatePage() override { return PanoHead::handOver(*this, m_photos); }
    [[nodiscard]] bool isComplete() const override;

    /** Pages keep no state of their own. */
    [[nodiscard]] QByteArray SaveState() const { return {}; }
    void RestoreState(const QByteArray & /*state*/) { UpdatePreview(); }
    /** Fills the description; always true. */
    [[nodiscard]] bool describe();

public Q_SLOTS:
    void SelectImages();
    void SetRow(int value) { setGrid(rows, value); }
    void IgnoreNImages(int ignored) { setGrid(ignoredCount, ignored); }
    void OnChangeBracket(int bracket) { setGrid(bracketCount, bracket); }
    void Reset();
    void UpdateUI();
    void UpdatePreview();
    void BrowserWeb(const QString &url) { PanoHead::openInBrowser(url); }
    void OnMode0Toggled(bool checked) { setMode(PanoHead::kColumnsFromLeft, checked); }
    void OnMode1Toggled(bool checked) { setMode(PanoHead::kRowsDownward, checked); }
    void OnMode2Toggled(bool checked) { setMode(PanoHead::kRowsUpward, checked); }
    void OnMode3Toggled(bool checked) { setMode(PanoHead::kColumnsFromRight, checked); }
    void OnMode4Toggled(bool checked) { setMode(PanoHead::kSerpentine, checked); }
    void OnLevelLinkingClicked(bool checked) { PanoHead::linkAllLevels(*this, checked); }
    void OnStackLinkingClicked(bool checked) { PanoHead::linkHard(*this, checked); }

private:
    void showPreview();
    void setGrid(qint32 &setting, int value);
    void setMode(int gridOrder, bool checked);

    QStringList images;
    QList<XIImageDef *> previewImages; ///< what the preview shows; not owned
    bool m_isUpdating = false; ///< slots that widgets call meanwhile do nothing
    ReadingThread *m_readingThread = nullptr;
    PanoHead::GridLayout m_layout;
    PanoHead::PagePhotos m_photos;
    PanoHead::PhotoNames m_photoNames;
};
