// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/recordshoot.h"

#include "hostlink/readingthread.h"

#include <QEvent>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>

#include <ctime>
#include <random>

namespace
{

constexpr int kThumbnails = 16;
constexpr QSize kThumbnailSize(160, 120);
constexpr int kPhotosPerSignal = 10;

/** No two neighbouring pixels alike, so that a pixel from the wrong place shows. */
QPixmap noise(unsigned seed)
{
    std::mt19937 random(seed);
    QImage image(kThumbnailSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, 0xff000000U | static_cast<QRgb>(random()));
        }
    }
    return QPixmap::fromImage(image);
}

/** Notes when a file dialog has been closed. */
class DialogEnd : public QObject
{
public:
    DialogEnd() { QCoreApplication::instance()->installEventFilter(this); }

    [[nodiscard]] double seconds() const { return m_seconds; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && watched->inherits("QFileDialog")) {
            m_seconds = threadSeconds();
        }
        return false;
    }

private:
    double m_seconds = 0.0;
};

} // namespace

double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

RecordPhoto::RecordPhoto(const QString &fileName, const FakePhoto &photo, QPixmap *thumbnail)
    : FakeImage(fileName, photo)
    , m_thumbnail(thumbnail)
{
}

RecordShootApplication::RecordShootApplication(int &argc, char **argv)
    : FakeApplication(argc, argv)
{
    for (int i = 0; i < kThumbnails; ++i) {
        m_thumbnails.push_back(noise(static_cast<unsigned>(i)));
    }
}

RecordShootApplication::~RecordShootApplication() = default;

XIImageDef *RecordShootApplication::CreateImageDef(const QString &fileName)
{
    m_passes.pass();
    const int number = QFileInfo(fileName).completeBaseName().toInt();
    FakePhoto photo;
    photo.shotTime = m_swapsTimes ? number ^ 1 : number;
    m_photos.emplace_back(fileName, photo, &m_thumbnails[number % kThumbnails]);
    return &m_photos.back();
}

RecordShoot::RecordShoot(int most)
{
    for (int number = 0; number < most; ++number) {
        m_photos.append(
            m_folder.write(QStringLiteral("%1.jpg").arg(number, 6, 10, QLatin1Char('0')), {}));
    }
}

PageLoad::PageLoad(QWizardPage *page)
    : m_page(page)
    , m_driver(page)
    , m_thread(page->findChild<ReadingThread *>())
{
    // Comes after the page's own slot, which was connected first.
    QObject::connect(
        m_thread, &ReadingThread::Loaded, &m_context, [this] { ++m_signals; },
        Qt::QueuedConnection);
    settle();
}

PageLoad::~PageLoad() = default;

double PageLoad::enterRecord(const QString &path)
{
    auto *edit = m_driver.find<QLineEdit>("m_leConfigFile");
    const double start = threadSeconds();
    edit->setText(path);
    Q_EMIT edit->textEdited(path);
    Q_EMIT edit->editingFinished();
    settle();
    return threadSeconds() - start;
}

double PageLoad::choosePhotos(const QStringList &files)
{
    const DialogEnd end;
    m_driver.chooseFiles("m_pbSelectImages", files);
    settle();
    m_left = files.size();
    return threadSeconds() - end.seconds();
}

PageLoad::Cost PageLoad::readNext()
{
    const int photos = std::min(m_left, kPhotosPerSignal);
    m_left -= photos;
    m_signals = 0;
    Cost cost;
    static_cast<RecordShootApplication *>(QCoreApplication::instance())->letRead(photos);
    while (m_signals == 0) {
        const double start = threadSeconds();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (m_signals > 0) {
            settle();
        }
        const double turn = threadSeconds() - start;
        cost.all += turn;
        cost.longest = std::max(cost.longest, turn);
    }
    return cost;
}

/** Layout and painting belong to what a change costs. */
void PageLoad::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}
