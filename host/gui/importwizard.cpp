// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/importwizard.h"

#include "host/gui/belowpages.h"
#include "host/gui/choicepage.h"
#include "host/gui/filedrop.h"
#include "host/gui/helpmenu.h"
#include "host/gui/makepage.h"
#include "host/gui/pagekeeper.h"
#include "host/gui/previewguide.h"
#include "host/gui/programicon.h"
#include "host/gui/readingbar.h"
#include "host/gui/recentlist.h"
#include "host/gui/resultpage.h"
#include "host/gui/shootdesk.h"
#include "host/gui/shootstrip.h"
#include "host/import/importjob.h"
#include "host/model/latestjob.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScrollArea>
#include <QTabWidget>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <iterator>
#include <utility>

namespace PanoHost
{

namespace
{

constexpr int kChoiceId = 0;
constexpr int kFirstPluginId = 1;
constexpr int kResultId = 1000;
constexpr int kMakeId = 1001;
constexpr QSize kFirstSize(900, 720);

QString settingsGroup()
{
    return QStringLiteral("panohost");
}
QString headKey()
{
    return QStringLiteral("lastHead");
}
QString geometryKey()
{
    return QStringLiteral("wizardGeometry");
}

/** Whether the window need not be kept alive while somebody looks at \p paths. */
bool isSoonLookedAt(const QStringList &paths)
{
    constexpr int kMostPaths = 100;
    constexpr qint64 kMostRecordBytes = 1 << 18;
    return paths.size() <= kMostPaths
        && std::none_of(paths.begin(), paths.end(), [](const QString &path) {
               const QFileInfo file(path);
               return file.isDir() || (isRecord(path) && file.size() > kMostRecordBytes);
           });
}

} // namespace

ImportWizard::ImportWizard(PanoHostApplication &app, const PluginLibrary &library, QWidget *parent)
    : QWizard(parent)
    , m_app(app)
    , m_library(library)
    , m_choicePage(new ChoicePage(library.plugins(), app.settings()))
    , m_resultPage(new ResultPage(app))
    , m_makePage(new MakePage(app, makeSteps(app)))
    , m_readingBar(new ReadingBar(this))
    , m_strip(new ShootStrip(this))
    , m_below(new BelowPages(this, m_readingBar, m_strip))
    , m_desk(new ShootDesk(app, m_strip, this))
    , m_drop(new FileDrop(this))
    , m_gatherer(new LatestJob(this))
{
    setWindowTitle(tr("Import a panorama"));
    setWindowIcon(programIcon());
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::HaveHelpButton);
    setOption(QWizard::HaveCustomButton1);
    setButtonText(QWizard::CustomButton1, tr("&Another import"));
    setPage(kChoiceId, m_choicePage);
    for (int i = 0; i < library.plugins().size(); ++i) {
        if (QWizardPage *page = library.plugins().at(i).page()) {
            setPage(kFirstPluginId + i, page);
        }
    }
    setPage(kResultId, m_resultPage);
    setPage(kMakeId, m_makePage);
    setStartId(kChoiceId);

    const QString last = app.ReadSetting(settingsGroup(), headKey(), QString()).toString();
    for (int i = 0; i < library.plugins().size(); ++i) {
        if (library.plugins().at(i).head() == last) {
            m_choicePage->choose(i);
        }
    }
    resize(kFirstSize.boundedTo(m_below->largestSize()));
    restoreGeometry(app.ReadSetting(settingsGroup(), geometryKey(), QByteArray()).toByteArray());
    // Photos are read on the pages' threads.
    connect(&app, &PanoHostApplication::photoRead, m_readingBar, &ReadingBar::advance,
            Qt::QueuedConnection);
    app.setTellThrown([this](const QString &why) { tellThrown(why); });
    keepPages();
    setUpStrip();
    qApp->installEventFilter(this);
    connect(m_makePage, &MakePage::made, this, [this](const MadePanorama &made) {
        if (made.alignment) {
            m_resultPage->setAlignment(*made.alignment, made.residuals);
        }
    });
    connect(this, &QWizard::currentIdChanged, this, &ImportWizard::setUpSubtitle);
    connect(this, &QWizard::currentIdChanged, this, [this] {
        // Its size was asked for before it was shown, when fonts and styles had not settled.
        if (currentPage() != nullptr) {
            currentPage()->updateGeometry();
        }
    });
    connect(this, &QWizard::currentIdChanged, this, &ImportWizard::rememberChoice);
    connect(this, &QWizard::currentIdChanged, this, &ImportWizard::enterPage);
    connect(this, &QWizard::customButtonClicked, this, &ImportWizard::importAnother);
    addHelpMenu(this, app, library, [this] { return helpText(); });
}

