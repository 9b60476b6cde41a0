#include "widgets/GridEditorModel.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <algorithm>

namespace qd8 {

namespace {

const QString EditedMark = QStringLiteral("E");
const QString DeletedMark = QStringLiteral("D");

const GridColumn& noColumn()
{
    static const GridColumn none;
    return none;
}

const GridEditorModel::RowEdit& noEdit()
{
    static const GridEditorModel::RowEdit none;
    return none;
}

} // namespace

GridEditorModel::GridEditorModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

GridEditorModel::~GridEditorModel() = default;

int GridEditorModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int GridEditorModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

bool GridEditorModel::inRange(int row, int column) const
{
    return row >= 0 && row < m_rows.size() && column >= 0 && column < m_columns.size();
}

QString GridEditorModel::blankCell(int column) const
{
    return m_columns[column].isCheck() ? QStringLiteral("0") : QString();
}

QVariant GridEditorModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int r = index.row(), c = index.column();
    const GridColumn& col = cellColumn(r, c);
    const QString& stored = m_rows[r].cells[c];
    switch (role) {
    case Qt::DisplayRole:
        // A check box says its state by drawing it; its text is for TextMatrix and readers.
        return col.isCheck() ? QVariant() : QVariant(col.displayText(stored, m_look.era));
    case Qt::EditRole:
        return col.editText(stored, m_look.era);
    case Qt::AccessibleTextRole:
        return col.displayText(stored, m_look.era);
    case ValueRole:
        return col.value(stored);
    case StoredRole:
        return stored;
    case Qt::CheckStateRole:
        if (col.isCheck())
            return col.value(stored).toInt() ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(int(col.cellAlignment()));
    case Qt::DecorationRole:
        if (col.type == GridColumnType::Color) {
            const QVariant v = col.value(stored);
            if (v.typeId() == QMetaType::LongLong) {
                const qlonglong n = v.toLongLong();
                return QColor(int(n & 0xFF), int((n >> 8) & 0xFF), int((n >> 16) & 0xFF));
            }
        }
        return {};
    case Qt::ForegroundRole:
        if (m_rows[r].edit.deleted)
            return QPalette().brush(QPalette::Disabled, QPalette::Text);
        return {};
    case Qt::FontRole:
        if (m_rows[r].edit.deleted) {
            QFont font;
            font.setStrikeOut(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

QVariant GridEditorModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal) {
        if (section < 0 || section >= m_columns.size())
            return {};
        // The tool tip holds the whole caption of a column too narrow for it.
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole || role == Qt::ToolTipRole)
            return m_columns[section].caption;
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(int(m_columns[section].titleAlignment()));
        return {};
    }
    if (section < 0 || section >= m_rows.size())
        return {};
    if (role == Qt::DisplayRole)
        return mark(section);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(int(Qt::AlignCenter));
    return {};
}

Qt::ItemFlags GridEditorModel::flags(const QModelIndex& index) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return Qt::NoItemFlags;
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const Row& row = m_rows[index.row()];
    if (m_readOnly || row.edit.deleted)
        return f;
    const GridColumn& col = cellColumn(index.row(), index.column());
    if (!col.canEdit(row.edit.operation == RowOperation::Insert))
        return f;
    return f | (col.isCheck() ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool GridEditorModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    if (!(flags(index) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)))
        return false;
    const int r = index.row(), c = index.column();
    const GridColumn& col = cellColumn(r, c);
    QString stored;
    if (role == Qt::CheckStateRole && col.isCheck()) {
        stored = value.toInt() == Qt::Checked ? QStringLiteral("1") : QStringLiteral("0");
    } else if (role == ValueRole) {
        stored = col.storedFromValue(value);
    } else if (role == Qt::EditRole) {
        const GridInputProblem problem = col.parseInput(value.toString(), stored, m_look.era);
        if (problem != GridInputProblem::None) {
            emit valueRefused(index, GridColumn::problemText(problem, m_look.languageId));
            return false;
        }
    } else {
        return false;
    }
    if (stored == m_rows[r].cells[c])
        return true;
    if (m_validator) {
        const QString message = m_validator(r, c, col.value(stored));
        if (!message.isEmpty()) {
            emit valueRefused(index, message);
            return false;
        }
    }
    store(r, c, stored);
    emit cellEdited(r, c);
    return true;
}

