#include "widgets/PickListModel_p.h"

#include "foundation/CommaList.h"
#include "foundation/DbError.h"
#include "foundation/Services.h"
#include "foundation/Values.h"

#include <QStringMatcher>
#include <algorithm>

namespace qd8 {

namespace {

constexpr QChar CellEnd(0x1f);

QString entries(qsizetype n)
{
    return n == 1 ? QStringLiteral("1 entry") : QStringLiteral("%1 entries").arg(n);
}

// A list written for a single field may be one empty entry, written "" (the type list of
// a lone numeric field); splitList reads "" as no entries at all.
QStringList entriesFor(const QString& list, qsizetype fields)
{
    if (list.isEmpty() && fields == 1)
        return {QString()};
    return splitList(list);
}

// Latin letters without regard to case; one UTF-16 unit at a time, so that offsets into
// the folded text are offsets into the original.
void foldCase(QString& s, qsizetype from = 0)
{
    QChar* p = s.data() + from;
    QChar* const end = s.data() + s.size();
    for (; p != end; ++p) {
        const char16_t u = p->unicode();
        if (u < 0x80) {
            if (char16_t(u - u'A') < 26)
                *p = QChar(char16_t(u + 32));
        } else if (!p->isSurrogate()) {
            *p = p->toLower();
        }
    }
}

} // namespace

PickListModel::PickListModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

PickListModel::~PickListModel() = default;

void PickListModel::load(const PickRequest& request)
{
    beginResetModel();
    m_cursor.close();
    m_columns.clear();
    m_shown.clear();
    m_keyColumns.clear();
    m_notice.clear();
    m_failed = false;
    m_loaded = 0;
    m_searchColumns.clear();
    m_index.clear();
    m_rowStart.clear();
    m_searchText.clear();
    m_needle.clear();
    m_searching = false;
    m_matches.clear();

    try {
        const QStringList fields = splitList(request.fieldList);
        if (fields.isEmpty())
            throw DbError(DbError::Kind::Usage, QStringLiteral("The pick list names no fields"));
        const QStringList captions = entriesFor(request.captionList, fields.size());
        const QStringList types = entriesFor(request.typeList, fields.size());
        const QList<int> widths = request.widthList.isEmpty() && fields.size() == 1 ? QList<int>{0} : parseWidths(request.widthList);

        QStringList surplus;
        auto check = [&](const char* what, const QString& list, qsizetype count) {
            if (count == fields.size())
                return;
            const QString message = QStringLiteral("The %1 list \"%2\" has %3 for the %4 fields of \"%5\"")
                                        .arg(QLatin1String(what), list, entries(count))
                                        .arg(fields.size())
                                        .arg(request.fieldList);
            if (count < fields.size())
                throw DbError(DbError::Kind::Usage, message);
            surplus << message + QStringLiteral("; the extra entries are ignored");
        };
        check("caption", request.captionList, captions.size());
        check("width", request.widthList, widths.size());
        check("type", request.typeList, types.size());
        // Label lists are optional: fewer than the fields leave the rest unlabelled.
        if (request.labelLists.size() > fields.size())
            check("label", request.labelLists.join(QLatin1Char('|')), request.labelLists.size());
        m_notice = surplus.join(QLatin1Char('\n'));

        QList<Column> columns;
        QList<GridColumn> shown;
        for (qsizetype i = 0; i < fields.size(); ++i) {
            QString labelList = request.labelLists.value(i);
            QString caption = captions[i];
            // Type 13 carries its labels in the caption: "Type;MRP;;;SE" labels the codes
            // 0 and 3 (an empty entry has no label).
            if (labelList.isEmpty() && types[i].trimmed() == QLatin1String("13") && caption.contains(QLatin1Char(';'))) {
                const QStringList parts = caption.split(QLatin1Char(';'));
                caption = parts.first();
                QStringList labels;
                for (qsizetype code = 1; code < parts.size(); ++code)
                    if (!parts[code].isEmpty())
                        labels << QString::number(code - 1) + QLatin1Char(';') + parts[code];
                labelList = labels.join(QLatin1Char(','));
            }
            shown << GridColumn::fromDefinition(caption, widths[i],
                labelList.isEmpty() ? QStringLiteral("TEXT") : QStringLiteral("LABELLIST"), 0, -1, labelList);
            columns.append({fields[i].trimmed(), caption, widths[i], types[i].trimmed() == QLatin1String("0") || !labelList.isEmpty(), -1,
                shown.last().labels});
        }
        m_columns = columns;
        m_shown = shown;

        m_cursor.open(Sql(QStringLiteral("SELECT ") + request.fieldList + QStringLiteral(" FROM ") + request.source),
            request.connectionString, FirstRows);

        // The n-th field is the n-th column of the result, whatever the engine calls it
        // (expressions, qualified names); by name only when the counts disagree.
        const bool positional = m_cursor.columnCount() == m_columns.size();
        for (int c = 0; c < m_columns.size(); ++c) {
            m_columns[c].cursorColumn = positional ? c : m_cursor.columnIndex(m_columns[c].field);
            if (m_columns[c].cursorColumn < 0)
                throw DbError(DbError::Kind::Usage,
                    QStringLiteral("The field \"%1\" is not among the columns of \"%2\"").arg(m_columns[c].field, request.source));
        }
        // A key list "A;B;C" returns the values of those columns joined by ";" (the job
        // selector's pick lists return several columns of the row picked).
        for (const QString& part : request.keyField.split(QLatin1Char(';'))) {
            const QString key = part.trimmed();
            int found = -1;
            for (int c = 0; c < m_columns.size() && found < 0; ++c) {
                if (m_columns[c].field.compare(key, Qt::CaseInsensitive) == 0)
                    found = c;
            }
            for (int c = 0; c < m_columns.size() && found < 0 && !key.isEmpty(); ++c) {
                if (m_cursor.columnName(m_columns[c].cursorColumn).compare(key, Qt::CaseInsensitive) == 0)
                    found = c;
            }
            if (found < 0)
                throw DbError(DbError::Kind::Usage,
                    QStringLiteral("The key field \"%1\" is not in the field list \"%2\"").arg(key, request.fieldList));
            m_keyColumns << found;
        }

        // Searched: the shown text columns; a list that shows no text searches what it shows.
        for (int c = 0; c < m_columns.size(); ++c) {
            if (m_columns[c].widthTwips > 0 && m_columns[c].isText)
                m_searchColumns << c;
        }
        for (int c = 0; c < m_columns.size() && m_searchColumns.isEmpty(); ++c) {
            if (m_columns[c].widthTwips > 0)
                m_searchColumns << c;
        }
        m_loaded = int(m_cursor.rowCount());
    } catch (...) {
        m_cursor.close();
        m_keyColumns.clear();
        m_failed = true;
        m_loaded = 0;
        endResetModel();
        throw;
    }
    endResetModel();
}

QString PickListModel::keyAt(int row) const
{
    if (row < 0 || row >= rowCount() || m_keyColumns.isEmpty())
        return {};
    QStringList values;
    for (int column : m_keyColumns)
        values << text(m_cursor.value(sourceRow(row), m_columns[column].cursorColumn));
    return values.join(QLatin1Char(';'));
}

QString PickListModel::cellText(qsizetype sourceRow, int column) const
{
    const QString stored = text(m_cursor.value(sourceRow, m_columns[column].cursorColumn));
    return m_columns[column].labels.isEmpty() ? stored : m_shown[column].displayText(stored, DateEra::Gregorian);
}

QString PickListModel::shownText(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= m_columns.size())
        return {};
    return cellText(sourceRow(row), column);
}

