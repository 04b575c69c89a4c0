// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/gigapantospp.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "tests/support/desktop.h"
#include "tests/support/dialogclicker.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QHelpEvent>
#include <QLabel>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QtTest>

#include <functional>
#include <memory>

#include <unistd.h>

using Make = std::function<QWizardPage *()>;
Q_DECLARE_METATYPE(Make)

namespace
{

/** Texts that toolkits, shells and terminals are tempted to understand. */
QVector<QString> temptations()
{
    return { QStringLiteral("<img src='/dev/zero'>"),
             QStringLiteral("<b>bold</b>"),
             QStringLiteral("<table><tr><td>").repeated(60),
             QStringLiteral("<a href='file:///etc/passwd'>click</a>"),
             QStringLiteral("&lt;b&gt; &amp; %1 %2 %3 %99"),
             QStringLiteral("\"quoted\" 'twice' `id` $(id); rm -rf ~"),
             QString::fromUtf8("\u202egpj.exe\u202c"),
             QStringLiteral("first\nsecond\tthird"),
             QString(10'000, QLatin1Char('x')) };
}

/** Names of files: as above, as far as the system takes them and the dialog can choose them. */
QStringList oddNames()
{
    return { QStringLiteral("<img src='&#47;dev&#47;zero'>.jpg"),
             QStringLiteral("-rf.jpg"),
             QStringLiteral("$(id) `id`; id.jpg"),
             QStringLiteral("%1 %2 %41.jpg"),
             QString::fromUtf8("\u202egpj.exe\u202c.jpg"),
             QStringLiteral("#?&.jpg"),
             QString::fromUtf8("\u00e9\u4e16\u754c.jpg"),
             QString(240, QLatin1Char('n')) + QStringLiteral(".jpg"),
             QStringLiteral("~"),
             QStringLiteral("*.jpg") };
}

/** What the tool tip of \p widget shows to a reader. */
QString shownToolTip(QWidget *widget)
{
    const QPoint place = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
}

/** Labels that read text as markup, if it looks like markup. */
QStringList richTexts(const QWidget &page)
{
    QStringList texts;
    const QList<QLabel *> labels = page.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->textFormat() != Qt::PlainText) {
            texts.append(label->text());
        }
    }
    return texts;
}

} // namespace

/** What records and file names say is shown as it is, and nothing is opened. */
class TestOutsideText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noLabelShowsTheRecordsText_data();
    void noLabelShowsTheRecordsText();
    void theErrorBoxShowsThePathPlain_data();
    void theErrorBoxShowsThePathPlain();
    void oddNamesArriveByteForByte_data();
    void oddNamesArriveByteForByte();
    void impossibleNamesPassTheGenerators();
};

void TestOutsideText::init()
{
    fakeHost().forget();
}

void TestOutsideText::noLabelShowsTheRecordsText_data()
{
    QTest::addColumn<QString>("text");
    int number = 0;
    for (const QString &text : temptations()) {
        QTest::newRow(QByteArray::number(++number).constData()) << text;
    }
}

