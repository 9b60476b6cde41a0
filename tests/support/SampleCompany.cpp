#include "support/SampleCompany.h"

#include <QProcess>

namespace qd8::test {

int runAdmin(const QStringList& arguments, QString* output)
{
    QProcess process;
    process.start(QString::fromLocal8Bit(qgetenv("QD8_ADMIN")), arguments);
    process.waitForFinished(120000);
    if (output)
        *output = QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void SampleCompanyTest::SetUp()
{
    EngineTest::SetUp();
    if (IsSkipped())
        return;
    folder = std::make_unique<QTemporaryDir>();
    const auto make = [this](DatabaseRole role) {
        auto db = std::make_unique<ScratchDatabase>(engine(), Schema::fileName(role), folder.get());
        db->createSchema(role);
        Schema::loadSample(db->connectionString(), role);
        return db;
    };
    app = make(DatabaseRole::Application);
    centre = make(DatabaseRole::CommandCentre);
    data = make(DatabaseRole::CompanyData);
    Schema::linkCatalogue(dataConnectionString(), appConnectionString());
}

QString SampleCompanyTest::sessionConnectionString() const
{
    if (engine() != Engine::SQLite)
        return dataConnectionString();
    return dataConnectionString() + QStringLiteral(";Attach=") + ConnectionString::parse(appConnectionString()).sqliteFile();
}

void SampleCompanyTest::setCompanyOption(const QString& alias, const QString& value) const
{
    runOnData({QStringLiteral("DELETE FROM QD8TOptionValue WHERE TOpVTOptAlias='%1'").arg(alias),
        QStringLiteral("INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber) "
                       "VALUES ('COMPANY', '', '%1', '%2', %3)")
            .arg(alias, QString(value).replace(QLatin1Char('\''), QLatin1String("''")))
            .arg(value.trimmed().toDouble())});
}

void SampleCompanyTest::TearDown()
{
    data.reset();
    centre.reset();
    app.reset();
    folder.reset();
}

} // namespace qd8::test
