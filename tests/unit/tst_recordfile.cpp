// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/recordfile.h"

#include "importers/papywizard/merlintospp.h"
#include "shoot/recordedshoot.h"
#include "shoot/recordlimits.h"
#include "shoot/shootstate.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using PanoHead::AngleRange;
using PanoHead::Mismatch;
using PanoHead::ReadError;
using PanoHead::readRecordFile;
using PanoHead::ShootState;

namespace
{

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace

/** Record files, and what pages keep of the record in one. */
class TestRecordFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesComeAsTheyAre_data();
    void bytesComeAsTheyAre();
    void filesUpToTheLimitAreRead();
    void filesWithoutASizeAreReadToTheirEnd();
    void refusalsSayWhy_data();
    void refusalsSayWhy();
    void aReadRecordIsMeasured();
    void anUnreadableRecordKeepsTheRanges();
    void aForgottenRecordLeavesTheDescription();
    void aFreshStateKnowsNothing();
    void photosAreAdopted();
    void theHeaderIsOneLinePerFact();
    void recordAndPhotosAreCompared();
};

void TestRecordFile::bytesComeAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("<p/>\n");
    QTest::newRow("carriage returns and NULs") << QByteArray("a\r\nb\0c\r", 7);
    QTest::newRow("more than a buffer") << QByteArray(1'000'003, 'x');
}

void TestRecordFile::bytesComeAsTheyAre()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("record"));
    write(path, content);
    ReadError error;
    const auto bytes = readRecordFile(path, &error);
    QVERIFY2(bytes.has_value(), qPrintable(error.reason));
    QCOMPARE(*bytes, content);
}

void TestRecordFile::filesUpToTheLimitAreRead()
{
    QCOMPARE(PanoHead::kMaxRecordBytes, 67'108'864LL);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("record")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(PanoHead::kMaxRecordBytes));
    const auto bytes = readRecordFile(file.fileName(), nullptr);
    QVERIFY(bytes.has_value());
    QCOMPARE(qint64(bytes->size()), PanoHead::kMaxRecordBytes);
    QVERIFY(file.resize(PanoHead::kMaxRecordBytes + 1));
    QVERIFY(!readRecordFile(file.fileName(), nullptr));
}

/** Some file systems say 0 of real files. */
void TestRecordFile::filesWithoutASizeAreReadToTheirEnd()
{
    const QString path = QStringLiteral("/proc/version");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.size(), 0LL);
    const QByteArray content = file.readAll();
    QVERIFY(!content.isEmpty());
    ReadError error;
    const auto bytes = readRecordFile(path, &error);
    QVERIFY2(bytes.has_value(), qPrintable(error.reason));
    QCOMPARE(*bytes, content);
}

void TestRecordFile::refusalsSayWhy_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no path") << QString() << QStringLiteral("no such file");
    QTest::newRow("missing") << QStringLiteral("missing") << QStringLiteral("No such file");
    QTest::newRow("NUL in the path")
        << QStringLiteral("good") + QChar(QChar::Null) << QStringLiteral("no such file");
    QTest::newRow("folder") << QStringLiteral(".") << QStringLiteral("not a regular file");
    QTest::newRow("named pipe") << QStringLiteral("pipe") << QStringLiteral("not a regular file");
    QTest::newRow("device") << QStringLiteral("/dev/zero") << QStringLiteral("not a regular file");
    QTest::newRow("too large") << QStringLiteral("large") << QStringLiteral("larger than 64 MiB");
    QTest::newRow("size 0, and gigabytes in it")
        << QStringLiteral("/proc/self/pagemap") << QStringLiteral("larger than 64 MiB");
    QTest::newRow("size 0, and nothing at its beginning")
        << QStringLiteral("/proc/self/mem") << QStringLiteral("Input/output error");
}

void TestRecordFile::refusalsSayWhy()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);

    const QTemporaryDir folder;
    write(folder.filePath(QStringLiteral("good")), "<p/>");
    QFile large(folder.filePath(QStringLiteral("large")));
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.resize(PanoHead::kMaxRecordBytes + 1));
    const QByteArray pipe = QFile::encodeName(folder.filePath(QStringLiteral("pipe")));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);

    const bool isPath = path.isEmpty() || path.startsWith(QLatin1Char('/'));
    ReadError error;
    QVERIFY(!readRecordFile(isPath ? path : folder.filePath(path), &error));
    QVERIFY2(error.reason.contains(reason), qPrintable(error.reason));
    QCOMPARE(error.line, 0);
    QVERIFY(!readRecordFile(isPath ? path : folder.filePath(path), nullptr));
}

