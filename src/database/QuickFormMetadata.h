#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace qd8 {

class Connection;

// What a quick-form column is, as read and as the editor keeps it. Flags left Null take
// the column's usual meaning (noted per member).
struct QuickFieldRules {
    QString fieldName;       // TQFFFieldName
    QString type;            // TQFFFieldType through normalTypeWord: "LABELLIST", "NUMBER"...
    bool primaryKey = false; // TQFFPrimaryKey = 1
    int decimals = 0;
    bool minCon = false;
    double minValue = 0;
    bool maxCon = false;
    double maxValue = 0;
    int maxLength = 0;
    bool canDuplicate = true;  // Null: may
    bool canBlank = false;     // only the text "1" allows a blank
    bool canEdit = true;       // Null: may
    QString canDeleteAlias;
    int titleAlign = -1;       // Null: -1, left to the type
    int rowAlign = -1;
    QString labelList;         // TQFFLabelList
    QString defaultValue;
    QString defaultText;
    QString runQuickForm;      // TQFFRunQuickForm: the F2 pick list

    bool isLabelList() const { return type == QLatin1String("LABELLIST"); }
};

// One row of QD8TQuickField as read: the column's rules, both captions and the width as
// stored.
struct QuickFieldMetadata : QuickFieldRules {
    QString caption;         // TQFFCaption (Thai)
    QString caption2;        // TQFFCaption2 (English)
    QVariant width;          // TQFFWidth as stored; what Null or a non-number means is the reader's
    bool active = true;      // TQFFFlag1 = 1

    // TQFFCaption or TQFFCaption2 by the session language.
    const QString& captionIn(int languageId) const;
};

// What a quick form is, as read and as the editor keeps it.
struct QuickFormRules {
    QString table;       // TQFmTable: written to (and listed by the pick routines)
    QString view;        // TQFmView: read from (and listed by SelectQuickForm)
    QString keyPrefix;   // TQFmKeyIDEN: the column prefix, "TDiv"
    QString where;       // TQFmWhere, "" for Null
    QString order;       // TQFmOrder, "" for Null
    int masterReportNo = 0;
    bool deleteAuto = false;
    QString deleteField;
    QString deleteTable;
    QString deleteMessage;
    QString runQuickForm;
    QString fieldFilter;
    QString fieldReturn;
    QString printCommand;  // TQFmPrintTCmdAlias
    bool canAdd = true;    // Null: may
    bool canDelete = true; // Null: may
    bool readOnly = false;
};

// A quick form's metadata, QD8TQuickForm and its QD8TQuickField rows, read once by one
// reader. The editor's definition (editors/QuickFormDefinition), the pick descriptions of
// the pick routines and of the editor's SelectQuickForm (database/QuickFormPick) and the
// print captions are all derived from it; nothing else reads these two tables.
struct QuickFormMetadata : QuickFormRules {
    // Which statements are sent; each use keeps its own exact texts.
    enum class Reading {
        // The pick routines: "SELECT * FROM QD8TQuickForm WHERE TQFmAlias='<a>'",
        // then "SELECT * FROM QD8TQuickField WHERE TQFFTQFmAlias='<a>' ORDER BY TQFFSort"
        // whether or not the form row was found; inactive fields included.
        Pick,
        // The editor's pick list (SelectQuickForm): the same two statements, the
        // fields only when the form row was found.
        PickQuery,
        // The editor's load (FillData): only an active form ("... AND
        // TQFMFlag1=1") and its active fields ("... AND TQFFFlag1=1 ORDER BY TQFFSort").
        Editor,
        // The form row alone, as the pick routines read it (another form's table and key
        // prefix).
        FormOnly,
    };

    QString alias;
    bool found = false;  // the form row was there
    QString caption;     // TQFmCaption (Thai)
    QString caption2;    // TQFmCaption2 (English)
    QString pkList;      // TQFmPKList as stored (a leading comma included)
    QList<QuickFieldMetadata> fields;  // in TQFFSort order, as the reading selects them

    // TQFmCaption or TQFmCaption2 by the session language.
    const QString& captionIn(int languageId) const;
    // TQFmPKList without its leading comma.
    QString keyList() const;

    // Reads the form `alias` and (but for FormOnly) its fields from the application
    // database. A missing form row gives found false; DbError on a failing statement.
    static QuickFormMetadata read(Connection& app, const QString& alias, Reading reading);
    // A custom code list (QD8TCustomData) as a form over the rows of QD8TCustom1 of type
    // `code` (its where and order added), its columns the QD8TQuickField rows of
    // TQFFTCusCode; TCusMaxLen bounds the code, TCusDeleteTable/Field name the in-use check.
    static QuickFormMetadata readCustomList(Connection& app, const QString& code);
};

} // namespace qd8
