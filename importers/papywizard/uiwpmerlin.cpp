// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

#include "importers/common/angles.h"
#include "importers/common/displaytexts.h"
#include "importers/common/mismatch.h"
#include "importers/common/photoselection.h"
#include "importers/common/previewlayout.h"
#include "importers/common/shotorder.h"
#include "plugin/hostapplication.h"
#include "plugin/readingthread.h"
#include "plugin/xiapplication.h"
#include "ui/blocksignal.h"
#include "ui/choices.h"
#include "ui/filedialogs.h"
#include "ui/messageboxes.h"
#include "ui/pagesetup.h"
#include "ui/plaintooltip.h"
#include "ui/previewlabel.h"

#include <QPointer>

#include <algorithm>

using namespace PanoHead;

namespace
{

// The step is limited, so that close rows do not blow the picture up.
constexpr LayoutRules kPapywizardLayout{ 8.0 /* smallest step, degrees */, Span::Absolute,
                                         Precision::Double };

LinkingChoices linkingChoices(const Ui::UIWPMerlinClass &form)
{
    return { form.m_rbLevelLinking0, form.m_rbLevelLinking1, form.m_rbStackLinking0,
             form.m_rbStackLinking1 };
}

DetectionOptions detectionOptions(const Ui::UIWPMerlinClass &form)
{
    return { form.m_autoStart, form.m_cleanLink, form.m_noOptim, form.m_GridOptim };
}

} // namespace

UIWPMerlin::UIWPMerlin(QWidget *parent)
    : QWizardPage(parent)
    , m_readingThread(new ReadingThread(this))
{
    setupUi(this);
    CreateWidgets();
    CreateConnects();
    Reset();
    recolourSubtitle(this, m_preview);
}

UIWPMerlin::~UIWPMerlin()
{
    m_readingThread->disconnect(this);
    delete m_readingThread;
}

void UIWPMerlin::CreateWidgets()
{
    m_preview = placePreview(m_saPreview);
    completePaths(m_leConfigFile);
    liftLengthLimit(m_leImage);
    fillLensTypes(m_cbLensType, { tr("Standard"), tr("Fisheye") });
    new PlainToolTip(m_leConfigFile);
}

void UIWPMerlin::CreateConnects()
{
    connect(m_pbSelectImages, &QPushButton::clicked, this, &UIWPMerlin::SelectImages);
    connect(m_pbSelectConfigFile, &QPushButton::clicked, this, &UIWPMerlin::SelectConfigFile);
    connect(m_pbReset, &QPushButton::clicked, this, &UIWPMerlin::Reset);
    connect(m_leConfigFile, &QLineEdit::textEdited, this, &UIWPMerlin::SetConfigFFilename);
    connect(m_hSlider, &QSlider::valueChanged, this, &UIWPMerlin::OnZoomChanged);
    connect(m_readingThread, &ReadingThread::Loaded, this, &UIWPMerlin::OnImageLoaded);
    connect(m_pInverseCoordinates, &QPushButton::clicked, this, &UIWPMerlin::OnInverseCoordinates);
    connect(m_pbRot90, &QPushButton::clicked, this, &UIWPMerlin::OnRotate90);
    connect(m_pbRot270, &QPushButton::clicked, this, &UIWPMerlin::OnRotate270);
    connect(m_rbLevelLinking1, &QRadioButton::clicked, this, &UIWPMerlin::OnLevelLinkingClicked);
    connect(m_rbStackLinking0, &QRadioButton::clicked, this, &UIWPMerlin::OnStackLinkingClicked);
    connect(m_pbFLUseXML, &QPushButton::clicked, this, &UIWPMerlin::OnFLUseXML);
    connect(m_pbFLUseImage, &QPushButton::clicked, this, &UIWPMerlin::OnFLUseImage);
}

void UIWPMerlin::initializePage()
{
    previewImages.clear();
}

void UIWPMerlin::cleanupPage()
{
    Reset();
}

bool UIWPMerlin::isComplete() const
{
    return images.size() == m_readingThread->XIImageDefs().size() && images.size() == shotCount;
}

