// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

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

#include <algorithm>

using namespace PanoHead;

namespace
{

// The step is limited, so that close rows do not blow the picture up.
constexpr LayoutRules kPapywizardLayout{ 8.0 /* smallest step, degrees */, Span::Absolute,
                                         Precision::Double };

constexpr PhotoQuestions kPapywizardQuestions{ true /* lens */, true /* shot time */,
                                               EqualTimes::KeepReadingOrder };

} // namespace

UIWPMerlin::UIWPMerlin(QWidget *parent)
    : QWizardPage(parent)
    , m_readingThread(nullptr)
    , m_lowMemory{ this, tr("Warning"),
                   tr("There is not enough memory for so many images. Close other programs and try "
                      "again.") }
    , m_layout(kPapywizardLayout)
    , m_photos(kPapywizardQuestions, &previewImages)
{
    setupUi(this);
    m_readingThread = new ReadingThread(this);
    CreateWidgets();
    CreateConnects();
    Reset();
    recolourSubtitle(this, m_photos.preview());
}

UIWPMerlin::~UIWPMerlin()
{
    endReading(this, m_readingThread);
}

void UIWPMerlin::CreateWidgets()
{
    m_photos.place(m_saPreview, m_readingThread);
    completePaths(m_leConfigFile);
    liftLengthLimit(m_leImage);
    fillLensTypes(m_cbLensType, { tr("Standard"), tr("Fisheye") });
    new PlainToolTip(m_leConfigFile);
}

void UIWPMerlin::CreateConnects()
{
    connectSchemaPage(this, m_readingThread);
}

void UIWPMerlin::initializePage()
{
    m_photos.drawAnew();
}

void UIWPMerlin::cleanupPage()
{
    Reset();
}

bool UIWPMerlin::isComplete() const
{
    return isReadAndRecorded(m_state, *m_readingThread);
}

bool UIWPMerlin::validatePage()
{
    return handOver(
        *this, [this] { return describe(); }, m_photos, m_lowMemory);
}

bool UIWPMerlin::describe()
{
    if (warnsOfBrackets(this, m_state.images.size(), nbPicts,
                        { tr("Warning"),
                          tr("Papywizard XML has bracketing and the number of images isn't a "
                             "multiple of this number of brackets.") })) {
        return false;
    }
    nbPicts = std::max(nbPicts, 1);
    generateSPP(m_state.images, m_spFocal->value(),
                static_cast<LensModel>(m_cbLensType->currentIndex()));
    writeLinking(*this, linkingChoicesOf(*this));
    writeOptions(*this, detectionOptionsOf(*this));
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
    bool isRead = false;
    withinMemory(m_lowMemory,
                 [&] { isRead = readRecord(m_state, shots, [&] { return parse(path); }); });
    if (!isRead) {
        // The ranges show a scan that found nothing: wanted. Other pages keep theirs.
        m_state.setExtents({ AngleRange::scanStart(), AngleRange::scanStart() });
        return;
    }
    m_leHeaderTitle->setText(MerlinToSPP::title);
    m_leHeaderGps->setText(gps);
    m_leHeaderComment->setText(comment);
    m_leConfigFile->setToolTip(headerText(MerlinToSPP::title, gps, comment));
}

void UIWPMerlin::SelectConfigFile()
{
    const auto choice
        = selectRecord(this,
                       { tr("Select the preset file and/or images"),
                         tr("All Files (*.*);;XML files (*.xml)"), tr("All Files (*.*)") },
                       m_state.configPath, QStringLiteral(".xml"));
    if (!choice) {
        return;
    }
    const RecordSelection &selection = choice->selection;
    const bool wasCancelled = selection.record.isEmpty() && selection.photos.isEmpty();
    // Photos alone make the start location the record; a cancelled dialog reads the current one
    // again. Both wanted.
    if (!wasCancelled) {
        m_state.configPath = choice->location;
    }
    if (!wasCancelled || !m_state.configPath.isEmpty()) {
        ParseConfigFile(m_state.configPath);
    }
    if (!selection.photos.isEmpty()) {
        usePhotos(sortedPhotos(selection.photos));
    }
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::SelectImages()
{
    const QStringList photos
        = selectPhotos(this, { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                       m_state.images, ControlShows::Folder);
    if (!photos.isEmpty()) {
        usePhotos(photos);
        UpdateUI();
        Q_EMIT completeChanged();
    }
}

void UIWPMerlin::usePhotos(const QStringList &photos)
{
    m_state.images = photos;
    m_photos.read(photos);
}

void UIWPMerlin::SetConfigFFilename(const QString &text)
{
    m_state.configPath = text;
    ParseConfigFile(text);
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::Reset()
{
    forgetRecord();
    m_state = ShootState();
    m_photos.forget();
    m_readingThread->Clear();
    redrawAll();
}

void UIWPMerlin::OnImageLoaded()
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
    Q_EMIT completeChanged();
}

void UIWPMerlin::OnFLUseXML()
{
    setLens(lensViewOf(*this), { xmlFocal, xmlLensType });
    redrawAll();
}

void UIWPMerlin::OnFLUseImage()
{
    setLens(lensViewOf(*this), { m_state.imageFocal, m_state.imageLensType });
    redrawAll();
}

void UIWPMerlin::OnInverseCoordinates()
{
    invertPitch(shots);
    m_state.invertPitchRange();
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
    redrawAll();
}

void UIWPMerlin::OnLevelLinkingClicked(bool checked)
{
    onAllLevelsClicked(linkingChoicesOf(*this), checked);
}

void UIWPMerlin::OnStackLinkingClicked(bool checked)
{
    onHardLinksClicked(linkingChoicesOf(*this), checked);
}

void UIWPMerlin::redrawAll()
{
    m_photos.drawAnew();
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::UpdateUI()
{
    const BlockSignal blocker(this);
    UpdatePreview(); // asks the photos first, whose answers the fields show
    showShoot(shootViewOf(*this, m_photoNames), m_state, { tr("N/A"), tr("N/A") });
    showLens(lensViewOf(*this), nbPicts, xmlFocal, m_state.imageFocal, tr("N/A"));
    const MismatchTexts texts{
        tr("Bracketing used in XML, should be multiple of that number"),
        tr("Not the same as in XML fil"), // cut off like this: wanted
        tr("Focal Length difference between EXIF and XML"),
        tr("Lens type difference between EXIF and XML"),
    };
    m_lbWarning->setText(
        warningText(textOf(mismatchOf(m_state, { xmlFocal, xmlLensType }, nbPicts), texts)));
}

void UIWPMerlin::UpdatePreview()
{
    m_photos.draw(m_lowMemory, [this] {
        m_photos.look();
        // Those that know their lens late count from now on; what the user has entered stays.
        (void)adoptPhotos(m_state, { xmlFocal, xmlLensType }, m_photos.lens());
        showPreview();
    });
}

void UIWPMerlin::showPreview()
{
    // The same number of photos counts as the same picture, none included: wanted. Whoever changes
    // the picture otherwise asks for a new one first.
    if (m_photos.areShown()) {
        return;
    }
    m_photos.show(m_layout.of(shots, m_state.extents()), CellStyle::FittedWithCaption,
                  m_hSlider->value());
}
