// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/panohostapplication.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <thread>

using namespace PanoHost;

class PanoHostApplicationTest : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init();
    void answersTheNameOfTheHostInterface();
    void settingThatWasNeverWrittenIsTheDefault();
    void settingComesBackInTheNextRun();
    void settingsFileIsTheOneAskedFor();
    void lastPathIsTheFolderOfTheLastFile();
    void lastPathForgetsAFolderThatIsGone();
    void lastPathOfAnAliasIsThatOfThePhoto();
    void localeIsTheOneSet();
    void missingTranslationIsNoError_data();
    void missingTranslationIsNoError();
    void fileDialogChoiceReachesTheLibrary();
    void photoBecomesAnImage();
    void samePhotoTwiceIsTwoImagesReadOnce();
    void changedPhotoIsReadAgain();
    void unreadablePhotoIsNullAndRemembered();
    void photosAreReadOnManyThreads();
    void progressIsSignalled();
    void deliveryIsKeptAndSignalled();
    void aliasesAreUndoneInTheDelivery();
    void standInAnswersWithoutAFile();
    void imagesGoWithTheLibrary();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] static PanoHostApplication &app() { return *PanoHostApplication::instance(); }
    QTemporaryDir m_folder;
};

void PanoHostApplicationTest::init()
{
    app().setSettingsFile(
        at(QStringLiteral("%1.ini").arg(QString::fromLatin1(QTest::currentTestFunction()))));
    app().clearPathAliases();
    app().clearUnreadablePhotos();
    app().releaseLibraryHold();
}

void PanoHostApplicationTest::answersTheNameOfTheHostInterface()
{
    QObject *const object = QCoreApplication::instance();
    void *const found = object->qt_metacast("XIApplication");
    QVERIFY(found);
    QCOMPARE(static_cast<XIApplication *>(found), static_cast<XIApplication *>(&app()));
}

void PanoHostApplicationTest::settingThatWasNeverWrittenIsTheDefault()
{
    XIApplication &host = app();
    QCOMPARE(host.ReadSetting(QStringLiteral("uid"), QStringLiteral("key"), 7).toInt(), 7);
    QVERIFY(
        host.ReadSetting(QStringLiteral("uid"), QStringLiteral("key"), {}).toByteArray().isEmpty());
}

void PanoHostApplicationTest::settingComesBackInTheNextRun()
{
    XIApplication &host = app();
    const QString group = QStringLiteral("7A21C94E-5B20-2020-2020-483181480AB7");
    const QString key = QStringLiteral("XMerlinImport");
    const QByteArray state("\x00\xff state\n", 9);
    host.WriteSetting(group, key, state);
    app().setSettingsFile(app().settings().fileName());
    QCOMPARE(host.ReadSetting(group, key, {}).toByteArray(), state);
    QVERIFY(!host.ReadSetting(QStringLiteral("other"), key, {}).isValid());
}

void PanoHostApplicationTest::settingsFileIsTheOneAskedFor()
{
    const QString path = at(QStringLiteral("mine.ini"));
    app().setSettingsFile(path);
    app().WriteSetting(QStringLiteral("a"), QStringLiteral("b"), 1);
    app().settings().sync();
    QVERIFY(QFileInfo::exists(path));
}

