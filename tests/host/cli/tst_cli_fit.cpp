// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/align/support/testshoot.h"
#include "tests/host/cli/clibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace
{

constexpr int kShots = 12;

/** When the head took shot \p shot: no two pauses are alike. */
QDateTime shotTime(int shot)
{
    const int seconds = 4 * shot + (shot * shot) % 3;
    return QDateTime({ 2024, 5, 1 }, { 10, 0 }, Qt::UTC).addSecs(seconds);
}

} // namespace

/** Shoots of twelve shots that went wrong, and what commands make of them. */
class TestCliFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void faultsAreNamedAndDoNotStopTheImport_data();
    void faultsAreNamedAndDoNotStopTheImport();
    void soundShootsGoByName();
    void strictRefusesAnotherNumberOfPhotos();
    void photosThatCannotBeReadCountAsMissing();
    void anUnsureShootIsRefusedWithBothReadings();
    void ordersAreObeyed();
    void gridsAreCompletedWithHoles();

private:
    /** A photo of \p shot by the name \p name. */
    QString take(const QString &name, int shot, int hoursOff = 0, int secondsLate = 0)
    {
        auto exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.DateTimeOriginal"] = shotTime(shot)
                                                  .addSecs(3600 * hoursOff + secondsLate)
                                                  .toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"))
                                                  .toLatin1();
        TestPhotos::writeJpeg(m_bench->path(name), TestPhotos::quarters(QSize(60, 40)), exif);
        return name;
    }
    static QString named(int number)
    {
        return QStringLiteral("IMG_%1.jpg").arg(number, 4, 10, QLatin1Char('0'));
    }
    [[nodiscard]] CliBench::Run run(const char *command, const QStringList &photos,
                                    const QStringList &more = {}) const
    {
        return m_bench->run(QStringList{ QLatin1String(command), QStringLiteral("papywizard"),
                                         QStringLiteral("shoot.xml") }
                            + photos + more);
    }
    [[nodiscard]] CliBench::Run imported(const QStringList &photos,
                                         const QStringList &more = {}) const
    {
        return run("import", photos,
                   QStringList{ QStringLiteral("--json"), QStringLiteral("-") } + more);
    }
    /** "IMG_0001@30": each position's photo and yaw. */
    static QStringList positions(const QString &json)
    {
        QStringList found;
        const auto description = QJsonDocument::fromJson(json.toUtf8()).object();
        for (const QJsonValue &value : description.value(QStringLiteral("positions")).toArray()) {
            const QJsonObject position = value.toObject();
            const QString file = position.value(QStringLiteral("photos"))
                                     .toArray()
                                     .at(0)
                                     .toObject()
                                     .value(QStringLiteral("file"))
                                     .toString();
            found += QStringLiteral("%1@%2")
                         .arg(QFileInfo(file).completeBaseName())
                         .arg(qRound(position.value(QStringLiteral("yawDeg")).toDouble()));
        }
        return found;
    }

    std::unique_ptr<CliBench> m_bench;
};

void TestCliFit::init()
{
    m_bench = std::make_unique<CliBench>();
    QByteArray xml = "<papywizard version=\"c\"><header><general/>"
                     "<lens type=\"rectilinear\"><focal>24.0</focal></lens></header><shoot>";
    for (int shot = 0; shot < kShots; ++shot) {
        xml += "<pict bracket=\"1\" id=\"" + QByteArray::number(shot + 1) + "\"><time>"
            + shotTime(shot).toString(QStringLiteral("yyyy-MM-dd_HH'h'mm'm'ss's'")).toLatin1()
            + "</time><position pitch=\"0.0\" roll=\"0.0\" yaw=\"" + QByteArray::number(30 * shot)
            + ".0\"/></pict>";
    }
    (void)m_bench->file(QStringLiteral("shoot.xml"), xml + "</shoot></papywizard>");
}

