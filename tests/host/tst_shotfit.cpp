// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/photoaliases.h"
#include "host/import/shotfit.h"
#include "host/model/panorama.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

namespace
{

constexpr float kDegree = static_cast<float>(M_PI / 180.0);

/** A shot for each letter: "-" for one without a photo, any other names its photo. */
ShotFit fitOf(const char *letters)
{
    ShotFit fit;
    for (const char letter : QByteArray(letters)) {
        fit.append({ letter == '-' ? QString() : QString(QLatin1Char(letter)), 0, {} });
    }
    return fit;
}

PhotoInfo photo(qint64 timeMs, std::optional<double> exposureValue = {})
{
    PhotoInfo info;
    info.path = QStringLiteral("photo");
    info.timeMs = timeMs;
    info.exposureValue = exposureValue;
    return info;
}

QVector<qint64> timesOf(const QVector<PhotoInfo> &photos)
{
    QVector<qint64> times;
    for (const PhotoInfo &info : photos) {
        times += info.timeMs;
    }
    return times;
}

AuthorizedLink link(qint32 from, qint32 to, qint32 type = 2)
{
    AuthorizedLink made;
    made.linkType = type;
    made.indices = { from, to };
    return made;
}

/** "0-2:1 1-3:2": from, to and type of each link. */
QString textOf(const QVector<AuthorizedLink> &links)
{
    QStringList texts;
    for (const AuthorizedLink &one : links) {
        texts += QStringLiteral("%1-%2:%3")
                     .arg(one.indices.at(0))
                     .arg(one.indices.at(1))
                     .arg(one.linkType);
    }
    return texts.join(QLatin1Char(' '));
}

/** Positions "ab", "cd", ... of photos with one letter each, shot n directed to yaw 10 n, pitch -n
 * and roll n degrees. */
StructuredPanoramaProperties description(std::initializer_list<const char *> positions)
{
    StructuredPanoramaProperties made;
    made.positionsKnown = true;
    made.rollKnown = true;
    for (const char *const letters : positions) {
        QStringList group;
        for (const char letter : QByteArray(letters)) {
            const auto shot = static_cast<float>(made.yaw.size());
            made.yaw += 10.0F * shot * kDegree;
            made.pitch += -shot * kDegree;
            made.roll += shot * kDegree;
            group += QString(QLatin1Char(letter));
        }
        made.imageGroups += group;
    }
    return made;
}

QSet<QString> photos(const char *letters)
{
    QSet<QString> names;
    for (const char letter : QByteArray(letters)) {
        names += QString(QLatin1Char(letter));
    }
    return names;
}

QString textOf(const QVector<QStringList> &groups)
{
    QStringList texts;
    for (const QStringList &group : groups) {
        texts += group.join(QString());
    }
    return texts.join(QLatin1Char(' '));
}

/** Whole degrees, "0 30 -5". */
QString textOf(const QVector<float> &radians)
{
    QStringList texts;
    for (const float angle : radians) {
        texts += QString::number(qRound(angle / kDegree));
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

class ShotFitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosKeepTheOrderOfTheShots();
    void standInsGetTimesInTheirPlaces_data();
    void standInsGetTimesInTheirPlaces();
    void timeGivenIsTaken();
    void standInIsLikeTheNearestPhotoOfItsLevel_data();
    void standInIsLikeTheNearestPhotoOfItsLevel();
    void exposureGivenIsTaken();
    void standInHasWhatTheNearestPhotoHas();
    void positionsWithoutPhotosGo_data();
    void positionsWithoutPhotosGo();
    void stackKeepsThePositionsOwnAngleFirst();
    void oneAnglePerPositionStaysOne();
    void linksFollowThePositions();
    void whatIsNoListOfPhotosStays();
    void tooFewAnglesAreStillTooFew();
    void positionsOfUnequalStacksKeepTheirAngles();
    void missingShotsAreNamed();
    void exposureOfAMissingShotIsNamed();
    void manyMissingShotsShareALine();
    void emptyFileIsMadeForAStandIn();
};

void ShotFitTest::photosKeepTheOrderOfTheShots()
{
    QCOMPARE(photosOf(fitOf("-b-ac-")).join(QString()), QStringLiteral("bac"));
    QVERIFY(photosOf(fitOf("--")).isEmpty());
}

void ShotFitTest::standInsGetTimesInTheirPlaces_data()
{
    QTest::addColumn<QByteArray>("letters");
    QTest::addColumn<QVector<qint64>>("known"); // of the photos, in seconds; 0: not known
    QTest::addColumn<QVector<qint64>>("expected"); // milliseconds
    using Times = QVector<qint64>;
    const auto row
        = [](const char *name, const char *letters, const Times &known, const Times &expected) {
              QTest::newRow(name) << QByteArray(letters) << known << expected;
          };
    row("middle", "a-b", { 100, 110 }, { 100000, 105000, 110000 });
    // a third of nine seconds each
    row("two in the middle", "a--b", { 100, 109 }, { 100000, 103000, 106000, 109000 });
    row("first ones", "--a", { 100 }, { 98000, 99000, 100000 });
    row("last ones", "a--", { 100 }, { 100000, 101000, 102000 });
    row("same second", "a-b", { 100, 100 }, { 100000, 100000, 100000 });
    row("clock was set back", "a-b", { 110, 100 }, { 110000, 105000, 100000 });
    row("no times", "-a-b", { 0, 0 }, { 0, 0, 0, 0 });
    // from shot 0 to shot 3 in six seconds; what a photo does not know, it does not learn
    row("photo without a time", "a-bc", { 100, 0, 106 }, { 100000, 102000, 0, 106000 });
}

void ShotFitTest::standInsGetTimesInTheirPlaces()
{
    QFETCH(QByteArray, letters);
    QFETCH(QVector<qint64>, known);
    QFETCH(QVector<qint64>, expected);
    QVector<PhotoInfo> given;
    for (const qint64 seconds : qAsConst(known)) {
        given += photo(1000 * seconds);
    }
    QCOMPARE(timesOf(withStandIns(fitOf(letters.constData()), given, 1)), expected);
}

void ShotFitTest::timeGivenIsTaken()
{
    ShotFit fit = fitOf("a--b");
    fit[1].timeMs = 101000;
    // The other one stands between the one given and the last photo.
    QCOMPARE(timesOf(withStandIns(fit, { photo(100000), photo(109000) }, 1)),
             (QVector<qint64>{ 100000, 101000, 105000, 109000 }));
}

void ShotFitTest::standInIsLikeTheNearestPhotoOfItsLevel_data()
{
    QTest::addColumn<QByteArray>("letters");
    QTest::addColumn<int>("levels");
    QTest::addColumn<QByteArray>("expected"); // of whose exposure each shot is
    const auto row = [](const char *name, const char *letters, int levels, const char *expected) {
        QTest::newRow(name) << QByteArray(letters) << levels << QByteArray(expected);
    };
    row("nobody missing", "abcd", 1, "abcd");
    row("earlier of two", "a-b", 1, "aab");
    row("nearer of two", "a--b", 1, "aabb");
    row("first", "-ab", 1, "aab");
    row("last", "ab-", 1, "abb");
    row("level of a bracket", "abcd-f", 3, "abcdbf");
    row("level of the first bracket", "a-cdef", 3, "aecdef");
    row("whole position", "abc---def", 3, "abcabcdef");
    row("level that nobody has", "a-b-", 2, "aabb");
}

void ShotFitTest::standInIsLikeTheNearestPhotoOfItsLevel()
{
    QFETCH(QByteArray, letters);
    QFETCH(int, levels);
    QFETCH(QByteArray, expected);
    QVector<PhotoInfo> given;
    for (const char letter : qAsConst(letters)) {
        if (letter != '-') {
            given += photo(0, letter);
        }
    }
    QByteArray found;
    for (const PhotoInfo &info : withStandIns(fitOf(letters.constData()), given, levels)) {
        found += static_cast<char>(*info.exposureValue);
    }
    QCOMPARE(found, expected);
}

void ShotFitTest::exposureGivenIsTaken()
{
    ShotFit fit = fitOf("a-");
    fit[1].exposureValue = 9.5;
    const QVector<PhotoInfo> all = withStandIns(fit, { photo(0, 12.0) }, 1);
    QCOMPARE(*all.at(0).exposureValue, 12.0);
    QCOMPARE(*all.at(1).exposureValue, 9.5);
}

void ShotFitTest::standInHasWhatTheNearestPhotoHas()
{
    PhotoInfo upright;
    upright.path = QStringLiteral("/photos/a.jpg");
    upright.storedSize = QSize(600, 400);
    upright.orientation = 6;
    upright.focal35mm = 28.0;
    upright.lens = LensModel::Fisheye;
    upright.timeMs = 5000;
    upright.timeText = QStringLiteral("1970-01-01T00:00:05");
    const PhotoInfo standIn = withStandIns(fitOf("a-"), { upright }, 1).at(1);
    QCOMPARE(standIn.path, QString());
    QCOMPARE(standIn.storedSize, QSize(600, 400));
    QCOMPARE(standIn.orientation, 6);
    QCOMPARE(standIn.focal35mm, 28.0);
    QCOMPARE(standIn.lens, LensModel::Fisheye);
    QCOMPARE(standIn.timeText, QString());
    QVERIFY(!standIn.exposureValue);
}

void ShotFitTest::positionsWithoutPhotosGo_data()
{
    QTest::addColumn<QByteArray>("missing");
    QTest::addColumn<QString>("groups");
    QTest::addColumn<QString>("yaws");
    const auto row = [](const char *missing, const char *groups, const char *yaws) {
        QTest::newRow(missing) << QByteArray(missing) << QString::fromLatin1(groups)
                               << QString::fromLatin1(yaws);
    };
    // Of "ab cd ef", whose shots have the yaws 0 to 50.
    row("", "ab cd ef", "0 10 20 30 40 50");
    row("ab", "cd ef", "20 30 40 50");
    row("cd", "ab ef", "0 10 40 50");
    row("ef", "ab cd", "0 10 20 30");
    row("abef", "cd", "20 30");
    row("d", "ab c ef", "0 10 20 40 50");
    row("bcdf", "a e", "0 40");
    row("abcdef", "", "");
}

void ShotFitTest::positionsWithoutPhotosGo()
{
    QFETCH(QByteArray, missing);
    QFETCH(QString, groups);
    QFETCH(QString, yaws);
    const auto left
        = withoutStandIns(description({ "ab", "cd", "ef" }), photos(missing.constData()));
    QCOMPARE(textOf(left.imageGroups), groups);
    QCOMPARE(textOf(left.yaw), yaws);
    QCOMPARE(left.pitch.size(), left.yaw.size());
    QCOMPARE(left.roll.size(), left.yaw.size());
}

/** The next photo is the reference level, at the angles of the position. */
void ShotFitTest::stackKeepsThePositionsOwnAngleFirst()
{
    const auto left = withoutStandIns(description({ "abc", "def", "ghi" }), photos("de"));
    QCOMPARE(textOf(left.imageGroups), QStringLiteral("abc f ghi"));
    QCOMPARE(textOf(left.yaw), QStringLiteral("0 10 20 30 60 70 80"));
    QCOMPARE(textOf(left.pitch), QStringLiteral("0 -1 -2 -3 -6 -7 -8"));
    QCOMPARE(textOf(left.roll), QStringLiteral("0 1 2 3 6 7 8"));
}

void ShotFitTest::oneAnglePerPositionStaysOne()
{
    StructuredPanoramaProperties whole = description({ "ab", "cd", "ef" });
    for (QVector<float> *const angles : { &whole.yaw, &whole.pitch, &whole.roll }) {
        angles->resize(3);
    }
    const auto left = withoutStandIns(whole, photos("acd"));
    QCOMPARE(textOf(left.imageGroups), QStringLiteral("b ef"));
    QCOMPARE(textOf(left.yaw), QStringLiteral("0 20"));
    QCOMPARE(textOf(left.pitch), QStringLiteral("0 -2"));
    QCOMPARE(textOf(left.roll), QStringLiteral("0 2"));
}

void ShotFitTest::linksFollowThePositions()
{
    StructuredPanoramaProperties whole = description({ "a", "b", "c", "d", "e" });
    // The last three are to positions that there are not.
    whole.authorizedLinks = { link(0, 1), link(1, 2), link(0, 2, 1), link(2, 4, 3), link(3, 4),
                              link(4, 0), link(4, 5), link(-1, 0),   link(0, 70000) };
    // 0, 2 and 4 become 0, 1 and 2.
    QCOMPARE(textOf(withoutStandIns(whole, photos("bd")).authorizedLinks),
             QStringLiteral("0-1:1 1-2:3 2-0:2"));
}

void ShotFitTest::whatIsNoListOfPhotosStays()
{
    StructuredPanoramaProperties whole = description({ "a", "b" });
    whole.roll.clear();
    whole.rollKnown = false;
    whole.focalLength = 35.0F;
    whole.lensModel = LensModel::Fisheye;
    whole.stackLinking = 1;
    whole.renderMode = 3;
    const auto left = withoutStandIns(whole, photos("a"));
    QVERIFY(left.positionsKnown);
    QVERIFY(!left.rollKnown);
    QVERIFY(left.roll.isEmpty());
    QCOMPARE(left.focalLength, 35.0F);
    QCOMPARE(left.lensModel, LensModel::Fisheye);
    QCOMPARE(left.stackLinking, 1);
    QCOMPARE(left.renderMode, 3);
}

/** Six photos, four angles: what is left must not pass for one angle per position. */
void ShotFitTest::tooFewAnglesAreStillTooFew()
{
    StructuredPanoramaProperties whole = description({ "ab", "cd", "ef" });
    whole.yaw.resize(4);
    QVERIFY(withoutStandIns(whole, photos("a")).yaw.isEmpty());
    QVERIFY(withoutStandIns(whole, photos("abd")).yaw.isEmpty());
}

void ShotFitTest::positionsOfUnequalStacksKeepTheirAngles()
{
    const auto left = withoutStandIns(description({ "abc", "def", "ghi", "jkl" }), photos("afghi"));
    const auto panorama = joinPanorama(left, {}, [](const QString &path) -> Result<PhotoInfo> {
        PhotoInfo info;
        info.path = path;
        return info;
    });
    QVERIFY(panorama);
    const QVector<Position> &positions = panorama.value().positions;
    QCOMPARE(positions.size(), 3);
    QCOMPARE(positions[0].photos.first().path, QStringLiteral("b"));
    QCOMPARE(qRound(positions[0].yawDegrees), 0);
    QCOMPARE(positions[1].photos.first().path, QStringLiteral("d"));
    QCOMPARE(qRound(positions[1].yawDegrees), 30);
    QCOMPARE(positions[2].photos.first().path, QStringLiteral("j"));
    QCOMPARE(qRound(positions[2].yawDegrees), 90);
    QCOMPARE(qRound(positions[2].pitchDegrees), -9);
    QCOMPARE(qRound(positions[2].rollDegrees), 9);
}

void ShotFitTest::missingShotsAreNamed()
{
    StructuredPanoramaProperties whole = description({ "a", "b", "c" });
    whole.yaw[0] = -0.001F * kDegree; // is 0, not -0
    whole.yaw[2] = 287.456F * kDegree;
    QCOMPARE(missingShotWarnings(fitOf("abc"), whole, 1), QStringList());
    QCOMPARE(missingShotWarnings(fitOf("-b-"), whole, 1),
             (QStringList{ QStringLiteral("no photo for shot 1 (yaw 0, pitch 0)"),
                           QStringLiteral("no photo for shot 3 (yaw 287.46, pitch -2)") }));
}

void ShotFitTest::exposureOfAMissingShotIsNamed()
{
    const QStringList second{ QStringLiteral(
        "no photo for shot 5 (yaw 40, pitch -4, exposure 2 of 3)") };
    QCOMPARE(missingShotWarnings(fitOf("abcd-f"), description({ "abc", "def" }), 3), second);
    // One angle per position: that of the second one.
    StructuredPanoramaProperties whole = description({ "abc", "def" });
    whole.yaw = { 0.0F, 90.0F * kDegree };
    whole.pitch = { 0.0F, 0.0F };
    QCOMPARE(
        missingShotWarnings(fitOf("abcd-f"), whole, 3),
        QStringList{ QStringLiteral("no photo for shot 5 (yaw 90, pitch 0, exposure 2 of 3)") });
}

void ShotFitTest::manyMissingShotsShareALine()
{
    const auto whole = description({ "a", "b", "c", "d", "e", "f", "g", "h" });
    QCOMPARE(missingShotWarnings(fitOf("-----fgh"), whole, 1).size(), 5);
    const QStringList six = missingShotWarnings(fitOf("------gh"), whole, 1);
    QCOMPARE(six.size(), 6);
    QCOMPARE(six.at(4), QStringLiteral("no photo for shot 5 (yaw 40, pitch -4)"));
    QCOMPARE(six.at(5), QStringLiteral("no photo for shot 6"));
    QCOMPARE(missingShotWarnings(fitOf("-b------"), whole, 1).last(),
             QStringLiteral("no photo for shots 7 to 8"));
}

void ShotFitTest::emptyFileIsMadeForAStandIn()
{
    const QTemporaryDir folder;
    const QString photo = TestPhotos::writeFile(folder.filePath(QStringLiteral("z.jpg")), "z");
    PhotoAliases made;
    QString error;
    const QStringList links = made.create({ QString(), photo, QString() }, &error);
    QCOMPARE(error, QString());
    QCOMPARE(links.size(), 3);
    QVERIFY(!PhotoAliases::areNeeded(links));
    QCOMPARE(made.truePaths().keys(), QStringList(links.at(1)));
    for (const int standIn : { 0, 2 }) {
        const QFileInfo file(links.at(standIn));
        QVERIFY(file.isFile() && !file.isSymLink());
        QCOMPARE(file.size(), qint64(0));
    }
}

TEST_CLASS(ShotFitTest, QCoreApplication)
#include "tst_shotfit.moc"
