// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/papywizardreader.h"

#include "importers/papywizard/merlintospp.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <limits>

#include <sys/stat.h>
#include <unistd.h>

using PanoHead::PapywizardRecord;
using PanoHead::ReadError;
using PanoHead::readPapywizard;

using Change = std::function<void(PapywizardRecord &)>;
Q_DECLARE_METATYPE(Change)

namespace
{

QString number(double value)
{
    return QString::number(value, 'g', 9);
}

/** Everything a record says, one line per fact and per shot. */
QString described(const PapywizardRecord &record)
{
    const auto yesNo
        = [](bool value) { return value ? QStringLiteral("yes") : QStringLiteral("no"); };
    QStringList lines{
        QStringLiteral("title [%1]").arg(record.title),
        QStringLiteral("gps [%1]").arg(record.gps),
        QStringLiteral("comment [%1]").arg(record.comment),
        QStringLiteral("focal %1").arg(number(record.xmlFocal)),
        QStringLiteral("coef %1").arg(number(record.sensorCoef)),
        QStringLiteral("photos per position %1").arg(record.nbPicts),
        QStringLiteral("lens %1").arg(record.xmlLensType),
        QStringLiteral("portrait %1").arg(yesNo(record.portrait)),
        QStringLiteral("shoot %1").arg(yesNo(record.hasShoot)),
    };
    for (const ShootData &shot : record.shots) {
        // Seven digits show the angle that the file gives, not its rounding to 32 bits.
        lines.append(
            QStringLiteral("shot %1 bracket %2 yaw %3 pitch %4 roll %5 time %6")
                .arg(QString::number(shot.id), QString::number(shot.bracket),
                     QString::number(shot.yaw, 'g', 7), QString::number(shot.pitch, 'g', 7),
                     QString::number(shot.roll, 'g', 7),
                     shot.time.isNull() ? QStringLiteral("-") : shot.time.toString(Qt::ISODate)));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

/** What `parse` has left in a generator, in the reader's form. */
PapywizardRecord recordOf(const MerlinToSPP &generator)
{
    PapywizardRecord record;
    record.shots = generator.shots;
    record.title = generator.title;
    record.gps = generator.gps;
    record.comment = generator.comment;
    record.xmlFocal = generator.xmlFocal;
    record.sensorCoef = generator.sensorCoef;
    record.nbPicts = generator.nbPicts;
    record.xmlLensType = generator.xmlLensType;
    record.portrait = generator.portrait;
    return record;
}

QString dataFile(const QString &name)
{
    return QStringLiteral(PANOHEAD_TEST_DATA "/papywizard/") + name;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

ShootData shot(float yaw, float pitch)
{
    ShootData result;
    result.yaw = yaw;
    result.pitch = pitch;
    return result;
}

} // namespace

class TestPapywizardReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsReadAsWritten_data();
    void recordsReadAsWritten();
    void elementsAndAttributes_data();
    void elementsAndAttributes();
    void numbersThatDoNotConvertKeepTheirDefault_data();
    void numbersThatDoNotConvertKeepTheirDefault();
    void anglesThatDoNotConvertAreZero_data();
    void anglesThatDoNotConvertAreZero();
    void anglesAreRoundedOnceTo32Bits();
    void timesReadInTheTextFormatOnly_data();
    void timesReadInTheTextFormatOnly();
    void brokenDocumentsSayWhere_data();
    void brokenDocumentsSayWhere();
    void theErrorMayBeLeftOut();
    void manyShotsKeepTheirOrder();
    void parseResetsWhatAnEarlierFileLeft();
    void parseLeavesTheDescriptionAlone();
    void parseRefusesWhatIsNoRecordFile_data();
    void parseRefusesWhatIsNoRecordFile();
    void parseNeedsTheRightToRead();
    void parseFollowsLinksAndTakesAnyName_data();
    void parseFollowsLinksAndTakesAnyName();
};

void TestPapywizardReader::recordsReadAsWritten_data()
{
    QTest::addColumn<QString>("name");
    const QStringList files
        = QDir(dataFile(QString())).entryList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Name);
    QVERIFY(files.size() >= 4);
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << file.chopped(4);
    }
}

void TestPapywizardReader::recordsReadAsWritten()
{
    QFETCH(QString, name);

    const QString expected
        = QString::fromUtf8(contentOf(dataFile(name + QStringLiteral(".expected"))));
    ReadError error;
    const auto record = readPapywizard(contentOf(dataFile(name + QStringLiteral(".xml"))), &error);
    QVERIFY2(record.has_value(), qPrintable(error.reason));
    const QString actual = described(*record);
    if (actual != expected) {
        write(name + QStringLiteral(".actual"), actual.toUtf8());
    }
    QCOMPARE(actual, expected);

    MerlinToSPP generator;
    QVERIFY(generator.parse(dataFile(name + QStringLiteral(".xml"))));
    PapywizardRecord parsed = recordOf(generator);
    parsed.hasShoot = record->hasShoot;
    QCOMPARE(described(parsed), expected);
}

