// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/panoramajson.h"
#include "tests/host/jsonschema.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace PanoHost;
using TestPanoramas::kFolder;
using TestPanoramas::randomPanorama;
using TestPanoramas::sample;

namespace
{

QByteArray schemaText()
{
    QFile file(QStringLiteral(PANOHOST_SCHEMA));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot open the schema");
    }
    return file.readAll();
}

QJsonObject schema()
{
    return QJsonDocument::fromJson(schemaText()).object();
}

} // namespace

/** What is written fits the schema that comes with the host. */
class PanoramaJsonSchemaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void schemaIsThatOfTheFields();
    void outputFitsTheSchema();
    void schemaCheckFindsWhatIsWrong_data();
    void schemaCheckFindsWhatIsWrong();
};

void PanoramaJsonSchemaTest::schemaIsThatOfTheFields()
{
    QVERIFY2(schemaText() == panoramaSchema(),
             PANOHOST_SCHEMA " is not up to date; scripts/update-schemas makes it anew");
}

void PanoramaJsonSchemaTest::outputFitsTheSchema()
{
    const QJsonObject rules = schema();
    QVERIFY(rules.contains(QLatin1String("properties")));
    const auto problem = [&rules](const Panorama &panorama) {
        return JsonSchema::problem(
            QJsonDocument::fromJson(panoramaToJson(panorama, kFolder)).object(), rules);
    };
    QCOMPARE(problem(sample()), QString());
    QCOMPARE(problem(Panorama()), QString());
    for (unsigned seed = 0; seed < 100; ++seed) {
        const QString found = problem(randomPanorama(seed));
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

void PanoramaJsonSchemaTest::schemaCheckFindsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("schema 2") << QByteArray("\"schema\": 1") << QByteArray("\"schema\": 2");
    QTest::newRow("renamed key") << QByteArray("\"links\"") << QByteArray("\"Links\"");
    QTest::newRow("text for a number")
        << QByteArray("\"focal35mm\": 24") << QByteArray("\"focal35mm\": \"24\"");
    QTest::newRow("fraction for a count")
        << QByteArray("\"width\": 1200") << QByteArray("\"width\": 1200.5");
    QTest::newRow("orientation 9")
        << QByteArray("\"orientation\": 6") << QByteArray("\"orientation\": 9");
    QTest::newRow("unknown lens") << QByteArray("\"standard\"") << QByteArray("\"round\"");
    QTest::newRow("extra key") << QByteArray("{\"type\": 2,")
                               << QByteArray("{\"x\": 1, \"type\": 2,");
}

void PanoramaJsonSchemaTest::schemaCheckFindsWhatIsWrong()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QByteArray text = panoramaToJson(sample(), kFolder);
    QVERIFY(text.contains(from));
    text.replace(from, to);
    QVERIFY(!JsonSchema::problem(QJsonDocument::fromJson(text).object(), schema()).isEmpty());
}

TEST_CLASS(PanoramaJsonSchemaTest, QCoreApplication)
#include "tst_panoramajson_schema.moc"
