// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/pages/schemashoot.h"
#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"
#include "ui/xui.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QTextDocument>
#include <QToolTip>
#include <QWizard>
#include <QtTest>

/** What the pages for records in the Papywizard schema do alike. */
class TestSchemaPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void recordIsShownInTheLabels_data();
    void recordIsShownInTheLabels();
    void failedParseShowsNoShots_data();
    void failedParseShowsNoShots();
    void failedParseOnAFreshPageShowsNoRange_data() { addHeads(schemaHeads()); }
    void failedParseOnAFreshPageShowsNoRange();
    void pathIsTyped_data() { addHeads(schemaHeads()); }
    void pathIsTyped();
    void typingInTheMiddleKeepsTheCursor_data() { addHeads(schemaHeads()); }
    void typingInTheMiddleKeepsTheCursor();
    void wizardHearsOfATypedPath_data() { addHeads(schemaHeads()); }
    void wizardHearsOfATypedPath();
    void lastRecordOfASelectionWins_data();
    void lastRecordOfASelectionWins();
    void resetForgetsTheRecordsLens_data() { addHeads(schemaHeads()); }
    void resetForgetsTheRecordsLens();
    void invertingTwiceRestoresEverything_data();
    void invertingTwiceRestoresEverything();
    void rotatingAddsQuarterTurnsWithoutWrapping_data();
    void rotatingAddsQuarterTurnsWithoutWrapping();
    void controlKeyOpensTheFolder_data();
    void controlKeyOpensTheFolder();
    void toolTipKeepsTheRecordsText_data() { addHeads(schemaHeads()); }
    void toolTipKeepsTheRecordsText();
    void toolTipHasALineForWhatTheRecordLeavesOut_data() { addHeads(schemaHeads()); }
    void toolTipHasALineForWhatTheRecordLeavesOut();
    void toolTipIsShownAsPlainText_data();
    void toolTipIsShownAsPlainText();
    void trapPipeNoticesAReader();
};

void TestSchemaPages::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestSchemaPages::recordIsShownInTheLabels_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<RecordXml>("record");
    QTest::addColumn<QStringList>("shown"); // count, yaw, pitch, bracketing, focal length
    const QString none = QStringLiteral("N/A");
    const QString one = QStringLiteral("1");
    const QString two = QStringLiteral("2");
    const QString zero = QStringLiteral("0,0");
    const QString scanStart = QStringLiteral("3.40282e+38,-3.40282e+38");
    const auto row = [](const QByteArray &name, const RecordXml &record, const QStringList &shown) {
        addToBoth(name, record, shown);
    };
    const auto shotsRow = [&](const QByteArray &name, const QVector<RecordXml::Shot> &shots,
                              const char *yaw, const char *pitch) {
        RecordXml record;
        record.shots = shots;
        row(name, record,
            { QString::number(shots.size()), QLatin1String(yaw), QLatin1String(pitch), none,
              none });
    };
    const auto angle = [](const char *degrees) { return QString::fromLatin1(degrees); };
    row("three shots and nothing else", RecordXml::row(3),
        { QStringLiteral("3"), QStringLiteral("0,60"), zero, none, none });
    shotsRow("six significant digits",
             { { angle("123.4567"), angle("-0.1234567") },
               { angle("-1234567.0"), angle("12.3456789") } },
             "-1.23457e+06,123.457", "-0.123457,12.3457");
    shotsRow("one shot is both ends", { { angle("-7.5"), angle("33.3") } }, "-7.5,-7.5",
             "33.3,33.3");
    shotsRow("one column", { { angle("0.0"), angle("5.0") }, { angle("0.0"), angle("5.0") } },
             "0,0", "5,5");
    for (const char *number : { "nan", "inf", "-inf", "1e39", "1e999", "north" }) {
        shotsRow(QByteArray("no angle, so 0: ") + number,
                 { { angle(number), angle("20.0") }, { angle("10.0"), angle(number) } }, "0,10",
                 "0,20");
    }
    row("no shots: the scan's start as numbers", RecordXml::row(0),
        { none, scanStart, scanStart, none, none });

    for (const char *nbPicts : { "3", "1", "0", "-3" }) {
        row(QByteArray("bracketing ") + nbPicts, bracketedRow(1, QLatin1String(nbPicts)),
            { one, zero, zero, QLatin1String(nbPicts), none });
    }
    row("bracketing is no number", bracketedRow(1, QStringLiteral("abc")),
        { one, zero, zero, QStringLiteral("0"), none });

    const auto focalRow
        = [&](const QByteArray &name, const char *coef, const char *focal, const char *shown) {
              RecordXml record = rowWithLens(1, QLatin1String(focal));
              record.coef = QString::fromLatin1(coef); // null stays null
              row(name, record, { one, zero, zero, none, QLatin1String(shown) });
          };
    focalRow("focal length without sensor", nullptr, "10.0", "10.00mm");
    focalRow("focal length times coefficient", "1.6", "10.0", "16.00mm");
    focalRow("focal length times coefficient, two decimals", "1.6126", "10.0", "16.13mm");
    focalRow("two decimals, rounded", nullptr, "27.126", "27.13mm");
    for (const char *coef : { "nan", "inf", "1e39", "wide" }) {
        focalRow(QByteArray("no coefficient, so 1: ") + coef, coef, "10.0", "10.00mm");
    }
    for (const char *focal : { "nan", "inf", "1e999", "wide" }) {
        focalRow(QByteArray("no focal length, so 0: ") + focal, nullptr, focal, "0.00mm");
    }
}

