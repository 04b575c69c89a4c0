// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "deliverbench.h"
#include "host/deliver/spherepage.h"
#include "host/deliver/zoomtiles.h"
#include "tests/support/testprogram.h"
#include "testsphere.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace PanoHost;
using Depth = StitchedPicture::Depth;
using Maker = Result<QString> (*)(const DeliverJob &, const JobWatch &);
Q_DECLARE_METATYPE(PanoHost::StitchedPicture::Depth)
Q_DECLARE_METATYPE(PanoHost::ExitCode)
Q_DECLARE_METATYPE(Maker)

namespace
{

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}

/** All files below \p folder by their names in it, sorted. */
QStringList filesIn(const QString &folder)
{
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names += QDir(folder).relativeFilePath(files.next());
    }
    names.sort();
    return names;
}

} // namespace

class TestViewerFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyDepthShowsTheSame_data();
    void everyDepthShowsTheSame();
    void folderHoldsNothingElse();
    void tilesAreCutFromAnOpaquePicture_data() { eachFolder(); }
    void tilesAreCutFromAnOpaquePicture();
    void infoNamesEveryTile_data();
    void infoNamesEveryTile();
    void addressIsNeeded_data();
    void addressIsNeeded();
    void olderFolderIsReplaced_data();
    void olderFolderIsReplaced();
    void folderOfOthersIsRefused_data();
    void folderOfOthersIsRefused();
    void olderFolderStaysWhenSomethingFails_data();
    void olderFolderStaysWhenSomethingFails();
    void interruptionLeavesNothing_data() { eachKind(); }
    void interruptionLeavesNothing();
    void leftoversOfAKilledRunGo_data() { eachKind(); }
    void leftoversOfAKilledRunGo();
    void placeThatCannotBeWrittenIsNamed_data() { eachKind(); }
    void placeThatCannotBeWrittenIsNamed();
    void startAndEndAreReported_data() { eachKind(); }
    void startAndEndAreReported();

private:
    static void eachFolder();
    static void eachKind();
};

void TestViewerFiles::eachKind()
{
    eachFolder();
    QTest::newRow("page") << Maker(&makeSpherePage) << QStringLiteral("my pano[x].html");
}

void TestViewerFiles::eachFolder()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("made");
    QTest::newRow("zoom") << &makeZoomFolder << QStringLiteral("my pano[x]_zoom");
    QTest::newRow("iiif") << &makeIiifFolder << QStringLiteral("my pano[x]_iiif");
}

void TestViewerFiles::everyDepthShowsTheSame_data()
{
    QTest::addColumn<Depth>("depth");
    QTest::newRow("16 bits") << Depth::Bits16;
    QTest::newRow("radiance") << Depth::Radiance;
}

void TestViewerFiles::everyDepthShowsTheSame()
{
    QFETCH(Depth, depth);
    const TestSphere sphere({ 512, 256 }, {}, depth);
    QVERIFY(makeZoomFolder(sphere.job, {}));
    const QImage tile(sphere.path("my pano[x]_zoom/tiles_files/9/0_0.jpg"));
    QCOMPARE(tile.size(), QSize(512, 256));
    QVERIFY(isAlike(tile.pixel(256, 128), Marks::kFront));
    QVERIFY(isAlike(tile.pixel(320, 128), Marks::kElsewhere));
}

void TestViewerFiles::folderHoldsNothingElse()
{
    const TestSphere sphere({ 1, 1 });
    const Result<QString> made = makeZoomFolder(sphere.job, {});
    QVERIFY2(made, made ? "" : qPrintable(made.error().text()));
    QCOMPARE(filesIn(sphere.path("my pano[x]_zoom")),
             QStringList({ QStringLiteral(".panohost"), QStringLiteral("index.html"),
                           QStringLiteral("tiles.dzi"), QStringLiteral("tiles_files/0/0_0.jpg") }));
    QVERIFY(contentOf(made.value()).contains("Redistributions of source code must retain"));
    QCOMPARE(filesIn(sphere.job.workFolder), QStringList{ QStringLiteral("panorama.v") });
}

/** `vips` cuts tiles in several threads, and now and then one of them puts black behind what is
 * transparent, whatever background was asked for. */
