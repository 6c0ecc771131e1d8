#include "systemopener.h"

#ifdef Q_OS_WIN
#include <windows.h>

#include <shellapi.h>
#else
#include <QProcess>
#endif

#ifdef Q_OS_WIN
bool openWithSystem(const QString &address)
{
    const auto *const text = reinterpret_cast<const wchar_t *>(address.utf16());
    constexpr INT_PTR kLastError = 32;
    return reinterpret_cast<INT_PTR>(ShellExecuteW(nullptr, nullptr, text, nullptr, L"c:\\", SW_SHOWNORMAL)) >
           kLastError;
}
#else
bool openWithSystem(const QString &address)
{
#ifdef Q_OS_MACOS
    const QString opener = QStringLiteral("open");
#else
    const QString opener = QStringLiteral("xdg-open");
#endif
    return QProcess::startDetached(opener, {address});
}
#endif
