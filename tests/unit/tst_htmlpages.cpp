// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace
{

QString readPage(const QString &name)
{
    QFile file(QStringLiteral(":/html/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be opened", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

QString firstMatch(const QString &text, const char *expression)
{
    const QRegularExpression searched(QString::fromLatin1(expression),
                                      QRegularExpression::DotMatchesEverythingOption);
    return searched.match(text).captured(1);
}

/** The page without its scripts and styles. */
QString markup(const QString &page)
{
    QString rest = page;
    return rest.remove(QRegularExpression(QStringLiteral("<(script|style)>.*?</\\1>"),
                                          QRegularExpression::DotMatchesEverythingOption));
}

} // namespace

/** The pages of the UI pack, as far as their text tells. */
class HtmlPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageNeedsNoOtherFile_data() { addPages(); }
    void pageNeedsNoOtherFile();
    void pageForbidsScriptsFromElsewhere_data() { addPages(); }
    void pageForbidsScriptsFromElsewhere();
    void pageSaysWhatIsWrongWithoutScripts_data() { addPages(); }
    void pageSaysWhatIsWrongWithoutScripts();
    void mapShowsItsNoticeUntilAPictureArrives();
    void mapGivesPicturesThreeSecondsBeforeTheNotice();
    void textEditorMissesPicturesThatNeverAnswer();

private:
    static void addPages();
};

void HtmlPagesTest::addPages()
{
    QTest::addColumn<QString>("name");
    const QStringList names = QDir(QStringLiteral(":/html")).entryList(QDir::Files);
    QCOMPARE(names.size(), 3);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void HtmlPagesTest::pageNeedsNoOtherFile()
{
    QFETCH(QString, name);
    const QString page = readPage(name);
    for (const char *loading :
         { "<script[^>]+src", "<link", "<base", "<object", "<embed", "@import", "@font-face",
           "url\\(", "\\bimport\\b", "\\bfetch\\(", "XMLHttpRequest", "\\beval\\(" }) {
        QVERIFY2(!page.contains(QRegularExpression(QString::fromLatin1(loading))), loading);
    }
    QVERIFY(!markup(page).contains(QRegularExpression(QStringLiteral("\\ssrc\\s*="))));
}

void HtmlPagesTest::pageForbidsScriptsFromElsewhere()
{
    QFETCH(QString, name);
    const QString policy = firstMatch(
        readPage(name), "http-equiv=\"Content-Security-Policy\"\\s+content=\"([^\"]*)\"");
    const QStringList rules = policy.split(QStringLiteral("; "));
    QVERIFY2(rules.contains(QStringLiteral("default-src 'none'")), qPrintable(policy));
    QVERIFY2(rules.contains(QStringLiteral("script-src 'unsafe-inline'")), qPrintable(policy));
    QVERIFY2(rules.contains(QStringLiteral("style-src 'unsafe-inline'")), qPrintable(policy));
}

void HtmlPagesTest::pageSaysWhatIsWrongWithoutScripts()
{
    QFETCH(QString, name);
    const QString body = markup(readPage(name)).section(QStringLiteral("<body>"), 1);
    const QString text = firstMatch(body, "<noscript>([^<]*)</noscript>");
    QVERIFY2(text.contains(QLatin1String("scripts")), qPrintable(text));
}

void HtmlPagesTest::mapShowsItsNoticeUntilAPictureArrives()
{
    const QString page = readPage(QStringLiteral("ggmap.html"));
    const QString attributes = firstMatch(page, "<div id=\"notice\"([^>]*)>");
    QVERIFY(attributes.contains(QLatin1String("role=\"status\"")));
    QVERIFY(!attributes.contains(QLatin1String("hidden")));
    const QString text = firstMatch(page, "<div id=\"notice\"[^>]*>([^<]*)</div>").simplified();
    QVERIFY2(text.startsWith(QLatin1String("The map pictures cannot be loaded, probably because "
                                           "there is no Internet connection.")),
             qPrintable(text));
    // Nothing but an arrived picture takes the notice away.
    QCOMPARE(page.count(QRegularExpression(QStringLiteral("hidden\\s*=\\s*true"))), 1);
    QVERIFY(
        firstMatch(page, "image\\.onload = (.*?\\};)").contains(QLatin1String("hidden = true")));
}

void HtmlPagesTest::mapGivesPicturesThreeSecondsBeforeTheNotice()
{
    const QString page = readPage(QStringLiteral("ggmap.html"));
    const QString rule = firstMatch(page, "#notice \\{ animation: ([^}]*)\\}");
    QCOMPARE(rule.trimmed(), QStringLiteral("appear 0s 3s both;"));
    QVERIFY(firstMatch(page, "@keyframes appear \\{([^\n]*)\\}")
                .contains(QLatin1String("to { visibility: visible; }")));
}

void HtmlPagesTest::textEditorMissesPicturesThatNeverAnswer()
{
    const QString page = readPage(QStringLiteral("htmleditor.html"));
    const QString text = firstMatch(page, "<div id=\"notice\"[^>]*>([^<]*)</div>").simplified();
    QVERIFY2(text.startsWith(QLatin1String("A picture of this text cannot be loaded, probably "
                                           "because there is no Internet connection.")),
             qPrintable(text));
    QVERIFY(page.contains(QLatin1String("setTimeout(judgePictures, kPatience)")));
}

TEST_CLASS(HtmlPagesTest, QCoreApplication)
#include "tst_htmlpages.moc"
