// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/givenfiles.h"
#include "host/model/commanderror.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

/** What files are, before any page gets them. */
class TestGivenFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosAreKnownByTheirEnding_data();
    void photosAreKnownByTheirEnding();
    void filesOfThisProgramAreNoPhotos();
    void urlsAndPathsAreUnderstood();
    void textIsFilesOnlyWhereEachLineIsOne();
    void eachFileCountsOnce();
    void theLastRecordCounts();
    void notesAreNoRecords();
    void foldersGiveRecordsAndPhotosBelow();
    void lookingIntoFoldersCanBeStopped();
    void recordsAreKnownByWhoReadsThem();

private:
    QString write(const QString &name, const QByteArray &content = "x")
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        return TestPhotos::writeFile(path, content);
    }
    QString writeRecord(const char *head, const QString &name)
    {
        PanoHead::NotedShoot shoot;
        shoot.shots.resize(2);
        return write(name, headNamed(QLatin1String(head)).write(shoot));
    }

    QTemporaryDir m_folder;
};

void TestGivenFiles::photosAreKnownByTheirEnding_data()
{
    QTest::addColumn<bool>("isPhoto");
    QTest::newRow("a.jpg") << true;
    QTest::newRow("a.JPEG") << true;
    QTest::newRow("a.b.NEF") << true;
    QTest::newRow("a.tif") << true;
    QTest::newRow("a.xmp") << false;
    QTest::newRow("a.mov") << false;
    QTest::newRow("jpg") << false;
    QTest::newRow("a.jpg.bak") << false;
}

void TestGivenFiles::photosAreKnownByTheirEnding()
{
    QFETCH(bool, isPhoto);
    QCOMPARE(isPhotoName(QString::fromLatin1(QTest::currentDataTag())), isPhoto);
}

void TestGivenFiles::filesOfThisProgramAreNoPhotos()
{
    const QString project = write(QStringLiteral("own/night.pto"));
    const QString json = write(QStringLiteral("own/night.JSON"));
    const QString picture = write(QStringLiteral("own/night.tif"));
    const QString photo = write(QStringLiteral("own/day.tif"));
    const GivenFiles given = sortFiles({ project, json, picture, photo });
    QCOMPARE(given.photos, QStringList(photo));
    QCOMPARE(given.own, QStringList({ project, json, picture }));
}

void TestGivenFiles::urlsAndPathsAreUnderstood()
{
    QCOMPARE(localPaths({ QStringLiteral("file:///a%20b/c.jpg"), QStringLiteral("/x/../y.jpg"),
                          QStringLiteral("https://example.org/z.jpg"), QString() }),
             QStringList({ QStringLiteral("/a b/c.jpg"), QStringLiteral("/y.jpg") }));
    // A name of its own: no URL.
    QCOMPARE(localPaths({ QStringLiteral("/a%20b#1.jpg") }),
             QStringList(QStringLiteral("/a%20b#1.jpg")));
}

void TestGivenFiles::textIsFilesOnlyWhereEachLineIsOne()
{
    const QString there = write(QStringLiteral("there.jpg"));
    QCOMPARE(pathsInText(QStringLiteral("file:///a.jpg\r\n\r\n%1\n").arg(there)),
             QStringList({ QStringLiteral("/a.jpg"), there }));
    QCOMPARE(pathsInText(QStringLiteral("/nowhere/a.jpg")), QStringList());
    QCOMPARE(pathsInText(QStringLiteral("file:///a.jpg\nand words")), QStringList());
    QCOMPARE(pathsInText(QString()), QStringList());
}

void TestGivenFiles::eachFileCountsOnce()
{
    const GivenFiles given = sortFiles({ QStringLiteral("/b.jpg"), QStringLiteral("/a.jpg"),
                                         QStringLiteral("file:///b.jpg"),
                                         QStringLiteral("/c/../a.jpg"), QStringLiteral("/A.jpg") });
    QCOMPARE(given.photos,
             QStringList(
                 { QStringLiteral("/A.jpg"), QStringLiteral("/a.jpg"), QStringLiteral("/b.jpg") }));
}

void TestGivenFiles::theLastRecordCounts()
{
    const GivenFiles given = sortFiles(
        { QStringLiteral("/a.xml"), QStringLiteral("/b.TXT"), QStringLiteral("/c.xml") });
    QCOMPARE(given.record, QStringLiteral("/c.xml"));
    QCOMPARE(given.otherRecords,
             QStringList({ QStringLiteral("/a.xml"), QStringLiteral("/b.TXT") }));
}

void TestGivenFiles::notesAreNoRecords()
{
    const QString record = writeRecord("papywizard", QStringLiteral("notes/a.xml"));
    const QString notes = write(QStringLiteral("notes/z.txt"), "bring a tripod");
    GivenFiles given = sortFiles({ record, notes });
    preferReadableRecord(given);
    QCOMPARE(given.record, record);
    QCOMPARE(given.otherRecords, QStringList(notes));
    given = sortFiles({ notes });
    preferReadableRecord(given);
    QCOMPARE(given.record, notes); // there is no other
    given = GivenFiles();
    preferReadableRecord(given);
    QCOMPARE(given.record, QString());
}

void TestGivenFiles::foldersGiveRecordsAndPhotosBelow()
{
    const QString record = writeRecord("papywizard", QStringLiteral("card/shoot.xml"));
    const QString photo = write(QStringLiteral("card/DCIM/100/a.jpg"));
    (void)write(QStringLiteral("card/DCIM/100/a.xmp"));
    (void)write(QStringLiteral("card/notes.txt"), "bring a tripod");
    (void)write(QStringLiteral("card/.trash/b.jpg"));
    QVERIFY(QFile::link(m_folder.filePath(QStringLiteral("card")),
                        m_folder.filePath(QStringLiteral("card/DCIM/loop"))));
    const QString single = write(QStringLiteral("single.dat"));
    QCOMPARE(withoutFolders({ single, m_folder.filePath(QStringLiteral("card")) }, {}),
             QStringList({ single, photo, record }));
}

void TestGivenFiles::lookingIntoFoldersCanBeStopped()
{
    (void)write(QStringLiteral("many/a.jpg"));
    JobWatch watch;
    watch.interrupted = [] { return true; };
    bool isStopped = false;
    try {
        (void)withoutFolders({ m_folder.filePath(QStringLiteral("many")) }, watch);
    } catch (const CommandError &error) {
        isStopped = error.failure().code == ExitCode::Interrupted;
    }
    QVERIFY(isStopped);
}

void TestGivenFiles::recordsAreKnownByWhoReadsThem()
{
    const HeadFacts &papywizard = headNamed(QStringLiteral("papywizard"));
    const HeadFacts &clauss = headNamed(QStringLiteral("clauss"));
    const QString xml = writeRecord("papywizard", QStringLiteral("one.dat"));
    const QString script = writeRecord("clauss", QStringLiteral("other.dat"));
    QCOMPARE(readerOf(xml, &papywizard), nullptr); // it does so itself
    QVERIFY(readerOf(xml, &clauss) != nullptr && !readerOf(xml, &clauss)->isGrid());
    QCOMPARE(readerOf(script, &papywizard), &clauss);
    QCOMPARE(readerOf(write(QStringLiteral("words.txt"), "words"), &papywizard), nullptr);
    QCOMPARE(readerOf(m_folder.filePath(QStringLiteral("none.xml")), &papywizard), nullptr);
    QCOMPARE(readerOf(m_folder.path(), &papywizard), nullptr);
}

TEST_CLASS(TestGivenFiles, QCoreApplication)
#include "tst_givenfiles.moc"
