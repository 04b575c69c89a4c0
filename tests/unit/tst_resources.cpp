// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/hosthead.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLineF>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTranslator>
#include <QtMath>
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
    void iconsDifferAtSixteenPixelsWithoutColour_data();
    void iconsDifferAtSixteenPixelsWithoutColour();
    void uiFolderHoldsExactlyTheNamedIcons();
    void uiIconHasItsSize_data();
    void uiIconHasItsSize();
    void speakerAndPlaySignStandApart_data();
    void speakerAndPlaySignStandApart();
    void busyAnimationTurnsWithEveryFrame();
    void everyPictureIsDrawnFromItsSource();
    void controlModuleDeclaresItsTypes_data();
    void controlModuleDeclaresItsTypes();
    void uiPackHoldsItsScriptsAndPages();
    void everyNamedComponentHasItsNotice();
    void noticeSaysWhatIsTrue_data();
    void noticeSaysWhatIsTrue();
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
    row("VR Drive 2 logo and icon", vrDrive2 + QStringLiteral("VRDrive2.png"), 128, 128);
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

/** The icon as a small grey picture on a ground of that lightness. */
static QImage smallAndGrey(const QString &path, int ground)
{
    constexpr int kSide = 16;
    QImage picture(kSide, kSide, QImage::Format_RGB32);
    picture.fill(QColor(ground, ground, ground));
    QPainter(&picture).drawImage(
        0, 0, QImage(path).scaled(kSide, kSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return picture.convertToFormat(QImage::Format_Grayscale8);
}

/** Of two pictures of one size: how many pixels are clearly lighter in one than in the other. */
static int clearlyDifferent(const QImage &one, const QImage &other)
{
    constexpr int kClearly = 64; // of 255 greys
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (qAbs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) >= kClearly)
                ++count;
        }
    }
    return count;
}

void ResourcesTest::iconsDifferAtSixteenPixelsWithoutColour_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QStringList icons;
    for (const HostHead *head : allHostHeads()) {
        icons.append(QStringLiteral(":/%1/Resources/%2")
                         .arg(QLatin1String(head->uid), QLatin1String(head->icon)));
    }
    for (int i = 0; i < icons.size(); ++i) {
        for (int k = i + 1; k < icons.size(); ++k) {
            QTest::addRow("%s and %s", qPrintable(QFileInfo(icons.at(i)).baseName()),
                          qPrintable(QFileInfo(icons.at(k)).baseName()))
                << icons.at(i) << icons.at(k);
        }
    }
}

void ResourcesTest::iconsDifferAtSixteenPixelsWithoutColour()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    for (const int ground : { 255, 48 }) { // a light and a dark theme
        const int different
            = clearlyDifferent(smallAndGrey(one, ground), smallAndGrey(other, ground));
        QVERIFY2(different >= 16 * 16 / 4, QByteArray::number(different));
    }
}

void ResourcesTest::uiFolderHoldsExactlyTheNamedIcons()
{
    QStringList expected{
        QStringLiteral("video_pause@2x"),
        QStringLiteral("compass_reflect"),
        QStringLiteral("video_widgetscreen@2x"),
        QStringLiteral("compass_background"),
        QStringLiteral("collapsible_open"),
        QStringLiteral("video_widgetscreen"),
        QStringLiteral("settings_small_disabled"),
        QStringLiteral("flag"),
        QStringLiteral("help_24"),
        QStringLiteral("help_16"),
        QStringLiteral("help_case_studies_icon_64px"),
        QStringLiteral("blog"),
        QStringLiteral("settings_small"),
        QStringLiteral("video_mute"),
        QStringLiteral("video_volume"),
        QStringLiteral("help_forum_icon_64px"),
        QStringLiteral("video_fullscreen"),
        QStringLiteral("sizegrip"),
        QStringLiteral("video_fullscreen@2x"),
        QStringLiteral("help_general_icon_64px"),
        QStringLiteral("sound_play_16"),
        QStringLiteral("google-plus"),
        QStringLiteral("video_mute@2x"),
        QStringLiteral("collapsible_close"),
        QStringLiteral("video_play@2x"),
        QStringLiteral("video_pause"),
        QStringLiteral("compass_arrow"),
        QStringLiteral("flickr"),
        QStringLiteral("twitter"),
        QStringLiteral("video_volume@2x"),
        QStringLiteral("youtube"),
        QStringLiteral("help_video_tutorials_icon_64px"),
        QStringLiteral("facebook"),
        QStringLiteral("video_play"),
        QStringLiteral("sound_play_16@2"),
        QStringLiteral("iconwait_01"),
        QStringLiteral("iconwait_02"),
        QStringLiteral("iconwait_03"),
        QStringLiteral("iconwait_04"),
        QStringLiteral("iconwait_05"),
        QStringLiteral("iconwait_06"),
        QStringLiteral("iconwait_07"),
        QStringLiteral("iconwait_08"),
        QStringLiteral("iconwait_09"),
        QStringLiteral("iconwait_10"),
        QStringLiteral("iconwait_11"),
        QStringLiteral("iconwait_12"),
        QStringLiteral("help_user_manual_icon_64px"),
    };
    QCOMPARE(expected.size(), 48);
    expected.replaceInStrings(QRegularExpression(QStringLiteral("$")), QStringLiteral(".png"));
    QStringList found = QDir(QStringLiteral(":/UI")).entryList(QDir::Files);
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
    for (const QString &icon : found)
        QVERIFY2(!QImage(QStringLiteral(":/UI/") + icon).isNull(), qPrintable(icon));
}

