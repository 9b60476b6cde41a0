#pragma once

#include "database/Schema.h"
#include "support/QtPrinters.h"
#include "foundation/ConnectionString.h"
#include "foundation/DbError.h"
#include "foundation/Sql.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace qd8::test {

// A throwaway database on one engine: a SQLite file in a temporary folder, or a fresh
// PostgreSQL database on the server of the PG* variables (pg_virtualenv). Dropped on
// destruction.
class ScratchDatabase {
public:
    // `fileName` names the SQLite file and (literally) the PostgreSQL database, so
    // "QD8Command.dat" / "QD8Center.dat" pairs work on both engines.
    explicit ScratchDatabase(Engine engine, const QString& fileName = QStringLiteral("QD8Data.dat"), QTemporaryDir* folder = nullptr);
    ~ScratchDatabase();

    Engine engine() const { return m_engine; }
    const QString& connectionString() const { return m_connectionString; }
    void createSchema(DatabaseRole role) const;
    void run(const QStringList& statements) const;

    static bool postgresAvailable();
    // Connection string of the server's maintenance database.
    static QString postgresAdminConnectionString();

private:
    Engine m_engine;
    QString m_name;
    QString m_connectionString;
    std::unique_ptr<QTemporaryDir> m_ownFolder;
};

// Base of the tests that run once per engine; skips PostgreSQL when no server is given.
class EngineTest : public testing::TestWithParam<Engine> {
protected:
    void SetUp() override;
    Engine engine() const { return GetParam(); }
};

// A scratch database per test on the engine under test, filled by tableStatements().
class ScratchTableTest : public EngineTest {
protected:
    void SetUp() override;
    void TearDown() override { db.reset(); }
    virtual QStringList tableStatements() const = 0;

    std::unique_ptr<ScratchDatabase> db;
};

// A scratch company-data database with the real schema, per test on the engine under test.
class CompanyDataTest : public EngineTest {
protected:
    void SetUp() override;
    void TearDown() override { db.reset(); }

    std::unique_ptr<ScratchDatabase> db;
};

// What `sql` reads on `connectionString`: its first column, row by row, as text.
QStringList queryColumn(const QString& connectionString, const Sql& sql);

// Types text into a widget as a keyboard sends it (Thai as text, not as key codes).
void typeText(QWidget* widget, const QString& text);
// The widgets under `root` a screen reader finds without a name, as "Class objectName"; the
// scroll areas' own containers are plumbing, never focused or read.
QStringList unnamedWidgets(const QWidget* root);

std::string engineName(const testing::TestParamInfo<Engine>& info);

// The DbError `work` throws; a test failure, and an error saying so, when it throws none.
template <typename Work>
DbError dbErrorOf(Work&& work)
{
    try {
        work();
    } catch (const DbError& e) {
        return e;
    }
    ADD_FAILURE() << "no DbError was thrown";
    return DbError(DbError::Kind::Usage, QStringLiteral("nothing was thrown"));
}

} // namespace qd8::test

#define QD8_ON_BOTH_ENGINES(Suite) \
    INSTANTIATE_TEST_SUITE_P(Engines, Suite, testing::Values(qd8::Engine::SQLite, qd8::Engine::PostgreSQL), qd8::test::engineName)
