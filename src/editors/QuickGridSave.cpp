// Saving, deleting and printing of the quick form editor.
#include "editors/QuickGrid.h"

#include "database/QuickFormMetadata.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/TransactionGuard.h"
#include "foundation/Values.h"
#include "widgets/GridEditor.h"

namespace qd8 {

namespace {

const QString ConfirmTitle = QStringLiteral("ยืนยันคำสั่ง");

bool isAutoNumber(const QuickFieldDefinition& field)
{
    return field.type == QLatin1String("AUTONUMBER");
}

QString plainCaption(const QuickFieldDefinition& field)
{
    QString caption = field.caption;
    if (caption.endsWith(QLatin1String(" (F2)")))
        caption.chop(5);
    return caption;
}

} // namespace

bool QuickGrid::save(bool confirmed)
{
    auto& messages = Services::messages();
    if (!confirmed && !messages.question(ConfirmTitle, QStringLiteral("ท่านต้องการบันทึกข้อมูลที่เปลี่ยนแปลงนี้ ใช่หรือไม่")))
        return false;
    if (m_filtered
        && !messages.question(ConfirmTitle,
            QStringLiteral("การใช้เครื่องมือ แสดงเฉพาะ ช่วยกรองข้อมูล อาจทำให้ข้อมูลที่ไม่แสดงถูกทับด้วยข้อมูลที่แสดงอยู่นี้") + QLatin1Char('\n')
                + QStringLiteral("ท่านต้องการบันทึกข้อมูลที่เปลี่ยนแปลงนี้") + QStringLiteral(" ใช่หรือไม่")))
        return false;
    for (const QString& problem : {blankProblem(), keyProblem()}) {
        if (!problem.isEmpty()) {
            messages.critical(m_form.caption, problem);
            return false;
        }
    }
    int saved = 0, deleted = 0;
    try {
        Connection data;
        data.open(DataConnectionString());
        const QString inUse = inUseProblem(data);
        if (!inUse.isEmpty()) {
            messages.critical(m_form.caption, inUse);
            return false;
        }
        // All rows or none: a failure anywhere, or Cancel before the commit, leaves the
        // table as it was and the grid as the user left it.
        TransactionGuard transaction(data);
        ProgressScope progress(m_form.caption, bilingual("กำลังบันทึกข้อมูล", "Saving"), 2 * qint64(m_grid->Rows()));
        if (!writeRows(data, progress, saved, deleted)) {
            messages.information(m_form.caption, bilingual("ยกเลิกการบันทึกแล้ว ไม่มีข้อมูลใดถูกบันทึก", "Saving cancelled: nothing was written"));
            return false;
        }
        transaction.commit();
    } catch (const DbError& error) {
        messages.critical(m_form.caption, error.report(LanguageID()));
        return false;
    }
    messages.information(m_form.caption, QStringLiteral("บันทึกข้อมูล  ") + QString::number(saved) + QStringLiteral(" รายการ   ลบข้อมูล ")
            + QString::number(deleted) + QStringLiteral(" รายการ เรียบร้อย"));
    FillData();
    return true;
}

QString QuickGrid::blankProblem() const
{
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        if (m_grid->RowMark(row) != QLatin1String("E"))
            continue;
        for (int col = 1; col <= m_form.fields.size(); ++col) {
            const QuickFieldDefinition& f = m_form.fields[col - 1];
            if (!f.canBlank && !isAutoNumber(f) && qd8::text(m_grid->GetValue(row, col)).trimmed().isEmpty())
                return QStringLiteral("กรุณาระบุ ") + f.caption + QStringLiteral(" ให้ถูกต้อง");
        }
    }
    return {};
}

QString QuickGrid::keyProblem() const
{
    if (!m_form.keyColumns().isEmpty())
        return {};
    for (int row = 1; row <= m_grid->Rows(); ++row)
        if (m_grid->RowMark(row) == QLatin1String("D") || m_grid->RowMark(row) == QLatin1String("E"))
            return bilingual("แบบฟอร์มนี้ไม่มีช่องรหัส จึงบันทึกหรือลบรายการไม่ได้", "This form has no key column, so its entries cannot be saved or deleted");
    return {};
}

QVariant QuickGrid::keyValue(int row, int col) const
{
    // A row read from the table is found by the key it was read with.
    return row <= m_loaded.size() ? m_loaded[row - 1].value(col - 1) : m_grid->GetValue(row, col);
}

