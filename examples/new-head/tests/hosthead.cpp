// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/hosthead.h"

#include "tests/support/hostilefiles.h"

namespace
{

QByteArray line(const QByteArray &yaw, const QByteArray &pitch)
{
    return "IMG_0001.jpg," + yaw + ',' + pitch + '\n';
}

QByteArray csvOf(const QVector<ShotAngles> &shots)
{
    QByteArray csv;
    for (const ShotAngles &shot : shots) {
        csv += line(QByteArray::number(shot.yawDegrees, 'g', 12),
                    QByteArray::number(shot.pitchDegrees, 'g', 12));
    }
    return csv;
}

/** Every kind of damage: numbers, cuts, other bytes, sizes. */
QVector<HostileFile> hostileLists()
{
    HostileFiles files;
    for (const QByteArray &number : oddNumbers()) {
        const QByteArray name = number.left(24) + " of " + QByteArray::number(number.size());
        files.add("yaw " + name, line("0", "0") + line(number, "0"));
        files.add("pitch " + name, line("0", "0") + line("30", number));
    }
    const QByteArray whole = line("0", "0") + line("30", "-15.5") + line("60", "15");
    for (int cut = 0; cut < whole.size(); cut += 3) {
        files.add("cut at " + QByteArray::number(cut), whole.left(cut));
    }
    files.add("CR LF", QByteArray(whole).replace("\n", "\r\n"));
    files.add("CR only", QByteArray(whole).replace("\n", "\r"));
    files.add("NUL inside", QByteArray(whole).insert(20, '\0'));
    files.add("byte order mark", "\xEF\xBB\xBF" + whole);
    files.add("invalid UTF-8", "\xC3(\xFF" + whole);
    files.add("far position", whole + line("5000", "5000"));
    files.add("only commas", QByteArray(1'000, ','));
    files.addLarge("64 MB of one name", [] { return filledUp("", 'x', ",0,0\n"); });
    files.addLarge("64 MB of one number", [] { return filledUp("a,0.", '0', ",0\n"); });
    files.addLarge("64 MB of commas", [] { return filledUp("", ',', "\n"); });
    files.addLarge("64 MB of line feeds", [] { return filledUp("", '\n', "a,0,0\n"); });
    files.addLarge("one byte too long", [] { return filledUp("", '\n', "", kMostBytes + 1); });
    for (const int shots : { 70'000, 130'000, 130'001, 6'000'000 }) {
        files.addLarge(QByteArray::number(shots) + " shots",
                       [shots] { return QByteArray("a,0,0\n").repeated(shots); });
    }
    files.addLarge("a grid of one degree", [] {
        return numbered(360 * 180, [](int i) {
            return line(QByteArray::number(i % 360), QByteArray::number(i / 360));
        });
    });
    return files.all();
}

HostHead newHead()
{
    HostHead head;
    head.title = "CSV list";
    head.plugin = "XCsvImport";
    head.hasEveryKind = true;
    head.name = "Csv";
    head.comment = "Shot list import plugin";
    head.uid = "7A21C94E-5B20-2020-2020-3C5F0E8A41D6";
    head.icon = "Csv.png";
    head.page = "UIWPCsv";
    head.recordName = "shots.csv";
    head.record = &csvOf;
    head.hostileFiles = &hostileLists;
    head.ordersByTime = true;
    const QString asks = QStringLiteral("LastPath");
    const QString folder = QStringLiteral("open FOLDER");
    const QString photo = QStringLiteral("open FOLDER/a.jpg");
    const QString shows = QStringLiteral("show");
    const QString tells = QStringLiteral("completeChanged");
    head.buttonSteps = { { "m_pbSelectConfigFile", true, { asks, folder } },
                         { "m_pbSelectConfigFile", false, { asks, shows, tells } },
                         { "m_pbSelectImages", true, { asks, photo } },
                         { "m_pbSelectImages", false, { asks } } };
    return head;
}

} // namespace

const HostHead &csvHostHead()
{
    static const HostHead head = newHead();
    return head;
}
