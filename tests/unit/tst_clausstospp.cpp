// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/clausstospp.h"

#include "tests/support/testprogram.h"
#include "tests/unit/plainimage.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

static_assert(std::is_base_of_v<StructuredPanoramaProperties, ClaussToSPP>);
static_assert(!std::is_polymorphic_v<ClaussToSPP>);

namespace
{

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

/** A photo as its position and its lens say. */
struct View {
    float yaw; ///< degrees
    float pitch; ///< degrees
    float focalMm;
};

using Views = QVector<View>;

ClaussToSPP generated(const Views &views)
{
    ClaussToSPP generator;
    QStringList files;
    std::vector<std::unique_ptr<PlainImage>> photos;
    QList<XIImageDef *> images;
    for (int i = 0; i < views.size(); ++i) {
        ShootData shot;
        shot.yaw = views.at(i).yaw;
        shot.pitch = views.at(i).pitch;
        generator.shots.append(shot);
        files.append(QStringLiteral("/%1.jpg").arg(i));
        photos.push_back(std::make_unique<PlainImage>(views.at(i).focalMm, 0));
        images.append(photos.back().get());
    }
    generator.generateSPP(files, images);
    return generator;
}

/** "0-1 0-2 1-2"; a link of another kind shows as "?". */
QString linksOf(const ClaussToSPP &generator)
{
    QStringList links;
    for (const AuthorizedLink &link : generator.authorizedLinks) {
        links.append(link.linkType == 0 && link.indices.size() == 2
                         ? QStringLiteral("%1-%2").arg(link.indices.at(0)).arg(link.indices.at(1))
                         : QStringLiteral("?"));
    }
    return links.join(QLatin1Char(' '));
}

/** Every pair, word by word, in double where the text says nothing else. */
QString plainLinks(const Views &views)
{
    struct Direction {
        double x;
        double y;
        double z;
    };
    const auto directionOf = [](const View &view) {
        const float yaw = view.yaw * 3.1415927F / 180.0F;
        const float pitch = view.pitch * 3.1415927F / 180.0F;
        const double y = static_cast<double>(yaw);
        const double p = static_cast<double>(pitch);
        return Direction{ std::sin(y) * std::cos(p), std::cos(y) * std::cos(p), -std::sin(p) };
    };
    const auto thresholdOf = [](const View &view) {
        return static_cast<float>(
            std::atan(43.266615305567875 / (2.0 * static_cast<double>(view.focalMm))));
    };
    QStringList links;
    for (int i = 0; i < views.size(); ++i) {
        for (int j = i + 1; j < views.size(); ++j) {
            const Direction a = directionOf(views.at(i));
            const Direction b = directionOf(views.at(j));
            const double cosine = a.x * b.x + a.y * b.y + a.z * b.z;
            const double d = std::acos(std::max(-1.0, std::min(1.0, cosine)));
            const double reduced = static_cast<double>(0.7F) * d;
            if (reduced < static_cast<double>(thresholdOf(views.at(i)))
                || reduced < static_cast<double>(thresholdOf(views.at(j)))) {
                links.append(QStringLiteral("%1-%2").arg(i).arg(j));
            }
        }
    }
    return links.join(QLatin1Char(' '));
}

} // namespace

Q_DECLARE_METATYPE(Views)

/** The description made from a script and photos. */
class TestClaussToSPP : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newGeneratorHasItsDefaults();

    void parseReadsAFile();
    void parseStartsAnew();
    void badNumberKeepsThePositions();
    void unreadableFileLeavesNoPositions_data();
    void unreadableFileLeavesNoPositions();

    void everyFileIsAGroup();
    void anglesAreInRadians();
    void otherFieldsStay();
    void secondCallAppends();

    void closePhotosAreLinked_data();
    void closePhotosAreLinked();
    void identicalDirectionsAlwaysLink_data();
    void identicalDirectionsAlwaysLink();
    void limitIsWhereTheArithmeticSays();
    void linksAreThoseOfThePlainLoop_data();
    void linksAreThoseOfThePlainLoop();

    void unequalNumbersDoNoHarm_data();
    void unequalNumbersDoNoHarm();
    void anglesThatAreNotFiniteDoNoHarm();
};

void TestClaussToSPP::newGeneratorHasItsDefaults()
{
    const ClaussToSPP generator;
    QVERIFY(generator.positionsKnown);
    QVERIFY(!generator.rollKnown);
    QVERIFY(!generator.autoDetection);
    QVERIFY(!generator.useRecordedLocation);
    QCOMPARE(generator.overlap, 25.0);
    QCOMPARE(generator.lensModel, LensModel::NotChosen);
    QVERIFY(generator.shots.isEmpty());
    QVERIFY(generator.imageGroups.isEmpty());
}

