// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "photoshoot.h"

#include "dialogclicker.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace
{

constexpr int kYawStep = 30; // degrees
constexpr int kPitchStep = 24;

std::vector<Redraw> shotRedraws(const HostHead &head)
{
    std::vector<Redraw> redraws = { { "zoom", [](PhotoShoot &shoot) { shoot.zoom(70); } },
                                    { "inverted", [](PhotoShoot &shoot) { shoot.invert(); } } };
    if (head.turnsCamera) {
        redraws.push_back(
            { "turned right", [](PhotoShoot &shoot) { shoot.rotate(90, "m_pbRot90"); } });
        redraws.push_back(
            { "turned left", [](PhotoShoot &shoot) { shoot.rotate(-90, "m_pbRot270"); } });
    }
    if (head.hasLens) {
        redraws.push_back(
            { "lens of the record", [](PhotoShoot &shoot) { shoot.click("m_pbFLUseXML"); } });
        redraws.push_back(
            { "lens of the photos", [](PhotoShoot &shoot) { shoot.click("m_pbFLUseImage"); } });
    }
    return redraws;
}

std::vector<Redraw> gridRedraws()
{
    return { { "zoom", [](PhotoShoot &shoot) { shoot.zoom(70); } },
             { "rows by row", [](PhotoShoot &shoot) { shoot.click("m_rbMode1"); } },
             { "rows upward", [](PhotoShoot &shoot) { shoot.click("m_rbMode2"); } },
             { "columns to left", [](PhotoShoot &shoot) { shoot.click("m_rbMode3"); } },
             { "serpentine", [](PhotoShoot &shoot) { shoot.setMode(4); } },
             { "rows", [](PhotoShoot &shoot) { shoot.find<QSpinBox>("m_sbRow")->setValue(2); } },
             { "ignored photos",
               [](PhotoShoot &shoot) { shoot.find<QSpinBox>("m_sbIgnore")->setValue(3); } },
             { "brackets",
               [](PhotoShoot &shoot) { shoot.find<QSpinBox>("m_sbBracket")->setValue(2); } } };
}

} // namespace

const std::vector<Head> &allHeads()
{
    static const std::vector<Head> heads = [] {
        std::vector<Head> all;
        for (const HostHead *head : allHostHeads()) {
            all.push_back({ *head, head->record == nullptr ? gridRedraws() : shotRedraws(*head) });
        }
        return all;
    }();
    return heads;
}

void addHeads(bool (*isWanted)(const Head &head))
{
    QTest::addColumn<const Head *>("head");
    for (const Head &head : allHeads()) {
        if (isWanted == nullptr || isWanted(head)) {
            QTest::newRow(head.title) << &head;
        }
    }
}

void addRedraws(bool (*isWanted)(const Head &head))
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<const Redraw *>("redraw");
    for (const Head &head : allHeads()) {
        for (const Redraw &redraw : head.redraws) {
            if (isWanted == nullptr || isWanted(head)) {
                QTest::addRow("%s: %s", head.title, redraw.name) << &head << &redraw;
            }
        }
    }
}

PhotoShoot::PhotoShoot(const Head &shotWith, int rows, int columns)
    : m_head(shotWith)
{
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            m_shots.append({ 1.0 * column * kYawStep, 1.0 * (row + 1) * kPitchStep, 0.0 });
            m_photos.append(m_folder.filePath(
                QStringLiteral("IMG_%1.jpg").arg(m_shots.size(), 4, 10, QLatin1Char('0'))));
            QFile photo(m_photos.last());
            if (!photo.open(QIODevice::WriteOnly)) {
                qFatal("A photo cannot be written");
            }
        }
    }
    m_library = m_module.root();
    m_plugin = pluginCalled(m_module.library(), QString::fromLatin1(m_head.plugin));
    m_page = Contract::asImport(m_plugin)->pages().first();
    m_wizard->addPage(new QWizardPage);
    m_wizard->addPage(m_page);
    m_wizard->addPage(new QWizardPage);
    m_wizard->resize(900, 700);
    m_wizard->show();
    m_wizard->next();
    m_label = qobject_cast<QLabel *>(find<QScrollArea>("m_saPreview")->widget());
    if (m_label == nullptr) {
        qFatal("The page's preview is no label");
    }
}

PhotoShoot::~PhotoShoot()
{
    photoHost().release();
}

void PhotoShoot::chooseFiles(const char *button, const QStringList &files) const
{
    DialogClicker clicker;
    clicker.chooseFiles(files);
    click(button);
    if (!clicker.isSettled()) {
        qFatal("%s did not open one file dialog and nothing else", button);
    }
}

void PhotoShoot::choose()
{
    if (m_head.record != nullptr) {
        QFile file(m_folder.filePath(QString::fromLatin1(m_head.recordName)));
        if (!file.open(QIODevice::WriteOnly) || file.write(record()) < 0) {
            qFatal("The record cannot be written");
        }
        file.close();
        chooseFiles("m_pbSelectConfigFile", { file.fileName() });
    }
    choosePhotos();
}

void PhotoShoot::choosePhotos()
{
    photoHost().hold();
    m_first = photoHost().nextNumber();
    m_read = 0;
    chooseFiles("m_pbSelectImages", m_photos);
    photoHost().waitUntilAsked();
}

