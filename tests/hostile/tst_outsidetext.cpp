// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/gigapantospp.h"
#include "importers/papywizard/merlintospp.h"
#include "tests/support/desktop.h"
#include "tests/support/dialogclicker.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QtTest>

#include <unistd.h>

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

    for (const Head *head : headsThat([](const Head &one) { return one.schema != nullptr; })) {
        const HeadShoot shoot(*head);
        const PageDriver &driver = shoot.driver;
        const QString subtitle = shoot.page->subTitle();
        driver.load(kSelectPhotos, photos);
        driver.load(kSelectRecord, { path });
        QCOMPARE(driver.text("m_lbPapyLog"), QStringLiteral("2"));
        for (const QString &shown : richTexts(*shoot.page)) {
            QVERIFY2(!shown.contains(text), qPrintable(shown.left(200)));
        }
        QCOMPARE(shoot.page->subTitle(), subtitle);
        // The property is what a host reads; it is shown by way of the filter.
        auto *edit = driver.find<QLineEdit>("m_leConfigFile");
        const QString header = QStringLiteral("%1\n%1\n%1").arg(text.trimmed());
        QCOMPARE(edit->toolTip(), header);
        QCOMPARE(shownToolTip(edit), header.left(2'000));
        if (head == &papywizard()) {
            QCOMPARE(driver.text("m_leHeaderTitle").size(), text.trimmed().size());
        }
    }
    QVERIFY(desktop.urls().isEmpty());
}

void TestOutsideText::theErrorBoxShowsThePathPlain_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("text");
    for (const Head *head : headsThat([](const Head &one) { return one.saysUnreadable; })) {
        int number = 0;
        for (const QString &text : temptations()) {
            QTest::addRow("%s: %d", head->name, ++number) << head << text;
        }
    }
}

void TestOutsideText::theErrorBoxShowsThePathPlain()
{
    QFETCH(const Head *, head);
    QFETCH(QString, text);
    text.remove(QLatin1Char('\n')).remove(QLatin1Char('\t')); // a line edit takes none

    const HeadShoot shoot(*head);
    DialogClicker boxes;
    boxes.pressButton();
    head->enterPath(shoot.made, text);
    QVERIFY(boxes.isSettled());
    QCOMPARE(boxes.messageBoxes().first().text, QStringLiteral("Error parse file:") + text);
    QCOMPARE(boxes.messageBoxes().first().textFormat, Qt::PlainText);
}

void TestOutsideText::oddNamesArriveByteForByte_data()
{
    addHeads(allHeads());
}

void TestOutsideText::oddNamesArriveByteForByte()
{
    QFETCH(const Head *, head);
    const DesktopCatcher desktop;
    const HeadShoot shoot(*head);
    QStringList photos;
    for (const QString &name : oddNames()) {
        photos.append(shoot.folder.addPhoto(name));
    }
    photos.sort(Qt::CaseSensitive);
    const QWizardPage *page = shoot.page;
    shoot.driver.load(kSelectPhotos, photos);
    if (head->recordName != nullptr) {
        const QString name
            = QStringLiteral("<b>shoot<\u2044b>") + QString::fromLatin1(head->recordName);
        shoot.driver.load(kSelectRecord, { shoot.folder.write(name, head->record(photos.size())) });
    }
    QVERIFY(page->isComplete());
    QVERIFY(shoot.page->validatePage());
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
