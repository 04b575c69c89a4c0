// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/resulttexts.h"
#include "host/model/safefile.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>

using namespace PanoHost;

Q_DECLARE_METATYPE(Panorama)

/** What is said of a panorama, without any widget. */
class TestResultTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headlineCounts_data();
    void headlineCounts();
    void optionsAreExplained_data();
    void optionsAreExplained();
    void bracketsAreMentionedWhereTheyAre();
    void unknownFocalIsSaidOnce();
    void otherLensesAreWarnedOf();
    void missingLinksAreWarnedOf();
    void orderIsThatOfThePositions();
    void textsHoldNoWordsOfTheCode();
    void savingProblemsSayWhatToTry_data();
    void savingProblemsSayWhatToTry();

private:
    static QString all(const Panorama &panorama)
    {
        QString text = ResultTexts::headline(panorama) + QLatin1Char('\n')
            + ResultTexts::warnings(panorama).join(QLatin1Char('\n')) + QLatin1Char('\n');
        for (const SummaryLine &line : ResultTexts::lines(panorama)) {
            text += line.title + QStringLiteral(": ") + line.value + QLatin1Char(' ') + line.meaning
                + QLatin1Char('\n') + line.tip + QLatin1Char('\n');
        }
        return text;
    }
    static Panorama linkedRow(int count, int each = 1, int links = 1)
    {
        Panorama panorama = TestPanoramas::row(count, each);
        for (int i = 0; i < links; ++i) {
            AuthorizedLink link;
            link.indices = { i, i + 1 };
            panorama.description.authorizedLinks += link;
        }
        panorama.description.autoDetection = true;
        return panorama;
    }
    /** Nothing is known that would say where the photos are. */
    static Panorama gridWithoutFocal(int count)
    {
        Panorama panorama = TestPanoramas::row(count);
        panorama.focal35mm = 0.0;
        panorama.description.positionsKnown = false;
        for (Position &position : panorama.positions) {
            position.yawDegrees = 0.0;
        }
        return panorama;
    }
};

void TestResultTexts::headlineCounts_data()
{
    QTest::addColumn<int>("positions");
    QTest::addColumn<int>("each");
    QTest::addColumn<int>("links");
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << 1 << 1 << 0
                         << QStringLiteral(
                                "1 photo at 1 position, standard lens of 24 mm, no links");
    QTest::newRow("some") << 4 << 1 << 3
                          << QStringLiteral(
                                 "4 photos at 4 positions, standard lens of 24 mm, 3 links");
    QTest::newRow("HDR")
        << 2 << 3 << 1
        << QStringLiteral(
               "6 photos at 2 positions (brackets of 3), standard lens of 24 mm, 1 link, "
               "into HDR");
    QTest::newRow("brackets")
        << 2 << 3 << 1
        << QStringLiteral(
               "6 photos at 2 positions (brackets of 3), standard lens of 24 mm, 1 link");
}

void TestResultTexts::headlineCounts()
{
    QFETCH(int, positions);
    QFETCH(int, each);
    QFETCH(int, links);
    QFETCH(QString, text);
    Panorama panorama = linkedRow(positions, each, links);
    panorama.description.renderMode = text.endsWith(QLatin1String("HDR")) ? 3 : 2;
    QCOMPARE(ResultTexts::headline(panorama), text);
}

