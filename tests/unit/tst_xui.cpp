// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"
#include "ui/xui.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace
{

QString scriptLibraryPath()
{
    return QDir(QCoreApplication::applicationDirPath())
        .absoluteFilePath(QStringLiteral("closure-library.rcc"));
}

const QString kPackedFile = QStringLiteral(":/closure/base.js");

/** Packs one small file as kPackedFile into the place where the script library is looked for. */
bool makeScriptLibrary()
{
    const QTemporaryDir dir;
    const auto write = [&dir](const QString &name, const QByteArray &content) {
        QFile file(dir.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    if (!write(QStringLiteral("base.js"), "// packed\n")
        || !write(QStringLiteral("pack.qrc"),
                  "<RCC><qresource prefix=\"/closure\"><file>base.js</file></qresource></RCC>")) {
        return false;
    }
    return QProcess::execute(qEnvironmentVariable("TEST_RCC"),
                             { QStringLiteral("--binary"), QStringLiteral("-o"),
                               scriptLibraryPath(), dir.filePath(QStringLiteral("pack.qrc")) })
        == 0;
}

} // namespace

/** Each test begins without own settings and with null instances, as at load. */
class TestXui : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void atLoadThereAreNoSettings();
    void initWithoutAHostMakesOwnSettings();
    void initWithoutAHostTwiceKeepsTheFirstSettings();
    void initWithAHostSharesItsSettings();
    void initWithAHostAfterOwnSettingsIsIgnored();
    void initWithAHostTwiceTakesTheLaterOne();
    void initWithoutAHostAfterAHostMakesOwnSettings();
    void initAfterExitStartsAnew();
    void exitDeletesOwnSettingsOnly();
    void exitWithoutInitDoesNothing();
    void theChoiceOfDialogsIsShared();
    void withoutSettingsTheSystemDialogIsUsed();
    void selectInFileBrowserStartsNothing();
    void theScriptLibraryIsLoadedOnceAProcess();
};

void TestXui::cleanup()
{
    XUI::exit();
    XUI::ms_instances.settings = nullptr;
    QDir::setSearchPaths(QStringLiteral("UI"), {});
    QFile::remove(scriptLibraryPath());
}

void TestXui::atLoadThereAreNoSettings()
{
    QCOMPARE(XUI::ms_instances.settings, nullptr);
}

void TestXui::initWithoutAHostMakesOwnSettings()
{
    XUI::init(nullptr);
    QVERIFY(XUI::ms_instances.settings != nullptr);
    QVERIFY(XUI::ms_instances.settings->useSystemFileDialog);
    QCOMPARE(QDir::searchPaths(QStringLiteral("UI")), QStringList{ QStringLiteral(":/UI") });
    QVERIFY(QFile::exists(QStringLiteral("UI:help_16.png")));
}

void TestXui::initWithoutAHostTwiceKeepsTheFirstSettings()
{
    XUI::init(nullptr);
    XUISettings *first = XUI::ms_instances.settings;
    first->useSystemFileDialog = false;
    QDir::setSearchPaths(QStringLiteral("UI"), { QStringLiteral("/elsewhere") });
    XUI::init(nullptr);
    QCOMPARE(XUI::ms_instances.settings, first);
    QVERIFY(!first->useSystemFileDialog);
    QCOMPARE(QDir::searchPaths(QStringLiteral("UI")), QStringList{ QStringLiteral("/elsewhere") });
}

void TestXui::initWithAHostSharesItsSettings()
{
    XUISettings settings{ false };
    XUIInstances host{ &settings };
    XUI::init(&host);
    QCOMPARE(XUI::ms_instances.settings, &settings);
    // The host's own packs serve the prefix then.
    QCOMPARE(QDir::searchPaths(QStringLiteral("UI")), QStringList());

    // The handle was copied, not kept.
    host.settings = nullptr;
    QCOMPARE(XUI::ms_instances.settings, &settings);
}

void TestXui::initWithAHostAfterOwnSettingsIsIgnored()
{
    XUI::init(nullptr);
    XUISettings *own = XUI::ms_instances.settings;
    XUISettings settings{ false };
    XUIInstances host{ &settings };
    XUI::init(&host);
    QCOMPARE(XUI::ms_instances.settings, own);
}

void TestXui::initWithAHostTwiceTakesTheLaterOne()
{
    XUISettings firstSettings{ true };
    XUIInstances first{ &firstSettings };
    XUISettings secondSettings{ false };
    XUIInstances second{ &secondSettings };
    XUI::init(&first);
    XUI::init(&second);
    QCOMPARE(XUI::ms_instances.settings, &secondSettings);
    XUI::exit();
    // The settings lie on this function's stack: deleting them would end the test.
    QCOMPARE(XUI::ms_instances.settings, &secondSettings);
    QVERIFY(firstSettings.useSystemFileDialog);
    QVERIFY(!secondSettings.useSystemFileDialog);
}

void TestXui::initWithoutAHostAfterAHostMakesOwnSettings()
{
    XUISettings settings{ false };
    XUIInstances host{ &settings };
    XUI::init(&host);
    XUI::init(nullptr);
    QVERIFY(XUI::ms_instances.settings != nullptr);
    QVERIFY(XUI::ms_instances.settings != &settings);
    QVERIFY(XUI::ms_instances.settings->useSystemFileDialog);
}

void TestXui::initAfterExitStartsAnew()
{
    XUI::init(nullptr);
    XUI::SetUseSystemFileDialog(false);
    XUI::exit();
    XUI::init(nullptr);
    QVERIFY(XUI::ms_instances.settings->useSystemFileDialog);
    XUI::exit();
    XUISettings settings{ false };
    XUIInstances host{ &settings };
    XUI::init(&host);
    QCOMPARE(XUI::ms_instances.settings, &settings);
}

void TestXui::exitDeletesOwnSettingsOnly()
{
    XUI::init(nullptr);
    XUI::exit();
    QCOMPARE(XUI::ms_instances.settings, nullptr);
    XUI::exit();
    QCOMPARE(XUI::ms_instances.settings, nullptr);
}

void TestXui::exitWithoutInitDoesNothing()
{
    XUI::exit();
    QCOMPARE(XUI::ms_instances.settings, nullptr);
}

void TestXui::theChoiceOfDialogsIsShared()
{
    XUISettings settings{ true };
    XUIInstances host{ &settings };
    XUI::init(&host);
    QCOMPARE(XUI::UseSystemFileDialog(), QFileDialog::Options());

    settings.useSystemFileDialog = false;
    QCOMPARE(XUI::UseSystemFileDialog(), QFileDialog::Options(QFileDialog::DontUseNativeDialog));
    QCOMPARE(static_cast<int>(XUI::UseSystemFileDialog()), 16);

    XUI::SetUseSystemFileDialog(true);
    QVERIFY(settings.useSystemFileDialog);
    QCOMPARE(XUI::UseSystemFileDialog(), QFileDialog::Options());
    XUI::SetUseSystemFileDialog(false);
    QVERIFY(!settings.useSystemFileDialog);
}

void TestXui::withoutSettingsTheSystemDialogIsUsed()
{
    QCOMPARE(XUI::UseSystemFileDialog(), QFileDialog::Options());
    XUI::SetUseSystemFileDialog(false);
    QCOMPARE(XUI::UseSystemFileDialog(), QFileDialog::Options());

    XUIInstances host; // a host without settings
    XUI::init(&host);
    QCOMPARE(XUI::UseSystemFileDialog(), QFileDialog::Options());
    XUI::SetUseSystemFileDialog(false);
    QCOMPARE(XUI::UseSystemFileDialog(), QFileDialog::Options());
}

/** Takes the place of the desktop for a scheme and counts what it is asked to open. */
class Desktop : public QObject
{
    Q_OBJECT

public:
    explicit Desktop(const QString &scheme)
        : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(m_scheme, this, "open");
    }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    [[nodiscard]] int opened() const { return m_opened; }

public Q_SLOTS:
    void open(const QUrl &) { ++m_opened; }

private:
    QString m_scheme;
    int m_opened = 0;
};

