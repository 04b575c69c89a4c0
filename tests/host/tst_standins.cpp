// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/importjob.h"
#include "host/model/panoramajson.h"
#include "host/model/ptoproject.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

using namespace PanoHost;

namespace
{

const QDateTime kBegin(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC);

/** A record and one photo for each of its shots, under names that tell nothing of their order. */
struct Shoot {
    QString record;
    QStringList photos; ///< in the order of the shots
    int levels = 1;
};

QByteArray nameOf(int photo)
{
    return QByteArray::number(7919 * (photo + 1) % 1009).rightJustified(4, '0') + ".jpg";
}

/** Two seconds after the one before it; of three levels the last one is the median. Written once.
 */
QString writePhoto(const QString &folder, int shot, int levels)
{
    static const QVector<QByteArray> kSeconds{ "1/400", "1/25", "1/100" };
    QString path
        = QStringLiteral("%1/%2-%3").arg(folder).arg(levels).arg(QString::fromLatin1(nameOf(shot)));
    if (QFile::exists(path)) {
        return path;
    }
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Photo.DateTimeOriginal"]
        = kBegin.addSecs(2LL * shot).toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toLatin1();
    if (levels > 1) {
        exif["Exif.Photo.ExposureTime"] = kSeconds.at(shot % levels);
    }
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(QColor::fromHsv(53 * shot % 360, 200, 250));
    return TestPhotos::writeJpeg(path, picture, exif);
}

/** Rows of \p columns positions, 40 degrees apart; each exposure has angles of its own. */
Shoot writeShoot(const HeadFacts &head, const QString &folder, int columns, int rows, int levels)
{
    Shoot shoot;
    shoot.levels = levels;
    PanoHead::NotedShoot noted;
    noted.bracketCount = levels;
    for (int i = 0; i < columns * rows * levels; ++i) {
        const int position = i / levels;
        const int row = position / columns;
        PanoHead::NotedShot shot;
        shot.yawDegrees = 40.0 * (position % columns) + 0.1 * (i % levels);
        shot.pitchDegrees = 30.0 * row;
        shot.level = i % levels;
        shot.time = kBegin.addSecs(2LL * i);
        noted.shots += shot;
        shoot.photos += writePhoto(folder, i, levels);
    }
    shoot.record = TestPhotos::writeFile(folder + QLatin1Char('/') + QLatin1String(head.record),
                                         head.write(noted));
    return shoot;
}

ImportRequest requestFor(const HeadFacts &head, const Shoot &shoot)
{
    ImportRequest request;
    request.head = &head;
    request.record = shoot.record;
    request.photos = shoot.photos;
    request.order = PhotoOrder::AsGiven;
    request.pluginPath = QStringLiteral(PANOHOST_TEST_LIBRARY);
    return request;
}

ShotFit fitWithout(const Shoot &shoot, const QVector<int> &missing)
{
    ShotFit fit;
    for (int i = 0; i < shoot.photos.size(); ++i) {
        fit.append({ missing.contains(i) ? QString() : shoot.photos.at(i), 0, {} });
    }
    return fit;
}

/** Takes the photos \p gone away from a \p whole panorama, position by position. */
Panorama reduced(const Panorama &whole, const QStringList &gone, int levels)
{
    Panorama left = whole;
    StructuredPanoramaProperties &description = left.description;
    for (int i = left.positions.size() - 1; i >= 0; --i) {
        QVector<PhotoInfo> &photos = left.positions[i].photos;
        for (const QString &path : gone) {
            photos.erase(std::remove_if(photos.begin(), photos.end(),
                                        [&](const PhotoInfo &photo) { return photo.path == path; }),
                         photos.end());
            description.imageGroups[i].removeAll(path);
        }
        const int kept = photos.size();
        for (QVector<float> *angles : { &description.yaw, &description.pitch, &description.roll }) {
            if (!angles->isEmpty()) {
                angles->remove(i * levels + kept, levels - kept);
            }
        }
        if (kept > 0) {
            continue;
        }
        left.positions.removeAt(i);
        description.imageGroups.removeAt(i);
        QVector<AuthorizedLink> &links = description.authorizedLinks;
        links.erase(
            std::remove_if(links.begin(), links.end(),
                           [i](const AuthorizedLink &link) { return link.indices.contains(i); }),
            links.end());
        for (AuthorizedLink &link : links) {
            for (qint32 &index : link.indices) {
                index -= index > i ? 1 : 0;
            }
        }
    }
    return left;
}

/** What differs between two pictures of one size; null: nothing. */
QRect difference(const QImage &one, const QImage &other)
{
    QRect box;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

} // namespace

Q_DECLARE_METATYPE(const PanoHost::HeadFacts *)

class StandInsTest : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void initTestCase();
    void init() { m_said.clear(); }
    void shootWithGapsIsTheWholeOneWithoutThem_data();
    void shootWithGapsIsTheWholeOneWithoutThem();
    void missingShotsAreWarnedOf();
    void standInsKeepTheirPlacesInTheLayout_data();
    void standInsKeepTheirPlacesInTheLayout();
    void referenceLevelIsFoundFromAStandIn();
    void placeOfThePhotosIsRemembered();
    void shootWithoutAnyPhotoIsRefused();
    void fitOfAnotherLengthIsRefused();
    void gridsMayHaveHoles();

private:
    [[nodiscard]] static PanoHostApplication &app() { return *PanoHostApplication::instance(); }
    Panorama import(const ImportRequest &request, QImage *layout = nullptr);
    /** The same, once for each \p name. */
    const Panorama &importOnce(const QString &name, const ImportRequest &request);

