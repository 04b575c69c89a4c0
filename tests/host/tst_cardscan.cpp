// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/cardlinks.h"
#include "host/import/cardscan.h"
#include "host/model/photofile.h"
#include "tests/host/cardfiles.h"
#include "tests/host/cardshoots.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace PanoHost;

namespace
{

/** What was found below some folders, and what is made of it. */
struct Sorted {
    Card card;
    CardPlan plan;
    QString text;
};

Sorted sorted(const QStringList &folders)
{
    Sorted result;
    result.card = scanCard(folders, {});
    result.plan = planCard(result.card.photos, result.card.records);
    for (const QString &line : planLines(result.card, result.plan)) {
        result.text += line + QLatin1Char('\n');
    }
    return result;
}

QStringList namesOf(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths) {
        names += QFileInfo(path).fileName();
    }
    return names;
}

QByteArray rawFile()
{
    const QByteArray preview = TestPhotos::jpegBytes(TestPhotos::quarters(QSize(60, 40)));
    return TestPhotos::rawFile(QSize(600, 400), 1, { preview });
}

} // namespace

/** Cards full of files, below the current folder. */
class TestCardScan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { initializePhotoReading(); }
    void init();
    void cleanup();
    void schemaIsThatOfTheFields();
    void linksOfUnsureShootsHoldAllRecords();
    void photosOfTheSameNameGetNumbers();
    void ownResultsAreNoPhotos();
    void rawFilesBesideTheirPictures();
    void loopsOfLinksEnd();
    void oddNamesAreFilesLikeAll();
    void namesThatAreNoTextAreNamed();
    void whatCannotBeReadIsNamed();
    void brokenRecordsAreNamed();
    void hiddenFilesArePassedOver();
    void filesMayVanishMeanwhile();
    void nothingIsLeftOfWhatIsStopped();

private:
    void linkInto(const char *folder, const Sorted &sorted) const
    {
        writeLinks(sorted.card, sorted.plan, m_files->path(QString::fromLatin1(folder)), {});
    }
    void symlinkTo(const char *target, const QString &name) const
    {
        QCOMPARE(::symlink(target, QFile::encodeName(m_files->path(name)).constData()), 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CardFiles> m_files;
};

void TestCardScan::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_files = std::make_unique<CardFiles>(QDir(m_folder->path()).canonicalPath());
    QDir::setCurrent(m_folder->path());
}

void TestCardScan::cleanup()
{
    QDir::setCurrent(QDir::rootPath());
}

void TestCardScan::schemaIsThatOfTheFields()
{
    QFile file(QStringLiteral(PANOHOST_SORT_SCHEMA));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY2(file.readAll() == planSchema(),
             PANOHOST_SORT_SCHEMA " is not up to date; scripts/update-schemas makes it anew");
}

void TestCardScan::linksOfUnsureShootsHoldAllRecords()
{
    m_files->makeFolder(QStringLiteral("card/head"));
    for (const char *const name : { "card/head/a.txt", "card/head/b.txt" }) {
        QByteArray script;
        for (int shot = 0; shot < 8; ++shot) {
            script
                += "op_h-angle=" + QByteArray::number(shot * (name[10] - 'a' + 5)) + "\nop_shoot\n";
        }
        m_files->write(QString::fromLatin1(name), script);
    }
    m_files->takeShoot(QStringLiteral("card/photos"), 1, 8, 0.0);
    const Sorted run = sorted({ QStringLiteral("card") });
    linkInto("shoots", run);
    QVERIFY2(run.text.contains(QLatin1String("not sure the photos fit card/head/b.txt as well; ")),
             qPrintable(run.text));
    QCOMPARE(
        QDir(m_files->path(QStringLiteral("shoots/01-a"))).entryList({ QStringLiteral("*.txt") }),
        (QStringList{ QStringLiteral("a.txt"), QStringLiteral("b.txt") }));
}

