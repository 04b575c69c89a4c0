// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/proposedplace.h"
#include "importers/headfacts.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

/** Where results go and what they are called, before the user says so. */
class TestProposedPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folderStandsBesideThePhotos_data();
    void folderStandsBesideThePhotos();
    void folderThatIsThereIsTaken();
    void filesInTheWayAreLeftAlone();
    void titleIsTheName_data();
    void titleIsTheName();
    void namesFitAnyDisk_data();
    void namesFitAnyDisk();

private:
    static Panorama of(const QStringList &photos, const QString &record = {})
    {
        Panorama panorama;
        for (const QString &photo : photos) {
            PhotoInfo info;
            info.path = photo;
            panorama.positions += TestPanoramas::positionAt(0.0, 0.0, { info });
        }
        panorama.source.record = record;
        return panorama;
    }

    QTemporaryDir m_folder;
};

void TestProposedPlace::folderStandsBesideThePhotos_data()
{
    QTest::addColumn<QStringList>("photos");
    QTest::addColumn<QString>("folder");
    QTest::newRow("ordinary") << QStringList{ QStringLiteral("/home/me/church/1.jpg") }
                              << QStringLiteral("/home/me/church panorama");
    QTest::newRow("two folders") << QStringList{ QStringLiteral("/home/me/church/a/1.jpg"),
                                                 QStringLiteral("/home/me/church/b/2.jpg") }
                                 << QStringLiteral("/home/me/church panorama");
    // "/home/me/church/inner panorama" would lie among photos.
    QTest::newRow("one in the other") << QStringList{ QStringLiteral("/home/me/church/inner/1.jpg"),
                                                      QStringLiteral("/home/me/church/2.jpg") }
                                      << QStringLiteral("/home/me/church panorama");
    QTest::newRow("names that begin alike")
        << QStringList{ QStringLiteral("/home/me/church/1.jpg"),
                        QStringLiteral("/home/me/church2/2.jpg") }
        << QStringLiteral("/pictures"); // "/home/me panorama" cannot be made
    QTest::newRow("root of a card")
        << QStringList{ QStringLiteral("/media/card/1.jpg") } << QStringLiteral("/pictures");
    QTest::newRow("folder of a camera")
        << QStringList{ QStringLiteral("/media/card/DCIM/100CAM/1.jpg") }
        << QStringLiteral("/pictures");
    QTest::newRow("all folders of a camera")
        << QStringList{ QStringLiteral("/media/card/DCIM/100CAM/1.jpg"),
                        QStringLiteral("/media/card/DCIM/101CAM/1.jpg") }
        << QStringLiteral("/pictures");
    QTest::newRow("copy of a camera's folder")
        << QStringList{ QStringLiteral("/home/me/DCIM/100CAM/1.jpg") }
        << QStringLiteral("/home/me/DCIM/100CAM panorama");
    QTest::newRow("folder of a disk") << QStringList{ QStringLiteral("/media/card/church/1.jpg") }
                                      << QStringLiteral("/media/card/church panorama");
    QTest::newRow("somebody else's")
        << QStringList{ QStringLiteral("/srv/photos/1.jpg") } << QStringLiteral("/pictures");
    QTest::newRow("several disks")
        << QStringList{ QStringLiteral("/media/card/a/1.jpg"), QStringLiteral("/home/me/b/1.jpg") }
        << QStringLiteral("/pictures");
}

void TestProposedPlace::folderStandsBesideThePhotos()
{
    QFETCH(QStringList, photos);
    QFETCH(QString, folder);
    DiskFacts disks;
    const QString card = QStringLiteral("/media/card");
    disks.rootOf = [card](const QString &path) {
        return path.startsWith(card) ? card : QStringLiteral("/");
    };
    disks.isWritable = [card](const QString &path) {
        return (path.startsWith(QLatin1String("/home/me")) || path.startsWith(card))
            && !path.contains(QLatin1String("panorama"));
    };
    disks.pictures = QStringLiteral("/pictures");
    QCOMPARE(proposedFolder(of(photos), disks), folder);
}

