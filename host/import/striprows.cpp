// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/striprows.h"

#include <QFileInfo>

#include <algorithm>

namespace PanoHost
{

namespace
{

using State = StripRow::State;

State stateOf(const Finding &finding)
{
    return finding.kind == Finding::Kind::Trouble ? State::Trouble : State::Good;
}

QString namesOf(const QStringList &paths)
{
    QStringList names;
    names.reserve(paths.size());
    for (const QString &path : paths) {
        names += onOneLine(QFileInfo(path).fileName());
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

QString windowText(Failure failure)
{
    QStringList parts = failure.tryThis.split(QStringLiteral("; "));
    parts.erase(std::remove_if(parts.begin(), parts.end(),
                               [](const QString &part) {
                                   return part.contains(QLatin1String("--"))
                                       || part.contains(QLatin1String("panohost"));
                               }),
                parts.end());
    failure.tryThis = parts.join(QStringLiteral("; "));
    return failure.text();
}

StripTexts::StripTexts(const HeadFacts &head, PageState state)
    : m_head(head)
    , m_state(std::move(state))
{
}

const Finding *StripTexts::finding(const char *topic) const
{
    if (m_state.report == nullptr) {
        return nullptr;
    }
    const QVector<Finding> &findings = m_state.report->findings;
    const auto *found
        = std::find_if(findings.begin(), findings.end(), [topic](const Finding &finding) {
              return finding.topic == QLatin1String(topic);
          });
    return found == findings.end() ? nullptr : found;
}

bool StripTexts::canBeFitted() const
{
    return !m_state.isFitted && m_state.report != nullptr && m_state.report->fitted;
}

QVector<StripRow> StripTexts::rows() const
{
    QVector<StripRow> rows{ next(), record(), photos(), order(), focal() };
    rows += others();
    rows += leftOut();
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                              [](const StripRow &row) { return row.text.isEmpty(); }),
               rows.end());
    return rows;
}

/** Why Next cannot be pressed; no text when it can. */
StripRow StripTexts::next() const
{
    StripRow row{ QStringLiteral("next"), tr("Next"), {}, State::Trouble };
    if (m_state.isComplete) {
        return row;
    }
    const ShootReport *report = m_state.report;
    if (!m_head.isGrid() && m_state.record.isEmpty()) {
        row.text = tr("waits for the head's record");
        row.actions = { StripAction::ChooseRecord };
    } else if (report != nullptr && report->otherHead != nullptr) {
        row.text = tr("waits for another record: this one is of %1")
                       .arg(QString::fromUtf8(report->otherHead->title));
        row.actions = { StripAction::SwitchHead, StripAction::ChooseRecord };
    } else if (report != nullptr && report->refusal && report->summary.shotCount == 0
               && !m_head.isGrid()) {
        row.text = tr("waits for a record that can be read");
        row.actions = { StripAction::ChooseRecord };
    } else if (m_state.given == 0) {
        row.text = tr("waits for the photos");
        row.actions = { StripAction::ChoosePhotos };
    } else if (m_state.isReading || report == nullptr) {
        row.text = tr("waits until the photos have been read");
        row.state = State::Working;
    } else if (canBeFitted()) {
        row.text = m_state.given == report->summary.shotCount
            ? tr("waits: the photos do not stand at their shots")
            : tr("waits: %1 for %2")
                  .arg(m_state.given == 1 ? tr("1 photo") : tr("%1 photos").arg(m_state.given),
                       report->summary.shotCount == 1
                           ? tr("1 shot")
                           : tr("%1 shots").arg(report->summary.shotCount));
        row.actions = { StripAction::FitPhotos };
    } else if (finding("bad") != nullptr) {
        row.text = tr("waits: not all photos can be used");
    } else if (report->refusal) {
        row.text = tr("waits: %1").arg(windowText(*report->refusal));
        row.actions = { StripAction::ChoosePhotos };
    } else {
        row.text = tr("waits: the page does not accept these photos");
        row.actions = { StripAction::ChoosePhotos };
    }
    return row;
}

StripRow StripTexts::record() const
{
    StripRow row{ QStringLiteral("record"), tr("Record"), {} };
    if (m_head.isGrid()) {
        row.title = tr("Grid");
        if (const Finding *grid = finding("grid")) {
            row.text = grid->text;
            const ShootReport &report = *m_state.report;
            if (report.refusal) {
                row.text = windowText(*report.refusal);
                row.state = State::Trouble;
            }
        }
    } else if (finding("record") != nullptr) {
        // The page shows where it lies.
        row.text
            = recordFinding(QFileInfo(m_state.record).fileName(), m_state.report->summary).text;
    } else if (m_state.report != nullptr && m_state.report->refusal) {
        row.text = windowText(*m_state.report->refusal);
        row.state = State::Trouble;
        row.actions = { StripAction::ChooseRecord };
    }
    return row;
}

StripRow StripTexts::photos() const
{
    StripRow row{ QStringLiteral("photos"), tr("Photos"), {} };
    if (m_state.report != nullptr) {
        for (const Finding &finding : m_state.report->findings) {
            if (finding.action == Finding::Action::ReplacePhotos) {
                row.files += finding.files;
            }
        }
    }
    if (!row.files.isEmpty() && !m_state.isFitted) {
        row.text = tr("%1 cannot be used: %2")
                       .arg(QString::number(row.files.size()), namesOf(row.files));
        row.state = State::Trouble;
        row.actions = { StripAction::RemovePhotos, StripAction::ReplacePhotos };
    } else if (const Finding *photos = finding("photos")) {
        row.text = photos->text;
        row.files.clear();
    }
    return row;
}

/** Which photo belongs to which shot, and what puts it right. */
StripRow StripTexts::order() const
{
    StripRow row{ QStringLiteral("order"), tr("Order"), {} };
    if (m_state.report == nullptr || m_state.report->photos.isEmpty()) {
        return row;
    }
    QStringList texts;
    for (const char *topic : { "shots", "left", "clock" }) {
        for (const Finding &finding : m_state.report->findings) {
            if (finding.topic == QLatin1String(topic)) {
                texts += finding.text;
            }
        }
    }
    const Finding *order = finding("order");
    if (m_state.isFitted) {
        texts.prepend(tr("each photo stands at its shot"));
    } else if (canBeFitted()) {
        // Where photos are missing and nothing else is wrong, the first row says so.
        if (texts.isEmpty() && m_state.isComplete) {
            texts += tr("the photos do not stand at their shots");
        }
        row.state = State::Trouble;
        row.actions = { StripAction::FitPhotos };
    } else if (m_state.isComplete && m_state.report->refusal && !m_head.isGrid()) {
        texts += windowText(*m_state.report->refusal); // the page sees nothing wrong
        row.state = State::Trouble;
    } else if (order != nullptr) {
        texts += order->text;
        row.state = stateOf(*order);
    }
    row.text = texts.join(QStringLiteral("; "));
    return row;
}

StripRow StripTexts::focal() const
{
    StripRow row{ QStringLiteral("focal"), tr("Focal length"), {} };
    if (m_state.report == nullptr || m_state.report->photos.isEmpty()
        || m_state.report->lens.focal35mm > 0.0) {
        return row;
    }
    const double recorded = m_state.report->summary.focal35mm;
    row.actions = { StripAction::EnterFocal };
    if (m_state.wishedFocal35mm > 0.0) {
        row.text = m_state.isWishRemembered
            ? tr("%1, as the last time with such photos").arg(millimetres(m_state.wishedFocal35mm))
            : tr("%1, as entered").arg(millimetres(m_state.wishedFocal35mm));
    } else if (recorded > 0.0) {
        row.text = tr("%1, from the record: the photos name none").arg(millimetres(recorded));
    } else {
        row.text = tr("no photo names it: enter it, as for 35 mm film");
        row.state = State::Trouble;
    }
    return row;
}

QVector<StripRow> StripTexts::others() const
{
    struct Topic {
        const char *name;
        QString title;
    };
    QVector<StripRow> rows;
    for (const Topic &topic : { Topic{ "missing", tr("Missing") }, Topic{ "gaps", tr("Gaps") },
                                Topic{ "links", tr("Links") } }) {
        const Finding *found = finding(topic.name);
        if (found == nullptr || m_state.report->photos.isEmpty()) {
            continue;
        }
        StripRow row{ QString::fromLatin1(topic.name), topic.title, found->text, stateOf(*found) };
        row.files = found->files;
        row.shots = found->shots;
        if (found->action == Finding::Action::Reshoot) {
            row.actions = { StripAction::ShowShots };
        }
        rows += row;
    }
    return rows;
}

StripRow StripTexts::leftOut() const
{
    QStringList texts;
    if (!m_state.otherRecords.isEmpty()) {
        texts += tr("other records: %1").arg(namesOf(m_state.otherRecords));
    }
    if (!m_state.own.isEmpty()) {
        texts += tr("results of this program: %1").arg(namesOf(m_state.own));
    }
    StripRow row{ QStringLiteral("left"), tr("Not taken"), texts.join(QStringLiteral("; ")) };
    row.state = m_state.otherRecords.isEmpty() ? State::Good : State::Trouble;
    return row;
}

QString StripTexts::summary(const QVector<StripRow> &rows)
{
    int troubles = 0;
    bool isWorking = false;
    for (const StripRow &row : rows) {
        troubles += row.state == State::Trouble ? 1 : 0;
        isWorking = isWorking || row.state == State::Working;
    }
    if (troubles > 0) {
        const auto *first = std::find_if(rows.begin(), rows.end(), [](const StripRow &row) {
            return row.state == State::Trouble;
        });
        const QString text = first->name == QLatin1String("next")
            ? QStringLiteral("%1 %2") // one sentence
            : QStringLiteral("%1: %2");
        return (troubles == 1 ? tr("1 thing to look at") : tr("%1 things to look at").arg(troubles))
            + QStringLiteral(" - ") + text.arg(first->title, first->text);
    }
    return isWorking ? tr("Looking at the photos...") : tr("Everything agrees");
}

QString StripTexts::actionText(StripAction action)
{
    switch (action) {
    case StripAction::ChooseRecord:
        return tr("Choose record...");
    case StripAction::ChoosePhotos:
        return tr("Choose photos...");
    case StripAction::RemovePhotos:
        return tr("Remove");
    case StripAction::ReplacePhotos:
        return tr("Replace...");
    case StripAction::FitPhotos:
        return tr("Fix");
    case StripAction::SwitchHead:
        return tr("Switch head");
    case StripAction::EnterFocal:
        return tr("Enter");
    case StripAction::ShowShots:
        return tr("Show shots...");
    }
    return {};
}

} // namespace PanoHost
