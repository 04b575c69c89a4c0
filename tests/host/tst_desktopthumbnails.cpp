// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/desktopthumbnails.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <csignal>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace PanoHost;

namespace
{

using Texts = QMap<QString, QString>;

constexpr qint64 kBytes = 1'234'567;

const QString &photo()
{
    static const QString path = QStringLiteral("/photos/plain.jpg");
    return path;
}

/** The MD5 sum of file:///photos/plain.jpg, by md5sum. */
QString photoFile()
{
    return QStringLiteral("efd60eddaae85e37ba072cb6d86f4e94.png");
}

/** 1,700,000,000 seconds after 1970. */
QDateTime modified(int later = 0)
{
    return QDateTime::fromSecsSinceEpoch(1'700'000'000 + later, Qt::UTC);
}

QImage thumbnail()
{
    return TestPhotos::quarters({ 256, 171 }).convertToFormat(QImage::Format_RGB32);
}

/** What another program says in its thumbnail of `photo()`. */
Texts textsOfAnother()
{
    return { { QStringLiteral("Thumb::URI"), QStringLiteral("file:///photos/plain.jpg") },
             { QStringLiteral("Thumb::MTime"), QStringLiteral("1700000000") } };
}

QByteArray pngOf(QImage picture, const Texts &texts)
{
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        picture.setText(text.key(), text.value());
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

class DesktopThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keptThumbnailIsFound();
    void fileIsNamedByTheUri_data();
    void fileIsNamedByTheUri();
    void fileSaysWhatItShows();
    void longUriIsNotPacked();
    void textsOfThePhotoStayOut();
    void transparentPictureStaysSo();
    void thumbnailOfAnotherProgramIsFound();
    void thumbnailOfAnotherStateIsIgnored_data();
    void thumbnailOfAnotherStateIsIgnored();
    void damagedFileIsIgnored_data();
    void damagedFileIsIgnored();
    void packedTextIsNotUnpacked();
    void pipeAndFolderInPlaceOfTheFile();
    void onlyTheUserMayLookIn();
    void newThumbnailReplacesTheOldOne();
    void whatIsNoThumbnailIsNotKept();
    void folderThatTakesNothing_data();
    void folderThatTakesNothing();
    void lockedFolderTakesNothing();
    void fullDiskKeepsTheOldThumbnailAndNothingElse();
    void thumbnailsGetNoThumbnails();
    void placesOfTheMachineItself_data();
    void placesOfTheMachineItself();
    void withoutLeavePlacesAreLookedAt();
    void twoThreadsAtOneFile();

private:
    [[nodiscard]] QString cache() const
    {
        return m_folder->filePath(QStringLiteral("a/thumbnails"));
    }
    [[nodiscard]] QString large(const QString &name = {}) const
    {
        return cache() + QStringLiteral("/large/") + name;
    }
    [[nodiscard]] DesktopThumbnails store() const
    {
        return DesktopThumbnails(DesktopThumbnails::Places::Every, cache());
    }
    /** Plants \p content where the thumbnail of `photo()` belongs. */
    void plant(const QByteArray &content) const
    {
        QVERIFY(QDir().mkpath(large()));
        TestPhotos::writeFile(large(photoFile()), content);
    }
    [[nodiscard]] QStringList files() const
    {
        return QDir(large()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden
                                       | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void DesktopThumbnailsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void DesktopThumbnailsTest::keptThumbnailIsFound()
{
    store().keep(photo(), modified(), kBytes, thumbnail());
    const auto found = store().find(photo(), modified(), kBytes);
    QVERIFY(found);
    QCOMPARE(*found, thumbnail());
    // A fraction of a second counts for nothing.
    QVERIFY(store().find(photo(), modified().addMSecs(999), kBytes));
}

void DesktopThumbnailsTest::fileIsNamedByTheUri_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("file");
    QTest::newRow("plain") << photo() << photoFile();
    QTest::newRow("not clean") << QStringLiteral("/photos/./old/../plain.jpg") << photoFile();
    // printf %s 'file:///photos/See%20%C3%BCber%20100%25.jpg' | md5sum
    QTest::newRow("blank, umlaut, percent") << QStringLiteral(u"/photos/See \u00fcber 100%.jpg")
                                            << "5b732e2365da06082ae296e45b15eff5.png";
    // file:///p/a!$&'()*+,-.:=@_~%3B%3F%23%5B%5D%22%3C.jpg: what gio escapes and what not
    QTest::newRow("punctuation") << QStringLiteral("/p/a!$&'()*+,-.:=@_~;?#[]\"<.jpg")
                                 << "e3bde735e2289d1190b777b3f8eda012.png";
}

void DesktopThumbnailsTest::fileIsNamedByTheUri()
{
    QFETCH(QString, path);
    QFETCH(QString, file);
    store().keep(path, modified(), kBytes, thumbnail());
    QCOMPARE(files(), QStringList(file));
    QVERIFY(store().find(path, modified(), kBytes));
}

void DesktopThumbnailsTest::fileSaysWhatItShows()
{
    store().keep(QStringLiteral("/photos/100 %.jpg"), modified(), kBytes, thumbnail());
    const QImage picture(large(files().value(0)), "PNG");
    QCOMPARE(picture.size(), QSize(256, 171));
    QCOMPARE(picture.text(QStringLiteral("Thumb::URI")),
             QStringLiteral("file:///photos/100%20%25.jpg"));
    QCOMPARE(picture.text(QStringLiteral("Thumb::MTime")), QStringLiteral("1700000000"));
    QCOMPARE(picture.text(QStringLiteral("Thumb::Size")), QStringLiteral("1234567"));
    QCOMPARE(picture.text(QStringLiteral("Software")), QStringLiteral("panohost"));
}

void DesktopThumbnailsTest::longUriIsNotPacked()
{
    const QString path = QStringLiteral("/%1.jpg").arg(QString(200, QLatin1Char('a')));
    store().keep(path, modified(), kBytes, thumbnail());
    QFile file(large(files().value(0)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    // Length 10 + 1 + 7 + 205 = 223, type, key, NUL, text; right behind the header.
    QCOMPARE(file.readAll().mid(33, 8 + 223),
             QByteArray("\0\0\0\xdftEXtThumb::URI\0file://", 26) + QFile::encodeName(path));
}

void DesktopThumbnailsTest::textsOfThePhotoStayOut()
{
    QImage picture = thumbnail();
    picture.setText(QStringLiteral("Thumb::URI"), QStringLiteral("file:///photos/other.jpg"));
    picture.setText(QStringLiteral("Description"), QStringLiteral("a secret"));
    store().keep(photo(), modified(), kBytes, picture);
    const auto found = store().find(photo(), modified(), kBytes);
    QVERIFY(found);
    QCOMPARE(found->textKeys(), QStringList());
    QFile file(large(photoFile()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains("secret"));
}

void DesktopThumbnailsTest::transparentPictureStaysSo()
{
    QImage picture(256, 2, QImage::Format_ARGB32);
    picture.fill(QColor(10, 200, 30, 128));
    store().keep(photo(), modified(), kBytes, picture);
    QCOMPARE(store().find(photo(), modified(), kBytes).value_or(QImage()).pixelColor(255, 1),
             QColor(10, 200, 30, 128));
}

void DesktopThumbnailsTest::thumbnailOfAnotherProgramIsFound()
{
    // Without the size of the file, which not all of them say.
    plant(pngOf(thumbnail(), textsOfAnother()));
    QVERIFY(store().find(photo(), modified(), kBytes));
}

void DesktopThumbnailsTest::thumbnailOfAnotherStateIsIgnored_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("older") << "Thumb::MTime"
                           << "1699999999";
    QTest::newRow("newer") << "Thumb::MTime"
                           << "1700000001";
    QTest::newRow("no time") << "Thumb::MTime" << QString();
    QTest::newRow("another photo") << "Thumb::URI"
                                   << "file:///photos/plain.jpeg";
    QTest::newRow("no photo") << "Thumb::URI" << QString();
    QTest::newRow("another size") << "Thumb::Size"
                                  << "1234568";
    QTest::newRow("a size that is no number") << "Thumb::Size"
                                              << "large";
}

void DesktopThumbnailsTest::thumbnailOfAnotherStateIsIgnored()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    Texts texts = textsOfAnother();
    texts.insert(QStringLiteral("Thumb::Size"), QString::number(kBytes));
    plant(pngOf(thumbnail(), texts));
    QVERIFY(store().find(photo(), modified(), kBytes));
    texts.insert(key, value);
    plant(pngOf(thumbnail(), texts));
    QVERIFY(!store().find(photo(), modified(), kBytes));
}

void DesktopThumbnailsTest::damagedFileIsIgnored_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray good = pngOf(thumbnail(), textsOfAnother());
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not a PNG") << QByteArray("\xff\xd8\xff\xe0 JPEG");
    QTest::newRow("signature only") << good.left(8);
    QTest::newRow("header only") << good.left(33);
    QTest::newRow("half") << good.left(good.size() / 2);
    QTest::newRow("chunk as long as can be")
        << good.left(33) + "\xff\xff\xff\xfftEXt" + good.mid(33);
    QTest::newRow("257 pixels wide") << pngOf(TestPhotos::quarters({ 257, 10 }), textsOfAnother());
    QTest::newRow("257 pixels high") << pngOf(TestPhotos::quarters({ 10, 257 }), textsOfAnother());
    QTest::newRow("more than 1 MB") << good + QByteArray(1024 * 1024, '\0');
}

void DesktopThumbnailsTest::damagedFileIsIgnored()
{
    QFETCH(QByteArray, content);
    plant(content);
    QVERIFY(!store().find(photo(), modified(), kBytes));
    store().keep(photo(), modified(), kBytes, thumbnail());
    QVERIFY(store().find(photo(), modified(), kBytes));
}

void DesktopThumbnailsTest::packedTextIsNotUnpacked()
{
    // 18 MB of blanks come to a thousandth; 15 MB are still within what is unpacked.
    Texts texts = textsOfAnother();
    texts.insert(QStringLiteral("Comment"), QString(18'000'000, QLatin1Char(' ')));
    const QByteArray bomb = pngOf(thumbnail(), texts);
    QVERIFY(bomb.size() < 100'000);
    plant(bomb);
    QVERIFY(!store().find(photo(), modified(), kBytes));
    texts.insert(QStringLiteral("Comment"), QString(1'000, QLatin1Char(' ')));
    plant(pngOf(thumbnail(), texts));
    QVERIFY(store().find(photo(), modified(), kBytes));
}

void DesktopThumbnailsTest::pipeAndFolderInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(large()));
    const QString path = large(photoFile());
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QVERIFY(!store().find(photo(), modified(), kBytes));
    // Nobody can be reading from it: it was never a thumbnail.
    store().keep(photo(), modified(), kBytes, thumbnail());
    QVERIFY(store().find(photo(), modified(), kBytes));

    QVERIFY(QFile::remove(path));
    QVERIFY(QDir().mkpath(path + QStringLiteral("/inside")));
    store().keep(photo(), modified(), kBytes, thumbnail());
    QVERIFY(!store().find(photo(), modified(), kBytes));
    QCOMPARE(files(), QStringList(photoFile()));
}

void DesktopThumbnailsTest::onlyTheUserMayLookIn()
{
    const mode_t usual = ::umask(0);
    store().keep(photo(), modified(), kBytes, thumbnail());
    ::umask(usual);
    QCOMPARE(modeOf(m_folder->filePath(QStringLiteral("a"))), mode_t(0700));
    QCOMPARE(modeOf(cache()), mode_t(0700));
    QCOMPARE(modeOf(large()), mode_t(0700));
    QCOMPARE(modeOf(large(photoFile())), mode_t(0600));
}

void DesktopThumbnailsTest::newThumbnailReplacesTheOldOne()
{
    store().keep(photo(), modified(), kBytes, TestPhotos::quarters({ 256, 256 }));
    store().keep(photo(), modified(1), kBytes + 1, thumbnail());
    QVERIFY(!store().find(photo(), modified(), kBytes));
    QCOMPARE(store().find(photo(), modified(1), kBytes + 1).value_or(QImage()).size(),
             QSize(256, 171));
    QCOMPARE(files(), QStringList(photoFile()));
}

void DesktopThumbnailsTest::whatIsNoThumbnailIsNotKept()
{
    store().keep(photo(), modified(), kBytes, QImage());
    store().keep(photo(), modified(), kBytes, TestPhotos::quarters({ 257, 171 }));
    store().keep(photo(), QDateTime(), kBytes, thumbnail());
    QVERIFY(!QFileInfo::exists(cache()));
    store().keep(photo(), modified(), kBytes, thumbnail());
    QVERIFY(!store().find(photo(), QDateTime(), kBytes));
}

void DesktopThumbnailsTest::folderThatTakesNothing_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("a file") << "file";
    QTest::newRow("below a file") << "file/thumbnails";
    QTest::newRow("a file system without files of the user's") << "/proc/self";
    QTest::newRow("below a device") << "/dev/full";
}

void DesktopThumbnailsTest::folderThatTakesNothing()
{
    QFETCH(QString, folder);
    TestPhotos::writeFile(m_folder->filePath(QStringLiteral("file")), "x");
    const DesktopThumbnails thumbnails(DesktopThumbnails::Places::Every,
                                       QDir(m_folder->path()).filePath(folder));
    thumbnails.keep(photo(), modified(), kBytes, thumbnail());
    QVERIFY(!thumbnails.find(photo(), modified(), kBytes));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("file")));
}

void DesktopThumbnailsTest::lockedFolderTakesNothing()
{
    if (::geteuid() == 0) {
        QSKIP("permissions do not hold the superuser back");
    }
    QVERIFY(QDir().mkpath(large()));
    QVERIFY(QFile::setPermissions(large(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    store().keep(photo(), modified(), kBytes, thumbnail());
    QCOMPARE(files(), QStringList());
    QVERIFY(QFile::setPermissions(
        large(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
}

void DesktopThumbnailsTest::fullDiskKeepsTheOldThumbnailAndNothingElse()
{
    store().keep(photo(), modified(), kBytes, thumbnail());
    rlimit usual = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &usual), 0);
    const rlimit narrow{ 100, usual.rlim_max };
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &narrow), 0);
    store().keep(photo(), modified(1), kBytes, thumbnail());
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &usual), 0);
    std::signal(SIGXFSZ, handler);
    QVERIFY(store().find(photo(), modified(), kBytes));
    QCOMPARE(files(), QStringList(photoFile()));
}

void DesktopThumbnailsTest::thumbnailsGetNoThumbnails()
{
    store().keep(photo(), modified(), kBytes, thumbnail());
    const QString inside = large(photoFile());
    const QString byAnotherName = m_folder->filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(cache(), byAnotherName));
    for (const QString &path :
         { inside, byAnotherName + QStringLiteral("/large/") + photoFile() }) {
        QVERIFY(!store().mayKeepFor(path));
        store().keep(path, modified(), kBytes, thumbnail());
    }
    QCOMPARE(files(), QStringList(photoFile()));
    // A folder whose name only begins like theirs is like any other.
    QVERIFY(store().mayKeepFor(cache() + QStringLiteral("2/photo.jpg")));
}

void DesktopThumbnailsTest::placesOfTheMachineItself_data()
{
    QTest::addColumn<QString>("point");
    QTest::addColumn<QByteArray>("fileSystem");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("removable");
    QTest::addColumn<bool>("own");
    const auto row = [](const char *name, const char *point, const char *fileSystem, bool own,
                        bool readOnly = false, bool removable = false) {
        QTest::newRow(name) << QString::fromLatin1(point) << QByteArray(fileSystem) << readOnly
                            << removable << own;
    };
    row("disk", "/home", "ext4", true);
    row("root of a container", "/", "overlay", true);
    row("subvolume", "/home", "btrfs", true);
    row("memory", "/tmp", "tmpfs", true);
    row("named like a medium", "/mediathek", "xfs", true);
    row("read-only", "/home", "ext4", false, true);
    row("drive that can be taken out", "/home", "ext4", false, false, true);
    row("medium in /media", "/media/card", "ext4", false);
    row("medium in /run/media", "/run/media/ann/card", "btrfs", false);
    row("mounted by hand", "/mnt", "ext4", false);
    row("camera card", "/card", "vfat", false);
    row("large camera card", "/card", "exfat", false);
    row("CD", "/cdrom", "iso9660", false);
    row("DVD", "/cdrom", "udf", false);
    row("share of NFS", "/home", "nfs4", false);
    row("share of SMB", "/share", "cifs", false);
    row("share of SSH", "/share", "fuse.sshfs", false);
    row("disk through FUSE", "/disk", "fuseblk", false);
}

void DesktopThumbnailsTest::placesOfTheMachineItself()
{
    QFETCH(QString, point);
    QFETCH(QByteArray, fileSystem);
    QFETCH(bool, readOnly);
    QFETCH(bool, removable);
    QTEST(isOwnPlace({ point, fileSystem, readOnly, removable }), "own");
}

void DesktopThumbnailsTest::withoutLeavePlacesAreLookedAt()
{
    const DesktopThumbnails careful(DesktopThumbnails::Places::OwnDisks, cache());
    // A photo that is gone has no place.
    QVERIFY(!careful.mayKeepFor(m_folder->filePath(QStringLiteral("gone.jpg"))));
    careful.keep(photo(), modified(), kBytes, thumbnail());
    QVERIFY(!QFileInfo::exists(cache()));
}

void DesktopThumbnailsTest::twoThreadsAtOneFile()
{
    constexpr int kRounds = 100;
    const DesktopThumbnails shared = store();
    shared.keep(photo(), modified(), kBytes, thumbnail());
    std::atomic<int> missed{ 0 };
    const auto work = [&] {
        for (int round = 0; round < kRounds; ++round) {
            shared.keep(photo(), modified(), kBytes, thumbnail());
            missed += shared.find(photo(), modified(), kBytes) ? 0 : 1;
        }
    };
    std::thread other(work);
    work();
    other.join();
    QCOMPARE(missed.load(), 0);
    QCOMPARE(files(), QStringList(photoFile()));
}

TEST_CLASS(DesktopThumbnailsTest, QCoreApplication)
#include "tst_desktopthumbnails.moc"