void TestCardScan::photosOfTheSameNameGetNumbers()
{
    // The counter began again in the middle.
    m_files->writeRecord(QStringLiteral("card/a.xml"), 12, 0.0);
    m_files->makeFolder(QStringLiteral("card/1"));
    m_files->makeFolder(QStringLiteral("card/2"));
    for (int shot = 0; shot < 12; ++shot) {
        m_files->take(
            CardShoots::pathOf(1 + shot % 6,
                               shot < 6 ? QStringLiteral("card/1") : QStringLiteral("card/2")),
            CardShoots::secondsOfShot(shot));
    }
    linkInto("shoots", sorted({ QStringLiteral("card") }));
    const QDir folder(m_files->path(QStringLiteral("shoots/01-a")));
    const QStringList names = folder.entryList({ QStringLiteral("*.jpg") });
    QCOMPARE(names.size(), 12);
    QCOMPARE(names.first(), QStringLiteral("01_IMG_0001.jpg"));
    QCOMPARE(QFile::symLinkTarget(folder.filePath(QStringLiteral("07_IMG_0001.jpg"))),
             m_files->path(QStringLiteral("card/2/IMG_0001.jpg")));
}

void TestCardScan::ownResultsAreNoPhotos()
{
    m_files->takeShoot(QStringLiteral("card"), 1, 5, 0.0);
    // Its picture, its project; a project that is named after its first photo.
    m_files->take(QStringLiteral("card/hall.jpg"), 0.0);
    m_files->write(QStringLiteral("card/hall.pto"), "i w24 h16 n\"IMG_0001.jpg\"\n");
    m_files->write(QStringLiteral("card/IMG_0002.pto"), "i w24 h16 n\"IMG_0002.jpg\"\n");
    m_files->write(QStringLiteral("card/hall.json"), "{}");
    m_files->take(QStringLiteral("card/sphere.jpg"), 0.0);
    TestPhotos::embedXmp(m_files->path(QStringLiteral("card/sphere.jpg")), "GPano");
    // A layout of the page.
    QImage layout = TestPhotos::quarters(QSize(24, 16));
    markAsOwn(layout);
    QVERIFY(layout.save(m_files->path(QStringLiteral("card/layout.png"))));
    QVERIFY(layout.save(m_files->path(QStringLiteral("card/layout.jpg"))));
    const Sorted run = sorted({ QStringLiteral("card") });
    QCOMPARE(namesOf(run.card.results),
             (QStringList{ QStringLiteral("hall.jpg"), QStringLiteral("layout.jpg"),
                           QStringLiteral("layout.png"), QStringLiteral("sphere.jpg") }));
    QCOMPARE(run.card.photos.size(), 5);
}

void TestCardScan::rawFilesBesideTheirPictures()
{
    m_files->writeRecord(QStringLiteral("card/a.xml"), 6, 0.0);
    m_files->takeShoot(QStringLiteral("card"), 1, 6, 0.0);
    for (int shot = 1; shot <= 6; ++shot) {
        m_files->write(QStringLiteral("card/IMG_000%1.NEF").arg(shot), rawFile());
    }
    const Sorted run = sorted({ QStringLiteral("card") });
    linkInto("shoots", run);
    QVERIFY2(run.text.contains(
                 QLatin1String("photos   6 photos with RAW, card/IMG_0001.jpg to IMG_0006.jpg\n")),
             qPrintable(run.text));
    QCOMPARE(QDir(m_files->path(QStringLiteral("shoots/01-a/raw"))).entryList(QDir::Files).size(),
             6);
    // RAW files alone are photos too.
    m_files->makeFolder(QStringLiteral("raw"));
    m_files->write(QStringLiteral("raw/X.NEF"), rawFile());
    QCOMPARE(sorted({ QStringLiteral("raw") }).card.photos.size(), 1);
}

void TestCardScan::loopsOfLinksEnd()
{
    m_files->takeShoot(QStringLiteral("card/a"), 1, 3, 0.0);
    m_files->makeFolder(QStringLiteral("card/b"));
    m_files->makeFolder(QStringLiteral("elsewhere"));
    m_files->take(QStringLiteral("elsewhere/far.jpg"), 500.0);
    symlinkTo("..", QStringLiteral("card/a/up"));
    symlinkTo(".", QStringLiteral("card/self"));
    symlinkTo("../a/IMG_0001.jpg", QStringLiteral("card/b/again.jpg"));
    symlinkTo("loop.jpg", QStringLiteral("card/b/loop.jpg"));
    symlinkTo("gone.jpg", QStringLiteral("card/b/nowhere.jpg"));
    symlinkTo("../elsewhere", QStringLiteral("card/elsewhere"));
    const Sorted run
        = sorted({ QStringLiteral("card"), QStringLiteral("card/a"), QStringLiteral("card") });
    QStringList photos;
    for (const CardPhoto &photo : run.card.photos) {
        photos += photo.info.path;
    }
    QCOMPARE(photos,
             (QStringList{ m_files->path(QStringLiteral("card/a/IMG_0001.jpg")),
                           m_files->path(QStringLiteral("card/a/IMG_0002.jpg")),
                           m_files->path(QStringLiteral("card/a/IMG_0003.jpg")),
                           m_files->path(QStringLiteral("card/elsewhere/far.jpg")) }));
    QCOMPARE(run.card.refused.size(), 2);
}

