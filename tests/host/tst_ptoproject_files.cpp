// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoproject.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;
using TestPanoramas::row;

/** Names and files, and what no project is written of. */
class PtoProjectFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreRelativeToTheProject_data();
    void namesAreRelativeToTheProject();
    void nameThatTheFormatCannotHoldIsRefused_data();
    void nameThatTheFormatCannotHoldIsRefused();
    void missingNumbersAreRefused();
    void angleThatIsNoNumberIsRefused_data();
    void angleThatIsNoNumberIsRefused();
    void hugeNumbersStayNumbers();
    void focalLengthOfNoLensIsRefused_data();
    void focalLengthOfNoLensIsRefused();
    void projectIsWrittenNextToThePhotos();
    void failedWriteLeavesTheOldProject();
};

void PtoProjectFilesTest::namesAreRelativeToTheProject_data()
{
    QTest::addColumn<QString>("photo");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("written");
    QTest::newRow("same folder") << "/a/b/x.jpg"
                                 << "/a/b"
                                 << "x.jpg";
    QTest::newRow("below") << "/a/b/photos/x.jpg"
                           << "/a/b"
                           << "photos/x.jpg";
    QTest::newRow("beside") << "/a/c/x.jpg"
                            << "/a/b"
                            << "../c/x.jpg";
    QTest::newRow("no folder") << "/a/b/x.jpg"
                               << ""
                               << "/a/b/x.jpg";
    QTest::newRow("blanks") << "/a/b/x y.jpg"
                            << "/a/b"
                            << "x y.jpg";
    QTest::newRow("umlaut") << QString::fromUtf8("/a/b/Höhe.jpg") << "/a/b"
                            << QString::fromUtf8("Höhe.jpg");
    QTest::newRow("placeholder") << "/a/b/%1.jpg"
                                 << "/a/b"
                                 << "%1.jpg";
    QTest::newRow("apostrophe") << "/a/b/it's $(id).jpg"
                                << "/a/b"
                                << "it's $(id).jpg";
}

void PtoProjectFilesTest::namesAreRelativeToTheProject()
{
    QFETCH(QString, photo);
    QFETCH(QString, folder);
    QFETCH(QString, written);
    Panorama panorama = row(1);
    panorama.positions[0].photos[0].path = photo;
    PtoOptions options;
    options.projectFolder = folder;
    const auto project = makePtoProject(panorama, options);
    QVERIFY(project.ok());
    QVERIFY(project.value().text.contains(" Vm5 n\"" + written.toUtf8() + "\"\n"));
}

void PtoProjectFilesTest::nameThatTheFormatCannotHoldIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotation mark") << "a\"b.jpg";
    QTest::newRow("line end") << "a\nb.jpg";
    QTest::newRow("carriage return") << "a\rb.jpg";
    QTest::newRow("NUL") << QStringLiteral("a") + QChar(QChar::Null) + QStringLiteral("b.jpg");
}

void PtoProjectFilesTest::nameThatTheFormatCannotHoldIsRefused()
{
    QFETCH(QString, name);
    Panorama panorama = row(2);
    panorama.positions[1].photos[0].path = QStringLiteral("/photos/") + name;
    static int messages = 0;
    messages = 0;
    const auto handler = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
    const auto project = makePtoProject(panorama);
    qInstallMessageHandler(handler);
    QCOMPARE(messages, 0); // Qt is not asked about names that cannot be
    QVERIFY(!project.ok());
    QCOMPARE(project.error().what, QStringLiteral("/photos/") + name);
    QCOMPARE(project.error().tryThis, QStringLiteral("rename the file"));
    QCOMPARE(project.error().code, ExitCode::InputRefused);
    QVERIFY(!errorLine(project.error()).contains(QLatin1Char('\n')));
}

void PtoProjectFilesTest::missingNumbersAreRefused()
{
    Panorama panorama = row(2);
    panorama.focal35mm = 0.0;
    QCOMPARE(makePtoProject(panorama).error().text(),
             QStringLiteral("focal length: neither the record nor the photos name it; give it "
                            "with --focal"));
    panorama = row(2);
    panorama.positions[1].photos[0].storedSize = QSize();
    QCOMPARE(makePtoProject(panorama).error().text(),
             QStringLiteral("/photos/2.jpg: its size in pixels is not known; can another program "
                            "open it? leave it out if not"));
    panorama = row(0);
    QVERIFY(!makePtoProject(panorama).ok());
}

