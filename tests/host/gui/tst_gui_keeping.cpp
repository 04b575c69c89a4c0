// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/choicepage.h"
#include "host/gui/resultpage.h"
#include "host/import/dialogcatcher.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/sanitized.h"
#include "tests/support/testprogram.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QSpinBox>
#include <QUrl>
#include <QtTest>

#include <stdexcept>

using namespace PanoHost;

/** What the window takes, keeps, and asks before it loses it. */
class TestKeeping : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void backKeepsFilesAndFields_data();
    void backKeepsFilesAndFields();
    void backKeepsTurns();
    void backKeepsMatchedPhotos();
    void closingAsksWhenSomethingWouldBeLost();
    void anotherImportStartsAfresh();
    void foldersAreUnderstood();
    void pastedFilesAreTaken();
    void ownFilesAreNoPhotos();
    void ownPicturesAreNamed();
    void ofTwoRecordsTheLastIsTaken();
    void notesDoNotSwitchTheHead();
    void photosOfNoFileAreNamed();
    void droppingWhileReadingStartsAnew();
    void thousandsOfFilesDoNotStopTheWindow();
    void stripIsOneLineInASmallWindow();
    void pageThatThrowsIsBorne();

private:
    [[nodiscard]] QWizardPage *page() const { return m_bench->wizard().currentPage(); }
    template <typename Field> [[nodiscard]] Field *field(const char *name) const
    {
        return page()->findChild<Field *>(QLatin1String(name));
    }

    std::unique_ptr<GuiBench> m_bench;
};

void TestKeeping::backKeepsFilesAndFields_data()
{
    QTest::addColumn<QString>("head");
    QTest::newRow("papywizard") << QStringLiteral("papywizard");
    QTest::newRow("vrdrive2") << QStringLiteral("vrdrive2");
    QTest::newRow("clauss") << QStringLiteral("clauss");
    QTest::newRow("gigapan") << QStringLiteral("gigapan");
}

void TestKeeping::backKeepsFilesAndFields()
{
    QFETCH(QString, head);
    const PanoHead::HeadFacts &facts = *PanoHead::headFactsOf(head);
    m_bench->choose(qPrintable(facts.about->nameText()));
    QStringList files = m_bench->photos(0, 5);
    if (!facts.isGrid()) {
        files += m_bench->record(6, qPrintable(head));
    }
    m_bench->drop(files);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QTest::mouseClick(field<QCheckBox>("m_noOptim"), Qt::LeftButton, {}, QPoint(5, 5));
    field<QCheckBox>("m_noOptim")->setChecked(true);
    if (facts.hasLens) {
        field<QDoubleSpinBox>("m_spFocal")->setValue(28.5);
    }
    if (facts.isGrid()) {
        field<QSpinBox>("m_sbRow")->setValue(3);
    }
    const QString names = field<QLineEdit>("m_leImage")->text();

    m_bench->press(QWizard::BackButton);
    QVERIFY(qobject_cast<ChoicePage *>(page()));
    QVERIFY(!m_bench->strip().isVisible());
    m_bench->press(QWizard::NextButton);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(field<QLineEdit>("m_leImage")->text(), names);
    QVERIFY(field<QCheckBox>("m_noOptim")->isChecked());
    if (facts.hasLens) {
        QTRY_COMPARE(field<QDoubleSpinBox>("m_spFocal")->value(), 28.5);
    }
    if (facts.isGrid()) {
        QTRY_COMPARE(field<QSpinBox>("m_sbRow")->value(), 3);
    } else {
        QCOMPARE(field<QLineEdit>("m_leConfigFile")->text(), files.last());
    }
}

void TestKeeping::backKeepsTurns()
{
    const auto roll = [this] {
        m_bench->press(QWizard::NextButton);
        const auto *result = qobject_cast<ResultPage *>(page());
        return result == nullptr ? 0.0 : result->panorama()->positions.first().rollDegrees;
    };
    m_bench->drop(QStringList(m_bench->record(3)) + m_bench->photos(0, 2));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    field<QAbstractButton>("m_pbRot90")->click();
    const double turned = roll();
    QVERIFY(qAbs(turned) > 1.0);
    m_bench->press(QWizard::BackButton);
    m_bench->press(QWizard::BackButton);
    m_bench->press(QWizard::NextButton);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(roll(), turned);
}

