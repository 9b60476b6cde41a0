#include "editors/QuickFormDefinition.h"

#include "database/QuickFormMetadata.h"
#include "foundation/Language.h"
#include "foundation/Values.h"

namespace qd8 {

QList<int> QuickFormDefinition::keyColumns() const
{
    if (!keyOrder.isEmpty())
        return keyOrder;
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
    static_cast<QuickFormRules&>(form) = metadata;
    form.alias = metadata.alias;
    form.caption = metadata.captionIn(languageId);

    for (const QuickFieldMetadata& m : metadata.fields) {
        QuickFieldDefinition f;
        static_cast<QuickFieldRules&>(f) = m;
        // A column with a pick form says so: F2 opens it.
        f.caption = m.captionIn(languageId) + (f.runQuickForm.isEmpty() ? QString() : QStringLiteral(" (F2)"));
        f.width = m.width.isNull() ? 1440 : int(toNumber(m.width));
        form.fields << f;
        if (f.primaryKey) {
            form.keyColumn = int(form.fields.size());
            form.keyField = f.fieldName;
        }
    }
    // The rows' active flag, shown and edited as the last column.
    QuickFieldDefinition show;
    show.fieldName = form.keyPrefix + QStringLiteral("Flag1");
    show.caption = inLanguage(languageId, "แสดง", "Show");
    show.type = QStringLiteral("YESNO");
    show.width = 700;
    show.defaultValue = QStringLiteral("1");
    show.canBlank = true;
    form.fields << show;
    return form;
}

} // namespace qd8
