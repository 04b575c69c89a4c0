// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/features.h"
#include "tests/host/align/alignpictures.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <cmath>
#include <cstring>

using namespace PanoHost;

namespace
{

/** Round spots on grey that do not touch, \p radius pixels wide, at \p places: stored pixels, the
 * first one's middle is 0. */
QImage spots(const QSize &size, const std::vector<QPointF> &places, double radius)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(qRgb(90, 90, 90));
    const int reach = qRound(4.0 * radius);
    for (const QPointF &place : places) {
        const QRect around(place.toPoint() - QPoint(reach, reach),
                           QSize(2 * reach + 1, 2 * reach + 1));
        const QRect part = around & picture.rect();
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const double away = std::hypot(x - place.x(), y - place.y()) / radius;
                const int grey = 90 + qRound(120.0 * std::exp(-away * away / 2.0));
                picture.setPixel(x, y, qRgb(grey, grey, grey));
            }
        }
    }
    return picture;
}

/** Far enough from each other, each at another part of a pixel. */
std::vector<QPointF> scattered(const QSize &size, double step)
{
    std::vector<QPointF> places;
    for (int row = 1; row * step < size.height() - step / 2; ++row) {
        for (int column = 1; column * step < size.width() - step / 2; ++column) {
            const auto n = static_cast<double>(places.size());
            places.emplace_back(column * step + std::fmod(0.37 * n, 1.0),
                                row * step + std::fmod(0.73 * n, 1.0));
        }
    }
    return places;
}

/** The middle of the light that \p picture has around (\p x, \p y) within \p reach pixels. */
QPointF centroid(const QImage &picture, const QPointF &at, int reach)
{
    double sum = 0.0;
    QPointF weighted;
    for (int y = qRound(at.y()) - reach; y <= qRound(at.y()) + reach; ++y) {
        for (int x = qRound(at.x()) - reach; x <= qRound(at.x()) + reach; ++x) {
            const double light = std::max(0, qGray(picture.pixel(x, y)) - 90);
            sum += light;
            weighted += light * QPointF(x, y);
        }
    }
    return weighted / sum;
}

double distance(const FeatureSet::Place &place, const QPointF &other)
{
    return std::hypot(place.x - other.x(), place.y - other.y());
}

QPointF toStored(const GreyPicture &picture, const QPointF &place)
{
    return { (place.x() + 0.5) / picture.xScale - 0.5, (place.y() + 0.5) / picture.yScale - 0.5 };
}

QPointF fromStored(const GreyPicture &picture, const QPointF &place)
{
    return { (place.x() + 0.5) * picture.xScale - 0.5, (place.y() + 0.5) * picture.yScale - 0.5 };
}

bool isSame(const FeatureSet &one, const FeatureSet &other)
{
    return one.descriptors == other.descriptors && one.lights == other.lights
        && one.places.size() == other.places.size()
        && std::equal(one.places.begin(), one.places.end(), other.places.begin(),
                      [](const auto &a, const auto &b) { return a.x == b.x && a.y == b.y; });
}

} // namespace

class TestFeatures : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void reducedPhotosKeepTheirPlaces_data();
    void reducedPhotosKeepTheirPlaces();
    void photosAreReadAsStored();
    void photosThatCannotBeUsedAreRefused_data();
    void photosThatCannotBeUsedAreRefused();
    void spotsAreFoundInTheirMiddle_data();
    void spotsAreFoundInTheirMiddle();
    void reducedPhotosHaveTheirFeaturesAtTheSamePlaces();
    void featuresAreSpreadAndBounded();
    void fewerFeaturesAreTheStrongest();
    void picturesWithoutTextureHaveNoFeatures_data();
    void picturesWithoutTextureHaveNoFeatures();
    void descriptorsHaveUnitLength();
    void lightIsLinear();
    void whiteIsCounted();
    void theSamePictureGivesTheSameFeatures();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestFeatures::reducedPhotosKeepTheirPlaces_data()
{
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("widest");
    QTest::addColumn<QSize>("read");
    QTest::addColumn<double>("xScale");
    QTest::newRow("small enough") << QSize(480, 320) << "jpg" << 480 << QSize(480, 320) << 1.0;
    QTest::newRow("halved") << QSize(480, 320) << "jpg" << 240 << QSize(240, 160) << 0.5;
    QTest::newRow("eighth") << QSize(960, 640) << "jpg" << 120 << QSize(120, 80) << 0.125;
    QTest::newRow("halved, then reduced")
        << QSize(480, 320) << "jpg" << 200 << QSize(200, 133) << 200.0 / 480.0;
    // One column and one row are left over: 483 = 4 * 120 + 3, 321 = 4 * 80 + 1.
    QTest::newRow("sides that do not divide")
        << QSize(483, 321) << "jpg" << 120 << QSize(120, 80) << 0.25;
    QTest::newRow("reduced alone") << QSize(480, 320) << "jpg" << 300 << QSize(300, 200) << 0.625;
    QTest::newRow("PNG") << QSize(480, 320) << "png" << 200 << QSize(200, 133) << 200.0 / 480.0;
    QTest::newRow("upright") << QSize(320, 480) << "jpg" << 160 << QSize(160, 240) << 0.5;
}

