// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/tiffcheck.h"

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

} // namespace

bool isCompleteTiff(QIODevice &device, const QSize &size)
{
    constexpr quint64 kIntel = 0x4949;
    constexpr quint64 kBigVersion = 43;
    constexpr int kMostPictures = 64;
    Numbers file(device);
    if (file.at(0, 2) != kIntel) {
        return false;
    }
    const bool isBig = file.at(2, 2) == kBigVersion;
    const Layout layout = isBig ? kBig : kClassic;
    quint64 directory = isBig ? file.at(8, 8) : file.at(4, 4);
    int pictures = 0;
    for (; directory != 0 && pictures < kMostPictures; ++pictures) {
        const quint64 entries = file.at(directory, layout.count);
        const quint64 first = directory + static_cast<quint64>(layout.count);
        std::vector<quint64> offsets;
        std::vector<quint64> counts;
        for (quint64 i = 0; i < entries && file.isSound(); ++i) {
            const quint64 entry = first + i * static_cast<quint64>(layout.entry);
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
        const bool isThere = std::equal(offsets.begin(), offsets.end(), counts.begin(),
                                        counts.end(), [&file](quint64 offset, quint64 count) {
                                            return offset > 0 && count > 0 && offset <= file.end()
                                                && count <= file.end() - offset;
                                        });
        if (!file.isSound() || offsets.empty() || !isThere) {
            return false;
        }
        directory = file.at(first + entries * static_cast<quint64>(layout.entry), isBig ? 8 : 4);
    }
    return file.isSound() && directory == 0 && pictures > 0;
}

} // namespace PanoHost
