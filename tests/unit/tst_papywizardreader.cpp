// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/papywizardreader.h"

#include "tests/support/testprogram.h"
#include "tests/unit/describedrecord.h"
#include "tests/unit/shots.h"

#include <QTest>

#include <functional>
#include <limits>

using PanoHead::PapywizardRecord;
using PanoHead::ReadError;
using PanoHead::readPapywizard;

using Change = std::function<void(PapywizardRecord &)>;
Q_DECLARE_METATYPE(Change)

namespace
{

void row(const char *name, const QByteArray &body, const Change &change)
{
    QTest::newRow(name) << body << change;
}

void nothing(PapywizardRecord & /*record*/) { }

Change shots(const QVector<ShootData> &list)
{
    return [list](PapywizardRecord &record) {
        record.shots = list;
        record.hasShoot = true;
    };
}

Change title(const char *text)
{
    const QString wanted = QString::fromUtf8(text);
    return [wanted](PapywizardRecord &record) { record.title = wanted; };
}

Change focal(double value, double coef)
{
    return [value, coef](PapywizardRecord &record) {
        record.xmlFocal = value;
        record.sensorCoef = coef;
    };
}

Change lens(int type)
{
    return [type](PapywizardRecord &record) {
        record.xmlFocal = 0.0;
        record.xmlLensType = type;
    };
}

Change portrait(bool is)
{
    return [is](PapywizardRecord &record) { record.portrait = is; };
}

Change picts(int count)
{
    return [count](PapywizardRecord &record) { record.nbPicts = count; };
}

void addShootRows()
{
    ShootData numbered;
    numbered.id = 12;
    numbered.bracket = 3;
    row("shoot without pictures", "<shoot/>", shots({}));
    row("header but no shoot", "<header/><pict/>", nothing);
    row("pict", "<shoot><pict/></shoot>", shots({ ShootData() }));
    row("pict id and bracket", "<shoot><pict id='12' bracket='3'/></shoot>", shots({ numbered }));
    row("id and bracket with a sign and blanks", "<shoot><pict id='+12' bracket=' 3 '/></shoot>",
        shots({ numbered }));
    row("id and bracket that are no integers", "<shoot><pict id='12.0' bracket='three'/></shoot>",
        shots({ ShootData() }));
    row("id and bracket beyond 32 bits",
        "<shoot><pict id='2147483648' bracket='-2147483649'/></shoot>", shots({ ShootData() }));
    row("id and bracket as hexadecimal numbers", "<shoot><pict id='0x10' bracket='1_0'/></shoot>",
        shots({ ShootData() }));
    row("position", "<shoot><pict><position yaw='10.5' pitch='-3.25'/></pict></shoot>",
        shots({ shotAt(10.5F, -3.25F) }));
    row("position without attributes", "<shoot><pict><position/></pict></shoot>",
        shots({ ShootData() }));
    row("angles as attributes of the picture count for nothing",
        "<shoot><pict yaw='1' pitch='2'/></shoot>", shots({ ShootData() }));
    row("roll is passed over",
        "<shoot><pict><position yaw='1' pitch='2' roll='45'/></pict></shoot>",
        shots({ shotAt(1.0F, 2.0F) }));
    row("any number of turns", "<shoot><pict><position yaw='1085' pitch='-400'/></pict></shoot>",
        shots({ shotAt(1085.0F, -400.0F) }));
    row("only the first position",
        "<shoot><pict><position yaw='1'/><position yaw='2' pitch='2'/></pict></shoot>",
        shots({ shotAt(1.0F, 0.0F) }));
    row("the first position of each picture",
        "<shoot><pict><position yaw='1'/><position yaw='2'/></pict>"
        "<pict><position yaw='3'/><position yaw='4'/></pict></shoot>",
        shots({ shotAt(1.0F, 0.0F), shotAt(3.0F, 0.0F) }));
    row("a picture in a picture is none, nor is its position",
        "<shoot><pict><pict><position yaw='1'/></pict><position yaw='2'/></pict></shoot>",
        shots({ shotAt(2.0F, 0.0F) }));
    row("the last of two attributes of one name",
        "<shoot><pict><position yaw='1' yaw='2'/></pict></shoot>", shots({ shotAt(2.0F, 0.0F) }));
    row("pictures in file order, others between them",
        "<shoot><pict><position yaw='2'/></pict><x/>t<!-- --><pict><position "
        "yaw='1'/></pict></shoot>",
        shots({ shotAt(2.0F, 0.0F), shotAt(1.0F, 0.0F) }));
    row("only the first shoot", "<shoot><pict/></shoot><shoot><pict/><pict/></shoot>",
        shots({ ShootData() }));
    row("a picture further down is none", "<shoot><group><pict/></group></shoot>", shots({}));
    row("names keep their case", "<shoot><Pict/><PICT/></shoot><Header/>", shots({}));
    row("prefixed names are other names", "<shoot xmlns:a='b'><a:pict/></shoot>", shots({}));
}

void addTextRows()
{
    row("title", "<header><general><title>t</title></general></header>", title("t"));
    row("title is trimmed", "<header><general><title>\n\t a  b \n</title></general></header>",
        title("a  b"));
    row("title of markup and references",
        "<header><general><title>a<b>b</b><!-- x "
        "-->&amp;<![CDATA[<c>]]>&#233;</title></general></header>",
        title("ab&<c>\u00e9"));
    row("gps and comment",
        "<header><general><comment> c </comment><gps> g </gps></general></header>",
        [](PapywizardRecord &record) {
            record.gps = QStringLiteral("g");
            record.comment = QStringLiteral("c");
        });
    row("only the first title",
        "<header><general><title>1</title><title>2</title></general></header>", title("1"));
    row("only the first general", "<header><general/><general><title>2</title></general></header>",
        nothing);
    row("only the first header", "<header/><header><general><title>2</title></general></header>",
        nothing);
    row("title outside general", "<title>t</title><header><title>t</title></header>", nothing);
}

void addFocalRows()
{
    row("no lens", "<header><camera><sensor coef='2'/></camera></header>", focal(-1.0, 2.0));
    row("lens without focal", "<header><lens/></header>", focal(0.0, 1.0));
    row("lens without focal, with a sensor",
        "<header><camera><sensor coef='1.6'/></camera><lens/></header>", focal(0.0, 1.6));
    // 10 x 1.6
    row("focal times coefficient",
        "<header><camera><sensor coef='1.6'/></camera><lens><focal>10</focal></lens></header>",
        focal(16.0, 1.6));
    row("lens in front of the camera",
        "<header><lens><focal>10</focal></lens><camera><sensor coef='1.6'/></camera></header>",
        focal(16.0, 1.6));
    row("focal without a camera", "<header><lens><focal> 10 </focal></lens></header>",
        focal(10.0, 1.0));
    row("camera without a sensor", "<header><camera/><lens><focal>10</focal></lens></header>",
        focal(10.0, 1.0));
    row("sensor without a coefficient",
        "<header><camera><sensor/></camera><lens><focal>10</focal></lens></header>",
        focal(10.0, 1.0));
    row("coefficient 0 is a number",
        "<header><camera><sensor coef='0'/></camera><lens><focal>10</focal></lens></header>",
        focal(0.0, 0.0));
    row("negative focal length", "<header><lens><focal>-8</focal></lens></header>",
        focal(-8.0, 1.0));
    row("focal as an attribute counts for nothing", "<header><lens focal='10'/></header>",
        focal(0.0, 1.0));
}

void addCameraRows()
{
    row("bracketing without a count", "<header><camera><bracketing/></camera></header>", picts(0));
    row("bracketing", "<header><camera><bracketing nbPicts='3'/></camera></header>", picts(3));
    row("bracketing 0", "<header><camera><bracketing nbPicts='0'/></camera></header>", picts(0));
    row("negative bracketing", "<header><camera><bracketing nbPicts='-3'/></camera></header>",
        picts(-3));
    row("no bracketing", "<header><camera/></header>", picts(-1));

    row("fisheye", "<header><lens type='fisheye'/></header>", lens(1));
    row("fisheye in mixed case with blanks", "<header><lens type=' FishEye&#9;'/></header>",
        lens(1));
    row("rectilinear", "<header><lens type='rectilinear'/></header>", lens(0));
    row("fisheye and more", "<header><lens type='fisheye lens'/></header>", lens(0));
    row("lens without a type", "<header><lens/></header>", lens(0));

    row("portrait",
        "<header><shooting><cameraOrientation>portrait</cameraOrientation></shooting></header>",
        portrait(true));
    row("portrait in mixed case with blanks",
        "<header><shooting><cameraOrientation>\n Portrait "
        "\n</cameraOrientation></shooting></header>",
        portrait(true));
    row("landscape",
        "<header><shooting><cameraOrientation>landscape</cameraOrientation></shooting></header>",
        portrait(false));
    row("no orientation", "<header><shooting/></header>", portrait(false));
}

} // namespace

class TestPapywizardReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elementsAndAttributes_data();
    void elementsAndAttributes();
    void numbersThatDoNotConvertKeepTheirDefault_data();
    void numbersThatDoNotConvertKeepTheirDefault();
    void anglesThatDoNotConvertAreZero_data();
    void anglesThatDoNotConvertAreZero();
    void anglesAreRoundedOnceTo32Bits();
    void timesReadInTheTextFormatOnly_data();
    void timesReadInTheTextFormatOnly();
    void timesAreKeptAsWritten();
    void brokenDocumentsSayWhere_data();
    void brokenDocumentsSayWhere();
    void theErrorMayBeLeftOut();
    void manyShotsKeepTheirOrder();
};

void TestPapywizardReader::elementsAndAttributes_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<Change>("change");

    row("nothing at all", "", nothing);
    row("empty header", "<header/>", nothing);
    row("header without what is read", "<header><other><title>t</title></other></header>", nothing);
    addShootRows();
    addTextRows();
    addFocalRows();
    addCameraRows();
}

void TestPapywizardReader::elementsAndAttributes()
{
    QFETCH(QByteArray, body);
    QFETCH(Change, change);

    PapywizardRecord expected;
    change(expected);
    // The name of the document element means nothing.
    for (const QByteArray &root : { QByteArray("papywizard"), QByteArray("shoot") }) {
        const QByteArray document = "<" + root + " version='c'>" + body + "</" + root + ">";
        const auto record = readPapywizard(document);
        QVERIFY(record.has_value());
        QCOMPARE(described(*record), described(expected));
    }
}