void ResourcesTest::uiIconHasItsSize_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("side");
    const auto row = [](const char *path, int side) {
        QTest::newRow(path) << QString::fromLatin1(path) << side;
    };
    row(":/UI/video_play.png", 24);
    row(":/UI/video_play@2x.png", 48);
    row(":/UI/help_16.png", 16);
    row(":/UI/help_24.png", 24);
    row(":/UI/help_general_icon_64px.png", 64);
    row(":/UI/sound_play_16.png", 16);
    row(":/UI/sound_play_16@2.png", 32);
    row(":/UI/settings_small.png", 16);
    row(":/UI/settings_small_disabled.png", 16);
    row(":/Resources/settings_small.png", 16);
    row(":/UI/compass_background.png", 128);
    row(":/UI/compass_arrow.png", 128);
    row(":/UI/iconwait_01.png", 32);
}

void ResourcesTest::uiIconHasItsSize()
{
    QFETCH(QString, path);
    QFETCH(int, side);
    QCOMPARE(QImage(path).size(), QSize(side, side));
}

void ResourcesTest::speakerAndPlaySignStandApart_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("usual screen") << QStringLiteral(":/UI/sound_play_16.png");
    QTest::newRow("dense screen") << QStringLiteral(":/UI/sound_play_16@2.png");
}

void ResourcesTest::speakerAndPlaySignStandApart()
{
    QFETCH(QString, path);
    const QImage picture(path);
    QString columns; // which of them show anything
    for (int x = 0; x < picture.width(); ++x) {
        bool shows = false;
        for (int y = 0; y < picture.height(); ++y)
            shows = shows || qAlpha(picture.pixel(x, y)) > 0;
        columns += shows ? QLatin1Char('#') : QLatin1Char(' ');
    }
    // One shape, at least an eighth of the width without a trace of either, the other shape.
    const QRegularExpression apart(QStringLiteral("^ *#+ {%1,}#+ *$").arg(picture.width() / 8));
    QVERIFY2(apart.match(columns).hasMatch(), qPrintable(columns));
}

/** How much colour a frame of the busy animation has around one of its dots, in opaque pixels. */
static double inkOfDot(const QImage &frame, int hour)
{
    constexpr double kCentre = 16.0;
    constexpr double kRing = 12.0; // pixels from the centre to the dots
    constexpr double kReach = 3.1; // half the way to the next dot
    const double angle = qDegreesToRadians(30.0 * hour);
    const QPointF dot(kCentre + kRing * qSin(angle), kCentre - kRing * qCos(angle));
    double ink = 0.0;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            if (QLineF(dot, QPointF(x + 0.5, y + 0.5)).length() <= kReach)
                ink += qAlpha(frame.pixel(x, y)) / 255.0;
        }
    }
    return ink;
}