void TestRecordFile::aReadRecordIsMeasured()
{
    QVector<ShootData> shots;
    ShootState state;
    state.images = QStringList{ QStringLiteral("/a.jpg") };
    QVERIFY(PanoHead::readRecord(state, shots, [&shots] {
        shots.resize(2);
        shots[0].yaw = -10.0F;
        shots[0].pitch = 20.0F;
        shots[1].yaw = 30.0F;
        shots[1].pitch = -5.0F;
        return true;
    }));
    QCOMPARE(state.shotCount, 2);
    QVERIFY(state.yawMin == -10.0F && state.yawMax == 30.0F);
    QVERIFY(state.pitchMin == -5.0F && state.pitchMax == 20.0F);
    QCOMPARE(state.images.size(), 1);

    QVERIFY(PanoHead::readRecord(state, shots, [&shots] {
        shots.clear();
        return true;
    }));
    QCOMPARE(state.shotCount, 0);
    QVERIFY(state.extents().yaw == AngleRange::scanStart());
    QVERIFY(state.extents().pitch == AngleRange::scanStart());
}

void TestRecordFile::anUnreadableRecordKeepsTheRanges()
{
    const QVector<ShootData> shots(2); // a reader that gives up may leave some
    ShootState state;
    state.shotCount = 7;
    state.setExtents({ { 1, 2 }, { 3, 4 } });
    QVERIFY(!PanoHead::readRecord(state, shots, [] { return false; }));
    QCOMPARE(state.shotCount, -1);
    QVERIFY(state.yawMin == 1.0F && state.yawMax == 2.0F);
    QVERIFY(state.pitchMin == 3.0F && state.pitchMax == 4.0F);
}

void TestRecordFile::aForgottenRecordLeavesTheDescription()
{
    MerlinToSPP generator;
    generator.shots.resize(3);
    generator.nbPicts = 3;
    generator.xmlFocal = 24.0;
    generator.xmlLensType = 1;
    generator.imageGroups = { { QStringLiteral("/a.jpg") } };
    generator.forgetRecord();
    QVERIFY(generator.shots.isEmpty());
    QCOMPARE(generator.nbPicts, -1);
    QCOMPARE(generator.xmlFocal, -1.0);
    QCOMPARE(generator.xmlLensType, 0);
    QCOMPARE(generator.imageGroups.size(), 1);
}

void TestRecordFile::aFreshStateKnowsNothing()
{
    const ShootState state;
    QCOMPARE(state.shotCount, -1);
    QVERIFY(state.images.isEmpty() && state.configPath.isEmpty());
    QVERIFY(state.extents().yaw == AngleRange::unknown());
}

void TestRecordFile::photosAreAdopted()
{
    const PanoHead::LensFacts recorded{ 35.0, 1 };
    ShootState state;
    QCOMPARE(PanoHead::adoptPhotos(state, recorded, { 24.0, 0 }).focalMm, 24.0);
    QCOMPARE(state.imageFocal, 24.0);
    QCOMPARE(state.imageLensType, 0);
    const PanoHead::LensFacts fromRecord = PanoHead::adoptPhotos(state, recorded, { 0.0, 0 });
    QCOMPARE(fromRecord.focalMm, 35.0);
    QCOMPARE(fromRecord.lensType, 1);
    QCOMPARE(state.imageFocal, 0.0);
}

void TestRecordFile::theHeaderIsOneLinePerFact()
{
    QCOMPARE(PanoHead::headerText({}, {}, {}), QStringLiteral("\n\n"));
    // Markers in one fact are not filled with the next.
    QCOMPARE(PanoHead::headerText(QStringLiteral("%2 %3"), QStringLiteral("54 N %1"),
                                  QStringLiteral("<b>windy</b>")),
             QStringLiteral("%2 %3\n54 N %1\n<b>windy</b>"));
}

void TestRecordFile::recordAndPhotosAreCompared()
{
    PanoHead::LensFacts recorded{ 24.0, 0 };
    ShootState state;
    state.shotCount = 4;
    state.imageFocal = 24.0;
    for (int i = 0; i < 4; ++i) {
        state.images.append(QStringLiteral("/%1.jpg").arg(i));
    }
    QCOMPARE(PanoHead::mismatchOf(state, recorded, 3), Mismatch::Bracketing);
    QCOMPARE(PanoHead::mismatchOf(state, recorded, 2), Mismatch::None);
    state.shotCount = 5;
    QCOMPARE(PanoHead::mismatchOf(state, recorded, 2), Mismatch::Count);
    recorded.focalMm = 27.0;
    QCOMPARE(PanoHead::mismatchOf(state, recorded, 2), Mismatch::FocalLength);
    state.imageLensType = 1;
    QCOMPARE(PanoHead::mismatchOf(state, recorded, 2), Mismatch::LensType);
    state.shotCount = -1;
    QCOMPARE(PanoHead::mismatchOf(state, recorded, 2), Mismatch::None);
}

TEST_CLASS(TestRecordFile, QCoreApplication)
#include "tst_recordfile.moc"
