// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

using namespace PanoHead;

namespace
{

// Scripts hold whole degrees: no step is too small to be drawn.
constexpr LayoutRules kClaussLayout{ 0.0 /* no smallest step */, Span::Absolute,
                                     Precision::Single };

constexpr PhotoQuestions kClaussQuestions{ false /* lens */, true /* shot time */,
                                           EqualTimes::GiveUp };

} // namespace

UIWPClauss::UIWPClauss(QWidget *parent)
    : QWizardPage(parent)
    , m_layout(kClaussLayout)
    , m_photos(kClaussQuestions, &previewImages,
               { this, tr("Warning"),
                 tr("There is not enough memory for so many images. Close other programs and try "
                    "again.") })
{
    buildPage(*this, m_readingThread, m_photos,
              QStringLiteral(":/7A21C94E-5B20-2020-2020-D6D081182F97/Resources/Clauss_wp.png"));
}

void UIWPClauss::cleanupPage()
{
    clearIfRunning(*m_readingThread);
    Reset();
}

bool UIWPClauss::describe()
{
    generateSPP(m_state.images, m_readingThread->XIImageDefs());
    writeOptions(*this, detectionOptionsOf(*this));
    return true;
}

void UIWPClauss::ParseConfigFile(const QString &fileName)
{
    if (isRefused(*this, m_state, m_photos, fileName)) {
        showMessage(this, QMessageBox::Critical, tr("Error"),
                    tr("Error parse file:%1").arg(fileName));
    }
}

void UIWPClauss::SelectConfigFile()
{
    if (m_record.choose(*this, m_state, m_photos,
                        { tr("Select the preset file and/or images"), tr("All Files (*.*)"),
                          tr("All Files (*.*)") },
                        QStringLiteral(".txt"))) {
        UpdateUI();
    }
}

void UIWPClauss::SelectImages()
{
    if (choosePhotos(*this, m_state, m_photos,
                     { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                     ControlShows::Location)) {
        UpdateUI();
    }
}

void UIWPClauss::SetConfigFFilename()
{
    if (m_record.takeTyped(*this, m_state)) {
        UpdateUI();
    }
}

void UIWPClauss::Reset()
{
    shots.clear();
    forgetShoot(m_state, *m_readingThread, m_photos);
    UpdateUI();
}

void UIWPClauss::OnInverseCoordinates()
{
    invertShoot(*this, m_state);
    m_photos.drawAnew();
    UpdateUI();
}

void UIWPClauss::UpdateUI()
{
    {
        const BlockSignal blocker(this);
        showShoot(shootViewOf(*this, m_photoNames), m_state, { tr("N/A"), tr("N/A") });
    }
    m_photos.comeBack(); // unlike the thread's signals, which end at UpdatePreview too
    UpdatePreview();
}

void UIWPClauss::UpdatePreview()
{
    if (m_hSlider->value() != m_photos.preview()->zoomPercent()) {
        m_photos.drawAnew();
    }
    m_photos.drawArrived([this] { showPreview(); });
    Q_EMIT completeChanged();
}

void UIWPClauss::showPreview()
{
    // After a failed parse positions may be left, without a range to lay them out over.
    const bool hasRecord = m_state.shotCount > 0;
    m_photos.show(hasRecord ? m_layout.of(shots, m_state.extents()) : PreviewLayout(),
                  CellStyle::FittedWithCaption, m_hSlider->value());
}
