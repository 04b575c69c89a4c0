// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/makebench.h"
#include "tests/host/cli/tinydisk.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QtTest>

namespace
{

const QByteArray kOld = "an older result";
const QString kFolder = QStringLiteral("bad"); ///< of what is made, and its work folder
const QStringList kAllKinds{ QStringLiteral("picture"), QStringLiteral("html"),
                             QStringLiteral("zoom"), QStringLiteral("cube"),
                             QStringLiteral("iiif") };

/** A disk that fills up when a tool begins. */
struct FullDiskRow {
    QString output;
    QString kind;
    QString tool;
    QString first; ///< of the tool's arguments
    int kilobytes; ///< that are left
    QString message;
};

/** Paths below \p folder with what the files hold, in order. */
QMap<QString, QByteArray> treeOf(const QString &folder)
{
    QMap<QString, QByteArray> tree;
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        tree.insert(QDir(folder).relativeFilePath(file.fileName()),
                    file.open(QIODevice::ReadOnly)
                        ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256)
                        : QByteArray());
    }
    return tree;
}

/** The files that are not in both folders alike, with their sizes. */
QString differencesOf(const QString &made, const QString &whole)
{
    const QMap<QString, QByteArray> left = treeOf(made);
    const QMap<QString, QByteArray> right = treeOf(whole);
    QStringList names = left.keys() + right.keys();
    names.removeDuplicates();
    QString text;
    for (const QString &name : qAsConst(names)) {
        if (left.value(name) != right.value(name)) {
            text += QStringLiteral("%1: %2 bytes, %3 in an undisturbed run\n")
                        .arg(name)
                        .arg(QFileInfo(QDir(made).filePath(name)).size())
                        .arg(QFileInfo(QDir(whole).filePath(name)).size());
        }
    }
    return text;
}

QStringList optionsFor(const QString &kind)
{
    QStringList options{ QStringLiteral("--deliver"), kind, QStringLiteral("--progress"),
                         QStringLiteral("none") };
    if (kind.contains(QLatin1String("iiif"))) {
        options += { QStringLiteral("--iiif-address"), QStringLiteral("https://example.org/p") };
    }
    if (kind == QLatin1String("radiance")) {
        options += { QStringLiteral("--output"), QStringLiteral("hdr") };
    }
    return options;
}

/** The file or folder of \p kind that is made with \p output. */
QString nameFor(const QString &output, const QString &kind)
{
    const QFileInfo file(output);
    const QString stem = file.dir().filePath(file.completeBaseName());
    return kind == QLatin1String("picture") ? output
        : kind == QLatin1String("html")     ? stem + QStringLiteral(".html")
        : kind == QLatin1String("radiance") ? stem + QStringLiteral(".exr")
                                            : stem + QLatin1Char('_') + kind;
}

} // namespace

/** The commands make and stitch where tools, disks, places and photos are bad. */
class TestCliMakeBad : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void toolFails_data();
    void toolFails();
    void diskIsFull_data();
    void diskIsFull();
    void diskFillsUpAtATool();
    void temporaryFolderIsNotNeeded_data();
    void temporaryFolderIsNotNeeded();
    void placeIsTaken_data();
    void placeIsTaken();
    void photosOfAProjectAreGone();
    void cutOffPhotoIsNamed();

private:
    /** Has the tool \p name do \p script when its arguments begin with \p first. */
    void setTool(const QString &name, const QString &first, const QByteArray &script,
                 const QString &folder = QStringLiteral("tools"));
    /** Puts an older result where \p kind of \p output goes. */
    void putOlder(const QString &output, const QString &kind);
    /** What is not as it should be after a run that failed with \p message. */
    [[nodiscard]] QString problemOf(const CliBench::Run &run, const QString &message) const;
    [[nodiscard]] QString scriptFor(const FullDiskRow &row, const QString &number,
                                    const TinyDisk &disk);
    [[nodiscard]] QString problemOf(const FullDiskRow &row, const QString &number) const;
    /** The same once the cause is gone: what it makes is compared with an undisturbed run. */
    [[nodiscard]] QString problemOfCured(const QString &output, const QString &kind,
                                         const QStringList &options) const;
    [[nodiscard]] QString path(const QString &name) const { return m_bench.path(name); }

    MakeBench m_bench;
    QString m_usualPath;
    QString m_usualTemporary;
    QMap<QString, QByteArray> m_inputs;
    QMap<QString, QByteArray> m_before; ///< in the folder, but for the work folders
};

