#include "foundation/TableExport.h"

#include "foundation/Currency.h"
#include "foundation/Language.h"
#include "foundation/Values.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <xlsxwriter.h>

namespace qd8 {

namespace {

constexpr qsizetype CsvFlushBytes = 64 * 1024;

QDateTime dateTimeOf(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::QDate:
        return v.toDate().startOfDay();
    case QMetaType::QDateTime:
        return v.toDateTime();
    default:
        return QDateTime::fromString(v.toString(), Qt::ISODate);
    }
}

bool yesOf(const QVariant& v)
{
    if (v.typeId() == QMetaType::Bool)
        return v.toBool();
    const QString s = v.toString().trimmed();
    for (const char* yes : {"Y", "Yes", "T", "True"}) {
        if (s.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0)
            return true;
    }
    return toNumber(v) != 0;
}

// Money in a CSV field: the exact amount, at least two decimals ("1234.50", "0.1250").
QString moneyText(Currency c)
{
    QString s = c.toFixedString();
    while (s.endsWith(QLatin1Char('0')) && s.indexOf(QLatin1Char('.')) < s.size() - 3)
        s.chop(1);
    return s;
}

// RFC 4180: a field holding a comma, a quote or a line break is quoted, quotes doubled.
void appendCsvField(QByteArray& out, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    if (!bytes.contains(',') && !bytes.contains('"') && !bytes.contains('\n') && !bytes.contains('\r')) {
        out += bytes;
        return;
    }
    out += '"';
    for (char c : bytes) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
}

// A text in a column of numbers or dates that does not read as one (a total's label) is
// written as the text it is.
bool isLabel(const QVariant& v, TableExport::Type type)
{
    if (v.typeId() != QMetaType::QString || type == TableExport::Type::Text)
        return false;
    if (type == TableExport::Type::Date || type == TableExport::Type::DateTime)
        return !dateTimeOf(v).isValid();
    bool number = false;
    v.toString().trimmed().toDouble(&number);
    return !number;
}

QString csvText(const QVariant& v, TableExport::Type type)
{
    if (v.isNull())
        return {};
    if (isLabel(v, type))
        return v.toString();
    switch (type) {
    case TableExport::Type::Money:
        return moneyText(toCurrency(v));
    case TableExport::Type::Integer:
        return QString::number(qint64(toNumber(v)));
    case TableExport::Type::Number:
        return v.typeId() == qMetaTypeId<Currency>() ? v.value<Currency>().toString() : QString::number(toNumber(v), 'g', 15);
    case TableExport::Type::Date:
        return dateTimeOf(v).date().toString(Qt::ISODate);
    case TableExport::Type::DateTime:
        return dateTimeOf(v).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    case TableExport::Type::YesNo:
        return yesOf(v) ? QStringLiteral("1") : QStringLiteral("0");
    case TableExport::Type::Text:
        break;
    }
    return text(v);
}

lxw_datetime lxwDateTime(const QDateTime& dt)
{
    const QDate d = dt.date();
    const QTime t = dt.time();
    return lxw_datetime{d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second() + t.msec() / 1000.0};
}

} // namespace

struct TableExport::Private {
    QString fileName;
    QString partName;  // written here, renamed to fileName by finish()
    Format format;
    QList<Column> columns;
    int languageId;
    QString error;
    qint64 rows = 0;
    bool done = false;

    QFile csv;
    QByteArray buffer;

    lxw_workbook* workbook = nullptr;
    lxw_worksheet* sheet = nullptr;
    lxw_row_t nextRow = 0;
    // Per column: plain and bold (subtotal/total) formats.
    QList<lxw_format*> plain, bold;
    lxw_format* boldText = nullptr;

    void fail(const QString& why)
    {
        if (error.isEmpty())
            error = inLanguage(languageId, "บันทึกแฟ้ม %1 ไม่ได้: %2", "Could not write %1: %2").arg(QDir::toNativeSeparators(fileName), why);
    }
    lxw_format* numberFormat(Type type, bool isBold);
    void openWorkbook(const QStringList& heading);
    void openCsv();
    void writeCell(int column, const QVariant& v, bool isBold);
    void closeWorkbook();
    void flushCsv();
};

lxw_format* TableExport::Private::numberFormat(Type type, bool isBold)
{
    lxw_format* f = workbook_add_format(workbook);
    if (isBold)
        format_set_bold(f);
    switch (type) {
    case Type::Integer:
        format_set_num_format(f, "#,##0");
        break;
    case Type::Number:
    case Type::Money:
        format_set_num_format(f, "#,##0.00");
        break;
    case Type::Date:
        format_set_num_format(f, "dd/mm/yyyy");
        break;
    case Type::DateTime:
        format_set_num_format(f, "dd/mm/yyyy hh:mm");
        break;
    case Type::Text:
    case Type::YesNo:
        break;
    }
    return f;
}

void TableExport::Private::openWorkbook(const QStringList& heading)
{
    // Constant memory: each row goes to disk as it is written, so a list of any length
    // costs the same memory.
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.use_zip64 = LXW_TRUE;
    workbook = workbook_new_opt(QFile::encodeName(partName).constData(), &options);
    sheet = workbook ? workbook_add_worksheet(workbook, nullptr) : nullptr;
    if (!sheet) {
        fail(inLanguage(languageId, "สร้างสมุดงานไม่ได้", "the workbook could not be made"));
        return;
    }
    boldText = workbook_add_format(workbook);
    format_set_bold(boldText);
    for (const Column& column : columns) {
        plain << numberFormat(column.type, false);
        bold << numberFormat(column.type, true);
    }
    for (const QString& line : heading) {
        worksheet_write_string(sheet, nextRow, 0, line.toUtf8().constData(), nextRow == 0 ? boldText : nullptr);
        ++nextRow;
    }
    if (!heading.isEmpty())
        ++nextRow;  // a blank row between the heading and the table
    for (int c = 0; c < columns.size(); ++c) {
        worksheet_set_column(sheet, lxw_col_t(c), lxw_col_t(c), qMax(columns[c].width, 4) + 2, nullptr);
        worksheet_write_string(sheet, nextRow, lxw_col_t(c), columns[c].caption.toUtf8().constData(), boldText);
    }
    ++nextRow;
    worksheet_freeze_panes(sheet, nextRow, 0);
}

