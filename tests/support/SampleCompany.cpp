#include "support/SampleCompany.h"

namespace qd8::test {

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
}

void SampleCompanyTest::TearDown()
{
    data.reset();
    centre.reset();
    app.reset();
    folder.reset();
}

} // namespace qd8::test
