// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/tifffile.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <vector>

namespace PanoHost
{
namespace
{

constexpr int kWidth = 256;
constexpr int kHeight = 257;
constexpr int kTileOffsets = 324;
constexpr int kTileByteCounts = 325;
constexpr int kXmp = 700;

/** Reads numbers of a file; all of them are 0 once one is beyond its end. */
class Numbers
{
public:
    explicit Numbers(QIODevice &device)
        : m_device(device)
    {
    }

    [[nodiscard]] quint64 at(quint64 offset, int bytes)
    {
        quint64 number = 0;
        m_isSound = m_isSound && offset < static_cast<quint64>(m_device.size())
            && m_device.seek(static_cast<qint64>(offset))
            && m_device.read(reinterpret_cast<char *>(&number), bytes) == bytes;
        return m_isSound ? qFromLittleEndian(number) : 0;
    }
    [[nodiscard]] bool isSound() const { return m_isSound; }
    [[nodiscard]] quint64 end() const { return static_cast<quint64>(m_device.size()); }

private:
    QIODevice &m_device;
    bool m_isSound = true;
};

/** A TIFF's pictures, one after the other; how wide its numbers are. */
struct Layout {
    int count; ///< of entries
    int entry;
    int value; ///< of an entry: a number, or where many are
};
constexpr Layout kClassic{ 2, 12, 4 };
constexpr Layout kBig{ 8, 20, 8 };

/** Bytes of a value of the type with this number. */
quint64 bytesOf(quint64 type)
{
    constexpr std::array<quint8, 19> kBytes{
        1, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4, 1, 1, 8, 8, 8
    };
    return type < kBytes.size() ? kBytes.at(type) : 1;
}

/** Where the values of an entry are: in it, or elsewhere when they are many. */
struct Values {
    quint64 place = 0;
    quint64 count = 0;
    quint64 bytes = 1; ///< of each
};

Values valuesOf(Numbers &file, quint64 entry, const Layout &layout)
{
    const auto room = static_cast<quint64>(layout.value);
    Values values{ entry + 4 + room, file.at(entry + 4, layout.value),
                   bytesOf(file.at(entry + 2, 2)) };
    if (values.count > room / values.bytes) {
        values.place = file.at(values.place, layout.value);
    }
    return values;
}

bool isWithin(quint64 place, quint64 bytes, quint64 end)
{
    return place <= end && bytes <= end - place;
}

std::vector<quint64> listOf(Numbers &file, const Values &values)
{
    std::vector<quint64> list(values.count);
    for (size_t i = 0; i < list.size(); ++i) {
        list[i] = file.at(values.place + i * values.bytes, static_cast<int>(values.bytes));
    }
    return list;
}

/** Where a file's first picture is described, and how. */
struct Start {
    Layout layout;
    quint64 directory; ///< 0: no such file
};

Start startOf(Numbers &file)
{
    constexpr quint64 kIntel = 0x4949;
    constexpr quint64 kBigVersion = 43;
    if (file.at(0, 2) != kIntel) {
        return { kClassic, 0 };
    }
    const bool isBig = file.at(2, 2) == kBigVersion;
    return { isBig ? kBig : kClassic, isBig ? file.at(8, 8) : file.at(4, 4) };
}

/** The places of a picture's entries; none when they are more than sense makes. */
std::vector<quint64> entriesOf(Numbers &file, quint64 directory, const Layout &layout)
{
    constexpr quint64 kMost = 4096;
    const quint64 count = file.at(directory, layout.count);
    std::vector<quint64> entries(count > kMost ? 0 : count);
    quint64 place = directory + static_cast<quint64>(layout.count);
    for (quint64 &entry : entries) {
        entry = place;
        place += static_cast<quint64>(layout.entry);
    }
    return entries;
}

} // namespace

bool isCompleteTiff(QIODevice &device, const QSize &size)
{
    constexpr int kMostPictures = 64;
    Numbers file(device);
    const Start start = startOf(file);
    const Layout &layout = start.layout;
    quint64 directory = start.directory;
    int pictures = 0;
    for (; directory != 0 && pictures < kMostPictures; ++pictures) {
        const std::vector<quint64> entries = entriesOf(file, directory, layout);
        std::vector<quint64> offsets;
        std::vector<quint64> counts;
        for (const quint64 entry : entries) {
            const quint64 tag = file.at(entry, 2);
            const Values values = valuesOf(file, entry, layout);
            if (values.count > file.end()
                || !isWithin(values.place, values.count * values.bytes, file.end())) {
                return false;
            }
            if (tag == kTileOffsets) {
                offsets = listOf(file, values);
            } else if (tag == kTileByteCounts) {
                counts = listOf(file, values);
            } else if (pictures == 0 && (tag == kWidth || tag == kHeight)) {
                const int expected = tag == kWidth ? size.width() : size.height();
                if (listOf(file, values)
                    != std::vector<quint64>{ static_cast<quint64>(expected) }) {
                    return false;
                }
            }
        }
        const bool isThere
            = std::equal(offsets.begin(), offsets.end(), counts.begin(), counts.end(),
                         [&file](quint64 offset, quint64 count) {
                             return offset > 0 && count > 0 && isWithin(offset, count, file.end());
                         });
        if (!file.isSound() || offsets.empty() || !isThere) {
            return false;
        }
        directory = file.at(entries.back() + static_cast<quint64>(layout.entry),
                            layout.value); // of the next picture
    }
    return file.isSound() && directory == 0 && pictures > 0;
}

QByteArray tiffXmp(QIODevice &device)
{
    constexpr quint64 kMostBytes = 1 << 20;
    Numbers file(device);
    const Start start = startOf(file);
    if (start.directory == 0) {
        return {};
    }
    for (const quint64 entry : entriesOf(file, start.directory, start.layout)) {
        if (file.at(entry, 2) == kXmp) {
            const Values values = valuesOf(file, entry, start.layout);
            return values.count <= kMostBytes && device.seek(static_cast<qint64>(values.place))
                ? device.read(static_cast<qint64>(values.count * values.bytes))
                : QByteArray();
        }
    }
    return {};
}

} // namespace PanoHost
