// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/tests/hostilescripts.h"

#include "tests/support/hostilefiles.h"

#include <QRandomGenerator>
#include <QString>
#include <QTextCodec>

namespace
{

QByteArray script(std::initializer_list<QByteArray> lines)
{
    QByteArray text;
    for (const QByteArray &line : lines) {
        text += line + "\n";
    }
    return text;
}

void addScriptNumbers(HostileFiles &files)
{
    for (const QByteArray key : { "op_h-angle", "op_v-angle" }) {
        for (const QByteArray &number : oddNumbers()) {
            files.add(
                "script " + key + "=" + number.left(24) + " of "
                    + QByteArray::number(number.size()),
                script({ "op_shoot", key + "=10", "op_shoot", key + "=" + number, "op_shoot" }));
        }
    }
}

void addScriptLines(HostileFiles &files)
{
    const QByteArray body = script({ "op_h-angle=30", "op_v-angle=-15", "op_shoot", "op_shoot" });
    const auto ending
        = [&body](const QByteArray &end) { return QByteArray(body).replace("\n", end); };
    files.add("script with CR LF", ending("\r\n"));
    files.add("script with CR", ending("\r"));
    files.add("script with LF CR", ending("\n\r"));
    files.add("script with NEL", ending("\xc2\x85"));
    files.add("script with line separators", ending("\xe2\x80\xa8"));
    files.add("script with VT and FF", ending("\v\f"));
    files.add("script with NUL", QByteArray(body).insert(20, '\0'));
    files.add("script with NUL first", QByteArray(body).insert(0, '\0'));
    files.add("script with a byte order mark", "\xef\xbb\xbf" + body);
    for (const QByteArray codec : { "UTF-16", "UTF-16BE", "UTF-32", "Shift_JIS" }) {
        files.add("script in " + codec,
                  QTextCodec::codecForName(codec)->fromUnicode(QString::fromLatin1(body)));
    }
    files.add("script in broken UTF-8", "\xff\xfe" + body + "\xc3\x28\n" + body);
    files.add("empty script", "");
    files.add("script without line end", "op_shoot");
    files.add("script that fails after a shot", script({ "op_shoot", "op_h-angle=abc" }));
    files.add("script that is XML",
              "<?xml version='1.0'?><papywizard><shoot><pict/></shoot></papywizard>\n");
    QRandomGenerator random(62);
    for (int i = 0; i < 30; ++i) {
        QByteArray bytes = body.repeated(3);
        for (int k = 0; k < 6; ++k) {
            bytes[static_cast<int>(random.bounded(bytes.size()))]
                = static_cast<char>(random.bounded(256));
        }
        files.add("script with six bytes changed, " + QByteArray::number(i), bytes);
    }
    for (int cut = 0; cut < body.size(); cut += 3) {
        files.add("script cut at " + QByteArray::number(cut), body.left(cut));
    }
}

void addScriptSizes(HostileFiles &files)
{
    files.addLarge("script of one line", [] { return filledUp("op_h-angle=1", '0', ""); });
    files.addLarge("script of one line of 100 MB",
                   [] { return filledUp("op_h-angle=1", '0', "", 100'000'000); });
    files.addLarge("script of one key", [] { return filledUp("op_shoot", 'x', "\n"); });
    files.addLarge("script of blank lines", [] { return filledUp("", '\n', "op_shoot\n"); });
    files.addLarge("script of carriage returns", [] { return filledUp("", '\r', "op_shoot\n"); });
    files.addLarge("script of NUL", [] { return filledUp("op_shoot\n", '\0', ""); });
    files.addLarge("script one byte too long",
                   [] { return filledUp("", '\n', "", kMostBytes + 1); });
    for (const int shots : { 70'000, 130'000, 130'001, 7'000'000 }) {
        files.addLarge("script of " + QByteArray::number(shots) + " shots on one spot",
                       [shots] { return QByteArray("op_shoot\n").repeated(shots); });
    }
    files.addLarge("script of 130,000 shots on a circle", [] {
        return numbered(130'000, [](int i) {
            return "op_h-angle=" + QByteArray::number(i % 360) + "\nop_shoot\n";
        });
    });
    files.addLarge("script of a grid of one degree", [] {
        return numbered(360 * 180, [](int i) {
            return "op_h-angle=" + QByteArray::number(i % 360)
                + "\nop_v-angle=" + QByteArray::number(i / 360) + "\nop_shoot\n";
        });
    });
    files.addLarge("script of bad numbers",
                   [] { return QByteArray("op_h-angle=x\n").repeated(5'000'000); });
    files.add("script with a far position",
              script({ "op_shoot", "op_h-angle=1", "op_shoot", "op_h-angle=100000", "op_shoot" }));
    files.add("script with the farthest positions",
              script({ "op_v-angle=3e38", "op_shoot", "op_v-angle=-3e38", "op_shoot" }));
}

} // namespace

QVector<HostileFile> hostileScripts()
{
    HostileFiles files;
    addScriptNumbers(files);
    addScriptLines(files);
    addScriptSizes(files);
    return files.all();
}