namespace
{

/** Writes \p content to a file of the folder and answers its path. */
QString written(const QTemporaryDir &folder, const QByteArray &content)
{
    QFile file(folder.filePath(QStringLiteral("script.txt")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Cannot write the test's script");
    }
    return file.fileName();
}

} // namespace

void TestClaussToSPP::parseReadsAFile()
{
    const QTemporaryDir folder;
    ClaussToSPP generator;

    QVERIFY(generator.parse(written(folder, "op_h-angle=30\r\nop_v-angle=-15\r\nop_shoot\r\n")));

    QCOMPARE(generator.shots.size(), 1);
    QCOMPARE(generator.shots.first().yaw, 30.0F);
    QCOMPARE(generator.shots.first().pitch, -15.0F);
    QVERIFY(generator.parse(written(folder, "")));
    QVERIFY(generator.shots.isEmpty());
}

void TestClaussToSPP::parseStartsAnew()
{
    const QTemporaryDir folder;
    ClaussToSPP generator;
    QVERIFY(generator.parse(written(folder, "op_h-angle=30\nop_shoot\nop_shoot\n")));

    QVERIFY(generator.parse(written(folder, "op_shoot\n")));

    QCOMPARE(generator.shots.size(), 1);
    QCOMPARE(generator.shots.first().yaw, 0.0F);
    QCOMPARE(generator.shots.first().id, 0);
}

void TestClaussToSPP::badNumberKeepsThePositions()
{
    const QTemporaryDir folder;
    ClaussToSPP generator;

    QVERIFY(!generator.parse(written(folder, "op_shoot\nop_h-angle=abc\nop_shoot\n")));

    QCOMPARE(generator.shots.size(), 2);
}

void TestClaussToSPP::unreadableFileLeavesNoPositions_data()
{
    QTest::addColumn<QString>("path"); // FOLDER stands for an existing folder
    QTest::newRow("missing") << QStringLiteral("FOLDER/missing.txt");
    QTest::newRow("a folder") << QStringLiteral("FOLDER");
    QTest::newRow("no path") << QString();
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    QTest::newRow("empty device") << QStringLiteral("/dev/null");
}

void TestClaussToSPP::unreadableFileLeavesNoPositions()
{
    QFETCH(QString, path);
    const QTemporaryDir folder;
    ClaussToSPP generator;
    QVERIFY(generator.parse(written(folder, "op_shoot\n")));

    QVERIFY(!generator.parse(path.replace(QLatin1String("FOLDER"), folder.path())));

    QVERIFY(generator.shots.isEmpty());
}

void TestClaussToSPP::everyFileIsAGroup()
{
    const ClaussToSPP generator = generated({ { 0, 0, 24 }, { 30, 0, 24 }, { 60, 0, 24 } });

    QCOMPARE(generator.imageGroups,
             (QVector<QStringList>{ { QStringLiteral("/0.jpg") },
                                    { QStringLiteral("/1.jpg") },
                                    { QStringLiteral("/2.jpg") } }));
}

void TestClaussToSPP::anglesAreInRadians()
{
    const ClaussToSPP generator = generated({ { 180, -90, 24 }, { -30, 45, 24 }, { 720, 0, 24 } });

    // Computed in double: pi, -pi / 6, 4 pi; -pi / 2, pi / 4
    QCOMPARE(generator.yaw, (QVector<float>{ 3.14159265F, -0.523598776F, 12.5663706F }));
    QCOMPARE(generator.pitch, (QVector<float>{ -1.57079633F, 0.785398163F, 0.0F }));
    QVERIFY(generator.roll.isEmpty());
}

void TestClaussToSPP::otherFieldsStay()
{
    const ClaussToSPP fresh;
    const ClaussToSPP generator = generated({ { 0, 0, 24 }, { 30, 0, 35 } });

    QCOMPARE(generator.focalLength, 0.0F);
    QCOMPARE(generator.lensModel, LensModel::NotChosen);
    QCOMPARE(generator.positionsKnown, fresh.positionsKnown);
    QCOMPARE(generator.rollKnown, fresh.rollKnown);
    QCOMPARE(generator.overlap, fresh.overlap);
    QCOMPARE(generator.autoDetection, fresh.autoDetection);
    QCOMPARE(generator.renderMode, fresh.renderMode);
    QCOMPARE(generator.levelLinking, fresh.levelLinking);
    QCOMPARE(generator.stackLinking, fresh.stackLinking);
    QCOMPARE(generator.shots.size(), 2);
}

void TestClaussToSPP::secondCallAppends()
{
    ClaussToSPP generator;
    generator.shots.resize(2);
    QStringList files{ QStringLiteral("/a.jpg"), QStringLiteral("/b.jpg") };
    PlainImage a(24.0F, 0);
    PlainImage b(24.0F, 0);

    generator.generateSPP(files, { &a, &b });
    generator.generateSPP(files, { &a, &b });

    QCOMPARE(generator.imageGroups.size(), 4);
    QCOMPARE(generator.yaw.size(), 4);
    QCOMPARE(generator.pitch.size(), 4);
    QCOMPARE(linksOf(generator), QStringLiteral("0-1 0-1"));
}

void TestClaussToSPP::closePhotosAreLinked_data()
{
    QTest::addColumn<Views>("views");
    QTest::addColumn<QString>("links");
    const auto row = [](const char *name, const Views &views, const char *links) {
        QTest::newRow(name) << views << QString::fromLatin1(links);
    };
    row("no photo", {}, "");
    row("one photo", { { 0, 0, 24 } }, "");
    // atan(43.2666 / 48) = 0.7338; 0.7 x 30 degrees = 0.3665, 0.7 x 90 degrees = 1.0996
    row("30 degrees at 24 mm", { { 0, 0, 24 }, { 30, 0, 24 } }, "0-1");
    row("90 degrees at 24 mm", { { 0, 0, 24 }, { 90, 0, 24 } }, "");
    row("order of the pairs", { { 0, 0, 24 }, { 20, 0, 24 }, { 40, 0, 24 }, { 60, 0, 24 } },
        "0-1 0-2 0-3 1-2 1-3 2-3"); // 0.7 x 60 degrees = 0.7330
    // atan(43.2666 / 400) = 0.1077: at 200 mm 8.8 degrees apart and no more
    row("narrow lenses", { { 0, 0, 200 }, { 30, 0, 200 } }, "");
    row("the first photo's lens is wide", { { 0, 0, 24 }, { 30, 0, 200 } }, "0-1");
    row("the second photo's lens is wide", { { 0, 0, 200 }, { 30, 0, 24 } }, "0-1");
    row("a wide one among narrow ones", { { 0, 0, 200 }, { 30, 0, 24 }, { 60, 0, 200 } },
        "0-1 1-2");
    row("across the full turn", { { 350, 0, 24 }, { 10, 0, 24 } }, "0-1");
    row("turns are counted together", { { 0, 0, 24 }, { 720, 0, 24 } }, "0-1");
    row("negative angles", { { -10, 0, 24 }, { 350, 0, 24 }, { 170, 0, 24 } }, "0-1");
    row("pitch alone", { { 0, -30, 24 }, { 0, 30, 24 }, { 0, 31, 24 } }, "0-1 1-2");
    row("poles: yaw does not matter", { { 0, 90, 24 }, { 180, 90, 24 }, { 0, -90, 24 } }, "0-1");
    row("both poles at once", { { 0, 90, 24 }, { 0, -90, 24 } }, "");
    // Focal length 0: half the sphere in every direction, pi / 2 / 0.7 = 128.6 degrees
    row("no focal length: 128 degrees", { { 0, 0, 0 }, { 128, 0, 0 } }, "0-1");
    row("no focal length: 129 degrees", { { 0, 0, 0 }, { 129, 0, 0 } }, "");
    row("no focal length on one side", { { 0, 0, 200 }, { 128, 0, 0 } }, "0-1");
    row("negative focal length", { { 0, 0, -24 }, { 1, 0, -24 } }, "");
    row("focal length is not a number", { { 0, 0, kNaN }, { 1, 0, kNaN } }, "");
    row("the other photo knows", { { 0, 0, kNaN }, { 1, 0, 24 } }, "0-1");
    row("endless focal length", { { 0, 0, kInfinity }, { 1, 0, kInfinity } }, "");
}

void TestClaussToSPP::closePhotosAreLinked()
{
    QFETCH(Views, views);
    QFETCH(QString, links);
    QCOMPARE(linksOf(generated(views)), links);
    QCOMPARE(plainLinks(views), links);
}

void TestClaussToSPP::identicalDirectionsAlwaysLink_data()
{
    QTest::addColumn<float>("focalMm");
    for (const float focalMm : { 8.0F, 24.0F, 600.0F, 100'000.0F, 1e8F }) {
        QTest::addRow("%g mm", static_cast<double>(focalMm)) << focalMm;
    }
}

void TestClaussToSPP::identicalDirectionsAlwaysLink()
{
    QFETCH(float, focalMm);
    // Rounding takes the cosine of some directions with themselves above or below 1. Below it, the
    // angle is about 2e-8 and a lens that sees less would not link: none in use does.
    for (int yaw = -180; yaw <= 180; yaw += 7) {
        for (int pitch = -90; pitch <= 90; pitch += 5) {
            const View view{ static_cast<float>(yaw), static_cast<float>(pitch), focalMm };
            QCOMPARE(linksOf(generated({ view, view, view })), QStringLiteral("0-1 0-2 1-2"));
        }
    }
}

void TestClaussToSPP::limitIsWhereTheArithmeticSays()
{
    // 0.7338 / 0.7 = 1.0483 rad = 60.06 degrees at 24 mm.
    int linked = 0;
    for (int i = 0; i <= 2000; ++i) {
        const Views views{ { 0, 0, 24 }, { 60.0F + static_cast<float>(i) * 1e-4F, 0, 24 } };
        QCOMPARE(linksOf(generated(views)), plainLinks(views));
        linked += generated(views).authorizedLinks.size();
    }
    QVERIFY2(linked > 100 && linked < 1900, qPrintable(QString::number(linked)));
}

void TestClaussToSPP::linksAreThoseOfThePlainLoop_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("rounds");
    QTest::addColumn<bool>("wholeDegrees");
    QTest::newRow("few, whole degrees") << 12 << 300 << true;
    QTest::newRow("few, anywhere") << 12 << 300 << false;
    QTest::newRow("many, whole degrees") << 400 << 4 << true;
    QTest::newRow("many, anywhere") << 400 << 4 << false;
}

void TestClaussToSPP::linksAreThoseOfThePlainLoop()
{
    QFETCH(int, count);
    QFETCH(int, rounds);
    QFETCH(bool, wholeDegrees);
    QRandomGenerator random(62);
    const QVector<float> lenses{ 0.0F, 8.0F, 24.0F, 35.0F, 50.0F, 200.0F, 600.0F, -1.0F, kNaN };
    int linked = 0;
    for (int round = 0; round < rounds; ++round) {
        Views views;
        for (int i = 0; i < count; ++i) {
            View view{ wholeDegrees ? static_cast<float>(random.bounded(-36, 37) * 10)
                                    : static_cast<float>(random.generateDouble() * 720.0 - 360.0),
                       wholeDegrees ? static_cast<float>(random.bounded(-9, 10) * 10)
                                    : static_cast<float>(random.generateDouble() * 180.0 - 90.0),
                       lenses.at(random.bounded(lenses.size())) };
            if (i > 0 && random.bounded(8) == 0) { // a bracket repeats the direction
                view.yaw = views.last().yaw;
                view.pitch = views.last().pitch;
            }
            views.append(view);
        }
        const ClaussToSPP generator = generated(views);
        QCOMPARE(linksOf(generator), plainLinks(views));
        linked += generator.authorizedLinks.size();
    }
    QVERIFY(linked > 0);
}

void TestClaussToSPP::unequalNumbersDoNoHarm_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("shots");
    QTest::addColumn<int>("images");
    QTest::addColumn<QString>("links"); // among those of which all three exist
    QTest::newRow("fewer positions") << 3 << 2 << 3 << QStringLiteral("0-1");
    QTest::newRow("fewer images") << 3 << 3 << 2 << QStringLiteral("0-1");
    QTest::newRow("fewer files") << 2 << 3 << 3 << QStringLiteral("0-1");
    QTest::newRow("no positions") << 3 << 0 << 3 << QString();
    QTest::newRow("no images") << 3 << 3 << 0 << QString();
    QTest::newRow("nothing") << 0 << 0 << 0 << QString();
}