void TestSchemaPages::recordIsShownInTheLabels()
{
    QFETCH(const Head *, head);
    QFETCH(RecordXml, record);
    QFETCH(QStringList, shown);
    const SchemaShoot shoot(*head);

    shoot.load(record);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(QStringLiteral("shoot.xml")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), shown[0]);
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), shown[1]);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), shown[2]);
    QCOMPARE(shoot.driver.text("m_lbBracket"), shown[3]);
    QCOMPARE(shoot.driver.text("m_lbFocalLength"), shown[4]);
    QCOMPARE(shoot.isEnabled("m_pbFLUseXML"), shown[4] != QStringLiteral("N/A"));
}

void TestSchemaPages::failedParseShowsNoShots_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("content");
    addToBoth("not XML", QByteArray("These are my photos"));
    addToBoth("cut off", RecordXml::row(3).bytes().chopped(20));
    addToBoth("empty", QByteArray());
    addToBoth("nested too deep", QByteArray("<a>").repeated(300));
    addToBoth("one picture too many",
              "<p><shoot>" + QByteArray("<pict/>").repeated(130'001) + "</shoot></p>");
}

void TestSchemaPages::failedParseShowsNoShots()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, content);
    const SchemaShoot shoot(*head);
    shoot.load(rowWithLens(3, QStringLiteral("24")));
    const auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");
    const QString toolTip = edit->toolTip();
    QVERIFY(!toolTip.isEmpty());

    const QString path = shoot.folder.write(QStringLiteral("bad.xml"), content);
    shoot.driver.load(kSelectRecord, { path });
    {
        const DialogClicker clicker;
        shoot.driver.type("m_leConfigFile", path);
        QVERIFY(clicker.isSettled()); // no box of the page's own
    }

    QCOMPARE(edit->text(), shoot.folder.path(QStringLiteral("bad.xml")));
    QCOMPARE(edit->toolTip(), toolTip);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), head->schema->yawAfterFailure);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), head->schema->pitchAfterFailure);
    QCOMPARE(shoot.driver.text("m_lbFocalLength"), QStringLiteral("N/A"));
    QCOMPARE(shoot.warning(), head->schema->noWarning);
    QVERIFY(shoot.made.shots->isEmpty());
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(!shoot.page->isComplete());
}

void TestSchemaPages::failedParseOnAFreshPageShowsNoRange()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);

    shoot.driver.load(kSelectRecord, { shoot.folder.write(QStringLiteral("bad.xml"), "x") });

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), head->schema->rangeOfNothing);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), head->schema->rangeOfNothing);
}

