// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "dialogclicker.h"
#include "foreignhost.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace
{

/** "kind:first-second" of every link. */
QString textOf(const QVector<Contract::Link> &links)
{
    QStringList texts;
    for (const Contract::Link &link : links) {
        texts.append(QStringLiteral("%1:%2-%3")
                         .arg(link.kind)
                         .arg(link.positions.value(0, -1))
                         .arg(link.positions.value(1, -1)));
    }
    return texts.join(QLatin1Char(' '));
}

float radians(double degrees)
{
    return static_cast<float>(degrees * 3.141592653589793 / 180.0);
}

/** What no importer writes arrives as it is described, whatever the head. */
void checkReserved(const Contract::Description &got)
{
    for (const qint32 value : got.reserved10) {
        QCOMPARE(value, 0);
    }
    QCOMPARE(got.reserved11, false);
    QCOMPARE(got.reserved23, -1);
    QCOMPARE(got.reserved25, QString());
    QCOMPARE(got.reserved26, QString());
    QCOMPARE(got.reserved27, false);
}

/** What only heads that sweep a grid write. */
void checkNoGrid(const Contract::Description &got)
{
    QCOMPARE(got.gridMode, 0);
    QCOMPARE(got.gridRows, 0);
    QCOMPARE(got.gridBracketCount, 1);
    QCOMPARE(got.gridWrap360, false);
}

} // namespace

/**
 * The values of the descriptions that the module's own pages hand over, read through a foreign
 * host's declarations.
 */
class TestPluginDescriptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void gridArrivesWithEveryFieldInItsPlace();
    void freshGridArrivesWithItsDefaults();
    void hdrShootArrivesWithEveryFieldInItsPlace_data();
    void hdrShootArrivesWithEveryFieldInItsPlace();
    void scriptedShootArrivesWithEveryFieldInItsPlace();
    void descriptionsOutliveTheModule();

private:
    /** Takes the page of the plug-in \p name. */
    void open(Contract::Module &module, const char *name);
    [[nodiscard]] QString write(const char *name, const QByteArray &content) const;
    /** Makes \p count photos; those of \c m_photos are read when they are chosen. */
    void makePhotos(int count);
    /** Clicks \p button, chooses \p files and waits until all photos are read. */
    void choose(const char *button, const QStringList &files) const;
    /** Next: what the host has got. */
    [[nodiscard]] Contract::Description handedOver() const;
    template <typename Widget> Widget *widget(const char *name) const
    {
        auto *found = m_page->findChild<Widget *>(QString::fromLatin1(name));
        if (found == nullptr) {
            qFatal("The page has no %s", name);
        }
        return found;
    }
    void click(const char *button) const { widget<QAbstractButton>(button)->click(); }

    std::unique_ptr<QTemporaryDir> m_dir;
    QStringList m_photos;
    QWizardPage *m_page = nullptr;
};

void TestPluginDescriptions::init()
{
    host().forget();
    m_dir = std::make_unique<QTemporaryDir>();
    m_photos.clear();
    m_page = nullptr;
}

void TestPluginDescriptions::open(Contract::Module &module, const char *name)
{
    m_page = Contract::asImport(pluginCalled(module.library(), QString::fromLatin1(name)))
                 ->pages()
                 .first();
}