void TestCliFit::faultsAreNamedAndDoNotStopTheImport_data()
{
    // Of each photo the shot, -1: a minute before the first. Names count upwards from the number.
    QTest::addColumn<QVector<int>>("shots");
    QTest::addColumn<int>("firstNumber");
    QTest::addColumn<int>("hoursOff");
    QTest::addColumn<QStringList>("said");
    QTest::addColumn<QVector<int>>("used"); // for each shot the photo, -1: none
    QTest::newRow("stopped") << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7 } << 1 << 0
                             << QStringList{ QStringLiteral(
                                    "no photo for shots 9 to 12 (was the shoot stopped?)") }
                             << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, -1, -1, -1, -1 };
    QTest::newRow("one missing, the clock an hour ahead")
        << QVector<int>{ 0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11 } << 1 << 1
        << QStringList{ QStringLiteral("no photo for shot 5"),
                        QStringLiteral("the camera's clock is 1 hour ahead of the head's") }
        << QVector<int>{ 0, 1, 2, 3, -1, 4, 5, 6, 7, 8, 9, 10 };
    QTest::newRow("as many as shots: one missing, a test in front")
        << QVector<int>{ -1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 10, 11 } << 1 << 0
        << QStringList{ QStringLiteral("no photo for shot 7"),
                        QStringLiteral("IMG_0001.jpg: before the first shot") }
        << QVector<int>{ 1, 2, 3, 4, 5, 6, -1, 7, 8, 9, 10, 11 };
    QTest::newRow("the counter began again")
        << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 } << 9995 << 0
        << QStringList{ QStringLiteral("the camera's counter began again among these photos") }
        << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 };
}

void TestCliFit::faultsAreNamedAndDoNotStopTheImport()
{
    QFETCH(QVector<int>, shots);
    QFETCH(int, firstNumber);
    QFETCH(int, hoursOff);
    QFETCH(QStringList, said);
    QFETCH(QVector<int>, used);
    QStringList photos;
    for (int i = 0; i < shots.size(); ++i) {
        photos += take(named((firstNumber + i - 1) % 9999 + 1), qMax(0, shots[i]), hoursOff,
                       shots[i] < 0 ? -60 : 0);
    }
    QStringList expected;
    for (int shot = 0; shot < used.size(); ++shot) {
        if (used[shot] >= 0) {
            expected += QStringLiteral("%1@%2")
                            .arg(QFileInfo(photos[used[shot]]).completeBaseName())
                            .arg(30 * shot);
        }
    }
    const CliBench::Run check = run("check", photos);
    QCOMPARE(check.exitCode, 0);
    for (const QString &line : said) {
        QVERIFY2(check.out.contains(line), qPrintable(check.out));
    }
    const CliBench::Run import = imported(photos);
    QVERIFY2(import.exitCode == 0, qPrintable(import.err));
    QCOMPARE(positions(import.out), expected);
    QCOMPARE(m_bench->leftovers(), QStringList());
}

void TestCliFit::soundShootsGoByName()
{
    QStringList photos;
    for (int shot = 0; shot < kShots; ++shot) {
        photos += take(named(shot + 1), shot, 0, 400);
    }
    const CliBench::Run import = imported(photos);
    QCOMPARE(import.exitCode, 0);
    QVERIFY2(!import.err.contains(QLatin1String("warning")), qPrintable(import.err));
    QCOMPARE(positions(import.out).size(), kShots);
    QCOMPARE(import.out,
             imported(photos, { QStringLiteral("--fit"), QStringLiteral("strict") }).out);
    const QString quick = QStringLiteral("pictures not opened: names, times and counts agree\n");
    QVERIFY(run("check", photos).out.contains(quick));
    QStringList stopped;
    for (int shot = 0; shot < 9; ++shot) {
        stopped += take(named(shot + 1), shot);
    }
    const CliBench::Run less = run("check", stopped);
    QVERIFY(less.out.contains(QLatin1String("no photo for shots 10 to 12"))
            && !less.out.contains(quick));
}

void TestCliFit::strictRefusesAnotherNumberOfPhotos()
{
    QStringList photos;
    for (int shot = 0; shot < 9; ++shot) {
        photos += take(named(shot + 1), shot);
    }
    const QStringList strict{ QStringLiteral("--fit"), QStringLiteral("strict") };
    for (const char *command : { "check", "import" }) {
        const QStringList output = qstrcmp(command, "import") == 0
            ? QStringList{ QStringLiteral("-o"), QStringLiteral("a.pto") }
            : QStringList();
        const CliBench::Run refused = run(command, photos, strict + output);
        QCOMPARE(refused.exitCode, 3);
        QVERIFY2(refused.err.contains(QLatin1String("records 12 shots, 9 photos given")),
                 qPrintable(refused.err));
    }
}

