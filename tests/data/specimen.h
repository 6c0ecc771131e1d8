#pragma once

#include <QFile>
#include <QString>

/// Writes the store that a bench left in this layout, compressed beside the tests: one model, with surveys, boards,
/// recordings (one of them changed behind the program's back), notes and settings as that version wrote them. Such a
/// file is never made again.
inline bool writeSpecimen(int layout, const QString &path)
{
    QFile packed(QStringLiteral(PRELT_SOURCE_DIR "/tests/data/layout%1.pmx.z").arg(layout));
    QFile store(path);
    if (!packed.open(QIODevice::ReadOnly) || !store.open(QIODevice::WriteOnly))
        return false;
    const QByteArray bytes = qUncompress(packed.readAll());
    return !bytes.isEmpty() && store.write(bytes) == bytes.size();
}