void TestKeeping::backKeepsMatchedPhotos()
{
    m_bench->drop(QStringList(m_bench->record(8)) + m_bench->photos(0, 5));
    QTRY_VERIFY(m_bench->isSettled());
    m_bench->press("next", StripAction::FitPhotos);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::BackButton);
    m_bench->press(QWizard::NextButton);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 6);
}

void TestKeeping::closingAsksWhenSomethingWouldBeLost()
{
    QWidget &window = m_bench->wizard();
    m_bench->drop(QStringList(m_bench->record(3)) + m_bench->photos(0, 2));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    DialogCatcher cancel; // closes boxes as Esc does
    m_bench->press(QWizard::CancelButton);
    QCOMPARE(cancel.takeMessages().size(), 1);
    QTest::keyClick(&window, Qt::Key_Escape);
    QCOMPARE(cancel.takeMessages().size(), 1);
    QVERIFY(!window.close());
    QCOMPARE(cancel.takeMessages().size(), 1);
    QVERIFY(window.isVisible());
    m_bench->press(QWizard::NextButton);
    m_bench->press(QWizard::CancelButton);
    QCOMPARE(cancel.takeMessages().size(), 1);
    auto *result = qobject_cast<ResultPage *>(page());
    QVERIFY(result->saveJson(m_bench->path(QStringLiteral("a.json"))));
    m_bench->press(QWizard::CancelButton);
    QCOMPARE(cancel.takeMessages().size(), 0);
    QVERIFY(!window.isVisible());
}

void TestKeeping::anotherImportStartsAfresh()
{
    QAbstractButton *another = m_bench->wizard().button(QWizard::CustomButton1);
    QVERIFY(!another->isVisible());
    m_bench->drop(QStringList(m_bench->record(3)) + m_bench->photos(0, 2));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QVERIFY(!another->isVisible());
    m_bench->press(QWizard::NextButton);
    QVERIFY(another->isVisible());
    QVERIFY(qobject_cast<ResultPage *>(page())->saveJson(m_bench->path(QStringLiteral("a.json"))));
    QTest::mouseClick(another, Qt::LeftButton);
    QVERIFY(qobject_cast<ChoicePage *>(page()));
    m_bench->press(QWizard::NextButton);
    QCOMPARE(field<QLineEdit>("m_leConfigFile")->text(), QString());
    m_bench->drop(QStringList(m_bench->record(2)) + m_bench->photos(0, 1));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 2);
}

