// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "dialogclicker.h"
#include "foreignhost.h"
#include "hosthead.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWizard>

#include <algorithm>
#include <utility>

namespace
{

/** Notes in their order what a page asks the host for on the GUI thread, and what follows. */
class PageHost : public Host
{
public:
    using Host::Host;

    QStringList steps;
    QString start; ///< where the user was last

    QString lastPath() override
    {
        steps.append(QStringLiteral("LastPath"));
        return start;
    }
    void setLastPath(const QString &path) override
    {
        steps.append(QStringLiteral("SetLastPath ") + path);
    }
};

PageHost &pageHost()
{
    return static_cast<PageHost &>(host());
}

/** Stands for the desktop while it lives: notes what is to be opened, and opens nothing. */
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop()
    {
        for (const QString &scheme : schemes()) {
            QDesktopServices::setUrlHandler(scheme, this, "open");
        }
    }
    ~Desktop() override
    {
        for (const QString &scheme : schemes()) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    /** What was opened since the last call. */
    QStringList take() { return std::exchange(m_opened, {}); }

public Q_SLOTS:
    void open(const QUrl &url)
    {
        m_opened.append(url.toString());
        pageHost().steps.append(QStringLiteral("open ") + url.toString());
    }

private:
    static QStringList schemes()
    {
        return { QStringLiteral("file"), QStringLiteral("http"), QStringLiteral("https") };
    }

    QStringList m_opened;
};

/** The page of a new plug-in of class \p plugin. */
QWizardPage *newPage(Contract::Module &module, const char *plugin)
{
    return Contract::asImport(pluginCalled(module.library(), QLatin1String(plugin)))
        ->pages()
        .first();
}

template <typename Widget> Widget *child(const QWidget &page, const char *name)
{
    auto *found = page.findChild<Widget *>(QString::fromLatin1(name));
    if (found == nullptr) {
        qFatal("The page has no %s", name);
    }
    return found;
}

/** Where the link of the page's about text leads. */
QString linkOf(const QWizardPage *page)
{
    static const QRegularExpression address(QStringLiteral("href=\"([^\"]+)\""));
    const QString link = address.match(page->subTitle()).captured(1);
    return link.isEmpty() ? QStringLiteral("the about text has no link") : link;
}

/** The label in which \p wizard shows the about text of its current page. */
QLabel *aboutLabel(const QWizard &wizard)
{
    for (QLabel *label : wizard.findChildren<QLabel *>()) {
        if (label->isVisible() && label->text() == wizard.currentPage()->subTitle()) {
            return label;
        }
    }
    qFatal("The wizard does not show the about text");
}

/** Clicks the link of the current page's about text, as a user does. */
void clickLink(const QWizard &wizard)
{
    constexpr int kStep = 3; // pixels
    QLabel *label = aboutLabel(wizard);
    for (int y = kStep; y < label->height(); y += kStep) {
        for (int x = kStep; x < label->width(); x += kStep) {
            QMouseEvent move(QEvent::MouseMove, QPointF(x, y), Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(label, &move);
            if (label->cursor().shape() == Qt::PointingHandCursor) {
                QTest::mouseClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
                return;
            }
        }
    }
    qFatal("The about text shows no link");
}

bool isGrid(const HostHead &head)
{
    return head.record == nullptr;
}

constexpr char kSelectRecord[] = "m_pbSelectConfigFile";
constexpr char kSelectPhotos[] = "m_pbSelectImages";

/** Notes between what the host is asked for when a shown page shows its state and tells of it. */
class Steps : public QObject
{
    Q_OBJECT

public:
    explicit Steps(QWizardPage &page)
        : m_page(page)
        , m_count(page.findChild<QLabel *>(QStringLiteral("m_lbImageLog")))
    {
        if (m_count == nullptr) {
            m_count = child<QLabel>(page, "m_lbImage"); // of a grid
        }
        connect(&page, &QWizardPage::completeChanged, this, [this] {
            noteShown();
            pageHost().steps.append(QStringLiteral("completeChanged"));
        });
        page.show();
    }

    /** Clicks \p button; what is noted begins here. */
    void click(const QByteArray &button, Qt::KeyboardModifiers modifiers) const
    {
        pageHost().steps.clear();
        m_count->setText(mark());
        QTest::mouseClick(child<QAbstractButton>(m_page, button.constData()), Qt::LeftButton,
                          modifiers);
        noteShown();
    }

private:
    static QString mark() { return QStringLiteral("not the number of photos"); }
    void noteShown() const
    {
        if (m_count->text() != mark()) {
            m_count->setText(mark());
            pageHost().steps.append(QStringLiteral("show"));
        }
    }

    QWizardPage &m_page;
    QLabel *m_count;
};

QWizardPage *plainPage()
{
    auto *page = new QWizardPage;
    page->setTitle(QStringLiteral("A page of the host's"));
    page->setSubTitle(QStringLiteral("With a <a href=\"https://host.example\">link</a>."));
    return page;
}

} // namespace

/** What a host sees of the module's own pages in wizards of its own. */
class TestPluginPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void threadIsMadeAfterTheForm_data();
    void threadIsMadeAfterTheForm();

