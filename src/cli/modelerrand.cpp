#include "modelerrand.h"

#include "reportpdf.h"
#include "settingkeys.h"
#include "terminal.h"

#include <utility>

using namespace Qt::StringLiterals;

ModelErrand::ModelErrand(CommonOptions options) : Errand(std::move(options)), m_replayed(false) {}

ModelErrand::ModelErrand(CommonOptions options, const QByteArray &reply)
    : Errand(std::move(options), reply), m_replayed(true)
{
}

void ModelErrand::start()
{
    Errand::start();
    if (!isFinished())
        refuseInVain();
    if (isFinished())
        return;
    if (!m_replayed)
        return connectToPhone();
    session().adopt({}, options().model);
    beginOnce();
}

void ModelErrand::connectedToPhone()
{
    if (!options().model.isEmpty())
        session().chooseModel(options().model);
    if (!session().isModelKnown()) // asking the phone again would only tell the same twice
        return refuseWithoutModel();
    beginOnce();
}

void ModelErrand::beginOnce()
{
    if (!std::exchange(m_begun, true))
        begin();
}

void ModelErrand::refuseWithoutModel()
{
    fail({{u"REFUSED_NO_MODEL"_s}, {{{}, {u"(--model NAME)"_s}}}}, ExitCode::Incomplete);
}

QString ModelErrand::stored(const QString &name)
{
    const auto read = name == "logo"_L1 ? &namedSetting : &checkedSetting; // a report goes out without its logo
    QString value;
    session().withStore<QString>( // blocks: it is there when this returns
        Store::Access::Read, [&name, read](Store &store) { return read(store, name); }, this,
        [&value](const QString &text) { value = text; });
    return value;
}

void ModelErrand::writePdf(ReportDocument report, const QString &path)
{
    report.logoFile = stored(u"logo"_s);
    if (isFinished()) // the store failed
        return;
    if (const Result<Done> written = writeReport(report, path); !written)
        return fail(written.trouble(), ExitCode::Incomplete);
    if (const std::optional<Notice> missing = logoTrouble(report.logoFile))
        printError(oneLine({*missing}, language()));
}