void TestProposedPlace::folderThatIsThereIsTaken()
{
    const Panorama panorama = of({ m_folder.filePath(QStringLiteral("shoot/1.jpg")) });
    const QString folder = m_folder.filePath(QStringLiteral("shoot panorama"));
    QCOMPARE(proposedFolder(panorama), folder);
    QVERIFY(!QFileInfo::exists(folder));
    QVERIFY(QDir().mkdir(folder));
    QCOMPARE(proposedFolder(panorama), folder);
}

void TestProposedPlace::filesInTheWayAreLeftAlone()
{
    const QString file = m_folder.filePath(QStringLiteral("notes panorama"));
    TestPhotos::writeFile(file, "not a folder");
    const Panorama panorama = of({ m_folder.filePath(QStringLiteral("notes/1.jpg")) });
    QCOMPARE(proposedFolder(panorama), DiskFacts::ofThisMachine().pictures);
}

void TestProposedPlace::titleIsTheName_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    const QString papywizard = QStringLiteral("papywizard");
    QTest::newRow("title") << papywizard << QStringLiteral("Sacré-Cœur, nave")
                           << QStringLiteral("Sacré-Cœur, nave");
    QTest::newRow("title with a slash")
        << papywizard << QStringLiteral("Nave 1/2") << QStringLiteral("Nave 1-2");
    QTest::newRow("VR Drive 2") << QStringLiteral("vrdrive2") << QStringLiteral("Tower")
                                << QStringLiteral("Tower");
    QTest::newRow("no title") << papywizard << QString() << QStringLiteral("evening.2");
    QTest::newRow("title of nothing")
        << papywizard << QStringLiteral(" / ") << QStringLiteral("evening.2");
    QTest::newRow("head without titles")
        << QStringLiteral("clauss") << QStringLiteral("x") << QStringLiteral("evening.2");
    QTest::newRow("no record") << QString() << QString() << QStringLiteral("old harbour");
}

void TestProposedPlace::titleIsTheName()
{
    QFETCH(QString, head);
    QFETCH(QString, title);
    QFETCH(QString, name);
    QString record;
    if (!head.isEmpty()) {
        PanoHead::NotedShoot shoot;
        shoot.shots.resize(2);
        shoot.title = title;
        const PanoHead::HeadFacts &facts = *PanoHead::headFactsOf(head);
        record = m_folder.filePath(QStringLiteral("evening.2.")
                                   + QFileInfo(QLatin1String(facts.record)).suffix());
        TestPhotos::writeFile(record, facts.write(shoot));
    }
    const QStringList photos{ m_folder.filePath(QStringLiteral("old harbour/1.jpg")) };
    QCOMPARE(proposedName(of(photos, record)), name);
    if (!record.isEmpty()) {
        QVERIFY(QFile::remove(record)); // the card is out
        QCOMPARE(proposedName(of(photos, record)), QStringLiteral("evening.2"));
    }
}

void TestProposedPlace::namesFitAnyDisk_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *title, const QString &text, const QString &name) {
        QTest::newRow(title) << text << name;
    };
    row("ordinary", QStringLiteral("Nave"), QStringLiteral("Nave"));
    row("all that is unfit", QStringLiteral("a/b\\c:d*e?f\"g<h>i|j"),
        QStringLiteral("a-b-c-d-e-f-g-h-i-j"));
    row("line ends", QStringLiteral("a\nb\r\n\tc"), QStringLiteral("a b c"));
    row("dots", QStringLiteral("..hidden.. "), QStringLiteral("hidden"));
    row("parent", QStringLiteral("../../etc"), QStringLiteral("-..-etc"));
    row("nothing", QStringLiteral("  .  "), QString());
    row("only unfit", QStringLiteral("///"), QString());
    row("null", QStringLiteral("a") + QChar(0) + QStringLiteral("b"), QStringLiteral("a b"));
    row("long", QString(400, QLatin1Char('x')), QString(150, QLatin1Char('x')));
    // Three bytes each; the letter of four bytes behind them does not fit, not even half of it.
    row("long and wide", QString(49, QChar(0x5bfa)) + QStringLiteral("\U0001F3D4"),
        QString(49, QChar(0x5bfa)));
}

void TestProposedPlace::namesFitAnyDisk()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QCOMPARE(asFileName(text), name);
}

TEST_CLASS(TestProposedPlace, TestProgram::NoApplication)
#include "tst_proposedplace.moc"