void ResourcesTest::busyAnimationTurnsWithEveryFrame()
{
    const auto inkOf = [](int number, int hour) {
        const QImage frame(
            QStringLiteral(":/UI/iconwait_%1.png").arg(number, 2, 10, QLatin1Char('0')));
        return inkOfDot(frame, hour % 12);
    };
    // Of a dot with a radius of 3.1.
    QVERIFY(inkOf(1, 0) > 24.0);
    for (int hour = 1; hour < 12; ++hour) {
        const QByteArray dot = QByteArray::number(hour);
        // The brightest one has just been reached: the others fade counter-clockwise.
        QVERIFY2(inkOf(1, hour) < inkOf(1, hour + 1), dot);
    }
    // Every frame is the one before it, turned clockwise by a twelfth: the same ink one dot on. A
    // dot that falls between pixels is smoothed differently.
    for (int number = 2; number <= 12; ++number) {
        for (int hour = 0; hour < 12; ++hour) {
            const double before = inkOf(number - 1, hour);
            const double after = inkOf(number, hour + 1);
            QVERIFY2(qAbs(after - before) < 0.1 * before + 0.15,
                     qPrintable(QStringLiteral("frame %1, dot %2: %3, before %4")
                                    .arg(number)
                                    .arg(hour + 1)
                                    .arg(after)
                                    .arg(before)));
        }
    }
}

/** The files of the heads and of the UI pack whose names match \p pattern. */
static QSet<QString> sourceFiles(const QString &pattern)
{
    QSet<QString> found;
    for (const QString &folder : { QStringLiteral("/importers"), QStringLiteral("/resources") }) {
        QDirIterator files(QStringLiteral(SOURCE_FOLDER) + folder, { pattern }, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            found.insert(files.next());
    }
    return found;
}

void ResourcesTest::everyPictureIsDrawnFromItsSource()
{
    const QSet<QString> lists = sourceFiles(QStringLiteral("pictures.list"));
    QCOMPARE(lists.size(), static_cast<int>(allHostHeads().size()) + 1); // and the UI pack
    QSet<QString> pictures;
    QSet<QString> sources;
    for (const QString &listName : lists) {
        QFile list(listName);
        QVERIFY(list.open(QIODevice::ReadOnly));
        const QDir folder = QFileInfo(list).dir();
        const QStringList lines = QString::fromUtf8(list.readAll()).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            const QStringList words = line.simplified().split(QLatin1Char(' '));
            if (words.size() < 4 || line.startsWith(QLatin1Char('#')))
                continue;
            const QImage picture(folder.filePath(words.at(0)));
            QVERIFY2(picture.size() == QSize(words.at(2).toInt(), words.at(3).toInt()),
                     qPrintable(line));
            pictures.insert(folder.filePath(words.at(0)));
            sources.insert(QDir::cleanPath(folder.filePath(words.at(1))));
        }
    }
    // None is drawn from nothing, and no drawing is left over.
    QCOMPARE(pictures, sourceFiles(QStringLiteral("*.png")));
    QCOMPARE(sources, sourceFiles(QStringLiteral("*.svg")));
}

void ResourcesTest::controlModuleDeclaresItsTypes_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QStringList>("declarations");
    QTest::newRow("dark") << QStringLiteral("dark")
                          << QStringList{ QStringLiteral("Button 1.0 button.qml"),
                                          QStringLiteral("CheckBox 1.0 checkbox.qml"),
                                          QStringLiteral("Slider 1.0 slider.qml"),
                                          QStringLiteral("SpinBox 1.0 spinbox.qml"),
                                          QStringLiteral("ComboBox 1.0 combobox.qml") };
    QTest::newRow("light") << QStringLiteral("light")
                           << QStringList{ QStringLiteral("Button 1.0 button.qml") };
}

void ResourcesTest::controlModuleDeclaresItsTypes()
{
    QFETCH(QString, theme);
    QFETCH(QStringList, declarations);
    const QDir folder(QStringLiteral(":/UI/qml/%1/OrvaneControls").arg(theme));
    QFile qmldir(folder.filePath(QStringLiteral("qmldir")));
    QVERIFY(qmldir.open(QIODevice::ReadOnly));
    QStringList lines = QString::fromUtf8(qmldir.readAll()).split(QLatin1Char('\n'));
    lines
        = lines.filter(QRegularExpression(QStringLiteral("^[^#]"))); // neither comments nor blanks
    QCOMPARE(lines.takeFirst(), QStringLiteral("module OrvaneControls"));
    QCOMPARE(lines, declarations);

    QStringList expected{ QStringLiteral("qmldir") };
    for (const QString &declaration : declarations)
        expected << declaration.section(QLatin1Char(' '), 2);
    expected.sort();
    QStringList found = folder.entryList();
    found.sort();
    QCOMPARE(found, expected);
}

