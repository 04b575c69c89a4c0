// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/finalplace.h"
#include "host/model/safefile.h"
#include "tests/host/deliver/deliverbench.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

using namespace PanoHost;

namespace
{

QString write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write");
    }
    return path;
}

QByteArray contentOf(const QString &path)
{
    const auto read = readRegularFile(path, 1 << 20);
    return read ? read.value() : QByteArray("(none)");
}

/** Everything that lies in \p folder, by its name. */
QStringList in(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                  | QDir::NoDotAndDotDot);
}

dev_t deviceOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_dev : 0;
}

/** The finished thing is on another file system than its place, where there is one. */
void eachFileSystem()
{
    QTest::addColumn<bool>("isOther");
    QTest::newRow("same file system") << false;
    QTest::newRow("other file system") << true;
}

} // namespace

class TestFinalPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fileTakesThePlaceOfAnOlderOne_data() { eachFileSystem(); }
    void fileTakesThePlaceOfAnOlderOne();
    void fileTakesAnyName_data();
    void fileTakesAnyName();
    void linkIsFollowed();
    void placesThatTakeNoFileAreNamed_data();
    void placesThatTakeNoFileAreNamed();
    void folderTakesThePlaceOfAnOlderOwn_data() { eachFileSystem(); }
    void folderTakesThePlaceOfAnOlderOwn();
    void emptyFolderIsReplaced();
    void folderOfSomebodyElseIsRefused_data();
    void folderOfSomebodyElseIsRefused();
    void fullDiskLeavesEverythingAsItWas_data();
    void fullDiskLeavesEverythingAsItWas();
    void folderThatTakesNothingIsNamed();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_final->filePath(name); }
    /** Where the work is done; empty: there is no other file system. */
    [[nodiscard]] QString workFolder(bool isOther) const;

    std::unique_ptr<QTemporaryDir> m_final;
    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<QTemporaryDir> m_other;
};

void TestFinalPlace::init()
{
    m_final = std::make_unique<QTemporaryDir>();
    m_work = std::make_unique<QTemporaryDir>();
    m_other = std::make_unique<QTemporaryDir>(QStringLiteral("/dev/shm/finalplace-XXXXXX"));
}

QString TestFinalPlace::workFolder(bool isOther) const
{
    if (!isOther) {
        return m_work->path();
    }
    const bool differs = m_other->isValid() && deviceOf(m_other->path()) != deviceOf(at({}));
    return differs ? m_other->path() : QString();
}

void TestFinalPlace::fileTakesThePlaceOfAnOlderOne()
{
    QFETCH(bool, isOther);
    const QString work = workFolder(isOther);
    if (work.isEmpty()) {
        QSKIP("/dev/shm is no file system of its own here");
    }
    const QString part = write(QDir(work).filePath(QStringLiteral("part.jpg")), "new");
    const QString wanted = write(at(QStringLiteral("pano.jpg")), "older and longer");
    const Result<QString> moved = moveFile(part, wanted);
    QVERIFY2(moved.ok(), moved ? "" : qPrintable(moved.error().text()));
    QCOMPARE(moved.value(), wanted);
    QCOMPARE(contentOf(wanted), QByteArray("new"));
    QCOMPARE(in(work), QStringList());
    QCOMPARE(in(at({})), QStringList(QStringLiteral("pano.jpg")));
}

void TestFinalPlace::fileTakesAnyName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotes and blanks") << QStringLiteral(" it's a \"panorama\" .jpg");
    QTest::newRow("newline") << QStringLiteral("a\nb.jpg");
    QTest::newRow("brackets") << QStringLiteral("a[1].jpg");
    QTest::newRow("Japanese") << QString::fromUtf8("パノラマ.jpg");
    QTest::newRow("dash first") << QStringLiteral("-o.jpg");
}

void TestFinalPlace::fileTakesAnyName()
{
    QFETCH(QString, name);
    const QString part = write(m_work->filePath(QStringLiteral("part.jpg")), "new");
    QVERIFY(moveFile(part, at(name)).ok());
    QCOMPARE(in(at({})), QStringList(name));
}