ImportWizard::~ImportWizard()
{
    m_app.setTellThrown({});
    // The choice page and the result page are this wizard's; the others go with their plug-ins.
    disconnect(this, &QWizard::currentIdChanged, this, nullptr);
    qDeleteAll(m_keepers);
    m_keepers.clear();
    for (int i = 0; i < m_library.plugins().size(); ++i) {
        QWizardPage *page = this->page(kFirstPluginId + i);
        if (page == nullptr) {
            continue;
        }
        removePage(kFirstPluginId + i);
        page->hide();
        page->setParent(nullptr);
    }
}

void ImportWizard::keepPages()
{
    m_keepers.resize(m_library.plugins().size());
    for (int i = 0; i < m_keepers.size(); ++i) {
        const HeadFacts *head = PanoHead::headFactsOf(m_library.plugins().at(i).head());
        QWizardPage *page = this->page(kFirstPluginId + i);
        if (head != nullptr && page != nullptr) {
            m_keepers[i] = new PageKeeper(page, *head, m_app, this);
            connect(m_keepers.at(i), &PageKeeper::changed, m_desk, &ShootDesk::look);
            (void)new PreviewGuide(page, !head->isGrid(), m_keepers.at(i));
            for (QTabWidget *tabs : page->findChildren<QTabWidget *>()) {
                tabs->setAccessibleName(page->title());
            }
        }
    }
}

void ImportWizard::setUpStrip()
{
    m_strip->hide();
    connect(m_drop, &FileDrop::given, this,
            QOverload<const QStringList &>::of(&ImportWizard::fillIn));
    connect(m_choicePage->recent(), &RecentList::openWanted, this,
            QOverload<const RecentShoot &>::of(&ImportWizard::fillIn));
    connect(m_desk, &ShootDesk::failed, this,
            [this](const QString &why) { showMessage(QMessageBox::Warning, tr("Not done"), why); });
    connect(m_desk, &ShootDesk::looked, this, [this] {
        if (currentId() == kResultId) {
            m_resultPage->setRemarks(m_desk->remarks());
        }
    });
    connect(m_desk, &ShootDesk::switchWanted, this, [this](const HeadFacts *head) {
        GivenFiles given;
        given.record = keeper()->record();
        given.photos = keeper()->photos();
        for (int i = 0; i < m_keepers.size(); ++i) {
            if (m_keepers.at(i) != nullptr && &m_keepers.at(i)->head() == head) {
                goTo(i);
                giveTo(given);
            }
        }
    });
}

/** Of the plug-in whose page is in front; null on the other pages. */
PageKeeper *ImportWizard::keeper() const
{
    return m_keepers.value(currentId() - kFirstPluginId);
}

int ImportWizard::nextId() const
{
    if (currentId() == kChoiceId) {
        const int chosen = m_choicePage->chosen();
        return chosen < 0 ? kResultId : kFirstPluginId + chosen;
    }
    if (currentId() == kResultId) {
        return m_panorama ? kMakeId : -1;
    }
    return currentId() == kMakeId ? -1 : kResultId;
}

