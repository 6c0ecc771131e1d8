#include "wholefile.h"

#include <QSaveFile>

using namespace Qt::StringLiterals;

/// A full disk may show only when the last bytes are written out.
Result<Done> writeWhole(const QByteArray &document, const QString &path)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.flush();
    if (isWritten && file.commit())
        return Done{};
    const QString reason = file.errorString();
    file.cancelWriting();
    return Trouble{{u"PDF_NOT_WRITTEN"_s, {path, reason}}};
}