    void linkOfTheAboutTextOpensOnce_data();
    void linkOfTheAboutTextOpensOnce();
    void linkOfTheGridPageIsLeftToTheHost();
    void linkOpensOnItsOwnPageGoingBackAndForth();
    void pagesOfOneHeadAnswerForThemselvesOnly();
    void linkFollowsItsPageIntoAnotherWizard();
    void linkIsDeadWhenItsPageIsGone();
    void hostThatOpensLinksItselfIsNotDisturbed_data();
    void hostThatOpensLinksItselfIsNotDisturbed();

    void buttonWithoutAChoiceTakesItsSteps_data();
    void buttonWithoutAChoiceTakesItsSteps();
    void choiceTakesItsSteps_data();
    void choiceTakesItsSteps();

    void mendedScriptIsReadOnReturn();
};

void TestPluginPages::init()
{
    host().forget();
    pageHost().steps.clear();
    pageHost().start = QStringLiteral("/");
}

void TestPluginPages::threadIsMadeAfterTheForm_data()
{
    QTest::addColumn<const HostHead *>("head");
    for (const HostHead *head : allHostHeads()) {
        QTest::newRow(head->title) << head;
    }
}

void TestPluginPages::threadIsMadeAfterTheForm()
{
    QFETCH(const HostHead *, head);
    Contract::Module module;
    const QWizardPage *page = newPage(module, head->plugin);

    // Children stand in the order in which they were made.
    const int thread = page->children().indexOf(page->findChild<QThread *>());
    const int form = page->children().indexOf(child<QGroupBox>(*page, "groupBox"));
    QVERIFY(form >= 0);
    QVERIFY(thread > form);
}

void TestPluginPages::linkOfTheAboutTextOpensOnce_data()
{
    QTest::addColumn<const HostHead *>("head");
    QTest::addColumn<QWizard::WizardStyle>("style");
    const std::initializer_list<std::pair<const char *, QWizard::WizardStyle>> styles{
        { "classic", QWizard::ClassicStyle },
        { "modern", QWizard::ModernStyle },
        { "mac", QWizard::MacStyle },
        { "aero", QWizard::AeroStyle },
    };
    for (const HostHead *head : allHostHeads()) {
        for (const auto &[name, style] : styles) {
            if (!isGrid(*head)) {
                QTest::addRow("%s, %s", head->title, name) << head << style;
            }
        }
    }
}

void TestPluginPages::linkOfTheAboutTextOpensOnce()
{
    QFETCH(const HostHead *, head);
    QFETCH(const QWizard::WizardStyle, style);
    Contract::Module module;
    QWizardPage *page = newPage(module, head->plugin);
    QWizard wizard;
    wizard.setWizardStyle(style);
    wizard.addPage(page);
    wizard.show();
    Desktop desktop;

    clickLink(wizard);
    QCOMPARE(desktop.take(), QStringList{ linkOf(page) });

    wizard.hide();
    wizard.show();
    clickLink(wizard);
    QCOMPARE(desktop.take(), QStringList{ linkOf(page) });
    wizard.setWizardStyle(style == QWizard::MacStyle ? QWizard::ClassicStyle : QWizard::MacStyle);
    clickLink(wizard);
    QCOMPARE(desktop.take(), QStringList{ linkOf(page) });
}

void TestPluginPages::linkOfTheGridPageIsLeftToTheHost()
{
    Contract::Module module;
    QWizard wizard;
    wizard.addPage(newPage(module, "XGigapanImport"));
    wizard.show();
    Desktop desktop;

    clickLink(wizard);

    QCOMPARE(desktop.take(), QStringList());
}

void TestPluginPages::linkOpensOnItsOwnPageGoingBackAndForth()
{
    Contract::Module module;
    QList<QWizardPage *> pages{ plainPage() };
    QSet<int> hosts{ 0 }; // the host's own links: its page's, and those of grids
    for (const HostHead *head : allHostHeads()) {
        if (isGrid(*head)) {
            hosts.insert(pages.size());
        }
        pages.append(newPage(module, head->plugin));
    }
    QWizard wizard;
    for (QWizardPage *page : pages) {
        wizard.addPage(page);
    }
    wizard.show();
    Desktop desktop;
    const auto clickOn = [&](int id) {
        QCOMPARE(wizard.currentId(), id);
        clickLink(wizard);
        QCOMPARE(desktop.take(),
                 hosts.contains(id) ? QStringList() : QStringList{ linkOf(pages.at(id)) });
    };

    for (int round = 0; round < 2; ++round) {
        for (int id = 0; id < pages.size() - 1; ++id) {
            clickOn(id);
            wizard.next();
        }
        for (int id = pages.size() - 1; id > 0; --id) {
            clickOn(id);
            wizard.back();
        }
    }
    wizard.restart();
    wizard.next();
    clickOn(1);
}

