// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "foreignhost.h"
#include "hosthead.h"

#include <QApplication>
#include <QLabel>
#include <QScopeGuard>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTranslator>
#include <QWizard>

#include <memory>

namespace
{

constexpr int kWizardWidth = 760;
constexpr int kUsualFont = 12; // points: Qt's own where no desktop says otherwise

/** A host that really loads the translation that the library asks for. */
class TranslatingHost : public Host
{
public:
    using Host::Host;

    void loadTranslation(const QString &fileName) override
    {
        m_translator = std::make_unique<QTranslator>();
        if (!m_translator->load(fileName, QStringLiteral(":/Translation"))) {
            qFatal("There is no such translation: %s", qPrintable(fileName));
        }
        installTranslator(m_translator.get());
    }
    /** The texts go with the module that holds them. */
    void dropTranslation() { m_translator.reset(); }

private:
    std::unique_ptr<QTranslator> m_translator;
};

TranslatingHost &translatingHost()
{
    return *static_cast<TranslatingHost *>(QCoreApplication::instance());
}

QLabel *labelThatShows(const QString &text, const QWizard &wizard)
{
    for (QLabel *label : wizard.findChildren<QLabel *>()) {
        if (label->text() == text && label->isVisible()) {
            return label;
        }
    }
    return nullptr;
}

int lineCount(const QString &richText, const QFont &font, int width)
{
    QTextDocument document;
    document.setDefaultFont(font);
    document.setDocumentMargin(0.0);
    document.setHtml(richText);
    document.setTextWidth(width);
    int lines = 0;
    if (document.size().isValid()) { // asking for the size lays the text out
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            lines += block.layout()->lineCount();
        }
    }
    return lines;
}

} // namespace

/** The about texts of the pages, in a wizard that knows nothing of them. */
class TestSubtitles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subtitleFitsTwoLines_data();
    void subtitleFitsTwoLines();
};

void TestSubtitles::subtitleFitsTwoLines_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("style");
    for (const HostHead *head : allHostHeads()) {
        for (const char *language :
             { "en", "es", "zh_CN", "fr", "ja", "de", "it", "pl", "zh_TW", "ru" }) {
            const auto row = [head, language](const char *name, QWizard::WizardStyle style) {
                QTest::addRow("%s, %s, %s", head->title, language, name)
                    << QString::fromLatin1(head->plugin) << QString::fromLatin1(language)
                    << static_cast<int>(style);
            };
            row("classic", QWizard::ClassicStyle);
            row("modern", QWizard::ModernStyle);
        }
    }
}

void TestSubtitles::subtitleFitsTwoLines()
{
    QFETCH(const QString, plugin);
    QFETCH(const QString, language);
    QFETCH(const int, style);
    QFont font = QApplication::font();
    font.setPointSize(kUsualFont);
    QApplication::setFont(font);
    host().forget();
    host().userLocale = QLocale(language);
    Contract::Module module;
    const auto dropTranslation = qScopeGuard([] { translatingHost().dropTranslation(); });
    QWizard wizard;
    wizard.setWizardStyle(static_cast<QWizard::WizardStyle>(style));
    wizard.addPage(Contract::asImport(pluginCalled(module.library(), plugin))->pages().first());
    wizard.resize(kWizardWidth, 0);
    wizard.show();
    QCoreApplication::processEvents();

    const QLabel *label = labelThatShows(wizard.currentPage()->subTitle(), wizard);
    QVERIFY(label);
    // A form that takes more makes the wizard wider; the text is to do without.
    const int width = label->width() - (wizard.width() - kWizardWidth);
    const int lines = lineCount(label->text(), label->font(), width);
    QVERIFY2(lines == 1 || lines == 2,
             qPrintable(QStringLiteral("%1 lines of %2 pixels").arg(lines).arg(width)));
}

TEST_CLASS(TestSubtitles, TranslatingHost)
#include "tst_plugin_subtitles.moc"
