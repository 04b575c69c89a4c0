// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/positionsmodel.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;
using Model = PositionsModel;

/** The positions as rows, without any widget. */
class TestPositionsModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsTellWhatWasRecorded();
    void linksCountAtBothEnds();
    void whatIsNotKnownIsEmpty();
    void numbersSortAsNumbers();
    void alignmentFillsItsColumns();
    void anotherPanoramaForgetsTheAlignment();
    void exportIsTheSameEverywhere();

private:
    static QString text(const Model &model, int row, int column)
    {
        return model.index(row, column).data().toString();
    }
    static void addLink(Panorama &panorama, int from, int to)
    {
        AuthorizedLink link;
        link.indices = { from, to };
        panorama.description.authorizedLinks += link;
    }
    static void setAlignment(Model &model, const Alignment &alignment)
    {
        model.setAlignment(alignment, photoResiduals(alignment.project));
    }
    /** Photo 1 has come to stand where photo 0 stands. */
    static Alignment alignmentOf(const Panorama &panorama)
    {
        Result<PtoFile> project = projectOf(panorama);
        if (!project) {
            qFatal("%s", qPrintable(project.error().text()));
        }
        Alignment alignment{ std::move(project).value(), {} };
        alignment.project.place(0, { { 10.0, 2.0, 0.25 }, {} });
        alignment.project.place(1, { { 10.0, 2.0, 0.25 }, {} });
        // Seen from the same place through the same lens the same spot is the same pixel.
        alignment.project.setPoints({ { 0, 1, 600, 400, 603, 404, false }, // off by 5
                                      { 0, 1, 500, 300, 500, 301, false }, // by 1
                                      { 0, 1, 700, 500, 702, 500, false }, // by 2
                                      { 0, 1, 100, 100, 900, 700, true } }); // known to be wrong
        alignment.report.photos
            = { { panorama.positions.at(0).photos.first().path, 3, {}, {}, 0.125 },
                { panorama.positions.at(1).photos.first().path, 3, {}, {}, 1.5 } };
        return alignment;
    }
};

void TestPositionsModel::rowsTellWhatWasRecorded()
{
    Panorama panorama = TestPanoramas::row(8, 2);
    panorama.positions[1].pitchDegrees = -0.001;
    panorama.positions[1].rollDegrees = 1.236;
    panorama.positions[1].photos[0].timeText = QStringLiteral("2024-05-01T10:00:04");
    Model model;
    model.setPanorama(panorama);
    QCOMPARE(model.rowCount(), 8);
    QCOMPARE(text(model, 1, Model::Number), QStringLiteral("2"));
    QCOMPARE(text(model, 1, Model::Photos), QStringLiteral("3.jpg, 4.jpg"));
    QCOMPARE(text(model, 1, Model::Yaw), QStringLiteral("45.00"));
    QCOMPARE(text(model, 1, Model::Pitch), QStringLiteral("0.00"));
    QCOMPARE(text(model, 1, Model::Roll), QStringLiteral("1.24"));
    QCOMPARE(text(model, 1, Model::Time), QStringLiteral("2024-05-01 10:00:04"));
    QCOMPARE(text(model, 1, Model::Exposure), QStringLiteral("12.6"));
    QVERIFY(!model.isAligned());
}

void TestPositionsModel::linksCountAtBothEnds()
{
    Panorama panorama = TestPanoramas::row(3);
    addLink(panorama, 0, 1);
    addLink(panorama, 0, 2);
    addLink(panorama, 1, 7); // a cell of a grid that holds no photo
    panorama.description.authorizedLinks += AuthorizedLink(); // of nothing
    Model model;
    model.setPanorama(panorama);
    QCOMPARE(text(model, 0, Model::Links), QStringLiteral("2"));
    QCOMPARE(text(model, 1, Model::Links), QStringLiteral("1"));
    QCOMPARE(text(model, 2, Model::Links), QStringLiteral("1"));
}