void TestViewerFiles::tilesAreCutFromAnOpaquePicture()
{
    QFETCH(Maker, make);
    TestSphere sphere({ 600, 300 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    const QTemporaryDir tools;
    const DeliverBench::FakeTools fakes(tools.path());
    fakes.add(QStringLiteral("vips"),
              "[ \"$1\" = dzsave ] && vipsheader -f bands \"$2\" > '"
                  + QFile::encodeName(tools.filePath(QStringLiteral("bands"))) + "'\n"
                  + "exec vips \"$@\"\n");
    const Result<QString> made = make(sphere.job, {});
    QVERIFY2(made, made ? "" : qPrintable(made.error().text()));
    QCOMPARE(contentOf(tools.filePath(QStringLiteral("bands"))), QByteArray("3\n"));
}

void TestViewerFiles::infoNamesEveryTile_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("address");
    QTest::newRow("several tiles")
        << QSize(1300, 700) << QStringLiteral("https://example.org/panos");
    QTest::newRow("one tile") << QSize(512, 300) << QStringLiteral("https://example.org/panos/");
    QTest::newRow("small") << QSize(3, 1) << QStringLiteral("http://localhost:8080//");
    QTest::newRow("high") << QSize(20, 1100) << QStringLiteral("https://example.org/\u00fc?x");
}

void TestViewerFiles::infoNamesEveryTile()
{
    QFETCH(QSize, size);
    QFETCH(QString, address);
    TestSphere sphere({ 4000, 2000 }, { QPoint(10, 10), size });
    sphere.job.iiifAddress = address;
    const Result<QString> made = makeIiifFolder(sphere.job, {});
    QVERIFY2(made, made ? "" : qPrintable(made.error().text()));
    QCOMPARE(made.value(), sphere.path("my pano[x]_iiif/info.json"));
    QJsonParseError error{};
    const QJsonObject info = QJsonDocument::fromJson(contentOf(made.value()), &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    while (address.endsWith(QLatin1Char('/'))) {
        address.chop(1);
    }
    QCOMPARE(info.value(QStringLiteral("id")).toString(),
             address + QStringLiteral("/my%20pano%5Bx%5D_iiif"));
    QCOMPARE(info.value(QStringLiteral("@context")).toString(),
             QStringLiteral("http://iiif.io/api/image/3/context.json"));
    QCOMPARE(info.value(QStringLiteral("protocol")).toString(),
             QStringLiteral("http://iiif.io/api/image"));
    QCOMPARE(info.value(QStringLiteral("type")).toString(), QStringLiteral("ImageService3"));
    QCOMPARE(info.value(QStringLiteral("profile")).toString(), QStringLiteral("level0"));
    QCOMPARE(info.value(QStringLiteral("width")).toInt(), size.width());
    QCOMPARE(info.value(QStringLiteral("height")).toInt(), size.height());

    // What a viewer asks for, worked out from the description alone.
    const QDir folder(QFileInfo(made.value()).path());
    const auto sizeOf = [&folder](const QString &request) {
        return QImageReader(folder.filePath(request + QStringLiteral("/0/default.jpg"))).size();
    };
    const QJsonObject tiles = info.value(QStringLiteral("tiles")).toArray().at(0).toObject();
    const int side = tiles.value(QStringLiteral("width")).toInt();
    QCOMPARE(side, 512);
    int asked = 0;
    for (const QJsonValue factor : tiles.value(QStringLiteral("scaleFactors")).toArray()) {
        const int step = side * factor.toInt();
        for (int y = 0; y < size.height(); y += step) {
            for (int x = 0; x < size.width(); x += step) {
                const QSize region(qMin(step, size.width() - x), qMin(step, size.height() - y));
                const QSize shown((region.width() + factor.toInt() - 1) / factor.toInt(),
                                  (region.height() + factor.toInt() - 1) / factor.toInt());
                const bool whole = region == size;
                const QString request = (whole ? QStringLiteral("full")
                                               : QStringLiteral("%1,%2,%3,%4")
                                                     .arg(QString::number(x), QString::number(y),
                                                          QString::number(region.width()),
                                                          QString::number(region.height())))
                    + QStringLiteral("/%1,%2").arg(shown.width()).arg(shown.height());
                QVERIFY2(sizeOf(request) == shown, qPrintable(request));
                ++asked;
            }
        }
    }
    QVERIFY(asked > 0);
    const QJsonObject whole = info.value(QStringLiteral("sizes")).toArray().at(0).toObject();
    const QSize wholeSize(whole.value(QStringLiteral("width")).toInt(),
                          whole.value(QStringLiteral("height")).toInt());
    QVERIFY(!wholeSize.isEmpty()
            && wholeSize.width() <= info.value(QStringLiteral("maxWidth")).toInt());
    QCOMPARE(sizeOf(QStringLiteral("full/max")), wholeSize);
    QCOMPARE(sizeOf(QStringLiteral("full/%1,%2").arg(wholeSize.width()).arg(wholeSize.height())),
             wholeSize);
}

void TestViewerFiles::addressIsNeeded_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("none") << QString();
    QTest::newRow("nothing in it") << QStringLiteral("//");
}

void TestViewerFiles::addressIsNeeded()
{
    QFETCH(QString, address);
    TestSphere sphere({ 64, 32 });
    sphere.job.iiifAddress = address;
    const Result<QString> made = makeIiifFolder(sphere.job, {});
    QVERIFY(!made);
    QCOMPARE(made.error().code, ExitCode::Usage);
    QVERIFY(made.error().text().contains(QStringLiteral("address")));
    QVERIFY(!QFile::exists(sphere.path("my pano[x]_iiif")));
}

void TestViewerFiles::olderFolderIsReplaced_data()
{
    eachFolder();
}

void TestViewerFiles::olderFolderIsReplaced()
{
    QFETCH(Maker, make);
    QFETCH(QString, made);
    TestSphere sphere({ 2048, 1024 }, { 0, 0, 1300, 4 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    QVERIFY(make(sphere.job, {}));
    const QStringList before = filesIn(sphere.folder.filePath(made));
    TestSphere smaller({ 64, 32 });
    sphere.job.picture = smaller.job.picture;
    sphere.job.workFolder = smaller.job.workFolder;
    QVERIFY(make(sphere.job, {}));
    const QStringList after = filesIn(sphere.folder.filePath(made));
    QVERIFY(before.size() > 8);
    QVERIFY(after.size() < before.size());
    QCOMPARE(QDir(sphere.folder.path())
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                 .size(),
             2); // it and the work folder
}

void TestViewerFiles::folderOfOthersIsRefused_data()
{
    eachFolder();
}

void TestViewerFiles::folderOfOthersIsRefused()
{
    QFETCH(Maker, make);
    QFETCH(QString, made);
    TestSphere sphere({ 64, 32 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    const QString diary = sphere.folder.filePath(made + QStringLiteral("/diary.txt"));
    QVERIFY(write(diary, "mine"));
    const Result<QString> result = make(sphere.job, {});
    QVERIFY(!result);
    QCOMPARE(result.error().what, sphere.folder.filePath(made));
    QCOMPARE(filesIn(sphere.folder.filePath(made)), QStringList{ QStringLiteral("diary.txt") });
    QCOMPARE(contentOf(diary), QByteArray("mine"));
}

void TestViewerFiles::olderFolderStaysWhenSomethingFails_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QByteArray>("vips"); ///< a program in its place; empty: none
    QTest::addColumn<ExitCode>("code");
    QTest::addColumn<QString>("said");
    const auto rows = [](const char *kind, Maker make) {
        const auto row = [kind, make](const char *name, const QByteArray &vips, ExitCode code,
                                      const char *said) {
            QTest::newRow(QByteArray(kind).append(": ").append(name).constData())
                << make << vips << code << QString::fromLatin1(said);
        };
        row("vips is missing", {}, ExitCode::ToolMissing, "apt install libvips-tools");
        row("vips fails", "echo no room >&2; exit 1\n", ExitCode::ToolFailed, "no room");
        row("vips leaves nothing", "exit 0\n", ExitCode::ToolFailed, "incomplete");
        row("vips leaves half a tile",
            "/bin/mkdir -p $3; printf '\\377\\330\\377 and so on' >$3/0_0.jpg\n",
            ExitCode::ToolFailed, "incomplete");
        row("vips leaves too few tiles",
            "/bin/mkdir -p $3; printf '\\377\\330 and \\377\\331' >$3/0_0.jpg\n",
            ExitCode::ToolFailed, "incomplete");
    };
    rows("zoom", &makeZoomFolder);
    rows("iiif", &makeIiifFolder);
}

void TestViewerFiles::olderFolderStaysWhenSomethingFails()
{
    QFETCH(Maker, make);
    QFETCH(QByteArray, vips);
    QFETCH(ExitCode, code);
    QFETCH(QString, said);
    TestSphere sphere({ 2048, 1024 }, { 0, 0, 600, 2 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    const QString mark = QStringLiteral("/.panohost");
    for (const char *folder : { "my pano[x]_zoom", "my pano[x]_iiif" }) {
        QVERIFY(write(sphere.path(folder) + mark, "older"));
    }
    const QTemporaryDir tools;
    if (!vips.isEmpty()) {
        const QString tool = tools.filePath(QStringLiteral("vips"));
        QVERIFY(write(tool, "#!/bin/sh\n" + vips));
        QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner));
    }
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(tools.path()));
    const Result<QString> made = make(sphere.job, {});
    qputenv("PATH", path);
    QVERIFY(!made);
    QCOMPARE(made.error().code, code);
    QVERIFY2(made.error().text().contains(said), qPrintable(made.error().text()));
    for (const char *folder : { "my pano[x]_zoom", "my pano[x]_iiif" }) {
        QCOMPARE(filesIn(sphere.path(folder)), QStringList{ mark.mid(1) });
    }
    QCOMPARE(filesIn(sphere.job.workFolder), QStringList{ QStringLiteral("panorama.v") });
}

void TestViewerFiles::interruptionLeavesNothing()
{
    QFETCH(Maker, make);
    QFETCH(QString, made);
    TestSphere sphere({ 64, 32 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    JobWatch watch;
    watch.interrupted = [] { return true; };
    const Result<QString> result = make(sphere.job, watch);
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::Interrupted);
    QVERIFY(!QFile::exists(sphere.folder.filePath(made)));
    QCOMPARE(filesIn(sphere.job.workFolder), QStringList{ QStringLiteral("panorama.v") });
}

void TestViewerFiles::leftoversOfAKilledRunGo()
{
    QFETCH(Maker, make);
    TestSphere sphere({ 64, 32 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    for (const char *part : { "html", "zoom", "iiif" }) {
        QVERIFY(write(QDir(sphere.job.workFolder)
                          .filePath(QStringLiteral("part-%1/%1/tiles_files/9/0_0.jpg")
                                        .arg(QString::fromLatin1(part))),
                      "half"));
    }
    QVERIFY(make(sphere.job, {}));
    QCOMPARE(filesIn(sphere.job.workFolder).size(), 3); // the other two are not its own
}

void TestViewerFiles::placeThatCannotBeWrittenIsNamed()
{
    QFETCH(Maker, make);
    TestSphere sphere({ 64, 32 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    sphere.job.output = sphere.path("not there/a.jpg");
    const Result<QString> result = make(sphere.job, {});
    QVERIFY(!result);
    QVERIFY2(result.error().text().contains(QStringLiteral("not there")),
             qPrintable(result.error().text()));
    QCOMPARE(filesIn(sphere.job.workFolder), QStringList{ QStringLiteral("panorama.v") });
}

void TestViewerFiles::startAndEndAreReported()
{
    QFETCH(Maker, make);
    TestSphere sphere({ 64, 32 });
    sphere.job.iiifAddress = QStringLiteral("https://example.org");
    QStringList reports;
    JobWatch watch;
    watch.progress = [&reports](int done, int total, const QString &text) {
        reports += QStringLiteral("%1/%2%3").arg(QString::number(done), QString::number(total),
                                                 text.isEmpty() ? QStringLiteral(" ?") : QString());
    };
    QVERIFY(make(sphere.job, watch));
    QCOMPARE(reports, QStringList({ QStringLiteral("0/1"), QStringLiteral("1/1") }));
}

TEST_CLASS(TestViewerFiles, QCoreApplication)
#include "tst_viewerfiles.moc"
