#pragma once

#include "support/ScratchDatabase.h"

#include <memory>

namespace qd8::test {

// Runs qd8-admin ($QD8_ADMIN: the build's own unless the environment names another) and returns its exit code, -1 when it
// crashed; *output receives what it printed.
int runAdmin(const QStringList& arguments, QString* output = nullptr);

// The three databases of the sample company (application, command centre, company data),
// on the engine under test, created fresh for each test, with the catalogue linked into the
// company data database as qd8-admin links it.
class SampleCompanyTest : public EngineTest {
protected:
    void SetUp() override;
    void TearDown() override;

    QString appConnectionString() const { return app->connectionString(); }
    QString centreConnectionString() const { return centre->connectionString(); }
    QString dataConnectionString() const { return data->connectionString(); }
    // The company data database as a host hands it to the launchers: it reaches the
    // catalogue (on SQLite by attaching QD8Command.dat).
    QString sessionConnectionString() const;
    void runOnData(const QStringList& statements) const { data->run(statements); }
    void runOnApp(const QStringList& statements) const { app->run(statements); }
    // Stores a company option (its number read from the text), replacing any stored before.
    void setCompanyOption(const QString& alias, const QString& value) const;

private:
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<ScratchDatabase> app, centre, data;
};

} // namespace qd8::test
