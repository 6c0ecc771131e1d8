#include "schema.h"

using namespace Qt::StringLiterals;

namespace {

constexpr SchemaTable kTables[] = {
    {"Master"_L1, "Modelo TIPO Orig Malha Ci RefT RefV REF Leitura PORC G1 G2 G3"_L1},
    {"Rf"_L1, "Modelo Malha Componente Valor Tipo"_L1},
    {"i"_L1, "Aparelho i"_L1},
    {"Comandos"_L1, "Comando Info Info2 Info3"_L1},
    {"Dados"_L1, "Aparelho Comando Dados Info Info2 Info3"_L1},
    {"M"_L1, "String"_L1},
    {"Combos"_L1, "Combo1 Combo2 Combo3 Combo4 Combo5 Combo6 Combo7 Combo8 Combo9 Combo10"_L1},
    {"Tools"_L1, "Idioma Nome syncbd"_L1},
    {"Ultimo"_L1, "Modelo"_L1},
    {"RailSources"_L1, "Modelo TIPO Orig Confidence Source"_L1, "Modelo, TIPO, Orig"_L1, SchemaTable::Origin::Added},
    {"TakenReferences"_L1, "Modelo TIPO Orig RefV Source"_L1, "Modelo, TIPO, Orig"_L1, SchemaTable::Origin::Added},
    {"GoodBoards"_L1, "Modelo TIPO Orig Board Volts Uuid Serial"_L1, "Modelo, TIPO, Orig, Board"_L1,
     SchemaTable::Origin::Added},
    {"Settings"_L1, "Name Value"_L1, "Name"_L1, SchemaTable::Origin::Added},
    {"DeviceSources"_L1, "Aparelho i Source Confidence"_L1, "Aparelho, i"_L1, SchemaTable::Origin::Added},
    {"RfSources"_L1, "Modelo Malha Componente Tipo Confidence Source"_L1, "Modelo, Malha, Componente, Tipo"_L1,
     SchemaTable::Origin::Added},
    {"RecordingHash"_L1, "Aparelho Comando Sha256"_L1, "Aparelho, Comando"_L1, SchemaTable::Origin::Added},
    {"RecordingIds"_L1, "Aparelho Comando Uuid Serial"_L1, "Aparelho, Comando"_L1, SchemaTable::Origin::Added},
    {"Surveys"_L1, "Id Started Ended Outcome Model Serial Port Name Note NoteUuid"_L1, "Id"_L1,
     SchemaTable::Origin::Added},
    {"SurveyReplies"_L1, "Survey Place Command Reply Cut"_L1, "Survey, Place"_L1, SchemaTable::Origin::Added},
    {"SurveyFindings"_L1,
     "Survey Output What Screens Reading Reference Source Deviation Lowest Highest Verdict Line "
     "Uuid Serial Model"_L1,
     "Survey, Output"_L1, SchemaTable::Origin::Added},
};

} // namespace

bool isNumberColumn(QStringView column)
{
    return column == "TIPO"_L1;
}

// Texts are never null, so that `<> ''` finds what is filled; they compare, match and sort without regard to the case
// of the letters A to Z. "TIPO" in capitals is the kind of a rail, the only number.
QString columnStatement(const QString &name)
{
    const bool number = isNumberColumn(name);
    return name + (number ? " integer not null default 0"_L1 : " text collate nocase not null default ''"_L1);
}

std::span<const SchemaTable> schemaTables()
{
    return kTables;
}

QStringList columnsOf(const SchemaTable &table)
{
    return QString(table.columns).split(u' ');
}

QString tableStatement(const SchemaTable &table, QLatin1StringView part)
{
    QStringList parts;
    for (const QString &name : columnsOf(table))
        parts += columnStatement(name);
    if (!table.key.isEmpty())
        parts += u"primary key (%1)"_s.arg(table.key);
    return u"create table %1.%2 (%3)"_s.arg(part, table.name, parts.join(u", "_s));
}

QStringList schemaStatements()
{
    QStringList statements{u"PRAGMA application_id=%1"_s.arg(kApplicationId),
                           u"PRAGMA user_version=%1"_s.arg(kSchemaVersion)};
    for (const SchemaTable &table : kTables)
        statements += tableStatement(table);
    return statements;
}
