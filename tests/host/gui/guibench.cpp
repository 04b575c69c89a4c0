// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/gui/guibench.h"

#include "host/dev/darkpalette.h"
#include "host/gui/resultpage.h"
#include "importers/headfacts.h"
#include "tests/host/testphotos.h"

#include <QAbstractButton>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QMimeData>
#include <QTabBar>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QtTest>

#include <functional>

using namespace PanoHost;

namespace
{

/** No two pauses are alike: photos know their shots by their times. */
QDateTime shotTime(int shot)
{
    return QDateTime({ 2024, 5, 1 }, { 10, 0 }, Qt::UTC).addSecs(4 * shot + (shot * shot) % 3);
}

/** Calls \p act once, with the field for the name. */
void inNextFileDialog(const std::function<void(QLineEdit *edit)> &act)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        const auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog != nullptr) {
            timer->deleteLater();
            act(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")));
        }
    });
    timer->start(0);
}

} // namespace

GuiBench::GuiBench(const QSize &size)
    : m_size(size)
{
    if (qEnvironmentVariableIsSet("PANOHOST_WINDOW_DARK")) {
        QApplication::setPalette(darkPalette());
    }
    PanoHostApplication::instance()->setSettingsFile(path(QStringLiteral("s.ini")));
    reopen();
}

GuiBench::~GuiBench()
{
    m_wizard.reset();
    m_library.reset();
}

void GuiBench::reopen(const Start &start)
{
    m_wizard.reset();
    m_library.reset();
    m_library = std::move(PluginLibrary::open(QStringLiteral(PANOHOST_TEST_LIBRARY))).value();
    m_wizard = std::make_unique<ImportWizard>(*PanoHostApplication::instance(), *m_library);
    if (m_size.isValid()) {
        m_wizard->resize(m_size);
    }
    m_wizard->show();
    if (start) {
        start(*m_wizard);
    }
    (void)QTest::qWaitForWindowExposed(m_wizard.get());
}

QString GuiBench::record(int shots, const char *head, const QString &name)
{
    const PanoHead::HeadFacts &facts = *PanoHead::headFactsOf(QLatin1String(head));
    PanoHead::NotedShoot noted;
    for (int i = 0; i < shots; ++i) {
        PanoHead::NotedShot shot;
        shot.yawDegrees = 10.0 * i;
        shot.time = shotTime(i);
        noted.shots += shot;
    }
    QDir().mkpath(QFileInfo(path(name)).path());
    return TestPhotos::writeFile(path(name.isEmpty() ? QString::fromLatin1(facts.record) : name),
                                 facts.write(noted));
}

QString GuiBench::photo(const QString &name, int shot, int secondsLate, bool namesFocal)
{
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Photo.DateTimeOriginal"] = shotTime(shot)
                                              .addSecs(secondsLate)
                                              .toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"))
                                              .toLatin1();
    if (!namesFocal) {
        for (auto entry = exif.begin(); entry != exif.end();) {
            entry = entry.key().contains("Focal") ? exif.erase(entry) : std::next(entry);
        }
    }
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(QColor::fromHsv(53 * shot % 360, 120, 230));
    const QString file = path(name);
    QDir().mkpath(QFileInfo(file).path());
    return TestPhotos::writeJpeg(file, picture, exif);
}

QStringList GuiBench::photos(int first, int last, bool namesFocal)
{
    QStringList photos;
    for (int shot = first; shot <= last; ++shot) {
        photos += photo(QStringLiteral("IMG_%1.jpg").arg(shot + 1, 4, 10, QLatin1Char('0')), shot,
                        0, namesFocal);
    }
    return photos;
}

void GuiBench::drop(const QStringList &files, QWidget *target) const
{
    QWidget *widget = target == nullptr ? m_wizard.get() : target;
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &file : files) {
        urls += QUrl::fromLocalFile(file);
    }
    data.setUrls(urls);
    const QPoint place = widget->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &drop);
}

void GuiBench::choose(const char *head) const
{
    auto *list = m_wizard->findChild<QListWidget *>(QStringLiteral("m_heads"));
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->data(Qt::AccessibleTextRole) == QLatin1String(head)) {
            const QPoint place = list->visualItemRect(list->item(row)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        }
    }
    press(QWizard::NextButton);
}