void TestPapywizardReader::numbersThatDoNotConvertKeepTheirDefault_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("nbPicts");
    QTest::addColumn<double>("coef");
    QTest::addColumn<double>("focal");

    const auto row = [](const QByteArray &text, int nbPicts, double coef, double focal) {
        QTest::newRow(text.size() < 20 ? ("'" + text + "'").constData() : "400 nines")
            << text << nbPicts << coef << focal;
    };
    for (const char *text :
         { "", " ", "abc", "5abc", "0x10", "1_000", "5,5", "--5", "\u0665", "nan", "NaN", "inf",
           "-inf", "INF", "infinity", "1e309", "-1e309", "1e99999" }) {
        row(text, 0, 1.0, 0.0);
    }
    row(QByteArray(400, '9'), 0, 1.0, 0.0);
    row("+5", 5, 5.0, 5.0);
    row(" 5 ", 5, 5.0, 5.0);
    row("00012", 12, 12.0, 12.0);
    row("-4", -4, -4.0, -4.0);
    row("12.", 0, 12.0, 12.0);
    row("1e1", 0, 10.0, 10.0);
    // Too large for 32 bits although a double holds it
    row("1e308", 0, 1.0, 0.0);
    row("3.5e38", 0, 1.0, 0.0);
    row("3.4e38", 0, 3.4e38, 3.4e38);
    row("2147483647", 2'147'483'647, 2147483647.0, 2147483647.0);
    row("2147483648", 0, 2147483648.0, 2147483648.0);
    row("99999999999", 0, 99999999999.0, 99999999999.0);
    row("-2147483648", std::numeric_limits<int>::min(), -2147483648.0, -2147483648.0);
}