void TestSchemaPages::pathIsTyped()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    const QString record = shoot.write(RecordXml::row(5));
    {
        const DialogClicker clicker;
        shoot.driver.type("m_leConfigFile", record.chopped(1));
        QCOMPARE(shoot.driver.text("m_leConfigFile"), record.chopped(1));
        QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
        QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), head->schema->rangeOfNothing);
        QTest::keyClick(shoot.driver.find<QLineEdit>("m_leConfigFile"), Qt::Key_L);
        QVERIFY(clicker.messageBoxes().isEmpty());
    }

    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    // It counts as the current file.
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).fileName, QStringLiteral("shoot.xml"));
}

void TestSchemaPages::typingInTheMiddleKeepsTheCursor()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");
    shoot.driver.type("m_leConfigFile", QStringLiteral("/photos/shoot.xml"));
    edit->setCursorPosition(7);

    QTest::keyClicks(edit, QStringLiteral("/may"));

    QCOMPARE(edit->text(), QStringLiteral("/photos/may/shoot.xml"));
    QCOMPARE(edit->cursorPosition(), 11);
}

void TestSchemaPages::wizardHearsOfATypedPath()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    QWizard wizard;
    wizard.addPage(shoot.page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    const QString fitting = shoot.writeRecord(2);
    shoot.loadPhotos(2);
    shoot.loadRecord(2);
    QVERIFY(next->isEnabled());

    shoot.driver.type("m_leConfigFile", shoot.folder.path(QStringLiteral("missing.xml")));
    QVERIFY(!next->isEnabled());
    shoot.driver.type("m_leConfigFile", fitting);
    QVERIFY(next->isEnabled());
}

void TestSchemaPages::lastRecordOfASelectionWins_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QStringList>("chosen");
    QTest::addColumn<QString>("record");
    QTest::addColumn<QStringList>("photos"); // sorted
    const QString one = QStringLiteral("one.xml");
    const QString two = QStringLiteral("TWO.XML");
    const QString three = QStringLiteral("Three.Xml");
    const QString a = QStringLiteral("a.jpg");
    const QString b = QStringLiteral("b.jpg");
    const QString noEnding = QStringLiteral("fakexml");
    addToBoth("upper case", QStringList{ one, two }, two, QStringList());
    addToBoth("lower case", QStringList{ two, one }, one, QStringList());
    addToBoth("mixed case, photos between", QStringList{ one, a, three, noEnding }, three,
              QStringList{ a, noEnding });
    addToBoth("photos between in another order", QStringList{ one, b, two, a }, two,
              QStringList{ a, b });
    addToBoth("selection order, not the alphabet", QStringList{ three, two, one }, one,
              QStringList());
}

void TestSchemaPages::lastRecordOfASelectionWins()
{
    QFETCH(const Head *, head);
    QFETCH(QStringList, chosen);
    QFETCH(QString, record);
    QFETCH(QStringList, photos);
    const SchemaShoot shoot(*head);
    QStringList files;
    for (int i = 0; i < chosen.size(); ++i) {
        const bool isRecord = chosen[i].endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
        files.append(isRecord ? shoot.write(RecordXml::row(i + 2), chosen[i])
                              : shoot.folder.addPhoto(chosen[i]));
    }

    shoot.driver.load(kSelectRecord, files);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(record));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ shoot.folder.path(record) });
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QString::number(chosen.indexOf(record) + 2));
    QCOMPARE(namesOf(fakeHost().readFiles()), photos);
    QString listed;
    for (const QString &photo : qAsConst(photos)) {
        listed += QLatin1Char('"') + photo + QLatin1String("\"; ");
    }
    QCOMPARE(shoot.driver.text("m_leImage"), listed);
}

