#pragma once

#include <QString>

#include <span>
#include <string_view>

/// A text that the store understands, under the name it goes by. Values are bound to its placeholders.
struct Query
{
    std::string_view name;
    std::string_view sql;
};

/// The pattern of a `like` in which "*" stands for any run of characters and everything else for itself. The queries
/// of the catalogue take patterns in this form only.
QString likePattern(const QString &wildcards);

/// Every query of the catalogue.
std::span<const Query *const> queryCatalogue();

// clang-format off

inline constexpr Query kHasMaster{"HasMaster",
    "Select 1 from sqlite_master Where type = 'table' and name = 'Master' collate nocase"};
// What no store of this program holds: code that runs by itself, and tables that are no tables.
inline constexpr Query kStrangeObject{"StrangeObject",
    "Select type, name from sqlite_master Where type in ('trigger', 'view') or sql like 'create virtual%' "
    "or sql like '%without%rowid%' limit 1"};
inline constexpr Query kStoreIds{"StoreIds",
    "Select application_id, user_version from pragma_application_id, pragma_user_version"};
inline constexpr Query kColumnsOfTables{"ColumnsOfTables",
    "Select m.name as TableName, c.name as ColumnName, c.type as Type, c.hidden as Hidden "
    "from sqlite_master m join pragma_table_xinfo(m.name, 'main') c Where m.type = 'table'"};
inline constexpr Query kIntegrity{"Integrity", "PRAGMA integrity_check(20)"};
// A copy without a moment at which it was half: it is read in one go, tree by tree, so damage shows here too.
inline constexpr Query kCopyInto{"CopyInto", "VACUUM INTO :file"};

// Rails. Rows that an order leaves equal come in the order in which they were stored.
inline constexpr Query kMaster{"Master",
    "Select rowid, * from Master"};
inline constexpr Query kRailsByOrig{"RailsByOrig",
    "Select rowid, * from Master Where Modelo = :model and TIPO = :kind order by Orig, rowid"};
inline constexpr Query kReadableRails{"ReadableRails",
    "Select rowid, * from Master Where modelo = :model and RefT <> '' and TIPO = :kind order by Modelo, Orig, rowid"};
inline constexpr Query kReadableVolts{"ReadableVolts",
    "Select rowid, * from Master Where modelo = :model and RefT <> '' and TIPO = :kind and RefV <> '' "
    "order by Modelo, Orig, rowid"};
inline constexpr Query kReadableCurrents{"ReadableCurrents",
    "Select rowid, * from Master Where modelo = :model and RefT <> '' and TIPO = :kind and Porc = '' "
    "order by Modelo, Orig, rowid"};
inline constexpr Query kRailsByModelOrig{"RailsByModelOrig",
    "Select rowid, * from Master Where modelo = :model and TIPO = :kind order by Modelo, Orig, rowid"};
inline constexpr Query kRailsByChipOrig{"RailsByChipOrig",
    "Select rowid, * from Master Where modelo = :model and TIPO = :kind order by CI, Orig, rowid"};
// The farthest off first, whichever way; then what has a reading but no deviation; last what was not measured, which
// shows an empty text or one that ends with "*".
inline constexpr Query kRailsByPorc{"RailsByPorc",
    "Select rowid, * from Master Where modelo = :model and TIPO = :kind order by "
    "case when Leitura = '' or Leitura like '%*' then 2 when Porc = '' then 1 else 0 end, "
    "case when Leitura = '' or Leitura like '%*' then 0 else abs(cast(Porc as real)) end desc, Orig, rowid"};
inline constexpr Query kRailsByMalha{"RailsByMalha",
    "Select rowid, * from Master Where modelo = :model and TIPO = :kind order by Malha, rowid"};
inline constexpr Query kRailsByModelMalha{"RailsByModelMalha",
    "Select rowid, * from Master Where modelo = :model and TIPO = :kind order by Modelo, Malha, rowid"};
