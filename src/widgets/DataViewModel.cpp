#include "widgets/DataViewModel_p.h"

#include "foundation/DbError.h"
#include "foundation/Values.h"
#include "widgets/DataView.h"

#include <QBrush>
#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <optional>

namespace qd8 {

namespace {

// The row a colour callback reads: values straight from the model's store.
class ModelRow final : public DataRow {
public:
    ModelRow(const DataViewModel& model, int row) : m_model(model), m_row(row) {}
    QVariant value(const QString& field) const override { return m_model.value(m_row, field); }
    bool hasField(const QString& field) const override { return m_model.fieldColumn(field) >= 0; }

private:
    const DataViewModel& m_model;
    int m_row;
};


std::optional<double> numberOf(const QVariant& v)
{
    if (v.typeId() == qMetaTypeId<Currency>())
        return v.value<Currency>().toDouble();
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Bool:
        return v.toDouble();
    default:
        break;
    }
    bool ok = false;
    const double d = v.toString().trimmed().toDouble(&ok);
    return ok ? std::optional<double>(d) : std::nullopt;
}

QDate dateOf(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::QDate:
        return v.toDate();
    case QMetaType::QDateTime:
        return v.toDateTime().date();
    default:
        return QDate::fromString(v.toString().left(10), Qt::ISODate);
    }
}

