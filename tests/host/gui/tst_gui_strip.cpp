// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demohead.h"
#include "host/demo/photoshoot.h"
#include "host/gui/resultpage.h"
#include "host/import/dialogcatcher.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDoubleSpinBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QtTest>

using namespace PanoHost;

namespace
{

constexpr int kShots = 26;

/** "IMG_0001@0": each shot with the photo of its number. */
QStringList inOrder(const QVector<int> &shots)
{
    QStringList positions;
    for (const int shot : shots) {
        positions
            += QStringLiteral("IMG_%1@%2").arg(shot + 1, 4, 10, QLatin1Char('0')).arg(10 * shot);
    }
    return positions;
}

QVector<int> numbers(int first, int last)
{
    QVector<int> all;
    for (int i = first; i <= last; ++i) {
        all += i;
    }
    return all;
}

} // namespace

/** Shoots that went wrong, and a user in front of the window. */
class TestStrip : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void stoppedShootIsFixedWithOneClick();
    void missingAndDoubledArePutRight();
    void renumberedPhotosArePutRight();
    void photosThatCannotBeReadAreNamedAndRemoved();
    void photosThatCannotBeReadAreReplaced();
    void recordOfAnotherHeadSwitchesTheHead();
    void recordOfAnotherHeadMayBeChosenInTheDialog();
    void everythingIsReachedByKeyboard();
    void newsDoNotTakeTheFocus();
    void focalLengthIsEnteredWhereThePageHasNoField();
    void focalLengthIsEnteredIntoThePagesField();
    void soundShootAsksForNothing();

private:
    std::unique_ptr<GuiBench> m_bench;
};

void TestStrip::stoppedShootIsFixedWithOneClick()
{
    m_bench->drop(QStringList(m_bench->record(kShots)) + m_bench->photos(0, 19));
    QTRY_VERIFY(m_bench->isSettled());
    QVERIFY(!m_bench->isNextEnabled());
    QCOMPARE(m_bench->text("next"), QStringLiteral("waits: 20 photos for 26 shots"));
    QCOMPARE(m_bench->text("missing"),
             QStringLiteral("no photo for shots 21 to 26 (was the shoot stopped?)"));
    m_bench->picture(QStringLiteral("stopped-1"));
    {
        DialogCatcher boxes;
        m_bench->press("missing", StripAction::ShowShots);
        QCOMPARE(boxes.takeMessages().size(), 1);
    }
    m_bench->press("next", StripAction::FitPhotos);
    QTRY_VERIFY(m_bench->isNextEnabled());
    QTRY_COMPARE(m_bench->text("next"), QString());
    m_bench->picture(QStringLiteral("stopped-2"));
    // Not the folder of the links that the page got.
    QCOMPARE(PanoHostApplication::instance()->LastPath(),
             QFileInfo(m_bench->path(QStringLiteral("."))).canonicalFilePath());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result(), inOrder(numbers(0, 19)));
    const QString warnings
        = m_bench->wizard().findChild<QLabel *>(QStringLiteral("m_warnings"))->text();
    QVERIFY2(warnings.contains(QLatin1String("no photo for shot 21 (yaw 200, pitch 0)")),
             qPrintable(warnings));
    m_bench->picture(QStringLiteral("stopped-3"));
}

