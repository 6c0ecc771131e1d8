// The least that our window could cost: a main window, an open store, a table.

#include <QApplication>
#include <QMainWindow>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QTableView>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QSqlDatabase store = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    store.setDatabaseName(QApplication::arguments().value(1));
    if (!store.open())
        return 1;
    QSqlTableModel rails;
    rails.setTable(u"Master"_s);
    if (!rails.select())
        return 1;
    QTableView table;
    table.setModel(&rails);
    QMainWindow window;
    window.setCentralWidget(&table);
    window.resize(1280, 800);
    window.show();
    const int code = QApplication::exec();
    window.takeCentralWidget();
    return code;
}
