// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demohead.h"
#include "tests/support/testprogram.h"

#include <QXmlStreamReader>
#include <QtTest>

using namespace PanoHost;

namespace
{

struct ReadPict {
    int id = 0;
    int bracket = 0;
    QString yaw;
    QString pitch;
    bool hasRoll = false;
    QString time;
};

/** A record, read back by a reader of the test's own. */
struct ReadRecord {
    bool wellFormed = false;
    QString version;
    QMap<QString, QString> texts; ///< by element name, as written
    QMap<QString, QString> attributes; ///< by "element.attribute"
    QVector<ReadPict> picts;
};

ReadRecord read(const QByteArray &xml)
{
    ReadRecord record;
    QXmlStreamReader reader(xml);
    QString element;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            element = reader.name().toString();
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute &attribute : attributes) {
                record.attributes.insert(element + QLatin1Char('.') + attribute.name(),
                                         attribute.value().toString());
            }
            if (element == QLatin1String("pict")) {
                record.picts.append({ attributes.value(QLatin1String("id")).toInt(),
                                      attributes.value(QLatin1String("bracket")).toInt(),
                                      {},
                                      {},
                                      false,
                                      {} });
            } else if (element == QLatin1String("position")) {
                record.picts.last().yaw = attributes.value(QLatin1String("yaw")).toString();
                record.picts.last().pitch = attributes.value(QLatin1String("pitch")).toString();
                record.picts.last().hasRoll = attributes.hasAttribute(QLatin1String("roll"));
            }
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            if (element == QLatin1String("time")) {
                record.picts.last().time = reader.text().toString();
            } else {
                record.texts[element] += reader.text();
            }
        }
    }
    record.wellFormed = !reader.hasError();
    return record;
}

ShootPlan planOf(const QVector<Pose> &positions, const QVector<double> &stops = { 0.0 })
{
    ShootPlan plan;
    plan.camera = { QSize(900, 600), 24.0, Projection::Rectilinear };
    plan.positions = positions;
    plan.stops = stops;
    return plan;
}

QByteArray papywizardRecord(const ShootPlan &plan, const QString &title)
{
    return PanoHead::headFactsOf(QStringLiteral("papywizard"))->write(notesOf(plan, title));
}

QByteArray claussScript(const ShootPlan &plan)
{
    return PanoHead::headFactsOf(QStringLiteral("clauss"))->write(notesOf(plan, {}));
}

} // namespace

class TestRecordWriter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void headerDescribesCameraAndLens();
    void focalTimesCoefficientIsTheFocalLengthOfThePlan();
    void titleMayHoldAnything();
    void elementTextsStandOnLinesOfTheirOwn();
    void anglesHaveOneDecimal_data();
    void anglesHaveOneDecimal();
    void exactAnglesKeepTwelveDigits();
    void everyExposureHasItsPict();
    void scriptSetsAnAngleOnlyWhereItChanges();
    void scriptShootsOncePerExposure();
};

void TestRecordWriter::headerDescribesCameraAndLens()
{
    ShootPlan plan = planOf({ { 0.0, 0.0, 0.0 } }, { -2.0, 0.0, 2.0 });
    plan.mounting = Mounting::PortraitTurned;
    plan.camera.projection = Projection::EquidistantFisheye;
    const ReadRecord record = read(papywizardRecord(plan, QStringLiteral("A title")));
    QVERIFY(record.wellFormed);
    QCOMPARE(record.attributes.value(QStringLiteral("papywizard.version")), QStringLiteral("c"));
    QCOMPARE(record.texts.value(QStringLiteral("title")).trimmed(), QStringLiteral("A title"));
    QCOMPARE(record.texts.value(QStringLiteral("cameraOrientation")).trimmed(),
             QStringLiteral("portrait"));
    QCOMPARE(record.attributes.value(QStringLiteral("bracketing.nbPicts")), QStringLiteral("3"));
    QCOMPARE(record.attributes.value(QStringLiteral("lens.type")), QStringLiteral("fisheye"));

    const ReadRecord plain = read(papywizardRecord(planOf({ { 0.0, 0.0, 0.0 } }), QString()));
    QCOMPARE(plain.texts.value(QStringLiteral("cameraOrientation")).trimmed(),
             QStringLiteral("landscape"));
    QCOMPARE(plain.attributes.value(QStringLiteral("bracketing.nbPicts")), QStringLiteral("1"));
    QCOMPARE(plain.attributes.value(QStringLiteral("lens.type")), QStringLiteral("rectilinear"));
}

