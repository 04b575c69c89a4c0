// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/invocation.h"
#include "host/cli/requestline.h"
#include "host/import/lenschoice.h"
#include "host/import/photoaliases.h"
#include "host/model/commanderror.h"
#include "host/model/wordsuggestion.h"
#include "tests/host/cli/opens.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

Q_DECLARE_METATYPE(PanoHost::Invocation::Kind)

class TestCliParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closestWordIsFound_data();
    void closestWordIsFound();
    void firstPlainWordDecides_data();
    void firstPlainWordDecides();
    void windowTakesOptionsOfQt_data();
    void windowTakesOptionsOfQt();
    void linksAreMadeOnlyWhenNeeded_data();
    void linksAreMadeOnlyWhenNeeded();
    void linksSortInTheOrderGivenAndGoAway();
    void knownLensOfPhotosLeaveOutTheUnknown();
    void focalOfTheUnknownSourceIsRefused_data();
    void focalOfTheUnknownSourceIsRefused();
    void everyHeadIsReady();
    void recordsTellTheirShots();
    void recordsThatCannotBeReadTellWhy_data();
    void recordsThatCannotBeReadTellWhy();
    void optionsFollowWhatTheHeadHas_data();
    void optionsFollowWhatTheHeadHas();
};

void TestCliParts::closestWordIsFound_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("closest");
    const auto row = [](const char *name, const char *word, const char *closest) {
        QTest::newRow(name) << QString::fromLatin1(word) << QString::fromLatin1(closest);
    };
    row("letter missing", "gigpan", "gigapan");
    row("letter too many", "gigappan", "gigapan");
    row("swapped and one missing", "calus", "clauss");
    row("swapped and one too many", "calnuss", "clauss");
    row("capitals", "GIGAPAN", "gigapan");
    row("beginning", "vr", "vrdrive2");
    row("one letter is no beginning", "v", "");
    row("another word", "tripod", "");
    row("no word", "", "");
}

void TestCliParts::closestWordIsFound()
{
    QFETCH(QString, word);
    QFETCH(QString, closest);
    const QStringList known{ QStringLiteral("clauss"), QStringLiteral("gigapan"),
                             QStringLiteral("vrdrive2") };
    QCOMPARE(closestWord(word, known), closest);
    QCOMPARE(closestWord(QString(100000, QLatin1Char('x')), known), QString());
}

void TestCliParts::firstPlainWordDecides_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Invocation::Kind>("kind");
    QTest::addColumn<QString>("rest");
    const auto row = [](const char *line, Invocation::Kind kind, const char *rest) {
        QTest::newRow(line) << QString::fromLatin1(line) << kind << QString::fromLatin1(rest);
    };
    using Kind = Invocation::Kind;
    row("", Kind::Window, "");
    row("--plugin import", Kind::Window, "--plugin import");
    row("--plugin=x -q", Kind::Window, "--plugin=x -q");
    row("--help", Kind::General, "--help");
    row("-q --version", Kind::General, "-q --version");
    row("import --help", Kind::Command, "--help");
    row("help", Kind::General, "--help");
    row("help import", Kind::Command, "--help");
    row("import check", Kind::Command, "check");
    row("--lang fr -v import a b", Kind::Command, "--lang fr -v a b");
    row("imprt a", Kind::Unknown, "imprt a");
    row("/dev/null", Kind::Window, "/dev/null");
}

