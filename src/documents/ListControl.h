#pragma once

#include "documents/LegendList.h"
#include "documents/ListDefinition.h"
#include "foundation/Sql.h"
#include "widgets/HostedControl.h"

#include <QPointer>
#include <memory>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTimer;

namespace qd8 {

class CaptionPlaceholders;
class DataView;
class FormCollection;

// What a document list and a master list share: the list definition (QD8TFormDocList) and
// its properties, the data view with its legend colours, the count line, the detail form
// they open through the host's form collection, the auto-refresh timer and the three
// events. Each list composes its own WHERE text and builds its own filter panel.
#define QD8_LIST_TEXT(Name, member) \
    QString Name() const { return member; } \
    void set##Name(const QString& value) { member = value; }
#define QD8_LIST_NUMBER(Name, member) \
    int Name() const { return member; } \
    void set##Name(int value) { member = value; }

class ListControl : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString LCaption READ LCaption WRITE setLCaption)
    Q_PROPERTY(QString FCaption READ FCaption WRITE setFCaption)
    Q_PROPERTY(QString DocNo READ DocNo WRITE setDocNo)
    Q_PROPERTY(QString REPORTGROUP READ REPORTGROUP WRITE setREPORTGROUP)
    Q_PROPERTY(QString CommandAlias READ CommandAlias WRITE setCommandAlias)
    Q_PROPERTY(QString Prefix READ Prefix WRITE setPrefix)
    Q_PROPERTY(QString TABLENAME READ TABLENAME WRITE setTABLENAME)
    Q_PROPERTY(QString PKey READ PKey WRITE setPKey)
    Q_PROPERTY(QString PrimaryKeyList READ PrimaryKeyList WRITE setPrimaryKeyList)
    Q_PROPERTY(QString Query READ Query WRITE setQuery)
    Q_PROPERTY(QString CustomQuery READ CustomQuery WRITE setCustomQuery)
    Q_PROPERTY(QString CustomOrder READ CustomOrder WRITE setCustomOrder)
    Q_PROPERTY(QString ColumnList READ ColumnList WRITE setColumnList)
    Q_PROPERTY(QString NameList READ NameList WRITE setNameList)
    Q_PROPERTY(QString WidthList READ WidthList WRITE setWidthList)
    Q_PROPERTY(QString TypeList READ TypeList WRITE setTypeList)
    Q_PROPERTY(int DefaultFilter READ DefaultFilter WRITE setDefaultFilter)
    Q_PROPERTY(QString FilterCustom READ FilterCustom WRITE setFilterCustom)
    Q_PROPERTY(QString FilterCustom2 READ FilterCustom2 WRITE setFilterCustom2)
    Q_PROPERTY(QString FilterCustomW READ FilterCustomW WRITE setFilterCustomW)
    Q_PROPERTY(QString Filter1 READ Filter1 WRITE setFilter1)
    Q_PROPERTY(QString FormDetail READ FormDetail WRITE setFormDetail)
    Q_PROPERTY(QString FormFunction READ FormFunction WRITE setFormFunction)
    Q_PROPERTY(QString ExtraSearch READ ExtraSearch WRITE setExtraSearch)
    Q_PROPERTY(QString SwitchOption READ SwitchOption WRITE setSwitchOption)
    Q_PROPERTY(QString LegendList READ LegendList WRITE setLegendList)
    Q_PROPERTY(bool TestMode READ TestMode WRITE setTestMode)
    Q_PROPERTY(int DeleteActionMode READ DeleteActionMode WRITE setDeleteActionMode)
    Q_PROPERTY(QString DeleteActionCaption READ DeleteActionCaption WRITE setDeleteActionCaption)
    Q_PROPERTY(QString AutoRefresh READ AutoRefresh WRITE setAutoRefresh)

