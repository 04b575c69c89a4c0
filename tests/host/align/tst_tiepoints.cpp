// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/tiepoints.h"
#include "host/model/commanderror.h"
#include "tests/host/align/alignpictures.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <thread>

using namespace PanoHost;

namespace
{

// 40 degrees apart, 74 wide: neighbours overlap by half, the next but one hardly.
const Camera kCamera{ QSize(480, 320), 24.0, Projection::Rectilinear };
constexpr int kPhotos = 5;
constexpr double kStepDegrees = 35.0;

bool areEqual(const TiePoints &a, const TiePoints &b)
{
    const auto samePoint = [](const TiePoint &x, const TiePoint &y) {
        return x.first == y.first && x.second == y.second && x.inFirst == y.inFirst
            && x.inSecond == y.inSecond;
    };
    const auto sameLights
        = [](const auto &x, const auto &y) { return x.first == y.first && x.second == y.second; };
    const auto samePair = [](const auto &x, const auto &y) {
        return x.points == y.points && x.rotation == y.rotation;
    };
    return std::equal(a.points.begin(), a.points.end(), b.points.begin(), b.points.end(), samePoint)
        && std::equal(a.lights.begin(), a.lights.end(), b.lights.begin(), b.lights.end(),
                      sameLights)
        && std::equal(a.pairs.begin(), a.pairs.end(), b.pairs.begin(), b.pairs.end(), samePair);
}

} // namespace

class TestTiePoints : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void pointsLieOnTheSameSpots();
    void resultsDoNotDependOnTheNumberOfJobs();
    void aStoreWithoutRoomGivesTheSame();
    void lightsTellTheExposure();
    void photosThatCannotBeReadAreLeftOut();
    void releasedFeaturesAreNotFoundAgain();
    void progressIsToldOnTheCallersThread();
    void theUserMayStop();
    void noPhotosHaveNoPoints();

private:
    [[nodiscard]] static TiePointOptions reduced()
    {
        TiePointOptions options;
        options.widest = 320; // two thirds
        options.features.most = 960;
        return options;
    }

    /** What one job with plenty of memory finds, or what others find. */
    [[nodiscard]] TiePoints found(int jobs = 1,
                                  std::int64_t mostFeatureBytes = FeatureStore::kMostBytes) const
    {
        TiePointOptions options = reduced();
        options.jobs = jobs;
        options.mostFeatureBytes = mostFeatureBytes;
        TiePointFinder finder(m_photos, options);
        finder.readFeatures();
        return finder.match(m_pairs, m_model, firstLook);
    }

    QTemporaryDir m_folder;
    std::vector<ViewPhoto> m_photos;
    std::vector<Pose> m_poses; // the truth
    HeadModel m_model; // half a degree off
    std::vector<QPair<int, int>> m_pairs;
    TiePoints m_found; // by one job with plenty of memory
};

void TestTiePoints::initTestCase()
{
    const RayLight texture = AlignPictures::texture();
    m_model.lenses.push_back(AlignPictures::lensOf(kCamera));
    for (int i = 0; i < kPhotos; ++i) {
        m_poses.push_back({ i * kStepDegrees, 3.0 * (i % 2), 0.0 });
        // The last one was exposed one stop less.
        const QImage picture = developed(exposePhoto(texture, kCamera, m_poses.back(), 1),
                                         i == kPhotos - 1 ? -1.0 : 0.0);
        m_photos.push_back({ m_folder.filePath(QStringLiteral("%1.jpg").arg(i)), kCamera.size });
        QVERIFY(picture.save(m_photos.back().path, nullptr, 95));
        const double play = i % 2 == 0 ? 0.5 : -0.5;
        m_model.views.push_back(
            { { m_poses.back().yawDegrees + play, m_poses.back().pitchDegrees, 0.0 }, 0.0, 0, -1 });
        m_model.corrections.push_back({});
        if (i > 0) {
            m_pairs.emplace_back(i - 1, i);
        }
    }
    m_pairs.emplace_back(0, kPhotos - 1); // 140 degrees apart
    m_found = found();
}

void TestTiePoints::pointsLieOnTheSameSpots()
{
    QCOMPARE(m_found.pairs.size(), m_pairs.size());
    QCOMPARE(m_found.lights.size(), m_found.points.size());
    size_t next = 0;
    for (size_t i = 0; i < m_pairs.size(); ++i) {
        const auto &[first, second] = m_pairs[i];
        std::vector<double> errors;
        const View from(kCamera, m_poses[static_cast<size_t>(first)]);
        const View to(kCamera, m_poses[static_cast<size_t>(second)]);
        for (int k = 0; k < m_found.pairs[i].points; ++k) {
            const TiePoint &point = m_found.points[next++];
            QVERIFY(point.first == first && point.second == second);
            const auto seen
                = to.pixelAt(from.directionAt(point.inFirst.x() + 0.5, point.inFirst.y() + 0.5));
            QVERIFY(seen);
            errors.push_back(std::hypot(seen->x() - 0.5 - point.inSecond.x(),
                                        seen->y() - 0.5 - point.inSecond.y()));
        }
        if (i + 1 == m_pairs.size()) {
            QVERIFY2(errors.empty(), "they have nothing in common");
            continue;
        }
        QVERIFY2(errors.size() >= 20, qPrintable(QString::number(errors.size())));
        QVERIFY2(AlignPictures::median(errors) < 0.5,
                 qPrintable(QString::number(AlignPictures::median(errors))));
        const Eigen::Matrix3d truth
            = rotationOf(AlignPictures::anglesOf(m_poses[static_cast<size_t>(second)])).transpose()
            * rotationOf(AlignPictures::anglesOf(m_poses[static_cast<size_t>(first)]));
        QVERIFY(degreesBetween(m_found.pairs[i].rotation, truth) < 0.1);
    }
    QCOMPARE(next, m_found.points.size());
}