void TestCliParts::firstPlainWordDecides()
{
    QFETCH(QString, line);
    QFETCH(Invocation::Kind, kind);
    QFETCH(QString, rest);
    const Invocation invocation = Invocation::of(line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(invocation.kind, kind);
    QCOMPARE(invocation.arguments.join(QLatin1Char(' ')), rest);
    QCOMPARE(invocation.command != nullptr, kind == Invocation::Kind::Command);
}

void TestCliParts::windowTakesOptionsOfQt_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("rest");
    const auto row = [](const char *line, const char *options, const char *rest) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(options)
                            << QString::fromLatin1(rest);
    };
    row("-style fusion", "-style fusion", "");
    row("--style fusion /dev/null", "-style fusion", "/dev/null");
    row("-q -style=fusion -reverse /dev/null", "-style=fusion -reverse", "-q /dev/null");
    row("--plugin -style --display :1", "-display :1", "--plugin -style");
    row("-platform offscreen", "-platform offscreen", "");
    row("/dev/null -style", "-style", "/dev/null");
    row("import -style fusion", "", "-style fusion"); // shows no window
    row("-stile fusion", "", "-stile fusion");
}

void TestCliParts::windowTakesOptionsOfQt()
{
    QFETCH(QString, line);
    QFETCH(QString, options);
    QFETCH(QString, rest);
    const Invocation invocation = Invocation::of(line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(invocation.qtOptions.join(QLatin1Char(' ')), options);
    QCOMPARE(invocation.arguments.join(QLatin1Char(' ')), rest);
}

void TestCliParts::linksAreMadeOnlyWhenNeeded_data()
{
    QTest::addColumn<QStringList>("photos");
    QTest::addColumn<bool>("needed");
    const auto names = [](std::initializer_list<const char *> list) {
        QStringList out;
        for (const char *name : list) {
            out += QString::fromLatin1(name);
        }
        return out;
    };
    QTest::newRow("in order") << names({ "/p/IMG_10.jpg", "/p/IMG_9.jpg" }) << false;
    QTest::newRow("capitals first") << names({ "/p/Z.jpg", "/p/a.jpg" }) << false;
    QTest::newRow("another order") << names({ "/p/a.jpg", "/p/Z.jpg" }) << true;
    QTest::newRow("blanks and apostrophes") << names({ "/p/it's a b.jpg" }) << false;
    QTest::newRow("double quote") << names({ "/p/a\"b.jpg" }) << true;
    QTest::newRow("line end") << names({ "/p/a\nb.jpg" }) << true;
    QTest::newRow("one") << names({ "/p/a.jpg" }) << false;
}

void TestCliParts::linksAreMadeOnlyWhenNeeded()
{
    QFETCH(QStringList, photos);
    QFETCH(bool, needed);
    QCOMPARE(PhotoAliases::areNeeded(photos), needed);
}

void TestCliParts::linksSortInTheOrderGivenAndGoAway()
{
    QTemporaryDir folder;
    QStringList photos;
    for (int i = 0; i < 11; ++i) {
        const QString name = QStringLiteral("%1\".jpg").arg(QChar(QLatin1Char('z').unicode() - i));
        photos += TestPhotos::writeFile(folder.filePath(name), name.toUtf8());
    }
    QStringList links;
    {
        PhotoAliases made;
        QString error;
        links = made.create(photos, &error);
        QCOMPARE(error, QString());
        QCOMPARE(links.size(), photos.size());
        QVERIFY(!PhotoAliases::areNeeded(links));
        for (int i = 0; i < links.size(); ++i) {
            QCOMPARE(made.truePaths().value(links.at(i)), photos.at(i));
            QCOMPARE(QFileInfo(links.at(i)).canonicalFilePath(),
                     QFileInfo(photos.at(i)).canonicalFilePath());
            QCOMPARE(QFileInfo(links.at(i)).suffix(), QStringLiteral("jpg"));
        }
    }
    QVERIFY(!QFileInfo(links.first()).isSymLink());
    QVERIFY(!QFileInfo::exists(QFileInfo(links.first()).path()));
}

void TestCliParts::knownLensOfPhotosLeaveOutTheUnknown()
{
    PhotoInfo known;
    known.focal35mm = 24.0;
    PhotoInfo longer = known;
    longer.focal35mm = 26.0;
    longer.lens = LensModel::Fisheye;
    const KnownLens facts = knownLensOf({ known, PhotoInfo(), longer, PhotoInfo() });
    QCOMPARE(facts.focal35mm, 25.0);
    QCOMPARE(facts.lens, LensModel::Fisheye);
    QCOMPARE(facts.withoutFocal, 2);
    QCOMPARE(knownLensOf({}).focal35mm, 0.0);
    QCOMPARE(knownLensOf({}).lens, LensModel::NotChosen);
}

void TestCliParts::focalOfTheUnknownSourceIsRefused_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<double>("photos");
    QTest::addColumn<double>("record");
    QTest::newRow("photos") << static_cast<int>(ValueSource::Photos) << 0.0 << 24.0;
    QTest::newRow("record") << static_cast<int>(ValueSource::Record) << 24.0 << 0.0;
    QTest::newRow("neither") << static_cast<int>(ValueSource::Default) << 0.0 << 0.0;
}