void TestPapywizardReader::numbersThatDoNotConvertKeepTheirDefault()
{
    QFETCH(QByteArray, text);

    const auto bracketing = readPapywizard("<p><header><camera><bracketing nbPicts='" + text
                                           + "'/></camera></header></p>");
    QVERIFY(bracketing.has_value());
    QTEST(bracketing->nbPicts, "nbPicts");

    const auto sensor
        = readPapywizard("<p><header><camera><sensor coef='" + text + "'/></camera></header></p>");
    QVERIFY(sensor.has_value());
    QTEST(sensor->sensorCoef, "coef");

    const auto lens
        = readPapywizard("<p><header><lens><focal>" + text + "</focal></lens></header></p>");
    QVERIFY(lens.has_value());
    QTEST(lens->xmlFocal, "focal");
}

void TestPapywizardReader::anglesThatDoNotConvertAreZero_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<float>("angle");

    for (const char *text : { "", "abc", "12,5", "12 5", "0x10", "nan", "inf", "-inf", "1e308",
                              "-1e308", "1e309", "4e38" }) {
        QTest::newRow(qPrintable(QLatin1Char('\'') + QLatin1String(text) + QLatin1Char('\'')))
            << QByteArray(text) << 0.0F;
    }
    QTest::newRow("400 nines") << QByteArray(400, '9') << 0.0F;
    QTest::newRow("blanks around") << QByteArray(" 12.5 ") << 12.5F;
    QTest::newRow("sign") << QByteArray("+12.5") << 12.5F;
    QTest::newRow("exponent") << QByteArray("125e-1") << 12.5F;
    QTest::newRow("largest") << QByteArray("3.4028234663852886e38")
                             << std::numeric_limits<float>::max();
    QTest::newRow("too small for 32 bits") << QByteArray("1e-50") << 0.0F;
    QTest::newRow("minus zero") << QByteArray("-0.0") << 0.0F;
}

void TestPapywizardReader::anglesThatDoNotConvertAreZero()
{
    QFETCH(QByteArray, text);
    QFETCH(float, angle);

    const auto record = readPapywizard("<p><shoot><pict><position yaw='" + text
                                       + "'/></pict>"
                                         "<pict><position pitch='"
                                       + text + "'/></pict></shoot></p>");
    QVERIFY(record.has_value());
    QCOMPARE(record->shots.size(), 2);
    QVERIFY(record->shots.at(0).yaw == angle);
    QVERIFY(record->shots.at(0).pitch == 0.0F);
    QVERIFY(record->shots.at(1).yaw == 0.0F);
    QVERIFY(record->shots.at(1).pitch == angle);
}

void TestPapywizardReader::anglesAreRoundedOnceTo32Bits()
{
    const auto record
        = readPapywizard("<p><shoot><pict><position yaw='0.1' pitch='12.3'/></pict>"
                         "<pict><position yaw='16777217' pitch='-0.7'/></pict></shoot></p>");
    QVERIFY(record.has_value());
    QVERIFY(record->shots.at(0).yaw == 0.1F);
    QVERIFY(record->shots.at(0).pitch == 12.3F);
    QVERIFY(record->shots.at(1).yaw == 16777216.0F); // 2^24 + 1 has no place in 24 bits
    QVERIFY(record->shots.at(1).pitch == -0.7F);
}

void TestPapywizardReader::timesReadInTheTextFormatOnly_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QDateTime>("time");

    const QDateTime read(QDate(2010, 5, 1), QTime(10, 20, 30));
    QTest::newRow("text format") << QByteArray("Sat May 1 10:20:30 2010") << read;
    QTest::newRow("text format, day with a zero") << QByteArray("Sat May 01 10:20:30 2010") << read;
    QTest::newRow("Papywizard's own form") << QByteArray("2010-05-01_10h20m30s") << QDateTime();
    QTest::newRow("ISO form") << QByteArray("2010-05-01T10:20:30") << QDateTime();
    QTest::newRow("empty") << QByteArray() << QDateTime();
    QTest::newRow("no date") << QByteArray("now") << QDateTime();
}

