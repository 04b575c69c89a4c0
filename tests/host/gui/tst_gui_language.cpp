// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/elidedlabel.h"
#include "host/gui/preferences.h"
#include "host/gui/windowtexts.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/gui/pseudolanguage.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTranslator>
#include <QtTest>

using namespace PanoHost;

namespace
{

struct ShownText {
    QString where;
    QString text;
};

/** Every text of \p window that can be read now, or heard. */
QVector<ShownText> textsOf(const QWidget &window)
{
    QVector<ShownText> texts;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible()) {
            continue;
        }
        const QString where = QString::fromLatin1(widget->metaObject()->className())
            + QLatin1Char(' ') + widget->objectName();
        const auto add = [&](const QString &text) { texts.append({ where, text }); };
        if (qobject_cast<const ElidedLabel *>(widget) != nullptr) {
            add(widget->accessibleName()); // all of it
            continue;
        }
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            add(label->text());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            add(button->text());
        } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
            add(box->title());
        } else if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
            for (int i = 0; i < combo->count(); ++i) {
                add(combo->itemText(i));
            }
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                add(tabs->tabText(i));
            }
        } else if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
            add(edit->placeholderText());
        } else if (const auto *view = qobject_cast<const QHeaderView *>(widget)) {
            for (int i = 0; view->model() != nullptr && i < view->count(); ++i) {
                add(view->model()->headerData(i, view->orientation()).toString());
            }
        }
        if (widget->objectName() != QLatin1String("m_leConfigFile")) { // shows what the record says
            add(widget->toolTip());
        }
        add(widget->accessibleName());
    }
    return texts;
}

/** Labels and buttons that do not show all of their text. */
QStringList clippedIn(const QWidget &window)
{
    QStringList clipped;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool isText = (label != nullptr && !label->text().isEmpty() && !label->wordWrap()
                             && qobject_cast<const ElidedLabel *>(label) == nullptr)
            || qobject_cast<const QAbstractButton *>(widget) != nullptr;
        // A wrapped text is as high as its width makes it.
        const bool isLow = label != nullptr && label->wordWrap() && label->isVisible()
            && label->height() < label->heightForWidth(label->width());
        if (isLow) {
            clipped += QStringLiteral("%1: %2 of %3 pixels high")
                           .arg(label->objectName())
                           .arg(label->height())
                           .arg(label->heightForWidth(label->width()));
        }
        const bool isShown = widget->isVisible() && !widget->visibleRegion().isEmpty();
        if (isText && isShown && widget->width() < widget->minimumSizeHint().width()) {
            clipped
                += QStringLiteral("%1 %2: %3 of %4 pixels")
                       .arg(QLatin1String(widget->metaObject()->className()), widget->objectName())
                       .arg(widget->width())
                       .arg(widget->minimumSizeHint().width());
        }
    }
    return clipped;
}

/** Until the page that makes says what it takes. */
void waitForEstimate(const GuiBench &bench)
{
    const auto *state
        = bench.wizard().currentPage()->findChild<QLabel *>(QStringLiteral("m_makeState"));
    QTRY_VERIFY2(state->text().contains(QStringLiteral(" MB")), qPrintable(state->text()));
}

} // namespace

/** The window in a language that does not exist: what stays English was not translated. */
class TestLanguage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void everyPageIsTranslated_data();
    void everyPageIsTranslated();
    void everyLanguageFits_data();
    void everyLanguageFits();
};

/** Back to English. */
void TestLanguage::cleanup()
{
    for (QTranslator *translator : qApp->findChildren<QTranslator *>()) {
        delete translator;
    }
}

void TestLanguage::everyPageIsTranslated_data()
{
    QTest::addColumn<QByteArray>("head");
    for (const char *head : { "papywizard", "vrdrive2", "clauss", "gigapan" }) {
        QTest::newRow(head) << QByteArray(head);
    }
}