void TestCardScan::oddNamesAreFilesLikeAll()
{
    const QStringList names{ QStringLiteral("a\nb.jpg"),  QStringLiteral("say\"so.jpg"),
                             QStringLiteral("it's.jpg"),  QStringLiteral("$(touch x).jpg"),
                             QStringLiteral("IMG_1.jpg"), QStringLiteral("IMG_1.JPG"),
                             QStringLiteral("-o.jpg"),    QStringLiteral("\u00fcber \u65e5.jpg") };
    m_files->makeFolder(QStringLiteral("card"));
    for (int i = 0; i < names.size(); ++i) {
        m_files->take(QStringLiteral("card/") + names[i], CardShoots::secondsOfShot(i));
    }
    m_files->writeRecord(QStringLiteral("card/the\n\"record\".xml"), names.size(), 0.0);
    const Sorted run = sorted({ QStringLiteral("card") });
    linkInto("shoots", run);
    QCOMPARE(run.text.count(QLatin1Char('\n')), 3);
    QVERIFY2(run.text.contains(QLatin1String("8 photos")), qPrintable(run.text));
    const QDir folder(m_files->path(QStringLiteral("shoots/01-the__record_")));
    QCOMPARE(folder.entryList(QDir::Files).size(), 9);
    QCOMPARE(run.plan.shoots.size(), 1);
}

void TestCardScan::namesThatAreNoTextAreNamed()
{
    m_files->takeShoot(QStringLiteral("card"), 1, 2, 0.0);
    const QByteArray folder = QFile::encodeName(m_files->path(QStringLiteral("card")));
    QCOMPARE(::link((folder + "/IMG_0001.jpg").constData(), (folder + "/f\xfcr.jpg").constData()),
             0);
    QCOMPARE(::mkdir((folder + "/\xff").constData(), 0755), 0);
    const Sorted run = sorted({ QStringLiteral("card") });
    QCOMPARE(
        run.text.count(QLatin1String(": its name is not UTF-8 text, by which programs open it; "
                                     "rename it\n")),
        2);
    QVERIFY(run.text.contains(QLatin1String("2 photos")));
}

void TestCardScan::whatCannotBeReadIsNamed()
{
    m_files->takeShoot(QStringLiteral("card"), 1, 2, 0.0);
    m_files->write(QStringLiteral("card/empty.jpg"), "");
    m_files->write(QStringLiteral("card/text.tif"), "no photo");
    m_files->write(QStringLiteral("card/film.mp4"), "no photo and none of ours");
    QCOMPARE(::mkfifo(QFile::encodeName(m_files->path(QStringLiteral("card/pipe.jpg"))).constData(),
                      0600),
             0);
    m_files->makeFolder(QStringLiteral("card/locked"));
    const QByteArray locked = QFile::encodeName(m_files->path(QStringLiteral("card/locked")));
    QCOMPARE(::chmod(locked.constData(), 0), 0);
    const Sorted run = sorted({ QStringLiteral("card") });
    QCOMPARE(::chmod(locked.constData(), 0755), 0);
    QVERIFY2(run.text.contains(QLatin1String("bad      card/empty.jpg: cannot read (not a photo?); "
                                             "copy it from the card again, or leave it out\n")),
             qPrintable(run.text));
    QVERIFY(run.text.contains(QLatin1String("bad      card/text.tif: ")));
    QVERIFY(!run.text.contains(QLatin1String("film")) && !run.text.contains(QLatin1String("pipe")));
    if (::geteuid() != 0) { // who may look everywhere
        QVERIFY(run.text.contains(QLatin1String("bad      card/locked: cannot be looked into")));
    }
}