inline constexpr Query kRailsByChipMalha{"RailsByChipMalha",
    "Select rowid, * from Master Where modelo = :model and TIPO = :kind order by CI, Malha, rowid"};
inline constexpr Query kRailsOfChip{"RailsOfChip",
    R"(Select rowid, * from Master Where modelo = :model and TIPO = :kind AND Ci like :chip escape '\' )"
    "order by Modelo, Malha, rowid"};
inline constexpr Query kChipRails{"ChipRails",
    R"(Select rowid, * from Master Where modelo = :model and Ci like :chip escape '\' order by Malha, rowid)"};
inline constexpr Query kRailsOfNet{"RailsOfNet",
    "Select rowid, * from Master Where Modelo = :model and Malha = :net"};
inline constexpr Query kRailSources{"RailSources",
    "Select Orig, Confidence, Source from RailSources Where Modelo = :model and TIPO = :kind"};
// A taken reference counts as long as the row still holds it.
inline constexpr Query kTakenReferences{"TakenReferences",
    "Select Orig, RefV, Source from TakenReferences Where Modelo = :model and TIPO = :kind"};
inline constexpr Query kTakeReference{"TakeReference",
    "Update Master set RefV = :reference, REF = case when :reference = '' then '' else :reference || ' V' end Where rowid = :id and (RefV = '' or exists ("
    "Select 1 from TakenReferences t Where t.Modelo = :model and t.TIPO = :kind and t.Orig = :output "
    "and t.RefV = Master.RefV))"};
inline constexpr Query kDropTaken{"DropTaken",
    "Delete from TakenReferences Where Modelo = :model and TIPO = :kind and Orig = :output"};
inline constexpr Query kAddTaken{"AddTaken",
    "Insert into TakenReferences (Modelo, TIPO, Orig, RefV, Source) "
    "values (:model, :kind, :output, :reference, :source)"};
inline constexpr Query kGoodReadings{"GoodReadings",
    "Select TIPO, Orig, Board, Volts from GoodBoards Where Modelo = :model order by Board, rowid"};
inline constexpr Query kAddGoodReading{"AddGoodReading",
    "Insert into GoodBoards (Modelo, TIPO, Orig, Board, Volts, Uuid, Serial) "
    "values (:model, :kind, :output, :board, :volts, :uuid, :serial)"};
inline constexpr Query kDropGoodBoard{"DropGoodBoard",
    "Delete from GoodBoards Where Modelo = :model and Board = :board"};
// Rows that are empty already stay untouched: a store with nothing to clear is not written.
inline constexpr Query kClearReadings{"ClearReadings",
    "Update Master set Leitura = '', PORC = '' Where Leitura <> '' or PORC <> ''"};
inline constexpr Query kWriteReading{"WriteReading",
    "Update Master set Leitura = :reading, PORC = :deviation Where rowid = :id"};
inline constexpr Query kWriteG1{"WriteG1", "Update Master set G1 = :text Where rowid = :id"};
inline constexpr Query kWriteG2{"WriteG2", "Update Master set G2 = :text Where rowid = :id"};
inline constexpr Query kWriteG3{"WriteG3", "Update Master set G3 = :text Where rowid = :id"};
// The rail that a row of another store means: of its kind and output, else the first one on its net.
inline constexpr Query kRailMeant{"RailMeant",
    "Select rowid from Master Where Modelo = :model and Malha = :net "
    "order by (TIPO = :kind and Orig = :output) desc, rowid limit 1"};
inline constexpr Query kWriteSlots{"WriteSlots", "Update Master set G1 = :G1, G2 = :G2, G3 = :G3 Where rowid = :id"};

// What may be odd in a store from elsewhere: the row, what it is about, what it says of it; and the way to be rid of it.
inline constexpr Query kRailModels{"RailModels", "Select rowid, Orig, Modelo from Master"};
inline constexpr Query kDropRail{"DropRail", "Delete from Master Where rowid = :id"};
inline constexpr Query kRailReferences{"RailReferences",
    "Select rowid, Modelo || ' ' || TIPO || ' ' || Orig, RefV from Master Where RefV <> ''"};
