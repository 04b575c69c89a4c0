// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/papywizard/merlintospp.h"
#include "tests/support/heads.h"
#include "tests/support/pageshoot.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

/** The heads with records in the Papywizard schema. */
inline Heads schemaHeads()
{
    return headsThat([](const Head &head) { return head.schema != nullptr; });
}

/** One page with the files of one shoot. */
struct SchemaShoot : HeadShoot {
    explicit SchemaShoot(const Head &shotWith)
        : HeadShoot(shotWith)
    {
    }

    [[nodiscard]] MerlinToSPP &generator() const
    {
        return static_cast<MerlinToSPP &>(*made.description);
    }
    [[nodiscard]] QString write(const RecordXml &record,
                                const QString &name = QStringLiteral("shoot.xml")) const
    {
        return folder.write(name, record.bytes());
    }
    void load(const RecordXml &record) const { driver.load(kSelectRecord, { write(record) }); }

    [[nodiscard]] double focal() const { return driver.find<QDoubleSpinBox>("m_spFocal")->value(); }
    [[nodiscard]] int lens() const
    {
        return driver.find<QComboBox>("m_cbLensType")->currentIndex();
    }
    void setLens(double focalMm, int lensType) const
    {
        driver.find<QDoubleSpinBox>("m_spFocal")->setValue(focalMm);
        driver.find<QComboBox>("m_cbLensType")->setCurrentIndex(lensType);
    }
    [[nodiscard]] bool isEnabled(const char *button) const
    {
        return driver.find<QPushButton>(button)->isEnabled();
    }
    /** The warning that the page shows; null while it is hidden. */
    [[nodiscard]] QString warning() const
    {
        return driver.find<QLabel>("m_lbWarning")->isVisible() ? driver.text("m_lbWarning")
                                                               : QString();
    }
};

/** A data row of both heads, to which the caller adds what is the same for both. */
template <typename... Values> void addToBoth(const QByteArray &name, const Values &...values)
{
    for (const Head *head : schemaHeads()) {
        QTestData &row = QTest::addRow("%s: %s", head->name, name.constData()) << head;
        (row << ... << values);
    }
}