    QTemporaryDir m_folder;
    QStringList m_said;
    QHash<QString, Panorama> m_known;
};

void StandInsTest::initTestCase()
{
    app().setSettingsFile(m_folder.filePath(QStringLiteral("s.ini")));
}

Panorama StandInsTest::import(const ImportRequest &request, QImage *layout)
{
    JobWatch watch;
    watch.log = [this](JobWatch::Note note, const QString &text) {
        if (note == JobWatch::Note::Warning) {
            m_said += text;
        }
    };
    return valueOrThrow(importShoot(app(), request, watch, layout));
}

const Panorama &StandInsTest::importOnce(const QString &name, const ImportRequest &request)
{
    if (!m_known.contains(name)) {
        m_known.insert(name, import(request));
    }
    return m_known[name];
}

void StandInsTest::shootWithGapsIsTheWholeOneWithoutThem_data()
{
    QTest::addColumn<const HeadFacts *>("head");
    QTest::addColumn<int>("levels");
    QTest::addColumn<QVector<int>>("missing"); // of six positions
    QTest::addColumn<int>("positions"); // that are left
    QTest::addColumn<double>("exposure"); // that the fit knows of the missing ones; 0: none
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        if (head->isGrid()) {
            continue;
        }
        const auto row = [head](const char *name, int levels, const QVector<int> &missing,
                                int positions, double exposure = 0.0) {
            QTest::addRow("%s: %s", head->title, name)
                << head << levels << missing << positions << exposure;
        };
        row("nobody missing", 1, {}, 6);
        row("first", 1, { 0 }, 5);
        row("middle", 1, { 2 }, 5);
        row("last", 1, { 5 }, 5);
        row("several", 1, { 0, 2, 3, 5 }, 2);
        if (!head->notesBrackets) {
            continue;
        }
        row("whole position", 3, { 6, 7, 8 }, 5);
        row("darkest level", 3, { 9 }, 6);
        row("lightest level", 3, { 13 }, 6);
        row("median level", 3, { 5 }, 6);
        row("level of the first position", 3, { 2 }, 6);
        row("level of the last position", 3, { 17 }, 6);
        row("all sorts", 3, { 0, 4, 5, 9, 10, 11, 17 }, 5);
        // f/8, 1/25 s: log2(64 * 25). No photo tells of it.
        row("lightest level of all positions", 3, { 1, 4, 7, 10, 13, 16 }, 6, 10.64);
    }
}

