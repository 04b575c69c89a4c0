// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/findings.h"
#include "host/cli/commands.h"
#include "host/cli/requestline.h"
#include "host/import/importjob.h"
#include "host/model/commanderror.h"
#include "host/model/messages.h"

namespace PanoHost
{

namespace
{

CommandLine checkLine()
{
    return importingLine(
        { "panohost check HEAD [RECORD] PHOTO...",
          "Says what record and photos know: counts, focal length, lens, order, pauses.\n"
          "Writes nothing. Exit status 3 when 'import' would refuse them.",
          "# 33 photos, 36 shots: where did the shoot stop?\n"
          "panohost check papywizard shoot.xml IMG_*.jpg\n"
          "# do 6 rows of brackets of 3 come out even?\n"
          "panohost check gigapan IMG_*.jpg --rows 6 --bracket 3" },
        QVector<OptionRow>{ { "--json", nullptr, "the same as JSON, for other programs" } });
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

void check(Session &session, const ImportRequest &request, Report &report)
{
    ImportJob job(session.app, request, session.watch());
    const auto tell = [&] {
        session.console.endProgress();
        for (const Finding &finding : job.findings()) {
            report.add(finding);
        }
    };
    try {
        job.examine();
    } catch (const CommandError &) {
        tell();
        throw;
    }
    tell();
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
    Report report(line.isSet(QStringLiteral("json")));
    try {
        check(session, request, report);
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