void TestStrip::missingAndDoubledArePutRight()
{
    // As many photos as shots: that of shot 10 is missing, shot 18 has two. Pictures tell.
    const HeadFacts &head = *PanoHead::headFactsOf(QStringLiteral("papywizard"));
    const ShootPlan plan = demoPlan(head, QSize(180, 120));
    auto taken = takePhotos(Scene(), plan, m_bench->path(QString()), {});
    QVERIFY(taken.ok());
    QStringList photos = taken.value();
    const QString again
        = m_bench->path(QFileInfo(photos.at(17)).completeBaseName() + QStringLiteral("b.jpg"));
    QVERIFY(QFile::copy(photos.at(17), again));
    photos.removeAt(9);
    photos.insert(17, again);
    const QString record
        = TestPhotos::writeFile(m_bench->path(demoRecordFile(head)), demoRecord(head, plan));
    m_bench->drop(QStringList(record) + photos);
    QTRY_VERIFY(m_bench->row("order").state == StripRow::State::Trouble);
    QTRY_VERIFY(m_bench->isNextEnabled()); // the page sees nothing wrong
    QVERIFY2(m_bench->text("order").contains(QLatin1String("taken more than once")),
             qPrintable(m_bench->text("order")));
    QCOMPARE(m_bench->text("missing"), QStringLiteral("no photo for shot 10"));
    m_bench->picture(QStringLiteral("doubled-1"));
    // Whoever goes on all the same is told.
    m_bench->press(QWizard::NextButton);
    const auto *remarks = m_bench->wizard().findChild<QLabel *>(QStringLiteral("m_remarks"));
    QVERIFY(remarks->isVisible());
    QVERIFY2(remarks->text().contains(QLatin1String("go back, and press Fix"))
                 && remarks->text().contains(QLatin1String("no photo for shot 10")),
             qPrintable(remarks->text()));
    m_bench->press(QWizard::BackButton);
    m_bench->press("order", StripAction::FitPhotos);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->picture(QStringLiteral("doubled-2"));
    m_bench->press(QWizard::NextButton);
    QStringList used;
    for (const QString &position : m_bench->result()) {
        used += position.section(QLatin1Char('@'), 0, 0);
    }
    QStringList expected;
    for (const PlannedShot &shot : shotsOf(plan)) {
        expected += QFileInfo(shot.fileName).completeBaseName();
    }
    expected[17] = QFileInfo(again).completeBaseName();
    expected.removeAt(9);
    QCOMPARE(used, expected);
    QVERIFY(!remarks->isVisible());
}

void TestStrip::renumberedPhotosArePutRight()
{
    QStringList photos;
    QStringList expected;
    for (int shot = 0; shot < kShots; ++shot) {
        const QString name
            = QStringLiteral("DSC_%1").arg((9990 + shot) % 10000, 4, 10, QLatin1Char('0'));
        photos += m_bench->photo(name + QStringLiteral(".jpg"), shot);
        expected += QStringLiteral("%1@%2").arg(name).arg(10 * shot);
    }
    m_bench->drop(QStringList(m_bench->record(kShots)) + photos);
    QTRY_VERIFY(m_bench->isSettled());
    QTRY_VERIFY(m_bench->row("order").state == StripRow::State::Trouble);
    QVERIFY2(m_bench->text("order").contains(QLatin1String("counter began again")),
             qPrintable(m_bench->text("order")));
    m_bench->picture(QStringLiteral("renumbered-1"));
    m_bench->press("order", StripAction::FitPhotos);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(m_bench->row("order").state, StripRow::State::Good);
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result(), expected);
    m_bench->picture(QStringLiteral("renumbered-2"));
}

void TestStrip::photosThatCannotBeReadAreNamedAndRemoved()
{
    const QStringList photos = m_bench->photos(0, kShots - 1);
    TestPhotos::writeFile(photos.at(6), "no photo");
    TestPhotos::writeFile(photos.at(13), "");
    m_bench->drop(QStringList(m_bench->record(kShots)) + photos);
    QTRY_VERIFY(m_bench->isSettled());
    QVERIFY(!m_bench->isNextEnabled());
    QCOMPARE(m_bench->text("photos"),
             QStringLiteral("2 cannot be used: IMG_0007.jpg, IMG_0014.jpg"));
    m_bench->picture(QStringLiteral("unreadable-1"));
    m_bench->press("photos", StripAction::RemovePhotos);
    QTRY_VERIFY(m_bench->isSettled());
    QTRY_COMPARE(m_bench->text("next"), QStringLiteral("waits: 24 photos for 26 shots"));
    m_bench->picture(QStringLiteral("unreadable-2"));
    m_bench->press("next", StripAction::FitPhotos);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result(), inOrder(numbers(0, 5) + numbers(7, 12) + numbers(14, 25)));
}

