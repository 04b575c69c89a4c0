// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

namespace
{

struct Text {
    QString context;
    QString source;
    QString translation; // null: unfinished
};

/** The texts of a .ts file in file order. */
QVector<Text> readTexts(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be opened", qPrintable(path));
    QVector<Text> texts;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            texts << Text{ context, xml.readElementText(), {} };
        } else if (xml.name() == QLatin1String("translation")) {
            const bool finished = xml.attributes().value(QLatin1String("type")).isEmpty();
            const QString translation = xml.readElementText();
            if (finished)
                texts.last().translation = translation;
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return texts;
}

/** What the expression matches in the text, sorted. */
QStringList allMatches(const QString &text, const char *expression)
{
    QStringList matches;
    auto match = QRegularExpression(QLatin1String(expression)).globalMatch(text);
    while (match.hasNext())
        matches << match.next().captured();
    matches.sort();
    return matches;
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void translationKeepsWhatTheProgramReliesOn_data();
    void translationKeepsWhatTheProgramReliesOn();
    void sameTextIsTranslatedAlikeOnEveryPage_data();
    void sameTextIsTranslatedAlikeOnEveryPage();
    void translationSaysAsMuchAsTheText_data();
    void translationSaysAsMuchAsTheText();
    void dialogFilterStartsWithItsPreselectedPart_data();
    void dialogFilterStartsWithItsPreselectedPart();
    void fileMeantToBeEmptyHoldsNoText_data();
    void fileMeantToBeEmptyHoldsNoText();
    void compiledTextIsFoundByItsClass_data();
    void compiledTextIsFoundByItsClass();

private:
    static void addFiles(const QString &pattern);
};

void TranslationsTest::addFiles(const QString &pattern)
{
    QTest::addColumn<QString>("path");
    const QFileInfoList files
        = QDir(QStringLiteral(TRANSLATION_SOURCES)).entryInfoList({ pattern }, QDir::Files);
    QVERIFY(!files.isEmpty());
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

void TranslationsTest::translationKeepsWhatTheProgramReliesOn_data()
{
    addFiles(QStringLiteral("*.ts"));
}

void TranslationsTest::translationKeepsWhatTheProgramReliesOn()
{
    QFETCH(QString, path);
    for (const Text &text : readTexts(path)) {
        if (text.translation.isNull())
            continue; // scripts/check-translations tells
        const auto same = [&text](const char *expression) {
            return allMatches(text.source, expression) == allMatches(text.translation, expression);
        };
        const QByteArray shown = text.source.toUtf8() + " -> " + text.translation.toUtf8();
        QVERIFY2(!text.translation.isEmpty(), shown);
        QVERIFY2(same("%[0-9]+"), shown); // places to fill
        QVERIFY2(same("<[^>]*>"), shown); // markup, with the link and its colour
        QVERIFY2(same("\\*\\.\\w+|\\*\\.\\*|;;"), shown); // file name patterns
        QVERIFY2(same(" $"), shown); // stands before a number
        QVERIFY2(!text.translation.contains(QLatin1Char('&')), shown); // no letter is underlined
    }
}

void TranslationsTest::sameTextIsTranslatedAlikeOnEveryPage_data()
{
    addFiles(QStringLiteral("*.ts"));
}

void TranslationsTest::sameTextIsTranslatedAlikeOnEveryPage()
{
    QFETCH(QString, path);
    QHash<QString, QString> seen;
    for (const Text &text : readTexts(path)) {
        if (!seen.contains(text.source))
            seen.insert(text.source, text.translation);
        QCOMPARE(text.translation, seen.value(text.source));
    }
}

void TranslationsTest::translationSaysAsMuchAsTheText_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("term");
    const auto row = [](const char *language, const char *source, const char *term) {
        QTest::addRow("%s, %s", source, language)
            << QString::fromLatin1(language) << QString::fromLatin1(source)
            << QString::fromUtf8(term);
    };
    // Settings, not the shooting itself.
    row("fr", "Shoot setup", "Réglages");
    row("de", "Shoot setup", "einstellungen");
    row("es", "Shoot setup", "Ajustes");
    row("it", "Shoot setup", "Impostazioni");
    row("ru", "Shoot setup", "Настройки");
    row("es", "Detection options", "Opciones");
    row("it", "Detection options", "Opzioni");
    // Not available, which is not the same as none.
    row("ja", "N/A", "利用不可");
    row("zh_CN", "N/A", "不可用");
    row("zh_TW", "N/A", "無法使用");
    row("pl", "N/A", "n/d");
    // Photographers name the format; in Chinese the quantity has a name of its own.
    row("de", "32-bits HDR radiance", "Radiance");
    row("zh_CN", "32-bits HDR radiance", "辐亮度");
    row("zh_TW", "32-bits HDR radiance", "輻射亮度");
    // A direction, like the one of the rows.
    row("fr", "Columns: to left", "vers la gauche");
    // The first ones, not just some.
    row("es", "Ignore N files ", "Omitir los primeros archivos");
}

void TranslationsTest::translationSaysAsMuchAsTheText()
{
    QFETCH(QString, language);
    QFETCH(QString, source);
    QFETCH(QString, term);
    int found = 0;
    for (const Text &text :
         readTexts(QStringLiteral(TRANSLATION_SOURCES "/XPanoHead_%1.ts").arg(language))) {
        if (text.source == source) {
            ++found;
            QVERIFY2(text.translation.contains(term), qPrintable(text.translation));
        }
    }
    QVERIFY(found > 0);
}

void TranslationsTest::dialogFilterStartsWithItsPreselectedPart_data()
{
    addFiles(QStringLiteral("XPanoHead_*.ts"));
}

void TranslationsTest::dialogFilterStartsWithItsPreselectedPart()
{
    QFETCH(QString, path);
    const QVector<Text> texts = readTexts(path);
    const QString allFiles = QStringLiteral("All Files (*.*)");
    for (const Text &whole : texts) {
        if (whole.translation.isNull() || !whole.source.startsWith(allFiles + QStringLiteral(";;")))
            continue;
        for (const Text &part : texts) {
            if (part.context == whole.context && part.source == allFiles)
                QCOMPARE(whole.translation.section(QStringLiteral(";;"), 0, 0), part.translation);
        }
    }
}

void TranslationsTest::fileMeantToBeEmptyHoldsNoText_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "XPanoHead_en.ts", "XUI_en.ts", "XUI_cs.ts", "XUI_fi.ts" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TranslationsTest::fileMeantToBeEmptyHoldsNoText()
{
    QFETCH(QString, name);
    QVERIFY(readTexts(QStringLiteral(TRANSLATION_SOURCES "/") + name).isEmpty());
}

void TranslationsTest::compiledTextIsFoundByItsClass_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("translation");
    const auto row = [](const char *name, const char *file, const char *context, const char *source,
                        const char *translation) {
        QTest::newRow(name) << QString::fromLatin1(file) << QByteArray(context)
                            << QByteArray(source) << QString::fromUtf8(translation);
    };
    row("form text", "XPanoHead_de_DE.qm", "UIWPMerlinClass", "Use hard links",
        "Feste Verkn\303\274pfungen verwenden");
    row("page text", "XPanoHead_fr_CA.qm", "UIWPMerlin", "Select images",
        "S\303\251lectionner les images");
    row("lens type", "XPanoHead_es.qm", "UIWPMerlin", "Fisheye", "Ojo de pez");
    row("whole Chinese locale", "XPanoHead_zh_TW.qm", "UIWPMerlinClass", "Detect control points",
        "\345\201\265\346\270\254\346\216\247\345\210\266\351\273\236");
    row("UI pack", "XUI_nl.qm", "rotator", "Look up", "Omhoog kijken");
    row("other class", "XPanoHead_de.qm", "UIWPMerlinClass", "Select images", "");
    row("English stays", "XPanoHead_en_GB.qm", "UIWPMerlinClass", "Use hard links", "");
}

void TranslationsTest::compiledTextIsFoundByItsClass()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    QFETCH(QString, translation);
    QTranslator translator;
    QVERIFY(translator.load(file, QStringLiteral(":/Translation")));
    QCOMPARE(translator.translate(context, source), translation);
}

TEST_CLASS(TranslationsTest, QCoreApplication)
#include "tst_translations.moc"