bool UIWPMerlin::validatePage()
{
    XIApplication *host = findHost();
    if (host == nullptr) {
        return true;
    }
    if (nbPicts > 1 && !fillsBrackets(images.size(), nbPicts)) {
        showMessage(this, QMessageBox::Warning, tr("Warning"),
                    tr("Papywizard XML has bracketing and the number of images isn't a multiple of "
                       "this number of brackets."));
        return false;
    }
    nbPicts = std::max(nbPicts, 1);
    generateSPP(images, m_spFocal->value(), static_cast<LensModel>(m_cbLensType->currentIndex()));
    writeLinking(*this, linkingChoices(*this));
    writeOptions(*this, detectionOptions(*this));
    host->ImportStructuredPanorama(*this);
    return true;
}

QByteArray UIWPMerlin::SaveState() const
{
    return {};
}

void UIWPMerlin::RestoreState(const QByteArray &state)
{
    Q_UNUSED(state)
    UpdatePreview();
}

void UIWPMerlin::BrowserWeb(const QString &url)
{
    openInBrowser(url);
}

void UIWPMerlin::ParseConfigFile(const QString &path)
{
    shotCount = -1;
    setExtents({ AngleRange::scanStart(), AngleRange::scanStart() });
    if (!parse(path)) {
        return;
    }
    shotCount = shots.size();
    m_leHeaderTitle->setText(MerlinToSPP::title);
    m_leHeaderGps->setText(gps);
    m_leHeaderComment->setText(comment);
    m_leConfigFile->setToolTip(QStringLiteral("%1\n%2\n%3").arg(MerlinToSPP::title, gps, comment));
    setExtents(extentsOf(shots));
}