void StandInsTest::shootWithGapsIsTheWholeOneWithoutThem()
{
    QFETCH(const HeadFacts *, head);
    QFETCH(int, levels);
    QFETCH(QVector<int>, missing);
    QFETCH(int, positions);
    QFETCH(double, exposure);
    const Shoot shoot = writeShoot(*head, m_folder.path(), 3, 2, levels);
    ImportRequest request = requestFor(*head, shoot);
    const Panorama &whole = importOnce(head->name() + QString::number(levels), request);
    QCOMPARE(whole.positions.size(), 6);
    QVERIFY(whole.description.authorizedLinks.size() >= 6);
    QVERIFY(m_said.isEmpty());

    QStringList gone;
    for (const int shot : qAsConst(missing)) {
        gone += shoot.photos.at(shot);
    }
    request.fit = fitWithout(shoot, missing);
    for (FittedShot &shot : *request.fit) {
        shot.exposureValue = exposure > 0.0 ? std::optional(exposure) : std::nullopt;
    }
    request.photos.clear();
    const Panorama left = import(request);
    QCOMPARE(left.positions.size(), positions);
    QCOMPARE(m_said, left.warnings);

    Panorama expected = reduced(whole, gone, levels);
    expected.warnings = left.warnings;
    QCOMPARE(left.description.imageGroups, expected.description.imageGroups);
    QCOMPARE(panoramaToJson(left, m_folder.path()), panoramaToJson(expected, m_folder.path()));
    const auto project = projectOf(left);
    const auto expectedProject = projectOf(expected);
    QVERIFY(project && expectedProject);
    QCOMPARE(project.value().text(m_folder.path()).value(),
             expectedProject.value().text(m_folder.path()).value());
}

void StandInsTest::missingShotsAreWarnedOf()
{
    const HeadFacts &head = headNamed(QStringLiteral("papywizard"));
    const Shoot shoot = writeShoot(head, m_folder.path(), 3, 2, 3);
    ImportRequest request = requestFor(head, shoot);
    request.fit = fitWithout(shoot, { 4, 9 });
    const QStringList expected{
        QStringLiteral("no photo for shot 5 (yaw 40.1, pitch 0, exposure 2 of 3)"),
        QStringLiteral("no photo for shot 10 (yaw 0, pitch 30, exposure 1 of 3)"),
    };
    QCOMPARE(import(request).warnings, expected);
    QCOMPARE(m_said, expected);
}

void StandInsTest::standInsKeepTheirPlacesInTheLayout_data()
{
    QTest::addColumn<const HeadFacts *>("head");
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        if (!head->isGrid()) {
            QTest::newRow(head->title) << head;
        }
    }
}

/** One of five photos in a row turns grey; the others stay where they are. */
void StandInsTest::standInsKeepTheirPlacesInTheLayout()
{
    QFETCH(const HeadFacts *, head);
    const Shoot shoot = writeShoot(*head, m_folder.path(), 5, 1, 1);
    ImportRequest request = requestFor(*head, shoot);
    QImage whole;
    (void)import(request, &whole);
    QVERIFY(!whole.isNull());
    for (const int missing : { 0, 2, 4 }) {
        request.fit = fitWithout(shoot, { missing });
        QImage left;
        (void)import(request, &left);
        QCOMPARE(left.size(), whole.size());
        const QRect changed = difference(whole, left);
        QVERIFY(!changed.isEmpty());
        QVERIFY2(3 * changed.width() < whole.width(),
                 qPrintable(QStringLiteral("%1 of %2").arg(changed.width()).arg(whole.width())));
        const double middle = (changed.center().x() + 0.5) / whole.width();
        QVERIFY(qAbs(middle - (missing + 0.5) / 5.0) < 0.1);
        QCOMPARE(left.pixelColor(changed.center()), QColor(Qt::gray));
    }
}

