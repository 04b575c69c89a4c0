// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cardfiles.h"
#include "tests/host/cardshoots.h"
#include "tests/host/cli/clibench.h"
#include "tests/host/jsonschema.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace
{

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

QStringList textsOf(const QJsonValue &list)
{
    QStringList texts;
    const QJsonArray array = list.toArray();
    for (const QJsonValue &value : array) {
        texts += value.toString();
    }
    return texts;
}

} // namespace

/** Cards full of files, and what `sort` makes of them. */
class TestCliSort : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMixedCardIsSorted();
    void jsonFitsTheSchema();
    void linksAreMadeOrNothing();
    void nonsenseIsRefused_data();
    void nonsenseIsRefused();

private:
    /** Two shoots with records, a clock that is 17 minutes off, a walk and a grid. */
    void makeCard()
    {
        m_files->writeRecord(QStringLiteral("card/head/hall.xml"), 12, 0.0);
        m_files->writeRecord(QStringLiteral("card/head/yard.xml"), 9, 1800.0);
        m_files->writeRecord(QStringLiteral("card/head/lost.xml"), 30, 7200.0);
        m_files->takeShoot(QStringLiteral("card/DCIM/100"), 1, 12, 1020.0);
        m_files->takeShoot(QStringLiteral("card/DCIM/101"), 13, 8, 2820.0);
        for (const double second : { 5000.0, 5060.0, 5190.0 }) {
            m_files->take(QStringLiteral("card/DCIM/101/IMG_1%1.jpg").arg(int(second)), second);
        }
        for (int photo = 0; photo < 12; ++photo) {
            m_files->take(CardShoots::pathOf(600 + photo, QStringLiteral("card/DCIM/101")),
                          8000.0 + 4.0 * photo);
        }
    }
    [[nodiscard]] CliBench::Run sorted(const QStringList &arguments) const
    {
        return m_bench->run(QStringList{ QStringLiteral("sort") } + arguments);
    }
    [[nodiscard]] QJsonObject plan(const QStringList &arguments) const
    {
        const CliBench::Run run = sorted(arguments + QStringList{ QStringLiteral("--json") });
        return QJsonDocument::fromJson(run.out.toUtf8()).object();
    }
    /** The folder and what is below it, sorted. */
    [[nodiscard]] QStringList below(const QString &folder) const
    {
        QStringList found;
        const QDir dir(m_bench->path(folder));
        const QStringList names = dir.entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
        for (const QString &name : names) {
            found += folder + QLatin1Char('/') + name;
            if (QFileInfo(dir.filePath(name)).isDir()
                && !QFileInfo(dir.filePath(name)).isSymLink()) {
                found += below(folder + QLatin1Char('/') + name);
            }
        }
        return found;
    }
    std::unique_ptr<CliBench> m_bench;
    std::unique_ptr<CardFiles> m_files;
};

void TestCliSort::init()
{
    m_bench = std::make_unique<CliBench>();
    m_files = std::make_unique<CardFiles>(m_bench->path({}));
}

