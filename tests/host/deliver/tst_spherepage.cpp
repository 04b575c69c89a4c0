// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "browser.h"
#include "host/deliver/spherepage.h"
#include "testpicture.h"
#include "tests/support/testprogram.h"
#include "testsphere.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <cmath>
#include <memory>

using namespace PanoHost;
using Depth = StitchedPicture::Depth;
Q_DECLARE_METATYPE(PanoHost::StitchedPicture::Depth)
Q_DECLARE_METATYPE(PanoHost::ExitCode)

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
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/** The picture inside a page. */
QImage pictureIn(const QString &page)
{
    const QByteArray content = contentOf(page);
    const QByteArray mark = "data:image/jpeg;base64,";
    const int start = content.indexOf(mark) + mark.size();
    return QImage::fromData(
        QByteArray::fromBase64(content.mid(start, content.indexOf('"', start) - start)), "JPEG");
}

} // namespace

class TestSpherePage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase() { m_browser.reset(); }
    void wholeSphereOpensAtItsMiddleAndTurns();
    void addressNamesTheView();
    void pageFillsItsWindow_data();
    void pageFillsItsWindow();
    void mouseTurnsAndWheelMagnifies();
    void seamIsNotSeen();
    void partOfASphereLiesWhereItBelongs_data();
    void partOfASphereLiesWhereItBelongs();
    void partOfASphereIsNeverLeft_data();
    void partOfASphereIsNeverLeft();
    void polesAreReachedWhereThereAreAny();
    void whatIsNotCoveredIsBackground();
    void everyDepthShowsTheSame_data();
    void everyDepthShowsTheSame();
    void compassKnowsTheHeading();
    void titleIsOnlyText_data();
    void titleIsOnlyText();
    void largePicturesAreScaledDown_data();
    void largePicturesAreScaledDown();
    void pageHoldsTheViewersLicence();
    void olderPageStaysWhenSomethingFails_data();
    void olderPageStaysWhenSomethingFails();

private:
    bool show(const QString &page, const QString &hash = {}, QSize size = { 400, 225 });
    bool make(const DeliverJob &job, const QString &hash = {}, QSize size = { 400, 225 });
    QRgb middle()
    {
        const QImage picture = m_browser->picture();
        return picture.pixel(picture.width() / 2, picture.height() / 2);
    }

    std::unique_ptr<Browser> m_browser;
};

void TestSpherePage::initTestCase()
{
    m_browser = std::make_unique<Browser>();
}

void TestSpherePage::cleanup()
{
    QCOMPARE(m_browser->problem(), QString());
    QCOMPARE(m_browser->errors(), QStringList());
    QCOMPARE(m_browser->asked(), QStringList()); // of no network
}

bool TestSpherePage::show(const QString &page, const QString &hash, QSize size)
{
    return m_browser->open(page, hash, size)
        && m_browser->waitUntil(QStringLiteral("viewer.isLoaded()"));
}

/** Makes a page and opens it. */
bool TestSpherePage::make(const DeliverJob &job, const QString &hash, QSize size)
{
    const Result<QString> made = makeSpherePage(job, {});
    if (!made) {
        qWarning("%s", qPrintable(made.error().text()));
        return false;
    }
    return show(made.value(), hash, size);
}

void TestSpherePage::wholeSphereOpensAtItsMiddleAndTurns()
{
    const TestSphere sphere;
    QVERIFY(sphere.ok);
    QVERIFY(make(sphere.job));
    QVERIFY2(isAlike(middle(), Marks::kFront), qPrintable(QString::number(middle(), 16)));
    struct View {
        const char *pitchYaw;
        QRgb colour;
    };
    for (const View &view :
         { View{ "0, 90", Marks::kRight }, View{ "0, -90", Marks::kLeft },
           View{ "0, 180", Marks::kBack }, View{ "90, 0", Marks::kZenith },
           View{ "-90, 0", Marks::kNadir }, View{ "40, 45", Marks::kElsewhere } }) {
        m_browser->evaluate(
            QStringLiteral("viewer.lookAt(%1, 60, false); 0").arg(QLatin1String(view.pitchYaw)));
        QVERIFY2(isAlike(middle(), view.colour), view.pitchYaw);
    }
}