void TestRecordWriter::focalTimesCoefficientIsTheFocalLengthOfThePlan()
{
    const ReadRecord record = read(papywizardRecord(planOf({ { 0.0, 0.0, 0.0 } }), QString()));
    const double coefficient = record.attributes.value(QStringLiteral("sensor.coef")).toDouble();
    QVERIFY(coefficient > 1.0);
    QCOMPARE(coefficient * record.texts.value(QStringLiteral("focal")).trimmed().toDouble(), 24.0);
}

void TestRecordWriter::titleMayHoldAnything()
{
    const QString title = QStringLiteral("<Lake> & \"terrace\", %1 ä");
    const ReadRecord record = read(papywizardRecord(planOf({ { 0.0, 0.0, 0.0 } }), title));
    QVERIFY(record.wellFormed);
    QCOMPARE(record.texts.value(QStringLiteral("title")).trimmed(), title);
}

void TestRecordWriter::elementTextsStandOnLinesOfTheirOwn()
{
    const ReadRecord record
        = read(papywizardRecord(planOf({ { 0.0, 0.0, 0.0 } }), QStringLiteral("T")));
    for (const QString &text :
         { record.texts.value(QStringLiteral("title")), record.texts.value(QStringLiteral("focal")),
           record.texts.value(QStringLiteral("cameraOrientation")), record.picts.first().time }) {
        QVERIFY(text.startsWith(QLatin1Char('\n')));
        QVERIFY(text.endsWith(QLatin1Char(' ')));
    }
    QCOMPARE(record.picts.first().time.trimmed(), QStringLiteral("2026-05-01_10h20m30s"));
}

void TestRecordWriter::anglesHaveOneDecimal_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<QString>("written");
    QTest::newRow("whole") << 45.0 << QStringLiteral("45.0");
    QTest::newRow("rounded down") << 12.34 << QStringLiteral("12.3");
    QTest::newRow("rounded up") << -179.96 << QStringLiteral("-180.0");
    QTest::newRow("no negative zero") << -0.04 << QStringLiteral("0.0");
}

void TestRecordWriter::anglesHaveOneDecimal()
{
    QFETCH(double, angle);
    QFETCH(QString, written);
    const ReadRecord record
        = read(papywizardRecord(planOf({ { angle, -angle / 4.0, 0.0 } }), QString()));
    QCOMPARE(record.picts.first().yaw, written);
    QVERIFY(record.picts.first().hasRoll);
    const double pitch = record.picts.first().pitch.toDouble();
    QVERIFY(std::fabs(pitch + angle / 4.0) <= 0.05 + 1e-9);
}

void TestRecordWriter::exactAnglesKeepTwelveDigits()
{
    const ShootPlan plan = planOf({ { 123.456789012, -0.0123456789, 0.0 } });
    PanoHead::NotedShoot notes = notesOf(plan, {});
    notes.exactAngles = true;
    const ReadRecord record
        = read(PanoHead::headFactsOf(QStringLiteral("papywizard"))->write(notes));
    QCOMPARE(record.picts.first().yaw, QStringLiteral("123.456789012"));
    QCOMPARE(record.picts.first().pitch.toDouble(), -0.0123456789);
}

void TestRecordWriter::everyExposureHasItsPict()
{
    const ShootPlan plan = planOf({ { 0.0, 10.0, 0.0 }, { 30.0, 20.0, 0.0 } }, { 0.0, -2.0, 2.0 });
    const QVector<ReadPict> picts = read(papywizardRecord(plan, QString())).picts;
    QCOMPARE(picts.size(), 6);
    for (int i = 0; i < picts.size(); ++i) {
        QCOMPARE(picts[i].id, i + 1);
        QCOMPARE(picts[i].bracket, i % 3 + 1);
        QCOMPARE(picts[i].yaw, i < 3 ? QStringLiteral("0.0") : QStringLiteral("30.0"));
        QCOMPARE(picts[i].pitch, i < 3 ? QStringLiteral("10.0") : QStringLiteral("20.0"));
    }
}

void TestRecordWriter::scriptSetsAnAngleOnlyWhereItChanges()
{
    const ShootPlan plan
        = planOf({ { -30.0, 45.0, 0.0 }, { 29.6, 45.4, 0.0 }, { 30.0, -15.0, 0.0 } });
    QCOMPARE(claussScript(plan),
             QByteArray("op_v-angle=45\nop_h-angle=-30\nop_shoot\n"
                        "op_h-angle=30\nop_shoot\n"
                        "op_v-angle=-15\nop_shoot\n"));
}

void TestRecordWriter::scriptShootsOncePerExposure()
{
    QCOMPARE(claussScript(planOf({ { 0.0, 0.0, 0.0 } }, { 0.0, 1.0 })),
             QByteArray("op_v-angle=0\nop_h-angle=0\nop_shoot\nop_shoot\n"));
}

TEST_CLASS(TestRecordWriter, QCoreApplication)
#include "tst_recordwriter.moc"
