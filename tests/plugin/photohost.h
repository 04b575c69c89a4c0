// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "foreignhost.h"

#include <QMap>
#include <QSize>

#include <array>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

/** What a page may ask a photo. */
enum Question { kThumbnail, kFocalLength, kLensType, kShotTime, kExposure, kQuestions };
using Asked = std::array<int, kQuestions>; ///< how often, by question

/**
 * A photo that counts what it is asked, and whose answers a test may change at any time.
 *
 * A photo that its host has deleted keeps its memory, so that whoever still asks it is found out
 * instead of crashing now and then; its thumbnail is really gone.
 */
class WatchedPhoto : public Photo
{
public:
    enum class Preview {
        Picture,
        EmptyPixmap,
        NoPixmap,
    };

    explicit WatchedPhoto(int photoNumber)
        : number(photoNumber)
        , time(photoNumber)
    {
    }

    const int number; ///< in the order of reading, from 0
    // The answers, besides those of every photo:
    Preview preview = Preview::Picture;
    QSize size{ 60, 40 };
    int edition = 0; ///< of the picture; after a change call showEdition()
    long time;

    /** Shows \p newEdition, half of all photos in the pixmap that they already had. */
    void showEdition(int newEdition);
    /** The picture that the page must show now; null: none. Not counted. */
    [[nodiscard]] const QPixmap *shown();

    [[nodiscard]] const Asked &asked() const { return m_asked; }
    [[nodiscard]] int askedWhileGone() const { return m_askedWhileGone; }
    /** Runs before each answer, and may change it. */
    std::function<void(WatchedPhoto &photo)> beforeAnswer;
    /** The host deletes it. */
    void die();
    /** The host makes another photo at the same address. */
    void live();

    QPixmap *thumbnail() override;
    float focalLength() override;
    int lensType() override;
    long shotTime() override;
    float exposure() override;

private:
    bool note(Question question);
    QPixmap *pixmap();

    std::unique_ptr<QPixmap> m_pixmap; // made by the GUI thread
    Asked m_asked{};
    bool m_isGone = false;
    int m_askedWhileGone = 0;
};

/** A host that gives out watched photos, each when the test lets it. */
class PhotoHost : public Host
{
public:
    PhotoHost(int &argc, char **argv);

    /** Forgets everything; no page is left. */
    void beginTest();
    /** Looks as it did at first. */
    void restoreLooks() const;

    /** Changes the answers of a photo that is about to be given out, on the reading thread. */
    std::function<void(WatchedPhoto &photo)> prepare;
    std::function<void()> imported; ///< runs while the page hands over
    /** Photos given out from now on have the addresses of the earlier ones, which are gone. */
    void reuseAddresses();

    /** Each photo waits from now on until it is let. No photo is being read. */
    void hold();
    /** Waits until the page's reading thread asks for a photo. */
    void waitUntilAsked();
    /** Gives out \p photos more. */
    void letRead(int photos) { m_gates->given.open(photos); }
    /** No photo waits any more. */
    void release();

    [[nodiscard]] std::vector<WatchedPhoto *> watched() const;
    /** Of the photo that is given out next, among the watched ones. */
    [[nodiscard]] int nextNumber() const;
    /** Shared, because a hundred large pictures take much memory: every eighth photo has the same.
     */
    [[nodiscard]] QPixmap picture(const WatchedPhoto &photo);
    void deletePhotos() const;
    /** Deletes them and gives their memory back, so that nothing is counted any more. */
    void freePhotos();
    /** How often photos were asked anything. */
    [[nodiscard]] int asked() const;
    [[nodiscard]] int askedWhileGone() const;

    Contract::Image *createImage(const QString &fileName) override;
    void import(Contract::Description description) override;

private:
    struct Gates {
        Gate asked; ///< opened by each photo
        Gate given; ///< passed by each photo
    };

    QString m_style;
    QFont m_font;
    std::unique_ptr<Gates> m_gates = std::make_unique<Gates>();
    std::atomic_bool m_holds{ true };
    mutable std::mutex m_watchedMutex; ///< guards the two members below
    std::vector<std::unique_ptr<WatchedPhoto>> m_watched;
    std::size_t m_next = 0;
    QMap<QVector<int>, QPixmap> m_pictures;
};

inline PhotoHost &photoHost()
{
    return static_cast<PhotoHost &>(host());
}