void TestSpherePage::addressNamesTheView()
{
    const TestSphere sphere;
    QVERIFY(make(sphere.job, QStringLiteral("#yaw=90&pitch=0&hfov=60")));
    QVERIFY(isAlike(middle(), Marks::kRight));
    QCOMPARE(m_browser->evaluate(QStringLiteral("viewer.getHfov()")).toDouble(), 60.0);
    m_browser->evaluate(QStringLiteral("location.hash = '#yaw=-90'"));
    QVERIFY(m_browser->waitUntil(QStringLiteral("Math.abs(viewer.getYaw() + 90) < 0.01")));
    QVERIFY(isAlike(middle(), Marks::kLeft));
    QVERIFY(show(sphere.path("my pano[x].html"), QStringLiteral("#yaw=north&pitch=%&hfov=")));
    QVERIFY(isAlike(middle(), Marks::kFront));
}

void TestSpherePage::pageFillsItsWindow_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<double>("hfov"); ///< at the start
    QTest::newRow("wide") << QSize(1280, 720) << 90.0;
    // The longer side sees 90 degrees: 2 * atan(400 / 800).
    QTest::newRow("phone") << QSize(400, 800) << 53.1301;
}

void TestSpherePage::pageFillsItsWindow()
{
    QFETCH(QSize, window);
    QFETCH(double, hfov);
    const TestSphere sphere;
    QVERIFY(make(sphere.job, {}, window));
    const QImage picture = m_browser->picture();
    QCOMPARE(picture.size(), window);
    // No border and no scroll bar; the title stands at the lower left.
    for (const QPoint corner : { QPoint(window.width() - 1, 0), QPoint(0, window.height() / 2),
                                 QPoint(window.width() - 1, window.height() - 1) }) {
        QVERIFY(isAlike(picture.pixel(corner), Marks::kElsewhere));
    }
    QVERIFY(qAbs(m_browser->evaluate(QStringLiteral("viewer.getHfov()")).toDouble() - hfov) < 0.01);
    QCOMPARE(m_browser->evaluate(QStringLiteral("document.documentElement.scrollHeight")).toInt(),
             window.height());
}

void TestSpherePage::mouseTurnsAndWheelMagnifies()
{
    const TestSphere sphere;
    QVERIFY(make(sphere.job));
    m_browser->drag({ 200, 112 }, { 50, 112 });
    QVERIFY(m_browser->waitUntil(QStringLiteral("viewer.getYaw() > 20")));
    QVERIFY(show(sphere.path("my pano[x].html")));
    // 15 degrees from the middle: 200 * tan(15) = 54 pixels.
    QVERIFY(isAlike(m_browser->picture().pixel(200 + 65, 112), Marks::kElsewhere));
    m_browser->turnWheel({ 200, 112 }, -300);
    QVERIFY(m_browser->waitUntil(QStringLiteral("viewer.getHfov() < 70")));
    // At 70 degrees 200 / tan(35) * tan(15) = 77 pixels.
    QVERIFY(isAlike(m_browser->picture().pixel(200 + 65, 112), Marks::kFront));
}

void TestSpherePage::seamIsNotSeen()
{
    const TestSphere sphere;
    QVERIFY(make(sphere.job, QStringLiteral("#yaw=180&hfov=40")));
    const QImage picture = m_browser->picture();
    for (int x = 150; x < 250; ++x) {
        QVERIFY2(isAlike(picture.pixel(x, 112), Marks::kBack), qPrintable(QString::number(x)));
    }
}

void TestSpherePage::partOfASphereLiesWhereItBelongs_data()
{
    QTest::addColumn<QRect>("part"); ///< of 1024 x 512
    QTest::addColumn<double>("yaw"); ///< from the part's middle to a mark
    QTest::addColumn<double>("pitch");
    QTest::addColumn<QRgb>("colour");
    // 1024 / 360 = 2.844 pixels a degree; yaw 90 is column 768, and the horizon row 256.
    QTest::newRow("middle") << QRect(312, 156, 400, 200) << 0.0 << 0.0 << Marks::kFront;
    QTest::newRow("right and up") << QRect(668, 50, 300, 300) << -17.6 << 0.0 << Marks::kRight;
    QTest::newRow("with the zenith") << QRect(112, 0, 800, 200) << 0.0 << 90.0 << Marks::kZenith;
    QTest::newRow("all around") << QRect(0, 128, 1024, 256) << 180.0 << 0.0 << Marks::kBack;
}

void TestSpherePage::partOfASphereLiesWhereItBelongs()
{
    QFETCH(QRect, part);
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    QFETCH(QRgb, colour);
    const TestSphere sphere({ 1024, 512 }, part);
    QVERIFY(make(sphere.job, QStringLiteral("#yaw=%1&pitch=%2&hfov=30").arg(yaw).arg(pitch)));
    const double seen = m_browser->evaluate(QStringLiteral("viewer.getYaw()")).toDouble();
    QVERIFY(qAbs(std::remainder(seen - yaw, 360.0)) < 0.01);
    QVERIFY(qAbs(m_browser->evaluate(QStringLiteral("viewer.getPitch()")).toDouble() - pitch)
            < 0.01);
    QVERIFY2(isAlike(middle(), colour), qPrintable(QString::number(middle(), 16)));
}

