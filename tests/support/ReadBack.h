#pragma once

#include <QJsonArray>
#include <QString>

namespace qd8::test {

// Files read back the way a user's tools read them, so a test sees what they see.
// The sheet of a workbook through openpyxl (Debian's python3-openpyxl): one array per row of
// [python type name, value as text, bold] cells, then a last row ["frozen", "<cell>"].
QJsonArray readWorkbook(const QString& file);
// The text of a PDF through pdftotext -layout, and its page count through pdfinfo.
QString pdfText(const QString& file);
int pdfPages(const QString& file);
// Text as pdftotext gives Thai back, for comparison: without blanks, without the marks above
// and below a consonant (it drops some), SARA AM as the SARA AA it decomposes to.
QString comparable(const QString& text);

} // namespace qd8::test