void TestResultTexts::optionsAreExplained_data()
{
    QTest::addColumn<Panorama>("panorama");
    QTest::addColumn<QString>("said");
    const auto row = [](const char *name, int each, const QString &said,
                        const std::function<void(StructuredPanoramaProperties &)> &change) {
        Panorama panorama = linkedRow(3, each);
        change(panorama.description);
        QTest::newRow(name) << panorama << said;
    };
    using Options = StructuredPanoramaProperties;
    row("usual", 1, QStringLiteral("Optimisation: from the record "), [](Options &) {});
    row("skipped", 1, QStringLiteral("Optimisation: skipped The head is trusted"),
        [](Options &o) { o.skipOptimization = true; });
    row("free", 1, QStringLiteral("Optimisation: free "),
        [](Options &o) { o.useRecordedLocation = false; });
    row("no points", 1, QStringLiteral("Control points: not looked for Photos stay"),
        [](Options &o) { o.autoDetection = false; });
    row("points", 1, QStringLiteral("Control points: looked for Spots"), [](Options &) {});
    row("reference level", 3,
        QStringLiteral("Control points: looked for in one exposure of each bracket "),
        [](Options &) {});
    row("all levels", 3, QStringLiteral("Control points: looked for in all exposures "),
        [](Options &o) { o.levelLinking = 1; });
    row("hard links", 3, QStringLiteral("Within brackets: as one "), [](Options &) {});
    row("detected links", 3, QStringLiteral("Within brackets: each by itself "),
        [](Options &o) { o.stackLinking = 1; });
    row("wrong points kept", 1, QStringLiteral("Wrong points: kept "), [](Options &) {});
    row("wrong points removed", 1, QStringLiteral("Wrong points: removed "),
        [](Options &o) { o.cleanWrongLinks = true; });
    row("HDR", 3, QStringLiteral("Brackets: into HDR "), [](Options &o) { o.renderMode = 3; });
    row("tone mapped", 3, QStringLiteral("Brackets: into an ordinary picture "),
        [](Options &o) { o.renderMode = 2; });
    row("nothing chosen", 3, QStringLiteral("Brackets: into an ordinary picture "),
        [](Options &) {});
    row("HDR of single photos", 1, QStringLiteral("Brackets: none, into HDR "),
        [](Options &o) { o.renderMode = 3; });
}

void TestResultTexts::optionsAreExplained()
{
    QFETCH(Panorama, panorama);
    QFETCH(QString, said);
    QVERIFY2(all(panorama).contains(said), qPrintable(all(panorama)));
}

void TestResultTexts::bracketsAreMentionedWhereTheyAre()
{
    QVERIFY(!all(linkedRow(3)).contains(QLatin1String("bracket"), Qt::CaseInsensitive));
    Panorama uneven = linkedRow(3, 3);
    uneven.positions[1].photos.removeLast(); // its file was lost
    QCOMPARE(ResultTexts::headline(uneven),
             QStringLiteral("8 photos at 3 positions (brackets of 2 to 3), standard lens of 24 mm, "
                            "1 link"));
}

void TestResultTexts::unknownFocalIsSaidOnce()
{
    const Panorama panorama = gridWithoutFocal(15);
    QVERIFY(ResultTexts::needsFocal(panorama));
    QCOMPARE(ResultTexts::warnings(panorama),
             QStringList({ QStringLiteral("The focal length is not known: no photo names it. Go "
                                          "back and enter it in the line below the page, at "
                                          "\"Focal length\"."),
                           QStringLiteral("Until then all 15 positions lie on one point.") }));
    QVERIFY(!all(panorama).contains(QLatin1String("0 mm")));
    QVERIFY(!ResultTexts::needsFocal(linkedRow(2)));
    // A record whose head stood still is another matter.
    Panorama still = linkedRow(3);
    for (Position &position : still.positions) {
        position.yawDegrees = 45.0;
    }
    QVERIFY(ResultTexts::warnings(still)
                .join(QLatin1Char(' '))
                .contains(QLatin1String("All 3 positions lie on one point: the record says")));
}

void TestResultTexts::otherLensesAreWarnedOf()
{
    Panorama panorama = linkedRow(2);
    QCOMPARE(ResultTexts::warnings(panorama), QStringList());
    panorama.lens = LensModel::Fisheye;
    QCOMPARE(ResultTexts::warnings(panorama).size(), 1);
    QVERIFY(ResultTexts::warnings(panorama).first().contains(QLatin1String("no photo says so")));
    panorama.positions[0].photos[0].lens = LensModel::Fisheye;
    QCOMPARE(ResultTexts::warnings(panorama), QStringList());
    panorama.lens = LensModel::Standard;
    QVERIFY(ResultTexts::warnings(panorama).first().contains(QLatin1String("for a standard one")));
}

void TestResultTexts::missingLinksAreWarnedOf()
{
    QVERIFY(ResultTexts::warnings(linkedRow(3, 1, 0))
                .first()
                .startsWith(QLatin1String("No two photos are linked: through a lens of 24 mm")));
    QCOMPARE(ResultTexts::warnings(linkedRow(1, 1, 0)), QStringList());
    // Photos of a fisheye never are; they are compared all the same.
    Panorama fisheye = linkedRow(3, 1, 0);
    fisheye.lens = LensModel::Fisheye;
    fisheye.positions[0].photos[0].lens = LensModel::Fisheye;
    QCOMPARE(ResultTexts::warnings(fisheye), QStringList());
    QVERIFY(all(fisheye).contains(
        QLatin1String("Links: none All photos that overlap are compared instead.")));
}

