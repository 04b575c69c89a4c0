// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/fakeapplication.h"
#include "tests/support/fakeimage.h"
#include "tests/support/formcheck.h"
#include "tests/support/heads.h"
#include "ui/previewlabel.h"

#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTranslator>
#include <QWizard>
#include <QtTest>

#include <memory>

using namespace PanoHead;

namespace
{

/** What a window frame leaves of a screen of 800 x 600. */
constexpr QSize kSmallest(790, 570);

constexpr int kUsualFont = 10; // points
constexpr int kLargeFont = 14;

/** One page in a wizard of the smallest size, filled with long texts. */
class Shown
{
public:
    explicit Shown(const Head &head, const QString &language = QString(),
                   int fontPoints = kUsualFont)
    {
        QFont font = QApplication::font();
        font.setPointSize(fontPoints);
        QApplication::setFont(font);
        if (!language.isEmpty()
            && !m_translator.load(QStringLiteral(":/Translation/XPanoHead_%1.qm").arg(language))) {
            qFatal("There is no such translation: %s", qPrintable(language));
        }
        QCoreApplication::installTranslator(&m_translator);
        m_page = head.newPage().page;
        fill();
        m_wizard.setWizardStyle(QWizard::ModernStyle);
        m_wizard.addPage(m_page);
        m_wizard.resize(kSmallest);
        m_wizard.show();
        m_wizard.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_wizard)) {
            qFatal("The wizard does not show");
        }
        // QWizard itself asks the page only once, before fonts and styles have settled.
        m_page->updateGeometry();
        const QWidget *content = m_wizard.button(QWizard::CancelButton)->parentWidget();
        m_wizard.resize(kSmallest.expandedTo(content->layout()->totalMinimumSize()));
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QWizard &wizard() { return m_wizard; }
    [[nodiscard]] QWizardPage &page() const { return *m_page; }
    [[nodiscard]] QTabWidget &tabs() const { return *m_page->findChild<QTabWidget *>(); }
    [[nodiscard]] QLabel *warning() const { return label("m_lbWarning"); }
    void showTab(int tab) const
    {
        tabs().setCurrentIndex(tab);
        QCoreApplication::processEvents();
    }

private:
    [[nodiscard]] QLabel *label(const char *name) const
    {
        return m_page->findChild<QLabel *>(QString::fromLatin1(name));
    }
    void fill() const
    {
        const std::initializer_list<std::pair<const char *, const char *>> texts{
            { "m_lbPapyLog", "1080" },
            { "m_lbThetaMinMax", "-179.95,179.95" },
            { "m_lbPhiMinMax", "-87.75,87.75" },
            { "m_lbBracket", "15" },
            { "m_lbFocalLength", "1200.00mm" },
            { "m_lbImageLog", "1080" },
            { "m_lbFocalLengthImage", "1200.00mm" },
        };
        for (const auto &[name, text] : texts) {
            if (QLabel *shown = label(name)) {
                shown->setText(QString::fromLatin1(text));
            }
        }
        if (m_page->inherits("UIWPGigapan")) {
            label("m_lbImage")
                ->setText(QStringLiteral("10080 ")
                          + QCoreApplication::translate("UIWPGigapan", "images in "));
        }
    }

    QTranslator m_translator;
    QWizard m_wizard;
    QWizardPage *m_page = nullptr;
};

/** Those whose page compares the photos' lenses with the record's. */
Heads headsWithWarnings()
{
    return headsThat([](const Head &head) { return head.schema != nullptr; });
}

void addHeadsAndLanguages()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("language");
    const QDir translations(QStringLiteral(":/Translation"));
    const QStringList files = translations.entryList({ QStringLiteral("XPanoHead_*.qm") });
    QCOMPARE(files.size(), 10);
    for (const Head *head : allHeads()) {
        for (const QString &file : files) {
            const QString language = file.mid(10).chopped(3); // XPanoHead_ ... .qm
            QTest::addRow("%s, %s", head->name, qPrintable(language)) << head << language;
        }
    }
}

/** What a text or picture in \p widget takes; empty where the user scrolls. */
QSize needed(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                 : label->sizeHint();
    }
    const bool isFixed = widget->inherits("QAbstractButton") || widget->inherits("QComboBox")
        || widget->inherits("QAbstractSpinBox");
    return isFixed ? widget->sizeHint() : QSize(0, widget->minimumSizeHint().height());
}

