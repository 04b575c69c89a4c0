// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

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
    , m_layout(kPapywizardLayout)
    , m_photos(kPapywizardQuestions, &previewImages,
               { this, tr("Warning"),
                 tr("There is not enough memory for so many images. Close other programs and try "
                    "again.") })
{
    buildPage(*this, m_readingThread, m_photos);
}

void UIWPMerlin::CreateWidgets()
{
    prepareSchemaPage(*this, m_readingThread, m_photos, { tr("Standard"), tr("Fisheye") });
}

bool UIWPMerlin::describe()
{
    if (!comesInBrackets(*this, m_state,
                         { tr("Warning"),
                           tr("Papywizard XML has bracketing and the number of images isn't a "
                              "multiple of this number of brackets.") })) {
        return false;
    }
    generateSPP(m_state.images, m_spFocal->value(),
                static_cast<LensModel>(m_cbLensType->currentIndex()));
    writeLinking(*this, linkingChoicesOf(*this));
    writeOptions(*this, detectionOptionsOf(*this));
    return true;
}

void UIWPMerlin::ParseConfigFile(const QString &path)
{
    bool isRead = false;
    const auto read = [&] { isRead = readRecord(m_state, shots, [&] { return parse(path); }); };
    if (!m_photos.withinMemory(read) || !isRead) {
        // The ranges say that nothing was found; other pages keep those of the record before.
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
    // Photos alone make the start location the record, where the next dialog starts; a cancelled
    // dialog reads the current record again, which may have changed on disk.
    if (!wasCancelled) {
        m_state.configPath = choice->location;
    }
    if (!wasCancelled || !m_state.configPath.isEmpty()) {
        ParseConfigFile(m_state.configPath);
    }
    if (!selection.photos.isEmpty()) {
        m_state.images = m_photos.read(sortedPhotos(selection.photos));
    }
    UpdateUI();
    Q_EMIT completeChanged();
}

void UIWPMerlin::SelectImages()
{
    if (choosePhotos(*this, m_state, m_photos,
                     { tr("Select images"), tr("All Files (*.*)"), tr("All Files (*.*)") },
                     ControlShows::Folder)) {
        UpdateUI();
        Q_EMIT completeChanged();
    }
}

void UIWPMerlin::Reset()
{
    forgetRecord();
    forgetShoot(m_state, *m_readingThread, m_photos);
    redrawAll();
}

void UIWPMerlin::OnImageLoaded()
{
    if (presetFromPhotos(*this, m_state, m_photos)) {
        UpdateUI();
        Q_EMIT completeChanged();
    }
}

void UIWPMerlin::useLens(const LensFacts &lens)
{
    setLens(lensViewOf(*this), lens);
    redrawAll();
}

void UIWPMerlin::OnInverseCoordinates()
{
    invertShoot(*this, m_state);
    redrawAll();
}

void UIWPMerlin::turn(float degrees)
{
    rotate(shots, degrees);
    redrawAll();
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
        tr("Not the same as in XML fil"), // translations know it cut off like this
        tr("Focal Length difference between EXIF and XML"),
        tr("Lens type difference between EXIF and XML"),
    };
    m_lbWarning->setText(
        warningText(textOf(mismatchOf(m_state, { xmlFocal, xmlLensType }, nbPicts), texts)));
}

void UIWPMerlin::UpdatePreview()
{
    m_photos.draw([this] {
        lookAtPhotos(*this, m_state, m_photos);
        // The same number of photos, none included, counts as the same picture, so that the many
        // signals of a load draw once. Whoever changes it otherwise asks for a new one first.
        if (!m_photos.areShown()) {
            m_photos.show(m_layout.of(shots, m_state.extents()), CellStyle::FittedWithCaption,
                          m_hSlider->value());
        }
    });
}
