// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/heads.h"
#include "host/model/commanderror.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/host/cli/clibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using PanoHost::headNamed;
using PanoHost::NotedShot;

namespace
{

const QDateTime kBegin(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC);

/** A shot and why: "shot 3 (yaw 30, pitch 20): missing". */
QStringList reshootLines(const QString &out)
{
    QStringList lines;
    for (const QString &line : out.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String("reshoot  shot "))) {
            lines += line.mid(9).section(QLatin1Char(';'), 0, 0);
        }
    }
    return lines;
}

} // namespace

/** Before leaving the spot: what is to be taken again, and the record for it. */
class TestCliReshoot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shotsAreListedAndWritten_data();
    void shotsAreListedAndWritten();
    void bracketsAreTakenAsAWhole();
    void theNewPhotosComeInTheirPlaces();
    void unreadablePhotosAreNamed();
    void nothingToTakeAgainWritesNothing();
    void gridsHaveAListOnly();
    void findingsAreToldAsJson();
    void badFilesAreRefused_data();
    void badFilesAreRefused();
    void theOptionOpensPicturesAndNothingElseDoes();
    void manyShotsAreTakenAgain();

private:
    /** Photos of two rows of three, one for each shot and level, and the record of \p head. */
    QStringList shoot(const char *head, int levels = 1)
    {
        PanoHead::NotedShoot noted;
        noted.bracketCount = levels;
        QStringList photos;
        for (int i = 0; i < m_shoot.planned.size() * levels; ++i) {
            const PanoHost::Pose &pose = m_shoot.planned.at(i / levels);
            noted.shots += { pose.yawDegrees, pose.pitchDegrees, 0.0, i % levels,
                             kBegin.addSecs(7 * i + i * i % 3) };
            photos += take(i, i / levels, noted.shots.last().time);
        }
        m_record = QLatin1String(headNamed(QLatin1String(head)).record);
        (void)m_bench->file(m_record, headNamed(QLatin1String(head)).write(noted));
        return photos;
    }
    static QString nameOf(int photo)
    {
        return QStringLiteral("IMG_%1.jpg").arg(photo + 1, 4, 10, QLatin1Char('0'));
    }
    QString take(int photo, int position, const QDateTime &time) const
    {
        auto exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.DateTimeOriginal"]
            = time.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toLatin1();
        TestPhotos::writeJpeg(m_bench->path(nameOf(photo)), m_pictures.at(position), exif);
        return nameOf(photo);
    }
    void blur(int photo, int position) const
    {
        QImage &picture = const_cast<QImage &>(m_pictures[position]);
        const QImage sharp = picture;
        picture = sharp.scaled(sharp.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .scaled(sharp.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        take(photo, position, kBegin.addSecs(7 * photo + photo * photo % 3));
        picture = sharp;
    }
    [[nodiscard]] CliBench::Run run(const char *command, const char *head,
                                    const QStringList &photos, const QStringList &more) const
    {
        const QStringList record = m_record.isEmpty() ? QStringList() : QStringList(m_record);
        return m_bench->run(QStringList{ QLatin1String(command), QLatin1String(head) } + record
                            + photos + more);
    }
    [[nodiscard]] CliBench::Run again(const char *head, const QStringList &photos,
                                      const QString &file = QStringLiteral("again")) const
    {
        return run("check", head, photos, { QStringLiteral("--reshoot"), file });
    }
    [[nodiscard]] QVector<NotedShot> shotsIn(const char *head, const QString &file) const
    {
        const auto shots = PanoHost::readShots(headNamed(QLatin1String(head)), m_bench->path(file));
        return shots ? shots.value() : QVector<NotedShot>();
    }

    TestShoots::TestShoot m_shoot;
    QVector<QImage> m_pictures; ///< by position
    std::unique_ptr<CliBench> m_bench;
    QString m_record;
};

void TestCliReshoot::initTestCase()
{
    m_shoot = TestShoots::tiny();
    for (int i = 0; i < m_shoot.planned.size(); ++i) {
        m_pictures += developed(TestShoots::lightAt(m_shoot, i), 0.0);
    }
}

void TestCliReshoot::init()
{
    m_bench = std::make_unique<CliBench>();
    m_record.clear();
}

void TestCliReshoot::shotsAreListedAndWritten_data()
{
    QTest::addColumn<QString>("head");
    QTest::newRow("papywizard") << QStringLiteral("papywizard");
    QTest::newRow("vrdrive2") << QStringLiteral("vrdrive2");
}

void TestCliReshoot::shotsAreListedAndWritten()
{
    QFETCH(QString, head);
    const QByteArray name = head.toLatin1();
    QStringList photos = shoot(name);
    photos.removeAt(2);
    blur(4, 4);
    const CliBench::Run run = again(name, photos);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(reshootLines(run.out),
             (QStringList{ QStringLiteral("shot 3 (yaw 30, pitch 20): missing"),
                           QStringLiteral("shot 5 (yaw 0, pitch -15): blurred against its "
                                          "neighbours") }));
    QVERIFY2(run.out.contains(QLatin1String("it comes after IMG_0002.jpg and before IMG_0004.jpg")),
             qPrintable(run.out));
    QVERIFY2(run.out.contains(QLatin1String("name the new one IMG_0005.jpg")), qPrintable(run.out));
    QVERIFY2(run.err.contains(QLatin1String("again: 2 shots to take again")), qPrintable(run.err));
    const QVector<NotedShot> shots = shotsIn(name, QStringLiteral("again"));
    QCOMPARE(shots.size(), 2);
    QCOMPARE(shots[0].yawDegrees, 30.0);
    QCOMPARE(shots[0].pitchDegrees, 20.0);
    QCOMPARE(shots[0].time, kBegin.addSecs(7 * 2 + 1));
    QCOMPARE(shots[1].yawDegrees, 0.0);
    QCOMPARE(shots[1].pitchDegrees, -15.0);
    // The photos of just these shots are imported with it.
    m_record = QStringLiteral("again");
    const CliBench::Run import = this->run(
        "import", name, { take(10, 2, kBegin.addSecs(900)), take(11, 4, kBegin.addSecs(907)) },
        { QStringLiteral("--order"), QStringLiteral("name"), QStringLiteral("--json"),
          QStringLiteral("-") });
    QVERIFY2(import.exitCode == 0, qPrintable(import.err));
    QCOMPARE(QJsonDocument::fromJson(import.out.toUtf8())
                 .object()
                 .value(QStringLiteral("positions"))
                 .toArray()
                 .size(),
             2);
}

void TestCliReshoot::bracketsAreTakenAsAWhole()
{
    QStringList photos = shoot("papywizard", 3);
    photos.removeAt(7);
    const CliBench::Run run = again("papywizard", photos);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(reshootLines(run.out),
             (QStringList{ QStringLiteral("shot 7 (yaw 30, pitch 20): with its bracket"),
                           QStringLiteral("shot 8 (yaw 30, pitch 20): missing"),
                           QStringLiteral("shot 9 (yaw 30, pitch 20): with its bracket") }));
    const QVector<NotedShot> shots = shotsIn("papywizard", QStringLiteral("again"));
    QCOMPARE(shots.size(), 3);
    for (int level = 0; level < 3; ++level) {
        QCOMPARE(shots[level].level, level);
        QCOMPARE(shots[level].yawDegrees, 30.0);
    }
}

/** As the list says: under the old name, or between the names of the neighbours. */
void TestCliReshoot::theNewPhotosComeInTheirPlaces()
{
    QStringList photos = shoot("papywizard");
    QVERIFY(QFile::remove(m_bench->path(photos.takeAt(1))));
    blur(4, 4);
    const CliBench::Run found = again("papywizard", photos);
    QVERIFY2(found.out.contains(QLatin1String("import all by their names: --order name")),
             qPrintable(found.out));
    (void)take(4, 4, kBegin.addSecs(3600));
    (void)take(8, 1, kBegin.addSecs(3607));
    QVERIFY(
        QFile::rename(m_bench->path(nameOf(8)), m_bench->path(QStringLiteral("IMG_0001b.jpg"))));
    photos.prepend(QStringLiteral("IMG_0001b.jpg"));
    const CliBench::Run import = this->run("import", "papywizard", photos,
                                           { QStringLiteral("--order"), QStringLiteral("name"),
                                             QStringLiteral("--json"), QStringLiteral("-") });
    QVERIFY2(import.exitCode == 0, qPrintable(import.err));
    const QJsonArray positions = QJsonDocument::fromJson(import.out.toUtf8())
                                     .object()
                                     .value(QStringLiteral("positions"))
                                     .toArray();
    QStringList names;
    for (const QJsonValue &position : positions) {
        names += QFileInfo(position.toObject()
                               .value(QStringLiteral("photos"))
                               .toArray()
                               .at(0)
                               .toObject()
                               .value(QStringLiteral("file"))
                               .toString())
                     .fileName();
    }
    QCOMPARE(names,
             (QStringList{ nameOf(0), QStringLiteral("IMG_0001b.jpg"), nameOf(2), nameOf(3),
                           nameOf(4), nameOf(5) }));
}

void TestCliReshoot::unreadablePhotosAreNamed()
{
    const QStringList photos = shoot("papywizard");
    (void)m_bench->file(photos[2], "no photo");
    const QByteArray whole = m_bench->content(photos[5]);
    (void)m_bench->file(photos[5], whole.left(whole.size() / 2));
    const CliBench::Run run = again("papywizard", photos);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(reshootLines(run.out),
             (QStringList{ QStringLiteral("shot 3 (yaw 30, pitch 20): unreadable"),
                           QStringLiteral("shot 6 (yaw 30, pitch -15): unreadable") }));
    QVERIFY2(run.out.contains(QLatin1String("name the new one IMG_0003.jpg")), qPrintable(run.out));
    QCOMPARE(shotsIn("papywizard", QStringLiteral("again")).size(), 2);
}

void TestCliReshoot::nothingToTakeAgainWritesNothing()
{
    const QStringList photos = shoot("papywizard");
    const CliBench::Run run = again("papywizard", photos);
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.out.contains(QLatin1String("reshoot  nothing has to be taken again")),
             qPrintable(run.out));
    QVERIFY2(run.err.contains(QLatin1String("again: not written")), qPrintable(run.err));
    QVERIFY(!QFile::exists(m_bench->path(QStringLiteral("again"))));
}