void TestPositionsModel::whatIsNotKnownIsEmpty()
{
    Panorama panorama = TestPanoramas::row(1);
    panorama.positions[0].photos[0].exposureValue.reset();
    Model model;
    model.setPanorama(panorama);
    for (int column = 0; column < Model::ColumnCount; ++column) {
        const bool isEmpty
            = column == Model::Time || column == Model::Exposure || Model::isOfAlignment(column);
        QCOMPARE(text(model, 0, column).isEmpty(), isEmpty);
        QCOMPARE(model.index(0, column).data(Model::kSortRole).isValid(), !isEmpty);
        QVERIFY(!model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().isEmpty());
    }
}

void TestPositionsModel::numbersSortAsNumbers()
{
    Panorama panorama = TestPanoramas::row(2);
    panorama.positions[0].yawDegrees = 100.0;
    panorama.positions[1].yawDegrees = 20.0;
    Model model;
    model.setPanorama(panorama);
    const auto key = [&](int row) { return model.index(row, Model::Yaw).data(Model::kSortRole); };
    QCOMPARE(key(0).type(), QVariant::Double);
    QVERIFY(key(0).toDouble() > key(1).toDouble());
}

void TestPositionsModel::alignmentFillsItsColumns()
{
    const Panorama panorama = TestPanoramas::row(3);
    Model model;
    model.setPanorama(panorama);
    QSignalSpy changed(&model, &Model::dataChanged);
    setAlignment(model, alignmentOf(panorama));
    QVERIFY(model.isAligned());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(text(model, 1, Model::Yaw), QStringLiteral("120.00")); // as it was
    QCOMPARE(text(model, 1, Model::AlignedYaw), QStringLiteral("10.000"));
    QCOMPARE(text(model, 1, Model::AlignedPitch), QStringLiteral("2.000"));
    QCOMPARE(text(model, 1, Model::AlignedRoll), QStringLiteral("0.250"));
    QCOMPARE(text(model, 0, Model::Moved), QStringLiteral("0.125"));
    QCOMPARE(text(model, 1, Model::Moved), QStringLiteral("1.500"));
    QCOMPARE(text(model, 1, Model::Points), QStringLiteral("3"));
    QCOMPARE(text(model, 0, Model::Residual), QStringLiteral("2.00")); // of 1, 2 and 5
    QCOMPARE(text(model, 1, Model::Residual), QStringLiteral("2.00"));
    QCOMPARE(text(model, 2, Model::Residual), QString()); // it has no points
    QCOMPARE(text(model, 2, Model::Moved), QString());
}

void TestPositionsModel::anotherPanoramaForgetsTheAlignment()
{
    const Panorama panorama = TestPanoramas::row(3);
    Model model;
    model.setPanorama(panorama);
    setAlignment(model, alignmentOf(panorama));
    model.setPanorama(panorama);
    QVERIFY(!model.isAligned());
    QCOMPARE(text(model, 0, Model::AlignedYaw), QString());
    model.setPanorama(Panorama());
    QCOMPARE(model.rowCount(), 0);
    setAlignment(model, alignmentOf(panorama)); // of a panorama that is not shown
}

void TestPositionsModel::exportIsTheSameEverywhere()
{
    Panorama panorama = TestPanoramas::row(3, 2);
    panorama.positions[1].photos[0].timeText = QStringLiteral("2024-05-01T10:00:04");
    addLink(panorama, 0, 1);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    Model model;
    model.setPanorama(panorama);
    const QStringList row = model.exportRow(1);
    QLocale::setDefault(before);
    QCOMPARE(Model::exportHeader().join(QLatin1Char(' ')),
             QStringLiteral("number photos yaw_deg pitch_deg roll_deg aligned_yaw_deg "
                            "aligned_pitch_deg aligned_roll_deg deviation_deg points residual_px "
                            "time exposure_ev links"));
    QCOMPARE(row,
             QStringList({ QStringLiteral("2"),
                           QStringLiteral("3.jpg; 4.jpg"),
                           QStringLiteral("120.000000"),
                           QStringLiteral("0.000000"),
                           QStringLiteral("0.000000"),
                           {},
                           {},
                           {},
                           {},
                           {},
                           {},
                           QStringLiteral("2024-05-01T10:00:04"),
                           QStringLiteral("12.644"),
                           QStringLiteral("1") }));
}

TEST_CLASS(TestPositionsModel, TestProgram::NoApplication)
#include "tst_gui_positionsmodel.moc"
