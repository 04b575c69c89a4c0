// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/xiimagedef.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <memory>

class Gate;

/** What the host double answers for one photo. */
struct FakePhoto {
    enum class Reading {
        Succeeds,
        Fails, ///< the host answers null
        Throws, ///< the host throws a std::runtime_error
    };
    enum class Preview {
        SolidColour, ///< a pixmap of `size` in `colour`
        TwoHalves, ///< the left half in `colour`, the right one in `rightColour`
        NullPixmap, ///< a pixmap without pixels
        NullPointer, ///< no pixmap at all
    };

    Reading reading = Reading::Succeeds;
    Preview preview = Preview::SolidColour;
    QColor colour = Qt::gray;
    QColor rightColour = Qt::black;
    QSize size = QSize(96, 64);
    float focalMm = 24.0F;
    int lensType = 0;
    long shotTime = 0;
    float exposure = 0.0F;
    int spins = 0; ///< how often the host yields its processor before it answers
    Gate *enter = nullptr; ///< opened once when the host begins with the photo
    Gate *leave = nullptr; ///< the host needs a pass through this one before it answers
};

/** The host's object for one photo. Its pixmap is made when it is first asked for (GUI thread). */
class FakeImage : public XIImageDef
{
public:
    FakeImage(QString fileName, const FakePhoto &photo);
    ~FakeImage() override;

    [[nodiscard]] const QString &fileName() const { return m_fileName; }
    /** How often the thumbnail was asked for. */
    [[nodiscard]] int thumbnailRequests() const { return m_thumbnailRequests; }
    /** The answers may be changed while a page holds the image. */
    [[nodiscard]] FakePhoto &photo() { return m_photo; }

    QPixmap *Thumbnail() override;
    void Reserved1() override;
    void Reserved2() override;
    void Reserved3() override;
    void Reserved4() override;
    void Reserved5() override;
    void Reserved6() override;
    void Reserved7() override;
    void Reserved8() override;
    void Reserved9() override;
    void Reserved10() override;
    float FocalLength() override { return m_photo.focalMm; }
    int LensType() override { return m_photo.lensType; }
    long ShotTime() override { return m_photo.shotTime; }
    float Exposure() override { return m_photo.exposure; }

private:
    QString m_fileName;
    FakePhoto m_photo;
    std::unique_ptr<QPixmap> m_pixmap;
    int m_thumbnailRequests = 0;
};