QString TestPluginDescriptions::write(const char *name, const QByteArray &content) const
{
    QFile file(m_dir->filePath(QString::fromLatin1(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Cannot write %s", name);
    }
    return file.fileName();
}

void TestPluginDescriptions::makePhotos(int count)
{
    for (int i = 0; i < count; ++i) {
        m_photos.append(write(QByteArray("IMG_" + QByteArray::number(10 + i) + ".jpg"), {}));
    }
}

void TestPluginDescriptions::choose(const char *button, const QStringList &files) const
{
    DialogClicker clicker;
    clicker.chooseFiles(files);
    click(button);
    QVERIFY(clicker.isSettled());
    QTRY_VERIFY(m_page->isComplete());
    // The last signal of the run has been queued by now.
    auto *thread = m_page->findChild<QThread *>();
    QVERIFY(thread->wait());
    QCoreApplication::sendPostedEvents(m_page, QEvent::MetaCall);
}

Contract::Description TestPluginDescriptions::handedOver() const
{
    if (!m_page->validatePage() || host().descriptions.isEmpty()) {
        qFatal("Nothing was handed over");
    }
    return host().descriptions.last();
}

void TestPluginDescriptions::gridArrivesWithEveryFieldInItsPlace()
{
    Contract::Module module;
    open(module, "XGigapanImport");
    makePhotos(14);
    choose("m_pbSelectImages", m_photos);
    widget<QSpinBox>("m_sbIgnore")->setValue(2);
    widget<QSpinBox>("m_sbBracket")->setValue(3);
    widget<QSpinBox>("m_sbRow")->setValue(2); // (14 - 2) / 3 / 2 = 2 columns
    click("m_rbMode1");
    click("m_cbIS360");
    widget<QDoubleSpinBox>("m_dsbOverlapping")->setValue(65.5);
    for (const char *button : { "m_rbLevelLinking1", "m_autoStart", "m_cleanLink", "m_noOptim" }) {
        click(button);
    }

    const Contract::Description got = handedOver();

    QCOMPARE(got.gridMode, 1);
    QCOMPARE(got.gridRows, 2);
    QCOMPARE(got.gridBracketCount, 3);
    QCOMPARE(got.gridWrap360, true);
    QCOMPARE(got.overlap, 65.5);
    QCOMPARE(got.groups,
             QVector<QStringList>({ m_photos.mid(2, 3), m_photos.mid(5, 3), m_photos.mid(8, 3),
                                    m_photos.mid(11, 3) }));
    // Rows downward: 0 and 1 above, 2 and 3 below; the last column is linked with the first.
    QCOMPARE(textOf(got.links),
             QStringLiteral("1:0-2 2:0-1 4:2-1 3:0-3 1:1-3 2:1-0 4:3-0 3:1-2 2:2-3 2:3-2"));
    QCOMPARE(got.levelLinking, 1);
    QCOMPARE(got.stackLinking, 1);
    QCOMPARE(got.autoDetection, false);
    QCOMPARE(got.cleanWrongLinks, true);
    QCOMPARE(got.skipOptimization, true);
    QCOMPARE(got.useRecordedLocation, true);
    QCOMPARE(got.positionsKnown, false);
    QCOMPARE(got.rollKnown, false);
    QVERIFY(got.yaw.isEmpty() && got.pitch.isEmpty() && got.roll.isEmpty());
    QCOMPARE(got.focalLength, 0.0F);
    QCOMPARE(got.lens, -1);
    QCOMPARE(got.renderMode, -1);
    checkReserved(got);
}

void TestPluginDescriptions::freshGridArrivesWithItsDefaults()
{
    Contract::Module module;
    open(module, "XGigapanImport");
    makePhotos(1);
    choose("m_pbSelectImages", m_photos);

    const Contract::Description got = handedOver();

    QCOMPARE(got.gridMode, 0);
    QCOMPARE(got.gridRows, 1);
    QCOMPARE(got.gridBracketCount, 1);
    QCOMPARE(got.gridWrap360, false);
    QCOMPARE(got.overlap, 40.0);
    QCOMPARE(got.autoDetection, true);
    QCOMPARE(got.skipOptimization, false);
    QCOMPARE(got.cleanWrongLinks, false);
    QCOMPARE(got.groups, QVector<QStringList>{ m_photos });
    QVERIFY(got.links.isEmpty());
}

void TestPluginDescriptions::hdrShootArrivesWithEveryFieldInItsPlace_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<int>("renderMode");
    QTest::newRow("as it opens") << QByteArray() << 2;
    QTest::newRow("8-bits / 16-bits tonemapped") << QByteArray("m_rbOutputMode1") << 2;
    QTest::newRow("32-bits HDR radiance") << QByteArray("m_rbOutputMode2") << 3;
}

void TestPluginDescriptions::hdrShootArrivesWithEveryFieldInItsPlace()
{
    QFETCH(const QByteArray, output);
    QFETCH(const int, renderMode);
    host().exposures = { 1.0F, -1.0F, 1.0F, -1.0F };
    Contract::Module module;
    open(module, "XVRDrive2Import");
    makePhotos(4);
    const QString record
        = write("shoot.xml",
                "<papywizard><header><camera><bracketing nbPicts=\"2\"/></camera></header><shoot>"
                "<pict id=\"1\" bracket=\"1\"><position yaw=\"0.0\" pitch=\"10.0\"/></pict>"
                "<pict id=\"2\" bracket=\"2\"><position yaw=\"0.0\" pitch=\"10.0\"/></pict>"
                "<pict id=\"3\" bracket=\"1\"><position yaw=\"30.0\" pitch=\"10.0\"/></pict>"
                "<pict id=\"4\" bracket=\"2\"><position yaw=\"30.0\" pitch=\"10.0\"/></pict>"
                "</shoot></papywizard>");
    choose("m_pbSelectConfigFile", QStringList(m_photos) << record);
    click("m_pbRot270");
    if (!output.isEmpty()) {
        click(output.constData());
    }

    const Contract::Description got = handedOver();

    QCOMPARE(got.renderMode, renderMode);
    // The darker of both exposures is the reference of its stack.
    QCOMPARE(got.groups,
             QVector<QStringList>({ { m_photos[1], m_photos[0] }, { m_photos[3], m_photos[2] } }));
    QCOMPARE(textOf(got.links), QStringLiteral("2:0-1"));
    QCOMPARE(got.yaw, QVector<float>({ 0.0F, 0.0F, radians(30.0), radians(30.0) }));
    QCOMPARE(got.pitch, QVector<float>(4, radians(10.0)));
    QCOMPARE(got.roll, QVector<float>(4, radians(-90.0)));
    QCOMPARE(got.positionsKnown, true);
    QCOMPARE(got.rollKnown, true);
    QCOMPARE(got.focalLength, 35.0F);
    QCOMPARE(got.lens, 0);
    QCOMPARE(got.autoDetection, true);
    QCOMPARE(got.stackLinking, 0);
    QCOMPARE(got.levelLinking, 0);
    QCOMPARE(got.useRecordedLocation, true);
    QCOMPARE(got.skipOptimization, false);
    QCOMPARE(got.cleanWrongLinks, true);
    QCOMPARE(got.overlap, 80.0);
    checkNoGrid(got);
    checkReserved(got);
}

void TestPluginDescriptions::scriptedShootArrivesWithEveryFieldInItsPlace()
{
    Contract::Module module;
    open(module, "XClaussImport");
    makePhotos(3);
    const QString script = write("script.txt",
                                 "op_h-angle=-90\nop_v-angle=-15\nop_shoot\nop_h-angle=-60\n"
                                 "op_shoot\nop_h-angle=90\nop_v-angle=45\nop_shoot\n");
    choose("m_pbSelectConfigFile", QStringList(m_photos) << script);

    const Contract::Description got = handedOver();

    QCOMPARE(got.groups,
             QVector<QStringList>({ { m_photos[0] }, { m_photos[1] }, { m_photos[2] } }));
    // atan(43.2666 / 70) = 0.5537 at 35 mm; 0.7 of less than 30 degrees is below 0.3666.
    QCOMPARE(textOf(got.links), QStringLiteral("0:0-1"));
    QCOMPARE(got.yaw, QVector<float>({ radians(-90.0), radians(-60.0), radians(90.0) }));
    QCOMPARE(got.pitch, QVector<float>({ radians(-15.0), radians(-15.0), radians(45.0) }));
    QVERIFY(got.roll.isEmpty());
    QCOMPARE(got.positionsKnown, true);
    QCOMPARE(got.rollKnown, false);
    QCOMPARE(got.focalLength, 0.0F);
    QCOMPARE(got.lens, -1);
    QCOMPARE(got.autoDetection, true);
    QCOMPARE(got.stackLinking, 0);
    QCOMPARE(got.levelLinking, 0);
    QCOMPARE(got.useRecordedLocation, true); // the box is checked on a fresh page
    QCOMPARE(got.skipOptimization, false);
    QCOMPARE(got.cleanWrongLinks, false);
    QCOMPARE(got.overlap, 25.0);
    QCOMPARE(got.renderMode, -1);
    checkNoGrid(got);
    checkReserved(got);
}

void TestPluginDescriptions::descriptionsOutliveTheModule()
{
    {
        Contract::Module module;
        open(module, "XGigapanImport");
        makePhotos(4);
        choose("m_pbSelectImages", m_photos);
        (void)handedOver();
    }
    QVERIFY(!Contract::isMapped());

    const Contract::Description got = host().descriptions.first();
    QCOMPARE(got.groups.size(), 4);
    QCOMPARE(got.groups.first(), QStringList{ m_photos.first() });
    QCOMPARE(textOf(got.links), QStringLiteral("1:0-1 2:0-2 4:1-2 3:0-3 1:2-3 2:1-3"));
}

TEST_CLASS(TestPluginDescriptions, Host)
#include "tst_plugin_descriptions.moc"