void TestCliMakeBad::initTestCase()
{
    QCOMPARE(m_bench.shotPhotos().size(), 6);
    m_usualPath = m_bench.environment().value(QStringLiteral("PATH"));
    m_usualTemporary = m_bench.environment().value(QStringLiteral("TMPDIR"));
    m_inputs = treeOf(path(QStringLiteral("photos")));
    m_bench.makeFolder(kFolder);
    for (const char *output : { "whole/pano.jpg", "whole/deep.tif" }) {
        const auto run = m_bench.make(QString::fromLatin1(output),
                                      optionsFor(kAllKinds.join(QLatin1Char(','))));
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    }
    const auto light
        = m_bench.make(QStringLiteral("whole/light.jpg"), optionsFor(QStringLiteral("radiance")));
    QVERIFY2(light.exitCode == 0, qPrintable(light.err));
}

void TestCliMakeBad::init()
{
    m_before.clear();
}

void TestCliMakeBad::cleanup()
{
    m_bench.environment().insert(QStringLiteral("PATH"), m_usualPath);
    m_bench.environment().insert(QStringLiteral("TMPDIR"), m_usualTemporary);
    QDir(path(QStringLiteral("tools"))).removeRecursively();
    QDir folder(path(kFolder));
    for (const QFileInfo &entry : folder.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        if (entry.suffix() != QLatin1String("work")) { // later rows go on from there
            entry.isDir() ? QDir(entry.filePath()).removeRecursively()
                          : QFile::remove(entry.filePath());
        }
    }
}

