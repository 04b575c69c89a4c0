// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "tests/pages/claussshoot.h"
#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/plainlinks.h"
#include "ui/xui.h"

#include <QtTest>

#include <algorithm>
#include <limits>
#include <random>

/** What only the page for Clauss scripts does. */
class TestUIWPClauss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void scriptIsShownInTheLabels_data();
    void scriptIsShownInTheLabels();
    void invertingTwiceRestoresEverything();
    void invertingAnEmptyPageIsHarmless();

    void nextHandsOverGroupsAnglesAndLinks();
    void linksAreThoseOfThePlainLoop();
    void identicalDirectionsAlwaysLink();
    void linksFollowTheOrderOfReading();

    void lastScriptOfASelectionWins();
    void scriptDialogKeepsThePhotosOrderWanted();
    void photosAloneKeepTheScript();
    void samePhotosFromTheScriptDialogAreNotReadAgain();

    void controlKeyOpensTheScriptsFolder_data();
    void controlKeyOpensTheScriptsFolder();
};

void TestUIWPClauss::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPClauss::scriptIsShownInTheLabels_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QStringList>("shown"); // count, yaw, pitch
    const auto add = [](const char *name, const QByteArray &script, const char *count,
                        const char *yaw, const char *pitch) {
        QTest::newRow(name) << script
                            << QStringList{ QLatin1String(count), QLatin1String(yaw),
                                            QLatin1String(pitch) };
    };
    add("one row", scriptRow(3), "3", "0,60", "0,0");
    add("one shot", "op_h-angle=-7\nop_v-angle=33\nop_shoot\n", "1", "-7,-7", "33,33");
    add("decimals are cut: wanted", "op_h-angle=12.9\nop_shoot\nop_h-angle=-12.9\nop_shoot\n", "2",
        "-12,12", "0,0");
    add("six significant digits",
        "op_h-angle=1234567\nop_v-angle=-100000\nop_shoot\nop_v-angle=1e-7\nop_shoot\n", "2",
        "1.23457e+06,1.23457e+06", "-100000,1e-07");
    add("no shots: the scan's start as numbers", "op_h-angle=30\n", "N/A",
        "3.40282e+38,-3.40282e+38", "3.40282e+38,-3.40282e+38");
    add("empty", "", "N/A", "3.40282e+38,-3.40282e+38", "3.40282e+38,-3.40282e+38");
    add("byte order mark", "\xEF\xBB\xBF" + scriptRow(2), "2", "0,30", "0,0");
    add("CR LF", scriptRow(2).replace("\n", "\r\n"), "2", "0,30", "0,0");
    add("NUL between the lines", scriptRow(2) + '\0' + scriptRow(5), "2", "0,30", "0,0");
    add("NUL first", '\0' + scriptRow(2), "N/A", "3.40282e+38,-3.40282e+38",
        "3.40282e+38,-3.40282e+38");
    add("bad number behind a NUL", scriptRow(2) + '\0' + "\nop_h-angle=x\n", "2", "0,30", "0,0");
    add("invalid UTF-8", "\xC3(\xFF\n" + scriptRow(2), "2", "0,30", "0,0");
    add("commands of another head", "op_speed=fast\n" + scriptRow(2) + "OP_SHOOT\n op_shoot\n", "2",
        "0,30", "0,0");
}

void TestUIWPClauss::scriptIsShownInTheLabels()
{
    QFETCH(QByteArray, script);
    QFETCH(QStringList, shown);
    const ClaussShoot shoot;

    shoot.loadScript(script);

    QCOMPARE(shoot.driver.text(kScript), shoot.folder.path(QStringLiteral("script.txt")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), shown[0]);
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), shown[1]);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), shown[2]);
    QCOMPARE(fakeHost().setLastPaths,
             QStringList{ shoot.folder.path(QStringLiteral("script.txt")) });
}