void TestFinalPlace::linkIsFollowed()
{
    write(at(QStringLiteral("real/pano.jpg")), "older");
    QVERIFY(QFile::link(QStringLiteral("real/pano.jpg"), at(QStringLiteral("link.jpg"))));
    const QString part = write(m_work->filePath(QStringLiteral("part.jpg")), "new");
    QVERIFY(moveFile(part, at(QStringLiteral("link.jpg"))).ok());
    QVERIFY(QFileInfo(at(QStringLiteral("link.jpg"))).isSymLink());
    QCOMPARE(contentOf(at(QStringLiteral("real/pano.jpg"))), QByteArray("new"));
}

void TestFinalPlace::placesThatTakeNoFileAreNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("why");
    QTest::newRow("folder") << QStringLiteral("folder") << QStringLiteral("is a folder");
    QTest::newRow("pipe") << QStringLiteral("pipe") << QStringLiteral("is not a regular file");
    QTest::newRow("no such folder")
        << QStringLiteral("nowhere/a.jpg") << QStringLiteral("the folder %1 does not exist");
}

void TestFinalPlace::placesThatTakeNoFileAreNamed()
{
    QFETCH(QString, name);
    QFETCH(QString, why);
    QVERIFY(QDir().mkpath(at(QStringLiteral("folder"))));
    QCOMPARE(::mkfifo(QFile::encodeName(at(QStringLiteral("pipe"))).constData(), 0600), 0);
    const QString part = write(m_work->filePath(QStringLiteral("part.jpg")), "new");
    const Result<QString> moved = moveFile(part, at(name));
    QVERIFY(!moved);
    QCOMPARE(moved.error().what, at(name));
    QCOMPARE(moved.error().why, why.replace(QLatin1String("%1"), at(QStringLiteral("nowhere"))));
    QVERIFY(!moved.error().tryThis.isEmpty());
    QCOMPARE(contentOf(part), QByteArray("new"));
    QCOMPARE(in(at({})), QStringList({ QStringLiteral("folder"), QStringLiteral("pipe") }));
}

void TestFinalPlace::folderTakesThePlaceOfAnOlderOwn()
{
    QFETCH(bool, isOther);
    const QString work = workFolder(isOther);
    if (work.isEmpty()) {
        QSKIP("/dev/shm is no file system of its own here");
    }
    const QString wanted = at(QStringLiteral("pano_zoom"));
    for (const QByteArray &content : { QByteArray("first"), QByteArray("second") }) {
        const QString part = QDir(work).filePath(QStringLiteral("part"));
        write(part + QStringLiteral("/0/") + QString::fromLatin1(content), content);
        write(part + QStringLiteral("/index.html"), content);
        const Result<QString> moved = moveFolder(part, wanted);
        QVERIFY2(moved.ok(), moved ? "" : qPrintable(moved.error().text()));
        QCOMPARE(contentOf(wanted + QStringLiteral("/index.html")), content);
        QCOMPARE(in(wanted + QStringLiteral("/0")), QStringList(QString::fromLatin1(content)));
        QCOMPARE(in(work), QStringList());
        QCOMPARE(in(at({})), QStringList(QStringLiteral("pano_zoom")));
    }
}

void TestFinalPlace::emptyFolderIsReplaced()
{
    const QString part = m_work->filePath(QStringLiteral("part"));
    write(part + QStringLiteral("/index.html"), "new");
    QVERIFY(QDir().mkpath(at(QStringLiteral("zoom"))));
    QVERIFY(moveFolder(part, at(QStringLiteral("zoom"))).ok());
    QCOMPARE(contentOf(at(QStringLiteral("zoom/index.html"))), QByteArray("new"));
}

