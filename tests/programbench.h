#pragma once

#include "journal.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

/// A program of ours as the system runs it, with a home and a state folder of its own.
struct ProgramBench
{
    ProgramBench() { environment.insert(u"XDG_STATE_HOME"_s, folder.filePath(u"state"_s)); }

    void start(QProcess &program, const QString &path, const QStringList &arguments) const
    {
        program.setProcessEnvironment(environment);
        program.start(path, arguments + QStringList{u"--home"_s, folder.path()});
    }
    /// All that the log's files hold.
    QByteArray log() const
    {
        QByteArray all;
        const QDir files(folder.filePath(u"state/tavimo-prelt"_s));
        for (const QString &name : files.entryList({u"exchange-*.log"_s}, QDir::Files, QDir::Name)) {
            QFile file(files.filePath(name));
            all += file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        }
        return all;
    }
    /// The newest survey of the journal.
    JournalEntry survey() const
    {
        const auto store = Store::open(folder.filePath(u"Config.pmx"_s), Store::Access::Read, std::chrono::seconds(1));
        const auto all = store ? journal(*store) : store.trouble();
        const auto entry =
            all && !all->isEmpty() ? journalEntry(*store, all->first().id) : Result(std::optional<JournalEntry>());
        return entry ? entry->value_or(JournalEntry()) : JournalEntry();
    }
    static bool signal(const QProcess &program, int which)
    {
        return ::kill(static_cast<pid_t>(program.processId()), which) == 0;
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)
