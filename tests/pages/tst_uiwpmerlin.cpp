// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/pageshoot.h"
#include "ui/xui.h"

#include <QtTest>

namespace
{

using Shoot = PageShoot<UIWPMerlin>;

} // namespace

/** What only the page for Papywizard records does. */
class TestUIWPMerlin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void headerTextsGoToTheirFields();
    void photosAloneMakeTheStartLocationThePath();
    void photosAloneWithoutAPlaceCountAsAFailedReading();
    void cancelledRecordDialogReadsTheFileAgain();
};

void TestUIWPMerlin::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPMerlin::headerTextsGoToTheirFields()
{
    const Shoot shoot;
    for (const char *name : { "m_leHeaderTitle", "m_leHeaderGps", "m_leHeaderComment" }) {
        QCOMPARE(shoot.driver.text(name), QString());
    }
    RecordXml record = RecordXml::row(2);
    record.title = QStringLiteral("Mont <b>Blanc</b> & more");
    record.gps = QStringLiteral("45.83,6.86");
    record.comment = QStringLiteral("first\nsecond");

    shoot.loadRecord(record);

    QCOMPARE(shoot.driver.text("m_leHeaderTitle"), record.title);
    QCOMPARE(shoot.driver.text("m_leHeaderGps"), record.gps);
    QCOMPARE(shoot.page.m_leHeaderComment->displayText().size(), record.comment.size());
    QCOMPARE(shoot.page.comment, record.comment);
}

void TestUIWPMerlin::photosAloneMakeTheStartLocationThePath()
{
    const Shoot shoot;
    fakeHost().lastPath = shoot.folder.path(QStringLiteral("last"));
    QDir().mkpath(fakeHost().lastPath);
    const QStringList photos = shoot.folder.addPhotos(2);

    shoot.driver.load(kSelectRecord, photos);

    QCOMPARE(fakeHost().setLastPaths, QStringList{ fakeHost().lastPath });
    QCOMPARE(shoot.driver.text("m_leConfigFile"), fakeHost().lastPath);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("2"));

    // With a record the start location is the record, which is read again and kept.
    const QString record = shoot.writeRecord(RecordXml::row(2));
    shoot.driver.load(kSelectRecord, { record });
    shoot.driver.load(kSelectRecord, photos);
    QCOMPARE(fakeHost().setLastPaths.mid(1), (QStringList{ record, record }));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPMerlin::photosAloneWithoutAPlaceCountAsAFailedReading()
{
    const Shoot shoot;
    QCOMPARE(fakeHost().lastPath, QString());

    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2));

    QCOMPARE(fakeHost().setLastPaths, QStringList{ QString() });
    QCOMPARE(shoot.driver.text("m_leConfigFile"), QString());
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    // As with any place that cannot be read.
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("2"));
}

void TestUIWPMerlin::cancelledRecordDialogReadsTheFileAgain()
{
    const Shoot shoot;
    shoot.loadRecord(RecordXml::row(2));
    shoot.loadPhotos(2);
    shoot.driver.click("m_pbRot90");
    const QStringList told = fakeHost().setLastPaths;
    const QString record = shoot.writeRecord(RecordXml::row(4));

    shoot.driver.cancelFiles(kSelectRecord);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("4"));
    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ 0.0F, 0.0F, 0.0F, 0.0F }));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("2"));
    QCOMPARE(fakeHost().setLastPaths, told);
}

TEST_CLASS(TestUIWPMerlin, FakeApplication)
#include "tst_uiwpmerlin.moc"
