// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/csv/uiwpcsv.h"

#include "shoot/angles.h"
#include "shoot/recordedshoot.h"
#include "ui/blocksignal.h"
#include "ui/messageboxes.h"

#include <QPointer>
#include <QScopeGuard>

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

void UIWPCsv::CreateWidgets()
{
    m_photos.place(m_saPreview, m_readingThread);
    completePaths(m_leConfigFile);
    liftLengthLimit(m_leImage);
}

void UIWPCsv::CreateConnects()
{
    connectAboutText(this);
    connectPhotoButtons(this);
    connectRecord(this);
    connect(m_leConfigFile, &QLineEdit::editingFinished, this, &UIWPCsv::SetConfigFFilename);
    connect(m_hSlider, &QSlider::valueChanged, this, &UIWPCsv::UpdatePreview);
    connect(m_readingThread, &ReadingThread::Loaded, this, &UIWPCsv::UpdatePreview);
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
    bool isRead = false;
    const auto read = [&] { isRead = readRecord(m_state, shots, [&] { return parse(fileName); }); };
    if (!m_photos.withinMemory(read)) {
        return;
    }
    if (!isRead) {
        showMessage(this, QMessageBox::Critical, tr("Error"),
                    tr("Error parse file:%1").arg(fileName));
    }
}

void UIWPCsv::SelectConfigFile()
{
    const auto choice = selectRecord(this,
                                     { tr("Select the preset file and/or images"),
                                       tr("All Files (*.*)"), tr("All Files (*.*)") },
                                     m_state.configPath, QStringLiteral(".csv"));
    if (!choice) {
        return;
    }
    const QString list = choice->selection.record;
    if (!list.isEmpty() && !readList(list)) {
        return;
    }
    const QStringList photos = choice->selection.photos;
    if (!photos.isEmpty() && photos != m_state.images) {
        m_state.images = m_photos.read(photos);
    }
    UpdateUI();
}

void UIWPCsv::SelectImages()
{
    const QStringList photos
        = selectPhotos(this, { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                       m_state.images, ControlShows::Location);
    if (!photos.isEmpty()) {
        m_state.images = m_photos.read(photos);
        UpdateUI();
    }
}

void UIWPCsv::SetConfigFFilename()
{
    // An open error box takes the focus, so that the edit reports once more.
    if (m_isReadingList) {
        return;
    }
    const QString text = m_leConfigFile->text();
    // A list that could not be read may have been mended on disk meanwhile.
    const bool isNew = text != m_state.configPath || m_state.shotCount < 0;
    if (!text.isEmpty() && isNew && !readList(text)) {
        return;
    }
    UpdateUI();
}

bool UIWPCsv::readList(const QString &path)
{
    const QPointer<UIWPCsv> self(this);
    const auto done = qScopeGuard([&self] {
        if (!self.isNull()) {
            self->m_isReadingList = false;
        }
    });
    m_isReadingList = true;
    m_state.configPath = path;
    ParseConfigFile(path);
    return !self.isNull();
}

void UIWPCsv::Reset()
{
    m_state = ShootState();
    shots.clear();
    m_photos.forget();
    m_readingThread->Clear();
    UpdateUI();
}

void UIWPCsv::OnInverseCoordinates()
{
    invertPitch(shots);
    m_state.invertPitchRange();
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
    m_photos.draw([this] {
        if (m_photos.arrived()) {
            showPreview();
        }
    });
    Q_EMIT completeChanged();
}

void UIWPCsv::showPreview()
{
    m_photos.show(shots.isEmpty() ? PreviewLayout() : m_layout.of(shots, m_state.extents()),
                  CellStyle::FittedWithCaption, m_hSlider->value());
}
