// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/importwizard.h"

#include "host/gui/choicepage.h"
#include "host/gui/pagefiller.h"
#include "host/gui/resultpage.h"

#include <QAbstractButton>
#include <QDropEvent>
#include <QLabel>
#include <QLayout>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>

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
    connect(&app, &PanoHostApplication::delivered, this, &ImportWizard::takeDelivery);
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
    const FilledFiles filled = sortFiles(files);
    if (currentId() == kChoiceId) {
        m_choicePage->choose(headFor(filled, m_library.plugins(), m_choicePage->chosen()));
        next();
    }
    if (pluginOf(currentId()) == nullptr) {
        return;
    }
    const QString problem = fillPage(m_app, currentPage(), filled);
    if (!problem.isEmpty()) {
        showMessage(QMessageBox::Warning, tr("Files not taken"), problem);
    }
}

bool ImportWizard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        fitPages();
    }
    return QWizard::eventFilter(watched, event);
}

/** Keeps the window large enough for what the page shows. */
void ImportWizard::fitPages()
{
    // The base class asks a page for its size only when it comes to the front, but texts grow when
    // a record is read. All of the wizard's parts lie in one widget, its buttons too.
    QWidget *content = button(QWizard::CancelButton)->parentWidget();
    content->installEventFilter(this);
    if (content->layout() != nullptr) {
        setMinimumSize(content->layout()->totalMinimumSize());
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
    m_app.WriteSetting(settingsGroup(), geometryKey(), saveGeometry());
    QWizard::done(result);
}

void ImportWizard::takeDelivery()
{
    const ImportPlugin *plugin = pluginOf(currentId());
    if (plugin == nullptr) {
        return;
    }
    m_description = m_deliveries.take(currentPage(), m_app.delivery());
    m_source = plugin->source(recordPath(currentPage()));
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
