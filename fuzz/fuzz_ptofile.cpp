// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "host/model/ptofile.h"

#include <cmath>

using namespace PanoHost;

namespace
{

const QString kFolder = QStringLiteral("/photos");

bool nearlyEqual(double one, double other)
{
    return std::abs(one - other) <= 1e-5 * (1.0 + std::abs(other));
}

/** Pixels are written to four decimals. */
bool samePixel(double one, double other)
{
    return std::abs(one - other) <= 0.00005 + 1e-9 * (1.0 + std::abs(other));
}

bool sameYaw(double one, double other)
{
    return std::abs(std::remainder(one - other, 360.0)) <= 1e-5;
}

/** Gives every image and lens other values, and the project other points, a record and a canvas. */
void alter(PtoFile &file)
{
    const int count = file.images().size();
    QVector<Angles> recorded;
    QVector<double> turns;
    for (int i = 0; i < count; ++i) {
        PtoPlacement placement;
        placement.angles = { 0.5 * i, -0.25 * i, 90.0 + i };
        if (i % 2 == 1) {
            placement.exposureValue = i;
        }
        file.place(i, placement);
        recorded.append({ i / 3.0, -i / 7.0, 0.0 });
        turns.append(i);
        if (file.images().at(i).lensMaster < 0) {
            PtoLens lens;
            lens.horizontalFovDegrees = 10.0 + i % 100;
            lens.b = -0.02;
            lens.vignetting = Vignetting{ -0.5 };
            file.setLens(i, lens);
        }
    }
    file.setRecord(recorded, turns);
    QVector<PtoPoint> points = file.points();
    points.append({ 0, count - 1, 1.5, 2.5, 3.5, 4.5, true });
    file.setPoints(points);
    file.layOutCanvas();
}

void checkSame(const PtoFile &one, const PtoFile &other)
{
    FUZZ_CHECK(one.images().size() == other.images().size());
    for (int i = 0; i < one.images().size(); ++i) {
        const PtoImage &a = one.images().at(i);
        const PtoImage &b = other.images().at(i);
        FUZZ_CHECK(sameYaw(a.angles.yaw, b.angles.yaw));
        FUZZ_CHECK(nearlyEqual(a.angles.pitch, b.angles.pitch));
        FUZZ_CHECK(sameYaw(a.angles.roll, b.angles.roll));
        FUZZ_CHECK(a.recorded.yaw == b.recorded.yaw && a.recorded.pitch == b.recorded.pitch);
        FUZZ_CHECK(a.turnDegrees == b.turnDegrees);
        FUZZ_CHECK(a.horizontalFovDegrees == b.horizontalFovDegrees);
        FUZZ_CHECK(a.a == b.a && a.b == b.b && a.c == b.c);
        FUZZ_CHECK(a.exposureValue.has_value() == b.exposureValue.has_value());
        FUZZ_CHECK(nearlyEqual(a.exposureValue.value_or(0.0), b.exposureValue.value_or(0.0)));
        FUZZ_CHECK(a.lensMaster == b.lensMaster && a.angleMaster == b.angleMaster);
        FUZZ_CHECK(a.stackMaster == b.stackMaster && a.path == b.path && a.size == b.size);
    }
    FUZZ_CHECK(one.points().size() == other.points().size());
    for (int i = 0; i < one.points().size(); ++i) {
        FUZZ_CHECK(one.points().at(i).second == other.points().at(i).second);
        FUZZ_CHECK(one.points().at(i).isWrong == other.points().at(i).isWrong);
        FUZZ_CHECK(samePixel(one.points().at(i).y2, other.points().at(i).y2));
    }
}

} // namespace

/** Any bytes: refused with a reason, or a project that is kept byte for byte and takes other
 * values. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    auto file = PtoFile::parse(bytes, kFolder);
    if (!file) {
        FUZZ_CHECK(!file.error().why.isEmpty());
        return 0;
    }
    FUZZ_CHECK(file.value().text(kFolder).value() == bytes);
    alter(file.value());
    const QByteArray text = file.value().text(kFolder).value();
    const auto again = PtoFile::parse(text, kFolder);
    FUZZ_CHECK(again.ok());
    FUZZ_CHECK(again.value().isOurs() && again.value().hasRecord());
    checkSame(again.value(), file.value());
    FUZZ_CHECK(again.value().text(kFolder).value() == text);
    const auto moved = file.value().text(QStringLiteral("/other place"));
    FUZZ_CHECK(moved.ok());
    FUZZ_CHECK(PtoFile::parse(moved.value(), QStringLiteral("/other place")).ok());
    return 0;
}
