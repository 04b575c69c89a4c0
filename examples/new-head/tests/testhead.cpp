// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/csv/facts.h"
#include "importers/csv/uiwpcsv.h"
#include "tests/support/heads.h"

const HostHead &csvHostHead();

namespace
{

using Spp = StructuredPanoramaProperties;

Head newHead()
{
    Head head;
    useRecordOf<UIWPCsv>(head);
    head.facts = &PanoHead::csvFacts();
    head.host = &csvHostHead();
    head.name = head.facts->title;
    head.recordName = head.host->recordName;
    head.recordOf = head.host->record;
    head.enterPath = [](const HeadPage &page, const QString &path) {
        auto *csv = static_cast<UIWPCsv *>(page.page);
        csv->m_leConfigFile->setText(path);
        csv->SetConfigFFilename();
    };
    head.fullRecord = head.record(3);
    head.recordFilters = QStringList{ QStringLiteral("All Files (*.*)") };
    head.saysUnreadable = true;
    head.windowTitle = QStringLiteral("CSV list");
    head.title = QStringLiteral("CSV list import");
    head.about = QStringLiteral("names every photo with its yaw and pitch.");
    head.logo = QStringLiteral(":/7A21C94E-5B20-2020-2020-3C5F0E8A41D6/Resources/Csv.png");
    head.countLabel = "m_lbImageLog";
    head.countText = QStringLiteral("%1");
    head.freshTexts
        = notAvailable({ "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" });
    head.drawsWithoutPhotos = true;
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
                       { "m_GridOptim", { true, false, false, false, false }, { 0, 0, -1 } } };
    head.positionsKnown = true;
    head.overlap = 25.0;
    head.choices = { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim" };
    head.entries = { { "m_hSlider", "value", 33 } };
    head.chosen = { { "m_autoStart", "checked", false },
                    { "m_cleanLink", "checked", true },
                    { "m_noOptim", "checked", true },
                    { "m_GridOptim", "checked", false },
                    { "m_hSlider", "value", 33 } };
    head.tellingButtons = { "m_pInverseCoordinates" };
    head.signalsOnRestore = 1;
    head.keepsDialogOrder = true;
    head.showsPhotoItself = true;
    return head;
}

} // namespace

const Head &csv()
{
    static const Head head = newHead();
    return head;
}