void TestSpherePage::partOfASphereIsNeverLeft_data()
{
    QTest::addColumn<QRect>("part");
    QTest::addColumn<QString>("hash");
    const QRect middle(312, 156, 400, 200);
    QTest::newRow("start") << middle << QString();
    QTest::newRow("far right and down") << middle << QStringLiteral("#yaw=170&pitch=-80&hfov=40");
    QTest::newRow("far left and up") << middle << QStringLiteral("#yaw=-170&pitch=80&hfov=40");
    QTest::newRow("too wide") << middle << QStringLiteral("#hfov=119");
    QTest::newRow("strip") << QRect(0, 200, 1024, 100) << QStringLiteral("#yaw=180&pitch=50");
}

void TestSpherePage::partOfASphereIsNeverLeft()
{
    QFETCH(QRect, part);
    QFETCH(QString, hash);
    const TestSphere sphere({ 1024, 512 }, part);
    QVERIFY(make(sphere.job, hash));
    const QImage picture = m_browser->picture();
    const QRgb background = qRgb(24, 24, 24);
    int seen = 0;
    for (int y = 0; y < picture.height() - 40; ++y) { // above the title
        for (int x = 40; x < picture.width(); ++x) { // beside the buttons
            seen += picture.pixel(x, y) == background ? 1 : 0;
        }
    }
    QCOMPARE(seen, 0);
}

void TestSpherePage::polesAreReachedWhereThereAreAny()
{
    // From the nadir to 40 degrees above the horizon.
    const TestSphere sphere({ 1024, 512 }, { 0, 142, 1024, 370 });
    QVERIFY(make(sphere.job, QStringLiteral("#pitch=-90")));
    QVERIFY(isAlike(middle(), Marks::kNadir));
    QVERIFY(show(sphere.path("my pano[x].html"), QStringLiteral("#pitch=90")));
    // The window's upper edge stays on the picture: 40 degrees less half of 2 * atan(225 / 400).
    QVERIFY(
        qAbs(m_browser->evaluate(QStringLiteral("viewer.getPitch()")).toDouble() - (40.08 - 29.36))
        < 0.1);
}

void TestSpherePage::whatIsNotCoveredIsBackground()
{
    const TestSphere sphere({ 64, 32 });
    // Colours that nobody is to see.
    QVERIFY(writeTestPicture(sphere.job.picture, QVector<Pixel>(64 * 32, { 250, 250, 250, 0 })));
    QVERIFY(make(sphere.job));
    QVERIFY(isAlike(middle(), qRgb(24, 24, 24)));
}

void TestSpherePage::everyDepthShowsTheSame_data()
{
    QTest::addColumn<Depth>("depth");
    QTest::newRow("16 bits") << Depth::Bits16;
    QTest::newRow("radiance") << Depth::Radiance;
}

void TestSpherePage::everyDepthShowsTheSame()
{
    QFETCH(Depth, depth);
    const TestSphere sphere({ 256, 128 }, {}, depth);
    QVERIFY(make(sphere.job));
    QVERIFY2(isAlike(middle(), Marks::kFront), qPrintable(QString::number(middle(), 16)));
    QVERIFY(isAlike(m_browser->picture().pixel(350, 112), Marks::kElsewhere));
}

void TestSpherePage::compassKnowsTheHeading()
{
    TestSphere sphere({ 512, 256 }, { 128, 64, 256, 128 });
    sphere.job.origin.headingDegrees = 70.0;
    QVERIFY(make(sphere.job));
    QCOMPARE(m_browser->evaluate(QStringLiteral("viewer.getNorthOffset()")).toDouble(), 70.0);
    QVERIFY(m_browser->evaluate(QStringLiteral("document.querySelector('.pnlm-compass') !== null"))
                .toBool());
    sphere.job.origin.headingDegrees.reset();
    QVERIFY(make(sphere.job));
    QCOMPARE(m_browser
                 ->evaluate(QStringLiteral(
                     "getComputedStyle(document.querySelector('.pnlm-compass')).display"))
                 .toString(),
             QStringLiteral("none"));
}

