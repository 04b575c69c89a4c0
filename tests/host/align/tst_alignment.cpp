// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignment.h"
#include "host/model/ptoproject.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;
using namespace TestShoots;

namespace
{

using ImagePair = QPair<int, int>;

Eigen::Matrix3d rotationAt(const PtoFile &project, int image)
{
    return rotationOf(project.images().at(image).angles);
}

Rotations rotationsOf(const PtoFile &project)
{
    Rotations found;
    for (int i = 0; i < project.images().size(); ++i) {
        if (project.images().at(i).stackMaster < 0) {
            found.push_back(rotationAt(project, i));
        }
    }
    return found;
}

QSet<ImagePair> pairsOf(const PtoFile &project)
{
    QSet<ImagePair> pairs;
    for (const PtoPoint &point : project.points()) {
        pairs.insert({ qMin(point.first, point.second), qMax(point.first, point.second) });
    }
    return pairs;
}

/** The largest angle between photos of two projects of the same shoot. */
double degreesApart(const PtoFile &one, const PtoFile &other)
{
    double most = 0.0;
    for (int i = 0; i < one.images().size(); ++i) {
        most = qMax(most, degreesBetween(rotationAt(one, i), rotationAt(other, i)));
    }
    return most;
}

/** Photos, and what an import says of them. */
class Shoot
{
public:
    explicit Shoot(TestShoot shoot = tiny())
        : m_shoot(std::move(shoot))
        , panorama(taken(m_shoot, m_folder.path()))
    {
    }

    [[nodiscard]] Alignment aligned(const AlignOptions &options = {}) const
    {
        const auto result = align(panorama, {}, options, {});
        return result ? result.value() : failed(result.error());
    }
    [[nodiscard]] QByteArray textOf(const PtoFile &project) const
    {
        return project.text(m_folder.path()).value();
    }
    /** Written and read again. */
    [[nodiscard]] PtoFile reread(const PtoFile &project) const
    {
        return PtoFile::parse(textOf(project), m_folder.path()).value();
    }
    [[nodiscard]] AttitudeErrors errorsOf(const PtoFile &project) const
    {
        return attitudeErrors(trueRotations(m_shoot), rotationsOf(project));
    }
    [[nodiscard]] QString photo(int position, int level = 0) const
    {
        return panorama.positions.at(position).photos.at(level).path;
    }

    static Alignment failed(const Failure &failure)
    {
        qWarning("%s", qPrintable(failure.text()));
        throw std::runtime_error("not aligned");
    }

private:
    /** The photos are taken once, and copied: tests spoil them. */
    static Panorama taken(const TestShoot &shoot, const QString &folder)
    {
        static const QTemporaryDir originals;
        const QDir studio(originals.filePath(
            QStringLiteral("%1-%2").arg(shoot.name).arg(shoot.exposures.bracket.size())));
        (void)photographed(shoot, studio.path()).value();
        for (const QString &name : studio.entryList(QDir::Files)) {
            QFile::copy(studio.filePath(name), QDir(folder).filePath(name));
        }
        Panorama made = photographed(shoot, folder).value();
        made.description.autoDetection = true;
        made.description.cleanWrongLinks = true;
        return made;
    }

    QTemporaryDir m_folder;
    TestShoot m_shoot;

public:
    Panorama panorama;
};

/** Each photo another exposure, of which nothing says so. */
TestShoot tinyAutomatic(double stops)
{
    TestShoot shoot = tiny();
    shoot.name = QStringLiteral("tiny-%1").arg(stops);
    shoot.exposures.automatic = stops;
    shoot.exposures.isTold = false;
    return shoot;
}

double whiteShare(const QString &path)
{
    const QImage photo(path);
    int white = 0;
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x) {
            white += qGray(photo.pixel(x, y)) >= 250 ? 1 : 0;
        }
    }
    return white / (double(photo.width()) * photo.height());
}

double panoramaExposure(const QByteArray &project)
{
    static const QRegularExpression kExposure(QStringLiteral("\np .* E([-0-9.]+) "));
    return kExposure.match(QString::fromUtf8('\n' + project)).captured(1).toDouble();
}

TestShoot tinyBrackets()
{
    TestShoot shoot = tiny();
    shoot.exposures.bracket = { 0.0, -1.0 };
    return shoot;
}

} // namespace

