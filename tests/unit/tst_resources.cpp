// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTranslator>
#include <QtTest>

// Made by the resource compiler, named after the two collection files.
int qInitResources_XPanoHead();
int qCleanupResources_XPanoHead();
int qInitResources_XUI();
int qCleanupResources_XUI();

class ResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wizardPictureHasItsPathAndSize_data();
    void wizardPictureHasItsPathAndSize();
    void translationFolderHoldsExactlyTheNamedFiles();
    void everyTranslationLoads_data();
    void everyTranslationLoads();
    void territoryFallsBackToTheLanguage_data();
    void territoryFallsBackToTheLanguage();
    void packDisappearsWithItsCleanup();
};

void ResourcesTest::wizardPictureHasItsPathAndSize_data()
{
    const QString vrDrive2 = QStringLiteral(":/7A21C94E-5B20-2020-2020-B662C695C918/Resources/");
    const QString clauss = QStringLiteral(":/7A21C94E-5B20-2020-2020-D6D081182F97/Resources/");
    const QString gigapan = QStringLiteral(":/7A21C94E-5B20-2020-2020-6028D47773DF/Resources/");
    const QString papywizard = QStringLiteral(":/7A21C94E-5B20-2020-2020-483181480AB7/Resources/");

    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    const auto row = [](const char *name, const QString &path, int width, int height) {
        QTest::newRow(name) << path << QSize(width, height);
    };
    row("VR Drive 2 logo and icon", vrDrive2 + QStringLiteral("VRDrive2.png"), 64, 64);
    row("VR Drive 2 copy, rotate left", vrDrive2 + QStringLiteral("rot90left.png"), 32, 32);
    row("VR Drive 2 copy, rotate right", vrDrive2 + QStringLiteral("rot90right.png"), 32, 32);
    row("Clauss logo", clauss + QStringLiteral("Clauss_wp.png"), 64, 64);
    row("Clauss icon", clauss + QStringLiteral("XClauss.png"), 128, 128);
    row("Gigapan icon", gigapan + QStringLiteral("XGigapan.png"), 128, 128);
    row("Gigapan columns", gigapan + QStringLiteral("gigapan-mode0.png"), 96, 72);
    row("Gigapan rows downward", gigapan + QStringLiteral("gigapan-mode1.png"), 96, 72);
    row("Gigapan rows upward", gigapan + QStringLiteral("gigapan-mode2.png"), 96, 72);
    row("Gigapan columns to left", gigapan + QStringLiteral("gigapan-mode3.png"), 96, 72);
    row("Papywizard icon", papywizard + QStringLiteral("Papywizard.png"), 128, 128);
    row("rotate left", papywizard + QStringLiteral("rot90left.png"), 32, 32);
    row("rotate right", papywizard + QStringLiteral("rot90right.png"), 32, 32);
}

void ResourcesTest::wizardPictureHasItsPathAndSize()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    const QImage picture(path);
    QVERIFY2(!picture.isNull(), qPrintable(path));
    QCOMPARE(picture.size(), size);
    QVERIFY(picture.hasAlphaChannel());
}

void ResourcesTest::translationFolderHoldsExactlyTheNamedFiles()
{
    QStringList expected;
    for (const char *language :
         { "en", "es", "zh_CN", "fr", "ja", "de", "it", "pl", "zh_TW", "ru" })
        expected << QStringLiteral("XPanoHead_%1.qm").arg(QLatin1String(language));
    for (const char *language : { "zh_CN", "zh_TW", "de", "cs", "fi", "en", "es", "fr", "ja", "it",
                                  "nl", "nb", "pl", "ru" })
        expected << QStringLiteral("XUI_%1.qm").arg(QLatin1String(language));
    expected.sort();
    QStringList found = QDir(QStringLiteral(":/Translation")).entryList();
    found.sort();
    QCOMPARE(found, expected);
}

void ResourcesTest::everyTranslationLoads_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = QDir(QStringLiteral(":/Translation")).entryList();
    QVERIFY(!files.isEmpty());
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

void ResourcesTest::everyTranslationLoads()
{
    QFETCH(QString, file);
    QTranslator translator;
    QVERIFY(translator.load(file, QStringLiteral(":/Translation")));
    if (file.endsWith(QLatin1String("_en.qm"))) // the source texts are English
        QVERIFY(translator.isEmpty());
}

void ResourcesTest::territoryFallsBackToTheLanguage_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("found");
    const auto row = [](const char *asked, const char *found) {
        QTest::newRow(asked) << QStringLiteral("XPanoHead_%1.qm").arg(QLatin1String(asked))
                             << QStringLiteral("XPanoHead_%1.qm").arg(QLatin1String(found));
    };
    row("fr_FR", "fr");
    row("fr_CA", "fr");
    row("de_AT", "de");
    row("zh_CN", "zh_CN");
    row("zh_TW", "zh_TW");
}

void ResourcesTest::territoryFallsBackToTheLanguage()
{
    QFETCH(QString, asked);
    QFETCH(QString, found);
    QTranslator translator;
    QVERIFY(translator.load(asked, QStringLiteral(":/Translation")));
    QCOMPARE(translator.filePath(), QStringLiteral(":/Translation/") + found);
}

void ResourcesTest::packDisappearsWithItsCleanup()
{
    const QString wizardFile = QStringLiteral(":/Translation/XPanoHead_de.qm");
    const QString uiFile = QStringLiteral(":/Translation/XUI_de.qm");
    QVERIFY(QFile::exists(wizardFile));
    QVERIFY(QFile::exists(uiFile));

    qCleanupResources_XPanoHead();
    QVERIFY(!QFile::exists(wizardFile));
    QVERIFY(QFile::exists(uiFile));
    qInitResources_XPanoHead();
    QVERIFY(QFile::exists(wizardFile));

    qCleanupResources_XUI();
    QVERIFY(!QFile::exists(uiFile));
    QVERIFY(QFile::exists(wizardFile));
    qInitResources_XUI();
    QVERIFY(QFile::exists(uiFile));
}

QTEST_GUILESS_MAIN(ResourcesTest)
#include "tst_resources.moc"