void TestStrip::photosThatCannotBeReadAreReplaced()
{
    const QStringList photos = m_bench->photos(0, 3);
    TestPhotos::writeFile(photos.at(2), "no photo");
    const QString copy = m_bench->photo(QStringLiteral("IMG_0003_copy.jpg"), 2);
    m_bench->drop(QStringList(m_bench->record(4)) + photos);
    QTRY_VERIFY(m_bench->isSettled());
    GuiBench::answerFileDialog(copy);
    m_bench->press("photos", StripAction::ReplacePhotos);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().value(2), QStringLiteral("IMG_0003_copy@20"));
}

void TestStrip::recordOfAnotherHeadSwitchesTheHead()
{
    m_bench->choose("Clauss");
    m_bench->drop(m_bench->photos(0, 5));
    QTRY_VERIFY(m_bench->isSettled());
    QCOMPARE(m_bench->text("next"), QStringLiteral("waits for the head's record"));
    m_bench->picture(QStringLiteral("otherhead-1"));
    // Onto the field for the record, which would take it as text.
    m_bench->drop(
        { m_bench->record(6) },
        m_bench->wizard().currentPage()->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile")));
    QVERIFY(m_bench->wizard().currentPage()->inherits("UIWPMerlin"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->picture(QStringLiteral("otherhead-2"));
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result(), inOrder(numbers(0, 5)));
}

void TestStrip::recordOfAnotherHeadMayBeChosenInTheDialog()
{
    m_bench->choose("Gigapan");
    m_bench->drop(m_bench->photos(0, 5));
    QTRY_VERIFY(m_bench->isSettled());
    GuiBench::answerFileDialog(m_bench->record(6, "clauss"));
    QTest::mouseClick(m_bench->wizard().currentPage()->findChild<QAbstractButton *>(
                          QStringLiteral("m_pbSelectImages")),
                      Qt::LeftButton);
    QTRY_VERIFY(m_bench->wizard().currentPage()->inherits("UIWPClauss"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result(), inOrder(numbers(0, 5)));
}

void TestStrip::everythingIsReachedByKeyboard()
{
    m_bench->drop(QStringList(m_bench->record(8)) + m_bench->photos(0, 5));
    QTRY_VERIFY(m_bench->isSettled());
    m_bench->strip().setOpen(true);
    QApplication::setActiveWindow(&m_bench->wizard());
    m_bench->strip().findChild<QWidget *>(QStringLiteral("m_stripOpener"))->setFocus();
    QSet<QWidget *> reached;
    while (m_bench->strip().isAncestorOf(QApplication::focusWidget())) {
        QWidget *widget = QApplication::focusWidget();
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY(!reached.contains(widget));
        reached += widget;
        QTest::keyClick(widget, Qt::Key_Tab);
    }
    for (const QAbstractButton *button : m_bench->strip().findChildren<QAbstractButton *>()) {
        QVERIFY2(!button->isVisible() || reached.contains(const_cast<QAbstractButton *>(button)),
                 qPrintable(button->accessibleName()));
    }
    QAbstractButton *fix = m_bench->button("next", StripAction::FitPhotos);
    fix->setFocus();
    QTest::keyClick(fix, Qt::Key_Space);
    QTRY_VERIFY(m_bench->isNextEnabled());
}

/** Who works with the strip keeps the focus; who has left it does not get it back. */
void TestStrip::newsDoNotTakeTheFocus()
{
    m_bench->drop(QStringList(m_bench->record(3)) + m_bench->photos(0, 2));
    QTRY_VERIFY(m_bench->isSettled());
    ShootStrip &strip = m_bench->strip();
    auto *opener = strip.findChild<QWidget *>(QStringLiteral("m_stripOpener"));
    QWidget *cancel = m_bench->wizard().button(QWizard::CancelButton); // never grey
    const auto news = [&strip](const char *text) {
        strip.show({ { QStringLiteral("photos"), QStringLiteral("Photos"), QLatin1String(text) } },
                   0.0);
    };
    opener->setFocus();
    news("first");
    QCOMPARE(m_bench->wizard().focusWidget(), opener);
    cancel->setFocus();
    news("second");
    QCOMPARE(m_bench->wizard().focusWidget(), cancel);
}

void TestStrip::focalLengthIsEnteredWhereThePageHasNoField()
{
    m_bench->choose("Gigapan");
    m_bench->drop(m_bench->photos(0, 11, false));
    QTRY_VERIFY(m_bench->isSettled());
    QTRY_COMPARE(m_bench->row("focal").state, StripRow::State::Trouble);
    m_bench->picture(QStringLiteral("nofocal-1"));
    auto *field = m_bench->strip().findChild<QDoubleSpinBox *>(QStringLiteral("m_stripFocal"));
    QVERIFY(field);
    m_bench->strip().setOpen(true);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("35"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(m_bench->text("focal"), QStringLiteral("35 mm, as entered"));
    QVERIFY(m_bench->wizard().currentPage()->inherits("UIWPGigapan")); // Enter did not press Next
    m_bench->picture(QStringLiteral("nofocal-2"));
    m_bench->press(QWizard::NextButton);
    const auto *result = qobject_cast<ResultPage *>(m_bench->wizard().currentPage());
    QVERIFY(result && result->panorama());
    QCOMPARE(result->panorama()->focal35mm, 35.0);

    // The next shoot with such photos knows it.
    m_bench->reopen();
    m_bench->choose("Gigapan");
    m_bench->drop(m_bench->photos(0, 11, false));
    QTRY_COMPARE(m_bench->text("focal"),
                 QStringLiteral("35 mm, as the last time with such photos"));
}

void TestStrip::focalLengthIsEnteredIntoThePagesField()
{
    QByteArray xml = "<papywizard><header/><shoot>";
    for (int i = 0; i < 3; ++i) {
        xml += "<pict id=\"1\" bracket=\"1\"><position yaw=\"" + QByteArray::number(10 * i)
            + ".0\" pitch=\"0.0\"/></pict>";
    }
    const QString record = TestPhotos::writeFile(m_bench->path(QStringLiteral("plain.xml")),
                                                 xml + "</shoot></papywizard>");
    m_bench->drop(QStringList(record) + m_bench->photos(0, 2, false));
    QTRY_VERIFY(m_bench->isSettled());
    QTRY_COMPARE(m_bench->row("focal").state, StripRow::State::Trouble);
    auto *field = m_bench->strip().findChild<QDoubleSpinBox *>(QStringLiteral("m_stripFocal"));
    field->setValue(50.0);
    m_bench->press("focal", StripAction::EnterFocal);
    QCOMPARE(m_bench->wizard()
                 .currentPage()
                 ->findChild<QDoubleSpinBox *>(QStringLiteral("m_spFocal"))
                 ->value(),
             50.0);
    QTRY_COMPARE(m_bench->text("focal"), QStringLiteral("50 mm, as entered"));
}

void TestStrip::soundShootAsksForNothing()
{
    m_bench->drop(QStringList(m_bench->record(kShots)) + m_bench->photos(0, kShots - 1));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    for (const StripRow &row : m_bench->strip().rows()) {
        QVERIFY2(row.state == StripRow::State::Good, qPrintable(row.title + row.text));
    }
    QCOMPARE(StripTexts::summary(m_bench->strip().rows()), QStringLiteral("Everything agrees"));
    m_bench->picture(QStringLiteral("sound"));
}

TEST_CLASS(TestStrip, PanoHostApplication)
#include "tst_gui_strip.moc"