class TestAlignment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosComeWhereTheyTrulyPointed();
    void anyNumberOfJobsGivesTheSameProject();
    void alignedProjectsGiveTheSameAnswerAgain();
    void projectsOfOthersAreAlignedByTheirAngles();
    void onlyAuthorisedLinksAreTied();
    void withoutLinksWhatOverlapsIsTied();
    void withoutDetectionNothingHappens();
    void skippedOptimisationFindsPointsOnly();
    void wrongPointsAreLeftOutOrMarked();
    void keptPointsStayAndCount();
    void hardStacksMoveAsOne();
    void detectedStacksAreTiedWithin();
    void allLevelsAreTiedWhereThePageSaysSo();
    void whitesStayWhite_data();
    void whitesStayWhite();
    void photosThatAreGoneStayAsRecorded();
    void photosOfAnotherSizeStayAsRecorded();
    void noPhotoAtAllIsRefused();
    void withoutTextureAllStaysAsRecorded();
    void pointsStayWhereNothingNewIsFound();
    void onePhotoStaysAsRecorded();
    void identicalPhotosDoNoHarm();
    void recordedLocationsMayBeAHintOnly();
    void gridsInAnotherOrderAreNamed();
    void levellingTurnsAllPhotosAlike();
    void interruptionEndsEveryStep_data();
    void interruptionEndsEveryStep();
};

void TestAlignment::photosComeWhereTheyTrulyPointed()
{
    const Shoot shoot;
    const Alignment aligned = shoot.aligned();
    QVERIFY(aligned.report.isPlaced);
    QCOMPARE(aligned.report.tiedCount(), 6);
    // A photo of 300 pixels at 24 mm: 0.27 degrees a pixel; recorded within 0.3 degrees.
    QVERIFY(shoot.errorsOf(projectOf(shoot.panorama).value()).rms > 0.1);
    QVERIFY2(shoot.errorsOf(aligned.project).rms < 0.03,
             qPrintable(QString::number(shoot.errorsOf(aligned.project).rms)));
    QCOMPARE(aligned.project.points().size(), aligned.report.pointCount);
    QVERIFY(aligned.project.isOurs() && aligned.project.hasRecord());
}

void TestAlignment::anyNumberOfJobsGivesTheSameProject()
{
    const Shoot shoot;
    AlignOptions options;
    options.jobs = 1;
    const QByteArray one = shoot.textOf(shoot.aligned(options).project);
    options.jobs = 3;
    QCOMPARE(shoot.textOf(shoot.aligned(options).project), one);
}

void TestAlignment::alignedProjectsGiveTheSameAnswerAgain()
{
    const Shoot shoot;
    const PtoFile once = shoot.reread(shoot.aligned().project);
    const auto again = align(once, {}, {});
    QVERIFY(again.ok());
    QVERIFY(degreesApart(once, again.value().project) < 0.001);
    QCOMPARE(again.value().report.recordedFocal35mm, 24.0);
    QCOMPARE(pairsOf(again.value().project), pairsOf(once));
}

void TestAlignment::projectsOfOthersAreAlignedByTheirAngles()
{
    const Shoot shoot;
    QByteArray text = makePtoProject(shoot.panorama).value().text;
    text.replace("#panohost", "#other");
    const auto project = PtoFile::parse(text, QStringLiteral("/"));
    QVERIFY(project.ok() && !project.value().isOurs());
    const auto aligned = align(project.value(), {}, {});
    QVERIFY(aligned.ok());
    QVERIFY(shoot.errorsOf(aligned.value().project).rms < 0.03);
    // Whoever has chosen the canvas keeps it.
    const QByteArray written = aligned.value().project.text(QStringLiteral("/")).value();
    const int begin = text.indexOf("\np ");
    QVERIFY(written.contains(text.mid(begin, text.indexOf('\n', begin + 1) - begin)));
}

void TestAlignment::onlyAuthorisedLinksAreTied()
{
    Shoot shoot;
    shoot.panorama.description.authorizedLinks.clear();
    for (const auto &[one, other] : { ImagePair(0, 1), ImagePair(2, 1), ImagePair(4, 1) }) {
        AuthorizedLink link;
        link.indices = { one, other };
        shoot.panorama.description.authorizedLinks.append(link);
    }
    const Alignment aligned = shoot.aligned();
    QCOMPARE(aligned.report.pairCount, 3);
    QCOMPARE(pairsOf(aligned.project), QSet<ImagePair>({ { 0, 1 }, { 1, 2 }, { 1, 4 } }));
    QCOMPARE(aligned.report.tiedCount(), 4);
}