void TestResultTexts::orderIsThatOfThePositions()
{
    // The middle exposure, taken second, is the reference.
    Panorama panorama = linkedRow(3, 3);
    for (int position = 0; position < 3; ++position) {
        QVector<PhotoInfo> &photos = panorama.positions[position].photos;
        photos[0].timeMs = 10000 * (position + 1) + 1000;
        photos[1].timeMs = 10000 * (position + 1);
        photos[2].timeMs = 10000 * (position + 1) + 2000;
    }
    QVERIFY(ResultTexts::warnings(panorama).filter(QStringLiteral("Order")).isEmpty());
    std::swap(panorama.positions[0], panorama.positions[1]);
    QCOMPARE(ResultTexts::warnings(panorama).filter(QStringLiteral("Order")),
             QStringList(QStringLiteral("Order: 2.jpg was taken before 6.jpg")));
}

void TestResultTexts::textsHoldNoWordsOfTheCode()
{
    Panorama hdr = linkedRow(3, 3);
    hdr.description.renderMode = 3;
    hdr.positions[2].photos[0].timeMs = 1000;
    hdr.positions[2].photos[1].timeMs = 500;
    const QRegularExpression code(
        QStringLiteral("--|stack|level|hard|\\b[a-z]+[A-Z]|panohost|location|\\bpto\\b"));
    for (const Panorama &panorama : { hdr, linkedRow(3), gridWithoutFocal(15) }) {
        const auto found = code.match(all(panorama));
        QVERIFY2(!found.hasMatch(), qPrintable(found.captured()));
    }
}

void TestResultTexts::savingProblemsSayWhatToTry_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::newRow("full disk") << ENOSPC << QStringLiteral("a.pto")
                               << QStringLiteral(
                                      "a.pto was not saved: the disk is full. Make room on it, or "
                                      "choose a folder on another disk.");
    QTest::newRow("read-only disk")
        << EROFS << QStringLiteral("a.pto")
        << QStringLiteral("a.pto was not saved: nothing can be written in DIR. Choose "
                          "a folder of your own, such as your pictures.");
    QTest::newRow("folder of somebody else")
        << EACCES << QStringLiteral("a.pto")
        << QStringLiteral("a.pto was not saved: nothing can be written in DIR. Choose a folder of "
                          "your own, such "
                          "as your pictures.");
    QTest::newRow("long name") << ENAMETOOLONG << QStringLiteral("a.pto")
                               << QStringLiteral(
                                      "a.pto was not saved: the name is too long. Choose a shorter "
                                      "one.");
    QTest::newRow("folder gone")
        << ENOENT << QStringLiteral("gone/a.pto")
        << QStringLiteral("a.pto was not saved: the folder DIR/gone is not there. Was it "
                          "moved, or its disk unplugged? Choose another folder.");
    QTest::newRow("a folder") << EISDIR << QStringLiteral("folder")
                              << QStringLiteral(
                                     "folder was not saved: there is a folder of that name. Choose "
                                     "another name.");
}

void TestResultTexts::savingProblemsSayWhatToTry()
{
    QFETCH(int, error);
    QFETCH(QString, path);
    QFETCH(QString, text);
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
    const Failure failure{ ExitCode::ToolFailed, folder.filePath(path),
                           QStringLiteral("cannot be written (%1)").arg(qt_error_string(error)),
                           QStringLiteral("try panohost --else") };
    QCOMPARE(ResultTexts::savingProblem(failure, folder.filePath(path))
                 .replace(folder.path(), QLatin1String("DIR")),
             text);
    // What the system really says is understood, too.
    const QString name = QString(300, QLatin1Char('x'));
    const auto written = writeFileAtomically(folder.filePath(name), "x");
    QVERIFY(!written.ok());
    QVERIFY2(ResultTexts::savingProblem(written.error(), folder.filePath(name))
                 .endsWith(QLatin1String("the name is too long. Choose a shorter one.")),
             qPrintable(written.error().text()));
}

TEST_CLASS(TestResultTexts, QCoreApplication)
#include "tst_gui_resulttexts.moc"
