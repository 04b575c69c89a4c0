// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/heads.h"

#include <QtTest>

#include <algorithm>

QByteArray Head::record(int shots) const
{
    return recordOf(rowOf(shots));
}

Heads headsThat(bool (*isWanted)(const Head &head))
{
    Heads heads;
    std::copy_if(allHeads().begin(), allHeads().end(), std::back_inserter(heads),
                 [isWanted](const Head *head) { return isWanted(*head); });
    return heads;
}

Heads headsWithRecords()
{
    return headsThat([](const Head &head) { return !head.facts->isGrid(); });
}

Heads headsWithLens()
{
    return headsThat([](const Head &head) { return head.facts->hasLens; });
}

Heads headsWithLinking()
{
    return headsThat([](const Head &head) { return head.facts->hasLinking; });
}

Heads headsThatTurn()
{
    return headsThat([](const Head &head) { return head.facts->turnsCamera; });
}

std::vector<TextOn> notAvailable(const std::vector<const char *> &labels)
{
    std::vector<TextOn> texts{ { "m_leConfigFile", QString() }, { "m_leImage", QString() } };
    for (const char *label : labels) {
        texts.push_back({ label, QStringLiteral("N/A") });
    }
    return texts;
}

QVector<ShotAngles> rowOf(int count)
{
    QVector<ShotAngles> shots;
    for (int i = 0; i < count; ++i) {
        shots.append({ 30.0 * i, 0.0 });
    }
    return shots;
}

void addHeads(const Heads &heads)
{
    QTest::addColumn<const Head *>("head");
    for (const Head *head : heads) {
        QTest::newRow(head->name) << head;
    }
}

void addDialogs()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("button");
    for (const Head *head : headsWithRecords()) {
        QTest::addRow("%s: record", head->name) << head << QByteArray(kSelectRecord);
    }
    for (const Head *head : allHeads()) {
        QTest::addRow("%s: photos", head->name) << head << QByteArray(kSelectPhotos);
    }
}

HeadShoot::HeadShoot(const Head &shotWith)
    : head(shotWith)
    , made(shotWith.newPage())
    , page(made.page)
    , driver(made.page)
{
}

HeadShoot::~HeadShoot()
{
    delete page.data();
}

QString HeadShoot::writeRecord(int shots, const QString &folderName) const
{
    return folder.write(folderName + QString::fromLatin1(head.recordName), head.record(shots));
}

void HeadShoot::loadRecord(int shots) const
{
    if (head.recordName) {
        driver.load(kSelectRecord, { writeRecord(shots) });
    }
}

void HeadShoot::loadPhotos(int count, const FakePhoto &photo) const
{
    driver.load(kSelectPhotos, folder.addPhotos(count, photo));
}

void HeadShoot::loadEverything() const
{
    if (head.recordName) {
        driver.load(kSelectRecord,
                    { folder.write(QString::fromLatin1(head.recordName), head.fullRecord) });
    }
    loadPhotos(3);
}

QString HeadShoot::countOf(int photos) const
{
    return head.countText.arg(photos);
}

QVariant HeadShoot::value(const ValueOf &of) const
{
    return driver.find<QWidget>(of.widget)->property(of.property);
}