void TestPluginPages::pagesOfOneHeadAnswerForThemselvesOnly()
{
    Contract::Module module;
    QWizard wizard;
    wizard.addPage(newPage(module, "XClaussImport"));
    wizard.addPage(newPage(module, "XClaussImport"));
    wizard.show();
    Desktop desktop;

    clickLink(wizard);
    QCOMPARE(desktop.take().size(), 1);
    wizard.next();
    QCOMPARE(wizard.currentId(), 1);
    clickLink(wizard);
    QCOMPARE(desktop.take().size(), 1);
    wizard.back();
    clickLink(wizard);
    QCOMPARE(desktop.take().size(), 1);
}

void TestPluginPages::linkFollowsItsPageIntoAnotherWizard()
{
    Contract::Module module;
    QWizardPage *page = newPage(module, "XClaussImport");
    QWizardPage *other = newPage(module, "XClaussImport");
    QWizard first;
    first.addPage(page);
    first.addPage(other);
    first.show();
    QWizard second;
    Desktop desktop;
    clickLink(first);
    QCOMPARE(desktop.take().size(), 1);

    first.removePage(0);
    second.addPage(page);
    second.show();

    clickLink(second);
    QCOMPARE(desktop.take(), QStringList{ linkOf(page) });
    clickLink(first); // shows the other page now
    QCOMPARE(desktop.take(), QStringList{ linkOf(other) });

    second.removePage(0);
    first.setPage(5, page);
    first.next();
    QCOMPARE(first.currentPage(), page);
    clickLink(first);
    QCOMPARE(desktop.take(), QStringList{ linkOf(page) });
}

void TestPluginPages::linkIsDeadWhenItsPageIsGone()
{
    Contract::Module module;
    QWizard wizard;
    wizard.addPage(newPage(module, "XClaussImport"));
    wizard.show();
    QLabel *label = aboutLabel(wizard);
    const QString link = linkOf(wizard.currentPage());
    Desktop desktop;

    wizard.currentPage()->setParent(nullptr);
    Q_EMIT label->linkActivated(link);
    QCOMPARE(desktop.take(), QStringList());

    delete wizard.currentPage();
    Q_EMIT label->linkActivated(link);
    QCOMPARE(desktop.take(), QStringList());
}

void TestPluginPages::hostThatOpensLinksItselfIsNotDisturbed_data()
{
    QTest::addColumn<bool>("beforeThePage"); // it sets its labels up
    QTest::newRow("before the page is shown") << true;
    QTest::newRow("after the page is shown") << false;
}

void TestPluginPages::hostThatOpensLinksItselfIsNotDisturbed()
{
    QFETCH(const bool, beforeThePage);
    Contract::Module module;
    QWizard wizard;
    wizard.addPage(plainPage());
    wizard.addPage(newPage(module, "XClaussImport"));
    wizard.show();
    QLabel *label = aboutLabel(wizard);
    if (beforeThePage) {
        label->setOpenExternalLinks(true);
        wizard.next();
    } else {
        wizard.next();
        label->setOpenExternalLinks(true);
    }
    Desktop desktop;
    QCOMPARE(aboutLabel(wizard), label);

    clickLink(wizard);

    QCOMPARE(desktop.take(), QStringList{ linkOf(wizard.currentPage()) });
    QVERIFY(label->openExternalLinks());
    QCOMPARE(label->textInteractionFlags(), QLabel().textInteractionFlags());
}

void TestPluginPages::buttonWithoutAChoiceTakesItsSteps_data()
{
    QTest::addColumn<const HostHead *>("head");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("control"); // else its dialog is cancelled
    QTest::addColumn<QStringList>("steps");
    for (const HostHead *head : allHostHeads()) {
        for (const ButtonSteps &row : head->buttonSteps) {
            QTest::addRow("%s, %s, %s", head->title, row.button,
                          row.control ? "Control" : "cancelled")
                << head << QByteArray(row.button) << row.control << row.steps;
        }
    }
}