void TestFinalPlace::folderOfSomebodyElseIsRefused_data()
{
    QTest::addColumn<QString>("inside");
    QTest::addColumn<QString>("why");
    QTest::newRow("photos") << QStringLiteral("zoom/photo.jpg")
                            << QStringLiteral("is a folder that panohost has not made");
    QTest::newRow("a hidden file") << QStringLiteral("zoom/.hidden")
                                   << QStringLiteral("is a folder that panohost has not made");
    QTest::newRow("a folder") << QStringLiteral("zoom/0/tile.jpg")
                              << QStringLiteral("is a folder that panohost has not made");
    QTest::newRow("a file") << QStringLiteral("zoom")
                            << QStringLiteral("is a file, and a folder of that name is wanted");
}

void TestFinalPlace::folderOfSomebodyElseIsRefused()
{
    QFETCH(QString, inside);
    QFETCH(QString, why);
    const QString wanted = at(QStringLiteral("zoom"));
    write(at(inside), "precious");
    const QString part = m_work->filePath(QStringLiteral("part"));
    write(part + QStringLiteral("/index.html"), "new");
    const Result<QString> moved = moveFolder(part, wanted);
    QVERIFY(!moved);
    QCOMPARE(moved.error().what, wanted);
    QCOMPARE(moved.error().why, why);
    QCOMPARE(moved.error().tryThis, QStringLiteral("remove it or choose another name with -o"));
    QCOMPARE(checkFolderPlace(wanted).ok(), false);
    QCOMPARE(contentOf(at(inside)), QByteArray("precious"));
    QCOMPARE(in(part), QStringList(QStringLiteral("index.html")));
}

void TestFinalPlace::fullDiskLeavesEverythingAsItWas_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("file") << false;
    QTest::newRow("folder") << true;
}

void TestFinalPlace::fullDiskLeavesEverythingAsItWas()
{
    QFETCH(bool, isFolder);
    const QString work = workFolder(true);
    if (work.isEmpty()) {
        QSKIP("/dev/shm is no file system of its own here");
    }
    const QString inside = isFolder ? QStringLiteral("/a/tile.jpg") : QString();
    const QString part = QDir(work).filePath(QStringLiteral("part"));
    const QString wanted = at(QStringLiteral("pano"));
    write(part + inside, QByteArray(5000, 'n'));
    write(wanted + inside, "older");
    if (isFolder) {
        write(QDir(wanted).filePath(folderMark()), "");
    }
    const Result<QString> moved = [&] {
        const DeliverBench::FileSizeLimit limit(4096);
        return isFolder ? moveFolder(part, wanted) : moveFile(part, wanted);
    }();
    QVERIFY(!moved);
    QCOMPARE(moved.error().what, wanted);
    QVERIFY2(moved.error().why.startsWith(QLatin1String("cannot be written (")),
             qPrintable(moved.error().why));
    QCOMPARE(moved.error().tryThis, QStringLiteral("make room there or choose another place"));
    QCOMPARE(contentOf(wanted + inside), QByteArray("older"));
    QCOMPARE(contentOf(part + inside), QByteArray(5000, 'n'));
    QCOMPARE(in(at({})), QStringList(QStringLiteral("pano")));
}

void TestFinalPlace::folderThatTakesNothingIsNamed()
{
    // Permissions do not hold the superuser back; the process file system does.
    const bool superuser = ::geteuid() == 0;
    const QString folder = superuser ? QStringLiteral("/proc/self") : at(QStringLiteral("locked"));
    if (!superuser) {
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    }
    const QString part = write(m_work->filePath(QStringLiteral("part.jpg")), "new");
    const Result<QString> moved = moveFile(part, folder + QStringLiteral("/pano.jpg"));
    QVERIFY(!moved);
    QCOMPARE(moved.error().what, folder + QStringLiteral("/pano.jpg"));
    QVERIFY(moved.error().why.startsWith(QLatin1String("cannot be written (")));
    QCOMPARE(contentOf(part), QByteArray("new"));
}

TEST_CLASS(TestFinalPlace, QCoreApplication)
#include "tst_finalplace.moc"
