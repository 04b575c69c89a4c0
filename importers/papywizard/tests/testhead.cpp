// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/facts.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "tests/support/heads.h"
#include "tests/support/pageshoot.h"

const HostHead &papywizardHostHead();

namespace
{

using Spp = StructuredPanoramaProperties;

QByteArray xmlOf(const QVector<ShotAngles> &shots)
{
    RecordXml record;
    for (const ShotAngles &shot : shots) {
        record.shots.append({ QString::number(shot.yawDegrees, 'g', 12),
                              QString::number(shot.pitchDegrees, 'g', 12) });
    }
    return record.bytes();
}

QByteArray bracketsOf(int shots, int count)
{
    RecordXml record = RecordXml::row(shots);
    record.nbPicts = QString::number(count);
    return record.bytes();
}

QByteArray fullXml()
{
    RecordXml record = RecordXml::row(3);
    record.focal = QStringLiteral("50");
    record.nbPicts = QStringLiteral("3");
    return record.bytes();
}

const SchemaTexts &schemaTexts()
{
    static const QString scanStart = QStringLiteral("3.40282e+38,-3.40282e+38");
    static const SchemaTexts texts{ red(""), red("Focal Length difference between EXIF and XML"),
                                    scanStart, scanStart, scanStart };
    return texts;
}

Head newHead()
{
    Head head;
    useRecordOf<UIWPMerlin>(head);
    head.facts = &PanoHead::papywizardFacts();
    head.host = &papywizardHostHead();
    head.name = head.facts->title;
    head.recordName = head.host->recordName;
    head.recordOf = &xmlOf;
    head.bracketsOf = &bracketsOf;
    head.enterPath = [](const HeadPage &page, const QString &path) {
        static_cast<UIWPMerlin *>(page.page)->SetConfigFFilename(path);
    };
    head.fullRecord = fullXml();
    head.recordFilters
        = QStringList{ QStringLiteral("All Files (*.*)"), QStringLiteral("XML files (*.xml)") };
    head.schema = &schemaTexts();
    head.windowTitle = QStringLiteral("Papywizard panohead control software");
    head.title = QStringLiteral("Papywizard import");
    head.about = QStringLiteral("is a free project to drive Merlin/Orion panorama heads. The XML "
                                "file format is open and used by a wide range of motorized "
                                "panorama heads.");
    head.countLabel = "m_lbImageLog";
    head.countText = QStringLiteral("%1");
    head.freshTexts
        = notAvailable({ "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbBracket",
                         "m_lbFocalLength", "m_lbImageLog", "m_lbFocalLengthImage" });
    head.freshTexts.push_back({ "m_lbWarning", schemaTexts().noWarning });
    head.freshDisabled = { "m_pbFLUseXML", "m_pbFLUseImage" };
    head.layout = { 8.0, PanoHead::Span::Absolute, PanoHead::Precision::Double };
    head.order = PhotoOrder::ByTime;
    head.options = { { "m_autoStart", &Spp::autoDetection },
                     { "m_cleanLink", &Spp::cleanWrongLinks },
                     { "m_noOptim", &Spp::skipOptimization },
                     { "m_GridOptim", &Spp::useRecordedLocation } };
    head.handsOver = { { "", { true, false, false, true, false }, { 0, 0, -1 } },
                       { "m_autoStart", { false, false, false, true, false }, { 0, 0, -1 } },
                       { "m_cleanLink", { true, true, false, true, false }, { 0, 0, -1 } },
                       { "m_noOptim", { true, false, true, true, false }, { 0, 0, -1 } },
                       { "m_GridOptim", { true, false, false, false, false }, { 0, 0, -1 } },
                       { "m_rbStackLinking1", { true, false, false, true, false }, { 0, 1, -1 } },
                       { "m_rbLevelLinking1", { true, false, false, true, false }, { 1, 1, -1 } } };
    head.positionsKnown = true;
    head.rollKnown = true;
    head.overlap = 80.0;
    head.choices
        = { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim", "m_rbLevelLinking1" };
    head.entries = { { "m_spFocal", "value", 77.125 },
                     { "m_cbLensType", "currentIndex", 1 },
                     { "m_hSlider", "value", 33 } };
    head.chosen = { { "m_autoStart", "checked", false },
                    { "m_cleanLink", "checked", true },
                    { "m_noOptim", "checked", true },
                    { "m_GridOptim", "checked", false },
                    { "m_rbLevelLinking0", "checked", false },
                    { "m_rbLevelLinking1", "checked", true },
                    { "m_rbStackLinking0", "checked", false },
                    { "m_rbStackLinking1", "checked", true },
                    { "m_spFocal", "value", 77.125 },
                    { "m_cbLensType", "currentIndex", 1 },
                    { "m_hSlider", "value", 33 } };
    head.tellingButtons
        = { "m_pInverseCoordinates", "m_pbRot90", "m_pbRot270", "m_pbFLUseXML", "m_pbFLUseImage" };
    head.tellsWhileTyping = true;
    head.rereadsOnCancel = true;
    return head;
}

} // namespace

const Head &papywizard()
{
    static const Head head = newHead();
    return head;
}