void TestPluginPages::buttonWithoutAChoiceTakesItsSteps()
{
    QFETCH(const HostHead *, head);
    QFETCH(const QByteArray, button);
    QFETCH(const bool, control);
    QFETCH(const QStringList, steps);
    const QTemporaryDir dir;
    Contract::Module module;
    const Steps taken(*newPage(module, head->plugin));
    pageHost().start = dir.filePath(QStringLiteral("a.jpg"));
    Desktop desktop;
    DialogClicker clicker;
    if (!control) {
        clicker.cancelFiles();
    }

    taken.click(button, control ? Qt::ControlModifier : Qt::NoModifier);

    QVERIFY(clicker.isSettled());
    const QString folder = QUrl::fromLocalFile(dir.path()).toString();
    QCOMPARE(pageHost().steps,
             QStringList(steps).replaceInStrings(QStringLiteral("FOLDER"), folder));
    QVERIFY(host().photos().empty());
}

void TestPluginPages::choiceTakesItsSteps_data()
{
    QTest::addColumn<const HostHead *>("head");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("remembered"); // by the host
    const QStringList photos{ QStringLiteral("b.jpg"), QStringLiteral("a.jpg") };
    for (const HostHead *head : allHostHeads()) {
        QTest::addRow("%s, photos", head->title)
            << head << QByteArray(kSelectPhotos) << photos << QStringLiteral("a.jpg");
        if (isGrid(*head)) {
            continue;
        }
        const QString record = QString::fromLatin1(head->recordName);
        QTest::addRow("%s, record", head->title)
            << head << QByteArray(kSelectRecord) << QStringList(record) << record;
        QTest::addRow("%s, record and photos", head->title)
            << head << QByteArray(kSelectRecord) << (photos + QStringList(record)) << record;
        QTest::addRow("%s, photos instead of a record", head->title)
            << head << QByteArray(kSelectRecord) << photos << QStringLiteral("last/photo.jpg");
    }
}

void TestPluginPages::choiceTakesItsSteps()
{
    QFETCH(const HostHead *, head);
    QFETCH(const QByteArray, button);
    QFETCH(const QStringList, files);
    QFETCH(const QString, remembered);
    const QTemporaryDir dir;
    QStringList chosen;
    for (const QString &name : files) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(head->record == nullptr ? QByteArray() : head->record({ { 0.0, 0.0 } }));
        chosen.append(file.fileName());
    }
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("last")));
    Contract::Module module;
    QWizardPage *page = newPage(module, head->plugin);
    const Steps taken(*page);
    pageHost().start = dir.filePath(QStringLiteral("last/photo.jpg"));
    DialogClicker clicker;
    clicker.chooseFiles(chosen);

    taken.click(button, Qt::NoModifier);

    QVERIFY(clicker.isSettled());
    // What the photos bring later waits for the event loop.
    QCOMPARE(pageHost().steps,
             QStringList({ QStringLiteral("LastPath"),
                           QStringLiteral("SetLastPath ") + dir.filePath(remembered),
                           QStringLiteral("show"), QStringLiteral("completeChanged") }));
    QVERIFY(page->findChild<QThread *>()->wait());
    const auto photos = std::count_if(files.cbegin(), files.cend(), [](const QString &name) {
        return name.endsWith(QLatin1String("jpg"));
    });
    QCOMPARE(static_cast<int>(host().photos().size()), static_cast<int>(photos));
}

void TestPluginPages::mendedScriptIsReadOnReturn()
{
    const QTemporaryDir dir;
    const auto write = [&dir](const QByteArray &script) {
        QFile file(dir.filePath(QStringLiteral("script.txt")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(script);
    };
    Contract::Module module;
    QWizard wizard;
    wizard.addPage(newPage(module, "XClaussImport"));
    wizard.show();
    wizard.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    auto *edit = child<QLineEdit>(wizard, "m_leConfigFile");
    const auto *count = child<QLabel>(wizard, "m_lbPapyLog");
    DialogClicker clicker;
    for (int i = 0; i < 3; ++i) {
        clicker.pressButton();
    }

    edit->setFocus();
    QTest::keyClicks(edit, dir.filePath(QStringLiteral("script.txt")));
    QTest::keyClick(edit, Qt::Key_Return); // there is no such file yet
    write("op_h-angle=north\nop_shoot\n");
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(clicker.messageBoxes().size(), 3); // one for each reading
    QCOMPARE(count->text(), QStringLiteral("N/A"));
    write("op_h-angle=30\nop_shoot\nop_shoot\n");
    QTest::keyClick(edit, Qt::Key_Return);

    QCOMPARE(count->text(), QStringLiteral("2"));
    QVERIFY(clicker.isSettled());
    QCOMPARE(clicker.messageBoxes().size(), 3);
}

TEST_CLASS(TestPluginPages, PageHost)
#include "tst_plugin_pages.moc"
