// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/heads.h"
#include "host/make/makekeys.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

class TestMakeKeys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void importKeyIsTheSameForTheSame();
    void importKeyHoldsAllThatDecides();
    void importKeyTellsChangedFiles();
    void alignKeyHoldsAllThatDecides();
    void alignKeyIgnoresTheNumberOfJobs();
    void deliveryKeyHoldsAllThatDecides();
    void deliveryKeyFollowsThePicturesOwn();

private:
    [[nodiscard]] QString file(const char *name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    [[nodiscard]] QByteArray keyOf(const ImportRequest &request) const
    {
        return importKey(request, file("library.so"));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    ImportRequest m_request;
};

namespace
{

void setLater(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(file.fileTime(QFileDevice::FileModificationTime).addSecs(2),
                             QFileDevice::FileModificationTime));
}

/** Each of \p changes, made alone to \p usual, changes its key, and no two to the same. */
template <typename T, typename Key>
void compareChanges(const T &usual, const QVector<std::function<void(T &)>> &changes, Key key)
{
    QSet<QByteArray> seen{ key(usual) };
    for (int i = 0; i < changes.size(); ++i) {
        T changed = usual;
        changes.at(i)(changed);
        const QByteArray text = key(changed);
        QVERIFY2(!seen.contains(text), qPrintable(QStringLiteral("change %1").arg(i)));
        seen += text;
    }
}

} // namespace

void TestMakeKeys::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const char *name : { "library.so", "record.xml", "a.jpg", "b.jpg" }) {
        (void)TestPhotos::writeFile(file(name), name);
    }
    m_request = {};
    m_request.head = &headNamed(QStringLiteral("papywizard"));
    m_request.record = file("record.xml");
    m_request.photos = QStringList{ file("a.jpg"), file("b.jpg") };
}

void TestMakeKeys::importKeyIsTheSameForTheSame()
{
    const ImportRequest copy = m_request;
    QCOMPARE(keyOf(copy), keyOf(m_request));
}

void TestMakeKeys::importKeyHoldsAllThatDecides()
{
    using Change = std::function<void(ImportRequest &)>;
    const QVector<Change> changes{
        [](ImportRequest &request) { request.head = &headNamed(QStringLiteral("vrdrive2")); },
        [](ImportRequest &request) { request.photos.removeLast(); },
        [](ImportRequest &request) { request.photos.swapItemsAt(0, 1); },
        [](ImportRequest &request) { request.order = PhotoOrder::ByTime; },
        [](ImportRequest &request) { request.matchesPhotos = true; },
        [](ImportRequest &request) { request.focalSource = ValueSource::Record; },
        [](ImportRequest &request) { request.focal35mm = 24.0; },
        [](ImportRequest &request) { request.focal35mm = 24.000001; },
        [](ImportRequest &request) { request.lensSource = ValueSource::Given; },
        [](ImportRequest &request) { request.lens = LensModel::Fisheye; },
        [](ImportRequest &request) { request.clockwiseTurns = 1; },
        [](ImportRequest &request) { request.clockwiseTurns = -1; },
        [](ImportRequest &request) { request.invertPitch = true; },
        [](ImportRequest &request) { request.ignoreExifRotation = true; },
        [](ImportRequest &request) {
            request.buttons += { QStringLiteral("m_noOptim"), true };
        },
        [](ImportRequest &request) {
            request.buttons += { QStringLiteral("m_noOptim"), false };
        },
        [](ImportRequest &request) { request.grid = GridChoice(); },
        [](ImportRequest &request) {
            request.grid = GridChoice();
            request.grid->rows = 3;
        },
        [](ImportRequest &request) {
            request.grid = GridChoice();
            request.grid->overlapPercent = 40.0;
        },
    };
    compareChanges(m_request, changes,
                   [this](const ImportRequest &request) { return keyOf(request); });
}

void TestMakeKeys::importKeyTellsChangedFiles()
{
    QSet<QByteArray> keys{ keyOf(m_request) };
    for (const char *name : { "a.jpg", "library.so" }) {
        setLater(file(name));
        const QByteArray key = keyOf(m_request);
        QVERIFY2(!keys.contains(key), name);
        keys += key;
    }
    // Of the record the content counts, whenever it was written.
    const QByteArray key = keyOf(m_request);
    setLater(file("record.xml"));
    QCOMPARE(keyOf(m_request), key);
    (void)TestPhotos::writeFile(file("record.xml"), "record.xmL");
    QVERIFY(!keys.contains(keyOf(m_request)));
    QVERIFY(QFile::remove(file("b.jpg")));
    QVERIFY(!keys.contains(keyOf(m_request)));
}