QString described(const QWidget *widget)
{
    const QSize size = widget->size();
    const QSize hint = needed(widget);
    return QStringLiteral("%1 is %2 x %3, needs %4 x %5")
        .arg(widget->objectName())
        .arg(size.width())
        .arg(size.height())
        .arg(hint.width())
        .arg(hint.height());
}

/** The visible widgets of the form that hold no others. */
QList<QWidget *> visibleControls(const QWizardPage &page)
{
    QList<QWidget *> controls;
    const QList<QWidget *> widgets = page.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isControl = widget->inherits("QLabel") || widget->inherits("QAbstractButton")
            || widget->inherits("QLineEdit") || widget->inherits("QComboBox")
            || widget->inherits("QAbstractSpinBox") || widget->inherits("QSlider");
        if (isControl && widget->isVisible() && !widget->objectName().isEmpty()
            && !widget->objectName().startsWith(QLatin1String("qt_"))) {
            controls.append(widget);
        }
    }
    return controls;
}

QRect placeOnPage(const QWidget *widget, const QWizardPage &page)
{
    return { widget->mapTo(&page, QPoint(0, 0)), widget->size() };
}

/** The name of the form's widget that has the focus, or that the focused one is a part of. */
QString focusName(const QWizardPage &page)
{
    for (const QWidget *widget = QApplication::focusWidget(); widget && widget != &page;
         widget = widget->parentWidget()) {
        const bool isPart = widget->objectName().isEmpty()
            || widget->objectName().startsWith(QLatin1String("qt_"));
        if (!isPart) {
            return page.isAncestorOf(widget) ? widget->objectName() : QString();
        }
    }
    return {};
}

/** The radio buttons that the arrow keys reach from \p button. */
QList<QRadioButton *> siblings(const QRadioButton *button)
{
    QList<QRadioButton *> found;
    for (QRadioButton *other : button->parentWidget()->findChildren<QRadioButton *>()) {
        if (other != button && other->group() == button->group()) {
            found.append(other);
        }
    }
    return found;
}

/** The radio buttons chosen on the tab in front. */
QList<QRadioButton *> checkedButtons(const QWizardPage &page)
{
    QList<QRadioButton *> found;
    for (QRadioButton *button : page.findChildren<QRadioButton *>()) {
        if (button->isVisible() && button->isChecked()) {
            found.append(button);
        }
    }
    return found;
}

/** What the tab key is to visit on the tab in front: the table's order, one radio button a group.
 */
QStringList expectedStops(const QWizardPage &page)
{
    QStringList stops;
    for (const QString &name : tabOrder(page)) {
        const auto *widget = page.findChild<QWidget *>(name);
        const auto *radio = qobject_cast<const QRadioButton *>(widget);
        // The focus chain goes on through the wizard's own buttons.
        if (widget && widget->isVisible() && widget->isEnabled()
            && (!radio || radio->isChecked())) {
            stops.append(name);
        }
    }
    return stops;
}

void checkThatAllIsShown(const Shown &shown)
{
    for (int tab = 0; tab < shown.tabs().count(); ++tab) {
        shown.showTab(tab);
        for (const QWidget *widget : visibleControls(shown.page())) {
            const QSize hint = needed(widget);
            QVERIFY2(widget->width() >= hint.width() && widget->height() >= hint.height(),
                     qPrintable(described(widget)));
            QVERIFY2(shown.page().rect().contains(placeOnPage(widget, shown.page())),
                     qPrintable(widget->objectName()));
        }
    }
}

void enableEverything(const QWizardPage &page)
{
    for (QWidget *widget : page.findChildren<QWidget *>()) {
        widget->setEnabled(true);
    }
}

} // namespace

/** The pages as a user sees them, in a wizard of the smallest size offered. */
class TestLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageFitsTheSmallestWindow_data() { addHeadsAndLanguages(); }
    void pageFitsTheSmallestWindow();
    void nothingIsCutOff_data() { addHeadsAndLanguages(); }
    void nothingIsCutOff();
    void nothingIsCutOffInALargeFont_data() { addHeadsAndLanguages(); }
    void nothingIsCutOffInALargeFont();
    void nothingOverlaps_data() { addHeadsAndLanguages(); }
    void nothingOverlaps();
    void everyTabIsSeen_data() { addHeadsAndLanguages(); }
    void everyTabIsSeen();
    void warningIsNotCutOff_data();
    void warningIsNotCutOff();
    void warningMovesNothing_data() { addHeads(headsWithWarnings()); }
    void warningMovesNothing();
    void tabKeyVisitsEveryControl_data() { addHeads(allHeads()); }
    void tabKeyVisitsEveryControl();
    void arrowKeysReachEveryRadioButton_data() { addHeads(allHeads()); }
    void arrowKeysReachEveryRadioButton();
    void everyFieldHasALabelOrAName_data() { addHeads(allHeads()); }
    void everyFieldHasALabelOrAName();
    void previewKeepsItsPlaceFromTabToTab_data() { addHeads(allHeads()); }
    void previewKeepsItsPlaceFromTabToTab();
    void captionStandsOutFromABrightPhoto_data();
    void captionStandsOutFromABrightPhoto();
};

