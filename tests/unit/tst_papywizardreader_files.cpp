// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/papywizardreader.h"

#include "importers/papywizard/merlintospp.h"
#include "tests/support/testprogram.h"
#include "tests/unit/describedrecord.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using PanoHead::PapywizardRecord;
using PanoHead::ReadError;
using PanoHead::readPapywizard;

namespace
{

/** What `parse` has left in a generator, in the reader's form. */
PapywizardRecord recordOf(const MerlinToSPP &generator)
{
    PapywizardRecord record;
    record.shots = generator.shots;
    record.title = generator.title;
    record.gps = generator.gps;
    record.comment = generator.comment;
    record.xmlFocal = generator.xmlFocal;
    record.sensorCoef = generator.sensorCoef;
    record.nbPicts = generator.nbPicts;
    record.xmlLensType = generator.xmlLensType;
    record.portrait = generator.portrait;
    return record;
}

QString dataFile(const QString &name)
{
    return QStringLiteral(PANOHEAD_TEST_DATA "/papywizard/") + name;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace

/** Record files, good and bad, as the reader and the generator take them. */
class TestPapywizardReaderFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsReadAsWritten_data();
    void recordsReadAsWritten();
    void parseResetsWhatAnEarlierFileLeft();
    void parseLeavesTheDescriptionAlone();
    void parseRefusesWhatIsNoRecordFile_data();
    void parseRefusesWhatIsNoRecordFile();
    void parseNeedsTheRightToRead();
    void parseFollowsLinksAndTakesAnyName_data();
    void parseFollowsLinksAndTakesAnyName();
};

void TestPapywizardReaderFiles::recordsReadAsWritten_data()
{
    QTest::addColumn<QString>("name");
    const QStringList files
        = QDir(dataFile(QString())).entryList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Name);
    QVERIFY(files.size() >= 4);
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << file.chopped(4);
    }
}

void TestPapywizardReaderFiles::recordsReadAsWritten()
{
    QFETCH(QString, name);

    const QString expected
        = QString::fromUtf8(contentOf(dataFile(name + QStringLiteral(".expected"))));
    ReadError error;
    const auto record = readPapywizard(contentOf(dataFile(name + QStringLiteral(".xml"))), &error);
    QVERIFY2(record.has_value(), qPrintable(error.reason));
    const QString actual = described(*record);
    if (actual != expected) {
        write(name + QStringLiteral(".actual"), actual.toUtf8());
    }
    QCOMPARE(actual, expected);

    MerlinToSPP generator;
    QVERIFY(generator.parse(dataFile(name + QStringLiteral(".xml"))));
    PapywizardRecord parsed = recordOf(generator);
    parsed.hasShoot = record->hasShoot;
    QCOMPARE(described(parsed), expected);
}

void TestPapywizardReaderFiles::parseResetsWhatAnEarlierFileLeft()
{
    const QTemporaryDir folder;
    const QString empty = folder.filePath(QStringLiteral("empty.xml"));
    write(empty, "<p/>");

    MerlinToSPP generator;
    QVERIFY(generator.parse(dataFile(QStringLiteral("brackets-portrait.xml"))));
    QCOMPARE(generator.shots.size(), 6);
    QVERIFY(generator.portrait);
    QVERIFY(generator.parse(empty));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));

    QVERIFY(generator.parse(dataFile(QStringLiteral("mosaic.xml"))));
    QCOMPARE(generator.shots.size(), 6);
    QVERIFY(!generator.parse(folder.filePath(QStringLiteral("missing.xml"))));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));

    QVERIFY(generator.parse(dataFile(QStringLiteral("mosaic.xml"))));
    write(empty, "<p>");
    QVERIFY(!generator.parse(empty));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));
}

void TestPapywizardReaderFiles::parseLeavesTheDescriptionAlone()
{
    MerlinToSPP generator;
    generator.imageGroups = { { QStringLiteral("/a.jpg") } };
    generator.authorizedLinks = { { 2, { 0, 1 } } };
    generator.yaw = { 1.0F };
    generator.pitch = { 2.0F };
    generator.roll = { 3.0F };
    generator.focalLength = 35.0F;
    generator.lensModel = LensModel::Fisheye;
    generator.overlap = 12.0;
    for (const QString &name : { QStringLiteral("mosaic.xml"), QStringLiteral("missing.xml") }) {
        generator.parse(dataFile(name));
        QCOMPARE(generator.imageGroups.size(), 1);
        QCOMPARE(generator.authorizedLinks.size(), 1);
        QCOMPARE(generator.yaw, QVector<float>({ 1.0F }));
        QCOMPARE(generator.pitch, QVector<float>({ 2.0F }));
        QCOMPARE(generator.roll, QVector<float>({ 3.0F }));
        QCOMPARE(generator.focalLength, 35.0F);
        QCOMPARE(generator.lensModel, LensModel::Fisheye);
        QCOMPARE(generator.overlap, 12.0);
    }
}

