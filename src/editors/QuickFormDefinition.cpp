#include "editors/QuickFormDefinition.h"

#include "database/QuickFormMetadata.h"
#include "foundation/Language.h"
#include "foundation/Values.h"

namespace qd8 {

QList<int> QuickFormDefinition::keyColumns() const
{
    QList<int> columns;
    for (int i = 0; i < fields.size(); ++i)
        if (fields[i].primaryKey)
            columns << i + 1;
    return columns;
}

const QuickFieldDefinition& QuickFormDefinition::keyDefinition() const
{
    static const QuickFieldDefinition none;
    return keyColumn >= 1 && keyColumn <= fields.size() ? fields[keyColumn - 1] : none;
}

QuickFormDefinition QuickFormDefinition::load(Connection& app, const QString& alias, int languageId)
{
    return fromMetadata(QuickFormMetadata::read(app, alias, QuickFormMetadata::Reading::Editor), languageId);
}

QuickFormDefinition QuickFormDefinition::fromMetadata(const QuickFormMetadata& metadata, int languageId)
{
    QuickFormDefinition form;
    if (!metadata.found)
        return form;
    form.alias = metadata.alias;
    form.caption = metadata.captionIn(languageId);
    form.where = metadata.where;
    form.order = metadata.order;
    form.masterReportNo = metadata.masterReportNo;
    form.keyPrefix = metadata.keyIden;
    form.deleteAuto = metadata.deleteAuto;
    form.deleteField = metadata.deleteField;
    form.deleteTable = metadata.deleteTable;
    form.deleteMessage = metadata.deleteMessage;
    form.runQuickForm = metadata.runQuickForm;
    form.fieldFilter = metadata.fieldFilter;
    form.fieldReturn = metadata.fieldReturn;
    form.printCommand = metadata.printCommand;
    form.canAdd = metadata.canAdd;
    form.canDelete = metadata.canDelete;
    form.readOnly = metadata.readOnly;
    form.view = metadata.view;
    form.table = metadata.table;

    QStringList keys;
    for (const QuickFieldMetadata& m : metadata.fields) {
        QuickFieldDefinition f;
        f.fieldName = m.fieldName;
        f.runQuickForm = m.runQuickForm;
        // A column with a pick form says so: F2 opens it.
        f.caption = m.captionIn(languageId) + (f.runQuickForm.isEmpty() ? QString() : QStringLiteral(" (F2)"));
        f.type = m.type;
        f.primaryKey = m.primaryKey;
        f.decimals = m.decimals;
        f.minCon = m.minCon;
        f.minValue = m.minValue;
        f.maxCon = m.maxCon;
        f.maxValue = m.maxValue;
        f.maxLength = m.maxLength;
        f.canDuplicate = m.canDuplicate;
        f.canBlank = m.canBlank;
        f.canEdit = m.canEdit;
        f.canDeleteAlias = m.canDeleteAlias;
        f.width = m.width.isNull() ? 1440 : int(toNumber(m.width));
        f.titleAlign = m.titleAlign;
        f.rowAlign = m.rowAlign;
        f.labelList = m.labelList;
        f.defaultValue = m.defaultValue;
        f.defaultText = m.defaultText;
        form.fields << f;
        if (f.primaryKey) {
            form.keyColumn = int(form.fields.size());
            form.keyField = f.fieldName;
            keys << f.fieldName;
        }
    }
    form.keyList = keys.join(QLatin1Char(','));
    // The rows' active flag, shown and edited as the last column.
    QuickFieldDefinition show;
    show.fieldName = form.keyPrefix + QStringLiteral("Flag1");
    show.caption = inLanguage(languageId, "แสดง", "Show");
    show.type = QStringLiteral("YESNO");
    show.width = 700;
    show.defaultValue = QStringLiteral("1");
    form.fields << show;
    return form;
}

} // namespace qd8
