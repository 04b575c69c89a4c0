// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/workfolder.h"
#include "tests/host/cli/makebench.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QtTest>

#include <unistd.h>

using namespace PanoHost;

/** The commands make and stitch, with a small shoot and the real programs. */
class TestCliMake : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void panoramaAndPageAreMade();
    void secondRunKeepsAll();
    void panoramaAmongThePhotosIsLeftOut();
    void changedPhotoIsTakenIntoAccount();
    void anotherSizeIsStitchedOnly();
    void anotherFocalLengthChangesAll();
    void missingPhotoLeavesTheOldPanorama();
    void projectsAndDescriptionsAreStitched_data();
    void projectsAndDescriptionsAreStitched();
    void panoramaIsNamedAfterTheRecord();
    void strangeNamesAreBorne();
    void folderInUseIsNamed();
    void dryRunsSayAndPrintOnly();

private:
    MakeBench m_bench;
};

void TestCliMake::initTestCase()
{
    QCOMPARE(m_bench.shotPhotos().size(), 6);
    m_bench.makeFolder(QStringLiteral("change"));
    m_bench.makeFolder(QStringLiteral("gone"));
}

void TestCliMake::panoramaAndPageAreMade()
{
    const auto run = m_bench.make(QStringLiteral("whole/pano.jpg"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY(run.out.isEmpty());
    QVERIFY2(run.err.contains(QStringLiteral("6 of 6 photos tied")), qPrintable(run.err));
    QVERIFY(run.err.contains(QStringLiteral("takes about")));
    QVERIFY2(run.err.endsWith(QStringLiteral("panohost: written: whole/pano.jpg\n"
                                             "panohost: written: whole/pano.html\n")),
             qPrintable(run.err));
    QVERIFY(!QImage(m_bench.path(QStringLiteral("whole/pano.jpg"))).isNull());
    QVERIFY(m_bench.content(QStringLiteral("whole/pano.html")).contains("<html"));
    QVERIFY(m_bench.leftovers().isEmpty());
}

void TestCliMake::secondRunKeepsAll()
{
    const QByteArray picture = m_bench.wholePicture();
    const auto run = m_bench.make(QStringLiteral("whole/pano.jpg"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY(run.err.contains(QStringLiteral("6 of 6 photos tied")));
    QVERIFY(run.err.contains(QStringLiteral("panohost: kept: import, alignment\n")));
    QVERIFY(run.err.contains(QStringLiteral("panohost: kept: stitched panorama, picture, html\n")));
    QCOMPARE(m_bench.content(QStringLiteral("whole/pano.jpg")), picture);
}

/** As "*.jpg" names it when the panorama lies beside its photos. */
void TestCliMake::panoramaAmongThePhotosIsLeftOut()
{
    QVERIFY(!m_bench.wholePicture().isEmpty());
    QStringList words = m_bench.makeWords(QStringLiteral("whole/pano.jpg"));
    words.insert(words.indexOf(QStringLiteral("-o")), QStringLiteral("whole/pano.jpg"));
    const auto run = m_bench.run(words);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(run.err.startsWith(QStringLiteral("panohost: whole/pano.jpg: made of other photos, "
                                               "left out\n")),
             qPrintable(run.err));
    QVERIFY(run.err.contains(QStringLiteral("panohost: kept: import, alignment\n")));
}

void TestCliMake::changedPhotoIsTakenIntoAccount()
{
    const QString output = QStringLiteral("change/pano.jpg");
    QVERIFY(m_bench.make(output).exitCode == 0);
    QFile photo(m_bench.shotPhotos().first());
    QVERIFY(photo.open(QIODevice::ReadWrite));
    QVERIFY(photo.setFileTime(photo.fileTime(QFileDevice::FileModificationTime).addSecs(2),
                              QFileDevice::FileModificationTime));
    photo.close();
    const auto run = m_bench.make(output);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(!run.err.contains(QStringLiteral("kept: import")), qPrintable(run.err));
    QVERIFY2(!run.err.contains(QStringLiteral("kept: stitched")), qPrintable(run.err));
}

void TestCliMake::anotherSizeIsStitchedOnly()
{
    const QString output = QStringLiteral("change/pano.jpg");
    QVERIFY(m_bench.make(output).exitCode == 0);
    const auto run = m_bench.make(output, { QStringLiteral("--size"), QStringLiteral("50%") });
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY(run.err.contains(QStringLiteral("kept: import, alignment\n")));
    QVERIFY(!run.err.contains(QStringLiteral("kept: stitched")));
}

void TestCliMake::anotherFocalLengthChangesAll()
{
    const QString output = QStringLiteral("change/pano.jpg");
    QVERIFY(m_bench.make(output).exitCode == 0);
    const auto run = m_bench.make(output, { QStringLiteral("--focal"), QStringLiteral("25") });
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(!run.err.contains(QStringLiteral("kept: ")), qPrintable(run.err));
}

void TestCliMake::missingPhotoLeavesTheOldPanorama()
{
    const QString output = QStringLiteral("gone/pano.jpg");
    QVERIFY(m_bench.make(output).exitCode == 0);
    const QByteArray before = m_bench.content(output);
    const QString elsewhere = m_bench.path(QStringLiteral("elsewhere.jpg"));
    QVERIFY(QFile::rename(m_bench.shotPhotos().last(), elsewhere));
    const auto run = m_bench.make(output);
    QVERIFY(QFile::rename(elsewhere, m_bench.shotPhotos().last()));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.contains(QStringLiteral("no such photo; check the name")),
             qPrintable(run.err));
    QCOMPARE(m_bench.content(output), before);
}

void TestCliMake::projectsAndDescriptionsAreStitched_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("keeps");
    QTest::newRow("project") << QStringLiteral("whole/pano.work/2_aligned.pto") << false;
    QTest::newRow("description") << QStringLiteral("whole/pano.work/1_import.json") << true;
}

void TestCliMake::projectsAndDescriptionsAreStitched()
{
    QFETCH(QString, input);
    QFETCH(bool, keeps);
    QVERIFY(!m_bench.wholePicture().isEmpty());
    QStringList words{ QStringLiteral("stitch"), input, QStringLiteral("-o"),
                       QStringLiteral("stitched.jpg") };
    if (keeps) {
        words += QStringLiteral("--keep");
    }
    const auto run = m_bench.run(words);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY(!QImage(m_bench.path(QStringLiteral("stitched.jpg"))).isNull());
    QCOMPARE(QFile::exists(m_bench.path(QStringLiteral("stitched.work"))), keeps);
    if (!keeps) {
        QCOMPARE(m_bench.content(QStringLiteral("stitched.jpg")), m_bench.wholePicture());
    }
}

void TestCliMake::panoramaIsNamedAfterTheRecord()
{
    const auto run = m_bench.make({}, { QStringLiteral("--skip-optimization") });
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY(QFile::exists(m_bench.path(QStringLiteral("record.jpg"))));
    QVERIFY(QFile::exists(m_bench.path(QStringLiteral("record.work"))));
    QVERIFY(run.err.contains(QStringLiteral("optimisation is skipped")));
}

void TestCliMake::strangeNamesAreBorne()
{
    // Blanks, quotes, a line end, what vips and shells read as more, other scripts and directions.
    const QString strange
        = QString::fromUtf8("it's [x=1] \"new\"\n$(false) 写真 שלום ελληνικά -o %i #");
    const QDir folder(m_bench.path({}));
    QVERIFY(folder.mkpath(strange));
    QStringList words{ QStringLiteral("make"), QStringLiteral("papywizard"),
                       QStringLiteral("record.xml") };
    for (int i = 0; i < m_bench.shotPhotos().size(); ++i) {
        words += strange + QStringLiteral("/%1 %2.jpg").arg(i).arg(strange);
        QVERIFY(QFile::copy(m_bench.shotPhotos().at(i), folder.filePath(words.last())));
    }
    const QString output = strange + QLatin1Char('/') + strange + QStringLiteral(".jpg");
    const auto run = m_bench.run(words + QStringList{ QStringLiteral("-o"), output });
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(m_bench.content(output), m_bench.wholePicture());

    const QString work = strange + QLatin1Char('/') + strange + QStringLiteral(".work");
    const auto stitch
        = m_bench.run({ QStringLiteral("stitch"), work + QStringLiteral("/1_import.json"),
                        QStringLiteral("-o"), strange + QStringLiteral("/s.tif") });
    QVERIFY2(stitch.exitCode == 0, qPrintable(stitch.err));
    QVERIFY(!m_bench.content(strange + QStringLiteral("/s.tif")).isEmpty());
    const auto dry = m_bench.run(words
                                 + QStringList{ QStringLiteral("--dry-run"), QStringLiteral("-o"),
                                                strange + QStringLiteral("/dry.jpg") });
    QVERIFY2(dry.exitCode == 0, qPrintable(dry.err));
    const auto script
        = m_bench.runProgram(QStringLiteral("sh"), { QStringLiteral("-ec"), dry.out });
    QVERIFY2(script.exitCode == 0, qPrintable(script.err));
    QVERIFY(!m_bench.content(strange + QStringLiteral("/dry.commands/blended.tif")).isEmpty());
}

void TestCliMake::folderInUseIsNamed()
{
    const auto busy = WorkFolder::open(m_bench.path(QStringLiteral("busy.work")));
    QVERIFY(busy.ok());
    const auto run = m_bench.make(QStringLiteral("busy.jpg"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(
        run.err.contains(QStringLiteral("is in use by cli_tests, process %1 on ").arg(::getpid())),
        qPrintable(run.err));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("busy.jpg"))));
}

void TestCliMake::dryRunsSayAndPrintOnly()
{
    const auto run = m_bench.make(QStringLiteral("dry.jpg"), { QStringLiteral("--dry-run") });
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(run.out.contains(QStringLiteral("nona ")), qPrintable(run.out));
    QVERIFY(run.err.contains(QStringLiteral("takes about")));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("dry.jpg"))));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("dry.work"))));
    QVERIFY(!m_bench.wholePicture().isEmpty());
    const auto stitch
        = m_bench.run({ QStringLiteral("stitch"), QStringLiteral("whole/pano.work/2_aligned.pto"),
                        QStringLiteral("-o"), QStringLiteral("dry.tif"), QStringLiteral("--centre"),
                        QStringLiteral("20"), QStringLiteral("--dry-run") });
    QVERIFY2(stitch.exitCode == 0, qPrintable(stitch.err));
    QVERIFY2(stitch.err.contains(QStringLiteral("--centre turns full turns only")),
             qPrintable(stitch.err));
    QVERIFY(stitch.out.contains(QStringLiteral("nona ")));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("dry.work"))));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("dry.commands"))));

    // What it prints is a script that comes to the same.
    const auto script
        = m_bench.runProgram(QStringLiteral("sh"), { QStringLiteral("-ec"), stitch.out });
    QVERIFY2(script.exitCode == 0, qPrintable(script.err));
    const QImage blended(m_bench.path(QStringLiteral("whole/pano.work/blended.tif")));
    QVERIFY(!blended.isNull());
    QCOMPARE(QImage(m_bench.path(QStringLiteral("dry.commands/blended.tif"))), blended);
}

TEST_CLASS(TestCliMake, QCoreApplication)
#include "tst_cli_make.moc"
