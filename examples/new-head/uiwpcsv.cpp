// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/csv/uiwpcsv.h"

using namespace PanoHead;

namespace
{

constexpr LayoutRules kCsvLayout{ 8.0 /* smallest step, degrees */, Span::Absolute,
                                  Precision::Double };

constexpr PhotoQuestions kCsvQuestions{ false /* lens */, true /* shot time */,
                                        EqualTimes::KeepReadingOrder };

} // namespace

UIWPCsv::UIWPCsv(QWidget *parent)
    : QWizardPage(parent)
    , m_layout(kCsvLayout)
    , m_photos(kCsvQuestions, &previewImages,
               { this, tr("Warning"),
                 tr("There is not enough memory for so many images. Close other programs and try "
                    "again.") })
{
    buildPage(*this, m_readingThread, m_photos,
              QStringLiteral(":/7A21C94E-5B20-2020-2020-3C5F0E8A41D6/Resources/Csv.png"));
}

void UIWPCsv::cleanupPage()
{
    clearIfRunning(*m_readingThread);
    Reset();
}

bool UIWPCsv::describe()
{
    generateSPP(m_state.images, m_readingThread->XIImageDefs());
    writeOptions(*this, detectionOptionsOf(*this));
    return true;
}

void UIWPCsv::ParseConfigFile(const QString &fileName)
{
    if (isRefused(*this, m_state, m_photos, fileName)) {
        showMessage(this, QMessageBox::Critical, tr("Error"),
                    tr("Error parse file:%1").arg(fileName));
    }
}

void UIWPCsv::SelectConfigFile()
{
    if (m_record.choose(*this, m_state, m_photos,
                        { tr("Select the preset file and/or images"), tr("All Files (*.*)"),
                          tr("All Files (*.*)") },
                        QStringLiteral(".csv"))) {
        UpdateUI();
    }
}

void UIWPCsv::SelectImages()
{
    if (choosePhotos(*this, m_state, m_photos,
                     { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                     ControlShows::Location)) {
        UpdateUI();
    }
}

void UIWPCsv::SetConfigFFilename()
{
    if (m_record.takeTyped(*this, m_state)) {
        UpdateUI();
    }
}

void UIWPCsv::Reset()
{
    shots.clear();
    forgetShoot(m_state, *m_readingThread, m_photos);
    UpdateUI();
}

void UIWPCsv::OnInverseCoordinates()
{
    invertShoot(*this, m_state);
    m_photos.drawAnew();
    UpdateUI();
}

void UIWPCsv::UpdateUI()
{
    {
        const BlockSignal blocker(this);
        showShoot(shootViewOf(*this, m_photoNames), m_state, { tr("N/A"), tr("N/A") });
    }
    m_photos.comeBack(); // unlike the thread's signals, which end at UpdatePreview too
    UpdatePreview();
}

void UIWPCsv::UpdatePreview()
{
    if (m_hSlider->value() != m_photos.preview()->zoomPercent()) {
        m_photos.drawAnew();
    }
    m_photos.drawArrived([this] { showPreview(); });
    Q_EMIT completeChanged();
}

void UIWPCsv::showPreview()
{
    m_photos.show(shots.isEmpty() ? PreviewLayout() : m_layout.of(shots, m_state.extents()),
                  CellStyle::FittedWithCaption, m_hSlider->value());
}
