// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"
#include "tests/host/cameraphotos.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QBuffer>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

#include <exiv2/exiv2.hpp>

using namespace PanoHost;

class CameraPhotosTest : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void photosDifferInTimeAlone();
    void thumbnailHasBars();
    void photoWithoutThumbnailHasNone();
    void rawFileHasAPreview();

private:
    [[nodiscard]] PhotoInfo infoOf(const QByteArray &photo) const
    {
        const auto info = readPhotoInfo(
            TestPhotos::writeFile(m_folder.filePath(QStringLiteral("photo")), photo));
        return info ? info.value() : PhotoInfo();
    }
    /** The previews that exiv2 finds in \p photo, the largest last. */
    [[nodiscard]] static QVector<QImage> previewsOf(const QByteArray &photo)
    {
        const auto image = Exiv2::ImageFactory::open(
            reinterpret_cast<const Exiv2::byte *>(photo.constData()), photo.size());
        image->readMetadata();
        const Exiv2::PreviewManager manager(*image);
        QVector<QImage> previews;
        for (const auto &properties : manager.getPreviewProperties()) {
            const Exiv2::PreviewImage preview = manager.getPreviewImage(properties);
            previews += QImage::fromData(preview.pData(), static_cast<int>(preview.size()), "JPG");
        }
        return previews;
    }

    const CameraPhotos m_photos{ 1 };
    QTemporaryDir m_folder;
};

void CameraPhotosTest::photosDifferInTimeAlone()
{
    const QByteArray first = m_photos.jpeg(0, CameraPhotos::Inside::Thumbnail);
    const QByteArray later = m_photos.jpeg(720, CameraPhotos::Inside::Thumbnail);
    QVERIFY(first.size() < 3'000'000);
    QCOMPARE(later.size(), first.size());
    QCOMPARE(infoOf(first).storedSize, QSize(6000, 4000));
    QCOMPARE(infoOf(first).timeText, QStringLiteral("2024-05-01T10:00:00"));
    QCOMPARE(infoOf(later).timeText, QStringLiteral("2024-05-01T11:00:00"));
    QCOMPARE(infoOf(later).focal35mm, 800.0);
    QCOMPARE(infoOf(later).lens, LensModel::Standard);
    // The header of the picture itself is intact.
    QBuffer buffer;
    buffer.setData(later);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(QImageReader(&buffer).size(), QSize(6000, 4000));
}

void CameraPhotosTest::thumbnailHasBars()
{
    const QVector<QImage> previews = previewsOf(m_photos.jpeg(0, CameraPhotos::Inside::Thumbnail));
    QCOMPARE(previews.size(), 1);
    QCOMPARE(previews.first().size(), QSize(160, 120));
    // 160 x 107 of a photo of 3:2, so bars of six rows.
    QVERIFY(qGray(previews.first().pixel(80, 2)) < 10);
    QVERIFY(qGray(previews.first().pixel(80, 60)) > 50);
    QVERIFY(qGray(previews.first().pixel(80, 117)) < 10);
}

void CameraPhotosTest::photoWithoutThumbnailHasNone()
{
    QVERIFY(previewsOf(m_photos.jpeg(0, CameraPhotos::Inside::Nothing)).isEmpty());
}

void CameraPhotosTest::rawFileHasAPreview()
{
    const QByteArray photo = m_photos.raw(0);
    QCOMPARE(infoOf(photo).storedSize, QSize(6000, 4000));
    const QVector<QImage> previews = previewsOf(photo);
    QVERIFY(!previews.isEmpty());
    QCOMPARE(previews.last().size(), QSize(1620, 1080));
}

TEST_CLASS(CameraPhotosTest, QCoreApplication)
#include "tst_cameraphotos.moc"
