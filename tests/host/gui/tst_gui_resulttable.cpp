// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"
#include "tests/host/gui/resultbench.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QClipboard>
#include <QFile>
#include <QtTest>

using namespace PanoHost;

namespace
{

/** Comma-separated values read by the book: fields in quotes may hold anything, quotes doubled. */
QVector<QStringList> readCsv(const QByteArray &bytes)
{
    QVector<QStringList> lines;
    QStringList line;
    QByteArray field;
    bool isQuoted = false;
    for (int i = 0; i < bytes.size(); ++i) {
        const char c = bytes.at(i);
        if (isQuoted) {
            if (c != '"') {
                field += c;
            } else if (i + 1 < bytes.size() && bytes.at(i + 1) == '"') {
                field += bytes.at(++i);
            } else {
                isQuoted = false;
            }
        } else if (c == '"') {
            isQuoted = true;
        } else if (c == ',') {
            line += QString::fromUtf8(field);
            field.clear();
        } else if (c == '\r' && i + 1 < bytes.size() && bytes.at(i + 1) == '\n') {
            ++i;
            lines += line << QString::fromUtf8(field);
            line.clear();
            field.clear();
        } else {
            field += c;
        }
    }
    if (isQuoted || !field.isEmpty() || !line.isEmpty()) {
        qFatal("The last line has no end");
    }
    return lines;
}

} // namespace

/** The table of positions on the page that shows what was delivered. */
class TestResultTable : public QObject, private ResultBench
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { openBench(); }
    void cleanup() { closeBench(); }
    void tableSortsByTheColumnClicked();
    void tableIsSavedAsItIsSorted();
    void tableTakesOddNames();
    void selectedRowsAreCopied();
    void selectedPositionsAreTold();
    void alignmentShowsItsColumns();
    void thousandsOfPositionsAreShown();
};

void TestResultTable::tableSortsByTheColumnClicked()
{
    showResult(3);
    showTable();
    QCOMPARE(column(PositionsModel::Number),
             QStringList({ QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3") }));
    QCOMPARE(
        column(PositionsModel::Yaw),
        QStringList({ QStringLiteral("0.00"), QStringLiteral("10.00"), QStringLiteral("20.00") }));
    clickHeader(PositionsModel::Yaw);
    clickHeader(PositionsModel::Yaw); // once more: falling
    QCOMPARE(column(PositionsModel::Number),
             QStringList({ QStringLiteral("3"), QStringLiteral("2"), QStringLiteral("1") }));
    m_bench->picture(QStringLiteral("result-table"));
}

void TestResultTable::tableIsSavedAsItIsSorted()
{
    showResult(3);
    showTable();
    clickHeader(PositionsModel::Number);
    const QString path = m_bench->path(QStringLiteral("table.csv"));
    GuiBench::answerFileDialog(path);
    click("m_saveTable");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray bytes = file.readAll();
    QVERIFY(bytes.startsWith("\xef\xbb\xbf"));
    const QVector<QStringList> lines = readCsv(bytes.mid(3));
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0).value(2), QStringLiteral("yaw_deg"));
    QCOMPARE(lines.at(1).value(0), QStringLiteral("3"));
    QCOMPARE(lines.at(1).value(1), QStringLiteral("IMG_3.jpg"));
    QVERIFY(qAbs(lines.at(1).value(2).toDouble() - 20.0) < 1e-4);
    QCOMPARE(lines.at(3).value(11), QStringLiteral("2024-05-01T10:00:00"));
    for (const QStringList &line : lines) {
        QCOMPARE(line.size(), lines.first().size());
    }
}

void TestResultTable::tableTakesOddNames()
{
    const QStringList names{ QStringLiteral("a,b.jpg"),  QStringLiteral("\"a\".jpg"),
                             QStringLiteral("a\nb.jpg"), QStringLiteral("a\r\nb.jpg"),
                             QStringLiteral("é.jpg"),    QStringLiteral("\",\".jpg") };
    Panorama panorama;
    for (const QString &name : names) {
        panorama.positions
            += TestPanoramas::positionAt(1.5, 0, { TestPanoramas::photoNamed(name) });
    }
    PositionsTable table;
    table.setPanorama(panorama);
    const QVector<QStringList> lines = readCsv(table.csv().mid(3));
    QCOMPARE(lines.size(), names.size() + 1);
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(lines.at(i + 1).value(1), names.at(i));
        QCOMPARE(lines.at(i + 1).value(2), QStringLiteral("1.500000"));
    }
}

void TestResultTable::selectedRowsAreCopied()
{
    showResult(3);
    showTable();
    table()->setFocus();
    table()->selectRow(1);
    QTest::keyClick(table(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyRelease(table(), Qt::Key_Control);
    const QStringList lines
        = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    // Without the columns that are not shown.
    QVERIFY2(lines.at(0).startsWith(QLatin1String("2\tIMG_2.jpg\t10.00\t0.00\t0.00\t2024-05-01 ")),
             qPrintable(lines.at(0)));
    QVERIFY(lines.at(1).startsWith(QLatin1String("3\tIMG_3.jpg\t20.00\t")));
}

void TestResultTable::selectedPositionsAreTold()
{
    showResult(3);
    showTable();
    clickHeader(PositionsModel::Number); // falling
    QSignalSpy selected(page(), &ResultPage::positionSelected);
    const QPoint first = table()->visualRect(table()->model()->index(0, 1)).center();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, first);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().first().toInt(), 2);
    page()->selectPosition(0);
    QCOMPARE(selected.size(), 1);
    const QModelIndexList rows = table()->selectionModel()->selectedRows();
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().row(), 2); // the last one, as it is sorted
    page()->selectPosition(99);
    QVERIFY(!table()->selectionModel()->hasSelection());
}

void TestResultTable::alignmentShowsItsColumns()
{
    showResult(3);
    showTable();
    QVERIFY(table()->isColumnHidden(PositionsModel::AlignedYaw));
    QVERIFY(table()->isColumnHidden(PositionsModel::Residual));
    Result<PtoFile> project = projectOf(*page()->panorama());
    QVERIFY(project.ok());
    Alignment alignment{ std::move(project).value(), {} };
    alignment.project.place(1, { { 12.5, 0.0, 0.0 }, {} });
    page()->setAlignment(alignment, photoResiduals(alignment.project));
    QVERIFY(!table()->isColumnHidden(PositionsModel::AlignedYaw));
    QCOMPARE(column(PositionsModel::AlignedYaw).at(1), QStringLiteral("12.500"));
    m_bench->picture(QStringLiteral("result-table-aligned"));
    m_bench->press(QWizard::BackButton);
    m_bench->press(QWizard::NextButton);
    QVERIFY(table()->isColumnHidden(PositionsModel::AlignedYaw)); // of the delivery before
}

void TestResultTable::thousandsOfPositionsAreShown()
{
    constexpr int kMany = 10000;
    PositionsTable table;
    table.resize(700, 400);
    table.setPanorama(TestPanoramas::row(kMany));
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    table.sortByColumn(PositionsModel::Yaw, Qt::DescendingOrder);
    QCOMPARE(table.model()->index(0, PositionsModel::Number).data().toInt(), kMany);
    table.selectPosition(4321);
    const QModelIndex current = table.currentIndex();
    QCOMPARE(current.siblingAtColumn(PositionsModel::Number).data().toInt(), 4322);
    QVERIFY(table.viewport()->rect().contains(table.visualRect(current).center()));
}

TEST_CLASS(TestResultTable, PanoHostApplication)
#include "tst_gui_resulttable.moc"
