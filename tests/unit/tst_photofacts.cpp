// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/photofacts.h"
#include "tests/support/testprogram.h"

#include <QTest>

using PanoHead::LensFacts;
using PanoHead::presetLens;

class TestPhotoFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosKnowBetterThanTheRecord_data();
    void photosKnowBetterThanTheRecord();
};

void TestPhotoFacts::photosKnowBetterThanTheRecord_data()
{
    QTest::addColumn<double>("photosFocal");
    QTest::addColumn<int>("photosLens");
    QTest::addColumn<double>("recordFocal");
    QTest::addColumn<int>("recordLens");
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("lens");

    QTest::newRow("photos") << 24.0 << 0 << 35.0 << 1 << 24.0 << 0;
    QTest::newRow("photos do not know") << 0.0 << 0 << 35.0 << 1 << 35.0 << 1;
    QTest::newRow("photos know less than nothing") << -1.0 << 0 << 35.0 << 1 << 35.0 << 1;
    QTest::newRow("neither knows") << 0.0 << 1 << -1.0 << 0 << 0.0 << 0;
    QTest::newRow("record says 0") << 0.0 << 0 << 0.0 << 1 << 0.0 << 1;
}

void TestPhotoFacts::photosKnowBetterThanTheRecord()
{
    QFETCH(double, photosFocal);
    QFETCH(int, photosLens);
    QFETCH(double, recordFocal);
    QFETCH(int, recordLens);
    const LensFacts preset = presetLens({ photosFocal, photosLens }, { recordFocal, recordLens });
    QTEST(preset.focalMm, "focal");
    QTEST(preset.lensType, "lens");
}

TEST_CLASS(TestPhotoFacts, QCoreApplication)
#include "tst_photofacts.moc"
