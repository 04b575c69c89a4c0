// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/choicepage.h"
#include "host/import/dialogcatcher.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>
#include <QtTest>

using namespace PanoHost;

/** Files that are dragged over the window and dropped there. */
class TestDrop : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void recordFieldTakesFilesNotTheirNames();
    void folderOfNothingUsefulIsSaid();
    void frameSaysWhereToDrop();
    void draggedWordsAreLeftToTheFields();

private:
    [[nodiscard]] QWizardPage *page() const { return m_bench->wizard().currentPage(); }
    [[nodiscard]] const QWidget *frame() const
    {
        return m_bench->wizard().findChild<QWidget *>(QStringLiteral("m_dropFrame"));
    }
    /** Drags \p data onto \p widget; answers whether it would be taken there. */
    static bool drag(const QMimeData &data, QWidget *widget);
    static void dragOut(QWidget *widget);

    std::unique_ptr<GuiBench> m_bench;
};

bool TestDrop::drag(const QMimeData &data, QWidget *widget)
{
    const QPoint place = widget->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(widget, &enter);
    return enter.isAccepted();
}

void TestDrop::dragOut(QWidget *widget)
{
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(widget, &leave);
}

void TestDrop::recordFieldTakesFilesNotTheirNames()
{
    m_bench->choose("Papywizard");
    auto *field = page()->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"));
    const QString record = m_bench->record(26);
    m_bench->drop(QStringList(record) + m_bench->photos(0, 25), field);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(field->text(), record);
    m_bench->press(QWizard::NextButton);
    QCOMPARE(m_bench->result().size(), 26);
}

void TestDrop::folderOfNothingUsefulIsSaid()
{
    QVERIFY(QDir().mkpath(m_bench->path(QStringLiteral("empty/deep"))));
    DialogCatcher boxes;
    QStringList said;
    m_bench->drop({ m_bench->path(QStringLiteral("empty")) });
    QTRY_COMPARE((said += boxes.takeMessages()).size(), 1);
    QVERIFY2(said.first().contains(QLatin1String("Neither records nor photos")),
             qPrintable(said.first()));
    QVERIFY(qobject_cast<ChoicePage *>(page()));
}

void TestDrop::frameSaysWhereToDrop()
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(m_bench->photo(QStringLiteral("a.jpg"), 0)) });
    QWidget *window = &m_bench->wizard();
    QWidget *list = page()->findChild<QWidget *>(QStringLiteral("m_heads"));
    QVERIFY(!frame()->isVisible());
    QVERIFY(drag(data, window));
    QVERIFY(frame()->isVisible());
    QCOMPARE(frame()->geometry(), window->rect());
    m_bench->picture(QStringLiteral("drop-frame"));
    // From one widget to the next it stays.
    dragOut(window);
    QVERIFY(drag(data, list));
    QCoreApplication::processEvents();
    QVERIFY(frame()->isVisible());
    dragOut(list);
    QTRY_VERIFY(!frame()->isVisible());
    QVERIFY(drag(data, list));
    QVERIFY(frame()->isVisible());
    QDropEvent drop(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list, &drop);
    QVERIFY(!frame()->isVisible());
}

void TestDrop::draggedWordsAreLeftToTheFields()
{
    m_bench->choose("Papywizard");
    QMimeData data;
    data.setText(QStringLiteral("some words"));
    auto *field = page()->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"));
    QVERIFY(drag(data, field));
    QVERIFY(!frame()->isVisible());
    QVERIFY(!drag(data, &m_bench->wizard()));
}

TEST_CLASS(TestDrop, PanoHostApplication)
#include "tst_gui_drop.moc"