void TestCliSort::aMixedCardIsSorted()
{
    makeCard();
    const QStringList before = below(QStringLiteral("card"));
    const CliBench::Run run = sorted(words("card"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.split(QLatin1Char('\n')),
             QStringLiteral(
                 "shoot    1: 2024-05-01 10:17, card/head/hall.xml (papywizard or "
                 "vrdrive2), 12 shots\n"
                 "photos   12 photos, card/DCIM/100/IMG_0001.jpg to IMG_0012.jpg\n"
                 "sure     shots and photos go together by their times, the camera's clock 17 min "
                 "0 s ahead of the head's\n"
                 "shoot    2: 2024-05-01 10:47, card/head/yard.xml (papywizard or vrdrive2), 9 "
                 "shots\n"
                 "photos   8 photos, card/DCIM/101/IMG_0013.jpg to IMG_0020.jpg; none for 1 shot\n"
                 "sure     shots and photos go together by their times, the camera's clock 17 min "
                 "0 s ahead of the head's\n"
                 "shoot    3: 2024-05-01 12:13 to 12:14, no record\n"
                 "photos   12 photos, card/DCIM/101/IMG_0600.jpg to IMG_0611.jpg\n"
                 "not sure no record: a grid? their rhythm and number look like one\n"
                 "record   card/head/lost.xml (papywizard or vrdrive2), 30 shots, 2024-05-01 "
                 "12:00: no photos found that fit; are they on another card?\n"
                 "left     1 photo, card/DCIM/101/IMG_15000.jpg, 2024-05-01 11:23: of no shoot\n"
                 "left     1 photo, card/DCIM/101/IMG_15060.jpg, 2024-05-01 11:24: of no shoot\n"
                 "left     1 photo, card/DCIM/101/IMG_15190.jpg, 2024-05-01 11:26: of no shoot\n")
                 .split(QLatin1Char('\n')));
    QVERIFY2(run.err.contains(QLatin1String("panohost: 3 shoots (1 not sure) in 35 photos and 3 "
                                            "records; 3 photos left over")),
             qPrintable(run.err));
    QCOMPARE(below(QStringLiteral("card")), before);
    QCOMPARE(m_bench->leftovers(), QStringList());
}

void TestCliSort::jsonFitsTheSchema()
{
    makeCard();
    (void)m_bench->file(QStringLiteral("card/bad.jpg"), "no photo");
    (void)m_bench->file(QStringLiteral("card/notes.txt"), "buy milk");
    QFile::copy(m_bench->path(QStringLiteral("card/head/hall.xml")),
                m_bench->path(QStringLiteral("card/hall.xml")));
    QFile file(QStringLiteral(PANOHOST_SORT_SCHEMA));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject found = plan(words("card"));
    QCOMPARE(JsonSchema::problem(found, schema), QString());
    const QJsonArray shoots = found[QLatin1String("shoots")].toArray();
    QCOMPARE(shoots.size(), 3);
    const QJsonObject first = shoots[0].toObject();
    // Of two copies the one that is found first.
    QCOMPARE(first[QLatin1String("record")].toString(),
             m_bench->path(QStringLiteral("card/hall.xml")));
    QCOMPARE(textsOf(found[QLatin1String("copies")]),
             QStringList{ m_bench->path(QStringLiteral("card/head/hall.xml")) });
    QCOMPARE(first[QLatin1String("sureness")].toString(), QStringLiteral("sure"));
    QCOMPARE(first[QLatin1String("clockSeconds")].toDouble(), 1020.0);
    QCOMPARE(textsOf(first[QLatin1String("photos")]).size(), 12);
    QVERIFY(shoots[2].toObject()[QLatin1String("record")].isNull());
    QCOMPARE(found[QLatin1String("refused")].toArray().size(), 1);
    QCOMPARE(found[QLatin1String("noRecords")].toArray().size(), 1);
    QCOMPARE(found[QLatin1String("idleRecords")].toArray().size(), 1);
}

void TestCliSort::linksAreMadeOrNothing()
{
    makeCard();
    const CliBench::Run run = sorted(words("card --links shoots --quiet"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    const QDir folder(m_bench->path(QStringLiteral("shoots")));
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             words("01-hall 02-yard 03-grid"));
    QCOMPARE(QDir(folder.filePath(QStringLiteral("02-yard"))).entryList(QDir::Files).size(), 9);
    QCOMPARE(QFile::symLinkTarget(folder.filePath(QStringLiteral("02-yard/IMG_0013.jpg"))),
             m_bench->path(QStringLiteral("card/DCIM/101/IMG_0013.jpg")));
    QCOMPARE(QFile::symLinkTarget(folder.filePath(QStringLiteral("02-yard/yard.xml"))),
             m_bench->path(QStringLiteral("card/head/yard.xml")));

    // What is there already stays as it is.
    const QStringList before = below(QStringLiteral("shoots"));
    const CliBench::Run again = sorted(words("card --links shoots"));
    QCOMPARE(again.exitCode, 1);
    QVERIFY2(again.err.contains(QLatin1String("shoots: is there already, with files in it; give "
                                              "another name; nothing is overwritten")),
             qPrintable(again.err));
    QCOMPARE(below(QStringLiteral("shoots")), before);

    // An empty folder gives way; links that were found lead to files that are known.
    m_files->makeFolder(QStringLiteral("empty"));
    QCOMPARE(sorted(words("card shoots --links empty")).exitCode, 0);
    QCOMPARE(QDir(m_bench->path(QStringLiteral("empty"))).entryList(QDir::AllDirs).size(), 2 + 3);

    // A place that takes no files.
    const CliBench::Run nowhere = sorted(words("card --links /proc/shoots"));
    QCOMPARE(nowhere.exitCode, 1);
    QVERIFY2(nowhere.err.startsWith(QLatin1String("panohost: error: /proc/shoots: ")),
             qPrintable(nowhere.err));
    QCOMPARE(
        QDir(m_bench->path({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        words("card empty shoots"));
}

void TestCliSort::nonsenseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("said");
    QTest::newRow("nothing") << QStringList() << 2
                             << QStringLiteral("no folder named; name the folder of the card");
    QTest::newRow("no such folder")
        << words("card") << 3 << QStringLiteral("card: no such folder; check the name");
    QTest::newRow("a file") << words("a.xml") << 3
                            << QStringLiteral("a.xml: is not a folder; name the folder that it "
                                              "lies in");
    QTest::newRow("an empty folder")
        << words("empty") << 3 << QStringLiteral("empty: no photos and no records below");
    QTest::newRow("links without a name")
        << QStringList{ QStringLiteral("empty"), QStringLiteral("--links"), QString() } << 2
        << QStringLiteral("--links names no folder");
    QTest::newRow("links into a file") << words("empty --links a.xml") << 1
                                       << QStringLiteral("a.xml: is there already, and not a "
                                                         "folder");
    QTest::newRow("links in no folder")
        << words("empty --links no/where") << 1
        << QStringLiteral("no/where: the folder no does not exist; create it");
}

void TestCliSort::nonsenseIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, said);
    m_files->makeFolder(QStringLiteral("empty"));
    m_files->writeRecord(QStringLiteral("a.xml"), 3, 0.0);
    const CliBench::Run run = sorted(arguments);
    QCOMPARE(run.exitCode, code);
    QVERIFY2(run.err.contains(said), qPrintable(run.err));
    QCOMPARE(run.out, QString());
}

TEST_CLASS(TestCliSort, QCoreApplication)
#include "tst_cli_sort.moc"
