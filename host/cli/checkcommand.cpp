// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/findings.h"
#include "host/cli/commands.h"
#include "host/cli/outputs.h"
#include "host/cli/requestline.h"
#include "host/import/importjob.h"
#include "host/import/inputcheck.h"
#include "host/import/reshoot.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/messages.h"
#include "host/model/safefile.h"

namespace PanoHost
{

namespace
{

CommandLine checkLine()
{
    return importingLine(
        { "panohost check HEAD [RECORD] PHOTO...",
          "Says what record and photos know: counts, focal length, lens, order, pauses.\n"
          "Writes nothing but what --reshoot asks for. Exit status 3 when 'import' would\n"
          "refuse them.",
          "# 33 photos, 36 shots: where did the shoot stop?\n"
          "panohost check papywizard shoot.xml IMG_*.jpg\n"
          "# before leaving the spot: a record for the head with what is missing or blurred\n"
          "panohost check papywizard shoot.xml IMG_*.jpg --reshoot again.xml\n"
          "# do 6 rows of brackets of 3 come out even?\n"
          "panohost check gigapan IMG_*.jpg --rows 6 --bracket 3" },
        QVector<OptionRow>{
            { "--json", nullptr, "the same as JSON, for other programs" },
            { "--reshoot", "FILE|-",
              "looks at all pictures too, lists the shots to take again (missing, unreadable, "
              "blurred, exposure off, moved within a bracket) and writes a record of the head's "
              "own with just these; '-': the list alone, all there is for gigapan" },
        });
}

/** The findings so far, told as they come unless they are to be JSON. */
class Report
{
public:
    explicit Report(bool isJson)
        : m_isJson(isJson)
    {
    }

    void add(const Finding &finding)
    {
        m_findings += finding;
        if (!m_isJson) {
            const QString cure
                = finding.cure.isEmpty() ? QString() : QStringLiteral("; ") + finding.cure;
            printOut(QStringLiteral("%1 %2%3\n")
                         .arg(finding.topic, -8)
                         .arg(onOneLine(finding.text), cure));
        }
    }
    void accept()
    {
        add({ topic(), QStringLiteral("can be imported") });
        end(true);
    }
    /** Whoever reads the text finds \p failure among the messages. */
    void refuse(const Failure &failure)
    {
        if (m_isJson) {
            add({ topic(), failure.text(), Finding::Kind::Trouble });
            end(false);
        }
    }

private:
    [[nodiscard]] static QString topic() { return QStringLiteral("result"); }
    void end(bool importable) const
    {
        if (m_isJson) {
            printOut(QString::fromUtf8(findingsToJson(m_findings, importable)));
        }
    }

    bool m_isJson;
    QVector<Finding> m_findings;
};

/** What `--reshoot` asks for. */
struct ReshootWish {
    bool isGiven = false;
    QString file; ///< absolute; empty: the list alone
};

ReshootWish reshootWish(const CommandLine &line, const ImportRequest &request)
{
    ReshootWish wish;
    const QString option = QStringLiteral("reshoot");
    wish.isGiven = line.isSet(option);
    if (!wish.isGiven || line.value(option) == QLatin1String("-")) {
        return wish;
    }
    if (line.value(option).isEmpty()) {
        throw usageError(QStringLiteral("--reshoot names no file"),
                         QStringLiteral("name one, or '-' for the list alone"));
    }
    if (request.head->excerpt == nullptr) {
        throw usageError(
            QStringLiteral("%1 takes no record that could be written").arg(request.head->name()),
            QStringLiteral("use --reshoot - for the list alone"));
    }
    wish.file = absolutePath(line.value(option));
    requireWritable(wish.file, QStringList(request.record) + request.photos);
    return wish;
}

void tellAll(Session &session, const QVector<Finding> &findings, Report &report)
{
    session.console.endProgress();
    for (const Finding &finding : findings) {
        report.add(finding);
    }
}

void findShotsToTakeAgain(Session &session, const ImportRequest &request, const ImportJob &job,
                          const ReshootWish &wish, Report &report)
{
    const Reshoot reshoot = shotsToTakeAgain(session.app, request, job.check(), session.watch());
    tellAll(session, reshoot.findings, report);
    if (wish.file.isEmpty()) {
        return;
    }
    if (reshoot.shots.isEmpty()) {
        session.console.info(QStringLiteral("%1: not written").arg(displayName(wish.file)));
        return;
    }
    (void)valueOrThrow(writeFileAtomically(
        wish.file, valueOrThrow(recordExcerpt(*request.head, request.record, reshoot.shots))));
    session.console.info(QStringLiteral("%1: %2 to take again")
                             .arg(displayName(wish.file), counted(reshoot.shots.size(), "shot")));
}

void check(Session &session, const ImportRequest &request, const ReshootWish &wish, Report &report)
{
    ImportJob job(session.app, request, session.watch());
    try {
        job.examine();
    } catch (const CommandError &) {
        tellAll(session, job.check().findings(), report);
        throw;
    }
    tellAll(session, job.check().findings(), report);
    if (wish.isGiven) {
        findShotsToTakeAgain(session, request, job, wish, report);
    }
    job.preparePage();
}

} // namespace

ExitCode runCheck(Session &session, const QStringList &arguments)
{
    CommandLine line = checkLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    const ImportRequest request = importRequest(session, line);
    const ReshootWish wish = reshootWish(line, request);
    Report report(line.isSet(QStringLiteral("json")));
    try {
        check(session, request, wish, report);
    } catch (const CommandError &error) {
        if (error.failure().code == ExitCode::InputRefused) {
            report.refuse(error.failure());
        }
        throw;
    }
    report.accept();
    return ExitCode::Done;
}

} // namespace PanoHost