void TestPapywizardReaderFiles::parseRefusesWhatIsNoRecordFile_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty path") << QString();
    QTest::newRow("missing") << QStringLiteral("missing.xml");
    QTest::newRow("folder") << QStringLiteral(".");
    QTest::newRow("named pipe that nobody writes") << QStringLiteral("pipe.xml");
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    QTest::newRow("empty device") << QStringLiteral("/dev/null");
    QTest::newRow("link to nowhere") << QStringLiteral("dangling.xml");
    QTest::newRow("link to itself") << QStringLiteral("loop.xml");
    QTest::newRow("link to a device") << QStringLiteral("device.xml");
    QTest::newRow("path that goes on behind a NUL")
        << QStringLiteral("good.xml") + QChar(QChar::Null) + QStringLiteral(".xml");
    QTest::newRow("path below a file") << QStringLiteral("good.xml/x");
    QTest::newRow("name that is too long") << QString(5'000, QLatin1Char('x'));
    QTest::newRow("empty file") << QStringLiteral("empty.xml");
    QTest::newRow("64 MiB and a byte") << QStringLiteral("large.xml");
}

void TestPapywizardReaderFiles::parseRefusesWhatIsNoRecordFile()
{
    QFETCH(QString, path);

    const QTemporaryDir folder;
    const auto encoded
        = [&folder](const QString &name) { return QFile::encodeName(folder.filePath(name)); };
    write(folder.filePath(QStringLiteral("good.xml")), "<p/>");
    write(folder.filePath(QStringLiteral("empty.xml")), QByteArray());
    QCOMPARE(::mkfifo(encoded(QStringLiteral("pipe.xml")).constData(), 0600), 0);
    QCOMPARE(::symlink("nowhere.xml", encoded(QStringLiteral("dangling.xml")).constData()), 0);
    QCOMPARE(::symlink("loop.xml", encoded(QStringLiteral("loop.xml")).constData()), 0);
    QCOMPARE(::symlink("/dev/zero", encoded(QStringLiteral("device.xml")).constData()), 0);
    QFile large(folder.filePath(QStringLiteral("large.xml")));
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.write("<p/>") == 4 && large.resize(64LL * 1024 * 1024 + 1));
    large.close();

    MerlinToSPP generator;
    const bool isPath = path.isEmpty() || QDir::isAbsolutePath(path);
    QVERIFY(!generator.parse(isPath ? path : folder.filePath(path)));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));
}

void TestPapywizardReaderFiles::parseNeedsTheRightToRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("secret.xml"));
    write(path, "<p/>");
    QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0755) == 0);
    QVERIFY(::chmod(QFile::encodeName(path).constData(), 0000) == 0);

    // Root may read everything: the test then asks as somebody else.
    constexpr uid_t kNobody = 65'534;
    const uid_t self = ::geteuid();
    QVERIFY(self != 0 || ::seteuid(kNobody) == 0);
    MerlinToSPP generator;
    const bool parsed = generator.parse(path);
    QVERIFY(self != 0 || ::seteuid(self) == 0);
    QVERIFY(!parsed);

    QVERIFY(::chmod(QFile::encodeName(path).constData(), 0644) == 0);
    QVERIFY(generator.parse(path));
}

void TestPapywizardReaderFiles::parseFollowsLinksAndTakesAnyName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << QStringLiteral("a.xml");
    QTest::newRow("no ending") << QStringLiteral("record");
    QTest::newRow("link") << QStringLiteral("link.xml");
    QTest::newRow("blanks and signs") << QStringLiteral("a b #?%41&'\"<i>.xml");
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("\u00e9\u65e5.xml");
    QTest::newRow("line break") << QStringLiteral("a\nb.xml");
}

void TestPapywizardReaderFiles::parseFollowsLinksAndTakesAnyName()
{
    QFETCH(QString, name);

    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    if (name == QLatin1String("link.xml")) {
        QVERIFY(QFile::link(dataFile(QStringLiteral("mosaic.xml")), path));
    } else {
        QVERIFY(QFile::copy(dataFile(QStringLiteral("mosaic.xml")), path));
    }
    MerlinToSPP generator;
    QVERIFY(generator.parse(path));
    QCOMPARE(generator.shots.size(), 6);
}

TEST_CLASS(TestPapywizardReaderFiles, QCoreApplication)
#include "tst_papywizardreader_files.moc"
