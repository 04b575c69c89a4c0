// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/fakeimage.h"

#include <QPainter>

#include <utility>

FakeImage::FakeImage(QString fileName, const FakePhoto &photo)
    : m_fileName(std::move(fileName))
    , m_photo(photo)
{
}

FakeImage::~FakeImage() = default;

QPixmap *FakeImage::Thumbnail()
{
    ++m_thumbnailRequests;
    if (m_photo.preview == FakePhoto::Preview::NullPointer) {
        return nullptr;
    }
    if (!m_pixmap) {
        m_pixmap = std::make_unique<QPixmap>();
        if (m_photo.preview != FakePhoto::Preview::NullPixmap) {
            *m_pixmap = QPixmap(m_photo.size);
            m_pixmap->fill(m_photo.colour);
        }
        if (m_photo.preview == FakePhoto::Preview::TwoHalves) {
            const int half = m_photo.size.width() / 2;
            QPainter painter(m_pixmap.get());
            painter.fillRect(half, 0, m_photo.size.width() - half, m_photo.size.height(),
                             m_photo.rightColour);
        }
    }
    return m_pixmap.get();
}

void FakeImage::Reserved1()
{
    qFatal("Reserved1 of a photo was called");
}
void FakeImage::Reserved2()
{
    qFatal("Reserved2 of a photo was called");
}
void FakeImage::Reserved3()
{
    qFatal("Reserved3 of a photo was called");
}
void FakeImage::Reserved4()
{
    qFatal("Reserved4 of a photo was called");
}
void FakeImage::Reserved5()
{
    qFatal("Reserved5 of a photo was called");
}
void FakeImage::Reserved6()
{
    qFatal("Reserved6 of a photo was called");
}
void FakeImage::Reserved7()
{
    qFatal("Reserved7 of a photo was called");
}
void FakeImage::Reserved8()
{
    qFatal("Reserved8 of a photo was called");
}
void FakeImage::Reserved9()
{
    qFatal("Reserved9 of a photo was called");
}
void FakeImage::Reserved10()
{
    qFatal("Reserved10 of a photo was called");
}
