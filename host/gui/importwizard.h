// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/givenfiles.h"
#include "host/model/delivery.h"
#include "host/model/panorama.h"
#include "host/plugin/panohostapplication.h"
#include "host/plugin/pluginlibrary.h"

#include <QMessageBox>
#include <QWizard>

#include <functional>

class QFileDialog;

namespace PanoHost
{

class BelowPages;
class ChoicePage;
class FileDrop;
class LatestJob;
class MakePage;
class PageKeeper;
class ReadingBar;
class ResultPage;
class ShootDesk;
class ShootStrip;
struct RecentShoot;

/**
 * The import wizard: choose the head, work its plug-in's page, look at the result and save it.
 * The plug-ins' pages stay the plug-ins' own: they are taken out again before this object goes, so
 * delete the wizard before the library is unloaded.
 */
class ImportWizard : public QWizard
{
    Q_OBJECT
public:
    /** \p app and \p library outlive the wizard. */
    ImportWizard(PanoHostApplication &app, const PluginLibrary &library, QWidget *parent = nullptr);
    ~ImportWizard() override;

    [[nodiscard]] int nextId() const override;

    /**
     * Fills \p files, paths or file URLs, into the page of a plug-in, as if the user had chosen
     * them there: the last one ending in ".xml" or ".txt" is the record, the others are photos.
     * Goes to the page of a head that reads it first; photos alone wait for the user to choose
     * the head. Photos that were there stay when none are among them. What lies in folders, and
     * what takes time to look at, follows later.
     */
    void fillIn(const QStringList &files);
    /** The same once the keyboard is this window's: the dialogs of pages would keep it from it. */
    void fillInWhenActive(const QStringList &files);

    [[nodiscard]] bool validateCurrentPage() override;
    /** What the last Next of a plug-in's page made; the reason when it cannot be used. */
    [[nodiscard]] const Result<Panorama> &panorama() const { return m_panorama; }

    void cleanupPage(int id) override;
    /** Both ask when something would be lost. */
    void accept() override;
    void reject() override;
    /** Closes without asking. */
    void done(int result) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void keepPages();
    void setUpStrip();
    void fillInWaiting();
    void fillIn(const RecentShoot &shoot);
    void gather(const std::function<GivenFiles(const JobWatch &)> &look);
    void rememberShoot();
    void take(GivenFiles given);
    void giveTo(const GivenFiles &given);
    void goTo(int plugin);
    [[nodiscard]] bool takeOtherRecord(const QStringList &files, const QFileDialog *dialog);
    [[nodiscard]] PageKeeper *keeper() const;
    void enterPage();
    void importAnother();
    [[nodiscard]] bool isBehindPages() const;
    [[nodiscard]] bool isUnsaved() const;
    [[nodiscard]] bool wouldLose() const;
    void followPhotoDialogs(QObject *watched);
    void beginReading(const QStringList &files);
    void endReading();
    void setUpSubtitle();
    void rememberChoice(int id);
    void tellThrown(const QString &why);
    [[nodiscard]] QString helpText() const;
    void showMessage(QMessageBox::Icon icon, const QString &title, const QString &text);
    [[nodiscard]] const ImportPlugin *pluginOf(int id) const;

    PanoHostApplication &m_app;
    const PluginLibrary &m_library;
    ChoicePage *m_choicePage;
    ResultPage *m_resultPage;
    MakePage *m_makePage;
    DeliveryLog m_deliveries;
    Result<Panorama> m_panorama = Failure();
    ReadingBar *m_readingBar;
    ShootStrip *m_strip;
    BelowPages *m_below;
    ShootDesk *m_desk;
    FileDrop *m_drop;
    LatestJob *m_gatherer; ///< looks into folders
    QVector<PageKeeper *> m_keepers; ///< one for each plug-in; null: it has no page
    GivenFiles m_held; ///< until the user chooses the head
    bool m_isTellingThrown = false;
    QStringList m_waiting; ///< to be filled in
};

} // namespace PanoHost