void TestPapywizardReader::elementsAndAttributes_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, const QByteArray &body, const Change &change) {
        QTest::newRow(name) << body << change;
    };
    const auto nothing = [](PapywizardRecord &) {};
    const auto shots = [](const QVector<ShootData> &list) {
        return [list](PapywizardRecord &record) {
            record.shots = list;
            record.hasShoot = true;
        };
    };
    const auto title = [](const char *text) {
        const QString wanted = QString::fromUtf8(text);
        return [wanted](PapywizardRecord &record) { record.title = wanted; };
    };
    const auto focal = [](double value, double coef) {
        return [value, coef](PapywizardRecord &record) {
            record.xmlFocal = value;
            record.sensorCoef = coef;
        };
    };
    const auto lens = [](int type) {
        return [type](PapywizardRecord &record) {
            record.xmlFocal = 0.0;
            record.xmlLensType = type;
        };
    };
    const auto portrait
        = [](bool is) { return [is](PapywizardRecord &record) { record.portrait = is; }; };
    const auto picts
        = [](int count) { return [count](PapywizardRecord &record) { record.nbPicts = count; }; };
    ShootData numbered;
    numbered.id = 12;
    numbered.bracket = 3;

    row("nothing at all", "", nothing);
    row("empty header", "<header/>", nothing);
    row("header without what is read", "<header><other><title>t</title></other></header>", nothing);

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
        shots({ shot(10.5F, -3.25F) }));
    row("position without attributes", "<shoot><pict><position/></pict></shoot>",
        shots({ ShootData() }));
    row("angles as attributes of the picture count for nothing",
        "<shoot><pict yaw='1' pitch='2'/></shoot>", shots({ ShootData() }));
    row("roll is passed over",
        "<shoot><pict><position yaw='1' pitch='2' roll='45'/></pict></shoot>",
        shots({ shot(1.0F, 2.0F) }));
    row("any number of turns", "<shoot><pict><position yaw='1085' pitch='-400'/></pict></shoot>",
        shots({ shot(1085.0F, -400.0F) }));
    row("only the first position",
        "<shoot><pict><position yaw='1'/><position yaw='2' pitch='2'/></pict></shoot>",
        shots({ shot(1.0F, 0.0F) }));
    row("the first position of each picture",
        "<shoot><pict><position yaw='1'/><position yaw='2'/></pict>"
        "<pict><position yaw='3'/><position yaw='4'/></pict></shoot>",
        shots({ shot(1.0F, 0.0F), shot(3.0F, 0.0F) }));
    row("a picture in a picture is none, nor is its position",
        "<shoot><pict><pict><position yaw='1'/></pict><position yaw='2'/></pict></shoot>",
        shots({ shot(2.0F, 0.0F) }));
    row("the last of two attributes of one name",
        "<shoot><pict><position yaw='1' yaw='2'/></pict></shoot>", shots({ shot(2.0F, 0.0F) }));
    row("pictures in file order, others between them",
        "<shoot><pict><position yaw='2'/></pict><x/>t<!-- --><pict><position "
        "yaw='1'/></pict></shoot>",
        shots({ shot(2.0F, 0.0F), shot(1.0F, 0.0F) }));
    row("only the first shoot", "<shoot><pict/></shoot><shoot><pict/><pict/></shoot>",
        shots({ ShootData() }));
    row("a picture further down is none", "<shoot><group><pict/></group></shoot>", shots({}));
    row("names keep their case", "<shoot><Pict/><PICT/></shoot><Header/>", shots({}));
    row("prefixed names are other names", "<shoot xmlns:a='b'><a:pict/></shoot>", shots({}));

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

void TestPapywizardReader::parseResetsWhatAnEarlierFileLeft()
{
    const QTemporaryDir folder;
    const QString empty = folder.filePath(QStringLiteral("empty.xml"));
    write(empty, "<p/>");

    MerlinToSPP generator;
    QVERIFY(generator.parse(dataFile(QStringLiteral("brackets-portrait.xml"))));
    QCOMPARE(generator.shots.size(), 6);
    QVERIFY(generator.portrait);
    QVERIFY(generator.parse(empty));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));

    QVERIFY(generator.parse(dataFile(QStringLiteral("mosaic.xml"))));
    QCOMPARE(generator.shots.size(), 6);
    QVERIFY(!generator.parse(folder.filePath(QStringLiteral("missing.xml"))));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));

    QVERIFY(generator.parse(dataFile(QStringLiteral("mosaic.xml"))));
    write(empty, "<p>");
    QVERIFY(!generator.parse(empty));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));
}

