#pragma once

#include "documents/DocumentFilter.h"
#include "documents/ListControl.h"

#include <QHash>
#include <functional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLineEdit;

namespace qd8 {

class DateEdit;

// The list of a document module's documents (purchase requests, orders, invoices, stock
// issues ...), defined by the list-definition row of its command: which columns, which
// filters, which legend and which document form. The filter panel composes the WHERE
// text; the select button, Enter in a box and the auto-refresh timer read the rows again.
class DucumentList : public ListControl {
    Q_OBJECT
    Q_PROPERTY(QString OrderQuery READ OrderQuery WRITE setOrderQuery)
    Q_PROPERTY(QString OrderList READ OrderList WRITE setOrderList)
    Q_PROPERTY(int DefaultOrder READ DefaultOrder WRITE setDefaultOrder)
    Q_PROPERTY(QString BACKDAYLIST READ BACKDAYLIST WRITE setBACKDAYLIST)
    Q_PROPERTY(QString FILTER2 READ FILTER2 WRITE setFILTER2)
    Q_PROPERTY(QString FILTER3 READ FILTER3 WRITE setFILTER3)
    Q_PROPERTY(QString FilterEmployee READ FilterEmployee WRITE setFilterEmployee)
    Q_PROPERTY(QString FilterAR READ FilterAR WRITE setFilterAR)
    Q_PROPERTY(int FilterARByEmp READ FilterARByEmp WRITE setFilterARByEmp)
    Q_PROPERTY(QString FilterAP READ FilterAP WRITE setFilterAP)
    Q_PROPERTY(QString FilterDivision READ FilterDivision WRITE setFilterDivision)
    Q_PROPERTY(QString FilterProject READ FilterProject WRITE setFilterProject)
    Q_PROPERTY(QString FilterProduct READ FilterProduct WRITE setFilterProduct)
    Q_PROPERTY(int FilterProductM READ FilterProductM WRITE setFilterProductM)
    Q_PROPERTY(QString FilterProductG READ FilterProductG WRITE setFilterProductG)
    Q_PROPERTY(int FilterProductT READ FilterProductT WRITE setFilterProductT)
    Q_PROPERTY(QString FilterDeliveryDate READ FilterDeliveryDate WRITE setFilterDeliveryDate)
    Q_PROPERTY(QString FilterArrear READ FilterArrear WRITE setFilterArrear)
    Q_PROPERTY(QString FilterInvArrear READ FilterInvArrear WRITE setFilterInvArrear)
    Q_PROPERTY(QString FilterStatus READ FilterStatus WRITE setFilterStatus)
    Q_PROPERTY(QString FilterStatus2 READ FilterStatus2 WRITE setFilterStatus2)
    Q_PROPERTY(QString FilterDate READ FilterDate WRITE setFilterDate)

public:
    explicit DucumentList(QWidget* parent = nullptr);
    ~DucumentList() override;

    QString OrderQuery() const { return m_def.OrderQuery; }
    void setOrderQuery(const QString& value) { m_def.OrderQuery = value; }
    QString OrderList() const { return m_def.OrderList; }
    void setOrderList(const QString& value) { m_def.OrderList = value; }
    int DefaultOrder() const { return m_def.DefaultOrder; }
    void setDefaultOrder(int value) { m_def.DefaultOrder = value; }
    QString BACKDAYLIST() const { return m_def.BACKDAYLIST; }
    void setBACKDAYLIST(const QString& value) { m_def.BACKDAYLIST = value; }
    QString FILTER2() const { return m_def.FILTER2; }
    void setFILTER2(const QString& value) { m_def.FILTER2 = value; }
    QString FILTER3() const { return m_def.FILTER3; }
    void setFILTER3(const QString& value) { m_def.FILTER3 = value; }
    QString FilterEmployee() const { return m_def.FilterEmployee; }
    void setFilterEmployee(const QString& value) { m_def.FilterEmployee = value; }
    QString FilterAR() const { return m_def.FilterAR; }
    void setFilterAR(const QString& value) { m_def.FilterAR = value; }
    int FilterARByEmp() const { return m_def.FilterARByEmp; }
    void setFilterARByEmp(int value) { m_def.FilterARByEmp = value; }
    QString FilterAP() const { return m_def.FilterAP; }
    void setFilterAP(const QString& value) { m_def.FilterAP = value; }
    QString FilterDivision() const { return m_def.FilterDivision; }
    void setFilterDivision(const QString& value) { m_def.FilterDivision = value; }
    QString FilterProject() const { return m_def.FilterProject; }
    void setFilterProject(const QString& value) { m_def.FilterProject = value; }
    QString FilterProduct() const { return m_def.FilterProduct; }
    void setFilterProduct(const QString& value) { m_def.FilterProduct = value; }
    int FilterProductM() const { return m_def.FilterProductM; }
    void setFilterProductM(int value) { m_def.FilterProductM = value; }
    QString FilterProductG() const { return m_def.FilterProductG; }
    void setFilterProductG(const QString& value) { m_def.FilterProductG = value; }
    int FilterProductT() const { return m_def.FilterProductT; }
    void setFilterProductT(int value) { m_def.FilterProductT = value; }
    QString FilterDeliveryDate() const { return m_def.FilterDeliveryDate; }
    void setFilterDeliveryDate(const QString& value) { m_def.FilterDeliveryDate = value; }
    QString FilterArrear() const { return m_def.FilterArrear; }
    void setFilterArrear(const QString& value) { m_def.FilterArrear = value; }
    QString FilterInvArrear() const { return m_def.FilterInvArrear; }
    void setFilterInvArrear(const QString& value) { m_def.FilterInvArrear = value; }
    QString FilterStatus() const { return m_def.FilterStatus; }
    void setFilterStatus(const QString& value) { m_def.FilterStatus = value; }
    QString FilterStatus2() const { return m_def.FilterStatus2; }
    void setFilterStatus2(const QString& value) { m_def.FilterStatus2 = value; }
    QString FilterDate() const { return m_def.FilterDate; }
    void setFilterDate(const QString& value) { m_def.FilterDate = value; }