/** Nothing can be dropped there any more. */
bool ImportWizard::isBehindPages() const
{
    return currentId() == kResultId || currentId() == kMakeId;
}

void ImportWizard::fillIn(const QStringList &files)
{
    const QStringList paths = localPaths(files);
    const auto look = [paths](const JobWatch &watch) {
        GivenFiles given = sortFiles(withoutFolders(paths, watch));
        preferReadableRecord(given);
        return given;
    };
    if (isSoonLookedAt(paths)) {
        m_gatherer->stop();
        take(look({}));
        return;
    }
    gather(look);
}

/** Takes what \p look finds, on a thread of its own. */
void ImportWizard::gather(const std::function<GivenFiles(const JobWatch &)> &look)
{
    m_choicePage->setNothingGiven(true);
    m_gatherer->start([this, look](const JobWatch &watch) -> std::function<void()> {
        const GivenFiles given = look(watch);
        return [this, given] { take(given); };
    });
}

void ImportWizard::fillIn(const RecentShoot &shoot)
{
    for (int i = 0; i < m_library.plugins().size(); ++i) {
        if (m_library.plugins().at(i).head() == shoot.head) {
            m_choicePage->choose(i);
        }
    }
    gather([shoot](const JobWatch &watch) {
        GivenFiles given = sortFiles(withoutFolders(shoot.files(), watch));
        preferReadableRecord(given);
        return given;
    });
}

void ImportWizard::rememberShoot()
{
    const PageKeeper *page = keeper();
    if (page == nullptr || page->photos().isEmpty() || !m_panorama) {
        return;
    }
    const auto *area = page->page()->findChild<QScrollArea *>(QStringLiteral("m_saPreview"));
    const auto *preview = area == nullptr ? nullptr : qobject_cast<QLabel *>(area->widget());
    QStringList photos = page->photos();
    photos.sort(Qt::CaseSensitive);
    m_choicePage->recent()->add(RecentShoot::of(page->head().name(), page->record(), photos),
                                preview == nullptr ? QPixmap()
                                                   : preview->pixmap(Qt::ReturnByValue));
}

void ImportWizard::fillInWhenActive(const QStringList &files)
{
    m_waiting = files;
    if (isActiveWindow()) {
        fillInWaiting();
        return;
    }
    activateWindow();
    // Desktops may leave the keyboard with the window where the user is writing.
    constexpr int kPatienceMs = 2000;
    QTimer::singleShot(kPatienceMs, this, &ImportWizard::fillInWaiting);
}

void ImportWizard::fillInWaiting()
{
    if (!m_waiting.isEmpty()) {
        fillIn(std::exchange(m_waiting, {}));
    }
}

void ImportWizard::take(GivenFiles given)
{
    if (isBehindPages()) {
        return;
    }
    if ((QGuiApplication::keyboardModifiers() & Qt::ControlModifier) != 0) {
        // As after pasting. Pages then show where the photos lie instead of taking some.
        constexpr int kSoonMs = 20;
        QTimer::singleShot(kSoonMs, this, [this, given] { take(given); });
        return;
    }
    const int current = currentId() - kFirstPluginId;
    const bool isChoosing = currentId() == kChoiceId;
    int head = headFor(given, m_library.plugins(), isChoosing ? m_choicePage->chosen() : current);
    if (!isChoosing && head != current && given.reader == nullptr) {
        // Notes of somebody: no reason to go to another page.
        given.otherRecords += std::exchange(given.record, {});
        head = current;
    }
    if (isChoosing && given.photos.isEmpty()) {
        given.photos = m_held.photos;
    }
    if (given.record.isEmpty() && given.photos.isEmpty()) {
        m_choicePage->setNothingGiven();
        showMessage(QMessageBox::Information, tr("Files not taken"),
                    tr("Neither records nor photos are among these files."));
        return;
    }
    // Sorted as they are, only their names can be in the way.
    if (PhotoAliases::areNeeded(given.photos)) {
        showMessage(QMessageBox::Warning, tr("Files not taken"),
                    tr("The name of a photo holds a double quote or a line end, which file dialogs "
                       "cannot take. "
                       "Rename it, or use \"panohost import\" on the command line."));
        return;
    }
    QStringList photos = given.photos;
    if (isChoosing) {
        m_choicePage->setGiven(given);
        if (head < 0) {
            m_held = given;
            return;
        }
        m_held = {};
        m_choicePage->choose(head);
        if (keeper() == nullptr && m_keepers.value(head) != nullptr && !photos.isEmpty()) {
            m_keepers.value(head)->forgetKept();
        }
        next();
    } else if (head != current) {
        if (photos.isEmpty() && keeper() != nullptr) {
            photos = keeper()->photos();
        }
        goTo(head);
    }
    giveTo({ given.record, photos, given.otherRecords, given.own });
}