void TestCliParts::focalOfTheUnknownSourceIsRefused()
{
    QFETCH(int, source);
    QFETCH(double, photos);
    QFETCH(double, record);
    ImportRequest request;
    request.focalSource = static_cast<ValueSource>(source);
    const KnownLens photoFacts{ photos, LensModel::NotChosen, 0 };
    const KnownLens recordFacts{ record, LensModel::Standard, 0 };
    QVERIFY_EXCEPTION_THROWN((void)chooseLens(request, photoFacts, recordFacts), CommandError);
}

void TestCliParts::everyHeadIsReady()
{
    QVERIFY(PanoHead::allHeadFacts().size() >= 4);
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        QCOMPARE(&headNamed(head->name()), head);
        QVERIFY(head->title != nullptr);
        QCOMPARE(head->summary == nullptr, head->isGrid());
        QCOMPARE(head->write == nullptr, head->isGrid());
        for (const PanoHead::OwnChoice &choice : head->ownChoices) {
            QCOMPARE(QByteArray(choice.buttons).count('|'), QByteArray(choice.words).count('|'));
        }
        if (head->isGrid()) {
            continue;
        }
        // What a head writes is understood, and its file is seen to be a record.
        PanoHead::NotedShoot shoot;
        shoot.shots = { { 0.0, 10.0, 0.0, 0, {} }, { 30.0, 10.0, 0.0, 1, {} } };
        shoot.bracketCount = 2;
        PanoHead::ReadError error;
        const auto summary = head->summary(head->write(shoot), &error);
        QVERIFY2(summary, qPrintable(error.reason));
        QCOMPARE(summary->shotCount, 2);
        QCOMPARE(summary->bracketCount, head->notesBrackets ? 2 : 1);
        QCOMPARE(summary->remarks, QStringList());
        if (head->shots != nullptr) {
            const auto shots = head->shots(head->write(shoot), &error);
            QVERIFY2(shots, qPrintable(error.reason));
            QCOMPARE(shots->size(), 2);
            QCOMPARE(shots->last().yawDegrees, 30.0);
        }
        QVERIFY(!head->summary("nonsense", &error));
        QVERIFY(!error.reason.isEmpty());
        QVERIFY(head->isRecord(QStringLiteral("/p/") + QLatin1String(head->record)));
        QVERIFY(!head->isRecord(QStringLiteral("/p/a.jpg")));
    }
}