void TableExport::Private::openCsv()
{
    csv.setFileName(partName);
    if (!csv.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        fail(csv.errorString());
        return;
    }
    buffer = QByteArrayLiteral("\xEF\xBB\xBF");
    for (int c = 0; c < columns.size(); ++c) {
        if (c > 0)
            buffer += ',';
        appendCsvField(buffer, columns[c].caption);
    }
    buffer += "\r\n";
}

void TableExport::Private::writeCell(int column, const QVariant& v, bool isBold)
{
    if (v.isNull())
        return;
    const lxw_col_t col = lxw_col_t(column);
    lxw_format* f = (isBold ? bold : plain)[column];
    const Type type = isLabel(v, columns[column].type) ? Type::Text : columns[column].type;
    switch (type) {
    case Type::Integer:
    case Type::Number:
        worksheet_write_number(sheet, nextRow, col, toNumber(v), f);
        return;
    case Type::Money:
        worksheet_write_number(sheet, nextRow, col, toCurrency(v).toDouble(), f);
        return;
    case Type::Date:
    case Type::DateTime: {
        const QDateTime dt = dateTimeOf(v);
        if (dt.isValid()) {
            lxw_datetime when = lxwDateTime(dt);
            worksheet_write_datetime(sheet, nextRow, col, &when, f);
        }
        return;
    }
    case Type::YesNo:
        worksheet_write_boolean(sheet, nextRow, col, yesOf(v), f);
        return;
    case Type::Text:
        break;
    }
    worksheet_write_string(sheet, nextRow, col, text(v).toUtf8().constData(), isBold ? boldText : nullptr);
}

void TableExport::Private::flushCsv()
{
    if (csv.write(buffer) != buffer.size())
        fail(csv.errorString());
    buffer.clear();
}

void TableExport::Private::closeWorkbook()
{
    if (!workbook)
        return;
    const lxw_error result = workbook_close(workbook);
    workbook = nullptr;
    if (result != LXW_NO_ERROR)
        fail(QString::fromUtf8(lxw_strerror(result)));
}

TableExport::Format TableExport::formatOf(const QString& fileName)
{
    return fileName.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive) ? Format::Csv : Format::Xlsx;
}

TableExport::TableExport(const QString& fileName, const QList<Column>& columns, int languageId, const QStringList& heading)
    : d(std::make_unique<Private>())
{
    d->fileName = fileName;
    const QFileInfo info(fileName);
    d->partName = info.dir().filePath(QLatin1Char('.') + info.fileName() + QLatin1String(".part"));
    d->format = formatOf(fileName);
    d->columns = columns;
    d->languageId = languageId;
    // A folder that cannot be written is told now, before any row is read.
    QFile probe(d->partName);
    if (!probe.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        d->fail(probe.errorString());
        return;
    }
    probe.close();
    if (d->format == Format::Csv)
        d->openCsv();
    else
        d->openWorkbook(heading);
}

TableExport::~TableExport()
{
    if (!d->done)
        discard();
}

bool TableExport::addRow(const QVariantList& values, RowStyle style)
{
    if (!d->error.isEmpty() || d->done)
        return false;
    const bool isBold = style != RowStyle::Plain;
    if (d->format == Format::Csv) {
        for (int c = 0; c < d->columns.size(); ++c) {
            if (c > 0)
                d->buffer += ',';
            appendCsvField(d->buffer, csvText(values.value(c), d->columns[c].type));
        }
        d->buffer += "\r\n";
        if (d->buffer.size() >= CsvFlushBytes)
            d->flushCsv();
    } else {
        for (int c = 0; c < d->columns.size(); ++c)
            d->writeCell(c, values.value(c), isBold);
        ++d->nextRow;
    }
    ++d->rows;
    return d->error.isEmpty();
}

bool TableExport::finish()
{
    if (d->done)
        return d->error.isEmpty();
    if (d->error.isEmpty()) {
        if (d->format == Format::Csv) {
            d->flushCsv();
            if (!d->csv.flush())
                d->fail(d->csv.errorString());
            d->csv.close();
        } else {
            d->closeWorkbook();
        }
    }
    if (!d->error.isEmpty()) {
        discard();
        return false;
    }
    // rename() replaces an existing file in one step: a reader sees the old file or the new.
    if (std::rename(QFile::encodeName(d->partName).constData(), QFile::encodeName(d->fileName).constData()) != 0) {
        d->fail(QString::fromLocal8Bit(std::strerror(errno)));
        discard();
        return false;
    }
    d->done = true;
    return true;
}

void TableExport::discard()
{
    if (d->workbook) {
        workbook_close(d->workbook);
        d->workbook = nullptr;
    }
    d->csv.close();
    QFile::remove(d->partName);
    d->done = true;
}

qint64 TableExport::rowsWritten() const
{
    return d->rows;
}

QString TableExport::errorText() const
{
    return d->error;
}

} // namespace qd8