void TestFeatures::reducedPhotosKeepTheirPlaces()
{
    QFETCH(QSize, stored);
    QFETCH(QString, format);
    QFETCH(int, widest);
    QFETCH(QSize, read);
    QFETCH(double, xScale);
    const std::vector<QPointF> places = scattered(stored, 80.0);
    const QString file = path(QStringLiteral("spots.") + format);
    QVERIFY(spots(stored, places, 8.0).save(file, nullptr, 95));
    const auto picture = readGreyPicture(file, stored, widest);
    QVERIFY2(picture.ok(), qPrintable(picture.ok() ? QString() : picture.error().text()));
    const GreyPicture &grey = picture.value();
    QCOMPARE(grey.picture.format(), QImage::Format_Grayscale8);
    QCOMPARE(grey.picture.size(), read);
    QCOMPARE(grey.xScale, xScale);
    for (const QPointF &place : places) {
        const QPointF seen = toStored(
            grey, centroid(grey.picture, fromStored(grey, place), qRound(30.0 * xScale)));
        // Levels are whole numbers, which moves the middle of a small spot.
        QVERIFY2(std::hypot(seen.x() - place.x(), seen.y() - place.y())
                     < std::max(0.1, 0.02 / xScale),
                 qPrintable(QStringLiteral("%1 %2: %3 %4")
                                .arg(place.x())
                                .arg(place.y())
                                .arg(seen.x())
                                .arg(seen.y())));
    }
}

void TestFeatures::photosAreReadAsStored()
{
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Image.Orientation"] = "6";
    const QString file = TestPhotos::writeJpeg(path(QStringLiteral("turned.jpg")),
                                               TestPhotos::quarters(QSize(120, 80)), exif);
    const auto picture = readGreyPicture(file, QSize(120, 80), 1600);
    QVERIFY(picture.ok());
    const QImage &grey = picture.value().picture;
    QCOMPARE(grey.size(), QSize(120, 80));
    // Stored: red, green above, blue, yellow below; by luminance blue < red < green < yellow.
    const int red = qGray(grey.pixel(30, 20));
    const int green = qGray(grey.pixel(90, 20));
    const int blue = qGray(grey.pixel(30, 60));
    const int yellow = qGray(grey.pixel(90, 60));
    QVERIFY(blue < red && red < green && green < yellow);
}

void TestFeatures::photosThatCannotBeUsedAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("why");
    const QImage picture = TestPhotos::quarters(QSize(120, 80));
    QTest::newRow("missing") << "missing.jpg" << QByteArray() << "";
    QTest::newRow("no photo") << "text.jpg" << QByteArray("This is no photo.") << "cannot read";
    QTest::newRow("half a PNG") << "half.png" << TestPhotos::bytesOf(picture, "png").left(120)
                                << "cannot read";
    QTest::newRow("RAW") << "raw.tif"
                         << TestPhotos::rawFile(QSize(6000, 4000), 1,
                                                { TestPhotos::jpegBytes(picture) })
                         << "RAW";
    QTest::newRow("another size") << "other.jpg"
                                  << TestPhotos::jpegBytes(TestPhotos::quarters(QSize(100, 80)))
                                  << "was 120 x 80 pixels when imported, is now 100 x 80";
}

void TestFeatures::photosThatCannotBeUsedAreRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, why);
    if (!content.isEmpty()) {
        TestPhotos::writeFile(path(name), content);
    }
    const auto picture = readGreyPicture(path(name), QSize(120, 80), 1600);
    QVERIFY(!picture.ok());
    QCOMPARE(picture.error().code, ExitCode::InputRefused);
    QVERIFY2(picture.error().text().contains(name), qPrintable(picture.error().text()));
    QVERIFY2(picture.error().why.contains(why), qPrintable(picture.error().text()));
}