void TestCliMakeBad::setTool(const QString &name, const QString &first, const QByteArray &script,
                             const QString &folder)
{
    const QString real = QStandardPaths::findExecutable(name);
    QVERIFY(!real.isEmpty());
    m_bench.makeFolder(folder);
    const QString file = m_bench.file(folder + QLatin1Char('/') + name,
                                      "#!/bin/sh\nreal=" + QFile::encodeName(real)
                                          + "\ncase \"$*\" in " + first.toUtf8() + "*)\n" + script
                                          + "\n;;\nesac\nexec \"$real\" \"$@\"\n");
    QVERIFY(
        QFile::setPermissions(path(file), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    m_bench.environment().insert(QStringLiteral("PATH"),
                                 path(folder) + QLatin1Char(':') + m_usualPath);
}

void TestCliMakeBad::putOlder(const QString &output, const QString &kind)
{
    const QString name = nameFor(output, kind);
    if (name.contains(QLatin1Char('.'))) {
        m_bench.file(name, kOld);
    } else {
        m_bench.makeFolder(name);
        m_bench.file(name + QStringLiteral("/.panohost"), {});
        m_bench.file(name + QStringLiteral("/old.jpg"), kOld);
    }
    m_before = treeOf(path(kFolder));
}

QString TestCliMakeBad::problemOf(const CliBench::Run &run, const QString &message) const
{
    const QString last = run.err.trimmed().section(QLatin1Char('\n'), -1);
    const QRegularExpression expected(
        QRegularExpression::anchoredPattern(QStringLiteral("panohost: error: ") + message));
    if (run.exitCode != 1 || !expected.match(last).hasMatch()) {
        return QStringLiteral("exit code %1: %2").arg(QString::number(run.exitCode), run.err);
    }
    if (run.err.count(QStringLiteral("panohost: error: ")) != 1
        || !run.err.contains(QStringLiteral("the same command goes on from there\n"))) {
        return run.err;
    }
    if (treeOf(path(QStringLiteral("photos"))) != m_inputs) {
        return QStringLiteral("The photos are not as they were");
    }
    QMap<QString, QByteArray> after;
    const QMap<QString, QByteArray> all = treeOf(path(kFolder));
    for (auto file = all.begin(); file != all.end(); ++file) {
        if (!file.key().contains(QLatin1String(".work/"))) {
            after.insert(file.key(), file.value());
        } else if (file.key().contains(QLatin1String("part"))) {
            return QStringLiteral("left: ") + file.key();
        }
    }
    for (auto file = m_before.begin(); file != m_before.end(); ++file) {
        if (!file.key().contains(QLatin1String(".work/"))
            && after.take(file.key()) != file.value()) {
            return QStringLiteral("changed: ") + file.key();
        }
    }
    return after.keys().join(QLatin1Char(' ')) + m_bench.leftovers().join(QLatin1Char(' '));
}

QString TestCliMakeBad::problemOfCured(const QString &output, const QString &kind,
                                       const QStringList &options) const
{
    const auto run = m_bench.make(output, options);
    if (run.exitCode != 0) {
        return run.err;
    }
    const QString made = nameFor(output, kind);
    const QString whole = nameFor(QStringLiteral("whole/") + QFileInfo(output).fileName(), kind);
    const bool isSame = QFileInfo(path(made)).isDir()
        ? treeOf(path(made)) == treeOf(path(whole)) && !treeOf(path(made)).isEmpty()
        : m_bench.content(made) == m_bench.content(whole) && !m_bench.content(made).isEmpty();
    return isSame ? QString() : made + QStringLiteral(" is not as of an undisturbed run");
}

void TestCliMakeBad::toolFails_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("message");
    const QString jpg = QStringLiteral("bad/pano.jpg");
    const QString tif = QStringLiteral("bad/deep.tif");
    const QString light = QStringLiteral("bad/light.jpg");
    const auto row = [](const char *name, const QString &output, const char *kind, const char *tool,
                        const char *first, const QByteArray &script, const char *message) {
        QTest::newRow(name) << output << QString::fromLatin1(kind) << QString::fromLatin1(tool)
                            << QString::fromLatin1(first) << script << QString::fromUtf8(message);
    };
    // As on a disk that is full: nothing that grows beyond some kilobytes can be written.
    const QByteArray full = "ulimit -f 16";
    const char *const room = "; is there enough room in bad/.*\\?.*";
    const auto noRoom = [&](const QByteArray &who) {
        return QByteArray(who + ": it (failed|crashed \\(signal 6\\)) and said: .*" + room);
    };
    row("nona: full disk", jpg, "picture", "nona", "", full,
        noRoom("nona, of photos/demo_000[1-6].jpg").constData());
    row("nona: killed", jpg, "picture", "nona", "", "kill -KILL $$",
        "nona, of photos/demo_000[1-6].jpg: it was killed, perhaps because memory ran out; close "
        "other programs and try again");
    row("nona: half", jpg, "picture", "nona", "",
        "\"$real\" \"$@\"; for f in warped/part-*0000.tif; do truncate -cs 90000 $f; done; exit 0",
        "warped/0000[0-5].tif: was not written to its end"
        "; is there enough room in bad/pano.work\\?");
    row("verdandi: full disk", jpg, "picture", "verdandi", "", full,
        noRoom("verdandi").constData());
    row("verdandi: fails without a word", jpg, "picture", "verdandi", "", "exit 3",
        "verdandi: it failed without a message; is the disk full, or a file damaged that it "
        "reads\\?");
    row("vips embed: full disk", jpg, "picture", "vips", "embed", full, noRoom("vips").constData());
    row("JPEG: full disk", jpg, "picture", "vips", "insert", full, noRoom("vips").constData());
    row("JPEG: half", jpg, "picture", "vips", "insert",
        "\"$real\" \"$@\"; truncate -s 5000 plain.jpg; exit 0",
        "vips: it left a file that is not complete; is the disk full\\? make room and try again");
    row("TIFF: full disk", tif, "picture", "vips", "insert", full,
        "vips: it (failed|crashed \\(signal [0-9]+\\)).*; is there enough room in .*");
    row("TIFF: half", tif, "picture", "vips", "insert",
        "\"$real\" \"$@\"; truncate -s 500000 panorama.tif; exit 0",
        "vips: it left a file that is not complete; is the disk full\\? make room and try again");
    row("page: full disk", jpg, "html", "vips", "copy", full, noRoom("vips").constData());
    row("zoom: full disk", jpg, "zoom", "vips", "dzsave", full,
        "vips: it left bad/pano.work/part-zoom/zoom incomplete; is the disk full\\?");
    row("zoom: a tile is missing", jpg, "zoom", "vips", "dzsave",
        "\"$real\" \"$@\"; rm -f zoom/tiles_files/10/0_0.jpg; exit 0",
        "vips: it left bad/pano.work/part-zoom/zoom incomplete; is the disk full\\?");
    row("cube: killed", tif, "cube", "vips", "insert", "kill -KILL $$",
        "vips: it was killed, perhaps because memory ran out; close other programs and try again");
    row("iiif: whole picture: full disk", jpg, "iiif", "vips", "thumbnail", full,
        noRoom("vips").constData());
    row("light: full disk", light, "radiance", "vips", "copy", full, noRoom("vips").constData());
    row("light: half", light, "radiance", "vips", "linear",
        "\"$real\" \"$@\"; truncate -s 5000 part-panorama.v; exit 0",
        "panorama.v: was not written to its end; is there enough room in bad/light.work\\?");
}

void TestCliMakeBad::toolFails()
{
    QFETCH(QString, output);
    QFETCH(QString, kind);
    QFETCH(QString, tool);
    QFETCH(QString, first);
    QFETCH(QByteArray, script);
    QFETCH(QString, message);
    putOlder(output, kind);
    setTool(tool, first, script);
    const QStringList options = optionsFor(kind);
    QCOMPARE(problemOf(m_bench.make(output, options), message), QString());
    m_bench.environment().insert(QStringLiteral("PATH"), m_usualPath);
    QCOMPARE(problemOfCured(output, kind, options), QString());
}

void TestCliMakeBad::diskIsFull_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("isStitched"); // already
    QTest::addColumn<int>("kilobytes");
    QTest::addColumn<QString>("file");
    const QString jpg = QStringLiteral("bad/pano.jpg");
    const QString picture = QStringLiteral("picture");
    QTest::newRow("import") << jpg << picture << false << 1
                            << QStringLiteral("bad/pano.work/part-1_import.json");
    QTest::newRow("align") << jpg << picture << false << 8
                           << QStringLiteral("bad/pano.work/part-2_aligned.pto");
    QTest::newRow("page") << jpg << QStringLiteral("html") << true << 120
                          << QStringLiteral("bad/pano.work/part-html/page.html");
    QTest::newRow("zoom's page") << jpg << QStringLiteral("zoom") << true << 120
                                 << QStringLiteral("bad/pano.work/part-zoom/zoom/index.html");
    QTest::newRow("face") << jpg << QStringLiteral("cube") << true << 20
                          << QStringLiteral("bad/pano.work/cube.part/faces/face.v");
    QTest::newRow("EXR") << QStringLiteral("bad/light.jpg") << QStringLiteral("radiance") << true
                         << 500 << QStringLiteral("bad/light.work/radiance.part/panorama.exr");
}

