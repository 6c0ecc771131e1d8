#include "railtable.h"

#include "contest.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

static constexpr auto kCopies = "Insert into Master (Modelo, TIPO, Orig, Malha, Ci, RefT, RefV, REF) "
                                "Select Modelo, TIPO, Orig || '_' || :pass, Malha, Ci, RefT, RefV, REF from Master "
                                "Where Modelo = :model and TIPO = :kind and Orig not like '%\\_%' escape '\\' "
                                "and RefT <> '' limit :missing"_L1;

static int rowsIn(QSqlQuery &query)
{
    query.prepare(u"Select count(*) from Master Where Modelo = :model and TIPO = :kind"_s);
    query.bindValue(u":model"_s, QString(kFullModel));
    query.bindValue(u":kind"_s, kFullKind);
    return query.exec() && query.next() ? query.value(0).toInt() : -1;
}

static void copyOnce(QSqlQuery &query, int pass, int missing)
{
    query.prepare(kCopies);
    query.bindValue(u":pass"_s, pass);
    query.bindValue(u":model"_s, QString(kFullModel));
    query.bindValue(u":kind"_s, kFullKind);
    query.bindValue(u":missing"_s, missing);
    if (!query.exec() || query.numRowsAffected() < 1)
        giveUp(u"the table was not filled up: "_s + query.lastError().text());
}

void fillUp(const QString &store)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"bench"_s);
        database.setDatabaseName(store);
        if (!database.open())
            giveUp(u"no store at "_s + store);
        QSqlQuery query(database);
        for (int pass = 1, rows = rowsIn(query); rows < kFullRows; rows = rowsIn(query), ++pass)
            copyOnce(query, pass, kFullRows - rows);
    }
    QSqlDatabase::removeDatabase(u"bench"_s);
}