Sql QuickGrid::keyCondition(int row) const
{
    Sql condition;
    for (int col : m_form.keyColumns()) {
        const QuickFieldDefinition& key = m_form.fields[col - 1];
        const QString value = qd8::text(keyValue(row, col));
        if (!condition.text().isEmpty())
            condition += " AND ";
        condition += key.fieldName + QStringLiteral("=");
        condition += key.type == QLatin1String("TEXT") ? quoted(value) : number(value);
    }
    return condition;
}

QString QuickGrid::inUseProblem(Connection& data) const
{
    // A key still used elsewhere is not deleted: by the form's own check (its table and
    // field), and by the check a column names (the quick form whose table refers to it).
    struct Reference {
        int col;
        QString table;
        QString column;  // the referring form's key prefix + this column's name
    };
    QList<Reference> references;
    bool resolved = false;
    const auto resolveReferences = [&] {
        resolved = true;
        Connection app;
        for (int col = 1; col <= m_form.fields.size(); ++col) {
            const QuickFieldDefinition& f = m_form.fields[col - 1];
            if (f.canDeleteAlias.isEmpty())
                continue;
            if (!app.isOpen())
                app.open(ConnectionString());
            const QuickFormMetadata other = QuickFormMetadata::read(app, f.canDeleteAlias, QuickFormMetadata::Reading::FormOnly);
            if (other.found)
                references.append({col, other.table, other.keyPrefix + f.fieldName});
        }
    };
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        if (m_grid->RowMark(row) != QLatin1String("D") || row > m_loaded.size())
            continue;
        const QString key = qd8::text(keyValue(row, m_form.keyColumn));
        if (m_form.deleteAuto && !m_form.deleteTable.isEmpty() && !m_form.deleteField.isEmpty()) {
            Recordset rs;
            rs.open(Sql("SELECT ") + m_form.deleteField + " FROM " + m_form.deleteTable + " WHERE " + m_form.deleteField + "=" + quoted(key), data);
            if (!rs.eof())
                return (m_form.deleteMessage.isEmpty() ? bilingual("ข้อมูลนี้ถูกใช้งานแล้ว ลบไม่ได้", "This entry is in use and cannot be deleted")
                                                       : m_form.deleteMessage)
                    + QStringLiteral(" (") + key + QLatin1Char(')');
        }
        if (!resolved)
            resolveReferences();
        for (const Reference& reference : references) {
            const QString value = qd8::text(keyValue(row, reference.col));
            Recordset used;
            used.open(Sql("SELECT ") + reference.column + " FROM " + reference.table + " WHERE " + reference.column + "=" + quoted(value), data);
            if (!used.eof())
                return bilingual("%1 %2 ยังถูกใช้งานอยู่ ลบไม่ได้", "%1 %2 is still in use and cannot be deleted")
                    .arg(plainCaption(m_form.fields[reference.col - 1]), value);
        }
    }
    return {};
}

