#include "modelerrand.h"

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