void TestCliParts::recordsTellTheirShots()
{
    const HeadFacts &head = headNamed(QStringLiteral("papywizard"));
    PanoHead::NotedShoot shoot;
    const QDateTime time(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC);
    shoot.shots = { { 30.0, 10.0, 0.0, 0, time }, { 30.0, 10.0, 0.0, 1, time.addSecs(2) } };
    shoot.bracketCount = 2;
    const QTemporaryDir folder;
    const QString path
        = TestPhotos::writeFile(folder.filePath(QStringLiteral("r.xml")), head.write(shoot));

    Opens opens({ path });
    QVector<NotedShot> shots;
    QCOMPARE(readRecord(head, path, &shots).shotCount, 2);
    QCOMPARE(opens.counts(), QVector<int>{ 1 });
    const auto alone = readShots(head, path);
    QVERIFY(alone.ok());
    QCOMPARE(opens.counts(), QVector<int>{ 2 });
    for (const QVector<NotedShot> &read : { shots, alone.value() }) {
        QCOMPARE(read.size(), 2);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(read.at(i).yawDegrees, 30.0);
            QCOMPARE(read.at(i).pitchDegrees, 10.0);
            QCOMPARE(read.at(i).level, i);
            QCOMPARE(read.at(i).time, time.addSecs(2 * i));
        }
    }

    HeadFacts silent = head;
    silent.shots = nullptr;
    QCOMPARE(readRecord(silent, path, &shots).shotCount, 2);
    QVERIFY(shots.isEmpty());
    QVERIFY(readShots(silent, path).value().isEmpty());
}

void TestCliParts::recordsThatCannotBeReadTellWhy_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QByteArray>("record"); // null: there is no file
    QTest::addColumn<QString>("why");
    const auto row = [](const char *name, const char *head, const QByteArray &record,
                        const char *why) {
        QTest::newRow(name) << QString::fromLatin1(head) << record << QString::fromLatin1(why);
    };
    row("no file", "papywizard", {}, "no such record");
    row("no XML", "vrdrive2", "\n\n<p", "line 3: not well-formed XML");
    row("no pictures", "papywizard", "<p/>", "no <shoot> pictures");
    row("bad angle", "clauss", "op_shoot\nop_h-angle=x\n", "line 2: op_h-angle=x is not a number");
}

void TestCliParts::recordsThatCannotBeReadTellWhy()
{
    QFETCH(QString, head);
    QFETCH(QByteArray, record);
    QFETCH(QString, why);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("record"));
    if (!record.isNull()) {
        (void)TestPhotos::writeFile(path, record);
    }

    const auto shots = readShots(headNamed(head), path);
    QVERIFY(!shots.ok());
    const Failure &failure = shots.error();
    QCOMPARE(failure.code, ExitCode::InputRefused);
    QVERIFY2(failure.why.startsWith(why), qPrintable(failure.why));
    // As everywhere else.
    try {
        QVector<NotedShot> unused;
        (void)readRecord(headNamed(head), path, &unused);
        QFAIL("it is read");
    } catch (const CommandError &error) {
        QCOMPARE(error.failure().text(), failure.text());
    }
}

/** Which of the options that only some heads have belong to which head. */
void TestCliParts::optionsFollowWhatTheHeadHas_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("options"); // in alphabetical order
    const auto row = [](const char *head, const char *options) {
        QTest::newRow(head) << QString::fromLatin1(head) << QString::fromLatin1(options);
    };
    row("clauss", "invert-pitch recorded-location");
    row("gigapan", "bracket detect ignore mode overlap rows stack wrap360");
    row("papywizard", "detect invert-pitch recorded-location rotate stack");
    row("vrdrive2", "detect invert-pitch output-mode recorded-location rotate stack");
}

void TestCliParts::optionsFollowWhatTheHeadHas()
{
    QFETCH(QString, head);
    QFETCH(QString, options);
    QStringList own;
    for (const OptionRow &row : optionsOf(headNamed(head))) {
        own += longName(row);
    }
    for (const char *everybodys :
         { "focal", "lens", "skip-optimization", "clean-links", "no-clean-links", "auto-detection",
           "no-auto-detection", "ignore-exif-rotation", "order", "fit" }) {
        QVERIFY2(own.removeAll(QLatin1String(everybodys)) == 1, everybodys);
    }
    own.sort();
    QCOMPARE(own.join(QLatin1Char(' ')), options);
}

TEST_CLASS(TestCliParts, QCoreApplication)
#include "tst_cli_parts.moc"
