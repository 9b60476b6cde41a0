#pragma once

#include "database/QuickFormMetadata.h"

#include <QList>
#include <QString>

namespace qd8 {

class Connection;

// One column of a quick form as the editor shows it: its rules, its caption in the session
// language (" (F2)" added when it has a pick form) and its width in twips.
struct QuickFieldDefinition : QuickFieldRules {
    QString caption;
    int width = 1440;
    bool written = true;  // false: a working column the save does not write (the code as read)
};

// A quick form as the editor loads it (QD8TQuickForm and its active fields), plus the
// "Show" column of the rows' active flag after the last field.
struct QuickFormDefinition : QuickFormRules {
    QString alias;
    QString caption;        // in the session language
    QString keyField;       // the last key field
    int keyColumn = 0;      // its grid column (1-based)
    QList<QuickFieldDefinition> fields;  // grid columns 1..n, the flag column last
    QList<int> keyOrder;    // the key columns in the order rows are found by; empty: grid order

    bool isLoaded() const { return !alias.isEmpty(); }
    // The last key column; an empty definition when the form has none.
    const QuickFieldDefinition& keyDefinition() const;
    // The key columns (grid numbers), in order.
    QList<int> keyColumns() const;

    // Reads an active form and its active fields from the application database
    // (QuickFormMetadata, Reading::Editor); an unknown or inactive alias gives a definition
    // that is not loaded. languageId picks the Thai or English captions.
    static QuickFormDefinition load(Connection& app, const QString& alias, int languageId);
    // The definition of metadata already read (the fields as the reading selected them).
    static QuickFormDefinition fromMetadata(const QuickFormMetadata& metadata, int languageId);
};

} // namespace qd8