void TestAlignment::withoutLinksWhatOverlapsIsTied()
{
    Shoot shoot;
    shoot.panorama.description.authorizedLinks.clear();
    const Alignment aligned = shoot.aligned();
    QCOMPARE(aligned.report.tiedCount(), 6);
    QVERIFY(pairsOf(aligned.project).contains({ 0, 3 }));
}

void TestAlignment::withoutDetectionNothingHappens()
{
    Shoot shoot;
    shoot.panorama.description.autoDetection = false;
    const Alignment aligned = shoot.aligned();
    QVERIFY(!aligned.report.isPlaced);
    QCOMPARE(shoot.textOf(aligned.project), shoot.textOf(projectOf(shoot.panorama).value()));
    QVERIFY(aligned.report.notes.first().contains(QStringLiteral("automatic detection is off")));
}

void TestAlignment::skippedOptimisationFindsPointsOnly()
{
    Shoot shoot;
    shoot.panorama.description.skipOptimization = true;
    const Alignment aligned = shoot.aligned();
    QVERIFY(!aligned.report.isPlaced);
    QVERIFY(aligned.project.points().size() > 50);
    QVERIFY(degreesApart(aligned.project, projectOf(shoot.panorama).value()) < 1e-6);
}

void TestAlignment::wrongPointsAreLeftOutOrMarked()
{
    Shoot shoot;
    const auto wrongCount = [](const PtoFile &project) {
        return std::count_if(project.points().cbegin(), project.points().cend(),
                             [](const PtoPoint &point) { return point.isWrong; });
    };
    const Alignment cleaned = shoot.aligned();
    QCOMPARE(int(wrongCount(cleaned.project)), 0);
    shoot.panorama.description.cleanWrongLinks = false;
    const Alignment kept = shoot.aligned();
    QCOMPARE(int(wrongCount(kept.project)), kept.report.wrongPointCount);
    QVERIFY(kept.report.wrongPointCount > 0);
    QCOMPARE(kept.project.points().size(),
             cleaned.project.points().size() + kept.report.wrongPointCount);
    // Hugin does not see those that are marked.
    QCOMPARE(shoot.textOf(kept.project).count("\nc n"), cleaned.project.points().size());
}

void TestAlignment::keptPointsStayAndCount()
{
    const Shoot shoot;
    PtoFile project = shoot.aligned().project;
    const PtoPoint nonsense{ 0, 1, 20.0, 30.0, 250.0, 180.0 };
    QVector<PtoPoint> points = project.points();
    points.append(nonsense);
    project.setPoints(points);
    AlignOptions options;
    options.keepsPoints = true;
    const auto kept = align(project, options, {});
    QVERIFY(kept.ok());
    const auto isNonsense = [&](const PtoPoint &point) { return point.x2 == nonsense.x2; };
    const auto &after = kept.value().project.points();
    const auto found = std::find_if(after.cbegin(), after.cend(), isNonsense);
    QVERIFY(found != after.cend());
    QVERIFY(found->isWrong);
    QVERIFY(degreesApart(kept.value().project, project) < 0.01);
    const auto replaced = align(project, {}, {});
    const auto &fresh = replaced.value().project.points();
    QVERIFY(std::none_of(fresh.cbegin(), fresh.cend(), isNonsense));
}

void TestAlignment::hardStacksMoveAsOne()
{
    const Shoot shoot(tinyBrackets());
    const Alignment aligned = shoot.aligned();
    QCOMPARE(aligned.project.images().size(), 12);
    QCOMPARE(aligned.report.photos.size(), 6);
    for (int i = 0; i < 12; i += 2) {
        QCOMPARE(degreesBetween(rotationAt(aligned.project, i), rotationAt(aligned.project, i + 1)),
                 0.0);
    }
    for (const ImagePair &pair : pairsOf(aligned.project)) {
        QVERIFY2(pair.first % 2 == 0 && pair.second % 2 == 0, "the second exposures are not read");
    }
}

void TestAlignment::detectedStacksAreTiedWithin()
{
    Shoot shoot(tinyBrackets());
    shoot.panorama.description.stackLinking = 1;
    const Alignment aligned = shoot.aligned();
    QCOMPARE(aligned.report.photos.size(), 12);
    QVERIFY(pairsOf(aligned.project).contains({ 0, 1 }));
    for (int i = 0; i < 12; i += 2) {
        // Nothing has moved between the exposures.
        const double apart
            = degreesBetween(rotationAt(aligned.project, i), rotationAt(aligned.project, i + 1));
        QVERIFY2(apart < 0.02, qPrintable(QString::number(apart)));
    }
}