void TestTiePoints::resultsDoNotDependOnTheNumberOfJobs()
{
    QVERIFY(m_found.points.size() > 100);
    for (const int jobs : { 1, 2, 3 }) {
        QVERIFY(areEqual(found(jobs), m_found));
    }
}

void TestTiePoints::aStoreWithoutRoomGivesTheSame()
{
    QVERIFY(areEqual(found(2, 200'000), m_found)); // room for two photos
    QVERIFY(areEqual(found(2, 0), m_found));
}

void TestTiePoints::lightsTellTheExposure()
{
    std::vector<double> same;
    std::vector<double> darker;
    for (size_t i = 0; i < m_found.points.size(); ++i) {
        const double ratio = double(m_found.lights[i].second) / m_found.lights[i].first;
        (m_found.points[i].second == kPhotos - 1 ? darker : same).push_back(ratio);
    }
    QVERIFY(std::abs(AlignPictures::median(same) - 1.0) < 0.02);
    QVERIFY2(std::abs(AlignPictures::median(darker) - 0.5) < 0.02,
             qPrintable(QString::number(AlignPictures::median(darker))));
}

void TestTiePoints::photosThatCannotBeReadAreLeftOut()
{
    std::vector<ViewPhoto> photos = m_photos;
    photos[1].path = m_folder.filePath(QStringLiteral("gone.jpg"));
    photos[4].storedSize = QSize(481, 320);
    TiePointFinder finder(photos, reduced());
    finder.readFeatures();
    QVERIFY(!finder.leftOut(0) && !finder.leftOut(2) && !finder.leftOut(3));
    QVERIFY(finder.featureCount(0) > 0);
    QVERIFY(finder.leftOut(1).has_value());
    QVERIFY(finder.leftOut(1)->text().contains(QStringLiteral("gone.jpg")));
    QVERIFY(finder.leftOut(4)->why.contains(QStringLiteral("481 x 320")));
    QCOMPARE(finder.featureCount(4), 0);
    const TiePoints found = finder.match(m_pairs, m_model, firstLook);
    for (size_t i = 0; i < m_pairs.size(); ++i) {
        QCOMPARE(found.pairs[i].points > 0, (m_pairs[i] == QPair<int, int>(2, 3)));
    }
}

void TestTiePoints::releasedFeaturesAreNotFoundAgain()
{
    TiePointFinder finder(m_photos, reduced());
    finder.readFeatures();
    const TiePoints first = finder.match(m_pairs, m_model, firstLook);
    const TiePoints second = finder.match(m_pairs, m_model, firstLook, {},
                                          TiePointFinder::Afterwards::ReleaseFeatures);
    QVERIFY(areEqual(first, second));
    const TiePoints third = finder.match(m_pairs, m_model, firstLook);
    QCOMPARE(third.pairs.size(), m_pairs.size());
    QVERIFY(third.points.empty());
}

void TestTiePoints::progressIsToldOnTheCallersThread()
{
    const std::thread::id caller = std::this_thread::get_id();
    QStringList texts;
    bool elsewhere = false;
    int last = 0;
    bool backwards = false;
    JobWatch watch;
    watch.progress = [&](int done, int total, const QString &text) {
        elsewhere = elsewhere || std::this_thread::get_id() != caller;
        backwards = backwards || done < last || total != kPhotos;
        last = done;
        texts += text;
    };
    TiePointFinder finder(m_photos, reduced());
    finder.readFeatures(watch);
    QVERIFY(!elsewhere && !backwards);
    QCOMPARE(texts.first(), QStringLiteral("looking for features"));
    watch.progress = [&](int, int, const QString &text) { texts += text; };
    (void)finder.match(m_pairs, m_model, firstLook, watch);
    QCOMPARE(texts.last(), QStringLiteral("matching neighbours"));
}

void TestTiePoints::theUserMayStop()
{
    const auto isInterrupted = [](const auto &step) {
        try {
            step();
        } catch (const CommandError &error) {
            return error.failure().code == ExitCode::Interrupted;
        }
        return false;
    };
    JobWatch watch;
    watch.interrupted = [] { return true; };
    TiePointFinder finder(m_photos, reduced());
    QVERIFY(isInterrupted([&] { finder.readFeatures(watch); }));
    QVERIFY(isInterrupted([&] { (void)finder.match(m_pairs, m_model, firstLook, watch); }));
}

void TestTiePoints::noPhotosHaveNoPoints()
{
    TiePointFinder finder({});
    finder.readFeatures();
    const TiePoints found = finder.match({}, {}, firstLook);
    QVERIFY(found.points.empty() && found.pairs.empty());
}

TEST_CLASS(TestTiePoints, QCoreApplication)
#include "tst_tiepoints.moc"
