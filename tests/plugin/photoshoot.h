// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostcontract.h"
#include "hosthead.h"
#include "layoutpicture.h"
#include "photohost.h"

#include <QImage>
#include <QLabel>
#include <QMetaType>
#include <QPointer>
#include <QTemporaryDir>
#include <QWizard>

#include <vector>

class PhotoShoot;

/** Something that makes a page redraw its picture as a whole. */
struct Redraw {
    const char *name;
    void (*perform)(PhotoShoot &shoot);
};

/** A head with what redraws its page. */
struct Head : HostHead {
    std::vector<Redraw> redraws;
};
Q_DECLARE_METATYPE(const Head *)
Q_DECLARE_METATYPE(const Redraw *)

[[nodiscard]] const std::vector<Head> &allHeads();
/** Adds the heads as test data: "head". */
void addHeads(bool (*isWanted)(const Head &head) = nullptr);
/** Adds all redraws of all heads as test data: "head" and "redraw". */
void addRedraws(bool (*isWanted)(const Head &head) = nullptr);

/**
 * A shoot of rows and columns on the page of one head, in a wizard between two pages of the host.
 * Drives the page and knows which picture it has to show.
 */
class PhotoShoot
{
public:
    PhotoShoot(const Head &shotWith, int rows, int columns);
    ~PhotoShoot();
    Q_DISABLE_COPY(PhotoShoot)

    /** Chooses record and photos; the host has been asked for the first photo and waits. */
    void choose();
    /** Chooses other photos, as many. */
    void chooseOthers();
    /** Has \p photos more read; the page has not heard of them yet. */
    void read(int photos);
    void readRest() { read(photosToRead()); }
    /** The page hears of the photos read. No timer runs meanwhile. */
    void deliver();
    /** Everything of the above. */
    void load();

    /** Next, which has to be accepted. */
    void goOn();
    void goBack() { m_wizard->back(); }
    void goForward() { m_wizard->next(); }
    /** With its pages, as far as they have not been deleted. */
    void closeWizard() { m_wizard.reset(); }

    [[nodiscard]] QWizardPage *page() const { return m_page; }
    [[nodiscard]] QObject *plugin() const { return m_plugin; }
    /** The library's root object, which deletes its plug-ins. */
    [[nodiscard]] QObject *library() const { return m_library; }
    [[nodiscard]] QWizard &wizard() { return *m_wizard; }
    [[nodiscard]] int photoCount() const { return m_photos.size(); }
    /** The photos chosen last, as far as they are read, in the order of reading. */
    [[nodiscard]] std::vector<WatchedPhoto *> photos() const;
    [[nodiscard]] QLabel *label() const { return m_label; }
    template <typename Widget> [[nodiscard]] Widget *find(const char *name) const
    {
        auto *found = m_page->findChild<Widget *>(QString::fromLatin1(name));
        if (found == nullptr) {
            qFatal("The page has no %s", name);
        }
        return found;
    }
    void click(const char *button) const;
    void zoom(int percent) const;
    void setMode(int mode);
    void invert();
    void rotate(int degrees, const char *button);

    /** What the preview shows; null without a page. */
    [[nodiscard]] QImage picture() const;
    /** What it has to show with the answers that the photos read would give now. */
    [[nodiscard]] QImage expected() const;
    /** Empty when both are the same. */
    [[nodiscard]] QString wrong() const;
    /** Of those chosen. */
    [[nodiscard]] int photosToRead() const { return m_photos.size() - m_read; }
    /** Of the page and what the library has put on it. */
    [[nodiscard]] int runningTimers() const;

private:
    void choosePhotos();
    void chooseFiles(const char *button, const QStringList &files) const;
    [[nodiscard]] QByteArray record() const;
    [[nodiscard]] LayoutPicture::Thumbnails thumbnails() const;

    const Head &m_head;
    QTemporaryDir m_folder;
    QVector<LayoutPicture::Shot> m_shots;
    QStringList m_photos;
    int m_first = 0; ///< of the photos chosen last, among all that the host gave out
    int m_read = 0; ///< of them
    int m_mode = 0;
    Contract::Module m_module;
    std::unique_ptr<QWizard> m_wizard = std::make_unique<QWizard>();
    QPointer<QObject> m_library;
    QPointer<QObject> m_plugin;
    QPointer<QWizardPage> m_page;
    QPointer<QLabel> m_label;
};

/** Lets the event loop turn often enough for everything that is due, and for timers of no time. */
void turnEventLoop();