void TestCliMakeBad::diskIsFull()
{
    QFETCH(QString, output);
    QFETCH(QString, kind);
    QFETCH(bool, isStitched);
    QFETCH(int, kilobytes);
    QFETCH(QString, file);
    const QString work = output.chopped(4) + QStringLiteral(".work");
    if (isStitched) {
        QCOMPARE(m_bench.make(output, optionsFor(kind)).exitCode, 0);
        QVERIFY(QFile::remove(path(QStringLiteral("%1/delivered_%2.json").arg(work, kind))));
    } else {
        QVERIFY(QDir(path(work)).removeRecursively());
    }
    const QString made = nameFor(output, kind);
    QFileInfo(path(made)).isDir() ? QDir(path(made)).removeRecursively()
                                  : QFile::remove(path(made));
    putOlder(output, kind);
    const QStringList options = optionsFor(kind);
    const auto run = m_bench.runOnFullDisk(m_bench.makeWords(output, options), kilobytes);
    QCOMPARE(problemOf(run,
                       QRegularExpression::escape(file)
                           + QStringLiteral(": cannot be written \\(File too large\\); make room "
                                            "there (and try again|or choose another place)")),
             QString());
    QCOMPARE(problemOfCured(output, kind, options), QString());
}

/** Shell lines that make \p row on the full file system, and once more when it has room. */
QString TestCliMakeBad::scriptFor(const FullDiskRow &row, const QString &number,
                                  const TinyDisk &disk)
{
    const QString tools = QStringLiteral("full/") + number;
    setTool(row.tool, row.first,
            "[ -e '" + path(QStringLiteral("tiny/filler")).toUtf8() + "' ] || {\n"
                + disk.fill(row.kilobytes).toUtf8() + "}",
            tools);
    m_bench.environment().insert(QStringLiteral("PATH"), m_usualPath);
    QString words;
    // One photo after the other: the first tool fills the disk while no other is writing.
    const QStringList oneByOne{ QStringLiteral("--jobs"), QStringLiteral("1") };
    for (const QString &word : m_bench.makeWords(row.output, optionsFor(row.kind) + oneByOne)) {
        words += QStringLiteral(" '%1'").arg(word);
    }
    const QString made = nameFor(row.output, row.kind);
    const bool isFile = made.contains(QLatin1Char('.'));
    const QString older = isFile ? made : made + QStringLiteral("/old");
    return QStringLiteral("rm -rf %1\n").arg(made)
        + (isFile ? QString() : QStringLiteral("mkdir %1; : > %1/.panohost\n").arg(made))
        + QStringLiteral("printf 'older\\n' > %1\n").arg(older)
        + QStringLiteral("one() { '%1' %2; }\n").arg(QStringLiteral(PANOHOST_TEST_BINARY), words)
        + QStringLiteral("PATH='%1':$PATH one > said%2 2>&1; echo $? > code%2\n")
              .arg(path(tools), number)
        + QStringLiteral("{ cat %1; ls -A tiny; find tiny -name '*part*'; } > left%2\n")
              .arg(older, number)
        + QStringLiteral("rm -rf tiny/filler %1; one > cured%2 2>&1; cp -r %1 made%2; rm -rf %1\n")
              .arg(made, number);
}