bool isYes(const QVariant& v)
{
    if (const auto number = numberOf(v))
        return *number != 0;
    const QString s = v.toString().trimmed();
    for (const char* yes : {"Y", "Yes", "T", "True"}) {
        if (s.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

Qt::Alignment alignmentOf(DataViewModel::Type type)
{
    switch (type) {
    case DataViewModel::Type::Integer:
    case DataViewModel::Type::Number:
        return Qt::AlignRight | Qt::AlignVCenter;
    case DataViewModel::Type::Date:
    case DataViewModel::Type::YesNo:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case DataViewModel::Type::Text:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

DataViewModel::DataViewModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

DataViewModel::~DataViewModel() = default;

DataViewModel::Type DataViewModel::typeOfCode(const QString& code)
{
    const QString c = code.trimmed();
    if (c == QLatin1String("1"))
        return Type::Integer;
    if (c == QLatin1String("2"))
        return Type::Number;
    if (c == QLatin1String("3"))
        return Type::Date;
    if (c == QLatin1String("4"))
        return Type::YesNo;
    return Type::Text;
}

void DataViewModel::setColumns(const QList<Column>& columns)
{
    beginResetModel();
    m_columns = columns;
    mapColumns();
    endResetModel();
}

void DataViewModel::setKeyFields(const QStringList& fields)
{
    m_keyFields.clear();
    for (const QString& field : fields)
        m_keyFields << field.trimmed();
}

void DataViewModel::setRowColour(std::function<QColor(const DataRow&)> colour)
{
    m_colour = std::move(colour);
    if (m_shown > 0 && !m_columns.isEmpty())
        emit dataChanged(index(0, 0), index(m_shown - 1, int(m_columns.size()) - 1), {Qt::BackgroundRole});
}

void DataViewModel::open(const Sql& select, const QString& connectionString)
{
    beginResetModel();
    m_cursor.close();
    m_fieldColumns.clear();
    m_shown = 0;
    m_failed = false;
    try {
        m_cursor.open(select, connectionString, FirstRows);
        const QStringList missing = mapColumns();
        if (!missing.isEmpty())
            throw DbError(DbError::Kind::Usage,
                QStringLiteral("The field \"%1\" is not among the columns of the statement").arg(missing.first()), select.text());
        m_shown = int(m_cursor.rowCount());
    } catch (...) {
        m_cursor.close();
        mapColumns();
        m_shown = 0;
        endResetModel();
        throw;
    }
    endResetModel();
}

void DataViewModel::clear()
{
    beginResetModel();
    m_cursor.close();
    mapColumns();
    m_shown = 0;
    m_failed = false;
    endResetModel();
}

QStringList DataViewModel::mapColumns()
{
    m_fieldColumns.clear();
    const int count = m_cursor.columnCount();
    for (int c = 0; c < count; ++c)
        m_fieldColumns.insert(m_cursor.columnName(c).toCaseFolded(), c);
    // The n-th field is the n-th column of the result, whatever the engine calls it
    // (expressions, qualified names); by name only when the counts disagree.
    const bool positional = count == m_columns.size();
    QStringList missing;
    for (int c = 0; c < m_columns.size(); ++c) {
        Column& column = m_columns[c];
        column.cursorColumn = positional ? c : m_fieldColumns.value(column.field.toCaseFolded(), -1);
        if (column.cursorColumn < 0 && count > 0)
            missing << column.field;
        else if (column.cursorColumn >= 0 && !m_fieldColumns.contains(column.field.toCaseFolded()))
            m_fieldColumns.insert(column.field.toCaseFolded(), column.cursorColumn);
    }
    return missing;
}

bool DataViewModel::isComplete() const
{
    return m_failed || m_cursor.atEnd();
}

bool DataViewModel::readMore(qsizetype rows)
{
    if (isComplete())
        return false;
    try {
        return m_cursor.fetch(rows) > 0;
    } catch (const DbError& e) {
        m_failed = true;
        emit fetchFailed(e.message());
        return false;
    }
}

void DataViewModel::showReadRows()
{
    if (m_inserting || m_cursor.rowCount() <= m_shown)
        return;
    // Whoever hears of the insertion may ask for more rows: not until it is done.
    m_inserting = true;
    beginInsertRows({}, m_shown, int(m_cursor.rowCount()) - 1);
    m_shown = int(m_cursor.rowCount());
    endInsertRows();
    m_inserting = false;
}

int DataViewModel::fieldColumn(const QString& field) const
{
    return m_fieldColumns.value(field.trimmed().toCaseFolded(), -1);
}

QVariant DataViewModel::value(int row, int cursorColumn) const
{
    if (row < 0 || row >= m_cursor.rowCount() || cursorColumn < 0 || cursorColumn >= m_cursor.columnCount())
        return {};
    return m_cursor.value(row, cursorColumn);
}

QVariant DataViewModel::value(int row, const QString& field) const
{
    return value(row, fieldColumn(field));
}

QString DataViewModel::keyText(int row) const
{
    if (row < 0 || row >= m_cursor.rowCount())
        return {};
    QStringList parts;
    for (const QString& field : m_keyFields)
        parts << text(value(row, field));
    return parts.join(QLatin1Char(','));
}

QString DataViewModel::shownText(const QVariant& value, Type type) const
{
    if (value.isNull())
        return {};
    const QLocale locale;
    switch (type) {
    case Type::Integer:
        if (value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int)
            return locale.toString(value.toLongLong());
        if (const auto number = numberOf(value))
            return locale.toString(qRound64(*number));
        break;
    case Type::Number:
        if (const auto number = numberOf(value))
            return locale.toString(*number, 'f', 2);
        break;
    case Type::Date:
        if (const QDate date = dateOf(value); date.isValid())
            return dateText(date, m_look.era);
        break;
    case Type::YesNo:
        return isYes(value) ? QStringLiteral("✓") : QString();
    case Type::Text:
        break;
    }
    if (value.typeId() == QMetaType::QDate)
        return dateText(value.toDate(), m_look.era);
    if (value.typeId() == QMetaType::QDateTime)
        return dateTimeText(value.toDateTime(), m_look.era);
    return text(value);
}

void DataViewModel::setDateLook(const DateLook& look)
{
    if (m_look == look)
        return;
    m_look = look;
    if (rowCount() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QColor DataViewModel::rowColour(int row) const
{
    if (!m_colour)
        return {};
    try {
        return m_colour(ModelRow(*this, row));
    } catch (const std::exception&) {
        return {};  // nothing throws through painting
    }
}

int DataViewModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shown;
}

int DataViewModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant DataViewModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Column& column = m_columns[index.column()];
    switch (role) {
    case Qt::DisplayRole:
        return shownText(value(index.row(), column.cursorColumn), column.type);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignmentOf(column.type));
    case Qt::BackgroundRole:
        if (const QColor colour = rowColour(index.row()); colour.isValid())
            return QBrush(colour);
        return {};
    default:
        return {};
    }
}

QVariant DataViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size())
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:  // the whole caption of a column too narrow for it
        return m_columns[section].caption;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignmentOf(m_columns[section].type));
    default:
        return {};
    }
}

Qt::ItemFlags DataViewModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

bool DataViewModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && !m_reading && !m_inserting && (m_cursor.rowCount() > m_shown || !isComplete());
}

void DataViewModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    if (m_cursor.rowCount() <= m_shown)
        readMore(BatchRows);
    showReadRows();
}

} // namespace qd8