inline constexpr Query kClearReference{"ClearReference", "Update Master set RefV = '' Where rowid = :id"};
inline constexpr Query kRfKinds{"RfKinds", "Select rowid, Modelo || ' ' || Malha, Tipo from Rf"};
inline constexpr Query kDropRf{"DropRf", "Delete from Rf Where rowid = :id"};
inline constexpr Query kDevicesWithId{"DevicesWithId", "Select rowid, Aparelho, i from i"};
inline constexpr Query kDropDevice{"DropDevice", "Delete from i Where rowid = :id"};
inline constexpr Query kTakenWithId{"TakenWithId",
    "Select rowid, Modelo || ' ' || TIPO || ' ' || Orig, RefV from TakenReferences"};
inline constexpr Query kDropTakenById{"DropTakenById", "Delete from TakenReferences Where rowid = :id"};
inline constexpr Query kGoodWithId{"GoodWithId",
    "Select rowid, Modelo || ' ' || TIPO || ' ' || Orig || ' ' || Board, Volts from GoodBoards"};
inline constexpr Query kDropGoodById{"DropGoodById", "Delete from GoodBoards Where rowid = :id"};
inline constexpr Query kSettingsWithId{"SettingsWithId", "Select rowid, Name, Value from Settings"};
inline constexpr Query kDropSetting{"DropSetting", "Delete from Settings Where rowid = :id"};

// Radio references and expected devices.
inline constexpr Query kRfRows{"RfRows",
    "Select Rf.*, Confidence, Source from Rf left join RfSources s on s.Modelo = Rf.Modelo and s.Malha = Rf.Malha "
    "and s.Componente = Rf.Componente and s.Tipo = Rf.Tipo Where Rf.Modelo = :model and Rf.Tipo = :kind "
    "order by Rf.Modelo, Rf.Malha, Rf.rowid"};
inline constexpr Query kBusDevices{"BusDevices",
    R"(Select * from i Where Aparelho = :model and i like :bus escape '\')"};
inline constexpr Query kDeviceSources{"DeviceSources",
    "Select i, Source, Confidence from DeviceSources Where Aparelho = :model"};
inline constexpr Query kDropBusDevices{"DropBusDevices",
    R"(Delete from i Where Aparelho = :model and i like :bus escape '\')"};
inline constexpr Query kDropBusSources{"DropBusSources",
    R"(Delete from DeviceSources Where Aparelho = :model and i like :bus escape '\')"};
inline constexpr Query kAddDeviceSource{"AddDeviceSource",
    "Insert into DeviceSources (Aparelho, i, Source, Confidence) values (:Aparelho, :i, :source, :confidence)"};

// Commands, recordings and masked texts.
inline constexpr Query kCommands{"Commands",
    "Select rowid, * from Comandos"};
inline constexpr Query kCommandsSorted{"CommandsSorted",
    "Select rowid, * from Comandos order by Comando, rowid"};
inline constexpr Query kCommand{"Command",
    "Select rowid, * from Comandos where comando = :command"};
inline constexpr Query kWriteDescriptions{"WriteDescriptions",
    "Update Comandos set Info = :Info, Info2 = :Info2, Info3 = :Info3 Where Comando = :command"};
inline constexpr Query kDeleteCommand{"DeleteCommand",
    "Delete from Comandos Where Comando = :command"};
inline constexpr Query kRecordings{"Recordings",
    "Select rowid, * from Dados"};
inline constexpr Query kRecording{"Recording",
    "Select rowid, * From Dados where Aparelho = :model and Comando = :command"};
inline constexpr Query kNoRecording{"NoRecording",
    "Select rowid, * From Dados where Aparelho = 'xx'"};
inline constexpr Query kNoRecordingOfCommand{"NoRecordingOfCommand",
    "Select rowid, * From Dados where Aparelho = 'xxxxx' and Comando = 'xxxxxxxx'"};