QString TestCliMakeBad::problemOf(const FullDiskRow &row, const QString &number) const
{
    const auto kept = [&](const char *name) {
        return QString::fromUtf8(m_bench.content(QLatin1String(name) + number));
    };
    const QString said = kept("said");
    const QRegularExpression expected(QStringLiteral("^panohost: error: %1").arg(row.message));
    if (kept("code") != QLatin1String("1\n")
        || !expected.match(said.trimmed().section(QLatin1Char('\n'), -1)).hasMatch()) {
        return kept("code") + said;
    }
    const QString made = nameFor(row.output, row.kind);
    QStringList left{ QStringLiteral("filler"), QFileInfo(made).fileName(),
                      QFileInfo(row.output).completeBaseName() + QStringLiteral(".work") };
    if (row.output.endsWith(QLatin1String(".tif"))) {
        left += QStringLiteral("pano.work"); // of the rows before
    }
    QStringList seen = kept("left").split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QString older = seen.takeFirst();
    std::sort(seen.begin(), seen.end());
    std::sort(left.begin(), left.end());
    if (older != QLatin1String("older") || seen != left) {
        return kept("left");
    }
    const QString whole
        = nameFor(QStringLiteral("whole/") + QFileInfo(row.output).fileName(), row.kind);
    const QString cured = QStringLiteral("made") + number;
    if (QFileInfo(path(cured)).isDir()) {
        const QString differences = differencesOf(path(cured), path(whole));
        return differences.isEmpty() ? QString() : differences + kept("cured");
    }
    return m_bench.content(cured) == m_bench.content(whole) ? QString() : kept("cured");
}

