#pragma once

#include <QList>
#include <QString>

namespace qd8 {

class Connection;
struct QuickFormMetadata;

// One column of a quick form (QD8TQuickField).
struct QuickFieldDefinition {
    QString fieldName;
    QString caption;        // in the session language, " (F2)" added when it has a pick form
    QString type;           // TEXT, NUMBER, LABELLIST, YESNO, AUTONUMBER
    bool primaryKey = false;
    int decimals = 0;
    bool minCon = false;
    double minValue = 0;
    bool maxCon = false;
    double maxValue = 0;
    int maxLength = 0;
    bool canDuplicate = true;
    bool canBlank = true;
    bool canEdit = true;
    QString canDeleteAlias;
    int width = 1440;
    int titleAlign = -1;
    int rowAlign = -1;
    QString labelList;
    QString defaultValue;
    QString defaultText;
    QString runQuickForm;
};

// A quick form as the editor loads it (QD8TQuickForm and its active fields), plus the
// "Show" column of the rows' active flag after the last field.
struct QuickFormDefinition {
    QString alias;
    QString caption;
    QString view;           // read from
    QString table;          // written to
    QString keyPrefix;      // TQFmKeyIDEN: "TDiv"
    QString keyList;        // every key field, comma-separated
    QString keyField;       // the last key field
    int keyColumn = 0;      // its grid column (1-based)
    QString where;
    QString order;
    int masterReportNo = 0;
    bool deleteAuto = false;
    QString deleteField;
    QString deleteTable;
    QString deleteMessage;
    QString runQuickForm;
    QString fieldFilter;
    QString fieldReturn;
    QString printCommand;
    bool canAdd = true;
    bool canDelete = true;
    bool readOnly = false;
    QList<QuickFieldDefinition> fields;  // grid columns 1..n, the flag column last

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