void TestCliReshoot::gridsHaveAListOnly()
{
    QStringList photos = shoot("papywizard");
    m_record.clear();
    blur(4, 4);
    const QStringList grid{ QStringLiteral("--rows"),    QStringLiteral("2"),
                            QStringLiteral("--mode"),    QStringLiteral("rows-down"),
                            QStringLiteral("--overlap"), QStringLiteral("55"),
                            QStringLiteral("--reshoot") };
    const CliBench::Run listed
        = run("check", "gigapan", photos, grid + QStringList(QStringLiteral("-")));
    QVERIFY2(listed.exitCode == 0, qPrintable(listed.err));
    QCOMPARE(
        reshootLines(listed.out),
        QStringList(QStringLiteral("shot 5 (row 2 of column 2): blurred against its neighbours")));
    const CliBench::Run refused
        = run("check", "gigapan", photos, grid + QStringList(QStringLiteral("again")));
    QCOMPARE(refused.exitCode, 2);
    QVERIFY2(refused.err.contains(QLatin1String("use --reshoot - for the list alone")),
             qPrintable(refused.err));
    QVERIFY(!QFile::exists(m_bench->path(QStringLiteral("again"))));
}

void TestCliReshoot::findingsAreToldAsJson()
{
    QStringList photos = shoot("vrdrive2");
    photos.removeAt(0);
    const CliBench::Run run
        = this->run("check", "vrdrive2", photos,
                    { QStringLiteral("--json"), QStringLiteral("--reshoot"), QStringLiteral("-") });
    QCOMPARE(run.exitCode, 0);
    const QJsonArray findings = QJsonDocument::fromJson(run.out.toUtf8())
                                    .object()
                                    .value(QStringLiteral("findings"))
                                    .toArray();
    int found = 0;
    for (const QJsonValue &value : findings) {
        const QJsonObject finding = value.toObject();
        if (finding.value(QStringLiteral("topic")).toString() == QLatin1String("reshoot")
            && finding.value(QStringLiteral("action")).toString() == QLatin1String("reshoot")) {
            QCOMPARE(finding.value(QStringLiteral("shots")).toArray(), QJsonArray{ 1 });
            ++found;
        }
    }
    QCOMPARE(found, 1);
    QCOMPARE(QDir(m_bench->path(QString())).entryList({ QStringLiteral("again*") }).size(), 0);
}