/** The page tells the median exposure by the first position, of which one photo is missing. */
void StandInsTest::referenceLevelIsFoundFromAStandIn()
{
    const HeadFacts &head = headNamed(QStringLiteral("vrdrive2"));
    const Shoot shoot = writeShoot(head, m_folder.path(), 3, 2, 3);
    ImportRequest request = requestFor(head, shoot);
    // 1/400, 1/25 and 1/100 second: the third one is the median.
    request.fit = fitWithout(shoot, { 2 });
    const Panorama left = import(request);
    QCOMPARE(left.positions.at(0).photos.size(), 2);
    QCOMPARE(left.positions.at(1).photos.at(0).path, shoot.photos.at(5));
    // Said to be the lightest, it leaves that place to the second one.
    (*request.fit)[2].exposureValue = 0.0;
    QCOMPARE(import(request).positions.at(1).photos.at(0).path, shoot.photos.at(4));
}

void StandInsTest::placeOfThePhotosIsRemembered()
{
    const HeadFacts &head = headNamed(QStringLiteral("papywizard"));
    const Shoot shoot = writeShoot(head, m_folder.path(), 3, 1, 1);
    ImportRequest request = requestFor(head, shoot);
    request.fit = fitWithout(shoot, { 0 });
    (void)import(request);
    QCOMPARE(app().LastPath(), m_folder.path());
}

void StandInsTest::shootWithoutAnyPhotoIsRefused()
{
    const HeadFacts &head = headNamed(QStringLiteral("clauss"));
    const Shoot shoot = writeShoot(head, m_folder.path(), 2, 1, 1);
    ImportRequest request = requestFor(head, shoot);
    request.fit = fitWithout(shoot, { 0, 1 });
    const auto none = importShoot(app(), request, {});
    QVERIFY(!none);
    QCOMPARE(none.error().code, ExitCode::InputRefused);
    QCOMPARE(none.error().why, QStringLiteral("none of its shots has a photo"));
}

void StandInsTest::fitOfAnotherLengthIsRefused()
{
    const HeadFacts &head = headNamed(QStringLiteral("papywizard"));
    const Shoot shoot = writeShoot(head, m_folder.path(), 3, 1, 1);
    ImportRequest request = requestFor(head, shoot);
    request.fit = fitWithout(shoot, { 1 });
    request.fit->removeLast();
    const auto shorter = importShoot(app(), request, {});
    QVERIFY(!shorter);
    QCOMPARE(shorter.error().code, ExitCode::InputRefused);
}

void StandInsTest::gridsMayHaveHoles()
{
    const HeadFacts &head = headNamed(QStringLiteral("gigapan"));
    ImportRequest request;
    request.head = &head;
    for (int i = 0; i < 4; ++i) {
        request.photos += writePhoto(m_folder.path(), i, 1);
    }
    request.order = PhotoOrder::AsGiven;
    request.pluginPath = QStringLiteral(PANOHOST_TEST_LIBRARY);
    request.grid = GridChoice();
    request.grid->rows = 2;
    // Columns from the left: row 2 of column 1 and row 1 of column 3 are missing.
    request.fit = ShotFit(6);
    int photo = 0;
    for (const int shot : { 0, 2, 3, 5 }) {
        (*request.fit)[shot].photo = request.photos.at(photo++);
    }
    const Panorama panorama = import(request);
    QCOMPARE(photoCount(panorama), 4);
    QCOMPARE(panorama.missingCells, (QVector<qint32>{ 1, 4 }));
    const QVector<Position> &found = panorama.positions;
    QCOMPARE(found.at(1).yawDegrees, found.at(2).yawDegrees); // column 2
    QCOMPARE(found.at(0).pitchDegrees, found.at(1).pitchDegrees); // row 1
    QCOMPARE(found.at(2).pitchDegrees, found.at(3).pitchDegrees); // row 2
    QVERIFY(found.at(0).yawDegrees < found.at(1).yawDegrees);

    request.fit = ShotFit(6);
    QVERIFY_EXCEPTION_THROWN(import(request), CommandError);
}

TEST_CLASS(StandInsTest, PanoHostApplication)
#include "tst_standins.moc"