/** A real file system, to the last byte; one for all, since it is gone with who has mounted it. */
void TestCliMakeBad::diskFillsUpAtATool()
{
    constexpr int kMegabytes = 64;
    TinyDisk disk(&m_bench, kMegabytes);
    if (const QString problem = disk.problem(); !problem.isEmpty()) {
        QSKIP(qPrintable(problem));
    }
    const QByteArray noRoom = ": it failed, and there is hardly any room left on the disk at "
        + path(QStringLiteral("tiny")).toUtf8()
        + " \\(0 MB\\); make room there and go on with the same command; nothing is lost$";
    const QByteArray notWritten = ": cannot be written \\(No space left on device\\); make room";
    const auto row = [](const char *output, const char *kind, const char *tool, const char *first,
                        int kilobytes, const QByteArray &message) {
        return FullDiskRow{
            QLatin1String(output), QLatin1String(kind), QLatin1String(tool),
            QLatin1String(first),  kilobytes,           QString::fromUtf8(message)
        };
    };
    const char *const jpg = "tiny/pano.jpg";
    const QVector<FullDiskRow> rows{
        row(jpg, "picture", "nona", "", 0, "(nona, of photos/|warped/).*" + noRoom),
        row(jpg, "picture", "nona", "", 100, "(nona, of photos/|warped/).*" + noRoom),
        row(jpg, "picture", "verdandi", "", 100, "verdandi" + noRoom),
        row(jpg, "picture", "vips", "embed", 100, "vips" + noRoom),
        row(jpg, "picture", "vips", "insert", 0, "vips" + noRoom),
        row(jpg, "picture", "vips", "insert", 100,
            "tiny/pano.work/picture.part/panorama.jpg" + notWritten),
        row(jpg, "html", "vips", "copy", 100, "tiny/pano.work/part-html/page.html" + notWritten),
        row(jpg, "zoom", "vips", "dzsave", 0, "vips" + noRoom),
        row(jpg, "cube", "vips", "insert", 0, "vips" + noRoom),
        row(jpg, "iiif", "vips", "thumbnail", 0, "vips" + noRoom),
        row("tiny/deep.tif", "picture", "vips", "insert", 100, "vips" + noRoom),
    };
    QString script;
    for (int i = 0; i < rows.size(); ++i) {
        script += scriptFor(rows.at(i), QString::number(i), disk);
    }
    const auto run = disk.shell(script, {});
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    for (int i = 0; i < rows.size(); ++i) {
        const FullDiskRow &tried = rows.at(i);
        const QString problem = problemOf(tried, QString::number(i));
        QVERIFY2(
            problem.isEmpty(),
            qPrintable(tried.tool + QLatin1Char(' ') + tried.first + QLatin1Char(' ') + problem));
    }
}

void TestCliMakeBad::temporaryFolderIsNotNeeded_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("gone") << path(QStringLiteral("gone"));
    QTest::newRow("cannot be written") << QStringLiteral("/proc");
    QTest::newRow("a device") << QStringLiteral("/dev/full");
}

/** The room that is looked for beforehand is all that is used. */
void TestCliMakeBad::temporaryFolderIsNotNeeded()
{
    QFETCH(QString, folder);
    m_bench.environment().insert(QStringLiteral("TMPDIR"), folder);
    const QString output = QStringLiteral("bad/deep.tif");
    const QString picture = QStringLiteral("picture");
    const auto run = m_bench.make(output, optionsFor(picture));
    QVERIFY2(!run.err.contains(QStringLiteral("QStandardPaths")), qPrintable(run.err));
    QCOMPARE(problemOfCured(output, picture, optionsFor(picture)), QString());
}

void TestCliMakeBad::placeIsTaken_data()
{
    QTest::addColumn<QString>("folder"); // is there
    QTest::addColumn<QString>("file"); // is there
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *folder, const char *file, const char *output,
                        const char *kind, const char *message) {
        QTest::newRow(name) << QString::fromLatin1(folder) << QString::fromLatin1(file)
                            << QString::fromLatin1(output) << QString::fromLatin1(kind)
                            << QString::fromLatin1(message);
    };
    row("picture is a folder", "bad/a.jpg", "", "bad/a.jpg", "picture",
        "bad/a.jpg: is a folder; name a file in it");
    row("page is a folder", "bad/a.html", "", "bad/a.jpg", "picture,html",
        "bad/a.html: is a folder; remove it or choose another name with -o");
    row("light is a folder", "bad/a.exr", "", "bad/a.jpg", "radiance",
        "bad/a.exr: is a folder; remove it or choose another name with -o");
    row("tiles in somebody's folder", "bad/a_zoom", "bad/a_zoom/mine", "bad/a.jpg", "zoom",
        "bad/a_zoom: is a folder that panohost has not made; remove it or choose another name "
        "with -o");
    row("cube is a file", "", "bad/a_cube", "bad/a.jpg", "cube",
        "bad/a_cube: is a file, and a folder of that name is wanted; remove it or choose another "
        "name with -o");
    row("iiif is a file", "", "bad/a_iiif", "bad/a.jpg", "iiif",
        "bad/a_iiif: is a file, and a folder of that name is wanted; remove it or choose another "
        "name with -o");
    row("work folder is a file", "", "bad/a.work", "bad/a.jpg", "picture",
        "bad/a.work: this folder cannot be made; there is a file of that name: rename it, or "
        "choose another name with -o");
    row("work folder is somebody's", "bad/b.work", "bad/b.work/mine", "bad/b.jpg", "picture",
        "bad/b.work: is to hold what is kept of this panorama, and holds something else; rename "
        "it, or choose another name with -o");
    row("read-only", "", "", "/proc/a.jpg", "picture",
        "/proc/a.jpg: cannot be written there: (No such file or directory|Permission denied); "
        "choose a folder of your own");
}