void TestXui::selectInFileBrowserStartsNothing()
{
    const Desktop files(QStringLiteral("file"));
    const Desktop web(QStringLiteral("https"));
    XUI::SelectInFileBrowser(this,
                             { QUrl::fromLocalFile(QCoreApplication::applicationFilePath()),
                               QUrl(QStringLiteral("file:///no/such/file")),
                               QUrl(QStringLiteral("FILE:///tmp")),
                               QUrl(QStringLiteral("https://example.org/")), QUrl() });
    XUI::SelectInFileBrowser(nullptr, {});
    QCOMPARE(files.opened(), 0);
    QCOMPARE(web.opened(), 0);
}

/** Everything that is logged while it lives, as "type text". */
class Log
{
public:
    Log()
    {
        s_entries.clear();
        m_previous = qInstallMessageHandler(append);
    }
    ~Log() { qInstallMessageHandler(m_previous); }
    Log(const Log &) = delete;
    Log &operator=(const Log &) = delete;

    [[nodiscard]] static QStringList entries() { return s_entries; }

private:
    static void append(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        s_entries.append(
            (type == QtCriticalMsg ? QStringLiteral("critical ") : QStringLiteral("other "))
            + text);
    }

    static QStringList s_entries;
    QtMessageHandler m_previous = nullptr;
};

QStringList Log::s_entries;

void TestXui::theScriptLibraryIsLoadedOnceAProcess()
{
    XUI::init(nullptr);
    QVERIFY(!QFile::exists(scriptLibraryPath()));
    const QString complaint
        = QStringLiteral("critical Cannot load closure-library.rcc file needed by XUI");
    {
        const Log log;
        XUI::loadJSLibraries();
        QCOMPARE(log.entries(), QStringList{ complaint });
        XUI::loadJSLibraries(); // a failure is not remembered
        QCOMPARE(log.entries(), QStringList({ complaint, complaint }));
    }
    QVERIFY(!QFile::exists(kPackedFile));

    QVERIFY(makeScriptLibrary());
    const Log log;
    XUI::loadJSLibraries();
    QVERIFY(QFile::exists(kPackedFile));

    // A second call registers nothing: one unregistering is enough afterwards.
    XUI::loadJSLibraries();
    XUI::exit();
    QVERIFY(!QFile::exists(kPackedFile));

    // Once a process: neither is the file, still there, loaded again, nor missed when it is gone.
    XUI::loadJSLibraries();
    QVERIFY(!QFile::exists(kPackedFile));
    QVERIFY(QFile::remove(scriptLibraryPath()));
    XUI::loadJSLibraries();
    QCOMPARE(log.entries(), QStringList());
}

TEST_CLASS(TestXui, QApplication)
#include "tst_xui.moc"
