#include "queries.h"

using namespace Qt::StringLiterals;

QString likePattern(const QString &wildcards)
{
    QString pattern;
    for (const QChar character : wildcards) {
        if (character == u'%' || character == u'_' || character == u'\\')
            pattern += u'\\';
        pattern += character == u'*' ? u'%' : character;
    }
    return pattern;
}

std::span<const Query *const> queryCatalogue()
{
    static constexpr const Query *kAll[] = {
        &kHasMaster,
        &kStrangeObject,
        &kStoreIds,
        &kColumnsOfTables,
        &kHasTable,
        &kIntegrity,
        &kCopyInto,
        &kMaster,
        &kRailsByOrig,
        &kReadableRails,
        &kReadableVolts,
        &kReadableCurrents,
        &kRailsByModelOrig,
        &kRailsByChipOrig,
        &kRailsByPorc,
        &kRailsByMalha,
        &kRailsByModelMalha,
        &kRailsByChipMalha,
        &kRailsOfChip,
        &kChipRails,
        &kRailsOfNet,
        &kRailSources,
        &kClearReadings,
        &kWriteReading,
        &kWriteG1,
        &kWriteG2,
        &kWriteG3,
        &kRailMeant,
        &kWriteSlots,
        &kRfRows,
        &kBusDevices,
        &kCommands,
        &kCommandsSorted,
        &kCommand,
        &kWriteDescriptions,
        &kDeleteCommand,
        &kRecordings,
        &kRecording,
        &kNoRecording,
        &kNoRecordingOfCommand,
        &kRecordingMeant,
        &kRecordingsWithBytes,
        &kAddRecording,
        &kWriteRecording,
        &kDeleteRecording,
        &kRepeatedRecordings,
        &kHash,
        &kHashes,
        &kSetHash,
        &kDeleteHash,
        &kMasks,
        &kMasksDescending,
        &kAddMask,
        &kCombos,
        &kIdioma,
        &kNome,
        &kSyncbd,
        &kUltimo,
        &kSetCombo[0],
        &kSetCombo[1],
        &kSetCombo[2],
        &kSetCombo[3],
        &kSetCombo[4],
        &kSetCombo[5],
        &kSetCombo[6],
        &kSetIdioma,
        &kSetNome,
        &kSetSyncbd,
        &kSetAllCombos,
        &kSetUltimo,
        &kAddEmptyCombos,
        &kAddEmptyTools,
        &kAddEmptyUltimo,
        &kSetting,
        &kSetSetting,
        &kAddRail,
        &kAddRailSource,
        &kAddRf,
        &kAddDevice,
        &kDeviceSources,
        &kDropBusDevices,
        &kDropBusSources,
        &kAddDeviceSource,
        &kAddCommand,
        &kAddTools,
        &kAddCombos,
    };
    return kAll;
}
