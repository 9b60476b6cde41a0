// A host outside the project: opens a SQLite file through the installed library.
#include "foundation/Connection.h"
#include "foundation/Recordset.h"

#include <QCoreApplication>
#include <iostream>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QString file = app.arguments().value(1);
    qd8::Connection connection;
    connection.open(QStringLiteral("Driver=SQLite;Create=yes;Data Source=") + file);
    connection.execute("CREATE TABLE IF NOT EXISTS T (A INTEGER)");
    connection.execute("INSERT INTO T VALUES (1)");
    connection.execute("INSERT INTO T VALUES (1)");
    qd8::Recordset rs;
    rs.open("SELECT COUNT(*) AS N FROM T", connection);
    std::cout << qd8::commandCentreConnectionString("QD8Command.dat").toStdString() << ' '
              << rs.field("n").toInt() << std::endl;
    return 0;
}
