// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/aboutbox.h"
#include "host/gui/preferences.h"
#include "host/import/dialogcatcher.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

using namespace PanoHost;

/** Help, preferences and what the program says about itself. */
class TestAbout : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void helpIsAMenuAndAKey();
    void aboutNamesVersionsAndLicences();
    void preferencesAreKeptAndComeTrue();
    void foldersThatAreNoneAreRefused();

private:
    [[nodiscard]] static PanoHostApplication &app() { return *PanoHostApplication::instance(); }

    std::unique_ptr<GuiBench> m_bench;
};

void TestAbout::helpIsAMenuAndAKey()
{
    DialogCatcher boxes;
    QTest::keyClick(&m_bench->wizard(), Qt::Key_F1);
    QCOMPARE(boxes.takeMessages().size(), 1);
    const auto *opener = qobject_cast<QPushButton *>(m_bench->wizard().button(QWizard::HelpButton));
    QVERIFY(opener && opener->menu());
    for (const auto &[text, title] : { std::pair("&Preferences...", "Preferences"),
                                       std::pair("&About panohost", "About panohost") }) {
        for (QAction *action : opener->menu()->actions()) {
            if (action->text() == QLatin1String(text)) {
                action->trigger();
            }
        }
        QCOMPARE(boxes.takeMessages(), QStringList(QLatin1String(title)));
    }
}

void TestAbout::aboutNamesVersionsAndLicences()
{
    const AboutBox box(*m_bench->library(), &m_bench->wizard());
    const QString versions = box.findChild<QLabel *>(QStringLiteral("m_versions"))->text();
    QVERIFY2(versions.contains(QStringLiteral("Qt %1\n").arg(QLatin1String(qVersion()))),
             qPrintable(versions));
    static const QRegularExpression exiv(QStringLiteral("libexiv2 \\d+\\.\\d+\\.\\d+\n"));
    QVERIFY2(versions.contains(exiv), qPrintable(versions));
    QVERIFY2(versions.contains(QLatin1String("XPanoHead")), qPrintable(versions));
    const QString licences
        = box.findChild<QPlainTextEdit *>(QStringLiteral("m_licences"))->toPlainText();
    QVERIFY2(licences.contains(QLatin1String("OpenCV: Apache-2.0")), qPrintable(licences));
    QVERIFY2(licences.contains(QLatin1String("Qt Base: LGPL-3.0-only")), qPrintable(licences));
}

void TestAbout::preferencesAreKeptAndComeTrue()
{
    const QString folder = m_bench->path(QStringLiteral("tools"));
    QVERIFY(QDir().mkpath(folder));
    const QString tool = folder + QStringLiteral("/nona");
    QVERIFY(QFile::copy(QStringLiteral("/bin/true"), tool));
    Preferences box(app(), &m_bench->wizard());
    box.show();
    auto *field = box.findChild<QLineEdit *>(QStringLiteral("m_toolFolder"));
    QTest::keyClicks(field, folder);
    QVERIFY(box.findChild<QLabel *>(QStringLiteral("m_tools"))
                ->text()
                .contains(QStringLiteral("nona: found, ") + tool));
    auto *language = box.findChild<QComboBox *>(QStringLiteral("m_language"));
    QVERIFY(language->count() > 5);
    language->setCurrentIndex(language->findData(QStringLiteral("fr")));
    QCOMPARE(language->currentText(), QStringLiteral("français"));
    QTest::mouseClick(box.findChild<QCheckBox *>(QStringLiteral("m_systemDialogs")), Qt::LeftButton,
                      {}, QPoint(5, 8));
    QVERIFY(!box.findChild<QCheckBox *>(QStringLiteral("m_systemDialogs"))->isChecked());
    const QString file = qEnvironmentVariable("PANOHOST_WINDOW_PICTURES");
    if (!file.isEmpty()) {
        box.grab().save(file + QStringLiteral("/preferences.png"));
        AboutBox about(*m_bench->library(), &m_bench->wizard());
        about.grab().save(file + QStringLiteral("/about.png"));
    }
    QTest::mouseClick(box.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QVERIFY(!box.isVisible());
    QVERIFY(!app().UIInstances()->settings->useSystemFileDialog);
    QCOMPARE(QStandardPaths::findExecutable(QStringLiteral("nona")), tool);
    const QLocale before = app().Locale();
    Preferences::apply(app(), true); // --lang has said it
    QCOMPARE(app().Locale(), before);
    Preferences::apply(app(), false);
    QCOMPARE(app().Locale().language(), QLocale::French);
    app().setLocale(before);
    const Preferences again(app(), &m_bench->wizard());
    QCOMPARE(again.findChild<QLineEdit *>(QStringLiteral("m_toolFolder"))->text(), folder);
    QCOMPARE(again.findChild<QComboBox *>(QStringLiteral("m_language"))->currentData(),
             QVariant(QStringLiteral("fr")));
}

void TestAbout::foldersThatAreNoneAreRefused()
{
    Preferences box(app(), &m_bench->wizard());
    box.show();
    box.findChild<QLineEdit *>(QStringLiteral("m_toolFolder"))->setText(QStringLiteral("/no/such"));
    DialogCatcher boxes;
    box.accept();
    QCOMPARE(boxes.takeMessages().size(), 1);
    QVERIFY(box.isVisible());
}

TEST_CLASS(TestAbout, PanoHostApplication)
#include "tst_gui_about.moc"