void TestLanguage::everyPageIsTranslated()
{
    QFETCH(QByteArray, head);
    QVERIFY(QCoreApplication::installTranslator(new PseudoLanguage));
    GuiBench bench({ 1200, 900 });
    QStringList english;
    QStringList clipped;
    const auto look = [&](const char *page) {
        QCoreApplication::processEvents();
        bench.picture(
            QStringLiteral("language-%1-%2").arg(QLatin1String(head), QLatin1String(page)));
        for (const ShownText &shown : textsOf(bench.wizard())) {
            const QString left = untranslated(shown.text);
            if (!left.isEmpty()) {
                english += QStringLiteral("%1: %2: %3").arg(QLatin1String(page), shown.where, left);
            }
        }
        for (const QString &text : clippedIn(bench.wizard())) {
            clipped += QLatin1String(page) + QStringLiteral(": ") + text;
        }
    };
    look("choice");
    if (head == "gigapan") {
        bench.choose("Gigapan");
        bench.drop(bench.photos(0, 3));
    } else {
        bench.drop(QStringList(bench.record(4, head.constData())) + bench.photos(0, 3));
    }
    QTRY_VERIFY(bench.isSettled());
    bench.openStrip();
    look("import");
    // What is said where something is wrong.
    bench.drop(
        { bench.photo(QStringLiteral("IMG_0003.jpg"), 2, 0, false), bench.photos(0, 0).first() });
    QTRY_VERIFY(bench.isSettled());
    bench.openStrip();
    look("missing");
    TestPhotos::writeFile(bench.path(QStringLiteral("IMG_0002.jpg")), "no photo");
    bench.drop(bench.photos(0, 0) << bench.path(QStringLiteral("IMG_0002.jpg")));
    QTRY_VERIFY(bench.isSettled());
    look("unreadable");
    bench.drop(bench.photos(0, 3));
    QTRY_VERIFY(bench.isSettled());
    QTRY_VERIFY(bench.isNextEnabled());
    bench.press(QWizard::NextButton);
    QTRY_COMPARE(bench.result().size(), 4);
    look("result");
    if (auto *tabs = bench.wizard().currentPage()->findChild<QTabBar *>()) {
        tabs->setCurrentIndex(1);
        look("positions");
    }
    bench.press(QWizard::NextButton);
    waitForEstimate(bench);
    look("make");
    english.removeDuplicates();
    QVERIFY2(english.isEmpty(), qPrintable(QLatin1Char('\n') + english.join(QLatin1Char('\n'))));
    QVERIFY2(clipped.isEmpty(), qPrintable(QLatin1Char('\n') + clipped.join(QLatin1Char('\n'))));
}

void TestLanguage::everyLanguageFits_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("next"); // of Qt's own texts
    const auto row = [](const char *code, const char *next) {
        QTest::newRow(code) << QString::fromLatin1(code) << QString::fromUtf8(next);
    };
    row("es", "Siguiente");
    row("fr", "Suivant");
    row("it", "Successivo");
    row("de", "Weiter");
    row("pl", "Dalej");
    row("ru", "Далее");
    row("ja", "次");
    row("zh_CN", "下一步");
    row("zh_TW", "下一個");
}

void TestLanguage::everyLanguageFits()
{
    QFETCH(QString, code);
    QFETCH(QString, next);
    const QString english = ImportWizard::tr("Import a panorama");
    loadWindowTexts(QLocale(code));
    GuiBench bench({ 1000, 760 });
    QVERIFY(bench.wizard().windowTitle() != english);
    QString button = bench.wizard().button(QWizard::NextButton)->text();
    QVERIFY2(button.remove(QLatin1Char('&')).contains(next), qPrintable(button));
    QStringList wrong;
    const auto look = [&](const char *page) {
        QCoreApplication::processEvents();
        bench.picture(QStringLiteral("language-%1-%2").arg(code, QLatin1String(page)));
        for (const QString &text : clippedIn(bench.wizard()) + bench.ambiguities()) {
            wrong += QLatin1String(page) + QStringLiteral(": ") + text;
        }
    };
    look("choice");
    bench.drop(QStringList(bench.record(4)) + bench.photos(0, 3));
    QTRY_VERIFY(bench.isSettled() && bench.isNextEnabled());
    bench.press(QWizard::NextButton);
    QTRY_COMPARE(bench.result().size(), 4);
    look("result");
    bench.press(QWizard::NextButton);
    waitForEstimate(bench);
    look("make");
    Preferences preferences(*PanoHostApplication::instance(), &bench.wizard());
    preferences.show();
    QVERIFY(QTest::qWaitForWindowExposed(&preferences));
    for (const QString &text : clippedIn(preferences)) {
        wrong += QStringLiteral("preferences: ") + text;
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(QLatin1Char('\n') + wrong.join(QLatin1Char('\n'))));
}

TEST_CLASS(TestLanguage, PanoHostApplication)
#include "tst_gui_language.moc"
