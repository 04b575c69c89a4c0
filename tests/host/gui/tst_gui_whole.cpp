// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/makepage.h"
#include "host/gui/positionsmodel.h"
#include "host/import/dialogcatcher.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/gui/pseudolanguage.h"
#include "tests/host/gui/tinyshoot.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace PanoHost;

/** From a dropped folder to the finished panorama, with the real page and the real tools. */
class TestGuiWhole : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void dropToPanoramaIsFourSteps();
    void nextShootIsAnotherPanorama();
    void otherLanguagesMakeTheSame();
};

void TestGuiWhole::dropToPanoramaIsFourSteps()
{
    GuiBench bench;
    const QString folder = bench.path(QStringLiteral("shoot"));
    photographTinyShoot(folder);
    bench.drop({ folder }); // 1
    QTRY_VERIFY(bench.isNextEnabled());
    QTRY_VERIFY(bench.isSettled());
    bench.picture(QStringLiteral("whole-import"));
    bench.press(QWizard::NextButton); // 2
    QTRY_COMPARE(bench.result().size(), 6);
    bench.picture(QStringLiteral("whole-result"));
    bench.press(QWizard::NextButton); // 3
    auto *page = bench.wizard().findChild<MakePage *>();
    QVERIFY(page->isVisible());
    auto *make = page->findChild<QPushButton *>(QStringLiteral("m_make"));
    QTRY_COMPARE(bench.wizard().focusWidget(), make);
    auto *state = page->findChild<QLabel *>(QStringLiteral("m_makeState"));
    QTRY_VERIFY2(state->text().contains(QStringLiteral(" pixels at most")),
                 qPrintable(state->text()));
    bench.picture(QStringLiteral("whole-make"));
    QTest::keyClick(make, Qt::Key_Return); // 4
    QTRY_VERIFY(page->isRunning());
    bench.picture(QStringLiteral("whole-running"));
    QTRY_VERIFY_WITH_TIMEOUT(!page->isRunning(), 600'000);
    QVERIFY2(page->hasMade(), qPrintable(state->text()));
    bench.picture(QStringLiteral("whole-made"));
    const QSize size = QImageReader(page->path()).size();
    QVERIFY2(size.width() > size.height() && size.height() > 100,
             qPrintable(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height())));
    QCOMPARE(QFileInfo(page->path()).absolutePath(), bench.path(QStringLiteral("shoot panorama")));
    QVERIFY(QFile::exists(bench.path(QStringLiteral("shoot panorama/record.html"))));
    // Back, the table knows where the photos truly stand.
    bench.press(QWizard::BackButton);
    auto *table = bench.wizard().currentPage()->findChild<QTableView *>();
    QVERIFY(table != nullptr);
    const int residual = PositionsModel::Residual;
    QVERIFY(!table->isColumnHidden(residual));
    bool isNumber = false;
    const double pixels
        = table->model()->index(0, residual).data(PositionsModel::kSortRole).toDouble(&isNumber);
    QVERIFY2(isNumber && pixels > 0.0 && pixels < 2.0, qPrintable(QString::number(pixels)));
    bench.press(QWizard::NextButton);
    QVERIFY(page->hasMade());
    // No question: the panorama is there.
    bench.press(QWizard::FinishButton);
    QVERIFY(!bench.wizard().isVisible());
}

/** What was made of the shoot before saves nothing of this one. */
void TestGuiWhole::nextShootIsAnotherPanorama()
{
    GuiBench bench;
    const auto import = [&bench](const QStringList &files, int positions) {
        bench.drop(files);
        QTRY_VERIFY(bench.isSettled() && bench.isNextEnabled());
        bench.press(QWizard::NextButton);
        QTRY_COMPARE(bench.result().size(), positions);
    };
    const QString folder = bench.path(QStringLiteral("shoot"));
    photographTinyShoot(folder);
    import({ folder }, 6);
    bench.press(QWizard::NextButton);
    const auto *page = bench.wizard().findChild<MakePage *>();
    QTest::mouseClick(page->findChild<QPushButton *>(QStringLiteral("m_make")), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(page->hasMade(), 600'000);
    const auto questionsOf = [&bench](QWizard::WizardButton button) {
        DialogCatcher escape; // answers boxes by Esc
        bench.press(button);
        return escape.takeMessages().size();
    };
    QCOMPARE(questionsOf(QWizard::CustomButton1), 0);
    import(QStringList(bench.record(3)) + bench.photos(0, 2), 3);
    QCOMPARE(questionsOf(QWizard::CancelButton), 1);
    QVERIFY(bench.wizard().isVisible());
}

/** Nothing that is said is also a file's name, and nothing of it stays English. */
void TestGuiWhole::otherLanguagesMakeTheSame()
{
    GuiBench bench;
    const QString folder = bench.path(QStringLiteral("shoot"));
    photographTinyShoot(folder);
    PseudoLanguage language; // goes, and takes itself out
    QVERIFY(QCoreApplication::installTranslator(&language));
    bench.reopen();
    bench.drop({ folder });
    QTRY_VERIFY(bench.isSettled() && bench.isNextEnabled());
    bench.press(QWizard::NextButton);
    QTRY_COMPARE(bench.result().size(), 6);
    bench.press(QWizard::NextButton);
    const auto *page = bench.wizard().findChild<MakePage *>();
    const auto *state = page->findChild<QLabel *>(QStringLiteral("m_makeState"));
    QStringList english;
    const auto note = [&english](const QString &text) {
        const QString left = untranslated(text);
        if (!left.isEmpty()) {
            english += left;
        }
    };
    QTest::mouseClick(page->findChild<QPushButton *>(QStringLiteral("m_make")), Qt::LeftButton);
    QVERIFY(page->isRunning());
    while (page->isRunning()) {
        note(state->text());
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QVERIFY2(page->hasMade(), qPrintable(state->text()));
    note(state->text());
    note(page->findChild<QPlainTextEdit *>(QStringLiteral("m_makeLog"))->toPlainText());
    english.removeDuplicates();
    QVERIFY2(english.isEmpty(), qPrintable(english.join(QLatin1Char('\n'))));
    QVERIFY(QFileInfo(page->path()).size() > 10'000);
    QVERIFY(QFile::exists(bench.path(QStringLiteral("shoot panorama/record.html"))));
}

TEST_CLASS(TestGuiWhole, PanoHostApplication)
#include "tst_gui_whole.moc"