bool GridEditorModel::store(int row, int column, const QString& stored)
{
    Row& target = m_rows[row];
    const QString old = target.cells[column];
    if (old == stored)
        return false;
    const QString oldMark = mark(row);
    RowEdit& edit = target.edit;
    auto known = edit.original.find(column);
    if (known == edit.original.end())
        edit.original.insert(column, old);
    else if (*known == stored)
        edit.original.erase(known);
    if (edit.operation != RowOperation::Insert)
        edit.operation = edit.original.isEmpty() ? RowOperation::None : RowOperation::Update;
    target.cells[column] = stored;
    const QModelIndex changed = index(row, column);
    emit dataChanged(changed, changed);
    if (mark(row) != oldMark)
        emit headerDataChanged(Qt::Vertical, row, row);
    return true;
}

bool GridEditorModel::insertRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || row > m_rows.size() || count < 1)
        return false;
    beginInsertRows({}, row, row + count - 1);
    for (int i = 0; i < count; ++i) {
        Row fresh;
        for (int c = 0; c < m_columns.size(); ++c)
            fresh.cells << blankCell(c);
        fresh.edit.operation = RowOperation::Insert;
        m_rows.insert(row + i, fresh);
    }
    endInsertRows();
    return true;
}

bool GridEditorModel::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || count < 1 || row + count > m_rows.size())
        return false;
    beginRemoveRows({}, row, row + count - 1);
    m_rows.remove(row, count);
    endRemoveRows();
    return true;
}

void GridEditorModel::clear()
{
    if (m_rows.isEmpty() && m_columns.isEmpty())
        return;
    beginResetModel();
    m_rows.clear();
    m_columns.clear();
    endResetModel();
}

void GridEditorModel::clearRows()
{
    if (!m_rows.isEmpty())
        removeRows(0, int(m_rows.size()));
}

int GridEditorModel::appendColumn(const GridColumn& column)
{
    const int at = int(m_columns.size());
    beginInsertColumns({}, at, at);
    m_columns.append(column);
    for (Row& row : m_rows)
        row.cells << blankCell(at);
    endInsertColumns();
    return at;
}

const GridColumn& GridEditorModel::column(int column) const
{
    return column >= 0 && column < m_columns.size() ? m_columns[column] : noColumn();
}