void PtoProjectFilesTest::angleThatIsNoNumberIsRefused_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::newRow("yaw not a number") << qQNaN() << 0.0;
    QTest::newRow("pitch not a number") << 0.0 << qQNaN();
    QTest::newRow("yaw infinite") << qInf() << 0.0;
    QTest::newRow("pitch infinite") << 0.0 << -qInf();
}

void PtoProjectFilesTest::angleThatIsNoNumberIsRefused()
{
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    Panorama panorama = row(2);
    panorama.positions[1].yawDegrees = yaw;
    panorama.positions[1].pitchDegrees = pitch;
    const auto project = makePtoProject(panorama);
    QVERIFY(!project.ok());
    QCOMPARE(project.error().text(),
             QStringLiteral("/photos/2.jpg: its direction is not a number; correct the record"));
}

void PtoProjectFilesTest::hugeNumbersStayNumbers()
{
    Panorama panorama = row(2);
    panorama.positions[1].yawDegrees = 1e30;
    panorama.positions[1].pitchDegrees = -1e30;
    panorama.positions[1].photos[0].storedSize = QSize(2147483647, 2147483647);
    panorama.focal35mm = 50000.0;
    const auto project = makePtoProject(panorama);
    QVERIFY(project.ok());
    QVERIFY(project.value().canvas.width() > 0);
    QVERIFY(project.value().canvas.height() > 0);
    QVERIFY(project.value().crop.height() > 0);
    QVERIFY(!project.value().text.contains("nan"));
    QVERIFY(!project.value().text.contains("inf"));
}

void PtoProjectFilesTest::focalLengthOfNoLensIsRefused_data()
{
    QTest::addColumn<double>("focal");
    QTest::newRow("tiny") << 1e-30;
    QTest::newRow("half a millimetre") << 0.5;
    QTest::newRow("a hundred metres") << 100000.0;
    QTest::newRow("huge") << 1e30;
}

void PtoProjectFilesTest::focalLengthOfNoLensIsRefused()
{
    QFETCH(double, focal);
    Panorama panorama = row(2);
    panorama.focal35mm = focal;
    const auto project = makePtoProject(panorama);
    QVERIFY(!project.ok());
    QCOMPARE(project.error().what, QStringLiteral("focal length"));
    QCOMPARE(project.error().tryThis, QStringLiteral("give it with --focal"));
}

void PtoProjectFilesTest::projectIsWrittenNextToThePhotos()
{
    QTemporaryDir folder;
    Panorama panorama = row(2);
    panorama.positions[0].photos[0].path = folder.filePath(QStringLiteral("photos/1.jpg"));
    panorama.positions[1].photos[0].path = folder.filePath(QStringLiteral("2.jpg"));
    const QString path = folder.filePath(QStringLiteral("pano.pto"));
    const auto project = writePtoProject(panorama, path);
    QVERIFY(project.ok());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    QCOMPARE(written, project.value().text);
    QVERIFY(written.contains("n\"photos/1.jpg\""));
    QVERIFY(written.contains("n\"2.jpg\""));
}

void PtoProjectFilesTest::failedWriteLeavesTheOldProject()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("pano.pto"));
    QVERIFY(writePtoProject(row(2), path).ok());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();
    Panorama panorama = row(2);
    panorama.positions[1].yawDegrees = qQNaN();
    QVERIFY(!writePtoProject(panorama, path).ok());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{ QStringLiteral("pano.pto") });

    const auto nowhere = writePtoProject(row(2), folder.filePath(QStringLiteral("no/pano.pto")));
    QVERIFY(!nowhere.ok());
    QVERIFY(nowhere.error().why.contains(QStringLiteral("does not exist")));
    QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("no"))));
}

TEST_CLASS(PtoProjectFilesTest, QCoreApplication)
#include "tst_ptoproject_files.moc"