void TestSchemaPages::resetForgetsTheRecordsLens()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    RecordXml record = rowWithLens(3, QStringLiteral("50"), QStringLiteral("fisheye"));
    record.nbPicts = QStringLiteral("3");
    shoot.load(record);
    QCOMPARE(shoot.generator().nbPicts, 3);
    QCOMPARE(shoot.generator().xmlFocal, 50.0);
    QCOMPARE(shoot.generator().xmlLensType, 1);

    shoot.driver.click("m_pbReset");

    QCOMPARE(shoot.generator().nbPicts, -1);
    QCOMPARE(shoot.generator().xmlFocal, -1.0);
    QCOMPARE(shoot.generator().xmlLensType, 0);
}

void TestSchemaPages::invertingTwiceRestoresEverything_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<int>("photos");
    addToBoth("with photos", 4);
    // The Papywizard page takes "no photos" for the picture that it has.
    QTest::newRow("VR Drive 2: without photos") << &vrdrive2() << 0;
}

void TestSchemaPages::invertingTwiceRestoresEverything()
{
    QFETCH(const Head *, head);
    QFETCH(int, photos);
    const SchemaShoot shoot(*head);
    RecordXml record;
    record.shots = { { QStringLiteral("0.0"), QStringLiteral("-30.0") },
                     { QStringLiteral("40.0"), QStringLiteral("0.0") },
                     { QStringLiteral("80.0"), QStringLiteral("12.3") },
                     { QStringLiteral("120.0"), QStringLiteral("60.5") } };
    shoot.load(record);
    if (photos > 0) {
        shoot.loadPhotos(photos);
    }
    const QImage picture = shoot.driver.picture();
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60.5"));

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(*shoot.made.shots), (QVector<float>{ 30.0F, -0.0F, -12.3F, -60.5F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-60.5,30"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,120"));
    QVERIFY(shoot.driver.picture() != picture);

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(*shoot.made.shots), (QVector<float>{ -30.0F, 0.0F, 12.3F, 60.5F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60.5"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,120"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestSchemaPages::rotatingAddsQuarterTurnsWithoutWrapping_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<int>("turns"); // after one to the left
    QTest::addColumn<float>("degrees");
    QTest::addColumn<float>("radians");
    addToBoth("a full turn", 5, 360.0F, 6.283185307F);
    addToBoth("more than a full turn", 6, 450.0F, 7.853981634F); // 2.5 pi
}

void TestSchemaPages::rotatingAddsQuarterTurnsWithoutWrapping()
{
    QFETCH(const Head *, head);
    QFETCH(int, turns);
    QFETCH(float, degrees);
    QFETCH(float, radians);
    const SchemaShoot shoot(*head);
    shoot.loadRecord(2);
    shoot.loadPhotos(2);

    shoot.driver.click("m_pbRot270");
    QCOMPARE(rollsOf(*shoot.made.shots), (QVector<float>{ -90.0F, -90.0F }));
    for (int i = 0; i < turns; ++i) {
        shoot.driver.click("m_pbRot90");
    }
    QCOMPARE(rollsOf(*shoot.made.shots), (QVector<float>{ degrees, degrees }));

    QVERIFY(shoot.page->validatePage());
    QCOMPARE(fakeHost().descriptions.last().roll, (QVector<float>{ radians, radians }));
}

void TestSchemaPages::controlKeyOpensTheFolder_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("folder");
    addToBoth("plain", QStringLiteral("shoot"));
    addToBoth("number sign", QStringLiteral("shoot #1"));
    addToBoth("question mark", QStringLiteral("which?"));
    addToBoth("percent", QStringLiteral("50%41"));
    addToBoth("all URL syntax", QStringLiteral("shoot #1? 50%41"));
    addToBoth("umlauts", QString::fromUtf8("Höhe über Zürich"));
}

void TestSchemaPages::controlKeyOpensTheFolder()
{
    QFETCH(const Head *, head);
    QFETCH(QString, folder);
    const SchemaShoot shoot(*head);
    const QString record = shoot.write(RecordXml::row(1), folder + QLatin1String("/a.xml"));
    const QString photo = shoot.folder.addPhoto(folder + QLatin1String("-photos/a.jpg"));
    fakeHost().lastPath = record;
    const DesktopCatcher desktop;

    // Nothing chosen yet: the folder of the host's last path.
    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);
    QCOMPARE(desktop.urls().size(), 2);
    QCOMPARE(desktop.urls()[0].toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(desktop.urls()[1].toLocalFile(), shoot.folder.path(folder));

    shoot.driver.load(kSelectRecord, { record, photo });
    fakeHost().lastPath.clear();
    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);
    QCOMPARE(desktop.urls().size(), 4);
    QCOMPARE(desktop.urls()[2].toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(desktop.urls()[3].toLocalFile(), shoot.folder.path(folder + QLatin1String("-photos")));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"a.jpg\"; "));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(fakeHost().setLastPaths, QStringList{ record });
}