void GuiBench::answerFileDialog(const QString &file)
{
    inNextFileDialog([file](QLineEdit *edit) {
        edit->selectAll();
        QTest::keyClicks(edit, file);
        QTest::keyClick(edit, Qt::Key_Return);
    });
}

void GuiBench::acceptFileDialog()
{
    inNextFileDialog([](QLineEdit *edit) { QTest::keyClick(edit, Qt::Key_Return); });
}

void GuiBench::cancelFileDialog()
{
    inNextFileDialog([](QLineEdit *edit) { QTest::keyClick(edit, Qt::Key_Escape); });
}

bool GuiBench::isNextEnabled() const
{
    return m_wizard->button(QWizard::NextButton)->isEnabled();
}

void GuiBench::press(QWizard::WizardButton button) const
{
    QTest::mouseClick(m_wizard->button(button), Qt::LeftButton);
}

QAbstractButton *GuiBench::button(const char *row, StripAction action) const
{
    return strip().findChild<QAbstractButton *>(
        QStringLiteral("m_strip_%1_%2").arg(QLatin1String(row)).arg(static_cast<int>(action)));
}

void GuiBench::press(const char *row, StripAction action) const
{
    QAbstractButton *found = button(row, action);
    QVERIFY2(found, row);
    if (!strip().isOpen()) {
        QTest::mouseClick(strip().findChild<QWidget *>(QStringLiteral("m_stripOpener")),
                          Qt::LeftButton);
    }
    QVERIFY2(found->isVisible(), row);
    QTest::mouseClick(found, Qt::LeftButton);
}

ShootStrip &GuiBench::strip() const
{
    return *m_wizard->findChild<ShootStrip *>();
}

StripRow GuiBench::row(const char *row) const
{
    for (const StripRow &one : strip().rows()) {
        if (one.name == QLatin1String(row)) {
            return one;
        }
    }
    return {};
}

QString GuiBench::text(const char *row) const
{
    return this->row(row).text;
}

void GuiBench::openStrip() const
{
    if (!strip().isOpen()) {
        auto *opener = strip().findChild<QAbstractButton *>(QStringLiteral("m_stripOpener"));
        QTest::mouseClick(opener, Qt::LeftButton);
    }
    QVERIFY(strip().isOpen());
}

bool GuiBench::isSettled() const
{
    const auto *page = m_wizard->currentPage();
    for (const QThread *reader : page->findChildren<QThread *>()) {
        if (reader->isRunning()) {
            return false;
        }
    }
    return strip().isVisible() && !text("photos").isEmpty()
        && row("next").state != StripRow::State::Working;
}

QStringList GuiBench::ambiguities() const
{
    QMap<QString, QStringList> texts;
    const auto note = [&texts](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) {
            texts[key.toString()] += text;
        }
    };
    for (const QWidget *widget : m_wizard->findChildren<QWidget *>()) {
        if (!widget->isVisible()) {
            continue;
        }
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            note(button->text());
        } else if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            note(label->buddy() == nullptr ? QString() : label->text());
        } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
            note(box->title());
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                note(tabs->tabText(i));
            }
        }
    }
    QStringList found;
    for (auto entry = texts.cbegin(); entry != texts.cend(); ++entry) {
        if (entry->size() > 1) {
            found += entry.key() + QStringLiteral(": ") + entry->join(QStringLiteral(", "));
        }
    }
    return found;
}

QStringList GuiBench::result() const
{
    QStringList found;
    const auto *page = qobject_cast<ResultPage *>(m_wizard->currentPage());
    if (page == nullptr || !page->panorama()) {
        return found;
    }
    for (const Position &position : page->panorama()->positions) {
        found += QStringLiteral("%1@%2")
                     .arg(QFileInfo(position.photos.first().path).completeBaseName())
                     .arg(qRound(position.yawDegrees));
    }
    return found;
}

void GuiBench::picture(const QString &name) const
{
    const QString folder = qEnvironmentVariable("PANOHOST_WINDOW_PICTURES");
    if (!folder.isEmpty()) {
        QCoreApplication::processEvents();
        QVERIFY(m_wizard->grab().save(QDir(folder).filePath(name + QStringLiteral(".png"))));
    }
}
