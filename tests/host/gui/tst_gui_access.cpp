// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/dev/darkpalette.h"
#include "host/gui/makepage.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QTabBar>
#include <QUrl>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace PanoHost;

namespace
{

/** Relative luminance of sRGB, as the web's accessibility guidelines reckon it. */
double luminance(const QColor &colour)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

/** The window for who hears it, works it by keys, or sees little. */
class TestAccess : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void contrastIsThatOfTheGuidelines();
    void everythingHasANameAndCanBeRead_data();
    void everythingHasANameAndCanBeRead();
    void keysAloneLeadToThePanorama();

private:
    /** Controls that are not named, and texts that are too faint. */
    [[nodiscard]] static QStringList faultsOf(const QWidget &window);
};

/** Black on white is 21 to 1, and #777777 on white just too little. */
void TestAccess::contrastIsThatOfTheGuidelines()
{
    QVERIFY(std::abs(contrast(Qt::black, Qt::white) - 21.0) < 1e-9);
    QVERIFY(std::abs(contrast(QColor(0x77, 0x77, 0x77), Qt::white) - 4.48) < 0.01);
}

QStringList TestAccess::faultsOf(const QWidget &window)
{
    constexpr double kLeastContrast = 4.5;
    QStringList faults;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible() || !widget->isEnabled()) {
            continue;
        }
        const QString who = QString::fromLatin1(widget->metaObject()->className())
            + QLatin1Char(' ') + widget->objectName();
        const bool isControl = (widget->focusPolicy() & Qt::TabFocus) != 0;
        const QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(widget);
        if (isControl && (heard == nullptr || heard->text(QAccessible::Name).isEmpty())) {
            faults += who + QStringLiteral(" has no name");
        }
        const bool isText = qobject_cast<QLabel *>(widget) != nullptr
            || qobject_cast<QAbstractButton *>(widget) != nullptr;
        const double seen = contrast(widget->palette().color(widget->foregroundRole()),
                                     widget->palette().color(widget->backgroundRole()));
        if (isText && seen < kLeastContrast) {
            faults += QStringLiteral("%1 has a contrast of %2").arg(who).arg(seen);
        }
    }
    return faults;
}

void TestAccess::everythingHasANameAndCanBeRead_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<bool>("isDark");
    for (const char *head : { "papywizard", "vrdrive2", "clauss" }) {
        QTest::addRow("%s, light", head) << QByteArray(head) << false;
        QTest::addRow("%s, dark", head) << QByteArray(head) << true;
    }
}

void TestAccess::everythingHasANameAndCanBeRead()
{
    QFETCH(QByteArray, head);
    QFETCH(bool, isDark);
    const QPalette before = QApplication::palette();
    if (isDark) {
        QApplication::setPalette(darkPalette());
    }
    QStringList faults;
    {
        GuiBench bench({ 1000, 760 });
        const auto look = [&](const char *page) {
            for (const QString &fault : faultsOf(bench.wizard())) {
                faults += QLatin1String(page) + QStringLiteral(": ") + fault;
            }
        };
        look("choice");
        bench.drop(QStringList(bench.record(4, head.constData())) + bench.photos(0, 3));
        QTRY_VERIFY(bench.isSettled() && bench.isNextEnabled());
        bench.openStrip();
        look("import");
        bench.press(QWizard::NextButton);
        QTRY_COMPARE(bench.result().size(), 4);
        auto *tabs = bench.wizard().currentPage()->findChild<QTabBar *>();
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            look("result");
        }
        bench.press(QWizard::NextButton);
        look("make");
    }
    QApplication::setPalette(before);
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

/** Files are pasted, and Enter says the rest. */
void TestAccess::keysAloneLeadToThePanorama()
{
    GuiBench bench;
    QStringList words;
    for (const QString &file : QStringList(bench.record(4)) + bench.photos(0, 3)) {
        words += QUrl::fromLocalFile(file).toString();
    }
    auto *data = new QMimeData;
    data->setText(words.join(QLatin1Char('\n')));
    QList<QUrl> urls;
    for (const QString &word : qAsConst(words)) {
        urls += QUrl(word);
    }
    data->setUrls(urls);
    QApplication::clipboard()->setMimeData(data);
    const auto focus = [&bench]() -> QWidget * {
        return bench.wizard().focusWidget() == nullptr ? &bench.wizard()
                                                       : bench.wizard().focusWidget();
    };
    QTest::keyClick(focus(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyRelease(focus(), Qt::Key_Control);
    QTRY_VERIFY(bench.isSettled() && bench.isNextEnabled());
    QTest::keyClick(focus(), Qt::Key_Return);
    QTRY_COMPARE(bench.result().size(), 4);
    QTest::keyClick(focus(), Qt::Key_Return);
    const auto *page = qobject_cast<MakePage *>(bench.wizard().currentPage());
    QVERIFY(page);
    QTRY_COMPARE(focus()->objectName(), QStringLiteral("m_make"));
    // Tab comes round to it again, through everything there is.
    QSet<const QWidget *> met;
    do {
        met.insert(focus());
        QTest::keyClick(focus(), Qt::Key_Tab);
    } while (!met.contains(focus()) && met.size() < 100);
    for (const char *name : { "m_makePath", "m_changePath", "m_makeSize", "m_makeWebPage",
                              "m_makeZoom", "m_trustHead", "m_make" }) {
        QVERIFY2(met.contains(page->findChild<QWidget *>(QLatin1String(name))), name);
    }
}

TEST_CLASS(TestAccess, PanoHostApplication)
#include "tst_gui_access.moc"