/** Said at once, and nothing is begun. */
void TestCliMakeBad::placeIsTaken()
{
    QFETCH(QString, folder);
    QFETCH(QString, file);
    QFETCH(QString, output);
    QFETCH(QString, kind);
    QFETCH(QString, message);
    if (!folder.isEmpty()) {
        m_bench.makeFolder(folder);
    }
    if (!file.isEmpty()) {
        m_bench.file(file, "mine");
    }
    const auto before = treeOf(path(kFolder));
    const auto run = m_bench.make(output, optionsFor(kind));
    const QRegularExpression expected(
        QRegularExpression::anchoredPattern(QStringLiteral("panohost: error: %1\n").arg(message)));
    QVERIFY2(expected.match(run.err).hasMatch(), qPrintable(run.err));
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(treeOf(path(kFolder)), before);
    QDir(path(QStringLiteral("bad/b.work"))).removeRecursively();
    QFile::remove(path(QStringLiteral("bad/a.work")));
}

void TestCliMakeBad::photosOfAProjectAreGone()
{
    const QString output = QStringLiteral("bad/stitched.jpg");
    const QStringList words{ QStringLiteral("stitch"),
                             QStringLiteral("whole/pano.work/2_aligned.pto"), QStringLiteral("-o"),
                             output };
    m_bench.file(output, kOld);
    const QDir photos(path(QStringLiteral("photos")));
    const QDir elsewhere(path({}));
    for (const char *name : { "demo_0002.jpg", "demo_0005.jpg" }) {
        QVERIFY(QFile::rename(photos.filePath(QLatin1String(name)),
                              elsewhere.filePath(QLatin1String(name))));
    }
    const auto run = m_bench.run(words);
    for (const char *name : { "demo_0002.jpg", "demo_0005.jpg" }) {
        QVERIFY(QFile::rename(elsewhere.filePath(QLatin1String(name)),
                              photos.filePath(QLatin1String(name))));
    }
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.endsWith(QStringLiteral(
                 "panohost: error: photos/demo_0002.jpg, photos/demo_0005.jpg: not there any more; "
                 "put the photos back where they were, or import them again\n")),
             qPrintable(run.err));
    QCOMPARE(m_bench.content(output), kOld);
    const auto cured = m_bench.run(words);
    QVERIFY2(cured.exitCode == 0, qPrintable(cured.err));
    QCOMPARE(m_bench.content(output), m_bench.content(QStringLiteral("whole/pano.jpg")));
}

void TestCliMakeBad::cutOffPhotoIsNamed()
{
    m_bench.makeFolder(QStringLiteral("cut"));
    QStringList words{ QStringLiteral("make"), QStringLiteral("papywizard"),
                       QStringLiteral("record.xml") };
    for (const QString &photo : m_bench.shotPhotos()) {
        words += QStringLiteral("cut/") + QFileInfo(photo).fileName();
        QVERIFY(QFile::copy(photo, path(words.last())));
    }
    QVERIFY(QFile::resize(path(QStringLiteral("cut/demo_0003.jpg")), 9000));
    const auto run
        = m_bench.run(words + QStringList{ QStringLiteral("-o"), QStringLiteral("bad/cut.jpg") });
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(run.err.contains(QStringLiteral(
                 "panohost: warning: cut/demo_0003.jpg: cannot be read to its end; copy it from "
                 "the card again, or take it again\n")),
             qPrintable(run.err));
}

TEST_CLASS(TestCliMakeBad, QCoreApplication)
#include "tst_cli_makebad.moc"
