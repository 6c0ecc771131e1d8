#include "storecommands.h"

#include "acceptedaddress.h"
#include "backups.h"
#include "home.h"
#include "json.h"
#include "oddrows.h"
#include "portlist.h"
#include "seeds.h"
#include "settingkeys.h"
#include "settings.h"
#include "storeexport.h"
#include "storeinspection.h"
#include "terminal.h"
#include "userimport.h"
#include "visibletext.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 5s;

QString storeOf(const CommonOptions &options)
{
    return configStore(homeFolder(options.home));
}

Result<Store> opened(const CommonOptions &options, Store::Access access)
{
    return Store::open(storeOf(options), access, kPatience);
}

// What the store says, as long as it can say anything.
Language languageOf(const CommonOptions &options)
{
    if (options.language)
        return *options.language;
    const Result<Store> store = Store::open(storeOf(options), Store::Access::Read, 0ms);
    const Result<Language> stored = store ? language(*store) : Language::English;
    const bool known = stored && *stored >= Language::Portuguese && *stored <= Language::Spanish;
    return known ? *stored : Language::English;
}

ExitCode failed(const CommonOptions &options, const Trouble &trouble)
{
    printError(oneLine(trouble, languageOf(options)));
    return trouble.what.key.startsWith("SETTING_"_L1) ? ExitCode::Usage : ExitCode::Store;
}

ExitCode told(const CommonOptions &options, const Notice &outcome, const QJsonObject &facts)
{
    if (options.json)
        printOut(document(facts));
    else
        printOut(oneLine({outcome}, languageOf(options)) + u'\n');
    return ExitCode::Good;
}

ExitCode init(const CommonOptions &options, const QString & /*none*/, const QString & /*none*/)
{
    const QString path = storeOf(options);
    if (const Result<Done> made = createStore(path); !made)
        return failed(options, made.trouble());
    printOut(path + u'\n');
    return ExitCode::Good;
}

ExitCode listFindings(const CommonOptions &options, const QList<StoreFinding> &findings)
{
    QJsonArray array;
    QList<QStringList> rows;
    for (const StoreFinding &finding : findings) {
        array.append(QJsonObject{{u"where"_s, finding.where}, {u"what"_s, finding.what}});
        rows.append({finding.where, finding.what});
    }
    if (options.json)
        printOut(document({{u"store"_s, storeOf(options)}, {u"findings"_s, array}}));
    else
        printOut(aligned(rows, {Qt::AlignLeft, Qt::AlignLeft}));
    Trouble trouble{
        {u"STORE_FINDINGS"_s, {QDir::toNativeSeparators(storeOf(options)), QString::number(findings.size())}}};
    if (std::ranges::count(findings, StoreFinding::Kind::Odd, &StoreFinding::kind) > 0)
        trouble.remedies += Notice{u"STORE_TIDY"_s};
    return failed(options, trouble);
}

ExitCode check(const CommonOptions &options, const QString & /*none*/, const QString & /*none*/)
{
    const QString path = storeOf(options);
    const auto findings = storeFindings(path, StoreRole::Reference, Depth::Whole, kPatience);
    if (!findings)
        return failed(options, findings.trouble());
    if (!findings->isEmpty())
        return listFindings(options, *findings);
    return told(options, {u"STORE_GOOD"_s, {QDir::toNativeSeparators(path)}},
                {{u"store"_s, path}, {u"findings"_s, QJsonArray()}});
}

// Not without a way back.
ExitCode tidy(const CommonOptions &options, const QString & /*none*/, const QString & /*none*/)
{
    const Result<bool> backup = rollBackups(storeOf(options), kPatience);
    if (!backup)
        return failed(options, backup.trouble());
    Result<Store> store = opened(options, Store::Access::Write);
    const Result<int> removed = store ? removeOddRows(*store) : store.trouble();
    if (!removed)
        return failed(options, removed.trouble());
    return told(options, {u"STORE_TIDIED"_s, {QString::number(*removed)}}, {{u"removed"_s, *removed}});
}

ExitCode backUp(const CommonOptions &options, const QString &file, const QString & /*none*/)
{
    const QString path = storeOf(options);
    const QString target = file.isEmpty() ? freeBackupName(path) : file;
    if (const Result<Done> made = backupStore(path, target, kPatience); !made)
        return failed(options, made.trouble());
    return told(options, {u"STORE_BACKED_UP"_s, {QDir::toNativeSeparators(target)}}, {{u"backup"_s, target}});
}

