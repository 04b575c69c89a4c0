// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/exivimage.h"

#include "host/model/photodevice.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cstdio>
#include <mutex>

namespace PanoHost
{

namespace
{

/** The library's view of a device that is open already; refuses to write. */
class DeviceIo final : public Exiv2::BasicIo
{
public:
    explicit DeviceIo(PhotoDevice &device)
        : m_device(device)
    {
    }
    ~DeviceIo() override { munmap(); }
    DeviceIo(const DeviceIo &) = delete;
    DeviceIo &operator=(const DeviceIo &) = delete;

    int open() override
    {
        m_open = true;
        return seek(0, beg);
    }
    int close() override
    {
        m_open = false;
        return munmap();
    }
    [[nodiscard]] bool isopen() const override { return m_open; }

    Exiv2::DataBuf read(long count) override
    {
        const qint64 left = std::max<qint64>(m_device.size() - m_device.pos(), 0);
        Exiv2::DataBuf bytes(static_cast<long>(std::clamp<qint64>(count, 0, left)));
        bytes.size_ = read(bytes.pData_, bytes.size_);
        m_eof = m_eof || bytes.size_ < count;
        return bytes;
    }
    long read(Exiv2::byte *bytes, long count) override
    {
        const qint64 done = m_device.read(reinterpret_cast<char *>(bytes), count);
        m_eof = m_eof || done < count;
        return static_cast<long>(std::max<qint64>(done, 0));
    }
    int getb() override
    {
        Exiv2::byte byte = 0;
        return read(&byte, 1) == 1 ? byte : EOF;
    }
    int seek(long offset, Position from) override
    {
        const qint64 start = from == beg ? 0 : from == cur ? m_device.pos() : m_device.size();
        m_eof = false;
        return m_device.seek(start + offset) ? 0 : 1;
    }
    [[nodiscard]] long tell() const override { return static_cast<long>(m_device.pos()); }
    [[nodiscard]] size_t size() const override { return static_cast<size_t>(m_device.size()); }
    [[nodiscard]] int error() const override { return m_device.isSound() ? 0 : 1; }
    [[nodiscard]] bool eof() const override { return m_eof; }
    [[nodiscard]] std::string path() const override { return "photo"; }

    Exiv2::byte *mmap(bool writable) override
    {
        if (!writable && m_mapped == nullptr) {
            m_mapped = m_device.map();
        }
        if (writable || m_mapped == nullptr) {
            throw Exiv2::Error(Exiv2::kerCallFailed, path(), "cannot be mapped", "mmap");
        }
        return m_mapped;
    }
    int munmap() override
    {
        uchar *const mapped = std::exchange(m_mapped, nullptr);
        return mapped == nullptr || m_device.unmap(mapped) ? 0 : 1;
    }

    long write(const Exiv2::byte *, long) override { return 0; }
    long write(BasicIo &) override { return 0; }
    int putb(Exiv2::byte) override { return EOF; }
    void transfer(BasicIo &) override
    {
        throw Exiv2::Error(Exiv2::kerCallFailed, path(), "is read only", "transfer");
    }

private:
    PhotoDevice &m_device;
    uchar *m_mapped = nullptr;
    bool m_open = false;
    bool m_eof = false;
};

/** Called by the library while it registers the XMP namespaces of a file. */
void lockXmp(void *, bool lock)
{
    static std::recursive_mutex mutex;
    lock ? mutex.lock() : mutex.unlock();
}

} // namespace

QString exivVersion()
{
    return QString::fromLatin1(Exiv2::version());
}

void initializeExiv()
{
    Exiv2::XmpParser::initialize(lockXmp);
#ifdef EXV_ENABLE_BMFF
    Exiv2::enableBMFF();
#endif
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
}

std::unique_ptr<Exiv2::Image> readExivImage(PhotoDevice &device)
{
    try {
        auto image = Exiv2::ImageFactory::open(Exiv2::BasicIo::AutoPtr(new DeviceIo(device)));
        if (image.get() == nullptr) {
            return nullptr;
        }
        image->readMetadata();
        return std::unique_ptr<Exiv2::Image>(image.release());
    } catch (const std::exception &) {
        return nullptr;
    }
}

} // namespace PanoHost
