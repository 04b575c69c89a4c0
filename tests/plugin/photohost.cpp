// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "photohost.h"

#include <QPainter>
#include <QStyle>

#include <chrono>
#include <numeric>

void WatchedPhoto::showEdition(int newEdition)
{
    edition = newEdition;
    preview = Preview::Picture;
    if (m_pixmap && number % 2 == 0) {
        *m_pixmap = photoHost().picture(*this);
    } else {
        m_pixmap = std::make_unique<QPixmap>(photoHost().picture(*this));
    }
}

QPixmap *WatchedPhoto::pixmap()
{
    if (preview == Preview::NoPixmap) {
        return nullptr;
    }
    if (!m_pixmap) {
        m_pixmap = std::make_unique<QPixmap>();
    }
    if (preview == Preview::Picture && m_pixmap->isNull()) {
        *m_pixmap = photoHost().picture(*this);
    }
    return m_pixmap.get();
}

const QPixmap *WatchedPhoto::shown()
{
    const QPixmap *thumbnail = pixmap();
    return thumbnail == nullptr || thumbnail->isNull() ? nullptr : thumbnail;
}

void WatchedPhoto::die()
{
    m_pixmap.reset();
    m_isGone = true;
}

void WatchedPhoto::live()
{
    m_isGone = false;
    m_asked = {};
}

bool WatchedPhoto::note(Question question)
{
    if (beforeAnswer && !m_isGone) {
        beforeAnswer(*this);
    }
    ++m_asked[question];
    m_askedWhileGone += m_isGone ? 1 : 0;
    return !m_isGone;
}

QPixmap *WatchedPhoto::thumbnail()
{
    return note(kThumbnail) ? pixmap() : nullptr;
}

float WatchedPhoto::focalLength()
{
    return note(kFocalLength) ? focal : 0.0F;
}

int WatchedPhoto::lensType()
{
    return note(kLensType) ? lens : 0;
}

long WatchedPhoto::shotTime()
{
    return note(kShotTime) ? time : 0;
}

float WatchedPhoto::exposure()
{
    return note(kExposure) ? light : 0.0F;
}

PhotoHost::PhotoHost(int &argc, char **argv)
    : Host(argc, argv)
    , m_style(style()->objectName())
    , m_font(font())
{
}

void PhotoHost::beginTest()
{
    forget();
    prepare = nullptr;
    imported = nullptr;
    hold();
    freePhotos();
}

void PhotoHost::restoreLooks() const
{
    host().setStyleSheet({});
    setStyle(m_style);
    setPalette(QPalette());
    setFont(m_font);
    setLayoutDirection(Qt::LeftToRight);
}

void PhotoHost::hold()
{
    m_gates = std::make_unique<Gates>();
    m_holds = true;
}

void PhotoHost::waitUntilAsked()
{
    constexpr std::chrono::minutes kLimit{ 2 };
    if (!m_gates->asked.passWithin(kLimit)) {
        qFatal("No photo is asked for");
    }
}

void PhotoHost::release()
{
    m_holds = false;
    m_gates->given.open(); // for the one that waits
}

void PhotoHost::reuseAddresses()
{
    const std::lock_guard lock(m_watchedMutex);
    m_next = 0;
}

std::vector<WatchedPhoto *> PhotoHost::watched() const
{
    const std::lock_guard lock(m_watchedMutex);
    std::vector<WatchedPhoto *> answer;
    for (const auto &photo : m_watched) {
        answer.push_back(photo.get());
    }
    return answer;
}

int PhotoHost::nextNumber() const
{
    const std::lock_guard lock(m_watchedMutex);
    return static_cast<int>(m_next);
}

void PhotoHost::deletePhotos() const
{
    for (WatchedPhoto *photo : watched()) {
        photo->die();
    }
}

void PhotoHost::freePhotos()
{
    const std::lock_guard lock(m_watchedMutex);
    m_watched.clear();
    m_next = 0;
}

int PhotoHost::asked() const
{
    int count = 0;
    for (const WatchedPhoto *photo : watched()) {
        count = std::accumulate(photo->asked().cbegin(), photo->asked().cend(), count);
    }
    return count;
}

int PhotoHost::askedWhileGone() const
{
    int count = 0;
    for (const WatchedPhoto *photo : watched()) {
        count += photo->askedWhileGone();
    }
    return count;
}

QPixmap PhotoHost::picture(const WatchedPhoto &photo)
{
    constexpr int kHues = 8;
    const QSize &size = photo.size;
    const int hue = photo.number % kHues * 360 / kHues;
    QPixmap &pixmap = m_pictures[{ hue, photo.edition, size.width(), size.height() }];
    if (pixmap.isNull()) {
        pixmap = QPixmap(size);
        pixmap.fill(QColor::fromHsv(hue, photo.edition % 2 == 0 ? 255 : 120, 255));
        // One corner is marked, so that a turned picture differs.
        QPainter painter(&pixmap);
        painter.fillRect(0, 0, size.width() / 2, size.height() / 3, Qt::darkBlue);
    }
    return pixmap;
}

Contract::Image *PhotoHost::createImage(const QString &)
{
    if (m_holds) {
        m_gates->asked.open();
        m_gates->given.pass();
    }
    const std::lock_guard lock(m_watchedMutex);
    if (m_next == m_watched.size()) {
        m_watched.push_back(std::make_unique<WatchedPhoto>(static_cast<int>(m_next)));
    }
    WatchedPhoto *photo = m_watched.at(m_next++).get();
    photo->live();
    if (prepare) {
        prepare(*photo);
    }
    return photo;
}

void PhotoHost::import(Contract::Description description)
{
    Host::import(description);
    if (imported) {
        imported();
    }
}