// Of two rows of one pair, which no writer here makes, the one that holds something is the recording.
inline constexpr Query kRecordingMeant{"RecordingMeant",
    "Select rowid, *, cast(Dados as blob) as Bytes from Dados Where Aparelho = :model and Comando = :command "
    "order by Dados = '', rowid limit 1"};
inline constexpr Query kRecordingsWithBytes{"RecordingsWithBytes",
    "Select *, cast(Dados as blob) as Bytes from Dados order by rowid"};
inline constexpr Query kAddRecording{"AddRecording",
    "Insert into Dados (Aparelho, Comando, Dados, Info, Info2, Info3) "
    "values (:model, :command, :Dados, :Info, :Info2, :Info3)"};
inline constexpr Query kWriteRecording{"WriteRecording",
    "Update Dados set Dados = :Dados, Info = :Info, Info2 = :Info2, Info3 = :Info3 Where rowid = :id"};
inline constexpr Query kDeleteRecording{"DeleteRecording",
    "Delete from Dados Where Aparelho = :model and Comando = :command"};
inline constexpr Query kRepeatedRecordings{"RepeatedRecordings",
    "Select Aparelho, Comando, count(*) from Dados group by Aparelho, Comando having count(*) > 1"};
inline constexpr Query kHash{"Hash",
    "Select Aparelho, Comando, Sha256 from RecordingHash Where Aparelho = :model and Comando = :command"};
inline constexpr Query kHashes{"Hashes", "Select Aparelho, Comando, Sha256 from RecordingHash"};
inline constexpr Query kSetHash{"SetHash",
    "Insert into RecordingHash (Aparelho, Comando, Sha256) values (:model, :command, :hash) "
    "on conflict (Aparelho, Comando) do update set Sha256 = excluded.Sha256"};
inline constexpr Query kDeleteHash{"DeleteHash",
    "Delete from RecordingHash Where Aparelho = :model and Comando = :command"};
// A recording is known by its reply: another reply is another recording, another note is not.
inline constexpr Query kDropRecordingId{"DropRecordingId",
    "Delete from RecordingIds Where Aparelho = :model and Comando = :command and not exists (Select 1 from Dados d "
    "Where d.Aparelho = :model and d.Comando = :command and cast(d.Dados as blob) = cast(:Dados as blob))"};
inline constexpr Query kAddRecordingId{"AddRecordingId",
    "Insert into RecordingIds (Aparelho, Comando, Uuid) values (:model, :command, :uuid) "
    "on conflict (Aparelho, Comando) do nothing"};
inline constexpr Query kDeleteRecordingId{"DeleteRecordingId",
    "Delete from RecordingIds Where Aparelho = :model and Comando = :command"};
inline constexpr Query kMasks{"Masks",
    "Select * from M"};
inline constexpr Query kMasksDescending{"MasksDescending",
    "Select * from M order by String desc"};
inline constexpr Query kAddMask{"AddMask",
    "Insert into M (String) values (:text)"};

// Settings: tables of one row, and the added table of key and value.
inline constexpr Query kCombos{"Combos", "Select * from Combos"};
inline constexpr Query kIdioma{"Idioma", "Select Idioma from Tools"};
inline constexpr Query kNome{"Nome", "Select nome from Tools"};
inline constexpr Query kSyncbd{"Syncbd", "Select syncbd from Tools"};
inline constexpr Query kUltimo{"Ultimo", "Select * from Ultimo"};
inline constexpr Query kSetCombo[] = {
    {"SetCombo1", "Update Combos set Combo1 = :value"}, {"SetCombo2", "Update Combos set Combo2 = :value"},
    {"SetCombo3", "Update Combos set Combo3 = :value"}, {"SetCombo4", "Update Combos set Combo4 = :value"},
    {"SetCombo5", "Update Combos set Combo5 = :value"}, {"SetCombo6", "Update Combos set Combo6 = :value"},
    {"SetCombo7", "Update Combos set Combo7 = :value"},
};
inline constexpr Query kSetIdioma{"SetIdioma", "Update Tools set Idioma = :value"};
inline constexpr Query kSetNome{"SetNome", "Update Tools set Nome = :value"};
inline constexpr Query kSetSyncbd{"SetSyncbd", "Update Tools set syncbd = :value"};
inline constexpr Query kSetAllCombos{"SetAllCombos",
    "Update Combos set Combo1 = :Combo1, Combo2 = :Combo2, Combo3 = :Combo3, Combo4 = :Combo4, Combo5 = :Combo5, "
    "Combo6 = :Combo6, Combo7 = :Combo7, Combo8 = :Combo8, Combo9 = :Combo9, Combo10 = :Combo10"};
