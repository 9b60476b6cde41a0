#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>

namespace qd8 {

// Writes a table of typed values to a spreadsheet: an XLSX workbook (numbers as numbers
// with their number formats, dates as real dates, money with two decimals, a bold header
// row that stays in view) or a CSV file (UTF-8 with a byte-order mark so spreadsheets read
// Thai, fields quoted as RFC 4180 says). Reports and lists export through this one writer.
//
// The file is written beside its final name and only put in place by finish(): an export
// abandoned half-way (cancelled, failed, destroyed unfinished) leaves no file behind and
// whatever file was there before untouched.
class TableExport {
public:
    enum class Format { Xlsx, Csv };
    enum class Type { Text, Integer, Number, Money, Date, DateTime, YesNo };
    // Subtotal and Total rows are bold in a workbook.
    enum class RowStyle { Plain, Subtotal, Total };

    struct Column {
        QString caption;
        Type type = Type::Text;
        int width = 10;  // characters
    };

    // The format follows the file's suffix: ".csv" is CSV, anything else a workbook.
    static Format formatOf(const QString& fileName);

    // `languageId` words the error texts. Heading lines go above the header row of a
    // workbook (title, company, criteria); a CSV file holds the table only.
    TableExport(const QString& fileName, const QList<Column>& columns, int languageId, const QStringList& heading = {});
    ~TableExport();
    TableExport(const TableExport&) = delete;
    TableExport& operator=(const TableExport&) = delete;

    // One row, a value per column: Currency, integers, doubles, QDate/QDateTime, text; an
    // invalid QVariant is an empty cell. False once writing failed (see errorText()).
    bool addRow(const QVariantList& values, RowStyle style = RowStyle::Plain);
    // Completes the file and puts it under its name; false when that failed.
    bool finish();
    // Leaves no file behind (also what the destructor does when finish() did not run).
    void discard();
    qint64 rowsWritten() const;
    // Why the export failed, in the language given to the constructor.
    QString errorText() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qd8