void TestKeeping::foldersAreUnderstood()
{
    (void)m_bench->record(3, "papywizard", QStringLiteral("card/shoot.xml"));
    (void)m_bench->photo(QStringLiteral("card/100/a.jpg"), 0);
    (void)m_bench->photo(QStringLiteral("card/100/b.JPG"), 1);
    TestPhotos::writeFile(m_bench->path(QStringLiteral("card/readme.txt")), "no record");
    TestPhotos::writeFile(m_bench->path(QStringLiteral("card/index.db")), "neither");
    QFile::link(m_bench->path(QStringLiteral("card")), m_bench->path(QStringLiteral("card/loop")));
    const QString third = m_bench->photo(QStringLiteral("c.jpg"), 2);
    m_bench->drop({ m_bench->path(QStringLiteral("card")), third });
    QTRY_VERIFY(page()->inherits("UIWPMerlin"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(field<QLineEdit>("m_leConfigFile")->text(),
             m_bench->path(QStringLiteral("card/shoot.xml")));
    QVERIFY(field<QLineEdit>("m_leImage")->text().contains(QLatin1String("b.JPG")));
}

void TestKeeping::pastedFilesAreTaken()
{
    m_bench->choose("Papywizard");
    QString text;
    for (const QString &file : QStringList(m_bench->record(3)) + m_bench->photos(0, 2)) {
        text += QUrl::fromLocalFile(file).toString() + QLatin1String("\r\n");
    }
    QGuiApplication::clipboard()->setText(text);
    auto *edit = field<QLineEdit>("m_leConfigFile");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    QTest::keyRelease(edit, Qt::Key_Control);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QGuiApplication::clipboard()->setText(QStringLiteral("some words"));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    QTest::keyRelease(edit, Qt::Key_Control);
    QCOMPARE(edit->text(), QStringLiteral("some words"));
}

void TestKeeping::ownFilesAreNoPhotos()
{
    QStringList files = m_bench->photos(0, 2);
    files += m_bench->record(3);
    files += TestPhotos::writeFile(m_bench->path(QStringLiteral("pano.pto")), "# a project");
    files += TestPhotos::writeFile(m_bench->path(QStringLiteral("pano.json")), "{}");
    files += TestPhotos::writeOrdinary(m_bench->path(QStringLiteral("pano.jpg")));
    m_bench->drop(files);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(m_bench->text("left"),
             QStringLiteral("results of this program: pano.pto, pano.json, pano.jpg"));
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 3);
}

void TestKeeping::ownPicturesAreNamed()
{
    QImage layout(60, 40, QImage::Format_RGB32);
    layout.fill(Qt::gray);
    markAsOwn(layout);
    const QString picture = m_bench->path(QStringLiteral("layout.png"));
    QVERIFY(layout.save(picture));
    m_bench->drop(QStringList{ m_bench->record(3), picture } + m_bench->photos(0, 2));
    QTRY_VERIFY(m_bench->isSettled());
    QCOMPARE(m_bench->text("photos"), QStringLiteral("1 cannot be used: layout.png"));
    m_bench->press("photos", StripAction::RemovePhotos);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
}

void TestKeeping::ofTwoRecordsTheLastIsTaken()
{
    const QString one = m_bench->record(5, "papywizard", QStringLiteral("a.xml"));
    const QString other = m_bench->record(3, "papywizard", QStringLiteral("b.xml"));
    m_bench->drop(QStringList{ one, other } + m_bench->photos(0, 2));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(field<QLineEdit>("m_leConfigFile")->text(), other);
    QCOMPARE(m_bench->text("left"), QStringLiteral("other records: a.xml"));
    m_bench->drop({ one });
    QTRY_COMPARE(m_bench->text("next"), QStringLiteral("waits: 3 photos for 5 shots"));
    QCOMPARE(m_bench->text("left"), QString());
}

void TestKeeping::notesDoNotSwitchTheHead()
{
    m_bench->choose("Gigapan");
    const QString notes
        = TestPhotos::writeFile(m_bench->path(QStringLiteral("z.txt")), "bring a tripod");
    m_bench->drop(QStringList(notes) + m_bench->photos(0, 3));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QVERIFY(page()->inherits("UIWPGigapan"));
    DialogCatcher boxes;
    m_bench->drop({ notes });
    QCOMPARE(boxes.takeMessages().size(), 1);
}

void TestKeeping::photosOfNoFileAreNamed()
{
    QStringList photos = m_bench->photos(0, 3);
    const QString record = m_bench->record(4);
    m_bench->choose("Papywizard");
    QVERIFY(QFile::remove(photos.at(1)));
    m_bench->drop(QStringList(record) + photos);
    // The page's dialog does not take what is not there; nothing else is lost.
    QTRY_VERIFY(page()->inherits("UIWPMerlin"));
    QTRY_COMPARE(m_bench->text("photos"), QStringLiteral("1 cannot be used: IMG_0002.jpg"));
    m_bench->press("photos", StripAction::RemovePhotos);
    QTRY_COMPARE(m_bench->text("next"), QStringLiteral("waits: 3 photos for 4 shots"));
}

void TestKeeping::droppingWhileReadingStartsAnew()
{
    const QStringList photos = m_bench->photos(0, 39);
    m_bench->drop(QStringList(m_bench->record(40)) + photos);
    m_bench->drop(QStringList(m_bench->record(2, "papywizard", QStringLiteral("two.xml")))
                  + photos.mid(0, 2));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 2);
}