void TestPapywizardReader::timesReadInTheTextFormatOnly()
{
    QFETCH(QByteArray, text);
    QFETCH(QDateTime, time);

    const auto record
        = readPapywizard("<p><shoot><pict><time>" + text + "</time></pict></shoot></p>");
    QVERIFY(record.has_value());
    QCOMPARE(record->shots.size(), 1);
    QCOMPARE(record->shots.at(0).time, time);
    QCOMPARE(record->shots.at(0).time.isValid(), time.isValid());
}

void TestPapywizardReader::timesAreKeptAsWritten()
{
    const QByteArray longest(64, 'x');
    const auto record = readPapywizard(
        "<p><shoot><pict><time>\n 2010-05-01_10h20m30s \n</time><time>2</time></pict><pict/>"
        "<pict><time>Sat May 1 10:20:30 2010</time></pict><pict><time> "
        + longest + " </time></pict><pict><time>" + longest + "x</time></pict></shoot></p>");
    QVERIFY(record.has_value());
    QCOMPARE(record->times,
             (QStringList{ QStringLiteral("2010-05-01_10h20m30s"), QString(),
                           QStringLiteral("Sat May 1 10:20:30 2010"), QString::fromLatin1(longest),
                           QString() }));
}

void TestPapywizardReader::brokenDocumentsSayWhere_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("reason");

    const QString malformed = QStringLiteral("not well-formed XML");
    QTest::newRow("nothing") << QByteArray() << 1 << malformed;
    QTest::newRow("no XML") << QByteArray("op_shoot\n30\n") << 1 << malformed;
    QTest::newRow("JPEG") << QByteArray("\xff\xd8\xff\xe1\x12\x34"
                                        "Exif\0\0",
                                        12)
                          << 1 << malformed;
    QTest::newRow("wrong end tag on line 3")
        << QByteArray("<p>\n<shoot>\n</p>\n") << 3 << malformed;
    QTest::newRow("cut off") << QByteArray("<p>\n<shoot>\n<pict") << 3 << malformed;
    QTest::newRow("second document element") << QByteArray("<p/>\n<p/>") << 2 << malformed;
    QTest::newRow("30,000 nested elements") << QByteArray("<a>\n").repeated(30'000) << 257
                                            << QStringLiteral("nested more than 256 deep");
    QTest::newRow("entity bomb") << QByteArray("<!DOCTYPE p [\n<!ENTITY e '<a>'>]>\n<p>&e;</p>")
                                 << 2 << QStringLiteral("entities");
}

void TestPapywizardReader::brokenDocumentsSayWhere()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, reason);

    ReadError error;
    QVERIFY(!readPapywizard(document, &error));
    QVERIFY2(error.reason.contains(reason), qPrintable(error.reason));
    QTEST(error.line, "line");
}

void TestPapywizardReader::theErrorMayBeLeftOut()
{
    QVERIFY(!readPapywizard("<p>"));
    QVERIFY(!readPapywizard(QByteArray("<a>").repeated(300)));
    QVERIFY(readPapywizard("<p/>"));
}

void TestPapywizardReader::manyShotsKeepTheirOrder()
{
    constexpr int kShots = 20'000;
    QByteArray document = "<p><shoot>";
    for (int i = 0; i < kShots; ++i) {
        document += "<pict id='" + QByteArray::number(i) + "'><position yaw='"
            + QByteArray::number(i) + "' pitch='" + QByteArray::number(-i) + "'/></pict>";
    }
    const auto record = readPapywizard(document + "</shoot></p>");
    QVERIFY(record.has_value());
    QCOMPARE(record->shots.size(), kShots);
    for (int i = 0; i < kShots; ++i) {
        const ShootData &found = record->shots.at(i);
        QVERIFY(found.id == i && found.yaw == static_cast<float>(i)
                && found.pitch == static_cast<float>(-i));
    }
}

TEST_CLASS(TestPapywizardReader, QCoreApplication)
#include "tst_papywizardreader.moc"
