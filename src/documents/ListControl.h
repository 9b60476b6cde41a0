#pragma once

#include "documents/LegendList.h"
#include "documents/ListDefinition.h"
#include "foundation/DateText.h"
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
    // `thai` / `english` name the list for screen readers until the host gives it a caption.
    ListControl(const char* thai, const char* english, QWidget* parent = nullptr);
    ~ListControl() override;

    QString LCaption() const { return m_lCaption; }
    void setLCaption(const QString& value) { m_lCaption = value; }
    QString FCaption() const { return m_fCaption; }
    void setFCaption(const QString& value) { m_fCaption = value; }
    QString DocNo() const { return m_docNo; }
    void setDocNo(const QString& value) { m_docNo = value; }
    QString REPORTGROUP() const { return m_reportGroup; }
    void setREPORTGROUP(const QString& value) { m_reportGroup = value; }
    QString CommandAlias() const { return m_commandAlias; }
    void setCommandAlias(const QString& value) { m_commandAlias = value; }
    QString Prefix() const { return m_prefix; }
    // A prefix the host sets stands until the list is given another definition.
    void setPrefix(const QString& value)
    {
        m_prefix = value;
        m_prefixFromHost = true;
    }
    QString TABLENAME() const { return m_def.TABLENAME; }
    void setTABLENAME(const QString& value) { m_def.TABLENAME = value; }
    QString PKey() const { return m_def.PKey; }
    void setPKey(const QString& value) { m_def.PKey = value; }
    QString PrimaryKeyList() const { return m_def.PrimaryKeyList; }
    void setPrimaryKeyList(const QString& value) { m_def.PrimaryKeyList = value; }
    QString Query() const { return m_def.Query; }
    void setQuery(const QString& value) { m_def.Query = value; }
    QString CustomQuery() const { return m_customQuery; }
    void setCustomQuery(const QString& value) { m_customQuery = value; }
    QString CustomOrder() const { return m_customOrder; }
    void setCustomOrder(const QString& value) { m_customOrder = value; }
    QString ColumnList() const { return m_def.ColumnList; }
    void setColumnList(const QString& value) { m_def.ColumnList = value; }
    QString NameList() const { return m_def.NameList; }
    void setNameList(const QString& value) { m_def.NameList = value; }
    QString WidthList() const { return m_def.WidthList; }
    void setWidthList(const QString& value) { m_def.WidthList = value; }
    QString TypeList() const { return m_def.TypeList; }
    void setTypeList(const QString& value) { m_def.TypeList = value; }
    int DefaultFilter() const { return m_def.DefaultFilter; }
    void setDefaultFilter(int value) { m_def.DefaultFilter = value; }
    QString FilterCustom() const { return m_def.FilterCustom; }
    void setFilterCustom(const QString& value) { m_def.FilterCustom = value; }
    QString FilterCustom2() const { return m_def.FilterCustom2; }
    void setFilterCustom2(const QString& value) { m_def.FilterCustom2 = value; }
    QString FilterCustomW() const { return m_def.FilterCustomW; }
    void setFilterCustomW(const QString& value) { m_def.FilterCustomW = value; }
    QString Filter1() const { return m_def.Filter1; }
    void setFilter1(const QString& value) { m_def.Filter1 = value; }
    QString FormDetail() const { return m_def.FormDetail; }
    void setFormDetail(const QString& value) { m_def.FormDetail = value; }
    QString FormFunction() const { return m_def.FormFunction; }
    void setFormFunction(const QString& value) { m_def.FormFunction = value; }
    QString ExtraSearch() const { return m_def.ExtraSearch; }
    void setExtraSearch(const QString& value) { m_def.ExtraSearch = value; }
    QString SwitchOption() const { return m_def.SwitchOption; }
    void setSwitchOption(const QString& value) { m_def.SwitchOption = value; }
    QString LegendList() const { return m_def.LegendList; }
    void setLegendList(const QString& value) { m_def.LegendList = value; }
    bool TestMode() const { return m_testMode; }
    void setTestMode(bool value) { m_testMode = value; }
    int DeleteActionMode() const { return m_def.DeleteActionMode; }
    void setDeleteActionMode(int value) { m_def.DeleteActionMode = value; }
    QString DeleteActionCaption() const { return m_def.DeleteActionCaption; }
    void setDeleteActionCaption(const QString& value) { m_def.DeleteActionCaption = value; }
    QString AutoRefresh() const { return m_def.AutoRefresh; }
    void setAutoRefresh(const QString& value) { m_def.AutoRefresh = value; }

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
    // A statement of the list's loading failed: the list stays empty or partial and shows
    // no message; hosts and tests hear of it here (and through SqlTrace).
    void statementFailed(const QString& message);

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
    // How the user sees dates: the era of his language or the one he chose.
    const DateLook& dateLook() const { return m_dateLook; }
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
    // A failed read while loading or filtering: no message box, only statementFailed.
    void loadFailed(const QString& text);
    // A message to the user about something he asked for (a form to open).
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

    struct {
        const char* thai;
        const char* english;
    } m_name;
    QString m_lCaption, m_fCaption, m_docNo, m_reportGroup, m_commandAlias, m_prefix;
    bool m_prefixFromHost = false;
    DateLook m_dateLook;
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