/** To the page in front. */
void ImportWizard::giveTo(const GivenFiles &given)
{
    PageKeeper *page = keeper();
    if (page == nullptr) {
        return;
    }
    try {
        if (!given.record.isEmpty() && !page->head().isGrid()) {
            page->enterRecord(given.record);
        }
        if (!given.photos.isEmpty()) {
            constexpr int kMany = 1000;
            if (given.photos.size() > kMany) {
                m_readingBar->announce(given.photos.size());
            }
            page->give(given.photos);
        }
        page->pageChanged();
        page->setNotTaken(given.otherRecords, given.own);
    } catch (const CommandError &error) {
        m_readingBar->end();
        showMessage(QMessageBox::Warning, tr("Files not taken"), error.failure().text());
    }
    m_desk->look();
}

/** From one plug-in's page to that of another. */
void ImportWizard::goTo(int plugin)
{
    back();
    m_keepers.value(plugin)->forgetKept();
    m_choicePage->choose(plugin);
    next();
}

bool ImportWizard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        followPhotoDialogs(watched);
    } else if (event->type() == QEvent::WindowActivate && watched == this) {
        QTimer::singleShot(0, this, &ImportWizard::fillInWaiting);
    }
    return QWizard::eventFilter(watched, event);
}

void ImportWizard::resizeEvent(QResizeEvent *event)
{
    QWizard::resizeEvent(event);
    m_below->follow(*event);
}

/** Whoever shows a file dialog of the page: its photos can be read before the page asks. */
void ImportWizard::followPhotoDialogs(QObject *watched)
{
    auto *dialog = qobject_cast<QFileDialog *>(watched);
    const QWidget *page = currentPage();
    if (dialog == nullptr || pluginOf(currentId()) == nullptr
        || !page->findChildren<QFileDialog *>().contains(dialog)) {
        return;
    }
    if (keeper() != nullptr && keeper()->isFitted() && !keeper()->photos().isEmpty()) {
        // The page knows its photos by other names.
        dialog->setDirectory(QFileInfo(keeper()->photos().first()).absolutePath());
    }
    connect(dialog, &QFileDialog::filesSelected, this, [this, dialog](const QStringList &files) {
        if (!takeOtherRecord(files, dialog)) {
            beginReading(files);
        }
    });
}

/** The page takes the record of another head for a photo: once the dialog is gone its head's page
 * gets all. */
bool ImportWizard::takeOtherRecord(const QStringList &files, const QFileDialog *dialog)
{
    GivenFiles given = sortFiles(files);
    const PageKeeper *page = keeper();
    if (page == nullptr || given.record.isEmpty() || page->head().isRecord(given.record)
        || readerOf(given.record, &page->head()) == nullptr) {
        return false;
    }
    if (given.photos.isEmpty()) {
        given.photos = page->photos();
    }
    preferReadableRecord(given);
    connect(
        dialog, &QObject::destroyed, this, [this, given] { take(given); }, Qt::QueuedConnection);
    return true;
}

