#include "editors/CustomData.h"

#include "database/QuickFormMetadata.h"
#include "foundation/Recordset.h"

#include <QDateTime>
#include <QEvent>
#include <QLabel>

namespace qd8 {

CustomData::CustomData(QWidget* parent)
    : QuickGrid(parent)
{
    selectLabel()->setText(RemarkCaption());
}

QString CustomData::RemarkCaption() const
{
    return m_remarkCaption.isEmpty() ? bilingual("หมายเหตุ", "Remarks") : m_remarkCaption;
}

void CustomData::setRemarkCaption(const QString& caption)
{
    m_remarkCaption = caption;
    setSelectCaption(RemarkCaption());
}

void CustomData::changeEvent(QEvent* event)
{
    QuickGrid::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_remarkCaption.isEmpty())
        selectLabel()->setText(RemarkCaption());
}

QuickGrid::Catalogue CustomData::catalogue() const
{
    Catalogue c;
    const QString group = QuickGroup();
    // "SM" stands for every module here too.
    const bool every = group.isEmpty() || group == QLatin1String("SM");
    c.listing = every ? Sql("SELECT * FROM QD8VCustomData ORDER BY TCusName")
                      : Sql("SELECT * FROM QD8VCustomData WHERE TCmGAlias=") + quoted(group) + " ORDER BY TCusName";
    c.keyField = QStringLiteral("TCusCode");
    c.captionField = QStringLiteral("TCusName") + nameSuffix();
    const QString mode = QString::number(m_remarkMode);
    const QString source = every
        ? QStringLiteral("QD8VCustomData WHERE TCusFlag1=1 AND TCmGFlag1=1  AND TCusMode=") + mode + QStringLiteral(" ORDER BY TCusName")
        : QStringLiteral("QD8VCustomData WHERE TCusFlag1=1 AND TCmGFlag1=1 AND TCusMode=") + mode + QStringLiteral(" AND TCmGAlias='") + group
            + QStringLiteral("' ORDER BY TCusName");
    c.pick = {QStringLiteral("Select ") + RemarkCaption(), QStringLiteral("TCusCode"), QStringLiteral("TCusCode,TCusName") + nameSuffix(),
        QStringLiteral("ALIAS,") + RemarkCaption(), QStringLiteral("0,3800"), QStringLiteral("0,0"), source, ConnectionString()};
    return c;
}

QuickFormDefinition CustomData::readDefinition(Connection& app, const QString& code) const
{
    QuickFormDefinition list = QuickFormDefinition::fromMetadata(QuickFormMetadata::readCustomList(app, code), LanguageID());
    if (!list.isLoaded())
        return list;
    list.fields.removeLast();  // the quick forms' "แสดง" column; the lists have "Show" below
    int codeColumn = 0;
    for (int i = 0; i < list.fields.size(); ++i) {
        QuickFieldDefinition& f = list.fields[i];
        f.primaryKey = f.fieldName.compare(QLatin1String("TCS1Code"), Qt::CaseInsensitive) == 0;
        if (f.primaryKey)
            codeColumn = i + 1;
    }
    if (codeColumn == 0)
        return {};  // a list without its code column cannot find its rows
    // The code as read, beside the code: a changed code renames the row it was read from.
    QuickFieldDefinition old = list.fields[codeColumn - 1];
    old.caption = QStringLiteral("OLDCODE");
    old.width = 0;
    old.primaryKey = false;
    old.canEdit = false;
    old.canBlank = true;
    old.maxLength = 0;
    old.canDuplicate = true;
    old.written = false;
    list.fields.insert(codeColumn, old);
    QuickFieldDefinition show;
    show.fieldName = QStringLiteral("TCS1Flag1");
    show.caption = QStringLiteral("Show");
    show.type = QStringLiteral("LABELLIST");
    show.labelList = QStringLiteral("No,Yes");
    show.width = 700;
    show.defaultValue = QStringLiteral("1");
    show.canBlank = true;
    list.fields << show;
    // The list's code, hidden: new rows take it, and rows are found by list and code.
    QuickFieldDefinition type;
    type.fieldName = QStringLiteral("TCS1Type");
    type.caption = QStringLiteral("Type");
    type.type = QStringLiteral("TEXT");
    type.width = 0;
    type.canEdit = false;
    type.canBlank = true;
    type.primaryKey = true;
    type.defaultValue = code;
    list.fields << type;
    list.keyColumn = codeColumn;
    list.keyField = QStringLiteral("TCS1Code");
    list.keyOrder = {int(list.fields.size()), codeColumn};
    list.canAdd = list.canDelete = true;
    list.masterReportNo = 1;  // the automatic print of the code list
    return list;
}

void CustomData::completeRow(Recordset& rs)
{
    rs.setField(QStringLiteral("TCS1Flag3"), QDateTime::currentDateTime());
}

void CustomData::print()
{
    const QuickFormDefinition& list = form();
    const QuickFieldDefinition* code = nullptr;
    const QuickFieldDefinition* name = nullptr;
    const QuickFieldDefinition* english = nullptr;
    for (const QuickFieldDefinition& f : list.fields) {
        if (!f.written)
            continue;
        if (f.fieldName.compare(QLatin1String("TCS1Code"), Qt::CaseInsensitive) == 0)
            code = &f;
        else if (f.fieldName.compare(QLatin1String("TCS1Name"), Qt::CaseInsensitive) == 0)
            name = &f;
        else if (f.fieldName.compare(QLatin1String("TCS1Name2"), Qt::CaseInsensitive) == 0)
            english = &f;
    }
    if (!code || !name)
        return;
    QString captions = QStringLiteral("Title;") + list.caption + QStringLiteral("#Caption1;") + code->caption + QStringLiteral("#Caption2;");
    QString sql = QStringLiteral("SELECT ") + code->fieldName + QStringLiteral(" AS TDivCode, ");
    if (english) {
        sql += english->fieldName + QStringLiteral(" AS TDivName, ") + name->fieldName + QStringLiteral(" AS TDivName2 ,TCS1Flag1 AS TDivFlag1 FROM QD8TCustom1");
        captions += english->caption + QStringLiteral("#Caption3;") + name->caption;
    } else {
        sql += name->fieldName + QStringLiteral(" AS TDivName, TCS1Flag1 AS TDivFlag1 FROM QD8TCustom1");
        captions += name->caption;
    }
    sql += QStringLiteral(" ORDER BY ") + code->fieldName;
    Q_EMIT PrintAutoClick(sql, english ? 2 : 1, captions);
}

} // namespace qd8