void TestCardScan::brokenRecordsAreNamed()
{
    m_files->takeShoot(QStringLiteral("card"), 1, 6, 0.0);
    m_files->writeRecord(QStringLiteral("card/a.xml"), 6, 0.0);
    QFile file(m_files->path(QStringLiteral("card/a.xml")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    m_files->write(QStringLiteral("card/cut.xml"), whole.left(whole.size() / 2));
    m_files->write(QStringLiteral("card/other.xml"), "<clip/>");
    m_files->write(QStringLiteral("card/notes.txt"), "buy milk");
    m_files->write(QStringLiteral("card/broken.txt"), "op_h-angle=left\nop_shoot\n");
    const Sorted run = sorted({ QStringLiteral("card") });
    QVERIFY2(run.text.contains(QLatin1String("bad      card/broken.txt: line 1: op_h-angle=left is "
                                             "not a number; correct this line")),
             qPrintable(run.text));
    QVERIFY2(run.text.contains(QLatin1String("bad      card/cut.xml: line 1: ")),
             qPrintable(run.text));
    QVERIFY2(run.text.contains(
                 QLatin1String("other    2 files that end like a record and not one of a head: "
                               "card/notes.txt, card/other.xml\n")),
             qPrintable(run.text));
    QVERIFY(run.text.startsWith(QLatin1String("shoot    1: ")));
}

void TestCardScan::hiddenFilesArePassedOver()
{
    m_files->takeShoot(QStringLiteral("card/.trash"), 1, 3, 0.0);
    m_files->takeShoot(QStringLiteral("card"), 1, 2, 0.0);
    m_files->take(QStringLiteral("card/._IMG_0001.jpg"), 0.0);
    QCOMPARE(sorted({ QStringLiteral("card") }).card.photos.size(), 2);
    QCOMPARE(sorted({ QStringLiteral("card/.trash") }).card.photos.size(), 3);
}

void TestCardScan::filesMayVanishMeanwhile()
{
    m_files->takeShoot(QStringLiteral("card"), 1, 20, 0.0);
    // As soon as the folder has been listed.
    JobWatch watch;
    watch.progress = [this](int, int, const QString &text) {
        if (text.startsWith(QLatin1String("looking"))) {
            QFile::remove(m_files->path(QStringLiteral("card/IMG_0003.jpg")));
        }
    };
    const Card card = scanCard({ QStringLiteral("card") }, watch);
    QCOMPARE(card.photos.size(), 19);
    QCOMPARE(card.refused.size(), 1);
    QCOMPARE(card.refused[0].why,
             QStringLiteral("is gone meanwhile; sort again once nothing changes"));
}

void TestCardScan::nothingIsLeftOfWhatIsStopped()
{
    m_files->takeShoot(QStringLiteral("card"), 1, 6, 0.0);
    m_files->writeRecord(QStringLiteral("card/a.xml"), 6, 0.0);
    const Sorted run = sorted({ QStringLiteral("card") });
    bool isStopped = false;
    JobWatch watch;
    watch.progress = [&isStopped](int, int, const QString &) { isStopped = true; };
    watch.interrupted = [&isStopped] { return isStopped; };
    QVERIFY_EXCEPTION_THROWN((void)scanCard({ QStringLiteral("card") }, watch), CommandError);
    watch.interrupted = [] { return true; };
    QVERIFY_EXCEPTION_THROWN(
        writeLinks(run.card, run.plan, m_files->path(QStringLiteral("shoots")), watch),
        CommandError);
    // A photo whose name is too long with a number in front.
    Card longNamed = run.card;
    for (CardPhoto &photo : longNamed.photos) {
        photo.info.path = QLatin1Char('/') + QString(254, QLatin1Char('x'));
    }
    QVERIFY_EXCEPTION_THROWN(
        writeLinks(longNamed, run.plan, m_files->path(QStringLiteral("shoots")), {}), CommandError);
    QCOMPARE(
        QDir(m_files->path({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{ QStringLiteral("card") });
}

TEST_CLASS(TestCardScan, QCoreApplication)
#include "tst_cardscan.moc"