void ResourcesTest::uiPackHoldsItsScriptsAndPages()
{
    const auto filesIn = [](const QString &folder) {
        QStringList files = QDir(folder).entryList(QDir::Files);
        files.sort();
        return files;
    };
    QCOMPARE(filesIn(QStringLiteral(":/QML")),
             (QStringList{ QStringLiteral("CubeFace.qml"), QStringLiteral("cubefaces.js"),
                           QStringLiteral("preview.qml"), QStringLiteral("rotator.qml") }));
    QCOMPARE(filesIn(QStringLiteral(":/html")),
             (QStringList{ QStringLiteral("ggmap.html"), QStringLiteral("ggmap_geolocation.html"),
                           QStringLiteral("htmleditor.html") }));
    QCOMPARE(filesIn(QStringLiteral(":/Shader")).size(), 1);
    QCOMPARE(filesIn(QStringLiteral(":/Resources")),
             QStringList{ QStringLiteral("settings_small.png") });
}

void ResourcesTest::everyNamedComponentHasItsNotice()
{
    const QStringList expected{
        QStringLiteral("brotli.txt"),        QStringLiteral("double-conversion.txt"),
        QStringLiteral("exiv2.txt"),         QStringLiteral("expat.txt"),
        QStringLiteral("freetype.txt"),      QStringLiteral("gcc-runtime.txt"),
        QStringLiteral("glib.txt"),          QStringLiteral("glibc.txt"),
        QStringLiteral("graphite2.txt"),     QStringLiteral("harfbuzz.txt"),
        QStringLiteral("hugin.txt"),         QStringLiteral("icu.txt"),
        QStringLiteral("libbsd.txt"),        QStringLiteral("libglvnd.txt"),
        QStringLiteral("libjpeg-turbo.txt"), QStringLiteral("libmd.txt"),
        QStringLiteral("libpano13.txt"),     QStringLiteral("libpng.txt"),
        QStringLiteral("libtiff.txt"),       QStringLiteral("libwebp.txt"),
        QStringLiteral("libx11.txt"),        QStringLiteral("libxau.txt"),
        QStringLiteral("libxcb.txt"),        QStringLiteral("libxdmcp.txt"),
        QStringLiteral("md4c.txt"),          QStringLiteral("ocl-icd.txt"),
        QStringLiteral("onetbb.txt"),        QStringLiteral("pcre2.txt"),
        QStringLiteral("qtbase.txt"),        QStringLiteral("qtimageformats.txt"),
        QStringLiteral("xdg-utils.txt"),     QStringLiteral("zlib.txt"),
        QStringLiteral("zstd.txt"),
    };
    QCOMPARE(expected.size(), 33);
    const QDir folder(QStringLiteral(":/Licenses"));
    QStringList found = folder.entryList();
    found.sort();
    QCOMPARE(found, expected);
    // Component and version, where the system says it; blank, then four labelled lines.
    const bool knowsVersions
        = !QStandardPaths::findExecutable(QStringLiteral("dpkg-query")).isEmpty();
    const QRegularExpression form(
        QStringLiteral("^\\S.*") + (knowsVersions ? QStringLiteral(" [0-9][0-9.]*") : QString())
        + QStringLiteral(
            "\n\n"
            "Use here: \\S.*\nCopyright: \\S.*\nLicense: \\S.* \\(SPDX identifier\\)\n"
            "Full text: /usr/share/doc/\\S+/copyright on Debian, and at https?://\\S+\n$"));
    for (const QString &name : found) {
        QFile notice(folder.filePath(name));
        QVERIFY(notice.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(notice.readAll());
        QVERIFY2(form.match(text).hasMatch(), qPrintable(name + QLatin1Char('\n') + text));
    }
}

void ResourcesTest::noticeSaysWhatIsTrue_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("line");
    // The address that it had before belongs to somebody else.
    QTest::newRow("home of LibTIFF")
        << QStringLiteral(":/Licenses/libtiff.txt")
        << QStringLiteral("Full text: /usr/share/doc/libtiff6/copyright on Debian, and at "
                          "https://libtiff.gitlab.io/libtiff/\n");
    QTest::newRow("all licences of libmd")
        << QStringLiteral(":/Licenses/libmd.txt")
        << QStringLiteral("License: BSD-3-Clause AND BSD-2-Clause AND ISC AND Beerware AND "
                          "LicenseRef-public-domain (SPDX identifier)\n");
}

void ResourcesTest::noticeSaysWhatIsTrue()
{
    QFETCH(QString, path);
    QFETCH(QString, line);
    QFile notice(path);
    QVERIFY(notice.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(notice.readAll());
    QVERIFY2(text.contains(line), qPrintable(text));
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

TEST_CLASS(ResourcesTest, QCoreApplication)
#include "tst_resources.moc"