void TestCliFit::photosThatCannotBeReadCountAsMissing()
{
    QStringList photos;
    for (int shot = 0; shot < kShots; ++shot) {
        photos += take(named(shot + 1), shot);
    }
    (void)m_bench->file(photos[4], "no photo");
    const CliBench::Run import = imported(photos);
    QCOMPARE(import.exitCode, 0);
    QVERIFY2(import.err.contains(photos[4] + QStringLiteral(": cannot read")),
             qPrintable(import.err));
    QVERIFY2(import.err.contains(QLatin1String("no photo for shot 5 (yaw 120, pitch 0)")),
             qPrintable(import.err));
    QCOMPARE(positions(import.out).size(), kShots - 1);
}

void TestCliFit::anUnsureShootIsRefusedWithBothReadings()
{
    // All of the same second: which two are missing nobody can say.
    QStringList photos;
    for (int i = 0; i < kShots - 2; ++i) {
        photos += take(named(i + 1), 0);
    }
    const CliBench::Run refused = imported(photos);
    QCOMPARE(refused.exitCode, 3);
    QVERIFY2(refused.err.contains(QLatin1String("records 12 shots, 10 photos given; which photo "
                                                "belongs to which shot cannot be told surely: "))
                 && refused.err.contains(QLatin1String(" may be shot ")),
             qPrintable(refused.err));
}

void TestCliFit::ordersAreObeyed()
{
    // Named against the time.
    QStringList photos;
    for (int shot = 0; shot < kShots; ++shot) {
        photos += take(named(kShots - shot), shot);
    }
    const CliBench::Run byName
        = imported(photos, { QStringLiteral("--order"), QStringLiteral("name") });
    QCOMPARE(positions(byName.out).first(), QStringLiteral("IMG_0001@0"));
    const CliBench::Run fitted = imported(photos);
    QCOMPARE(positions(fitted.out).first(), QStringLiteral("IMG_0012@0"));
    QVERIFY2(fitted.err.contains(QLatin1String("names and times disagree")),
             qPrintable(fitted.err));
}

void TestCliFit::gridsAreCompletedWithHoles()
{
    TestShoots::TestShoot shoot;
    shoot.name = QStringLiteral("grid");
    shoot.camera = PanoHost::Camera{ QSize(450, 300), 50.0 };
    shoot.statedFocal35mm = 50.0;
    shoot.noted = TestShoots::Noted::Grid;
    setGrid(shoot, 3, 3, 35.0, 0.0);
    const auto made = photographed(shoot, m_bench->path(QStringLiteral("grid")));
    QVERIFY(made);
    QStringList photos;
    for (const PanoHost::Position &position : made.value().positions) {
        photos += position.photos.first().path;
    }
    const auto importOf = [&](const QStringList &given, const QStringList &more = {}) {
        return m_bench->run(QStringList{ QStringLiteral("import"), QStringLiteral("gigapan") }
                            + given
                            + QStringList{ QStringLiteral("--rows"), QStringLiteral("3"),
                                           QStringLiteral("--json"), QStringLiteral("-") }
                            + more);
    };
    QStringList expected = positions(importOf(photos).out);
    expected.removeAt(4);
    photos.removeAt(4);
    const CliBench::Run run = importOf(photos);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(run.err.contains(QLatin1String("no photo for row 2 of column 2")),
             qPrintable(run.err));
    QCOMPARE(positions(run.out), expected);
    const QJsonObject grid = QJsonDocument::fromJson(run.out.toUtf8())
                                 .object()
                                 .value(QStringLiteral("grid"))
                                 .toObject();
    QCOMPARE(grid.value(QStringLiteral("missing")).toArray(), QJsonArray{ 4 });
    QCOMPARE(grid.value(QStringLiteral("columns")).toInt(), 3);
    QCOMPARE(m_bench->leftovers(), QStringList());
    const CliBench::Run strict
        = importOf(photos, { QStringLiteral("--fit"), QStringLiteral("strict") });
    QCOMPARE(strict.exitCode, 3);
    QVERIFY2(strict.err.contains(QLatin1String("3 rows do not divide 8 photos evenly")),
             qPrintable(strict.err));
}

TEST_CLASS(TestCliFit, QCoreApplication)
#include "tst_cli_fit.moc"