void TestUIWPClauss::invertingTwiceRestoresEverything()
{
    const ClaussShoot shoot;
    shoot.loadScript("op_v-angle=-30\nop_shoot\nop_h-angle=40\nop_v-angle=60\nop_shoot\n");
    const QImage picture = shoot.driver.picture();
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60"));

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(shoot.page.shots), (QVector<float>{ 30.0F, -60.0F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-60,30"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,40"));
    QVERIFY(shoot.driver.picture() != picture);

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(shoot.page.shots), (QVector<float>{ -30.0F, 60.0F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestUIWPClauss::invertingAnEmptyPageIsHarmless()
{
    const ClaussShoot shoot;
    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), notAvailable());

    shoot.loadScript(QByteArray());
    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPClauss::nextHandsOverGroupsAnglesAndLinks()
{
    ClaussShoot shoot;
    shoot.loadScript("op_v-angle=90\nop_h-angle=180\nop_shoot\nop_v-angle=0\nop_shoot\n"
                     "op_h-angle=150\nop_shoot\n");
    const QStringList photos = shoot.folder.addPhotos(3);
    shoot.driver.load(kSelectPhotos, photos);

    QVERIFY(shoot.page.validatePage());

    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE(handed.imageGroups,
             (QVector<QStringList>{ { photos[0] }, { photos[1] }, { photos[2] } }));
    // 180 degrees = 3.14159265, 150 degrees = 2.61799388, 90 degrees = 1.57079633
    QCOMPARE(handed.yaw, (QVector<float>{ 3.14159265F, 3.14159265F, 2.61799388F }));
    QCOMPARE(handed.pitch, (QVector<float>{ 1.57079633F, 0.0F, 0.0F }));
    QCOMPARE(handed.lensModel, LensModel::NotChosen); // left to the photos
    QCOMPARE(handed.focalLength, 0.0F);
    QVERIFY(handed.roll.isEmpty());
    QCOMPARE(PlainLinks::text(handed.authorizedLinks),
             QStringLiteral("0:1-2")); // 30 degrees at 24 mm; 90 are too many
}

void TestUIWPClauss::linksAreThoseOfThePlainLoop()
{
    std::mt19937 random(63); // seeded: a failure can be repeated
    const auto between = [&random](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    const QVector<float> lenses{
        0.0F, 8.0F, 24.0F, 50.0F, 200.0F, 600.0F, std::numeric_limits<float>::quiet_NaN()
    };
    int linked = 0;
    for (int run = 0; run < 20; ++run) {
        ClaussShoot shoot;
        QByteArray script;
        QStringList files;
        QVector<PanoHead::PhotoDirection> photos;
        for (int i = 0; i < 40; ++i) {
            PanoHead::PhotoDirection photo{ static_cast<float>(10 * between(-18, 54)),
                                            static_cast<float>(10 * between(-9, 9)),
                                            lenses.at(between(0, lenses.size() - 1)) };
            if (i > 0 && between(0, 5) == 0) { // several photos of one position
                photo.yawDegrees = photos.last().yawDegrees;
                photo.pitchDegrees = photos.last().pitchDegrees;
            }
            script += "op_h-angle=" + QByteArray::number(static_cast<int>(photo.yawDegrees))
                + "\nop_v-angle=" + QByteArray::number(static_cast<int>(photo.pitchDegrees))
                + "\nop_shoot\n";
            files.append(
                shoot.folder.addPhoto(QStringLiteral("%1.jpg").arg(i, 2, 10, QLatin1Char('0')),
                                      photoWith(photo.focalMm)));
            photos.append(photo);
        }
        shoot.driver.load(kSelectRecord, files << shoot.writeScript(script));

        QVERIFY(shoot.page.validatePage());

        const QVector<AuthorizedLink> &links = fakeHost().descriptions.last().authorizedLinks;
        QCOMPARE(PlainLinks::difference(links, PlainLinks::close(photos)), QString());
        linked += links.size();
    }
    QVERIFY(linked > 0);
}

void TestUIWPClauss::identicalDirectionsAlwaysLink()
{
    ClaussShoot shoot;
    // Where rounding takes the cosine of a direction with itself above 1.
    shoot.loadScript("op_h-angle=1\nop_v-angle=17\nop_shoot\nop_shoot\nop_shoot\n"
                     "op_h-angle=361\nop_shoot\n");
    shoot.loadPhotos(4, photoWith(600.0F));

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(PlainLinks::text(fakeHost().descriptions.first().authorizedLinks),
             QStringLiteral("0:0-1 0:0-2 0:0-3 0:1-2 0:1-3 0:2-3"));
}

void TestUIWPClauss::linksFollowTheOrderOfReading()
{
    ClaussShoot shoot;
    shoot.loadScript(scriptRow(3));
    // The wide lens belongs to the first photo, although it was taken last.
    FakePhoto wide = photoWith(24.0F);
    wide.shotTime = 9;
    QStringList photos{ shoot.folder.addPhoto(QStringLiteral("a.jpg"), wide) };
    for (const char *name : { "b.jpg", "c.jpg" }) {
        photos.append(shoot.folder.addPhoto(QString::fromLatin1(name), photoWith(200.0F)));
    }
    shoot.driver.load(kSelectPhotos, photos);

    QVERIFY(shoot.page.validatePage());

    // 0 - 60 degrees: 0.7330 is just below 0.7338.
    QCOMPARE(PlainLinks::text(fakeHost().descriptions.first().authorizedLinks),
             QStringLiteral("0:0-1 0:0-2"));
}

void TestUIWPClauss::lastScriptOfASelectionWins()
{
    const ClaussShoot shoot;
    const QString noEnding = shoot.folder.addPhoto(QStringLiteral("notatxt"));

    shoot.driver.load(kSelectRecord,
                      { shoot.writeScript(scriptRow(4), QStringLiteral("z.txt")), noEnding,
                        shoot.writeScript(scriptRow(2), QStringLiteral("a.Txt")) });

    QCOMPARE(shoot.driver.text(kScript), shoot.folder.path(QStringLiteral("a.Txt")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"notatxt\"; "));
}

void TestUIWPClauss::scriptDialogKeepsThePhotosOrderWanted()
{
    const ClaussShoot shoot;
    QStringList files;
    for (const char *name : { "c.jpg", "a.jpg", "B.jpg" }) {
        files.append(shoot.folder.addPhoto(QString::fromLatin1(name)));
    }

    shoot.driver.load(kSelectRecord, files);

    QCOMPARE(fakeHost().readFiles(), files);
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"c.jpg\"; \"a.jpg\"; \"B.jpg\"; "));
}

void TestUIWPClauss::photosAloneKeepTheScript()
{
    const ClaussShoot shoot;
    const QString script = shoot.writeScript(scriptRow(2));
    shoot.driver.load(kSelectRecord, { script });
    shoot.writeScript(scriptRow(4));

    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2));

    QCOMPARE(shoot.driver.text(kScript), script);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2")); // not read again
    QCOMPARE(fakeHost().setLastPaths, (QStringList{ script, script }));
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPClauss::samePhotosFromTheScriptDialogAreNotReadAgain()
{
    const ClaussShoot shoot;
    QStringList photos = shoot.folder.addPhotos(3);
    shoot.driver.load(kSelectRecord, photos);
    shoot.driver.load(kSelectRecord, QStringList(photos) << shoot.writeScript(scriptRow(3)));
    QCOMPARE(fakeHost().readFiles().size(), 3);
    QVERIFY(shoot.page.isComplete());

    // In another order they are another choice.
    std::reverse(photos.begin(), photos.end());
    shoot.driver.load(kSelectRecord, photos);
    QCOMPARE(fakeHost().readFiles().mid(3), photos);
    shoot.loadPhotos(3);
    QCOMPARE(fakeHost().readFiles().size(), 9);
}

void TestUIWPClauss::controlKeyOpensTheScriptsFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("shoot");
    QTest::newRow("URL syntax") << QStringLiteral("shoot #1? 50%41");
    QTest::newRow("umlauts") << QString::fromUtf8("Höhe über Zürich");
}

void TestUIWPClauss::controlKeyOpensTheScriptsFolder()
{
    QFETCH(QString, folder);
    const ClaussShoot shoot;
    const QString script = shoot.writeScript(scriptRow(1), folder + QLatin1String("/a.txt"));
    shoot.driver.load(kSelectRecord, { script });
    const DesktopCatcher desktop;

    shoot.driver.click(kSelectRecord, Qt::ControlModifier);

    QCOMPARE(desktop.urls().size(), 1);
    QCOMPARE(desktop.urls().first().toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(shoot.driver.text(kScript), script);
    QCOMPARE(fakeHost().setLastPaths, QStringList{ script });
}

TEST_CLASS(TestUIWPClauss, FakeApplication)
#include "tst_uiwpclauss.moc"
