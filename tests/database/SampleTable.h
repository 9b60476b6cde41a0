#pragma once

#include "support/ScratchDatabase.h"

#include <memory>

namespace qd8::test {

// A scratch database holding one small table with the value kinds the controls read:
// codes, Thai names (COLLATE THAI), money, dates, in-use flags, a NULL and an "".
class SampleTableTest : public ScratchTableTest {
protected:
    QStringList tableStatements() const override
    {
        return {
            QStringLiteral("CREATE TABLE QD8TSample (TSmpID INTEGER PRIMARY KEY, TSmpCode VARCHAR(20), "
                           "TSmpName VARCHAR(100) COLLATE THAI, TSmpAmount NUMERIC(19,4), TSmpDate DATE, TSmpFlag1 INTEGER)"),
            QStringLiteral("INSERT INTO QD8TSample VALUES (1, 'A', 'กา', 10.5, '2026-01-05', 1)"),
            QStringLiteral("INSERT INTO QD8TSample VALUES (2, 'B', 'เก', 0.0001, '2026-01-31', 1)"),
            QStringLiteral("INSERT INTO QD8TSample VALUES (3, 'C', 'แกง', 99999999999.9999, '2026-02-01', 1)"),
            QStringLiteral("INSERT INTO QD8TSample VALUES (4, 'D', 'ไก่', -2.25, '2026-02-28', 0)"),
            QStringLiteral("INSERT INTO QD8TSample VALUES (5, 'E', 'ขา', 0, '2026-03-01', 1)"),
            QStringLiteral("INSERT INTO QD8TSample VALUES (6, '', NULL, NULL, NULL, NULL)"),
        };
    }
};

} // namespace qd8::test
