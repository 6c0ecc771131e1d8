#include "quietstore.h"

#include "queries.h"
#include "storetrouble.h"

#include <QFileInfo>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kHead = 100;
constexpr qsizetype kWriteVersionAt = 18;
constexpr char kWriteAhead = 2;

constexpr std::array kCompanions = {"-journal"_L1, "-wal"_L1};

std::optional<Trouble> troubleWithHead(const QString &path, const QByteArray &head)
{
    if (head.isEmpty())
        return storeTrouble(u"STORE_DAMAGED"_s, path, u"the file is empty"_s);
    if (!head.startsWith(QByteArray("SQLite format 3\0", 16)))
        return storeTrouble(u"STORE_FOREIGN"_s, path, u"the file is no store"_s);
    if (head.size() < kHead)
        return storeTrouble(u"STORE_DAMAGED"_s, path, u"the file is cut"_s);
    return {};
}

// The engine would settle what lies beside the file, or make companions for it; that is done in a copy.
bool wouldBeChanged(const QString &path, const QByteArray &head)
{
    const auto hasCompanion = [&](QLatin1StringView end) { return QFileInfo(path + end).size() > 0; };
    return head.at(kWriteVersionAt) == kWriteAhead || std::ranges::any_of(kCompanions, hasCompanion);
}

bool copied(const QString &path, const QString &copy)
{
    const auto one = [&](QLatin1StringView end) { return QFile::copy(path + end, copy + end); };
    const auto ifThere = [&](QLatin1StringView end) { return !QFileInfo::exists(path + end) || one(end); };
    return one(""_L1) && std::ranges::all_of(kCompanions, ifThere) &&
           QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

QuietStore::QuietStore(std::unique_ptr<QTemporaryDir> copies, Store store)
    : m_copies(std::move(copies)), m_store(std::move(store))
{
}

Result<QuietStore> QuietStore::open(const QString &path, std::chrono::milliseconds patience)
{
    if (const std::optional<Trouble> trouble = troubleWithFile(path))
        return *trouble;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return storeTrouble(u"STORE_FAILED"_s, path, file.errorString());
    const QByteArray head = file.read(kHead);
    file.close();
    if (const std::optional<Trouble> trouble = troubleWithHead(path, head))
        return *trouble;
    if (wouldBeChanged(path, head))
        return openCopy(path);
    Result<Store> store = Store::connected(path, FileMode::ReadOnly, patience);
    if (!store)
        return store.trouble();
    return QuietStore(nullptr, std::move(*store));
}

Result<QuietStore> QuietStore::openCopy(const QString &path)
{
    auto copies = std::make_unique<QTemporaryDir>();
    const QString copy = copies->filePath(u"copy.pmx"_s);
    if (!copies->isValid() || !copied(path, copy))
        return storeTrouble(u"STORE_FAILED"_s, path, u"it was not closed properly and could not be copied"_s);
    Result<Store> store = Store::connected(copy, FileMode::Writable, {});
    if (!store)
        return toldOf(path, store.trouble());
    return QuietStore(std::move(copies), std::move(*store));
}
