// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "shoot/angles.h"
#include "shoot/recordedshoot.h"
#include "ui/blocksignal.h"
#include "ui/messageboxes.h"

#include <QPointer>
#include <QScopeGuard>

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

void UIWPClauss::CreateWidgets()
{
    m_photos.place(m_saPreview, m_readingThread);
    completePaths(m_leConfigFile);
    liftLengthLimit(m_leImage);
}

void UIWPClauss::CreateConnects()
{
    connectAboutText(this);
    connectPhotoButtons(this);
    connectRecord(this);
    connect(m_leConfigFile, &QLineEdit::editingFinished, this, &UIWPClauss::SetConfigFFilename);
    connect(m_hSlider, &QSlider::valueChanged, this, &UIWPClauss::UpdatePreview);
    connect(m_readingThread, &ReadingThread::Loaded, this, &UIWPClauss::UpdatePreview);
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

void UIWPClauss::SelectConfigFile()
{
    const auto choice = selectRecord(this,
                                     { tr("Select the preset file and/or images"),
                                       tr("All Files (*.*)"), tr("All Files (*.*)") },
                                     m_state.configPath, QStringLiteral(".txt"));
    if (!choice) {
        return;
    }
    const QString script = choice->selection.record;
    if (!script.isEmpty() && !readScript(script)) {
        return;
    }
    // In the dialog's order: who picks the photos as they were shot keeps that order.
    const QStringList photos = choice->selection.photos;
    if (!photos.isEmpty() && photos != m_state.images) {
        m_state.images = m_photos.read(photos);
    }
    UpdateUI();
}

void UIWPClauss::SelectImages()
{
    const QStringList photos
        = selectPhotos(this, { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                       m_state.images, ControlShows::Location);
    if (!photos.isEmpty()) {
        m_state.images = m_photos.read(photos);
        UpdateUI();
    }
}

void UIWPClauss::SetConfigFFilename()
{
    // An open error box takes the focus, so that the edit reports once more.
    if (m_isReadingScript) {
        return;
    }
    const QString text = m_leConfigFile->text();
    // A script that could not be read may have been mended on disk meanwhile.
    const bool isNew = text != m_state.configPath || m_state.shotCount < 0;
    if (!text.isEmpty() && isNew && !readScript(text)) {
        return;
    }
    UpdateUI();
}

bool UIWPClauss::readScript(const QString &path)
{
    const QPointer<UIWPClauss> self(this);
    const auto done = qScopeGuard([&self] {
        if (!self.isNull()) {
            self->m_isReadingScript = false;
        }
    });
    m_isReadingScript = true;
    m_state.configPath = path;
    ParseConfigFile(path);
    return !self.isNull();
}

void UIWPClauss::Reset()
{
    m_state = ShootState();
    shots.clear();
    m_photos.forget();
    m_readingThread->Clear();
    UpdateUI();
}

void UIWPClauss::OnInverseCoordinates()
{
    invertPitch(shots);
    m_state.invertPitchRange();
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
    m_photos.draw([this] {
        if (m_photos.arrived()) {
            showPreview();
        }
    });
    Q_EMIT completeChanged();
}

void UIWPClauss::showPreview()
{
    // After a failed parse positions may be left, without a range to lay them out over.
    const bool hasRecord = m_state.shotCount > 0;
    m_photos.show(hasRecord ? m_layout.of(shots, m_state.extents()) : PreviewLayout(),
                  CellStyle::FittedWithCaption, m_hSlider->value());
}