    // SetFilter2 with the employee-type restriction applied.
    void SetFilter(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
        std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
        const QString& iLCaption, const QString& iFCaption);
    // Loads the definition of the command, builds the filter panel and reads the rows.
    void SetFilter2(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
        std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
        const QString& iLCaption, const QString& iFCaption, bool iDoFilterEmployee);

    // The filter panel's choices as values.
    DocumentFilter currentFilter();

protected:
    Sql composeWhere() override;
    QString composeOrder() const override;
    QString loadingCaption() const override;
    bool mayEdit(const QString& key) override;
    QStringList keyMembers(bool adding) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Picker = std::function<void(QLineEdit*)>;

    void readSessionChoices();
    void buildPanel();
    void addStatusBoxes();
    void addDateBoxes();
    void addPartyBoxes();
    void addCheckBoxes();
    void addCodeBoxes();
    void addSortAndSelect();
    // F2 in a box: the pick list of `source` (the Filter1 quick form when it is ""); a pick
    // fills the box and moves on.
    Picker codePicker(const QString& title, const QString& keyField, const QString& nameField, const QString& source);
    QLineEdit* addBox(const char* name, const QString& caption, const QString& field, Picker pick = {});
    QCheckBox* addCheck(const char* name, const QString& caption);
    // A widget across one label/box pair of the panel.
    void addWide(QWidget* widget);
    DateEdit* addDateBox(const char* name, const QString& caption);
    // A box under its caption in the next place of the panel; Enter in it selects.
    void placeBox(const char* name, const QString& caption, QLineEdit* box);
    QComboBox* addCombo(const char* name, const QString& caption, const QStringList& captions, int current);
    void applyBackDays();
    void select();
    // What is wrong with the boxes (a bad date, a quote), naming the box; "" when nothing.
    QString badInput() const;

    bool m_doFilterEmployee = true;
    int m_hrFilter = 0;
    bool m_projectFilterOn = false;
    QString m_defaultProject;
    QString m_salesman;  // the user's employee code, for the customers of FilterARByEmp
    QStringList m_statusCodes;

    QWidget* m_panel = nullptr;
    QGridLayout* m_grid = nullptr;
    int m_cell = 0;
    int m_columns = 4;  // label/box pairs per row
    QComboBox* m_status = nullptr;
    QComboBox* m_status2 = nullptr;
    QComboBox* m_backDays = nullptr;
    QComboBox* m_sort = nullptr;
    DateEdit* m_dateFrom = nullptr;
    DateEdit* m_dateTo = nullptr;
    DateEdit* m_deliveryDate = nullptr;
    QLineEdit* m_customer = nullptr;
    QLineEdit* m_supplier = nullptr;
    QLineEdit* m_employee = nullptr;
    QCheckBox* m_arrearOnly = nullptr;
    QCheckBox* m_invArrearOnly = nullptr;
    DateEdit* m_date2From = nullptr;
    DateEdit* m_date2To = nullptr;
    QLineEdit* m_division = nullptr;
    QLineEdit* m_filter1 = nullptr;
    QLineEdit* m_project = nullptr;
    QLineEdit* m_product = nullptr;
    QLineEdit* m_productGroup = nullptr;
    QLineEdit* m_filter2 = nullptr;
    QLineEdit* m_filter3 = nullptr;
    QLineEdit* m_branch = nullptr;
    QHash<QObject*, Picker> m_pickers;
};

} // namespace qd8