void ImportWizard::beginReading(const QStringList &files)
{
    if (PageKeeper *page = keeper()) {
        page->note(files);
        m_desk->look();
    }
    QStringList photos;
    std::remove_copy_if(files.begin(), files.end(), std::back_inserter(photos), &isRecord);
    if (photos.isEmpty()) {
        return;
    }
    photos.sort(Qt::CaseSensitive); // as the pages do
    for (QString &photo : photos) {
        photo = m_app.truePath(photo);
    }
    m_app.photos().readAhead(photos);
    m_readingBar->begin(photos.size());
    for (QThread *reader : currentPage()->findChildren<QThread *>()) {
        connect(reader, &QThread::finished, this, &ImportWizard::endReading, Qt::UniqueConnection);
    }
}

/** Unless the page has been given other photos since. */
void ImportWizard::endReading()
{
    const auto *page = currentPage();
    const QList<QThread *> readers
        = page == nullptr ? QList<QThread *>() : page->findChildren<QThread *>();
    if (std::none_of(readers.begin(), readers.end(),
                     [](const QThread *reader) { return reader->isRunning(); })) {
        m_readingBar->end();
        if (keeper() != nullptr) {
            keeper()->readingEnded();
        }
        m_desk->look();
    }
}

void ImportWizard::cleanupPage(int id)
{
    if (PageKeeper *page = m_keepers.value(id - kFirstPluginId)) {
        page->keep();
    }
    QWizard::cleanupPage(id);
}

void ImportWizard::enterPage()
{
    button(QWizard::CustomButton1)->setVisible(isBehindPages());
    PageKeeper *page = keeper();
    if (page != nullptr) {
        page->giveBack();
    }
    m_drop->setTaking(!isBehindPages());
    m_strip->setVisible(page != nullptr);
    if (currentId() == kResultId) {
        m_resultPage->setRemarks(m_desk->remarks()); // of the page before
    } else if (currentId() == kMakeId) {
        m_makePage->take(m_panorama);
    } else {
        m_desk->setPage(page);
    }
    if (page != nullptr && !m_held.photos.isEmpty()) {
        giveTo(std::exchange(m_held, {}));
    }
    m_below->makeRoom();
}

/** Neither saved nor made. */
bool ImportWizard::isUnsaved() const
{
    return m_resultPage->isUnsaved() && m_panorama && !m_makePage->hasMade(m_panorama.value());
}

/** Photos that are still being read have only just been chosen. */
bool ImportWizard::wouldLose() const
{
    if (isBehindPages()) {
        return m_makePage->isRunning() || isUnsaved();
    }
    const PageKeeper *page = keeper();
    return page != nullptr && !page->photos().isEmpty() && !page->isReading();
}

void ImportWizard::reject()
{
    if (isVisible() && wouldLose()) {
        QMessageBox box(QMessageBox::Question, tr("Close the window?"),
                        m_makePage->isRunning()
                            ? tr("The panorama is still being made. What is finished of it is "
                                 "kept: made again, it goes on from there.")
                            : isBehindPages()
                            ? tr("The panorama has not been saved.")
                            : tr("The photos and options of this page will be forgotten."),
                        QMessageBox::Discard | QMessageBox::Cancel, this);
        box.setDefaultButton(QMessageBox::Cancel);
        if (box.exec() != QMessageBox::Discard) {
            return;
        }
    }
    QWizard::reject();
}

void ImportWizard::accept()
{
    if (!isUnsaved() || m_resultPage->confirmUnsaved()) {
        QWizard::accept();
    }
}

void ImportWizard::importAnother()
{
    if (isUnsaved() && !m_resultPage->confirmUnsaved()) {
        return;
    }
    restart();
    m_choicePage->setNothingGiven();
    for (PageKeeper *page : qAsConst(m_keepers)) {
        if (page != nullptr) {
            page->forgetKept();
        }
    }
}

