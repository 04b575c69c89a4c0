// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include "shoot/angles.h"
#include "shoot/displaytexts.h"
#include "shoot/previewlayout.h"
#include "shoot/recordedshoot.h"
#include "ui/blocksignal.h"
#include "ui/connectpage.h"
#include "ui/filedialogs.h"
#include "ui/formviews.h"
#include "ui/handover.h"
#include "ui/messageboxes.h"
#include "ui/pagesetup.h"
#include "ui/plaintooltip.h"
#include "ui/previewlabel.h"

#include <QPointer>

#include <algorithm>

using namespace PanoHead;

namespace
{

// The span of a range without shots differs from the Papywizard page's: wanted.
constexpr LayoutRules kVRDrive2Layout{ 8.0 /* smallest step, degrees */, Span::NegatedSumToo,
                                       Precision::Double };

// Photos stand in reading order on this page: wanted.
constexpr PhotoQuestions kVRDrive2Questions{ true /* lens */, false /* shot time */,
                                             EqualTimes::KeepReadingOrder };

constexpr qint32 kTonemapped = 2;
constexpr qint32 kHdrRadiance = 3;

} // namespace

UIWPVRDrive2::UIWPVRDrive2(QWidget *parent)
    : QWizardPage(parent)
    , m_readingThread(nullptr)
    , m_lowMemory{ this, tr("Warning"),
                   tr("There is not enough memory for so many images. Close other programs and try "
                      "again.") }
    , m_layout(kVRDrive2Layout)
    , m_photos(kVRDrive2Questions, &m_previewImages)
{
    setupUi(this);
    setLogo(this, QStringLiteral(":/7A21C94E-5B20-2020-2020-B662C695C918/Resources/VRDrive2.png"));
    m_readingThread = new ReadingThread(this);
    CreateWidgets();
    CreateConnects();
    Reset();
    recolourSubtitle(this, m_photos.preview());
}

UIWPVRDrive2::~UIWPVRDrive2()
{
    endReading(this, m_readingThread);
}

void UIWPVRDrive2::CreateWidgets()
{
    m_photos.place(m_saPreview, m_readingThread);
    completePaths(m_leConfigFile);
    liftLengthLimit(m_leImage);
    keepPlaceWhenHidden(m_lbWarning);
    m_GridOptim->setChecked(true);
    m_cleanLink->setChecked(true);
    m_autoStart->setChecked(true);
    m_noOptim->setChecked(false);
    fillLensTypes(m_cbLensType, { tr("Standard"), tr("Fisheye") });
    new PlainToolTip(m_leConfigFile);
}

void UIWPVRDrive2::CreateConnects()
{
    connectSchemaPage(this, m_readingThread);
}

void UIWPVRDrive2::initializePage() { }

void UIWPVRDrive2::cleanupPage()
{
    Reset();
}

bool UIWPVRDrive2::isComplete() const
{
    return isReadAndRecorded(m_state, *m_readingThread);
}

bool UIWPVRDrive2::validatePage()
{
    return handOver(
        *this, [this] { return describe(); }, m_photos, m_lowMemory);
}

bool UIWPVRDrive2::describe()
{
    if (warnsOfBrackets(this, m_state.images.size(), nbPicts,
                        { tr("Warning"),
                          tr("Papywizard XML has bracketing and the number of images isn't a "
                             "multiple of this number of brackets.") })) {
        return false;
    }
    nbPicts = std::max(nbPicts, 1);
    generateSPP(m_state.images, m_readingThread->XIImageDefs(), m_spFocal->value(),
                static_cast<LensModel>(m_cbLensType->currentIndex()));
    writeLinking(*this, linkingChoicesOf(*this));
    writeOptions(*this, detectionOptionsOf(*this));
    renderMode = m_rbOutputMode1->isChecked() ? kTonemapped : kHdrRadiance;
    return true;
}

QByteArray UIWPVRDrive2::SaveState() const
{
    return {};
}

void UIWPVRDrive2::RestoreState(const QByteArray &state)
{
    Q_UNUSED(state)
    UpdatePreview();
}

