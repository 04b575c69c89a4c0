// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/photoselection.h"
#include "tests/support/testprogram.h"

#include <QTest>

using PanoHead::RecordSelection;
using PanoHead::splitSelection;

class TestPhotoSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectionsAreParted_data();
    void selectionsAreParted();
};

void TestPhotoSelection::selectionsAreParted_data()
{
    QTest::addColumn<QString>("files"); // parted by blanks
    QTest::addColumn<QString>("ending");
    QTest::addColumn<QString>("record");
    QTest::addColumn<QString>("photos");

    const auto row = [](const char *name, const char *files, const char *ending, const char *record,
                        const char *photos) {
        QTest::newRow(name) << QString::fromLatin1(files) << QString::fromLatin1(ending)
                            << QString::fromLatin1(record) << QString::fromLatin1(photos);
    };
    row("nothing", "", ".xml", "", "");
    row("record alone", "/a.xml", ".xml", "/a.xml", "");
    row("photos alone, in the dialog's order", "/b.jpg /a.jpg", ".xml", "", "/b.jpg /a.jpg");
    row("both", "/b.jpg /r.xml /a.jpg", ".xml", "/r.xml", "/b.jpg /a.jpg");
    row("the last record wins, the others are no photos", "/r.xml /a.jpg /s.xml", ".xml", "/s.xml",
        "/a.jpg");
    row("case is ignored", "/r.XmL /a.jpg", ".xml", "/r.XmL", "/a.jpg");
    row("script", "/r.xml /s.TXT", ".txt", "/s.TXT", "/r.xml");
    row("ending within the name", "/r.xml.jpg /rxml", ".xml", "", "/r.xml.jpg /rxml");
    row("nothing but the ending", "/.xml", ".xml", "/.xml", "");
    row("a photo chosen twice stays twice", "/a.jpg /a.jpg", ".xml", "", "/a.jpg /a.jpg");
}

void TestPhotoSelection::selectionsAreParted()
{
    QFETCH(QString, files);
    QFETCH(QString, ending);

    const RecordSelection selection
        = splitSelection(files.split(QLatin1Char(' '), Qt::SkipEmptyParts), ending);
    QTEST(selection.record, "record");
    QTEST(selection.photos.join(QLatin1Char(' ')), "photos");
}

TEST_CLASS(TestPhotoSelection, QCoreApplication)
#include "tst_photoselection.moc"