void TestFeatures::spotsAreFoundInTheirMiddle_data()
{
    QTest::addColumn<double>("radius");
    QTest::newRow("small") << 2.0;
    QTest::newRow("middle") << 4.0;
    QTest::newRow("large") << 8.0;
}

void TestFeatures::spotsAreFoundInTheirMiddle()
{
    QFETCH(double, radius);
    const std::vector<QPointF> places = scattered(QSize(480, 320), 64.0);
    const FeatureSet features
        = featuresOf(AlignPictures::grey(spots(QSize(480, 320), places, radius)));
    QPointF sum;
    for (const QPointF &place : places) {
        double nearest = 1e6;
        QPointF off;
        for (const FeatureSet::Place &found : features.places) {
            if (distance(found, place) < nearest) {
                nearest = distance(found, place);
                off = QPointF(found.x - place.x(), found.y - place.y());
            }
        }
        QVERIFY2(nearest < 0.2, qPrintable(QString::number(nearest)));
        sum += off / static_cast<double>(places.size());
    }
    QVERIFY2(std::hypot(sum.x(), sum.y()) < 0.03, qPrintable(QString::number(sum.x())));
}

void TestFeatures::reducedPhotosHaveTheirFeaturesAtTheSamePlaces()
{
    const Camera camera{ QSize(600, 400), 35.0, Projection::Rectilinear };
    const QString file = path(QStringLiteral("texture.png"));
    QVERIFY(AlignPictures::photo(AlignPictures::texture(), camera, {}).save(file));
    const auto whole = readGreyPicture(file, camera.size, 600);
    const auto half = readGreyPicture(file, camera.size, 300);
    QVERIFY(whole.ok() && half.ok());
    const FeatureSet one = featuresOf(whole.value());
    const FeatureSet other = featuresOf(half.value());
    QPointF sum;
    std::vector<double> distances;
    for (int i = 0; i < other.count(); ++i) {
        // The same spot looks alike in both.
        for (int j = 0; j < one.count(); ++j) {
            const auto a = static_cast<size_t>(i);
            const auto b = static_cast<size_t>(j);
            const QPointF place(one.places[b].x, one.places[b].y);
            int product = 0;
            for (size_t k = 0; k < 128; ++k) {
                product += other.descriptors[a][k] * one.descriptors[b][k];
            }
            if (distance(other.places[a], place) < 2.0 && product > 0.93 * 512 * 512) {
                sum += QPointF(other.places[a].x - place.x(), other.places[a].y - place.y());
                distances.push_back(distance(other.places[a], place));
            }
        }
    }
    QVERIFY2(distances.size() > 100, qPrintable(QString::number(distances.size())));
    sum /= static_cast<double>(distances.size());
    QVERIFY2(std::abs(sum.x()) < 0.05 && std::abs(sum.y()) < 0.05,
             qPrintable(QStringLiteral("%1 %2").arg(sum.x()).arg(sum.y())));
    QVERIFY2(AlignPictures::median(distances) < 0.4,
             qPrintable(QString::number(AlignPictures::median(distances))));
}

void TestFeatures::featuresAreSpreadAndBounded()
{
    const Camera camera{ QSize(600, 400), 35.0, Projection::Rectilinear };
    const FeatureSet features = featuresOf(
        AlignPictures::grey(AlignPictures::photo(AlignPictures::texture(), camera, {})));
    std::array<int, 96> cells{};
    for (const FeatureSet::Place &place : features.places) {
        QVERIFY(place.x > -0.5F && place.x < 599.5F && place.y > -0.5F && place.y < 399.5F);
        const auto column = static_cast<size_t>((place.x + 0.5) / 50.0);
        const auto row = static_cast<size_t>((place.y + 0.5) / 50.0);
        ++cells.at(row * 12 + column);
    }
    int filled = 0;
    for (const int count : cells) {
        QVERIFY(count <= 22);
        filled += count >= 10 ? 1 : 0;
    }
    QVERIFY2(filled > 80, qPrintable(QString::number(filled)));
    const FeatureOptions options;
    const int bytes
        = sizeof(FeatureSet::Place) + sizeof(FeatureSet::Descriptor) + sizeof(std::uint16_t);
    QVERIFY(options.most * bytes <= 300 * 1000);
    QVERIFY(features.count() <= options.most);
}