void UIWPMerlin::SelectConfigFile()
{
    const QString start = startLocation(configPath);
    if (controlHeld()) {
        openInDesktop(folderOf(start));
        return;
    }
    const QPointer<UIWPMerlin> self(this);
    const QStringList files
        = askForFiles(this,
                      { tr("Select the preset file and/or images"),
                        tr("All Files (*.*);;XML files (*.xml)"), tr("All Files (*.*)") },
                      start);
    if (self.isNull()) {
        return;
    }
    const RecordSelection selection = splitSelection(files, QStringLiteral(".xml"));
    if (!files.isEmpty()) {
        configPath = selection.record.isEmpty() ? start : selection.record;
        rememberLocation(configPath);
    }
    // A cancelled dialog reads the current record again.
    if (!configPath.isEmpty()) {
        ParseConfigFile(configPath);
    }
    if (!selection.photos.isEmpty()) {
        usePhotos(selection.photos);
    }
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::SelectImages()
{
    const QString start = startLocation(images.value(0));
    if (controlHeld()) {
        openInDesktop(folderOf(start));
        return;
    }
    const QPointer<UIWPMerlin> self(this);
    const QStringList photos = askForFiles(
        this, { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") }, start);
    if (self.isNull()) {
        return;
    }
    if (!photos.isEmpty()) {
        usePhotos(photos);
        rememberLocation(images.first());
    }
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::usePhotos(const QStringList &photos)
{
    images = sortedPhotos(photos);
    previewImages.clear();
    readPhotos(*m_readingThread, images);
}

void UIWPMerlin::SetConfigFFilename(const QString &text)
{
    configPath = text;
    ParseConfigFile(configPath);
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::Reset()
{
    configPath.clear();
    shotCount = -1;
    nbPicts = -1;
    xmlFocal = kNoRecordedFocal;
    xmlLensType = 0;
    imageFocal = 0.0;
    imageLensType = 0;
    setExtents({ AngleRange::unknown(), AngleRange::unknown() });
    images.clear();
    shots.clear();
    m_readingThread->Clear();
    redrawAll();
}

void UIWPMerlin::OnImageLoaded()
{
    const LensFacts photos = lensFactsOf(m_readingThread->XIImageDefs());
    imageFocal = photos.focalMm;
    imageLensType = photos.lensType;
    const LensFacts preset = PanoHead::presetLens(photos, { xmlFocal, xmlLensType });
    if (preset.focalMm > 0.0) {
        presetLens(preset.focalMm, preset.lensType);
    }
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::presetLens(double focalMm, int lensType)
{
    m_spFocal->setValue(focalMm);
    m_cbLensType->setCurrentIndex(lensType);
}

void UIWPMerlin::OnFLUseXML()
{
    presetLens(xmlFocal, xmlLensType);
    redrawAll();
}

void UIWPMerlin::OnFLUseImage()
{
    presetLens(imageFocal, imageLensType);
    redrawAll();
}

void UIWPMerlin::OnInverseCoordinates()
{
    invertPitch(shots);
    const AngleExtents old = extents();
    setExtents({ old.yaw, old.pitch.negated() });
    redrawAll();
}

void UIWPMerlin::OnRotate90()
{
    rotate(shots, 90.0F);
    redrawAll();
}

void UIWPMerlin::OnRotate270()
{
    rotate(shots, -90.0F);
    redrawAll();
}

void UIWPMerlin::OnZoomChanged()
{
    previewImages.clear();
    UpdatePreview();
    Q_EMIT completeChanged();
}

void UIWPMerlin::OnLevelLinkingClicked(bool checked)
{
    onAllLevelsClicked(linkingChoices(*this), checked);
}

void UIWPMerlin::OnStackLinkingClicked(bool checked)
{
    onHardLinksClicked(linkingChoices(*this), checked);
}

void UIWPMerlin::redrawAll()
{
    previewImages.clear();
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::UpdateUI()
{
    const BlockSignal blocker(this);
    const QString notAvailable = tr("N/A");
    m_leConfigFile->setText(configPath);
    m_lbPapyLog->setText(countText(shotCount, notAvailable));
    m_leImage->setText(photoNames(images));
    m_lbImageLog->setText(countText(images.size(), notAvailable));
    m_lbThetaMinMax->setText(rangeText(extents().yaw, notAvailable));
    m_lbPhiMinMax->setText(rangeText(extents().pitch, notAvailable));
    m_lbBracket->setText(nbPicts == -1 ? notAvailable : QStringLiteral("%1").arg(nbPicts));
    m_lbFocalLength->setText(xmlFocal == kNoRecordedFocal ? notAvailable : focalText(xmlFocal));
    m_pbFLUseXML->setEnabled(xmlFocal != kNoRecordedFocal);
    m_lbFocalLengthImage->setText(imageFocal > 0.0 ? focalText(imageFocal) : notAvailable);
    m_pbFLUseImage->setEnabled(imageFocal > 0.0);
    m_lbWarning->setText(warningText(warning()));
    UpdatePreview();
}

QString UIWPMerlin::warning() const
{
    switch (lastMismatch(recordFacts(), nbPicts, photoFacts())) {
    case Mismatch::None:
        return {};
    case Mismatch::Bracketing:
        return tr("Bracketing used in XML, should be multiple of that number");
    case Mismatch::Count:
        return tr("Not the same as in XML fil"); // cut off like this: wanted
    case Mismatch::FocalLength:
        return tr("Focal Length difference between EXIF and XML");
    case Mismatch::LensType:
        return tr("Lens type difference between EXIF and XML");
    }
    return {};
}

ShootFacts UIWPMerlin::recordFacts() const
{
    return { shotCount, { xmlFocal, xmlLensType } };
}

ShootFacts UIWPMerlin::photoFacts() const
{
    return { images.size(), { imageFocal, imageLensType } };
}

AngleExtents UIWPMerlin::extents() const
{
    return { { yawMin, yawMax }, { pitchMin, pitchMax } };
}

void UIWPMerlin::setExtents(const AngleExtents &extents)
{
    yawMin = extents.yaw.minimum;
    yawMax = extents.yaw.maximum;
    pitchMin = extents.pitch.minimum;
    pitchMax = extents.pitch.maximum;
}

void UIWPMerlin::UpdatePreview()
{
    const QList<XIImageDef *> read = m_readingThread->XIImageDefs();
    // The same number of photos counts as the same picture, none included; whoever changes the
    // picture otherwise empties the list first.
    if (read.size() == previewImages.size()) {
        return;
    }
    previewImages = byShotTime(read, EqualTimes::KeepReadingOrder);
    m_preview->showScene({ layOutShots(shots, extents(), kPapywizardLayout), previewImages,
                           palette().brush(QPalette::Current, QPalette::Window),
                           CellStyle::FittedWithCaption },
                         m_hSlider->value());
}