void ImportWizard::done(int result)
{
    m_app.photos().stop();
    m_app.WriteSetting(settingsGroup(), geometryKey(), saveGeometry());
    QWizard::done(result);
}

bool ImportWizard::validateCurrentPage()
{
    const ImportPlugin *plugin = pluginOf(currentId());
    if (plugin == nullptr) {
        return QWizard::validateCurrentPage();
    }
    const int before = m_app.deliveryCount();
    ImportRequest request;
    request.filled = keeper() == nullptr ? FilledPage() : keeper()->filled();
    request.filled->page = currentPage();
    request.filled->source = plugin->source(recordPath(currentPage()));
    request.filled->deliveries = &m_deliveries;
    m_desk->rememberFocal();
    try {
        m_panorama = importShoot(m_app, request, {});
    } catch (...) {
        if (m_app.deliveryCount() != before) {
            // The page will hand this over once more, with what comes next.
            (void)m_deliveries.take(currentPage(), m_app.delivery());
        }
        throw;
    }
    rememberShoot();
    return m_app.deliveryCount() != before;
}

/** The page itself opens the links of its subtitle. */
void ImportWizard::setUpSubtitle()
{
    if (currentPage() == nullptr) {
        return;
    }
    // The wizard shows a page's subtitle in a label of its own, which is no child of the page.
    for (QLabel *label : findChildren<QLabel *>()) {
        if (!label->text().isEmpty() && label->text() == currentPage()->subTitle()) {
            // Without a link it would be a place for the Tab key at which nothing is seen.
            const bool hasLink = label->text().contains(QLatin1String("<a "));
            label->setTextInteractionFlags(hasLink ? Qt::LinksAccessibleByMouse
                                                   | Qt::LinksAccessibleByKeyboard
                                                   : Qt::NoTextInteraction);
            // The wizard leaves room for two lines of Latin letters; others stand taller.
            label->parentWidget()->setMaximumHeight(QWIDGETSIZE_MAX);
        }
    }
}

void ImportWizard::rememberChoice(int id)
{
    if (const ImportPlugin *plugin = pluginOf(id)) {
        m_app.WriteSetting(settingsGroup(), headKey(), plugin->head());
    }
}

/** Once the event loop is at rest again. What throws at each repaint is told once at a time. */
void ImportWizard::tellThrown(const QString &why)
{
    if (std::exchange(m_isTellingThrown, true)) {
        return;
    }
    QTimer::singleShot(0, this, [this, why] {
        showMessage(QMessageBox::Warning, tr("A step has failed"),
                    tr("This page could not do what you asked: %1. Your files are as they were. "
                       "Try again, or go back and choose fewer files.")
                        .arg(why));
        m_isTellingThrown = false;
    });
}

QString ImportWizard::helpText() const
{
    const bool choosing = currentId() == kChoiceId;
    return choosing
        ? tr("Choose the head that took the photos, then Next. You can also drop the head's record "
             "and the photos, or the folder that holds them, onto this window.")
        : currentId() == kMakeId
        ? tr("Say where the panorama goes and press Make panorama. It can be stopped at any time: "
             "what is finished is kept, and made again it goes on from there.")
        : currentId() == kResultId
        ? tr("Next makes the panorama here. Or save the project and open it in Hugin, or save the "
             "description as JSON. Back returns to the import page; its photos and options are "
             "kept.")
        : tr("Choose the head's record and all its photos. Next is enabled when every photo has "
             "been read and their number is that of the record. Red text says what does not fit; "
             "the line below all says why, and its buttons put it right.");
}

void ImportWizard::showMessage(QMessageBox::Icon icon, const QString &title, const QString &text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, this);
    // File names may stand in it.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

const ImportPlugin *ImportWizard::pluginOf(int id) const
{
    const int index = id - kFirstPluginId;
    const bool known = index >= 0 && index < m_library.plugins().size();
    return known ? &m_library.plugins().at(index) : nullptr;
}

} // namespace PanoHost