void TestSpherePage::titleIsOnlyText_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("script") << QStringLiteral("</script><script>document.title = 'mine'</script>");
    QTest::newRow("end of title") << QStringLiteral("</title></h1><img src=x onerror=alert(1)>");
    QTest::newRow("signs") << QStringLiteral(
        "\"It's\" \\ & &amp; `${1}` <b> @VIEWER@ @PICTURE@ %1 --> */ <!-- <![CDATA[");
    QTest::newRow("scripts of the world")
        << QString::fromUtf8("Терраса 露台 שָׁלוֹם \xF0\x9F\x8C\x84");
    QTest::newRow("long") << QString(3000, QLatin1Char('W'));
}

void TestSpherePage::titleIsOnlyText()
{
    QFETCH(QString, title);
    TestSphere sphere({ 64, 32 });
    sphere.job.title = title;
    QVERIFY(make(sphere.job));
    QCOMPARE(m_browser->evaluate(QStringLiteral("document.title")).toString(), title);
    QCOMPARE(
        m_browser->evaluate(QStringLiteral("document.querySelector('h1').textContent")).toString(),
        title);
    QCOMPARE(m_browser->evaluate(QStringLiteral("document.documentElement.scrollWidth")).toInt(),
             400);
}

void TestSpherePage::largePicturesAreScaledDown_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("shown");
    QTest::newRow("widest as it is") << QSize(8192, 6) << QSize(8192, 6);
    QTest::newRow("wider") << QSize(8200, 4) << QSize(8192, 4);
    QTest::newRow("half") << QSize(16384, 8) << QSize(8192, 4);
    QTest::newRow("high") << QSize(8, 8192) << QSize(4, 4096);
    QTest::newRow("a line") << QSize(65536, 2) << QSize(8192, 1);
}

void TestSpherePage::largePicturesAreScaledDown()
{
    QFETCH(QSize, size);
    QFETCH(QSize, shown);
    const TestSphere sphere({ 65536, 32768 }, { QPoint(0, 16000), size });
    const Result<QString> made = makeSpherePage(sphere.job, {});
    QVERIFY2(made, made ? "" : qPrintable(made.error().text()));
    QCOMPARE(pictureIn(made.value()).size(), shown);
}

void TestSpherePage::pageHoldsTheViewersLicence()
{
    const TestSphere sphere({ 64, 32 });
    const Result<QString> made = makeSpherePage(sphere.job, {});
    QVERIFY(made);
    const QByteArray page = contentOf(made.value());
    QVERIFY(page.contains("Matthew Petroff\n\nPermission is hereby granted, free of charge"));
    QVERIFY(page.contains("// Pannellum 2."));
    QVERIFY(!QString::fromUtf8(page).contains(QRegularExpression(QStringLiteral("@[A-Z]+@"))));
}

void TestSpherePage::olderPageStaysWhenSomethingFails_data()
{
    QTest::addColumn<QByteArray>("vips"); ///< a program in its place; empty: none
    QTest::addColumn<ExitCode>("code");
    QTest::addColumn<QString>("said");
    QTest::newRow("vips is missing")
        << QByteArray() << ExitCode::ToolMissing << QStringLiteral("apt install libvips-tools");
    QTest::newRow("vips fails") << QByteArray("echo no room >&2; exit 1\n") << ExitCode::ToolFailed
                                << QStringLiteral("no room");
    QTest::newRow("vips leaves nothing")
        << QByteArray("exit 0\n") << ExitCode::ToolFailed << QStringLiteral("incomplete");
    QTest::newRow("vips leaves half")
        << QByteArray("printf '\\377\\330\\377 and so on' >panorama.jpg\n") << ExitCode::ToolFailed
        << QStringLiteral("incomplete");
}

void TestSpherePage::olderPageStaysWhenSomethingFails()
{
    QFETCH(QByteArray, vips);
    QFETCH(ExitCode, code);
    QFETCH(QString, said);
    const TestSphere sphere({ 64, 32 });
    const QString page = sphere.path("my pano[x].html");
    QVERIFY(write(page, "older"));
    const QTemporaryDir tools;
    if (!vips.isEmpty()) {
        const QString tool = tools.filePath(QStringLiteral("vips"));
        QVERIFY(write(tool, "#!/bin/sh\n" + vips));
        QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner));
    }
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(tools.path()));
    const Result<QString> made = makeSpherePage(sphere.job, {});
    qputenv("PATH", path);
    QVERIFY(!made);
    QCOMPARE(made.error().code, code);
    QVERIFY2(made.error().text().contains(said), qPrintable(made.error().text()));
    QCOMPARE(contentOf(page), QByteArray("older"));
    QCOMPARE(QDir(sphere.job.workFolder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{ QStringLiteral("panorama.v") });
}

TEST_CLASS(TestSpherePage, QCoreApplication)
#include "tst_spherepage.moc"