void TestKeeping::thousandsOfFilesDoNotStopTheWindow()
{
    constexpr int kMany = 1500;
    const QString none = TestPhotos::writeFile(m_bench->path(QStringLiteral("none.jpg")), "none");
    QStringList files;
    for (int i = 0; i < kMany; ++i) {
        files += m_bench->path(QStringLiteral("p%1.jpg").arg(i, 5, 10, QLatin1Char('0')));
        QFile::link(none, files.last());
    }
    m_bench->choose("Gigapan");
    m_bench->drop(files);
    QTRY_VERIFY(m_bench->text("photos").startsWith(QLatin1String("1500 cannot be used: ")));
    QVERIFY(m_bench->text("photos").endsWith(QLatin1String("p01499.jpg")));
    m_bench->picture(QStringLiteral("thousands"));
}

void TestKeeping::stripIsOneLineInASmallWindow()
{
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font); // as desktops have it
    m_bench->reopen();
    m_bench->wizard().resize(800, 570); // 800 x 600 with a frame
    m_bench->drop(QStringList(m_bench->record(8)) + m_bench->photos(0, 4));
    QTRY_VERIFY(m_bench->isSettled());
    QVERIFY2(m_bench->wizard().minimumHeight() <= 570,
             qPrintable(QString::number(m_bench->wizard().minimumHeight())));
    QVERIFY(!m_bench->strip().isOpen());
    QVERIFY(m_bench->strip().height() < 50);
    m_bench->picture(QStringLiteral("small-1"));
    auto *opener = m_bench->strip().findChild<QWidget *>(QStringLiteral("m_stripOpener"));
    opener->setFocus();
    QTest::keyClick(opener, Qt::Key_Space);
    QVERIFY(m_bench->strip().isOpen());
    QCOMPARE(m_bench->wizard().size(), QSize(800, 570));
    m_bench->picture(QStringLiteral("small-2"));
    // The buttons of the window can still be pressed.
    const QWidget *cancel = m_bench->wizard().button(QWizard::CancelButton);
    const QPoint bottom = cancel->mapTo(&m_bench->wizard(), cancel->rect().bottomLeft());
    QVERIFY(bottom.y() < m_bench->strip().geometry().top());
    QTest::keyClick(opener, Qt::Key_Space);
    QVERIFY(!m_bench->strip().isOpen());
}

void TestKeeping::pageThatThrowsIsBorne()
{
    if (kIsSanitized) {
        QSKIP("Qt loses the guards of its pointers when a slot throws, which counts as a leak");
    }
    m_bench->drop(QStringList(m_bench->record(3)) + m_bench->photos(0, 2));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    // As a slot of the page, and as what it does when Next is pressed.
    auto *box = field<QCheckBox>("m_noOptim");
    const QMetaObject::Connection slot = connect(box, &QCheckBox::clicked, this,
                                                 [] { throw std::runtime_error("no such photo"); });
    DialogCatcher boxes;
    QStringList said;
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    QTRY_COMPARE((said += boxes.takeMessages()).size(), 1);
    QVERIFY2(said.first().contains(QLatin1String("no such photo")), qPrintable(said.first()));
    disconnect(slot);
    const QMetaObject::Connection handOver
        = connect(PanoHostApplication::instance(), &PanoHostApplication::delivered, this,
                  [] { throw std::bad_alloc(); });
    m_bench->press(QWizard::NextButton);
    QTRY_COMPARE((said += boxes.takeMessages()).size(), 2);
    QVERIFY2(said.last().contains(QLatin1String("not enough memory")), qPrintable(said.last()));
    disconnect(handOver);
    // Nothing is lost.
    QVERIFY(page()->inherits("UIWPMerlin"));
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 3);
}

TEST_CLASS(TestKeeping, PanoHostApplication)
#include "tst_gui_keeping.moc"