public:
    explicit ListControl(QWidget* parent = nullptr);
    ~ListControl() override;

    QD8_LIST_TEXT(LCaption, m_lCaption)
    QD8_LIST_TEXT(FCaption, m_fCaption)
    QD8_LIST_TEXT(DocNo, m_docNo)
    QD8_LIST_TEXT(REPORTGROUP, m_reportGroup)
    QD8_LIST_TEXT(CommandAlias, m_commandAlias)
    QD8_LIST_TEXT(Prefix, m_prefix)
    QD8_LIST_TEXT(TABLENAME, m_def.TABLENAME)
    QD8_LIST_TEXT(PKey, m_def.PKey)
    QD8_LIST_TEXT(PrimaryKeyList, m_def.PrimaryKeyList)
    QD8_LIST_TEXT(Query, m_def.Query)
    QD8_LIST_TEXT(CustomQuery, m_customQuery)
    QD8_LIST_TEXT(CustomOrder, m_customOrder)
    QD8_LIST_TEXT(ColumnList, m_def.ColumnList)
    QD8_LIST_TEXT(NameList, m_def.NameList)
    QD8_LIST_TEXT(WidthList, m_def.WidthList)
    QD8_LIST_TEXT(TypeList, m_def.TypeList)
    QD8_LIST_NUMBER(DefaultFilter, m_def.DefaultFilter)
    QD8_LIST_TEXT(FilterCustom, m_def.FilterCustom)
    QD8_LIST_TEXT(FilterCustom2, m_def.FilterCustom2)
    QD8_LIST_TEXT(FilterCustomW, m_def.FilterCustomW)
    QD8_LIST_TEXT(Filter1, m_def.Filter1)
    QD8_LIST_TEXT(FormDetail, m_def.FormDetail)
    QD8_LIST_TEXT(FormFunction, m_def.FormFunction)
    QD8_LIST_TEXT(ExtraSearch, m_def.ExtraSearch)
    QD8_LIST_TEXT(SwitchOption, m_def.SwitchOption)
    QD8_LIST_TEXT(LegendList, m_def.LegendList)
    bool TestMode() const { return m_testMode; }
    void setTestMode(bool value) { m_testMode = value; }
    QD8_LIST_NUMBER(DeleteActionMode, m_def.DeleteActionMode)
    QD8_LIST_TEXT(DeleteActionCaption, m_def.DeleteActionCaption)
    QD8_LIST_TEXT(AutoRefresh, m_def.AutoRefresh)

    const ListDefinition& definition() const { return m_def; }

    // The host activated its form: the list reads its rows again.
    Q_INVOKABLE void Form_Activate();

    QString ReplaceCustomCaption(const QString& iText);
    QDate ReplaceDateValue(const QString& iText);
    double ReplaceValue(const QString& iText);
    QString ReplaceTextValue(const QString& iText);

    // The SELECT of the rows shown, and its count.
    const Sql& selectText() const { return m_select; }
    DataView* dataView() const { return m_view; }
    // The count line: "Total <n> Records", or the loading caption until the count is known.
    QString countText() const;
    bool autoRefreshRunning() const;
    // Reads the rows again with the filters as they stand.
    void runQuery();

public Q_SLOTS:
    void Refresh() override { runQuery(); }

Q_SIGNALS:
    void CloseAction();
    void ChangeCaption(const QString& iCaption, const QString& iCommandAlias);
    void DeleteAction(const QString& SelectRowData);

protected:
    // Loads the definition of the command (the session objects, the variant switch, the
    // cost widths) and sets up the view; false when there is no definition row.
    bool loadDefinition(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
        std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
        const QString& iLCaption, const QString& iFCaption);

    // " WHERE ..." of the list, from the definition and the filter panel.
    virtual Sql composeWhere() = 0;
    // " ORDER BY ..." of the list, or "".
    virtual QString composeOrder() const;
    virtual QString loadingCaption() const = 0;
    // Edit: whether the row of `key` may be edited (documents test their statuses).
    virtual bool mayEdit(const QString& key) { Q_UNUSED(key); return true; }
    // The late-bound members that hand the key to the detail form, in order.
    virtual QStringList keyMembers(bool adding) const = 0;
    // Whether the detail form is handed the definition's FormFunction.
    virtual bool passesFormFunction() const { return false; }
    bool eventFilter(QObject* watched, QEvent* event) override;

    // Where the filter panel goes, above the data view.
    QBoxLayout* panelLayout() const { return m_panelLayout; }
    QString source() const;
    // The user's rights on the list's command, for the named rights ("ICINVENTORYCOST")
    // and the employee-type restriction; made by the session services, loaded once.
    PermissionObject* permission();
    // A pick list through the list service on the data database; "" when nothing was picked.
    QString pickCode(const QString& title, const QString& keyField, const QString& nameField, const QString& source);
    // The quick form's own pick list; "" when nothing was picked.
    QString pickFromQuickForm(const QString& alias);
    QString filter1Caption();
    QString filter1KeyField();
    void reportError(const QString& text);

    ListDefinition m_def;
    int m_projectLevel = 0;

private:
    void buildView();
    void applyDefinitionToView();
    void showLegend();
    // The placeholder expansion of the session, made when first asked for.
    CaptionPlaceholders& placeholders();
    void readFilter1();
    void openForm(const QString& mode, const QString& key);
    void onAdd();
    void onEdit();
    void onView();
    void onDelete();
    void toggleAutoRefresh();
    void showTotal(qint64 total);
    void showSelect();

    QString m_lCaption, m_fCaption, m_docNo, m_reportGroup, m_commandAlias, m_prefix;
    QString m_customQuery, m_customOrder;
    bool m_testMode = false;

    FormCollection* m_forms = nullptr;
    std::unique_ptr<PermissionObject> m_permission;
    std::unique_ptr<CaptionPlaceholders> m_placeholders;
    qd8::LegendList m_legend;
    Sql m_select;
    QString m_filter1Caption, m_filter1Key;
    bool m_filter1Read = false;

    QBoxLayout* m_panelLayout = nullptr;
    DataView* m_view = nullptr;
    QHBoxLayout* m_legendLayout = nullptr;
    QLabel* m_count = nullptr;
    QPushButton* m_autoButton = nullptr;
    QTimer* m_timer = nullptr;
};

} // namespace qd8
