#pragma once

#include "store.h"

#include <QList>
#include <QString>

/// What one model answered to one command line, as the technician kept it.
struct Recording
{
    QString aparelho;
    QString comando;
    QString dados;
    QString info = {};  ///< notes in Portuguese
    QString info2 = {}; ///< in English
    QString info3 = {}; ///< in Spanish

    friend bool operator==(const Recording &, const Recording &) = default;
};

/// Whether a recording is still what was written.
enum class Integrity
{
    Unverified, ///< written without a hash, by an earlier version or another program
    Intact,
    Changed ///< a bit flipped, or somebody else wrote it
};

struct KeptRecording
{
    Recording recording;
    Integrity integrity = Integrity::Unverified;

    bool intact() const { return integrity == Integrity::Intact; }
};

struct RecordingKey
{
    QString model;
    QString command;
};

/// The recording of a pair; nothing when there is no row for it. An empty `dados` is a row with notes alone.
Result<std::optional<KeptRecording>> recordingFor(const Store &store, const QString &model, const QString &command);

/// Writes a recording and its hash, both or none. The row of the pair is overwritten where there is one, whatever its
/// letter case, so that no pair ever has two.
Result<Done> saveRecording(Store &store, const Recording &recording);

/// The same inside a transaction that the caller commits.
Result<Done> saveRecording(Store &store, const Transaction &within, const Recording &recording);

/// Removes what there is of a pair, and its hash.
Result<Done> deleteRecording(Store &store, const RecordingKey &key);

/// Every row of every pair.
Result<QList<KeptRecording>> allRecordings(const Store &store);