void TestFeatures::fewerFeaturesAreTheStrongest()
{
    const Camera camera{ QSize(480, 320), 35.0, Projection::Rectilinear };
    const GreyPicture grey
        = AlignPictures::grey(AlignPictures::photo(AlignPictures::texture(), camera, {}));
    const FeatureSet many = featuresOf(grey, { 480 }); // five a cell
    const FeatureSet few = featuresOf(grey, { 96 }); // one
    QVERIFY(few.count() > 60 && few.count() <= 96 && many.count() <= 480);
    for (int i = 0; i < few.count(); ++i) {
        const auto same = std::find(many.descriptors.begin(), many.descriptors.end(),
                                    few.descriptors[static_cast<size_t>(i)]);
        QVERIFY(same != many.descriptors.end());
    }
}

void TestFeatures::picturesWithoutTextureHaveNoFeatures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("a row") << QSize(300, 1);
    QTest::newRow("a few pixels") << QSize(15, 15);
    QTest::newRow("small") << QSize(16, 16);
    QTest::newRow("large") << QSize(480, 320);
}

void TestFeatures::picturesWithoutTextureHaveNoFeatures()
{
    QFETCH(QSize, size);
    QImage flat(size, QImage::Format_RGB32);
    flat.fill(Qt::gray);
    QCOMPARE(featuresOf(AlignPictures::grey(flat)).count(), 0);
}

void TestFeatures::descriptorsHaveUnitLength()
{
    const Camera camera{ QSize(300, 200), 35.0, Projection::Rectilinear };
    const FeatureSet features = featuresOf(
        AlignPictures::grey(AlignPictures::photo(AlignPictures::texture(), camera, {})));
    QVERIFY(features.count() > 100);
    for (const FeatureSet::Descriptor &descriptor : features.descriptors) {
        double squares = 0.0;
        for (const std::uint8_t value : descriptor) {
            squares += value * value;
        }
        QVERIFY2(std::abs(std::sqrt(squares) / 512.0 - 1.0) < 0.02,
                 qPrintable(QString::number(std::sqrt(squares))));
    }
}

void TestFeatures::whiteIsCounted()
{
    // A quarter is white, a quarter nearly: 245 of 255.
    QImage photo(200, 100, QImage::Format_RGB32);
    photo.fill(qRgb(90, 90, 90));
    QPainter painter(&photo);
    painter.fillRect(0, 0, 100, 50, Qt::white);
    painter.fillRect(100, 0, 100, 50, QColor(245, 245, 245));
    painter.end();
    const QString file = path(QStringLiteral("white.png"));
    QVERIFY(photo.save(file));
    QCOMPARE(readGreyPicture(file, photo.size(), 200).value().whiteShare, 0.25);
}

void TestFeatures::lightIsLinear()
{
    // Level 188 is half of white's light, 255 all of it; spots as bright as that, wider than what
    // is averaged.
    QImage picture(240, 120, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.fillRect(QRect(40, 50, 21, 21), QColor(188, 188, 188));
    painter.fillRect(QRect(180, 50, 21, 21), Qt::white);
    painter.end();
    const FeatureSet features = featuresOf(AlignPictures::grey(picture));
    bool half = false;
    bool whole = false;
    for (int i = 0; i < features.count(); ++i) {
        const auto index = static_cast<size_t>(i);
        const QPoint place(qRound(features.places[index].x), qRound(features.places[index].y));
        const int light = features.lights[index];
        if (QRect(45, 55, 11, 11).contains(place)) {
            half = true;
            QVERIFY2(std::abs(light - 32886) < 100, qPrintable(QString::number(light)));
        } else if (QRect(185, 55, 11, 11).contains(place)) {
            whole = true;
            QCOMPARE(light, 65535);
        }
    }
    QVERIFY(half && whole);
}

void TestFeatures::theSamePictureGivesTheSameFeatures()
{
    const Camera camera{ QSize(480, 320), 24.0, Projection::Rectilinear };
    const GreyPicture grey
        = AlignPictures::grey(AlignPictures::photo(AlignPictures::texture(), camera, {}));
    QVERIFY(isSame(featuresOf(grey), featuresOf(grey)));
}

TEST_CLASS(TestFeatures, QCoreApplication)
#include "tst_features.moc"