void TestLooks::pageFitsTheSmallestWindow()
{
    QFETCH(const Head *, head);
    QFETCH(QString, language);
    Shown shown(*head, language);
    for (int tab = 0; tab < shown.tabs().count(); ++tab) {
        shown.showTab(tab);
        QCOMPARE(shown.wizard().size(), kSmallest);
    }
}

void TestLooks::nothingIsCutOff()
{
    QFETCH(const Head *, head);
    QFETCH(QString, language);
    checkThatAllIsShown(Shown(*head, language));
}

void TestLooks::nothingIsCutOffInALargeFont()
{
    QFETCH(const Head *, head);
    QFETCH(QString, language);
    checkThatAllIsShown(Shown(*head, language, kLargeFont));
}

void TestLooks::nothingOverlaps()
{
    QFETCH(const Head *, head);
    QFETCH(QString, language);
    const Shown shown(*head, language);
    for (int tab = 0; tab < shown.tabs().count(); ++tab) {
        shown.showTab(tab);
        const QList<QWidget *> widgets = visibleControls(shown.page());
        for (int i = 0; i < widgets.size(); ++i) {
            for (int k = i + 1; k < widgets.size(); ++k) {
                const bool overlap = placeOnPage(widgets.at(i), shown.page())
                                         .intersects(placeOnPage(widgets.at(k), shown.page()));
                const bool isPart = widgets.at(i)->isAncestorOf(widgets.at(k))
                    || widgets.at(k)->isAncestorOf(widgets.at(i));
                QVERIFY2(!overlap || isPart,
                         qPrintable(widgets.at(i)->objectName() + QLatin1Char(' ')
                                    + widgets.at(k)->objectName()));
            }
        }
    }
}

void TestLooks::everyTabIsSeen()
{
    QFETCH(const Head *, head);
    QFETCH(QString, language);
    const Shown shown(*head, language);
    const QTabBar *bar = shown.tabs().tabBar();
    for (int tab = 0; tab < bar->count(); ++tab) {
        QVERIFY(bar->rect().contains(bar->tabRect(tab)));
        QVERIFY(bar->tabRect(tab).width()
                > bar->fontMetrics().horizontalAdvance(bar->tabText(tab)));
    }
}

void TestLooks::warningIsNotCutOff_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("text");
    const std::initializer_list<std::pair<const char *, const char *>> texts{
        { "brackets", "Bracketing used in XML, should be multiple of that number" },
        { "number", "Not the same as in XML fil" },
        { "lens", "Lens type difference between EXIF and XML" },
    };
    for (const char *language :
         { "en", "es", "zh_CN", "fr", "ja", "de", "it", "pl", "zh_TW", "ru" }) {
        for (const Head *head : headsWithWarnings()) {
            for (const auto &[name, text] : texts) {
                QTest::addRow("%s, %s, %s", head->name, language, name)
                    << head << QString::fromLatin1(language) << QByteArray(text);
            }
        }
    }
}

void TestLooks::warningIsNotCutOff()
{
    QFETCH(const Head *, head);
    QFETCH(QString, language);
    QFETCH(QByteArray, text);
    const Shown shown(*head, language);
    const QString context = QString::fromLatin1(shown.page().metaObject()->className());
    shown.warning()->setText(
        QStringLiteral("<p style='color:red'>%1</p>")
            .arg(QCoreApplication::translate(context.toLatin1().constData(), text.constData())));
    shown.warning()->show();
    QCoreApplication::processEvents();

    QVERIFY2(shown.warning()->width() >= shown.warning()->sizeHint().width(),
             qPrintable(described(shown.warning())));
    QVERIFY2(shown.warning()->height() >= shown.warning()->sizeHint().height(),
             qPrintable(described(shown.warning())));
}