void GridEditorModel::setCaption(int column, const QString& caption)
{
    if (column < 0 || column >= m_columns.size() || m_columns[column].caption == caption)
        return;
    m_columns[column].caption = caption;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

const GridColumn& GridEditorModel::cellColumn(int row, int column) const
{
    if (!inRange(row, column))
        return noColumn();
    const auto own = m_rows[row].formats.constFind(column);
    return own != m_rows[row].formats.cend() ? *own : m_columns[column];
}

void GridEditorModel::setCellFormat(int row, int column, const GridColumn& format)
{
    if (!inRange(row, column))
        return;
    GridColumn own = m_columns[column];
    own.type = format.type;
    own.decimals = format.decimals;
    own.labels = format.labels;
    own.alignment = format.alignment;
    // A cell may be closed to editing in a column that is open, never the other way round.
    own.editable = own.editable && format.editable;
    own.newRowsEditable = own.newRowsEditable && format.newRowsEditable;
    m_rows[row].formats.insert(column, own);
    const QModelIndex changed = index(row, column);
    emit dataChanged(changed, changed);
}

int GridEditorModel::appendRow(const QVariantList& values)
{
    return appendRows({values});
}

int GridEditorModel::appendRows(const QList<QVariantList>& rows)
{
    const int at = int(m_rows.size());
    if (rows.isEmpty())
        return at - 1;
    // One insertion for the whole batch: the views lay out once, not once per row.
    QList<Row> loaded(rows.size());
    for (qsizetype r = 0; r < rows.size(); ++r) {
        loaded[r].cells.reserve(m_columns.size());
        for (int c = 0; c < m_columns.size(); ++c)
            loaded[r].cells << m_columns[c].storedFromValue(rows[r].value(c));
    }
    beginInsertRows({}, at, at + int(rows.size()) - 1);
    m_rows.append(std::move(loaded));
    endInsertRows();
    return int(m_rows.size()) - 1;
}

bool GridEditorModel::markDeleted(int row)
{
    if (row < 0 || row >= m_rows.size() || m_rows[row].edit.deleted)
        return false;
    if (m_rows[row].edit.operation == RowOperation::Insert)
        return removeRows(row, 1);
    m_rows[row].edit.deleted = true;
    emit headerDataChanged(Qt::Vertical, row, row);
    if (!m_columns.isEmpty())
        emit dataChanged(index(row, 0), index(row, int(m_columns.size()) - 1));
    return true;
}

void GridEditorModel::acceptChanges()
{
    for (int r = int(m_rows.size()) - 1; r >= 0; --r) {
        if (m_rows[r].edit.deleted)
            removeRows(r, 1);
    }
    for (int r = 0; r < m_rows.size(); ++r) {
        if (m_rows[r].edit.operation != RowOperation::None) {
            m_rows[r].edit = {};
            emit headerDataChanged(Qt::Vertical, r, r);
        }
    }
}

QString GridEditorModel::storedText(int row, int column) const
{
    return inRange(row, column) ? m_rows[row].cells[column] : QString();
}

QString GridEditorModel::text(int row, int column) const
{
    return inRange(row, column) ? cellColumn(row, column).displayText(m_rows[row].cells[column], m_look.era) : QString();
}

QVariant GridEditorModel::value(int row, int column) const
{
    return inRange(row, column) ? cellColumn(row, column).value(m_rows[row].cells[column]) : QVariant();
}

bool GridEditorModel::setText(int row, int column, const QString& text)
{
    if (!inRange(row, column) || !store(row, column, cellColumn(row, column).storedFromText(text, m_look.era)))
        return false;
    emit cellChangedByCode(row, column);
    return true;
}

bool GridEditorModel::setValue(int row, int column, const QVariant& value)
{
    if (!inRange(row, column) || !store(row, column, cellColumn(row, column).storedFromValue(value)))
        return false;
    emit cellChangedByCode(row, column);
    return true;
}

QString GridEditorModel::mark(int row) const
{
    if (row < 0 || row >= m_rows.size())
        return {};
    const RowEdit& edit = m_rows[row].edit;
    if (edit.deleted)
        return DeletedMark;
    return edit.operation == RowOperation::None ? QString() : EditedMark;
}

bool GridEditorModel::hasChanges() const
{
    return std::any_of(m_rows.cbegin(), m_rows.cend(),
        [](const Row& row) { return row.edit.deleted || row.edit.operation != RowOperation::None; });
}

const GridEditorModel::RowEdit& GridEditorModel::rowEdit(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows[row].edit : noEdit();
}

bool GridEditorModel::isNewRow(int row) const
{
    return rowEdit(row).operation == RowOperation::Insert;
}

void GridEditorModel::setValidator(Validator validator)
{
    m_validator = std::move(validator);
}

void GridEditorModel::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
}

void GridEditorModel::setLanguageId(int languageId)
{
    setDateLook(DateLook::forLanguage(languageId));
}

void GridEditorModel::setDateLook(const DateLook& look)
{
    if (m_look == look)
        return;
    m_look = look;
    if (!m_rows.isEmpty() && !m_columns.isEmpty())
        emit dataChanged(index(0, 0), index(int(m_rows.size()) - 1, int(m_columns.size()) - 1));
}

} // namespace qd8
