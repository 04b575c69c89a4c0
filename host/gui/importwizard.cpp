// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/importwizard.h"

#include "host/gui/choicepage.h"
#include "host/gui/readingbar.h"
#include "host/gui/resultpage.h"
#include "host/import/givenfiles.h"
#include "host/import/importjob.h"
#include "host/import/pagedriver.h"

#include <QAbstractButton>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QShortcut>
#include <QThread>
#include <QUrl>

#include <algorithm>
#include <iterator>

namespace PanoHost
{

namespace
{

constexpr int kChoiceId = 0;
constexpr int kFirstPluginId = 1;
constexpr int kResultId = 1000;
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

QStringList localFiles(const QMimeData *data)
{
    QStringList files;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile()) {
            files += url.toLocalFile();
        }
    }
    return files;
}

} // namespace

ImportWizard::ImportWizard(PanoHostApplication &app, const PluginLibrary &library, QWidget *parent)
    : QWizard(parent)
    , m_app(app)
    , m_library(library)
    , m_choicePage(new ChoicePage(library.plugins()))
    , m_resultPage(new ResultPage(app))
    , m_readingBar(new ReadingBar(this))
{
    setWindowTitle(tr("Import a panorama"));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::HaveHelpButton);
    setAcceptDrops(true);
    setPage(kChoiceId, m_choicePage);
    for (int i = 0; i < library.plugins().size(); ++i) {
        if (QWizardPage *page = library.plugins().at(i).page()) {
            setPage(kFirstPluginId + i, page);
        }
    }
    setPage(kResultId, m_resultPage);
    setStartId(kChoiceId);

    m_choicePage->choose(0);
    const QString last = app.ReadSetting(settingsGroup(), headKey(), QString()).toString();
    for (int i = 0; i < library.plugins().size(); ++i) {
        if (library.plugins().at(i).head() == last) {
            m_choicePage->choose(i);
        }
    }
    resize(kFirstSize);
    restoreGeometry(app.ReadSetting(settingsGroup(), geometryKey(), QByteArray()).toByteArray());
    // Photos are read on the pages' threads.
    connect(&app, &PanoHostApplication::photoRead, m_readingBar, &ReadingBar::advance,
            Qt::QueuedConnection);
    m_readingBar->installEventFilter(this);
    qApp->installEventFilter(this);
    connect(this, &QWizard::currentIdChanged, this, &ImportWizard::setUpSubtitle);
    connect(this, &QWizard::currentIdChanged, this, [this] {
        // Its size was asked for before it was shown, when fonts and styles had not settled.
        if (currentPage() != nullptr) {
            currentPage()->updateGeometry();
        }
        fitPages();
    });
    connect(this, &QWizard::currentIdChanged, this, &ImportWizard::rememberChoice);
    connect(this, &QWizard::helpRequested, this, &ImportWizard::showHelp);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            &ImportWizard::showHelp);
}

ImportWizard::~ImportWizard()
{
    // The choice page and the result page are this wizard's; the others go with their plug-ins.
    disconnect(this, &QWizard::currentIdChanged, this, nullptr);
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

int ImportWizard::nextId() const
{
    if (currentId() == kChoiceId) {
        const int chosen = m_choicePage->chosen();
        return chosen < 0 ? kResultId : kFirstPluginId + chosen;
    }
    return currentId() == kResultId ? -1 : kResultId;
}

void ImportWizard::fillIn(const QStringList &files)
{
    const GivenFiles given = sortFiles(files);
    if (currentId() == kChoiceId) {
        m_choicePage->choose(headFor(given, m_library.plugins(), m_choicePage->chosen()));
        next();
    }
    if (pluginOf(currentId()) == nullptr) {
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
    try {
        const JobWatch watch;
        PageDriver driver(currentPage(), m_app, watch);
        if (!given.record.isEmpty()
            && currentPage()->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile")) != nullptr) {
            driver.enterRecord(given.record);
        }
        if (!given.photos.isEmpty()) {
            driver.offerPhotos(given.photos);
        }
    } catch (const CommandError &error) {
        showMessage(QMessageBox::Warning, tr("Files not taken"), error.failure().text());
    }
}

bool ImportWizard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_readingBar
        && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)) {
        makeRoom();
    } else if (event->type() == QEvent::LayoutRequest && watched == content()) {
        fitPages();
    } else if (event->type() == QEvent::Show) {
        followPhotoDialogs(watched);
    }
    return QWizard::eventFilter(watched, event);
}

/** Keeps the window large enough for what the page shows. */
void ImportWizard::fitPages()
{
    // The base class asks a page for its size only when it comes to the front, but texts grow when
    // a record is read. All of the wizard's parts lie in one widget, its buttons too.
    if (content()->layout() != nullptr) {
        const bool isReading = m_readingBar->isVisibleTo(this);
        setMinimumSize(content()->layout()->totalMinimumSize()
                       + QSize(0, isReading ? m_readingBar->sizeHint().height() : 0));
    }
}

QWidget *ImportWizard::content() const
{
    return button(QWizard::CancelButton)->parentWidget();
}

/** The bar stands below all that the base class has laid out. */
void ImportWizard::makeRoom()
{
    const int height = m_readingBar->isVisibleTo(this) ? m_readingBar->sizeHint().height() : 0;
    fitPages();
    content()->resize(width(), this->height() - height);
    m_readingBar->setGeometry(0, this->height() - height, width(), height);
}

void ImportWizard::resizeEvent(QResizeEvent *event)
{
    QWizard::resizeEvent(event);
    if (m_readingBar->isVisibleTo(this)) {
        makeRoom();
    }
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
    connect(dialog, &QFileDialog::filesSelected, this, &ImportWizard::beginReading,
            Qt::UniqueConnection);
}

void ImportWizard::beginReading(const QStringList &files)
{
    QStringList photos;
    std::remove_copy_if(files.begin(), files.end(), std::back_inserter(photos), &isRecord);
    if (photos.isEmpty()) {
        return;
    }
    photos.sort(Qt::CaseSensitive); // as the pages do
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
    }
}

void ImportWizard::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(event->mimeData()).isEmpty() && currentId() != kResultId) {
        event->acceptProposedAction();
    }
}

void ImportWizard::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    fillIn(localFiles(event->mimeData()));
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
    request.filled = FilledPage();
    request.filled->page = currentPage();
    request.filled->source = plugin->source(recordPath(currentPage()));
    request.filled->deliveries = &m_deliveries;
    m_panorama = importShoot(m_app, request, {});
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
            label->setTextInteractionFlags(Qt::LinksAccessibleByMouse
                                           | Qt::LinksAccessibleByKeyboard);
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

void ImportWizard::showHelp()
{
    const bool choosing = currentId() == kChoiceId;
    const QString text = choosing
        ? tr("Choose the head that took the photos, then Next. You can also drop the head's record "
             "and the photos onto this window.")
        : currentId() == kResultId
        ? tr("Save the project and open it in Hugin, or save the description as JSON. Back returns "
             "to the import page; its photos and options are kept.")
        : tr("Choose the head's record and all its photos. Next is enabled when every photo has "
             "been read and their number is that of the record. Red text says what does not fit.");
    showMessage(QMessageBox::Information, tr("Help"), text);
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