void TestLooks::warningMovesNothing()
{
    QFETCH(const Head *, head);
    const Shown shown(*head);
    const auto places = [&shown] {
        QMap<QString, QRect> found;
        for (const QWidget *widget : visibleControls(shown.page())) {
            if (widget != shown.warning()) {
                found.insert(widget->objectName(), placeOnPage(widget, shown.page()));
            }
        }
        found.insert(QStringLiteral("tabs"), placeOnPage(&shown.tabs(), shown.page()));
        return found;
    };
    const auto before = places();
    QVERIFY(before.size() > 15);
    shown.warning()->setText(QStringLiteral("<p style='color:red'>Ages of brackets</p>"));
    shown.warning()->show();
    QCoreApplication::processEvents();

    QCOMPARE(places(), before);
}

void TestLooks::tabKeyVisitsEveryControl()
{
    QFETCH(const Head *, head);
    const Shown shown(*head);
    enableEverything(shown.page());
    for (int tab = 0; tab < shown.tabs().count(); ++tab) {
        shown.showTab(tab);
        const QStringList expected = expectedStops(shown.page());
        shown.tabs().setFocus();
        QStringList visited;
        while (!focusName(shown.page()).isEmpty() && visited.size() < 50) {
            visited.append(focusName(shown.page()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(visited, expected);
    }
}

void TestLooks::arrowKeysReachEveryRadioButton()
{
    QFETCH(const Head *, head);
    const Shown shown(*head);
    for (int tab = 0; tab < shown.tabs().count(); ++tab) {
        shown.showTab(tab);
        for (QRadioButton *radio : checkedButtons(shown.page())) {
            QList<QRadioButton *> missing = siblings(radio);
            radio->setFocus();
            for (int i = missing.size(); i > 0; --i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
                missing.removeOne(qobject_cast<QRadioButton *>(QApplication::focusWidget()));
            }
            QVERIFY2(missing.isEmpty(), qPrintable(radio->objectName()));
        }
    }
}

void TestLooks::everyFieldHasALabelOrAName()
{
    QFETCH(const Head *, head);
    const Shown shown(*head);
    QStringList withBuddy;
    for (const QString &pair : buddies(shown.page())) {
        withBuddy.append(pair.section(QStringLiteral(" > "), 1));
    }
    for (const QWidget *widget : shown.page().findChildren<QWidget *>()) {
        const bool isField = widget->inherits("QLineEdit") || widget->inherits("QAbstractSpinBox")
            || widget->inherits("QComboBox") || widget->inherits("QSlider");
        const bool isOwn = !widget->objectName().isEmpty()
            && !widget->objectName().startsWith(QLatin1String("qt_"));
        if (isField && isOwn) {
            QVERIFY2(withBuddy.contains(widget->objectName())
                         || !widget->accessibleName().isEmpty(),
                     qPrintable(widget->objectName()));
        }
    }
}

void TestLooks::previewKeepsItsPlaceFromTabToTab()
{
    QFETCH(const Head *, head);
    const Shown shown(*head);
    const auto *area = shown.page().findChild<QWidget *>(QStringLiteral("m_saPreview"));
    const QRect before = placeOnPage(area, shown.page());
    for (int tab = 1; tab < shown.tabs().count(); ++tab) {
        shown.showTab(tab);
        QCOMPARE(placeOnPage(area, shown.page()), before);
    }
}

void TestLooks::captionStandsOutFromABrightPhoto_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<bool>("ground");
    QTest::newRow("light theme: dark text on the photo itself")
        << QColor(Qt::lightGray) << QColor(Qt::black) << false;
    QTest::newRow("dark theme: bright text on a darkened photo")
        << QColor(Qt::black) << QColor(Qt::white) << true;
}

void TestLooks::captionStandsOutFromABrightPhoto()
{
    QFETCH(QColor, window);
    QFETCH(QColor, text);
    QFETCH(bool, ground);
    FakePhoto white;
    white.colour = Qt::white;
    FakeImage photo(QStringLiteral("a.jpg"), white);
    PreviewCell cell;
    cell.box = QRectF(2.0, 2.0, 96.0, 96.0);
    cell.image = 0;
    PreviewLabel label;
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    label.setPalette(palette);

    label.showScene({ { QSize(100, 100), { cell } }, { &photo }, CellStyle::FittedWithCaption },
                    100);

    const QImage picture = label.pixmap(Qt::ReturnByValue).toImage();
    // The text's box starts at (3, 3), where no letter has a pixel; none reaches the lower half.
    QCOMPARE(picture.pixelColor(3, 3) == QColor(Qt::white), !ground);
    QVERIFY(ground == (picture.pixelColor(3, 3).lightness() < 128));
    QCOMPARE(picture.pixelColor(50, 90), QColor(Qt::white));
}

TEST_CLASS(TestLooks, FakeApplication)
#include "tst_looks.moc"
