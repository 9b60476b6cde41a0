#pragma once

#include <QString>

namespace qd8 {

class PermissionObject;

// One row of the list definitions (QD8TFormDocList) as a document or master list reads it:
// every member is named after the property it fills. Missing columns read as "" (numbers
// as 0), so a list whose row is missing has no columns and runs no query.
struct ListDefinition {
    bool found = false;
    QString alias;  // the alias the row was read under (after the variant switch)

    QString codeAlias;
    QString TABLENAME;
    QString PKey;

    QString BACKDAYLIST;
    QString PrimaryKeyList;
    QString ColumnList;
    QString NameList;
    QString WidthList;
    int rowHeight = 0;
    QString TypeList;
    QString Query;
    QString OrderList;
    QString OrderQuery;
    QString FilterCustom;
    QString FilterCustom2;
    QString FilterCustomW;
    QString Filter1;
    QString Filter1W;
    QString FILTER2;
    QString Filter2Caption;
    QString FILTER3;
    QString Filter3Caption;
    QString FilterEmployee;
    QString FilterEmpLabel;
    QString FilterAR;
    int FilterARByEmp = 0;
    QString FilterAP;
    QString FilterDivision;
    QString FilterProject;
    QString FilterProduct;
    int FilterProductM = 0;
    QString FilterProductG;
    int FilterProductT = 0;
    bool filterBackDate = false;
    QString FilterDeliveryDate;
    QString FilterArrear;
    QString FilterArrearCaption;
    QString FilterInvArrear;
    QString FilterInvArrearCaption;
    QString FilterStatus;
    QString FilterStatusCaptions;
    QString FilterStatus2;
    QString FilterStatusCaptions2;
    QString FilterDate;
    QString FilterDateCaption;
    QString LegendList;
    QString FormDetail;
    QString FormFunction;
    int DefaultFilter = 0;
    int DefaultOrder = 0;
    QString SwitchOption;
    QString ExtraSearch;
    int DeleteActionMode = 0;
    QString DeleteActionCaption;
    QString AutoRefresh;
    QString buttonMode;

    // The definition of `alias` from the application database, each column through the
    // single-value lookup; Thai or English captions by `languageId`. DbError on a failing
    // lookup.
    static ListDefinition load(const QString& alias, const QString& appConnectionString, int languageId);

    // The variant a menu option selects: PURPR → PURPRMB, ICLOTIN → ICLOTINMB,
    // ICISSUEUSE → ICISSUEUSEMB when `menuOption` is not 0; any other alias stays.
    static QString variantAlias(const QString& alias, double menuOption);

    // Hides the cost columns of a user without the right "ICINVENTORYCOST": every width
    // holding "{COST}" becomes "0"; with the right the widths stand. The marker is removed
    // in both cases. The right is asked only when the list holds the marker.
    static QString costWidths(const QString& widthList, PermissionObject* permission);

    // The column prefix of the list's table: the key field without its trailing "No" or
    // "Code" (TPRDNo → TPRD, TARNCode → TARN).
    static QString prefixOfKey(const QString& keyField);
};

} // namespace qd8
