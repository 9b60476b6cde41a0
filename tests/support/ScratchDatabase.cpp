#include "support/ScratchDatabase.h"

#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/Recordset.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QTest>

namespace qd8::test {

namespace {
QAtomicInt counter;
}

bool ScratchDatabase::postgresAvailable()
{
    return !qgetenv("PGHOST").isEmpty() || !qgetenv("PGPORT").isEmpty();
}

QString ScratchDatabase::postgresAdminConnectionString()
{
    return QStringLiteral("Driver=PostgreSQL;Database=postgres");
}

ScratchDatabase::ScratchDatabase(Engine engine, const QString& fileName, QTemporaryDir* folder)
    : m_engine(engine)
{
    if (engine == Engine::SQLite) {
        if (!folder) {
            m_ownFolder = std::make_unique<QTemporaryDir>();
            folder = m_ownFolder.get();
        }
        m_name = folder->filePath(fileName);
        m_connectionString = QStringLiteral("Driver=SQLite;Data Source=") + m_name;
        Connection create;
        create.open(m_connectionString + QStringLiteral(";Create=yes"));
        create.close();
        ConnectionPool::instance().clear(m_connectionString + QStringLiteral(";Create=yes"));
        return;
    }
    // Unique per process and instance (or per folder, so that the databases of one
    // installation share a prefix), keeping the given name's shape.
    const qulonglong group = folder ? qulonglong(qHash(folder->path())) % 1000000 : qulonglong(counter.fetchAndAddRelaxed(1));
    m_name = QStringLiteral("t%1_%2_").arg(QCoreApplication::applicationPid()).arg(group) + fileName;
    m_connectionString = QStringLiteral("Driver=PostgreSQL;Database=") + m_name;
    Connection admin;
    admin.open(postgresAdminConnectionString());
    admin.execute(Sql(QStringLiteral("CREATE DATABASE \"%1\" TEMPLATE template0 ENCODING 'UTF8'").arg(m_name)));
    Connection fresh;
    fresh.open(m_connectionString);
    fresh.execute(Sql("CREATE COLLATION IF NOT EXISTS thai (provider = icu, locale = 'th-TH')"));
}

void ScratchDatabase::run(const QStringList& statements) const
{
    Connection connection;
    connection.open(m_connectionString);
    for (const QString& statement : statements)
        connection.execute(Sql(statement));
}

ScratchDatabase::~ScratchDatabase()
{
    ConnectionPool::instance().clear(m_connectionString);
    if (m_engine != Engine::PostgreSQL)
        return;
    try {
        Connection admin;
        admin.open(postgresAdminConnectionString());
        admin.execute(Sql(QStringLiteral("DROP DATABASE IF EXISTS \"%1\" WITH (FORCE)").arg(m_name)));
    } catch (const std::exception& e) {
        ADD_FAILURE() << "could not drop the scratch database: " << e.what();
    }
}

void ScratchDatabase::createSchema(DatabaseRole role) const
{
    Schema::create(m_connectionString, role);
}

void EngineTest::SetUp()
{
    if (GetParam() == Engine::PostgreSQL && !ScratchDatabase::postgresAvailable())
        GTEST_SKIP() << "no PostgreSQL server (run the suite through ./qd8 test, which starts one)";
}

void ScratchTableTest::SetUp()
{
    EngineTest::SetUp();
    if (IsSkipped())
        return;
    db = std::make_unique<ScratchDatabase>(engine());
    db->run(tableStatements());
}

void CompanyDataTest::SetUp()
{
    EngineTest::SetUp();
    if (IsSkipped())
        return;
    db = std::make_unique<ScratchDatabase>(engine());
    db->createSchema(DatabaseRole::CompanyData);
}

QStringList queryColumn(const QString& connectionString, const Sql& sql)
{
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(sql, connection);
    QStringList values;
    for (; !rs.eof(); rs.moveNext())
        values << rs.text(rs.fieldName(0));
    return values;
}

void typeText(QWidget* widget, const QString& text)
{
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

QStringList unnamedWidgets(const QWidget* root)
{
    QStringList unnamed;
    for (const QWidget* w : root->findChildren<QWidget*>())
        if (!w->objectName().startsWith(QLatin1String("qt_scrollarea")) && w->accessibleName().isEmpty())
            unnamed << QString::fromLatin1(w->metaObject()->className()) + u' ' + w->objectName();
    return unnamed;
}

std::string engineName(const testing::TestParamInfo<Engine>& info)
{
    return info.param == Engine::SQLite ? "SQLite" : "PostgreSQL";
}

} // namespace qd8::test