void TestClaussToSPP::unequalNumbersDoNoHarm()
{
    QFETCH(int, files);
    QFETCH(int, shots);
    QFETCH(int, images);
    QFETCH(QString, links);
    ClaussToSPP generator;
    generator.shots.resize(shots);
    QStringList names;
    for (int i = 0; i < files; ++i) {
        names.append(QStringLiteral("/a.jpg"));
    }
    PlainImage photo(24.0F, 0);
    QList<XIImageDef *> photos;
    for (int i = 0; i < images; ++i) {
        photos.append(&photo);
    }

    generator.generateSPP(names, photos);

    QCOMPARE(generator.imageGroups.size(), files);
    QCOMPARE(generator.yaw.size(), shots);
    QCOMPARE(generator.pitch.size(), shots);
    QCOMPARE(linksOf(generator), links);
}

void TestClaussToSPP::anglesThatAreNotFiniteDoNoHarm()
{
    const ClaussToSPP generator
        = generated({ { kNaN, 0, 24 }, { 0, kInfinity, 24 }, { 0, 0, 24 }, { 10, 0, 24 } });

    QCOMPARE(generator.imageGroups.size(), 4);
    QCOMPARE(generator.yaw.size(), 4);
    QCOMPARE(linksOf(generator), QStringLiteral("2-3"));
}

TEST_CLASS(TestClaussToSPP, QCoreApplication)
#include "tst_clausstospp.moc"
