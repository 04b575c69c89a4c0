// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/positionstable.h"
#include "host/gui/resultpage.h"
#include "host/model/ptoproject.h"
#include "host/view/shootpanel.h"
#include "host/view/shootview.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QSignalSpy>

using namespace PanoHost;

/** The picture of the shoot on the result page. */
class TestGuiPicture : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init();
    void cleanup() { m_bench.reset(); }
    void photosStandWhereTheyWereTaken();
    void photosAndRowsAreSelectedTogether();
    void alignedPhotosTellHowWellTheyFit();

private:
    [[nodiscard]] ResultPage *page() const
    {
        return qobject_cast<ResultPage *>(m_bench->wizard().currentPage());
    }
    [[nodiscard]] ShootView &view() const { return *page()->findChild<ShootPanel *>()->view(); }
    [[nodiscard]] QPoint pointAt(double yaw) const
    {
        return view().camera().pointOf(directionAt(yaw, 12.0))->toPoint();
    }

    std::unique_ptr<GuiBench> m_bench;
};

/** To the page, with five photos ten degrees apart. */
void TestGuiPicture::init()
{
    m_bench = std::make_unique<GuiBench>();
    m_bench->drop(m_bench->photos(0, 4) + QStringList(m_bench->record(5)));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QVERIFY(page());
    QTRY_VERIFY(view().isLoaded());
}

void TestGuiPicture::photosStandWhereTheyWereTaken()
{
    m_bench->picture(QStringLiteral("result-picture"));
    const QImage picture = view().grab().toImage();
    // The last photo lies in front of all others.
    const QColor seen(picture.pixel(pointAt(40.0)));
    const QColor photo = QColor::fromHsv(53 * 4 % 360, 120, 230);
    QVERIFY2(std::abs(seen.red() - photo.red()) < 12 && std::abs(seen.green() - photo.green()) < 12
                 && std::abs(seen.blue() - photo.blue()) < 12,
             qPrintable(seen.name() + photo.name()));
}

void TestGuiPicture::photosAndRowsAreSelectedTogether()
{
    QSignalSpy selected(page(), &ResultPage::positionSelected);
    auto *table = page()->findChild<PositionsTable *>();
    // The field reaches 37 degrees from the middle: at the right end there is the last photo alone.
    QTest::mouseClick(&view(), Qt::LeftButton, {}, pointAt(73.0));
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.last(), QVariantList{ 4 });
    QCOMPARE(table->currentIndex().row(), 4);
    table->selectRow(1);
    QCOMPARE(view().selected(), 1);
    page()->selectPosition(3);
    QCOMPARE(view().selected(), 3);
    QCOMPARE(selected.last(), QVariantList{ 1 });
}

void TestGuiPicture::alignedPhotosTellHowWellTheyFit()
{
    Alignment alignment{ projectOf(*page()->panorama()).value(), {} };
    alignment.project.place(2, { { 21.0, 0.0, 0.0 }, {} });
    alignment.project.setPoints({ { 0, 1, 40.0, 20.0, 30.0, 20.0 } });
    page()->setAlignment(alignment, photoResiduals(alignment.project));
    QVERIFY(view().scene().isAligned);
    QCOMPARE(view().scene().frames.at(2).angles.yaw, 21.0);
    QVERIFY(view().textOf(0).contains(QStringLiteral("pixels")));
    QVERIFY(view().textOf(4).contains(QStringLiteral("no control points")));
    QTRY_VERIFY(view().isLoaded());
    m_bench->picture(QStringLiteral("result-aligned"));
}

TEST_CLASS(TestGuiPicture, PanoHostApplication)

#include "tst_gui_picture.moc"
