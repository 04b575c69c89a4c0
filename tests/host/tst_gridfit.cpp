// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/gridfit.h"
#include "tests/host/align/support/testshoot.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <optional>

using namespace PanoHost;

namespace
{

constexpr int kRows = 3;
constexpr int kColumns = 4;
constexpr int kMissing = -1;

/** The photos of a grid, column by column from the left, each column from the top. */
Result<Panorama> grid(const QString &folder)
{
    TestShoots::TestShoot shoot;
    shoot.name = QStringLiteral("grid");
    shoot.camera = Camera{ QSize(360, 240), 50.0 };
    shoot.statedFocal35mm = 50.0;
    shoot.noted = TestShoots::Noted::Grid;
    setGrid(shoot, kRows, kColumns, 35.0, -5.0);
    return photographed(shoot, folder);
}

/** The photo of row \p row and column \p column, from 0, in that order. */
int photoAt(int row, int column)
{
    return column * kRows + row;
}

/** For each shot of a sweep its photo, worked out by hand. */
QVector<int> sweep(int mode)
{
    // Row by row from the top, or column by column from the left.
    return mode == 1 ? QVector<int>{ 0, 3, 6, 9, 1, 4, 7, 10, 2, 5, 8, 11 }
                     : QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 };
}

} // namespace

/** Grids with missing and doubled photos; the pictures alone tell which. */
class TestGridFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void emptyCellsAreFound_data();
    void emptyCellsAreFound();
    void ignoredPhotosStandInFront();
    void fullGridsAreNotLookedAt();
    void withoutFocalLengthNothingIsGuessed();
    void unsureGridsAreRefusedWithTheirLongestPause();

private:
    /** \p shots of a sweep: four seconds from one to the next, two more to another line. */
    [[nodiscard]] QVector<PhotoInfo> taken(const QVector<int> &shots, int mode) const
    {
        QVector<PhotoInfo> photos;
        const int line = mode == 0 ? kRows : kColumns;
        int again = 0;
        for (const int shot : shots) {
            const PhotoInfo &before = photos.isEmpty() ? PhotoInfo() : photos.last();
            PhotoInfo photo = m_panorama.positions.at(sweep(mode).at(shot)).photos.first();
            again += photo.path == before.path ? 1 : 0;
            photo.timeMs = 1000 * (1000 + 4 * (shot + again) + 2 * (shot / line));
            photos += photo;
        }
        return photos;
    }

    QTemporaryDir m_folder;
    Panorama m_panorama;
    const KnownLens m_lens{ 50.0, LensModel::Standard, 0 };
};

void TestGridFit::initTestCase()
{
    const Result<Panorama> made = grid(m_folder.path());
    QVERIFY(made);
    m_panorama = made.value();
    QCOMPARE(photoAt(2, 3), kRows * kColumns - 1);
}

void TestGridFit::emptyCellsAreFound_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QVector<int>>("shots"); // that have a photo, in the order of time
    QTest::addColumn<QVector<int>>("cells"); // for each shot the place of its photo in `shots`
    QTest::addColumn<QString>("said");
    QTest::newRow("one") << 0 << QVector<int>{ 0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11 }
                         << QVector<int>{ 0, 1, 2, 3, kMissing, 4, 5, 6, 7, 8, 9, 10 }
                         << QStringLiteral("no photo for row 2 of column 2");
    QTest::newRow("in a row") << 1 << QVector<int>{ 0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 11 }
                              << QVector<int>{ 0, 1, 2, 3, 4, kMissing, 5, 6, 7, 8, 9, 10 }
                              << QStringLiteral("no photo for row 2 of column 2");
    QTest::newRow("doubled") << 0 << QVector<int>{ 0, 1, 2, 3, 4, 4, 5, 6, 7, 8, 9, 10, 11 }
                             << QVector<int>{ 0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11, 12 }
                             << QStringLiteral("taken more than once");
}

