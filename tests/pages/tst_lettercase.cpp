// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"
#include "ui/lettercase.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <QtTest>

#include <random>

using namespace PanoHead;

namespace
{

QList<QGlyphRun> runsOf(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1'000.0);
    layout.endLayout();
    return layout.glyphRuns();
}

QGlyphRun runOf(const QString &text, const QFont &font = {})
{
    const QList<QGlyphRun> runs = runsOf(text, font);
    if (runs.size() != 1) {
        qFatal("\"%s\" is written in %d runs", qPrintable(text), runs.size());
    }
    return runs.first();
}

QImage noise(unsigned seed)
{
    std::mt19937 random(seed);
    QImage image(300, 120, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, static_cast<QRgb>(random()) | 0xff000000U);
        }
    }
    return image;
}

} // namespace

class TestLetterCase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lettersAreThoseOfThePainter_data();
    void lettersAreThoseOfThePainter();
    void nothingOutsideTheClipIsTouched();
    void linesThroughLettersAreThePainters_data();
    void linesThroughLettersAreThePainters();
    void otherFontsAreThePainters();
    void largeLettersAreThePainters();
    void lettersBeforeTheFirstPixelAreThePainters();
    void fullCaseLeavesTheRestToThePainter();
};

void TestLetterCase::lettersAreThoseOfThePainter_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<QColor>("colour");
    QFont font;
    QTest::newRow("black") << font << QColor(Qt::black);
    QTest::newRow("white") << font << QColor(Qt::white);
    QTest::newRow("coloured") << font << QColor(200, 30, 99);
    font.setBold(true);
    QTest::newRow("bold") << font << QColor(Qt::black);
    font.setItalic(true);
    QTest::newRow("bold, italic") << font << QColor(Qt::black);
    font = QFont();
    font.setPixelSize(5);
    QTest::newRow("tiny") << font << QColor(Qt::black);
    font.setPixelSize(33);
    QTest::newRow("large") << font << QColor(Qt::black);
    font = QFont();
    font.setStyleStrategy(QFont::NoAntialias);
    QTest::newRow("without smooth edges") << font << QColor(Qt::black);
    font = QFont();
    font.setHintingPreference(QFont::PreferNoHinting);
    QTest::newRow("between pixels") << font << QColor(Qt::black);
}

void TestLetterCase::lettersAreThoseOfThePainter()
{
    QFETCH(const QFont, font);
    QFETCH(const QColor, colour);
    LetterCase letterCase(colour.rgb());
    std::mt19937 random(7);
    for (int round = 0; round < 100; ++round) {
        const QGlyphRun run
            = runOf(QStringLiteral("%1 (-%2,8.5)").arg(round).arg(round * 1.25), font);
        const QPointF origin(static_cast<double>(random() % 3000) / 100.0,
                             static_cast<double>(random() % 3000) / 100.0);
        QImage theirs = noise(static_cast<unsigned>(round));
        QImage ours = theirs.copy();
        QPainter painter(&theirs);
        painter.setPen(colour);
        painter.drawGlyphRun(origin, run);
        painter.end();
        std::vector<PlacedLetter> letters;
        QVERIFY(letterCase.take(run, origin, &letters));
        letterCase.draw(ours, ours.rect(), letters);
        QCOMPARE(ours, theirs);
    }
}

void TestLetterCase::nothingOutsideTheClipIsTouched()
{
    LetterCase letterCase(qRgb(0, 0, 0));
    const QGlyphRun run = runOf(QStringLiteral("88888 (88,88)"));
    const QPointF origin(3.3, 4.6);
    std::vector<PlacedLetter> letters;
    QVERIFY(letterCase.take(run, origin, &letters));
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        const QRect clip(static_cast<int>(random() % 60), static_cast<int>(random() % 20),
                         1 + static_cast<int>(random() % 40), 1 + static_cast<int>(random() % 12));
        QImage theirs = noise(static_cast<unsigned>(round));
        QImage ours = theirs.copy();
        QPainter painter(&theirs);
        painter.setClipRect(clip);
        painter.setPen(Qt::black);
        painter.drawGlyphRun(origin, run);
        painter.end();
        letterCase.draw(ours, clip, letters);
        QCOMPARE(ours, theirs);
    }
}

void TestLetterCase::linesThroughLettersAreThePainters_data()
{
    QTest::addColumn<QFont>("font");
    QFont font;
    font.setUnderline(true);
    QTest::newRow("underlined") << font;
    font = QFont();
    font.setOverline(true);
    QTest::newRow("overlined") << font;
    font = QFont();
    font.setStrikeOut(true);
    QTest::newRow("struck out") << font;
}

void TestLetterCase::linesThroughLettersAreThePainters()
{
    QFETCH(const QFont, font);
    LetterCase letterCase(qRgb(0, 0, 0));
    std::vector<PlacedLetter> letters;
    QVERIFY(!letterCase.take(runOf(QStringLiteral("123"), font), QPointF(5, 5), &letters));
    QVERIFY(letters.empty());
}

void TestLetterCase::otherFontsAreThePainters()
{
    QFont other;
    other.setPixelSize(QFontInfo(QFont()).pixelSize() + 3);
    LetterCase letterCase(qRgb(0, 0, 0));
    std::vector<PlacedLetter> letters;
    QVERIFY(letterCase.take(runOf(QStringLiteral("123")), QPointF(5, 5), &letters));
    QCOMPARE(letters.size(), std::size_t(3));
    QVERIFY(!letterCase.take(runOf(QStringLiteral("123"), other), QPointF(5, 5), &letters));
    QCOMPARE(letters.size(), std::size_t(3));
}

void TestLetterCase::largeLettersAreThePainters()
{
    QFont font;
    font.setPixelSize(90);
    LetterCase letterCase(qRgb(0, 0, 0));
    std::vector<PlacedLetter> letters;
    QVERIFY(!letterCase.take(runOf(QStringLiteral("1"), font), QPointF(5, 5), &letters));
}

void TestLetterCase::lettersBeforeTheFirstPixelAreThePainters()
{
    LetterCase letterCase(qRgb(0, 0, 0));
    std::vector<PlacedLetter> letters;
    const QGlyphRun run = runOf(QStringLiteral("123"));
    QVERIFY(!letterCase.take(run, QPointF(-0.5, 5), &letters));
    QVERIFY(!letterCase.take(run, QPointF(5, -100), &letters));
    QVERIFY(letters.empty());
}

void TestLetterCase::fullCaseLeavesTheRestToThePainter()
{
    LetterCase letterCase(qRgb(0, 0, 0));
    const QGlyphRun run = runOf(QStringLiteral("0123456789"));
    std::vector<PlacedLetter> letters;
    int taken = 0;
    // 64 x 64 places within a pixel: far more letters than a case holds.
    for (int place = 0; place < 64 * 64; ++place) {
        letters.clear();
        const QPointF origin(5 + place % 64 / 64.0, 5 + place / 64 / 64.0);
        taken += letterCase.take(run, origin, &letters) ? 1 : 0;
    }
    QVERIFY2(taken > 100 && taken < 1000, qPrintable(QString::number(taken)));
    // Those that it holds it still draws.
    QVERIFY(letterCase.take(run, QPointF(5, 5), &letters));
}

TEST_CLASS(TestLetterCase, QApplication)
#include "tst_lettercase.moc"