ExitCode import(const CommonOptions &options, const QString &file, const QString & /*none*/)
{
    Result<Store> store = opened(options, Store::Access::Write);
    if (!store)
        return failed(options, store.trouble());
    if (const Result<bool> backup = rollBackups(storeOf(options), kPatience); !backup)
        printError(oneLine(backup.trouble(), languageOf(options)));
    const Result<ImportSummary> took = importUserStore(*store, file);
    if (!took)
        return failed(options, took.trouble());
    return told(options, toldOf(*took),
                {{u"rails"_s, took->rails},
                 {u"recordings"_s, took->recordings},
                 {u"commands"_s, took->commands},
                 {u"leftOut"_s, took->leftOut}});
}

ExitCode exportTables(const CommonOptions &options, const QString &folder, const QString & /*none*/)
{
    const Result<Store> store = opened(options, Store::Access::Read);
    const Result<int> tables = store ? exportStore(*store, folder) : store.trouble();
    if (!tables)
        return failed(options, tables.trouble());
    return told(options, {u"STORE_EXPORTED"_s, {QDir::toNativeSeparators(folder), QString::number(*tables)}},
                {{u"folder"_s, folder}, {u"tables"_s, *tables}});
}

ExitCode set(const CommonOptions &options, const QString &key, const QString &value)
{
    Result<Store> store = opened(options, Store::Access::Write);
    const Result<Done> done = store ? setNamedSetting(*store, key, value) : store.trouble();
    if (!done)
        return failed(options, done.trouble());
    if (key == "probe-address"_L1)
        acceptHere(value);
    if (options.json)
        printOut(document({{key, value}}));
    return ExitCode::Good;
}

Result<QList<NamedSetting>> asked(const Result<Store> &store, const QString &key)
{
    if (!store)
        return store.trouble();
    if (key.isEmpty())
        return namedSettings(*store);
    const Result<QString> value = namedSetting(*store, key);
    return value ? Result(QList<NamedSetting>{{key, *value}}) : value.trouble();
}

ExitCode get(const CommonOptions &options, const QString &key, const QString & /*none*/)
{
    const auto settings = asked(opened(options, Store::Access::Read), key);
    if (!settings)
        return failed(options, settings.trouble());
    QJsonObject object;
    QList<QStringList> rows;
    for (const NamedSetting &setting : *settings) {
        object.insert(setting.name, setting.value);
        rows.append({setting.name, visibleText(setting.value)});
    }
    if (options.json)
        printOut(document(object));
    else
        printOut(key.isEmpty() ? aligned(rows, {Qt::AlignLeft, Qt::AlignLeft}) : rows.first().last() + u'\n');
    return ExitCode::Good;
}

constexpr StoreCommand kStoreCommands[] = {
    {"init", "make a store from the seed tables; never touches one that exists", &init},
    {"check", "look at every page, value and recording; changes nothing", &check},
    {"tidy", "remove the rows that check calls removable, after a backup", &tidy},
    {"backup",
     "write a consistent copy; never overwrites",
     &backUp,
     {"file", "the copy (else a dated one in the folder \"backups\" beside the store)", false}},
    {"import",
     "take recordings, commands and settings from the user store of an earlier version",
     &import,
     {"file", "the user store, User.pmx; it is not changed"}},
    {"export",
     "write every table as CSV; never overwrites. An apostrophe in front keeps a spreadsheet from running a "
     "cell; the value is what follows it",
     &exportTables,
     {"folder", "where the files go"}},
    {"get", "print a setting, or all of them", &get, {"key", "the setting", false}},
    {"set", "change a setting; \"get\" lists them", &set, {"key", "the setting"}, {"value", "its value"}},
};

} // namespace

std::span<const StoreCommand> storeCommands()
{
    return kStoreCommands;
}

ExitCode listPorts(const CommonOptions &options)
{
    const Language language = options.language.value_or(Language::English);
    const QList<PortEntry> ports = portsOfThisMachine();
    QJsonArray array;
    QList<QStringList> rows;
    for (const PortEntry &port : ports) {
        array.append(QJsonObject{{u"number"_s, port.number},
                                 {u"device"_s, port.device},
                                 {u"maker"_s, port.maker},
                                 {u"serial"_s, port.serialNumber}});
        rows.append({u"COM"_s + QString::number(port.number), port.device, port.maker, port.serialNumber});
    }
    if (options.json)
        printOut(document({{u"ports"_s, array}}));
    else if (rows.isEmpty())
        printError(oneLine({{u"REMEDY_NO_PORT"_s}}, language));
    else
        printOut(aligned(rows, {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignLeft, Qt::AlignLeft}));
    return ExitCode::Good;
}
