// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/facts.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "tests/support/heads.h"

const HostHead &gigapanHostHead();

namespace
{

using Spp = StructuredPanoramaProperties;

Head newHead()
{
    Head head;
    useStateOf<UIWPGigapan>(head);
    head.facts = &PanoHead::gigapanFacts();
    head.host = &gigapanHostHead();
    head.name = head.facts->title;
    head.newPage = [] {
        auto *page = new UIWPGigapan(nullptr);
        return HeadPage{ page, page, nullptr };
    };
    head.windowTitle = QStringLiteral("UIWPGigapan");
    head.title = QStringLiteral("Gigapan panorama import");
    head.about = QStringLiteral("allows users to upload, share, and explore brilliant gigapixel+ "
                                "panoramas from around the globe.");
    head.countLabel = "m_lbImage";
    head.countText = QStringLiteral("%1 images in ");
    head.freshTexts
        = { { "m_leImage", QString() }, { "m_lbImage", QStringLiteral("0 images in ") } };
    // Cells of 48 x 48: (5 x 52 + 4) x (4 x 52 + 4) = 264 x 212, at 50 percent.
    head.freshPicture = QSize(132, 106);
    head.order = PhotoOrder::ByTimeUnlessEqual;
    head.options = { { "m_autoStart", &Spp::autoDetection },
                     { "m_cleanLink", &Spp::cleanWrongLinks },
                     { "m_noOptim", &Spp::skipOptimization },
                     { "m_cbIS360", &Spp::gridWrap360 } };
    head.handsOver = { { "", { true, false, false, true, false }, { 0, 0, -1 } },
                       { "m_autoStart", { false, false, false, true, false }, { 0, 0, -1 } },
                       { "m_cleanLink", { true, true, false, true, false }, { 0, 0, -1 } },
                       { "m_noOptim", { true, false, true, true, false }, { 0, 0, -1 } },
                       { "m_cbIS360", { true, false, false, true, true }, { 0, 0, -1 } },
                       { "m_rbStackLinking1", { true, false, false, true, false }, { 0, 1, -1 } },
                       { "m_rbLevelLinking1", { true, false, false, true, false }, { 1, 1, -1 } } };
    head.overlap = 40.0;
    head.choices = { "m_autoStart", "m_cleanLink", "m_noOptim", "m_cbIS360", "m_rbLevelLinking1" };
    head.entries = { { "m_dsbOverlapping", "value", 65.5 }, { "m_hSlider", "value", 33 } };
    head.chosen
        = { { "m_autoStart", "checked", false },       { "m_cleanLink", "checked", true },
            { "m_noOptim", "checked", true },          { "m_cbIS360", "checked", true },
            { "m_rbLevelLinking0", "checked", false }, { "m_rbLevelLinking1", "checked", true },
            { "m_rbStackLinking0", "checked", false }, { "m_rbStackLinking1", "checked", true },
            { "m_dsbOverlapping", "value", 65.5 },     { "m_hSlider", "value", 33 } };
    head.signalsOnRestore = 1;
    head.showsPhotoItself = true;
    return head;
}

} // namespace

const Head &gigapan()
{
    static const Head head = newHead();
    return head;
}