void TestSchemaPages::toolTipKeepsTheRecordsText()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    RecordXml record = RecordXml::row(1);
    record.title = QStringLiteral("a %2 %1 %3");
    record.gps = QStringLiteral("%1<b>%3</b>");
    record.comment = QStringLiteral("c");

    shoot.load(record);

    QCOMPARE(shoot.driver.find<QLineEdit>("m_leConfigFile")->toolTip(),
             QStringLiteral("a %2 %1 %3\n%1<b>%3</b>\nc"));
}

void TestSchemaPages::toolTipHasALineForWhatTheRecordLeavesOut()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    const auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");

    shoot.driver.load(kSelectRecord,
                      { shoot.folder.write(QStringLiteral("bare.xml"),
                                           "<papywizard><header><general><gps> 1,2 </gps></general>"
                                           "</header><shoot/></papywizard>") });
    QCOMPARE(edit->toolTip(), QStringLiteral("\n1,2\n"));

    shoot.driver.load(
        kSelectRecord,
        { shoot.folder.write(QStringLiteral("barer.xml"), "<papywizard><shoot/></papywizard>") });
    QCOMPARE(edit->toolTip(), QStringLiteral("\n\n"));
}

void TestSchemaPages::toolTipIsShownAsPlainText_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("title"); // PIPE stands for the path of a named pipe
    addToBoth("bold", QStringLiteral("<b>x</b>"));
    addToBoth("ampersand", QStringLiteral("this &lt;that & more"));
    addToBoth("picture from a pipe", QStringLiteral("<img src='PIPE'>"));
    addToBoth("bold and a picture from a pipe", QStringLiteral("<b>x</b> <img src='PIPE'>"));
    addToBoth("picture from a pipe, as URL", QStringLiteral("<img src='file://PIPE'>"));
    addToBoth("20 nested tables", QStringLiteral("<table><tr><td>").repeated(20));
    addToBoth("plain", QStringLiteral("Mont Blanc"));
}

void TestSchemaPages::toolTipIsShownAsPlainText()
{
    QFETCH(const Head *, head);
    QFETCH(QString, title);
    const SchemaShoot shoot(*head);
    const TrapPipe pipe(shoot.folder.path(QStringLiteral("pipe")));
    title.replace(QLatin1String("PIPE"), shoot.folder.path(QStringLiteral("pipe")));
    RecordXml record = RecordXml::row(1);
    record.title = title;
    record.gps = QStringLiteral("g");
    record.comment = QStringLiteral("c");
    shoot.load(record);
    auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");
    QToolTip::hideText();

    QHelpEvent event(QEvent::ToolTip, edit->rect().center(),
                     edit->mapToGlobal(edit->rect().center()));
    QApplication::sendEvent(edit, &event);

    QVERIFY(QToolTip::isVisible());
    QTextDocument shown;
    shown.setHtml(QToolTip::text());
    QCOMPARE(shown.toPlainText(), title + QLatin1String("\ng\nc"));
    QVERIFY(!pipe.wasOpened());
    QToolTip::hideText();
}

void TestSchemaPages::trapPipeNoticesAReader()
{
    const ShootFolder folder;
    const QString path = folder.path(QStringLiteral("pipe"));
    const TrapPipe pipe(path);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));

    QTRY_VERIFY(pipe.wasOpened());
    QCOMPARE(file.readAll(), QByteArray());
}

TEST_CLASS(TestSchemaPages, FakeApplication)
#include "tst_schemapages.moc"