void TestPapywizardReader::parseLeavesTheDescriptionAlone()
{
    MerlinToSPP generator;
    generator.imageGroups = { { QStringLiteral("/a.jpg") } };
    generator.authorizedLinks = { { 2, { 0, 1 } } };
    generator.yaw = { 1.0F };
    generator.pitch = { 2.0F };
    generator.roll = { 3.0F };
    generator.focalLength = 35.0F;
    generator.lensModel = LensModel::Fisheye;
    generator.overlap = 12.0;
    for (const QString &name : { QStringLiteral("mosaic.xml"), QStringLiteral("missing.xml") }) {
        generator.parse(dataFile(name));
        QCOMPARE(generator.imageGroups.size(), 1);
        QCOMPARE(generator.authorizedLinks.size(), 1);
        QCOMPARE(generator.yaw, QVector<float>({ 1.0F }));
        QCOMPARE(generator.pitch, QVector<float>({ 2.0F }));
        QCOMPARE(generator.roll, QVector<float>({ 3.0F }));
        QCOMPARE(generator.focalLength, 35.0F);
        QCOMPARE(generator.lensModel, LensModel::Fisheye);
        QCOMPARE(generator.overlap, 12.0);
    }
}

void TestPapywizardReader::parseRefusesWhatIsNoRecordFile_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty path") << QString();
    QTest::newRow("missing") << QStringLiteral("missing.xml");
    QTest::newRow("folder") << QStringLiteral(".");
    QTest::newRow("named pipe that nobody writes") << QStringLiteral("pipe.xml");
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    QTest::newRow("empty device") << QStringLiteral("/dev/null");
    QTest::newRow("link to nowhere") << QStringLiteral("dangling.xml");
    QTest::newRow("link to itself") << QStringLiteral("loop.xml");
    QTest::newRow("link to a device") << QStringLiteral("device.xml");
    QTest::newRow("path that goes on behind a NUL")
        << QStringLiteral("good.xml") + QChar(QChar::Null) + QStringLiteral(".xml");
    QTest::newRow("path below a file") << QStringLiteral("good.xml/x");
    QTest::newRow("name that is too long") << QString(5'000, QLatin1Char('x'));
    QTest::newRow("empty file") << QStringLiteral("empty.xml");
    QTest::newRow("64 MiB and a byte") << QStringLiteral("large.xml");
}

void TestPapywizardReader::parseRefusesWhatIsNoRecordFile()
{
    QFETCH(QString, path);

    const QTemporaryDir folder;
    const auto encoded
        = [&folder](const QString &name) { return QFile::encodeName(folder.filePath(name)); };
    write(folder.filePath(QStringLiteral("good.xml")), "<p/>");
    write(folder.filePath(QStringLiteral("empty.xml")), QByteArray());
    QCOMPARE(::mkfifo(encoded(QStringLiteral("pipe.xml")).constData(), 0600), 0);
    QCOMPARE(::symlink("nowhere.xml", encoded(QStringLiteral("dangling.xml")).constData()), 0);
    QCOMPARE(::symlink("loop.xml", encoded(QStringLiteral("loop.xml")).constData()), 0);
    QCOMPARE(::symlink("/dev/zero", encoded(QStringLiteral("device.xml")).constData()), 0);
    QFile large(folder.filePath(QStringLiteral("large.xml")));
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.write("<p/>") == 4 && large.resize(64LL * 1024 * 1024 + 1));
    large.close();

    MerlinToSPP generator;
    const bool isPath = path.isEmpty() || QDir::isAbsolutePath(path);
    QVERIFY(!generator.parse(isPath ? path : folder.filePath(path)));
    QCOMPARE(described(recordOf(generator)), described(PapywizardRecord()));
}

void TestPapywizardReader::parseNeedsTheRightToRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("secret.xml"));
    write(path, "<p/>");
    QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0755) == 0);
    QVERIFY(::chmod(QFile::encodeName(path).constData(), 0000) == 0);

    // Root may read everything: the test then asks as somebody else.
    constexpr uid_t kNobody = 65'534;
    const uid_t self = ::geteuid();
    QVERIFY(self != 0 || ::seteuid(kNobody) == 0);
    MerlinToSPP generator;
    const bool parsed = generator.parse(path);
    QVERIFY(self != 0 || ::seteuid(self) == 0);
    QVERIFY(!parsed);

    QVERIFY(::chmod(QFile::encodeName(path).constData(), 0644) == 0);
    QVERIFY(generator.parse(path));
}

void TestPapywizardReader::parseFollowsLinksAndTakesAnyName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << QStringLiteral("a.xml");
    QTest::newRow("no ending") << QStringLiteral("record");
    QTest::newRow("link") << QStringLiteral("link.xml");
    QTest::newRow("blanks and signs") << QStringLiteral("a b #?%41&'\"<i>.xml");
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("\u00e9\u65e5.xml");
    QTest::newRow("line break") << QStringLiteral("a\nb.xml");
}

void TestPapywizardReader::parseFollowsLinksAndTakesAnyName()
{
    QFETCH(QString, name);

    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    if (name == QLatin1String("link.xml")) {
        QVERIFY(QFile::link(dataFile(QStringLiteral("mosaic.xml")), path));
    } else {
        QVERIFY(QFile::copy(dataFile(QStringLiteral("mosaic.xml")), path));
    }
    MerlinToSPP generator;
    QVERIFY(generator.parse(path));
    QCOMPARE(generator.shots.size(), 6);
}

TEST_CLASS(TestPapywizardReader, QCoreApplication)
#include "tst_papywizardreader.moc"