void PhotoShoot::chooseOthers()
{
    for (QString &photo : m_photos) {
        const QString other = photo + QStringLiteral(".jpg");
        QFile::rename(photo, other);
        photo = other;
    }
    choosePhotos();
}

void PhotoShoot::read(int photos)
{
    m_read += photos;
    const bool isLast = m_read == m_photos.size();
    photoHost().letRead(photos);
    // Once the host is asked for a further photo, the one before has been taken.
    for (int i = isLast ? 1 : 0; i < photos; ++i) {
        photoHost().waitUntilAsked();
    }
    if (isLast && !m_page->findChild<QThread *>()->wait()) {
        qFatal("The reading thread does not end");
    }
}

void PhotoShoot::deliver()
{
    QCoreApplication::sendPostedEvents(m_page, QEvent::MetaCall);
}

void PhotoShoot::load()
{
    choose();
    readRest();
    deliver();
}

void PhotoShoot::goOn()
{
    const int delivered = host().descriptions.size();
    m_wizard->next();
    if (host().descriptions.size() != delivered + 1 || m_wizard->currentPage() == m_page) {
        qFatal("Next was not accepted");
    }
}

void PhotoShoot::click(const char *button) const
{
    find<QAbstractButton>(button)->click();
}

void PhotoShoot::zoom(int percent) const
{
    find<QSlider>("m_hSlider")->setValue(percent);
}

void PhotoShoot::setMode(int mode)
{
    m_mode = mode;
    const QByteArray slot = "OnMode" + QByteArray::number(mode) + "Toggled";
    if (!QMetaObject::invokeMethod(m_page, slot.constData(), Q_ARG(bool, true))) {
        qFatal("The page has no mode %d", mode);
    }
}

void PhotoShoot::invert()
{
    for (LayoutPicture::Shot &shot : m_shots) {
        shot.pitch = 0.0 - shot.pitch;
    }
    click("m_pInverseCoordinates");
}

void PhotoShoot::rotate(int degrees, const char *button)
{
    for (LayoutPicture::Shot &shot : m_shots) {
        shot.roll += degrees;
    }
    click(button);
}

QByteArray PhotoShoot::record() const
{
    QVector<ShotAngles> angles;
    for (const LayoutPicture::Shot &shot : m_shots) {
        angles.append({ shot.yaw, shot.pitch });
    }
    return m_head.record(angles);
}

QImage PhotoShoot::picture() const
{
    return m_label.isNull() ? QImage() : m_label->pixmap(Qt::ReturnByValue).toImage();
}

std::vector<WatchedPhoto *> PhotoShoot::photos() const
{
    const std::vector<WatchedPhoto *> all = photoHost().watched();
    return { all.begin() + m_first, all.begin() + m_first + m_read };
}

LayoutPicture::Thumbnails PhotoShoot::thumbnails() const
{
    std::vector<WatchedPhoto *> photos = this->photos();
    if (m_head.ordersByTime) {
        // Photos without a change of time keep the order of reading on every page.
        std::stable_sort(
            photos.begin(), photos.end(),
            [](const WatchedPhoto *a, const WatchedPhoto *b) { return a->time < b->time; });
    }
    LayoutPicture::Thumbnails answer;
    for (WatchedPhoto *photo : photos) {
        answer.append(photo->shown());
    }
    return answer;
}

QImage PhotoShoot::expected() const
{
    QImage whole;
    if (m_head.record == nullptr) {
        int mode = m_mode;
        for (int i = 0; m_mode != 4 && i < 4; ++i) {
            const QByteArray button = "m_rbMode" + QByteArray::number(i);
            mode = find<QAbstractButton>(button.constData())->isChecked() ? i : mode;
        }
        whole = LayoutPicture::ofGrid(
            { find<QSpinBox>("m_sbRow")->value(), find<QSpinBox>("m_sbColumn")->value(), mode,
              find<QSpinBox>("m_sbBracket")->value(), find<QSpinBox>("m_sbIgnore")->value() },
            thumbnails());
    } else {
        whole = LayoutPicture::ofShots(m_shots, thumbnails(), m_label->palette());
    }
    return LayoutPicture::zoomed(whole, find<QSlider>("m_hSlider")->value());
}

QString PhotoShoot::wrong() const
{
    return LayoutPicture::difference(picture(), expected());
}

int PhotoShoot::runningTimers() const
{
    int running = 0;
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    QList<QObject *> objects = m_page->findChildren<QObject *>();
    objects.append(m_page);
    for (QObject *object : qAsConst(objects)) {
        const auto *timer = qobject_cast<QTimer *>(object);
        // Qt's own widgets blink and scroll as they like.
        const bool isQts = qstrncmp(object->metaObject()->className(), "Q", 1) == 0;
        if (timer == nullptr ? !isQts : timer->isActive()) {
            running += dispatcher->registeredTimers(object).size();
        }
    }
    return running;
}

void turnEventLoop()
{
    constexpr int kTurns = 100;
    for (int i = 0; i < kTurns; ++i) {
        QCoreApplication::processEvents();
    }
}
