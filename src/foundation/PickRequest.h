#pragma once

#include <QString>
#include <QStringList>

namespace qd8 {

// A pick list as every caller describes it: four positional comma lists (fields, captions,
// widths in twips with 0 hiding a column, type codes with "0" for text), the text that
// follows FROM (a table or view, optionally " WHERE ..." and " ORDER BY ..."), the
// database, the four options (0, 0, 0, 1 from every caller), the fifth option (0) and the
// dialog width in twips (0: the dialog sizes itself), and the label lists: positional too,
// the n-th entry the label list of the n-th field ("code;label,..." as the grid reads
// them, GridColumn::parseLabelList), "" for a column that shows what it stores. A label
// list holds commas itself, so the label lists are a list, not one comma list; fewer
// entries than fields (none at all, from the callers that show no labels) leave the rest
// showing their stored values.
struct PickRequest {
    QString title;
    QString keyField;
    QString fieldList;
    QString captionList;
    QString widthList;
    QString typeList;
    QString source;
    QString connectionString;
    int option1 = 0;
    int option2 = 0;
    int option3 = 0;
    int option4 = 1;
    int option5 = 0;
    int dialogWidth = 0;
    QStringList labelLists;

    bool operator==(const PickRequest&) const = default;
};

} // namespace qd8