void TestCliReshoot::badFilesAreRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("why");
    QTest::newRow("the record") << QStringLiteral("RECORD.xml") << 3
                                << QStringLiteral("is one of the input files");
    QTest::newRow("a photo") << QStringLiteral("IMG_0001.jpg") << 3
                             << QStringLiteral("is one of the input files");
    QTest::newRow("no such folder")
        << QStringLiteral("none/again.xml") << 3 << QStringLiteral("does not exist");
    QTest::newRow("a folder") << QStringLiteral(".") << 3 << QStringLiteral("is a folder");
    QTest::newRow("no name") << QString() << 2 << QStringLiteral("--reshoot names no file");
}

void TestCliReshoot::badFilesAreRefused()
{
    QFETCH(QString, file);
    QFETCH(int, exitCode);
    QFETCH(QString, why);
    QStringList photos = shoot("papywizard");
    photos.removeAt(2);
    const QByteArray before = m_bench->content(m_record);
    const CliBench::Run run = again("papywizard", photos, file);
    QCOMPARE(run.exitCode, exitCode);
    QVERIFY2(run.err.contains(why), qPrintable(run.err));
    QCOMPARE(run.out, QString());
    QCOMPARE(m_bench->content(m_record), before);
}

void TestCliReshoot::theOptionOpensPicturesAndNothingElseDoes()
{
    const QStringList photos = shoot("papywizard");
    blur(4, 4);
    const CliBench::Run plain = run("check", "papywizard", photos, {});
    QCOMPARE(plain.exitCode, 0);
    QVERIFY2(!plain.out.contains(QLatin1String("blurred")), qPrintable(plain.out));
}

