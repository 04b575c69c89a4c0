// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/delivery.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <memory>

using namespace PanoHost;

Q_DECLARE_METATYPE(PanoHost::DeliverySizes)

namespace
{

/** Appends what a page appends for \p groups positions of two photos with the letter \p name. */
void append(StructuredPanoramaProperties &d, const QString &name, int groups, int links)
{
    for (int i = 0; i < groups; ++i) {
        d.imageGroups.append({ name + QString::number(2 * i), name + QString::number(2 * i + 1) });
        for (int shot = 0; shot < 2; ++shot) {
            d.yaw.append(float(i));
            d.pitch.append(float(-i));
            d.roll.append(float(shot));
        }
    }
    for (int i = 0; i < links; ++i) {
        AuthorizedLink link;
        link.linkType = 2;
        link.indices = { i, i + 1 };
        d.authorizedLinks.append(link);
    }
}

void compareLists(const StructuredPanoramaProperties &actual,
                  const StructuredPanoramaProperties &expected)
{
    QCOMPARE(actual.imageGroups, expected.imageGroups);
    QCOMPARE(actual.yaw, expected.yaw);
    QCOMPARE(actual.pitch, expected.pitch);
    QCOMPARE(actual.roll, expected.roll);
    QCOMPARE(actual.authorizedLinks.size(), expected.authorizedLinks.size());
    for (int i = 0; i < actual.authorizedLinks.size(); ++i) {
        QCOMPARE(actual.authorizedLinks[i].linkType, expected.authorizedLinks[i].linkType);
        QCOMPARE(actual.authorizedLinks[i].indices, expected.authorizedLinks[i].indices);
    }
}

} // namespace

class DeliveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstHandOverIsTakenWhole();
    void secondHandOverGivesOnlyWhatItAdded();
    void otherFieldsAreThoseOfTheLastHandOver();
    void nothingAddedGivesAnEmptyDescription();
    void anglesWithoutRollAreCutToo();
    void shorterListMeansAFreshPage_data();
    void shorterListMeansAFreshPage();
    void pagesAreCountedApart();
    void newPageStartsFromZero();
};

void DeliveryTest::firstHandOverIsTakenWhole()
{
    StructuredPanoramaProperties d;
    append(d, QStringLiteral("a"), 3, 2);
    compareLists(appendedSince(d, {}), d);
}

void DeliveryTest::secondHandOverGivesOnlyWhatItAdded()
{
    StructuredPanoramaProperties d;
    append(d, QStringLiteral("a"), 3, 2);
    const DeliverySizes first = sizesOf(d);
    append(d, QStringLiteral("b"), 5, 4);
    StructuredPanoramaProperties expected;
    append(expected, QStringLiteral("b"), 5, 4);
    compareLists(appendedSince(d, first), expected);

    // and a third time, with the same photos as before
    const DeliverySizes second = sizesOf(d);
    append(d, QStringLiteral("b"), 5, 4);
    compareLists(appendedSince(d, second), expected);
}

void DeliveryTest::otherFieldsAreThoseOfTheLastHandOver()
{
    StructuredPanoramaProperties d;
    append(d, QStringLiteral("a"), 1, 0);
    const DeliverySizes first = sizesOf(d);
    append(d, QStringLiteral("b"), 1, 0);
    d.positionsKnown = true;
    d.focalLength = 35.0F;
    d.lensModel = LensModel::Fisheye;
    d.autoDetection = true;
    d.stackLinking = 1;
    d.overlap = 25.0;
    d.renderMode = 3;
    const StructuredPanoramaProperties added = appendedSince(d, first);
    QVERIFY(added.positionsKnown);
    QCOMPARE(added.focalLength, 35.0F);
    QCOMPARE(added.lensModel, LensModel::Fisheye);
    QVERIFY(added.autoDetection);
    QCOMPARE(added.stackLinking, 1);
    QCOMPARE(added.overlap, 25.0);
    QCOMPARE(added.renderMode, 3);
}

void DeliveryTest::nothingAddedGivesAnEmptyDescription()
{
    StructuredPanoramaProperties d;
    append(d, QStringLiteral("a"), 3, 2);
    compareLists(appendedSince(d, sizesOf(d)), {});
}

void DeliveryTest::anglesWithoutRollAreCutToo()
{
    StructuredPanoramaProperties d;
    append(d, QStringLiteral("a"), 2, 1);
    d.roll.clear();
    const DeliverySizes first = sizesOf(d);
    append(d, QStringLiteral("b"), 2, 1);
    d.roll.clear();
    StructuredPanoramaProperties expected;
    append(expected, QStringLiteral("b"), 2, 1);
    expected.roll.clear();
    compareLists(appendedSince(d, first), expected);
}

void DeliveryTest::shorterListMeansAFreshPage_data()
{
    QTest::addColumn<DeliverySizes>("previous");
    // the description of the test: 3 groups, 2 links, 6 of each angle
    QTest::newRow("groups") << DeliverySizes{ 4, 0, 0, 0, 0 };
    QTest::newRow("links") << DeliverySizes{ 0, 3, 0, 0, 0 };
    QTest::newRow("yaw") << DeliverySizes{ 0, 0, 7, 0, 0 };
    QTest::newRow("pitch") << DeliverySizes{ 0, 0, 0, 7, 0 };
    QTest::newRow("roll") << DeliverySizes{ 0, 0, 0, 0, 7 };
}

void DeliveryTest::shorterListMeansAFreshPage()
{
    QFETCH(DeliverySizes, previous);
    StructuredPanoramaProperties d;
    append(d, QStringLiteral("a"), 3, 2);
    compareLists(appendedSince(d, previous), d);
}

void DeliveryTest::pagesAreCountedApart()
{
    DeliveryLog log;
    QObject first;
    QObject second;
    StructuredPanoramaProperties one;
    append(one, QStringLiteral("a"), 3, 2);
    StructuredPanoramaProperties other;
    append(other, QStringLiteral("x"), 4, 3);
    compareLists(log.take(&first, one), one);
    compareLists(log.take(&second, other), other);

    append(one, QStringLiteral("b"), 2, 1);
    StructuredPanoramaProperties expected;
    append(expected, QStringLiteral("b"), 2, 1);
    compareLists(log.take(&first, one), expected);
    compareLists(log.take(&second, other), {});
}

void DeliveryTest::newPageStartsFromZero()
{
    // The new page is made in the place of the old one, so that it has the same address.
    alignas(QObject) unsigned char place[sizeof(QObject)];
    DeliveryLog log;
    StructuredPanoramaProperties d;
    append(d, QStringLiteral("a"), 3, 2);
    auto *page = new (place) QObject;
    compareLists(log.take(page, d), d);
    page->~QObject();
    page = new (place) QObject;
    compareLists(log.take(page, d), d);
    page->~QObject();
}

TEST_CLASS(DeliveryTest, QCoreApplication)
#include "tst_delivery.moc"
