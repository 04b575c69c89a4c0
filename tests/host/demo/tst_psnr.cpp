// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/psnr.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>

using namespace PanoHost;

namespace
{

QImage filled(const QColor &colour, const QSize &size = QSize(10, 4))
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(colour);
    return picture;
}

} // namespace

class TestPsnr : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knownDifferencesGiveKnownRatios_data();
    void knownDifferencesGiveKnownRatios();
    void equalPicturesAgreeWithoutLimit();
    void pixelsThatAreNotOpaqueDoNotCount();
    void picturesThatCannotBeComparedAgreeInNothing();
};

void TestPsnr::knownDifferencesGiveKnownRatios_data()
{
    QTest::addColumn<QColor>("actual");
    QTest::addColumn<double>("decibels");
    // 10 log10(255^2 / mean square over red, green and blue)
    QTest::newRow("one level everywhere") << QColor(101, 99, 101) << 48.1308;
    QTest::newRow("three levels of green alone") << QColor(100, 103, 100) << 43.3596; // 9 / 3
    QTest::newRow("ten levels everywhere") << QColor(90, 110, 90) << 28.1308;
}

void TestPsnr::knownDifferencesGiveKnownRatios()
{
    QFETCH(QColor, actual);
    QFETCH(double, decibels);
    const Agreement agreement = agreementOf(filled(actual), filled(QColor(100, 100, 100)));
    QVERIFY(std::fabs(agreement.psnrDecibels - decibels) < 0.001);
    QCOMPARE(agreement.coveredShare, 1.0);
}

void TestPsnr::equalPicturesAgreeWithoutLimit()
{
    const QImage picture = filled(QColor(1, 2, 3));
    QVERIFY(std::isinf(agreementOf(picture, picture).psnrDecibels));
}

void TestPsnr::pixelsThatAreNotOpaqueDoNotCount()
{
    QImage picture = filled(QColor(101, 101, 101));
    for (int x = 0; x < picture.width(); ++x) {
        picture.setPixel(x, 0, qRgba(255, 0, 0, 0));
        picture.setPixel(x, 1, qRgba(255, 0, 0, 254));
    }
    const Agreement agreement = agreementOf(picture, filled(QColor(100, 100, 100)));
    QVERIFY(std::fabs(agreement.psnrDecibels - 48.1308) < 0.001);
    QCOMPARE(agreement.coveredShare, 0.5);
}

void TestPsnr::picturesThatCannotBeComparedAgreeInNothing()
{
    const QImage truth = filled(QColor(100, 100, 100));
    QCOMPARE(agreementOf(filled(Qt::transparent), truth).psnrDecibels, 0.0);
    QCOMPARE(agreementOf(filled(Qt::transparent), truth).coveredShare, 0.0);
    QCOMPARE(agreementOf(filled(Qt::white, QSize(4, 10)), truth).coveredShare, 0.0);
    QCOMPARE(agreementOf(QImage(), QImage()).coveredShare, 0.0);
}

TEST_CLASS(TestPsnr, QCoreApplication)
#include "tst_psnr.moc"