void TestOutsideText::noLabelShowsTheRecordsText()
{
    QFETCH(const QString, text);

    const DesktopCatcher desktop;
    const ShootFolder folder;
    RecordXml record = RecordXml::row(2);
    record.title = text;
    record.gps = text;
    record.comment = text;
    record.focal = QStringLiteral("24");
    record.lensType = QStringLiteral("fisheye");
    const QString path = folder.write(QStringLiteral("shoot.xml"), record.bytes());
    const QStringList photos = folder.addPhotos(3);

    UIWPMerlin papywizard(nullptr);
    UIWPVRDrive2 vrDrive(nullptr);
    for (QWizardPage *page :
         { static_cast<QWizardPage *>(&papywizard), static_cast<QWizardPage *>(&vrDrive) }) {
        const QString subtitle = page->subTitle();
        const PageDriver driver(page);
        driver.load("m_pbSelectImages", photos);
        driver.load("m_pbSelectConfigFile", { path });
        QCOMPARE(driver.text("m_lbPapyLog"), QStringLiteral("2"));
        for (const QString &shown : richTexts(*page)) {
            QVERIFY2(!shown.contains(text), qPrintable(shown.left(200)));
        }
        QCOMPARE(page->subTitle(), subtitle);
        // The property is what a host reads; it is shown by way of the filter.
        auto *edit = driver.find<QLineEdit>("m_leConfigFile");
        const QString header = QStringLiteral("%1\n%1\n%1").arg(text.trimmed());
        QCOMPARE(edit->toolTip(), header);
        QCOMPARE(shownToolTip(edit), header.left(2'000));
    }
    QCOMPARE(papywizard.findChild<QLineEdit *>(QStringLiteral("m_leHeaderTitle"))->text().size(),
             text.trimmed().size());
    QVERIFY(desktop.urls().isEmpty());
}

void TestOutsideText::theErrorBoxShowsThePathPlain_data()
{
    noLabelShowsTheRecordsText_data();
}

void TestOutsideText::theErrorBoxShowsThePathPlain()
{
    QFETCH(QString, text);
    text.remove(QLatin1Char('\n')).remove(QLatin1Char('\t')); // a line edit takes none

    UIWPClauss page(nullptr);
    const PageDriver driver(&page);
    DialogClicker boxes;
    boxes.pressButton();
    driver.find<QLineEdit>("m_leConfigFile")->setText(text);
    page.SetConfigFFilename();
    QVERIFY(boxes.isSettled());
    QCOMPARE(boxes.messageBoxes().first().text, QStringLiteral("Error parse file:") + text);
    QCOMPARE(boxes.messageBoxes().first().textFormat, Qt::PlainText);
}

void TestOutsideText::oddNamesArriveByteForByte_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("recordName"); // empty: the head writes none
    const QString xml = QStringLiteral("shoot.xml");
    QTest::newRow("Papywizard") << Make([] { return new UIWPMerlin(nullptr); }) << xml;
    QTest::newRow("VR Drive 2") << Make([] { return new UIWPVRDrive2(nullptr); }) << xml;
    QTest::newRow("Clauss") << Make([] { return new UIWPClauss(nullptr); })
                            << QStringLiteral("<b>shoot<\u2044b>.txt");
    QTest::newRow("Gigapan") << Make([] { return new UIWPGigapan(nullptr); }) << QString();
}

void TestOutsideText::oddNamesArriveByteForByte()
{
    QFETCH(const Make, make);
    QFETCH(const QString, recordName);
    const DesktopCatcher desktop;
    const ShootFolder folder;
    QStringList photos;
    for (const QString &name : oddNames()) {
        photos.append(folder.addPhoto(name));
    }
    photos.sort(Qt::CaseSensitive);
    const std::unique_ptr<QWizardPage> page(make());
    const PageDriver driver(page.get());
    driver.load("m_pbSelectImages", photos);
    if (!recordName.isEmpty()) {
        const QByteArray record = recordName.endsWith(QLatin1String("xml"))
            ? RecordXml::row(photos.size()).bytes()
            : QByteArray("op_h-angle=5\nop_shoot\n").repeated(photos.size());
        driver.load("m_pbSelectConfigFile", { folder.write(recordName, record) });
    }
    QVERIFY(page->isComplete());
    QVERIFY(page->validatePage());
    QStringList delivered;
    for (const QStringList &group : fakeHost().descriptions.last().imageGroups) {
        delivered += group;
    }
    QCOMPARE(delivered, photos);
    QCOMPARE(fakeHost().readFiles(), photos);
    // The system itself knows the names by these bytes.
    for (const QString &name : qAsConst(delivered)) {
        QVERIFY2(::access(QFile::encodeName(name).constData(), R_OK) == 0, qPrintable(name));
    }
    for (const QString &shown : richTexts(*page)) {
        QVERIFY2(!shown.contains(QStringLiteral(".jpg")), qPrintable(shown));
    }
    QVERIFY(desktop.urls().isEmpty());
}

/** Qt's own dialog cannot choose these, the system's can. */
void TestOutsideText::impossibleNamesPassTheGenerators()
{
    const QStringList names{ QStringLiteral("/p/a\nb.jpg"), QStringLiteral("/p/\"q\".jpg"),
                             QStringLiteral("/p/\u001b[31m.jpg"),
                             QStringLiteral("/p/") + QChar(0xd800) + QStringLiteral(".jpg"),
                             QString() };
    MerlinToSPP record;
    record.nbPicts = 1;
    record.shots.resize(names.size());
    record.generateSPP(names, 24.0, LensModel::Standard);
    GigapanToSPP grid(1, names.size(), 0, 1, 0);
    grid.generateSPP(names, false);
    QCOMPARE(record.imageGroups.size(), names.size());
    QCOMPARE(grid.imageGroups.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(record.imageGroups.at(i), QStringList(names.at(i)));
        QCOMPARE(grid.imageGroups.at(i), QStringList(names.at(i)));
    }
}

TEST_CLASS(TestOutsideText, FakeApplication)
#include "tst_outsidetext.moc"