void TestAlignment::allLevelsAreTiedWhereThePageSaysSo()
{
    Shoot shoot(tinyBrackets());
    shoot.panorama.description.levelLinking = 1;
    const Alignment aligned = shoot.aligned();
    QVERIFY(pairsOf(aligned.project).contains({ 0, 2 }));
    QVERIFY(pairsOf(aligned.project).contains({ 1, 3 }));
    QVERIFY(!pairsOf(aligned.project).contains({ 0, 3 }));
}

void TestAlignment::whitesStayWhite_data()
{
    QTest::addColumn<double>("stops");
    QTest::addColumn<bool>("isTooBright");
    QTest::newRow("white stays white") << 0.9 << false;
    QTest::newRow("at most a stop brighter than usual") << 1.5 << true;
}

void TestAlignment::whitesStayWhite()
{
    QFETCH(double, stops);
    QFETCH(bool, isTooBright);
    const Shoot shoot(tinyAutomatic(stops));
    const double recorded
        = panoramaExposure(shoot.textOf(projectOf(shoot.panorama, { QDir::tempPath() }).value()));
    const Alignment aligned = shoot.aligned();
    double brightest = recorded;
    int white = 0;
    for (int i = 0; i < 6; ++i) {
        const double exposure = aligned.project.images().at(i).exposureValue.value();
        if (whiteShare(shoot.photo(i)) > 0.01) {
            ++white;
            brightest = qMin(brightest, exposure);
        }
    }
    QVERIFY2(white > 0 && white < 6, qPrintable(QString::number(white)));
    QVERIFY(brightest < recorded - 0.1);
    QCOMPARE(brightest < recorded - 1.0, isTooBright);
    const double found = panoramaExposure(shoot.textOf(aligned.project));
    QVERIFY(qAbs(found - qMax(brightest, recorded - 1.0)) < 1e-6);
    const QString told
        = QStringLiteral("the panorama is made %1 stops brighter: what is white in a "
                         "photo stays white")
              .arg(recorded - found, 0, 'f', 1);
    QVERIFY2(aligned.report.notes.contains(told), qPrintable(told));
}

void TestAlignment::photosThatAreGoneStayAsRecorded()
{
    const Shoot shoot;
    QVERIFY(QFile::remove(shoot.photo(2)));
    const Alignment aligned = shoot.aligned();
    QVERIFY(aligned.report.isPlaced);
    QCOMPARE(aligned.report.tiedCount(), 5);
    QCOMPARE(aligned.report.notes.size(), 1);
    QVERIFY(aligned.report.notes.first().contains(QFileInfo(shoot.photo(2)).fileName()));
    QVERIFY(aligned.report.notes.first().endsWith(QStringLiteral("kept as recorded")));
}

void TestAlignment::photosOfAnotherSizeStayAsRecorded()
{
    const Shoot shoot;
    QVERIFY(QImage(shoot.photo(1)).scaled(200, 100).save(shoot.photo(1), "JPG"));
    const Alignment aligned = shoot.aligned();
    QCOMPARE(aligned.report.photos.at(1).points, 0);
    QVERIFY(aligned.report.notes.first().contains(QStringLiteral("200 x 100")));
}

void TestAlignment::noPhotoAtAllIsRefused()
{
    const Shoot shoot;
    for (int i = 0; i < 6; ++i) {
        QVERIFY(QFile::remove(shoot.photo(i)));
    }
    const auto result = align(shoot.panorama, {}, {}, {});
    QVERIFY(!result.ok());
    QCOMPARE(result.error().code, ExitCode::InputRefused);
    QVERIFY(result.error().text().contains(QStringLiteral("moved since the import")));
}

void TestAlignment::withoutTextureAllStaysAsRecorded()
{
    const Shoot shoot;
    QImage grey(300, 200, QImage::Format_RGB32);
    grey.fill(Qt::gray);
    for (int i = 0; i < 6; ++i) {
        QVERIFY(grey.save(shoot.photo(i), "JPG"));
    }
    const Alignment aligned = shoot.aligned();
    QVERIFY(!aligned.report.isPlaced);
    QVERIFY(degreesApart(aligned.project, projectOf(shoot.panorama).value()) < 1e-9);
    QVERIFY(sentences(aligned.report).last().endsWith(QStringLiteral("kept as recorded")));
}