bool QuickGrid::writeRows(Connection& data, ProgressScope& progress, int& saved, int& deleted)
{
    const QuickFieldDefinition& key = m_form.keyDefinition();
    const auto inRow = [this](int row, const DbError& error) {
        DbError named(error.kind(), error.message(), error.statement());
        named.explain(bilingual("รายการที่ %1: %2", "Row %1: %2").arg(row).arg(error.userText(LanguageID())));
        return named;
    };
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        if (m_grid->RowMark(row) != QLatin1String("D") || qd8::text(keyValue(row, m_form.keyColumn)).isEmpty())
            continue;
        if (!progress.step(row))
            return false;
        try {
            // What the engine really removed: more than one row means the form's key does not
            // name one entry, and the whole save is undone.
            const qint64 removed = data.execute(Sql("DELETE  FROM ") + m_form.table + " WHERE " + keyCondition(row));
            if (removed > 1)
                throw DbError(DbError::Kind::Conflict, QStringLiteral("DELETE removed %1 rows").arg(removed))
                    .explain(bilingual("รหัสของรายการนี้ตรงกับ %1 รายการ จึงไม่ลบ", "The key of this entry matches %1 entries, so none is deleted")
                                 .arg(removed));
            deleted += int(removed);
        } catch (const DbError& error) {
            throw inRow(row, error);
        }
    }
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        if (m_grid->RowMark(row) != QLatin1String("E"))
            continue;
        if (!progress.step(m_grid->Rows() + row))
            return false;
        const bool loaded = row <= m_loaded.size();
        try {
            Recordset rs;
            const bool fresh = isAutoNumber(key) && qd8::text(m_grid->GetValue(row, m_form.keyColumn)).isEmpty();
            if (!fresh)
                rs.open(Sql("SELECT * FROM ") + m_form.table + " WHERE " + keyCondition(row), data, Recordset::adOpenKeyset,
                    Recordset::adLockOptimistic);
            if (loaded && (fresh || rs.eof()))
                throw DbError(DbError::Kind::Conflict, QStringLiteral("The row is gone")).explain(bilingual("ผู้ใช้อื่นลบรายการนี้ไปแล้ว", "Another user deleted this entry"));
            if (loaded) {
                for (int col = 1; col <= m_form.fields.size(); ++col)
                    if (qd8::text(rs.field(m_form.fields[col - 1].fieldName)) != qd8::text(m_loaded[row - 1].value(col - 1)))
                        throw DbError(DbError::Kind::Conflict, QStringLiteral("The row differs from the one read"))
                            .explain(bilingual("ผู้ใช้อื่นแก้ไขรายการนี้ไปแล้ว", "Another user changed this entry"));
            } else if (!fresh && !rs.eof()) {
                throw DbError(DbError::Kind::Conflict, QStringLiteral("The key exists"))
                    .explain(bilingual("%1 %2 มีอยู่แล้ว", "%1 %2 already exists").arg(plainCaption(key), qd8::text(m_grid->GetValue(row, m_form.keyColumn))));
            }
            if (fresh) {
                rs.open(Sql("SELECT * FROM ") + m_form.table + " WHERE 1=0", data, Recordset::adOpenKeyset, Recordset::adLockOptimistic);
            }
            if (rs.eof())
                rs.addNew();
            for (int col = 1; col <= m_form.fields.size(); ++col) {
                const QuickFieldDefinition& f = m_form.fields[col - 1];
                if (isAutoNumber(f) || !f.written)
                    continue;
                // A read row writes only what the user changed.
                const QVariant value = m_grid->GetValue(row, col);
                if (loaded && qd8::text(value) == qd8::text(m_loaded[row - 1].value(col - 1)))
                    continue;
                rs.setField(f.fieldName, value);
            }
            completeRow(rs);
            rs.update();
            ++saved;
        } catch (const DbError& error) {
            throw inRow(row, error);
        }
    }
    // The last chance to cancel: after the commit the rows are written.
    return progress.step(2 * qint64(m_grid->Rows()));
}

void QuickGrid::print()
{
    if (!m_form.printCommand.isEmpty()) {
        Q_EMIT PrintButtonClick(m_form.printCommand);
        return;
    }
    if (m_form.masterReportNo < 1 || m_form.fields.size() < 3)
        return;
    const QList<QuickFieldDefinition>& f = m_form.fields;
    QString sql, captions;
    if (m_form.masterReportNo == 1) {
        sql = QStringLiteral("SELECT ") + f[0].fieldName + QStringLiteral(" AS TDivCode, ") + f[1].fieldName + QStringLiteral(" AS TDivName, ")
            + m_form.keyPrefix + QStringLiteral("Flag1 AS TDivFlag1 FROM ") + m_form.table + QStringLiteral(" ORDER BY ") + f[0].fieldName;
        captions = QStringLiteral("Title;") + m_form.caption + QStringLiteral("#Caption1;") + f[0].caption + QStringLiteral("#Caption2;")
            + f[1].caption;
    } else {
        if (f.size() < 4)
            return;
        sql = QStringLiteral("SELECT ") + f[0].fieldName + QStringLiteral(" AS TDivCode, ") + f[1].fieldName + QStringLiteral(" AS TDivName, ")
            + f[2].fieldName + QStringLiteral(" AS TDivName2 ,") + m_form.keyPrefix + QStringLiteral("Flag1 AS TDivFlag1 FROM ") + m_form.table
            + QStringLiteral(" ORDER BY ") + f[0].fieldName;
        captions = QStringLiteral("Title;") + m_form.caption + QStringLiteral("#Caption1;") + f[0].caption + QStringLiteral("#Caption2;")
            + f[1].caption + QStringLiteral("#Caption3;") + f[2].caption;
    }
    Q_EMIT PrintAutoClick(sql, m_form.masterReportNo, captions);
}

} // namespace qd8