void UIWPVRDrive2::BrowserWeb(const QString &url)
{
    openInBrowser(url);
}

void UIWPVRDrive2::ParseConfigFile(const QString &fileName)
{
    bool isRead = false;
    withinMemory(m_lowMemory,
                 [&] { isRead = readRecord(m_state, shots, [&] { return parse(fileName); }); });
    if (isRead) {
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
        usePhotos(photos);
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
        usePhotos(photos);
    }
    // Unlike on the other pages also when nothing was chosen.
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::usePhotos(const QStringList &photos)
{
    m_state.images = photos;
    m_photos.read(photos);
}

void UIWPVRDrive2::SetConfigFFilename(const QString &text)
{
    m_state.configPath = text;
    ParseConfigFile(text);
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::Reset()
{
    forgetRecord();
    m_state = ShootState();
    m_photos.forget();
    m_readingThread->Clear();
    redrawAll();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::OnImageLoaded()
{
    bool isLeft = false;
    m_photos.draw(m_lowMemory, [&] { isLeft = !m_photos.arrived(); });
    if (isLeft) {
        return;
    }
    const LensFacts preset = adoptPhotos(m_state, { xmlFocal, xmlLensType }, m_photos.lens());
    if (preset.focalMm > 0.0) {
        setLens(lensViewOf(*this), preset);
    }
    UpdateUI();
    UpdatePreview();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::OnFLUseXML()
{
    setLens(lensViewOf(*this), { xmlFocal, xmlLensType });
    redrawAll();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::OnFLUseImage()
{
    setLens(lensViewOf(*this), { m_state.imageFocal, m_state.imageLensType });
    redrawAll();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::OnInverseCoordinates()
{
    invertPitch(shots);
    m_state.invertPitchRange();
    redrawAll();
}

void UIWPVRDrive2::OnRotate90()
{
    rotate(shots, 90.0F);
    redrawAll();
}

void UIWPVRDrive2::OnRotate270()
{
    rotate(shots, -90.0F);
    redrawAll();
}

void UIWPVRDrive2::OnZoomChanged()
{
    redrawAll();
    Q_EMIT completeChanged();
}

void UIWPVRDrive2::redrawAll()
{
    m_photos.drawAnew();
    UpdateUI();
}

void UIWPVRDrive2::OnLevelLinkingClicked(bool checked)
{
    onAllLevelsClicked(linkingChoicesOf(*this), checked);
}

void UIWPVRDrive2::OnStackLinkingClicked(bool checked)
{
    onHardLinksClicked(linkingChoicesOf(*this), checked);
}

void UIWPVRDrive2::UpdateUI()
{
    const BlockSignal blocker(this);
    UpdatePreview(); // asks the photos first, whose answers the fields show
    // The ranges are not translated on this page: wanted.
    showShoot(shootViewOf(*this, m_photoNames), m_state, { tr("N/A"), QStringLiteral("N/A") });
    showLens(lensViewOf(*this), nbPicts, xmlFocal, m_state.imageFocal, tr("N/A"));
    const QString warning
        = textOf(mismatchOf(m_state, { xmlFocal, xmlLensType }, nbPicts),
                 {
                     tr("Bracketing used in XML, should be multiple of that number"),
                     tr("Not the same as in XML fil"), // cut off like this: wanted
                     tr("Focal length difference between EXIF and XML"),
                     tr("Lens type difference between EXIF and XML"),
                 });
    m_lbWarning->setText(warningText(warning));
    m_lbWarning->setVisible(!warning.isEmpty());
}

void UIWPVRDrive2::UpdatePreview()
{
    m_photos.draw(m_lowMemory, [this] {
        m_photos.look();
        // Those that know their lens late count from now on; what the user has entered stays.
        (void)adoptPhotos(m_state, { xmlFocal, xmlLensType }, m_photos.lens());
        m_photos.show(m_layout.of(shots, m_state.extents()), CellStyle::FittedWithCaption,
                      m_hSlider->value());
    });
}
