// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/claussscript.h"

#include "shoot/recordlimits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHead
{

namespace
{

struct Command {
    QByteArray key;
    QByteArray value;
};

bool isWordCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'
        || c == '-';
}

int endOfWord(const QByteArray &line, int start)
{
    int end = start;
    while (end < line.size() && isWordCharacter(line.at(end))) {
        ++end;
    }
    return end;
}

/** A key from the line's first character on, perhaps an equals sign, a value; the rest is dropped.
 */
Command parseLine(const QByteArray &line)
{
    const int keyEnd = endOfWord(line, 0);
    const bool hasSign = keyEnd < line.size() && line.at(keyEnd) == '=';
    const int valueStart = hasSign ? keyEnd + 1 : keyEnd;
    return { line.left(keyEnd), line.mid(valueStart, endOfWord(line, valueStart) - valueStart) };
}

/** The commands as text: nothing behind a NUL, no carriage returns, no byte order mark. */
QByteArray commandsIn(const QByteArray &bytes)
{
    const int nul = bytes.indexOf('\0');
    QByteArray text = nul < 0 ? bytes : bytes.left(nul);
    text.replace("\r", "");
    return text.startsWith("\xEF\xBB\xBF") ? text.mid(3) : text;
}

class Reader
{
public:
    ClaussScript read(const QByteArray &text)
    {
        int start = 0;
        while (start < text.size() && m_script.shots.size() <= kMaxRecordedShots) {
            const int newline = text.indexOf('\n', start);
            const int end = newline < 0 ? text.size() : newline;
            ++m_line;
            run(parseLine(QByteArray::fromRawData(text.constData() + start, end - start)));
            start = end + 1;
        }
        if (m_script.shots.size() > kMaxRecordedShots) {
            return { {},
                     false,
                     { QStringLiteral("more than %1 shots").arg(kMaxRecordedShots), m_line } };
        }
        return m_script;
    }

private:
    void run(const Command &command)
    {
        if (command.key == "op_shoot") {
            shoot();
        } else if (command.key == "op_v-angle") {
            m_vertical = angleOf(command);
        } else if (command.key == "op_h-angle") {
            m_horizontal = angleOf(command);
        }
    }

    void shoot()
    {
        ShootData shot;
        shot.yaw = m_horizontal;
        shot.pitch = m_vertical;
        shot.id = m_script.shots.size();
        m_script.shots.append(shot);
    }

    float angleOf(const Command &command)
    {
        bool ok = false;
        const float angle = command.value.toFloat(&ok);
        if (ok && std::isfinite(angle)) {
            return angle;
        }
        if (m_script.isSound) {
            m_script.isSound = false;
            m_script.firstError = { QStringLiteral("%1=%2 is not a number")
                                        .arg(QString::fromLatin1(command.key),
                                             QString::fromLatin1(command.value.left(40))),
                                    m_line };
        }
        return 0.0F;
    }

    ClaussScript m_script;
    float m_horizontal = 0.0F; // degrees, kept until changed
    float m_vertical = 0.0F;
    int m_line = 0;
};

/** Says of each line of a script in turn whether it stays in an excerpt. */
class Choice
{
public:
    explicit Choice(const QVector<int> &shots)
        : m_shots(shots)
    {
    }

    /** All lines once; what an angle is good for shows only behind it. */
    void look(const Command &command)
    {
        if (command.key == "op_shoot") {
            const bool stays = std::binary_search(m_shots.begin(), m_shots.end(), m_shot++);
            for (const int angle : m_current) {
                if (angle >= 0) {
                    m_uses[angle] = std::max(m_uses[angle], stays ? Use::Needed : Use::Passed);
                }
            }
        } else if (const int axis = axisOf(command); axis >= 0) {
            m_current.at(static_cast<size_t>(axis)) = m_uses.size();
            m_uses += Use::None;
        }
    }
    /** Then all lines again. */
    [[nodiscard]] bool stays(const Command &command)
    {
        if (command.key == "op_shoot") {
            return std::binary_search(m_shots.begin(), m_shots.end(), m_shotAgain++);
        }
        return axisOf(command) < 0 || m_uses.at(m_angleAgain++) != Use::Passed;
    }

private:
    enum class Use : quint8 {
        None, ///< by no shot at all: the head goes home, say
        Passed, ///< by shots that go
        Needed,
    };
    /** -1: sets no angle. */
    static int axisOf(const Command &command)
    {
        return command.key == "op_v-angle" ? 0 : command.key == "op_h-angle" ? 1 : -1;
    }

    const QVector<int> &m_shots;
    QVector<Use> m_uses; // one for each line that sets an angle
    std::array<int, 2> m_current{ -1, -1 }; // of each axis; -1: none yet
    int m_shot = 0;
    int m_shotAgain = 0;
    int m_angleAgain = 0;
};

/** Calls \p visit with each line of \p bytes, its end included, and the command in it. */
template <typename Visit> void forEachLine(const QByteArray &bytes, Visit visit)
{
    int start = 0;
    while (start < bytes.size()) {
        const int newline = bytes.indexOf('\n', start);
        const int end = newline < 0 ? bytes.size() : newline + 1;
        const QByteArray line = bytes.mid(start, end - start);
        visit(line, parseLine(start == 0 ? commandsIn(line) : QByteArray(line).replace("\r", "")));
        start = end;
    }
}

} // namespace

ClaussScript readClaussScript(const QByteArray &bytes)
{
    return Reader().read(commandsIn(bytes));
}

QByteArray claussExcerpt(const QByteArray &bytes, const QVector<int> &shots)
{
    const int nul = bytes.indexOf('\0');
    const QByteArray script = nul < 0 ? bytes : bytes.left(nul);
    Choice choice(shots);
    forEachLine(script,
                [&](const QByteArray & /*line*/, const Command &command) { choice.look(command); });
    QByteArray excerpt;
    forEachLine(script, [&](const QByteArray &line, const Command &command) {
        if (choice.stays(command)) {
            excerpt += line;
        }
    });
    return excerpt;
}

} // namespace PanoHead
