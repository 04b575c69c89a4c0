// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "importers/gigapan/gridguess.h"
#include "importers/gigapan/gridorder.h"
#include "ui/xnoevent.h"

using namespace PanoHead;

namespace
{

constexpr int kFreshRows = 4;
constexpr int kFreshColumns = 5;

constexpr PhotoQuestions kGigapanQuestions{ false /* lens */, true /* shot time */,
                                            EqualTimes::GiveUp };

DetectionOptions detectionOptions(const Ui::UIWPGigapanClass &form)
{
    return { form.m_autoStart, form.m_cleanLink, form.m_noOptim, nullptr };
}

/** Null for the serpentine, which has no button. */
QRadioButton *buttonOf(const Ui::UIWPGigapanClass &form, int mode)
{
    QRadioButton *const buttons[]
        = { form.m_rbMode0, form.m_rbMode1, form.m_rbMode2, form.m_rbMode3 };
    return mode >= kColumnsFromLeft && mode <= kColumnsFromRight ? buttons[mode] : nullptr;
}

} // namespace

UIWPGigapan::UIWPGigapan(QWidget *parent)
    : QWizardPage(parent)
    , GigapanToSPP(0, 0, kColumnsFromLeft, 1, 0)
    , m_photos(kGigapanQuestions, &previewImages,
               { this, tr("Warning"),
                 tr("There is not enough memory for so many images. Close other programs and try "
                    "again.") })
{
    buildPage(*this, m_readingThread, m_photos);
}

void UIWPGigapan::CreateWidgets()
{
    m_photos.place(m_saPreview, m_readingThread);
    liftLengthLimit(m_leImage);
}

void UIWPGigapan::CreateConnects()
{
    connectPhotoButtons(this);
    connectLinkingChoices(this);
    const auto valueChanged = QOverload<int>::of(&QSpinBox::valueChanged);
    connect(m_sbRow, valueChanged, this, &UIWPGigapan::SetRow);
    connect(m_sbIgnore, valueChanged, this, &UIWPGigapan::IgnoreNImages);
    connect(m_sbBracket, valueChanged, this, &UIWPGigapan::OnChangeBracket);
    connect(m_hSlider, &QSlider::valueChanged, this, &UIWPGigapan::UpdateUI);
    connect(m_readingThread, &ReadingThread::Loaded, this, &UIWPGigapan::UpdatePreview);
    connect(m_rbMode0, &QRadioButton::toggled, this, &UIWPGigapan::OnMode0Toggled);
    connect(m_rbMode1, &QRadioButton::toggled, this, &UIWPGigapan::OnMode1Toggled);
    connect(m_rbMode2, &QRadioButton::toggled, this, &UIWPGigapan::OnMode2Toggled);
    connect(m_rbMode3, &QRadioButton::toggled, this, &UIWPGigapan::OnMode3Toggled);
}

void UIWPGigapan::cleanupPage()
{
    clearIfRunning(*m_readingThread);
    m_photos.letGo();
}

bool UIWPGigapan::isComplete() const
{
    return !images.isEmpty() && m_readingThread->XIImageDefs().size() == images.size();
}

bool UIWPGigapan::describe()
{
    generateSPP(images, m_cbIS360->checkState() == Qt::Checked);
    overlap = m_dsbOverlapping->value();
    writeLinking(*this, linkingChoicesOf(*this));
    writeOptions(*this, detectionOptions(*this));
    return true;
}

void UIWPGigapan::SelectImages()
{
    const QStringList photos
        = selectPhotos(this, { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                       images, ControlShows::Location);
    if (photos.isEmpty()) {
        return;
    }
    images = m_photos.read(photos);
    ignoredCount = 0;
    bracketCount = 1;
    const GridSize guess = guessGrid(images.size());
    rows = guess.rows;
    columns = guess.columns;
    UpdateUI();
}

void UIWPGigapan::setGrid(qint32 &setting, int value)
{
    if (m_isUpdating) {
        return;
    }
    setting = value;
    columns = columnsFor(images.size(), ignoredCount, bracketCount, rows);
    UpdateUI();
}

void UIWPGigapan::setMode(int gridOrder, bool checked)
{
    if (m_isUpdating || !checked) {
        return;
    }
    const XNoEvent noEvent(m_isUpdating);
    mode = gridOrder;
    m_photos.drawAnew();
    UpdatePreview();
}

void UIWPGigapan::Reset()
{
    images.clear();
    ignoredCount = 0;
    columns = kFreshColumns;
    rows = kFreshRows;
    bracketCount = 1;
    mode = kColumnsFromLeft;
    m_photos.forget();
    m_readingThread->Clear();
    UpdateUI();
}

void UIWPGigapan::UpdateUI()
{
    const XNoEvent noEvent(m_isUpdating);
    m_photoNames.show(m_leImage, images);
    m_lbImage->setText(QStringLiteral("%1 ").arg(images.size()) + tr("images in "));
    m_sbColumn->setValue(columns);
    m_sbRow->setValue(rows);
    m_sbIgnore->setValue(ignoredCount);
    m_sbBracket->setValue(bracketCount);
    if (QRadioButton *button = buttonOf(*this, mode)) {
        button->setChecked(true);
    }
    m_photos.drawAnew();
    UpdatePreview();
}

void UIWPGigapan::UpdatePreview()
{
    const XNoEvent noEvent(m_isUpdating);
    m_photos.drawArrived([this] { showPreview(); });
    Q_EMIT completeChanged();
}

void UIWPGigapan::showPreview()
{
    const GridView grid{ m_sbRow->value(), m_sbColumn->value(), mode, bracketCount, ignoredCount };
    const QSize thumbnail = m_photos.firstThumbnail();
    const PreviewLayout &layout
        = m_layout.of(grid, thumbnail.isEmpty() ? kDefaultThumbnail : thumbnail);
    // A grid whose cells would have no size leaves the label as it is.
    if (!layout.isEmpty()) {
        m_photos.show(layout, CellStyle::UnscaledPhoto, m_hSlider->value());
    }
}