void TestAlignment::pointsStayWhereNothingNewIsFound()
{
    const Shoot shoot;
    const PtoFile aligned = shoot.aligned().project;
    QImage grey(300, 200, QImage::Format_RGB32);
    grey.fill(Qt::gray);
    for (int i = 0; i < 6; ++i) {
        QVERIFY(grey.save(shoot.photo(i), "JPG"));
    }
    const auto again = align(aligned, {}, {});
    QVERIFY(again.ok());
    QCOMPARE(shoot.textOf(again.value().project), shoot.textOf(aligned));
}

void TestAlignment::onePhotoStaysAsRecorded()
{
    Shoot shoot;
    shoot.panorama.positions.resize(1);
    shoot.panorama.description.authorizedLinks.clear();
    const Alignment aligned = shoot.aligned();
    QVERIFY(!aligned.report.isPlaced);
    QCOMPARE(sentences(aligned.report),
             QStringList(QStringLiteral("there is one photo only: kept as recorded")));
}

void TestAlignment::identicalPhotosDoNoHarm()
{
    const Shoot shoot;
    QVERIFY(QFile::remove(shoot.photo(1)));
    QVERIFY(QFile::copy(shoot.photo(0), shoot.photo(1)));
    const Alignment aligned = shoot.aligned();
    // The other rows still hold together, and nothing is thrown far away.
    QVERIFY(degreesApart(aligned.project, projectOf(shoot.panorama).value()) < 40.0);
    for (const PtoImage &image : aligned.project.images()) {
        QVERIFY(qIsFinite(image.angles.yaw) && qIsFinite(image.horizontalFovDegrees));
    }
}

void TestAlignment::recordedLocationsMayBeAHintOnly()
{
    Shoot shoot;
    for (int i = 0; i < 6; ++i) {
        shoot.panorama.positions[i].yawDegrees += i % 2 == 0 ? 9.0 : -7.0;
        shoot.panorama.positions[i].pitchDegrees += i % 3 == 0 ? 8.0 : -5.0;
    }
    shoot.panorama.description.useRecordedLocation = false;
    const Alignment aligned = shoot.aligned();
    QCOMPARE(aligned.report.tiedCount(), 6);
    QVERIFY2(shoot.errorsOf(aligned.project).rms < 0.05,
             qPrintable(QString::number(shoot.errorsOf(aligned.project).rms)));
}

void TestAlignment::gridsInAnotherOrderAreNamed()
{
    TestShoot grid = tiny();
    grid.name = QStringLiteral("grid");
    grid.noted = Noted::Grid;
    grid.grid.overlapPercent = 35.0;
    setGrid(grid, 3, 4, 35.0, 0.0);
    const QString hint
        = QStringLiteral("the photos fit the order 'columns' better than 'rows-down'");
    const auto saidOf = [](const TestShoot &shoot) {
        return sentences(Shoot(shoot).aligned().report).join(QLatin1Char('\n'));
    };
    QVERIFY2(!saidOf(grid).contains(QStringLiteral("order")), qPrintable(saidOf(grid)));
    grid.grid.order = PanoHead::kRowsDownward;
    QVERIFY2(saidOf(grid).contains(hint), qPrintable(saidOf(grid)));
}

void TestAlignment::levellingTurnsAllPhotosAlike()
{
    const Shoot shoot;
    AlignOptions options;
    const PtoFile recorded = shoot.aligned(options).project;
    options.levels = true;
    const PtoFile levelled = shoot.aligned(options).project;
    const Eigen::Matrix3d turn = rotationAt(levelled, 0) * rotationAt(recorded, 0).transpose();
    for (int i = 1; i < 6; ++i) {
        QVERIFY(degreesBetween(turn * rotationAt(recorded, i), rotationAt(levelled, i)) < 1e-4);
    }
}

void TestAlignment::interruptionEndsEveryStep_data()
{
    QTest::addColumn<QString>("step");
    for (const char *step : { "looking for features", "matching neighbours", "placing photos" }) {
        QTest::newRow(step) << QString::fromLatin1(step);
    }
}

void TestAlignment::interruptionEndsEveryStep()
{
    QFETCH(QString, step);
    const Shoot shoot;
    bool stops = false;
    JobWatch watch;
    watch.progress = [&](int, int, const QString &text) { stops = stops || text == step; };
    watch.interrupted = [&] { return stops; };
    try {
        (void)align(shoot.panorama, {}, {}, watch);
        QFAIL("it went on");
    } catch (const CommandError &error) {
        QCOMPARE(error.failure().code, ExitCode::Interrupted);
    }
    QVERIFY(stops);
}

TEST_CLASS(TestAlignment, QCoreApplication)
#include "tst_alignment.moc"