qsizetype PickListModel::sourceRow(int row) const
{
    return m_searching ? m_matches[size_t(row)] : row;
}

bool PickListModel::isComplete() const
{
    return m_failed || m_cursor.atEnd();
}

bool PickListModel::readMore(qsizetype rows)
{
    try {
        return m_cursor.fetch(rows) > 0;
    } catch (const DbError& e) {
        m_failed = true;
        emit fetchFailed(e.report(Services::messages().language()));
        return false;
    }
}

void PickListModel::fetchAll()
{
    while (!isComplete() && readMore(BatchRows * 16)) {
    }
    showReadRows();
}

bool PickListModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && !m_searching && !m_inserting && !isComplete();
}

void PickListModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    readMore(BatchRows);
    showReadRows();
}

void PickListModel::showReadRows()
{
    if (m_searching || m_inserting || m_cursor.rowCount() <= m_loaded)
        return;
    // Whoever hears of the insertion may ask for more rows: not until it is done.
    m_inserting = true;
    beginInsertRows({}, m_loaded, int(m_cursor.rowCount()) - 1);
    m_loaded = int(m_cursor.rowCount());
    endInsertRows();
    m_inserting = false;
}

void PickListModel::setSearchText(const QString& text)
{
    if (text == m_searchText)
        return;
    QString needle = text;
    foldCase(needle);
    std::vector<int> matches;
    if (!needle.isEmpty()) {
        // Rows read here stay out of sight until the reset below shows the matches.
        while (!isComplete() && readMore(BatchRows * 16)) {
        }
        indexRows();
        // Every row that matches the longer text matched the shorter: typing on narrows.
        const bool narrowing = m_searching && needle.contains(m_needle);
        matches = findRows(needle, narrowing ? &m_matches : nullptr);
    }
    beginResetModel();
    m_searching = !needle.isEmpty();
    m_matches = std::move(matches);
    m_loaded = int(m_cursor.rowCount());
    m_searchText = text;
    m_needle = needle;
    endResetModel();
}

