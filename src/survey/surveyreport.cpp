#include "surveyreport.h"

#include "catalogue.h"
#include "surveypanel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

ReportFinding rowOf(const Finding &finding, const QString &model, Language language)
{
    return {.what = finding.what,
            .reading = finding.reading,
            .reference = finding.reference,
            .source = finding.source,
            .deviationText = deviationOf(finding),
            .line = finding.line,
            .screen = screenNames(finding, model, language),
            .deviation = finding.deviation,
            .tolerance = drawnTolerance(finding.rule),
            .verdict = finding.verdict};
}

/// A survey that was cut short says so where the customer reads.
QString noteOf(const SurveyRun &run, const QString &note, Language language)
{
    const QString end = run.end == SurveyEnd::Finished ? QString() : caption(captionKey(run.end), language);
    return (end + u' ' + note).trimmed();
}

} // namespace

ReportDocument reportOf(const SurveyRun &run, const QList<Finding> &findings, const SurveySigning &signing,
                        Language language)
{
    ReportDocument report{.title = caption(u"Vistoria", language),
                          .shop = signing.name,
                          .model = run.model,
                          .serial = run.serial().isEmpty() ? caption(u"desconhecido", language) : run.serial(),
                          .date = run.started.toString(u"yyyy-MM-dd HH:mm"_s),
                          .note = noteOf(run, signing.note, language),
                          .language = language};
    std::ranges::transform(findings, std::back_inserter(report.findings),
                           [&](const Finding &finding) { return rowOf(finding, run.model, language); });
    return report;
}