/** Twelve photos of 70,000 shots are refused, and all but the last two thousand are listed. */
void TestCliReshoot::manyShotsAreTakenAgain()
{
    constexpr int kShots = 70'000;
    QByteArray script;
    QVector<int> chosen;
    for (int i = 0; i < kShots; ++i) {
        script += "op_h-angle=" + QByteArray::number(i % 360) + "\nop_shoot\n";
        if (i >= 2000) {
            chosen += i;
        }
    }
    const QString file = m_bench->file(QStringLiteral("many.txt"), script);
    const PanoHost::HeadFacts &head = headNamed(QStringLiteral("clauss"));
    const auto excerpt = PanoHost::recordExcerpt(head, m_bench->path(file), chosen);
    QVERIFY(excerpt.ok());
    (void)m_bench->file(QStringLiteral("again.txt"), excerpt.value());
    QCOMPARE(shotsIn("clauss", QStringLiteral("again.txt")).size(), kShots - 2000);
    m_record = file;
    shoot("papywizard");
    m_record = file;
    const CliBench::Run run = again("clauss", { nameOf(0), nameOf(1) }, QStringLiteral("more.txt"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY(!QFile::exists(m_bench->path(QStringLiteral("more.txt"))));
    QVERIFY(!PanoHost::recordExcerpt(head, m_bench->path(QStringLiteral("none.txt")), chosen).ok());
}

TEST_CLASS(TestCliReshoot, QCoreApplication)
#include "tst_cli_reshoot.moc"