inline constexpr Query kSetUltimo{"SetUltimo",
    "Update Ultimo set Modelo = :value Where rowid = (Select min(rowid) from Ultimo)"};
inline constexpr Query kAddEmptyCombos{"AddEmptyCombos", "Insert into Combos default values"};
inline constexpr Query kAddEmptyTools{"AddEmptyTools", "Insert into Tools default values"};
inline constexpr Query kAddEmptyUltimo{"AddEmptyUltimo", "Insert into Ultimo default values"};
inline constexpr Query kSetting{"Setting", "Select Value from Settings Where Name = :name"};
inline constexpr Query kSetSetting{"SetSetting",
    "Insert into Settings (Name, Value) values (:name, :value) on conflict (Name) do update set Value = excluded.Value"};

// The journal of surveys. What a survey writes again and again leaves the note alone: a person may have set it since.
inline constexpr Query kSurveys{"Surveys",
    R"(Select Id, Started, Ended, Outcome, Model, Serial, Port, Name, Note,
    (Select count(*) from SurveyFindings Where Survey = Surveys.Id and Verdict = 'fail') as Faults from Surveys
    Where Started like :pattern escape '\' or Model like :pattern escape '\' or Serial like :pattern escape '\'
    or Name like :pattern escape '\' or Note like :pattern escape '\'
    or exists (Select 1 from SurveyFindings Where Survey = Surveys.Id and Verdict = 'fail'
    and What like :pattern escape '\') order by Started desc, rowid desc)"};
inline constexpr Query kSurvey{"Survey",
    "Select Id, Started, Ended, Outcome, Model, Serial, Port, Name, Note, "
    "(Select count(*) from SurveyFindings Where Survey = Surveys.Id and Verdict = 'fail') as Faults from Surveys "
    "Where Id = :id"};
inline constexpr Query kSurveyReplies{"SurveyReplies",
    "Select Place, Command, Reply, Cut from SurveyReplies Where Survey = :id order by Place"};
inline constexpr Query kSurveyFindings{"SurveyFindings",
    "Select * from SurveyFindings Where Survey = :id order by rowid"};
inline constexpr Query kKeepSurvey{"KeepSurvey",
    "Insert into Surveys (Id, Started, Ended, Outcome, Model, Serial, Port, Name, Note, NoteUuid) "
    "values (:id, :started, :ended, :outcome, :model, :serial, :port, :name, :note, "
    "case when :note = '' then '' else :noteUuid end) "
    "on conflict (Id) do update set Ended = excluded.Ended, Outcome = excluded.Outcome, Serial = excluded.Serial"};
inline constexpr Query kKeepSurveyReply{"KeepSurveyReply",
    "Insert or replace into SurveyReplies (Survey, Place, Command, Reply, Cut) "
    "values (:id, :place, :command, :reply, :cut)"};
inline constexpr Query kKeepSurveyFinding{"KeepSurveyFinding",
    "Insert into SurveyFindings (Survey, Output, What, Screens, Reading, Reference, Source, Deviation, Lowest, Highest, "
    "Verdict, Line, Uuid) values (:id, :output, :what, :screens, :reading, :reference, :source, :deviation, :lowest, "
    ":highest, :verdict, :line, :uuid) on conflict (Survey, Output) do update set What = excluded.What, "
    "Screens = excluded.Screens, Reading = excluded.Reading, Reference = excluded.Reference, Source = excluded.Source, "
    "Deviation = excluded.Deviation, Lowest = excluded.Lowest, Highest = excluded.Highest, "
    "Verdict = excluded.Verdict, Line = excluded.Line"};
// The phone may tell its serial number after the first findings.
inline constexpr Query kSetBoardOfFindings{"SetBoardOfFindings",
    "Update SurveyFindings set Model = :model, Serial = :serial "
    "Where Survey = :id and (Model <> :model or Serial <> :serial)"};
inline constexpr Query kSetSurveyNote{"SetSurveyNote",
    "Update Surveys set Note = :note, NoteUuid = case when :note = '' then '' when NoteUuid = '' then :uuid "
    "else NoteUuid end Where Id = :id"};
inline constexpr Query kSurveysOfOutcome{"SurveysOfOutcome", "Select Id from Surveys Where Outcome = :outcome"};
inline constexpr Query kSetSurveyOutcome{"SetSurveyOutcome", "Update Surveys set Outcome = :outcome Where Id = :id"};
inline constexpr Query kDeleteSurvey{"DeleteSurvey", "Delete from Surveys Where Id = :id"};
inline constexpr Query kDeleteSurveyReplies{"DeleteSurveyReplies", "Delete from SurveyReplies Where Survey = :id"};
inline constexpr Query kDeleteSurveyFindings{"DeleteSurveyFindings", "Delete from SurveyFindings Where Survey = :id"};

// What a new store is filled with.
inline constexpr Query kAddRail{"AddRail",
    "Insert into Master (Modelo, TIPO, Orig, Malha, Ci, RefT, RefV, REF) "
    "values (:Modelo, :TIPO, :Orig, :Malha, :Ci, :RefT, :RefV, :REF)"};
// A row that is still as it shipped has the source that it shipped with.
inline constexpr Query kAddRailSource{"AddRailSource",
    "Insert or ignore into RailSources (Modelo, TIPO, Orig, Confidence, Source) "
    "Select :Modelo, :TIPO, :Orig, :confidence, :source Where exists (Select 1 from Master Where Modelo = :Modelo "
    "and TIPO = :TIPO and Orig = :Orig and Malha = :Malha and RefV = :RefV)"};
inline constexpr Query kAddRfSource{"AddRfSource",
    "Insert or ignore into RfSources (Modelo, Malha, Componente, Tipo, Confidence, Source) "
    "Select :Modelo, :Malha, :Componente, :Tipo, :confidence, :source Where exists (Select 1 from Rf "
    "Where Modelo = :Modelo and Malha = :Malha and Componente = :Componente and Valor = :Valor and Tipo = :Tipo)"};
inline constexpr Query kAddSeedDeviceSource{"AddSeedDeviceSource",
    "Insert or ignore into DeviceSources (Aparelho, i, Confidence, Source) "
    "Select :Aparelho, :i, :confidence, :source Where exists (Select 1 from i Where Aparelho = :Aparelho and i = :i)"};
inline constexpr Query kAddRf{"AddRf",
    "Insert into Rf (Modelo, Malha, Componente, Valor, Tipo) values (:Modelo, :Malha, :Componente, :Valor, :Tipo)"};
inline constexpr Query kAddDevice{"AddDevice", "Insert into i (Aparelho, i) values (:Aparelho, :i)"};
inline constexpr Query kAddCommand{"AddCommand",
    "Insert into Comandos (Comando, Info, Info2, Info3) values (:Comando, :Info, :Info2, :Info3)"};
inline constexpr Query kAddTools{"AddTools", "Insert into Tools (Idioma, Nome, syncbd) values ('1', '', '0')"};
inline constexpr Query kAddCombos{"AddCombos",
    "Insert into Combos (Combo1, Combo2, Combo3, Combo4, Combo5, Combo6, Combo7) "
    "values ('3', '1', '3', '1', '3', '1', 'G1')"};

// clang-format on
