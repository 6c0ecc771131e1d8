#include "identities.h"

#include "queries.h"

using namespace Qt::StringLiterals;

namespace {

// A random one, as `newUuid` makes them, in the words of the store.
constexpr QLatin1StringView kNewUuid{
    "lower(hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-4' || substr(hex(randomblob(2)), 2) || '-' || "
    "substr('89AB', 1 + (random() & 3), 1) || substr(hex(randomblob(2)), 2) || '-' || hex(randomblob(6)))"};

// Rows of other programs may hold nulls, or a pair twice. The serial number of a good board stands behind the time.
constexpr QLatin1StringView kStatements[] = {
    "Update SurveyFindings set Uuid = NewUuid() Where coalesce(Uuid, '') = ''"_L1,
    "Update SurveyFindings set (Model, Serial) = (Select coalesce(s.Model, ''), coalesce(s.Serial, '') "
    "from Surveys s Where s.Id = SurveyFindings.Survey limit 1) "
    "Where Survey in (Select Id from Surveys)"_L1,
    "Update Surveys set NoteUuid = NewUuid() Where Note <> '' and coalesce(NoteUuid, '') = ''"_L1,
    "Update GoodBoards set Uuid = NewUuid() Where coalesce(Uuid, '') = ''"_L1,
    "Update GoodBoards set Serial = substr(Board, 25) "
    "Where coalesce(Serial, '') = '' and Board like '____-__-__ __:__:__.___ _%'"_L1,
    "Insert or ignore into RecordingIds (Aparelho, Comando, Uuid) Select Aparelho, Comando, NewUuid() from Dados"_L1,
};

} // namespace

Result<Done> giveIdentities(const Store &store)
{
    for (const QLatin1StringView statement : kStatements) {
        const std::string text = QString(statement).replace("NewUuid()"_L1, kNewUuid).toStdString();
        if (const auto given = store.run({"", text}); !given)
            return given.trouble();
    }
    return Done{};
}