void TestMakeKeys::alignKeyHoldsAllThatDecides()
{
    using Change = std::function<void(AlignOptions &)>;
    const QVector<Change> changes{
        [](AlignOptions &options) { options.freesFocal = false; },
        [](AlignOptions &options) { options.freesA = true; },
        [](AlignOptions &options) { options.freesB = false; },
        [](AlignOptions &options) { options.freesC = true; },
        [](AlignOptions &options) { options.features = 100; },
        [](AlignOptions &options) { options.workSize = 100; },
        [](AlignOptions &options) { options.keepsPoints = true; },
        [](AlignOptions &options) { options.levels = true; },
        [](AlignOptions &options) { options.levels = false; },
        [](AlignOptions &options) { options.photometry = false; },
    };
    compareChanges(AlignOptions(), changes, [this](const AlignOptions &options) {
        return alignKey("{}", false, options, m_request.photos);
    });
    const QByteArray usual = alignKey("{}", false, {}, m_request.photos);
    QVERIFY(alignKey("{ }", false, {}, m_request.photos) != usual);
    QVERIFY(alignKey("{}", true, {}, m_request.photos) != usual);
    setLater(file("b.jpg"));
    QVERIFY(alignKey("{}", false, {}, m_request.photos) != usual);
}

void TestMakeKeys::alignKeyIgnoresTheNumberOfJobs()
{
    AlignOptions more;
    more.jobs = 7;
    QCOMPARE(alignKey("{}", false, more, m_request.photos),
             alignKey("{}", false, {}, m_request.photos));
}

void TestMakeKeys::deliveryKeyHoldsAllThatDecides()
{
    using Change = std::function<void(DeliverJob &)>;
    const QVector<Change> changes{
        [](DeliverJob &job) { job.picture.size = QSize(3, 4); },
        [](DeliverJob &job) { job.picture.depth = StitchedPicture::Depth::Bits16; },
        [](DeliverJob &job) { job.picture.sphere = QSize(8, 4); },
        [](DeliverJob &job) { job.picture.onSphere = QPoint(1, 0); },
        [](DeliverJob &job) { job.picture.centreYawDegrees = 1.0; },
        [](DeliverJob &job) { job.picture.exposureValue = 1.0; },
        [](DeliverJob &job) { job.origin.iccProfile = "profile"; },
        [](DeliverJob &job) { job.origin.taken = QDateTime(QDate(2024, 5, 1), QTime(10, 0)); },
        [](DeliverJob &job) { job.origin.place = Place(); },
        [](DeliverJob &job) {
            job.origin.place = Place{ 1.0, 2.0, 3.0 };
        },
        [](DeliverJob &job) { job.origin.author = QStringLiteral("x"); },
        [](DeliverJob &job) { job.origin.copyright = QStringLiteral("x"); },
        [](DeliverJob &job) { job.origin.camera = QStringLiteral("x"); },
        [](DeliverJob &job) { job.origin.lens = QStringLiteral("x"); },
        [](DeliverJob &job) { job.origin.headingDegrees = 0.0; },
        [](DeliverJob &job) { job.title = QStringLiteral("x"); },
        [](DeliverJob &job) { job.output = QStringLiteral("x"); },
        [](DeliverJob &job) { job.jpegQuality = 50; },
        [](DeliverJob &job) { job.radianceSuffix = QStringLiteral("hdr"); },
        [](DeliverJob &job) { job.iiifAddress = QStringLiteral("x"); },
    };
    compareChanges(DeliverJob(), changes,
                   [](const DeliverJob &job) { return deliveryKey(job, Delivery::Picture); });
    QVERIFY(deliveryKey({}, Delivery::Picture) != deliveryKey({}, Delivery::Page));
}

void TestMakeKeys::deliveryKeyFollowsThePicturesOwn()
{
    DeliverJob job;
    job.picture.path = file("panorama.v");
    (void)TestPhotos::writeFile(job.picture.path, "picture");
    (void)TestPhotos::writeFile(file("panorama.v.key"), "made from these");
    const QByteArray usual = deliveryKey(job, Delivery::Picture);
    // The same picture, made again.
    setLater(job.picture.path);
    QCOMPARE(deliveryKey(job, Delivery::Picture), usual);
    (void)TestPhotos::writeFile(file("panorama.v.key"), "made from others");
    QVERIFY(deliveryKey(job, Delivery::Picture) != usual);
}

TEST_CLASS(TestMakeKeys, QCoreApplication)
#include "tst_makekeys.moc"
