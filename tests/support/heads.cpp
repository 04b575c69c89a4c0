// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/heads.h"

#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include <QtTest>

namespace
{

using Spp = StructuredPanoramaProperties;

template <typename Page> HeadPage newPageWithShots()
{
    auto *page = new Page(nullptr);
    return { page, page, &page->shots };
}

HeadPage newGigapanPage()
{
    auto *page = new UIWPGigapan(nullptr);
    return { page, page, nullptr };
}

template <typename Page> QByteArray saveState(const HeadPage &page)
{
    return static_cast<const Page *>(page.page)->SaveState();
}

template <typename Page> void restoreState(const HeadPage &page, const QByteArray &state)
{
    static_cast<Page *>(page.page)->RestoreState(state);
}

template <typename Page> void parse(const HeadPage &page, const QString &path)
{
    static_cast<Page *>(page.page)->ParseConfigFile(path);
}

QByteArray xmlRow(int shots)
{
    return RecordXml::row(shots).bytes();
}

QByteArray xmlOf(const QVector<ShotAngles> &shots)
{
    RecordXml record;
    for (const ShotAngles &shot : shots) {
        record.shots.append({ QString::number(shot.yawDegrees, 'g', 12),
                              QString::number(shot.pitchDegrees, 'g', 12) });
    }
    return record.bytes();
}

QByteArray scriptOf(const QVector<ShotAngles> &shots)
{
    QByteArray script;
    for (const ShotAngles &shot : shots) {
        script += "op_h-angle=" + QByteArray::number(static_cast<int>(shot.yawDegrees))
            + "\nop_v-angle=" + QByteArray::number(static_cast<int>(shot.pitchDegrees))
            + "\nop_shoot\n";
    }
    return script;
}

QByteArray fullXml()
{
    RecordXml record = RecordXml::row(3);
    record.focal = QStringLiteral("50");
    record.nbPicts = QStringLiteral("3");
    return record.bytes();
}

/** Nothing in the edits, "N/A" on \p labels. */
std::vector<TextOn> notAvailable(const std::vector<const char *> &labels)
{
    std::vector<TextOn> texts{ { "m_leConfigFile", QString() }, { "m_leImage", QString() } };
    for (const char *label : labels) {
        texts.push_back({ label, QStringLiteral("N/A") });
    }
    return texts;
}

Head newPapywizard()
{
    Head head{};
    head.name = "Papywizard";
    head.newPage = &newPageWithShots<UIWPMerlin>;
    head.saveState = &saveState<UIWPMerlin>;
    head.restoreState = &restoreState<UIWPMerlin>;
    head.recordName = "shoot.xml";
    head.record = &xmlRow;
    head.recordOf = &xmlOf;
    head.parse = &parse<UIWPMerlin>;
    head.fullRecord = fullXml();
    head.recordFilters
        = QStringList{ QStringLiteral("All Files (*.*)"), QStringLiteral("XML files (*.xml)") };
    head.countLabel = "m_lbImageLog";
    head.countText = QStringLiteral("%1");
    head.freshTexts
        = notAvailable({ "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbBracket",
                         "m_lbFocalLength", "m_lbImageLog", "m_lbFocalLengthImage" });
    head.freshTexts.push_back({ "m_lbWarning", QStringLiteral("<p style='color:red'></p>") });
    head.freshDisabled = { "m_pbFLUseXML", "m_pbFLUseImage" };
    head.options = { { "m_autoStart", &Spp::autoDetection },
                     { "m_cleanLink", &Spp::cleanWrongLinks },
                     { "m_noOptim", &Spp::skipOptimization },
                     { "m_GridOptim", &Spp::useRecordedLocation } };
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
    return head;
}

Head newVRDrive2()
{
    Head head = newPapywizard();
    head.name = "VR Drive 2";
    head.newPage = &newPageWithShots<UIWPVRDrive2>;
    head.saveState = &saveState<UIWPVRDrive2>;
    head.restoreState = &restoreState<UIWPVRDrive2>;
    head.parse = &parse<UIWPVRDrive2>;
    head.freshTexts.pop_back(); // the warning is hidden
    head.drawsWithoutPhotos = true;
    head.choices.push_back("m_rbOutputMode2");
    head.chosen[1] = { "m_cleanLink", "checked", false };
    head.chosen.push_back({ "m_rbOutputMode2", "checked", true });
    return head;
}

Head newClauss()
{
    Head head{};
    head.name = "Clauss";
    head.newPage = &newPageWithShots<UIWPClauss>;
    head.saveState = &saveState<UIWPClauss>;
    head.restoreState = &restoreState<UIWPClauss>;
    head.recordName = "script.txt";
    head.record = &scriptRow;
    head.recordOf = &scriptOf;
    head.parse = &parse<UIWPClauss>;
    head.fullRecord = scriptRow(3);
    head.recordFilters = QStringList{ QStringLiteral("All Files (*.*)") };
    head.countLabel = "m_lbImageLog";
    head.countText = QStringLiteral("%1");
    head.freshTexts
        = notAvailable({ "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" });
    head.drawsWithoutPhotos = true;
    head.options = newPapywizard().options;
    head.positionsKnown = true;
    head.rollKnown = false;
    head.overlap = 25.0;
    head.choices = { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim" };
    head.entries = { { "m_hSlider", "value", 33 } };
    head.chosen = { { "m_autoStart", "checked", false },
                    { "m_cleanLink", "checked", true },
                    { "m_noOptim", "checked", true },
                    { "m_GridOptim", "checked", false },
                    { "m_hSlider", "value", 33 } };
    return head;
}

Head newGigapan()
{
    Head head{};
    head.name = "Gigapan";
    head.newPage = &newGigapanPage;
    head.saveState = &saveState<UIWPGigapan>;
    head.restoreState = &restoreState<UIWPGigapan>;
    head.countLabel = "m_lbImage";
    head.countText = QStringLiteral("%1 images in ");
    head.freshTexts
        = { { "m_leImage", QString() }, { "m_lbImage", QStringLiteral("0 images in ") } };
    // Cells of 48 x 48: (5 x 52 + 4) x (4 x 52 + 4) = 264 x 212, at 50 percent.
    head.freshPicture = QSize(132, 106);
    head.options = { { "m_autoStart", &Spp::autoDetection },
                     { "m_cleanLink", &Spp::cleanWrongLinks },
                     { "m_noOptim", &Spp::skipOptimization },
                     { "m_cbIS360", &Spp::gridWrap360 } };
    head.positionsKnown = false;
    head.rollKnown = false;
    head.overlap = 40.0;
    head.choices = { "m_autoStart", "m_cleanLink", "m_noOptim", "m_cbIS360", "m_rbLevelLinking1" };
    head.entries = { { "m_dsbOverlapping", "value", 65.5 }, { "m_hSlider", "value", 33 } };
    head.chosen
        = { { "m_autoStart", "checked", false },       { "m_cleanLink", "checked", true },
            { "m_noOptim", "checked", true },          { "m_cbIS360", "checked", true },
            { "m_rbLevelLinking0", "checked", false }, { "m_rbLevelLinking1", "checked", true },
            { "m_rbStackLinking0", "checked", false }, { "m_rbStackLinking1", "checked", true },
            { "m_dsbOverlapping", "value", 65.5 },     { "m_hSlider", "value", 33 } };
    return head;
}

} // namespace

const Head &papywizard()
{
    static const Head head = newPapywizard();
    return head;
}

const Head &vrDrive2()
{
    static const Head head = newVRDrive2();
    return head;
}

const Head &clauss()
{
    static const Head head = newClauss();
    return head;
}

const Head &gigapan()
{
    static const Head head = newGigapan();
    return head;
}

Heads allHeads()
{
    return { &papywizard(), &gigapan(), &vrDrive2(), &clauss() };
}

Heads headsWithRecords()
{
    return { &papywizard(), &vrDrive2(), &clauss() };
}

void addHeads(const Heads &heads)
{
    QTest::addColumn<const Head *>("head");
    for (const Head *head : heads) {
        QTest::newRow(head->name) << head;
    }
}

void addDialogs()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("button");
    for (const Head *head : headsWithRecords()) {
        QTest::addRow("%s: record", head->name) << head << QByteArray(kSelectRecord);
    }
    for (const Head *head : allHeads()) {
        QTest::addRow("%s: photos", head->name) << head << QByteArray(kSelectPhotos);
    }
}

HeadShoot::HeadShoot(const Head &shotWith)
    : head(shotWith)
    , made(shotWith.newPage())
    , page(made.page)
    , driver(made.page)
{
}

HeadShoot::~HeadShoot()
{
    delete page.data();
}

QString HeadShoot::writeRecord(int shots, const QString &folderName) const
{
    return folder.write(folderName + QString::fromLatin1(head.recordName), head.record(shots));
}

void HeadShoot::loadRecord(int shots) const
{
    if (head.recordName) {
        driver.load(kSelectRecord, { writeRecord(shots) });
    }
}

void HeadShoot::loadPhotos(int count, const FakePhoto &photo) const
{
    driver.load(kSelectPhotos, folder.addPhotos(count, photo));
}

void HeadShoot::loadEverything() const
{
    if (head.recordName) {
        driver.load(kSelectRecord,
                    { folder.write(QString::fromLatin1(head.recordName), head.fullRecord) });
    }
    loadPhotos(3);
}

QString HeadShoot::countOf(int photos) const
{
    return head.countText.arg(photos);
}

QVariant HeadShoot::value(const ValueOf &of) const
{
    return driver.find<QWidget>(of.widget)->property(of.property);
}