void PanoHostApplicationTest::lastPathIsTheFolderOfTheLastFile()
{
    XIApplication &host = app();
    QCOMPARE(host.LastPath(), QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    const QString folder = at(QStringLiteral("photos"));
    QVERIFY(QDir().mkpath(folder));
    host.SetLastPath(folder + QStringLiteral("/IMG_0001.jpg"));
    QCOMPARE(host.LastPath(), folder);
    host.SetLastPath({});
    QCOMPARE(host.LastPath(), folder);
    host.SetLastPath(m_folder.path());
    QCOMPARE(host.LastPath(), m_folder.path());
}

void PanoHostApplicationTest::lastPathForgetsAFolderThatIsGone()
{
    app().SetLastPath(at(QStringLiteral("gone/IMG_0001.jpg")));
    QCOMPARE(app().LastPath(), QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
}

void PanoHostApplicationTest::lastPathOfAnAliasIsThatOfThePhoto()
{
    const QString folder = at(QStringLiteral("real"));
    QVERIFY(QDir().mkpath(folder));
    app().addPathAlias(QStringLiteral("/tmp/links/0001.jpg"), folder + QStringLiteral("/a.jpg"));
    app().SetLastPath(QStringLiteral("/tmp/links/0001.jpg"));
    QCOMPARE(app().LastPath(), folder);
}

void PanoHostApplicationTest::localeIsTheOneSet()
{
    app().setLocale(QLocale(QStringLiteral("fr_FR")));
    QCOMPARE(app().Locale().name(), QStringLiteral("fr_FR"));
    app().setLocale(QLocale::c());
}

void PanoHostApplicationTest::missingTranslationIsNoError_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such language") << "Nothing_xx_XX.qm";
    QTest::newRow("a path") << "/etc/passwd";
    QTest::newRow("out of the folder") << "../../etc/passwd";
    QTest::newRow("empty") << "";
}

void PanoHostApplicationTest::missingTranslationIsNoError()
{
    QFETCH(QString, name);
    app().LoadTranslation(name);
    QCOMPARE(QCoreApplication::translate("UIWPMerlin", "Warning"), QStringLiteral("Warning"));
}

void PanoHostApplicationTest::fileDialogChoiceReachesTheLibrary()
{
    XUIInstances *const instances = app().UIInstances();
    QVERIFY(instances && instances->settings);
    app().setUseSystemFileDialog(false);
    QVERIFY(!instances->settings->useSystemFileDialog);
    app().setUseSystemFileDialog(true);
    QVERIFY(instances->settings->useSystemFileDialog);
}

void PanoHostApplicationTest::photoBecomesAnImage()
{
    const QString path = TestPhotos::writeOrdinary(at(QStringLiteral("photo.jpg")), { 120, 80 });
    XIImageDef *const image = app().CreateImageDef(path);
    QVERIFY(image);
    QCOMPARE(image->FocalLength(), 24.0F);
    QCOMPARE(image->ShotTime(), 1714557600000L);
    QVERIFY(qAbs(image->Exposure() - 12.643856F) < 1e-5F);
    QVERIFY(image->Thumbnail());
    QCOMPARE(image->Thumbnail()->size(), QSize(120, 80));
    QVERIFY(app().unreadablePhotos().isEmpty());
}

void PanoHostApplicationTest::samePhotoTwiceIsTwoImagesReadOnce()
{
    const QString path = TestPhotos::writeOrdinary(at(QStringLiteral("twice.jpg")));
    const XIImageDef *const first = app().CreateImageDef(path);
    const qint64 bytes = app().thumbnails().keptBytes();
    const XIImageDef *const second = app().CreateImageDef(path);
    QVERIFY(first && second && first != second);
    QCOMPARE(app().thumbnails().keptBytes(), bytes);
}

void PanoHostApplicationTest::changedPhotoIsReadAgain()
{
    const QString path = TestPhotos::writeOrdinary(at(QStringLiteral("changed.jpg")), { 120, 80 });
    QVERIFY(app().CreateImageDef(path));
    QCOMPARE(app().photoInfo(path).value().storedSize, QSize(120, 80));
    TestPhotos::writeOrdinary(path, { 600, 400 });
    QCOMPARE(app().photoInfo(path).value().storedSize, QSize(600, 400));
    QCOMPARE(app().CreateImageDef(path)->Thumbnail()->width(), 256);
    QVERIFY(QFile::remove(path));
    QVERIFY(!app().photoInfo(path).ok());
    QVERIFY(!app().CreateImageDef(path));
}

void PanoHostApplicationTest::unreadablePhotoIsNullAndRemembered()
{
    const QString words = TestPhotos::writeFile(at(QStringLiteral("IMG_0012.CR2")), "words");
    const QString missing = at(QStringLiteral("missing.jpg"));
    QVERIFY(!app().CreateImageDef(words));
    QVERIFY(!app().CreateImageDef(missing));
    QVERIFY(!app().CreateImageDef(words));
    const QVector<UnreadablePhoto> photos = app().unreadablePhotos();
    QCOMPARE(photos.size(), 2);
    QCOMPARE(photos[0].path, words);
    QCOMPARE(photos[0].why, QStringLiteral("cannot read (not a photo?)"));
    QCOMPARE(photos[1].path, missing);
    QCOMPARE(photos[1].why, QStringLiteral("no such file"));
    app().clearUnreadablePhotos();
    QVERIFY(app().unreadablePhotos().isEmpty());
}

void PanoHostApplicationTest::photosAreReadOnManyThreads()
{
    constexpr int kPhotos = 10;
    constexpr int kThreads = 4;
    QStringList paths;
    for (int i = 0; i < kPhotos; ++i) {
        paths.append(TestPhotos::writeOrdinary(at(QStringLiteral("many%1.jpg").arg(i))));
    }
    paths.append(at(QStringLiteral("missing.jpg")));
    std::atomic<int> made{ 0 };
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&paths, &made] {
            for (const QString &path : qAsConst(paths)) {
                made += app().CreateImageDef(path) ? 1 : 0;
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(made.load(), kPhotos * kThreads);
    QCOMPARE(app().unreadablePhotos().size(), 1);
}

void PanoHostApplicationTest::progressIsSignalled()
{
    const QString path = TestPhotos::writeOrdinary(at(QStringLiteral("progress.jpg")));
    QSignalSpy spy(&app(), &PanoHostApplication::photoRead);
    std::thread worker([this, &path] {
        (void)app().CreateImageDef(path);
        (void)app().CreateImageDef(at(QStringLiteral("missing.jpg")));
    });
    worker.join();
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy[0][0].toString(), path);
    QCOMPARE(spy[0][1].toBool(), true);
    QCOMPARE(spy[1][1].toBool(), false);
}

void PanoHostApplicationTest::deliveryIsKeptAndSignalled()
{
    QSignalSpy spy(&app(), &PanoHostApplication::delivered);
    const int before = app().deliveryCount();
    StructuredPanoramaProperties description;
    description.imageGroups = { { QStringLiteral("a.jpg") }, { QStringLiteral("b.jpg") } };
    description.yaw = { 0.5F, 1.0F };
    description.focalLength = 35.0F;
    app().ImportStructuredPanorama(description);
    description.imageGroups.clear();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(app().deliveryCount(), before + 1);
    QCOMPARE(app().delivery().imageGroups.size(), 2);
    QCOMPARE(app().delivery().yaw, (QVector<float>{ 0.5F, 1.0F }));
    QCOMPARE(app().delivery().focalLength, 35.0F);
}

void PanoHostApplicationTest::aliasesAreUndoneInTheDelivery()
{
    const QString path = TestPhotos::writeOrdinary(at(QStringLiteral("a\"b.jpg")));
    const QString alias = at(QStringLiteral("0001.jpg"));
    app().addPathAlias(alias, path);
    // The alias is no file: the image can only come from the photo itself.
    XIImageDef *const image = app().CreateImageDef(alias);
    QVERIFY(image);
    QCOMPARE(static_cast<HostImage *>(image)->info().path, path);
    StructuredPanoramaProperties description;
    description.imageGroups = { { alias, QStringLiteral("/other.jpg") } };
    app().ImportStructuredPanorama(description);
    QCOMPARE(app().delivery().imageGroups,
             (QVector<QStringList>{ { path, QStringLiteral("/other.jpg") } }));
    app().clearPathAliases();
    QVERIFY(!app().CreateImageDef(alias));
}

void PanoHostApplicationTest::standInAnswersWithoutAFile()
{
    PhotoReading standIn;
    standIn.info.path = QStringLiteral("/no/such/0007");
    standIn.info.storedSize = QSize(600, 400);
    standIn.info.orientation = 6; // to be seen upright, it is turned by a quarter
    standIn.info.focal35mm = 28.0;
    standIn.info.lens = LensModel::Fisheye;
    standIn.info.exposureValue = 11.5;
    standIn.info.timeMs = 1714557607000;
    standIn.thumbnail = greyThumbnail(standIn.info);
    app().addStandIn(standIn);
    QSignalSpy read(&app(), &PanoHostApplication::photoRead);
    XIImageDef *const image = app().CreateImageDef(standIn.info.path);
    QVERIFY(image);
    QCOMPARE(image->FocalLength(), 28.0F);
    QCOMPARE(image->LensType(), 1);
    QCOMPARE(image->Exposure(), 11.5F);
    QCOMPARE(image->ShotTime(), 1714557607000L);
    // 400 x 600 pixels, of which the longer side becomes 256: 400 * 256 / 600 = 170.7.
    QVERIFY(image->Thumbnail());
    QCOMPARE(image->Thumbnail()->size(), QSize(171, 256));
    QCOMPARE(image->Thumbnail()->toImage().pixelColor(85, 128), QColor(Qt::gray));
    QCOMPARE(read.count(), 1);
    QCOMPARE(read[0][1].toBool(), true);
    QVERIFY(app().unreadablePhotos().isEmpty());
    app().clearPathAliases();
    QVERIFY(!app().CreateImageDef(standIn.info.path));
}

void PanoHostApplicationTest::imagesGoWithTheLibrary()
{
    const QString path = TestPhotos::writeOrdinary(at(QStringLiteral("last.jpg")));
    QVERIFY(app().CreateImageDef(path)->Thumbnail());
    QVERIFY(app().thumbnails().keptBytes() > 0);
    app().releaseLibraryHold();
    QCOMPARE(app().thumbnails().keptBytes(), qint64(0));
    QCOMPARE(app().thumbnails().pixmapBytes(), qint64(0));
}

TEST_CLASS(PanoHostApplicationTest, PanoHostApplication)
#include "tst_panohostapplication.moc"
