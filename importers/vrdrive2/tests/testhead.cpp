// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/facts.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "tests/support/heads.h"
#include "tests/support/pageshoot.h"

const HostHead &vrdrive2HostHead();

namespace
{

// Keeps the ranges of the record before.
const SchemaTexts &schemaTexts()
{
    static const SchemaTexts texts{ QString(), red("Focal length difference between EXIF and XML"),
                                    QStringLiteral("N/A"), QStringLiteral("0,60"),
                                    QStringLiteral("0,0") };
    return texts;
}

Head newHead()
{
    Head head = papywizard();
    useRecordOf<UIWPVRDrive2>(head);
    head.facts = &PanoHead::vrdrive2Facts();
    head.host = &vrdrive2HostHead();
    head.name = head.facts->title;
    head.enterPath = [](const HeadPage &page, const QString &path) {
        static_cast<UIWPVRDrive2 *>(page.page)->SetConfigFFilename(path);
    };
    head.schema = &schemaTexts();
    head.windowTitle = QStringLiteral("VR Drive II import plugin");
    head.title = QStringLiteral("VR Drive 2");
    head.about = QStringLiteral("plug-in enables an automated HDR workflow with all parameters set "
                                "for true light rendering and easy use of Weavix software.");
    head.logo = QStringLiteral(":/7A21C94E-5B20-2020-2020-B662C695C918/Resources/VRDrive2.png");
    head.freshTexts.pop_back(); // the warning is hidden
    head.drawsWithoutPhotos = true;
    head.layout = { 8.0, PanoHead::Span::NegatedSumToo, PanoHead::Precision::Double };
    head.order = PhotoOrder::AsRead;
    // Wrong links are cleaned, unlike on the other pages.
    head.handsOver = { { "", { true, true, false, true, false }, { 0, 0, 2 } },
                       { "m_autoStart", { false, true, false, true, false }, { 0, 0, 2 } },
                       { "m_cleanLink", { true, false, false, true, false }, { 0, 0, 2 } },
                       { "m_noOptim", { true, true, true, true, false }, { 0, 0, 2 } },
                       { "m_GridOptim", { true, true, false, false, false }, { 0, 0, 2 } },
                       { "m_rbStackLinking1", { true, true, false, true, false }, { 0, 1, 2 } },
                       { "m_rbLevelLinking1", { true, true, false, true, false }, { 1, 1, 2 } },
                       { "m_rbOutputMode2", { true, true, false, true, false }, { 0, 0, 3 } } };
    head.choices.push_back("m_rbOutputMode2");
    head.chosen[1] = { "m_cleanLink", "checked", false };
    head.chosen.push_back({ "m_rbOutputMode2", "checked", true });
    head.tellingButtons = { "m_pbFLUseXML", "m_pbFLUseImage" };
    head.rereadsOnCancel = false;
    return head;
}

} // namespace

const Head &vrdrive2()
{
    static const Head head = newHead();
    return head;
}