void PickListModel::indexRows()
{
    if (m_rowStart.empty())
        m_rowStart.push_back(0);
    const qsizetype rows = m_cursor.rowCount();
    qsizetype row = qsizetype(m_rowStart.size()) - 1;
    if (row >= rows)
        return;
    const qsizetype from = m_index.size();
    m_rowStart.reserve(size_t(rows + 1));
    for (; row < rows; ++row) {
        for (int c : std::as_const(m_searchColumns)) {
            m_index += cellText(row, c);
            m_index += CellEnd;
        }
        m_rowStart.push_back(m_index.size());
    }
    foldCase(m_index, from);
}

std::vector<int> PickListModel::findRows(const QString& needle, const std::vector<int>* within) const
{
    const QStringView index(m_index);
    const QStringMatcher matcher(needle);
    std::vector<int> found;
    if (within) {
        found.reserve(within->size());
        for (int row : *within) {
            const qsizetype start = m_rowStart[size_t(row)];
            if (matcher.indexIn(index.sliced(start, m_rowStart[size_t(row) + 1] - start)) >= 0)
                found.push_back(row);
        }
    } else {
        // One pass over the whole index; after a hit the scan goes on at the next row.
        qsizetype from = 0;
        while (from < index.size()) {
            const qsizetype at = needle.size() == 1 ? index.indexOf(needle.front(), from) : matcher.indexIn(index, from);
            if (at < 0)
                break;
            const auto next = std::upper_bound(m_rowStart.begin(), m_rowStart.end(), at);
            found.push_back(int(next - m_rowStart.begin()) - 1);
            from = *next;
        }
    }
    return found;
}

int PickListModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_searching ? int(m_matches.size()) : m_loaded;
}

int PickListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant PickListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Column& column = m_columns[index.column()];
    switch (role) {
    case Qt::DisplayRole:
        return cellText(sourceRow(index.row()), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment((column.isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter));
    default:
        return {};
    }
}

QVariant PickListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size())
        return QAbstractTableModel::headerData(section, orientation, role);
    const Column& column = m_columns[section];
    switch (role) {
    case Qt::DisplayRole:
        return column.caption;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment((column.isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter));
    default:
        return {};
    }
}

Qt::ItemFlags PickListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

} // namespace qd8