void TestGridFit::emptyCellsAreFound()
{
    QFETCH(int, mode);
    QFETCH(QVector<int>, shots);
    QFETCH(QVector<int>, cells);
    QFETCH(QString, said);
    const QVector<PhotoInfo> photos = taken(shots, mode);
    GridChoice choice;
    choice.rows = kRows;
    choice.mode = mode;
    choice.overlapPercent = 50.0; // which it is not
    const Result<PhotoFit> found = fitGrid(choice, photos, m_lens);
    QVERIFY2(found, qPrintable(found ? QString() : found.error().text()));
    QVERIFY(found.value().fit);
    QStringList expected;
    for (const int cell : cells) {
        expected += cell == kMissing ? QString() : photos.at(cell).path;
    }
    QStringList actual;
    for (const FittedShot &shot : *found.value().fit) {
        actual += shot.photo;
    }
    QCOMPARE(actual, expected);
    QStringList texts;
    for (const Finding &finding : found.value().findings) {
        texts += finding.text;
    }
    QVERIFY2(texts.join(QLatin1Char('\n')).contains(said),
             qPrintable(texts.join(QLatin1Char('\n'))));
}

void TestGridFit::ignoredPhotosStandInFront()
{
    GridChoice choice;
    choice.rows = kRows;
    choice.ignoredCount = 1;
    QVector<PhotoInfo> photos = taken({ 11, 0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11 }, 0);
    const Result<PhotoFit> found = fitGrid(choice, photos, m_lens);
    QVERIFY(found && found.value().fit);
    const ShotFit fit = *found.value().fit;
    QCOMPARE(fit.size(), 1 + kRows * kColumns);
    QCOMPARE(fit.at(0).photo, photos.at(0).path);
    QCOMPARE(fit.at(5).photo, QString());
    QCOMPARE(fit.at(6).photo, photos.at(5).path);
}

void TestGridFit::fullGridsAreNotLookedAt()
{
    GridChoice choice;
    choice.rows = kRows;
    QVector<PhotoInfo> photos = taken({ 0, 1, 2, 3, 4, 5, 6, 7, 8 }, 0);
    for (PhotoInfo &photo : photos) {
        photo.path = QStringLiteral("/nowhere/") + QFileInfo(photo.path).fileName();
    }
    const Result<PhotoFit> found = fitGrid(choice, photos, m_lens);
    QVERIFY(found);
    QVERIFY(!found.value().fit && found.value().findings.isEmpty());
}

void TestGridFit::withoutFocalLengthNothingIsGuessed()
{
    GridChoice choice;
    choice.rows = kRows;
    const Result<PhotoFit> found = fitGrid(choice, taken({ 0, 1, 2, 4, 5 }, 0), {});
    QVERIFY(found);
    QVERIFY(!found.value().fit);
}

void TestGridFit::unsureGridsAreRefusedWithTheirLongestPause()
{
    GridChoice choice;
    choice.rows = kRows;
    QVector<PhotoInfo> photos = taken({ 0, 1, 2, 3, 5, 6, 7, 8 }, 0);
    for (int i = 0; i < photos.size(); ++i) {
        photos[i].path = QStringLiteral("/nowhere/%1.jpg").arg(i); // there is nothing to be seen
        photos[i].timeMs += i >= 4 ? 20000 : 0; // and the missing one's eight
    }
    const Result<PhotoFit> found = fitGrid(choice, photos, m_lens);
    QVERIFY(!found);
    QCOMPARE(found.error().text(),
             QStringLiteral("photos: 3 rows do not divide 8 photos evenly; are photos missing? "
                            "--ignore N leaves out the first N photos; the pictures do not tell "
                            "which are missing: the longest pause: 28 s after 3.jpg (usually "
                            "4 s), in column 2 as they were taken"));
}

TEST_CLASS(TestGridFit, QCoreApplication)
#include "tst_gridfit.moc"
