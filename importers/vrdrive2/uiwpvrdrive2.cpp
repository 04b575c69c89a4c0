// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include <QPointer>

using namespace PanoHead;

namespace
{

// Only the span of a range without shots differs from the Papywizard page's.
constexpr LayoutRules kVRDrive2Layout{ 8.0 /* smallest step, degrees */, Span::NegatedSumToo,
                                       Precision::Double };

// The photos' clock is not asked: they stand in reading order on this page.
constexpr PhotoQuestions kVRDrive2Questions{ true /* lens */, false /* shot time */,
                                             EqualTimes::KeepReadingOrder };

constexpr qint32 kTonemapped = 2;
constexpr qint32 kHdrRadiance = 3;

} // namespace

UIWPVRDrive2::UIWPVRDrive2(QWidget *parent)
    : QWizardPage(parent)
    , m_layout(kVRDrive2Layout)
    , m_photos(kVRDrive2Questions, &m_previewImages,
               { this, tr("Warning"),
                 tr("There is not enough memory for so many images. Close other programs and try "
                    "again.") })
{
    buildPage(*this, m_readingThread, m_photos,
              QStringLiteral(":/7A21C94E-5B20-2020-2020-B662C695C918/Resources/VRDrive2.png"));
}

void UIWPVRDrive2::CreateWidgets()
{
    prepareSchemaPage(*this, m_readingThread, m_photos, { tr("Standard"), tr("Fisheye") });
    keepPlaceWhenHidden(m_lbWarning);
    m_GridOptim->setChecked(true);
    m_cleanLink->setChecked(true);
    m_autoStart->setChecked(true);
    m_noOptim->setChecked(false);
}

bool UIWPVRDrive2::describe()
{
    if (!comesInBrackets(*this, m_state,
                         { tr("Warning"),
                           tr("Papywizard XML has bracketing and the number of images isn't a "
                              "multiple of this number of brackets.") })) {
        return false;
    }
    generateSPP(m_state.images, m_readingThread->XIImageDefs(), m_spFocal->value(),
                static_cast<LensModel>(m_cbLensType->currentIndex()));
    writeLinking(*this, linkingChoicesOf(*this));
    writeOptions(*this, detectionOptionsOf(*this));
    renderMode = m_rbOutputMode1->isChecked() ? kTonemapped : kHdrRadiance;
    return true;
}

void UIWPVRDrive2::ParseConfigFile(const QString &fileName)
{
    bool isRead = false;
    const auto read = [&] { isRead = readRecord(m_state, shots, [&] { return parse(fileName); }); };
    if (m_photos.withinMemory(read) && isRead) {
        m_leConfigFile->setToolTip(headerText(VRDrive2ToSPP::title, gps, comment));
    }
}

void UIWPVRDrive2::SelectConfigFile()
{
    const QPointer<UIWPVRDrive2> self(this);
    const auto choice
        = selectRecord(this,
                       { tr("Select the preset file and/or images"),
                         tr("All Files (*.*);;XML files (*.xml)"), tr("All Files (*.*)") },
                       m_state.configPath, QStringLiteral(".xml"));
    if (self.isNull()) {
        return;
    }
    // Unlike on the other pages the rest follows also when nothing was chosen.
    const RecordSelection selection = choice.value_or(RecordChoice()).selection;
    if (!selection.record.isEmpty()) {
        m_state.configPath = selection.record;
        ParseConfigFile(m_state.configPath);
    }
    const QStringList photos = sortedPhotos(selection.photos);
    if (!photos.isEmpty() && photos != m_state.images) {
        m_state.images = m_photos.read(photos);
    }
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::SelectImages()
{
    const QPointer<UIWPVRDrive2> self(this);
    const QStringList photos
        = selectPhotos(this, { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                       m_state.images, ControlShows::Folder);
    if (self.isNull()) {
        return;
    }
    if (!photos.isEmpty()) {
        m_state.images = m_photos.read(photos);
    }
    // Unlike on the other pages also when nothing was chosen.
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::Reset()
{
    forgetRecord();
    forgetShoot(m_state, *m_readingThread, m_photos);
    redrawAll();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::OnImageLoaded()
{
    if (presetFromPhotos(*this, m_state, m_photos)) {
        UpdateUI();
        UpdatePreview();
        Q_EMIT completeChanged();
    }
}

void UIWPVRDrive2::OnZoomChanged()
{
    redrawAll();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::OnInverseCoordinates()
{
    invertShoot(*this, m_state);
    redrawAll();
}

void UIWPVRDrive2::redrawAll()
{
    m_photos.drawAnew();
    UpdateUI();
}

void UIWPVRDrive2::turn(float degrees)
{
    rotate(shots, degrees);
    redrawAll();
}

void UIWPVRDrive2::useLens(const LensFacts &lens)
{
    setLens(lensViewOf(*this), lens);
    redrawAll();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::UpdateUI()
{
    const BlockSignal blocker(this);
    UpdatePreview(); // asks the photos first, whose answers the fields show
    // Unlike the counts, ranges are "N/A" in every language on this page.
    showShoot(shootViewOf(*this, m_photoNames), m_state, { tr("N/A"), QStringLiteral("N/A") });
    showLens(lensViewOf(*this), nbPicts, xmlFocal, m_state.imageFocal, tr("N/A"));
    const QString warning
        = textOf(mismatchOf(m_state, { xmlFocal, xmlLensType }, nbPicts),
                 {
                     tr("Bracketing used in XML, should be multiple of that number"),
                     tr("Not the same as in XML fil"), // translations know it cut off like this
                     tr("Focal length difference between EXIF and XML"),
                     tr("Lens type difference between EXIF and XML"),
                 });
    m_lbWarning->setText(warningText(warning));
    m_lbWarning->setVisible(!warning.isEmpty());
}

void UIWPVRDrive2::UpdatePreview()
{
    m_photos.draw([this] {
        lookAtPhotos(*this, m_state, m_photos);
        m_photos.show(m_layout.of(shots, m_state.extents()), CellStyle::FittedWithCaption,
                      m_hSlider->value());
    });
}
