#pragma once

#include "editors/QuickFormDefinition.h"
#include "foundation/PickRequest.h"
#include "foundation/Sql.h"
#include "widgets/HostedControl.h"

#include <QVariantList>

class QAction;
class QLabel;
class QLineEdit;
class QToolBar;
class QToolButton;

namespace qd8 {

class Connection;
class GridEditor;
class ProgressScope;
class Recordset;

// Edits a simple master table of the company data (divisions, units, employee types...)
// described by a quick form: QD8TQuickForm/QD8TQuickField of the application database say
// which table, which columns, which keys and checks. The user picks a form of the group,
// the rows load into the grid, and "Update" writes every changed row in one transaction.
//
// ConnectionString names the application database (the metadata), DataConnectionString
// the company data.
class QuickGrid : public HostedControl {
    Q_OBJECT
    Q_CLASSINFO("ConnectionString", "application")
    Q_PROPERTY(QString RUNMODE READ RUNMODE WRITE setRUNMODE)
    Q_PROPERTY(QString SelectCaption READ SelectCaption WRITE setSelectCaption)
    Q_PROPERTY(QString QuickGroup READ QuickGroup WRITE setQuickGroup)
    Q_PROPERTY(QString DefaultFormAlias READ DefaultFormAlias WRITE setDefaultFormAlias)

public:
    // The tool-bar keys, in their order on the bar.
    static const QStringList ButtonKeys;

    explicit QuickGrid(QWidget* parent = nullptr);
    ~QuickGrid() override;

    QString RUNMODE() const { return m_runMode; }
    void setRUNMODE(const QString& mode) { m_runMode = mode; }
    QString SelectCaption() const;
    void setSelectCaption(const QString& caption);
    QString QuickGroup() const { return m_quickGroup; }
    void setQuickGroup(const QString& group) { m_quickGroup = group; }
    QString DefaultFormAlias() const { return m_defaultFormAlias; }
    void setDefaultFormAlias(const QString& alias) { m_defaultFormAlias = alias; }

    GridEditor* grid() const { return m_grid; }
    QAction* button(const QString& key) const;
    const QuickFormDefinition& form() const { return m_form; }
    // The forms Refresh listed: alias and title.
    const QList<QPair<QString, QString>>& groupForms() const { return m_groupForms; }
    // The alias in the selector and whether the user may change it.
    QString selectedAlias() const;
    bool selectorLocked() const { return m_locked; }
    // The statement the rows were read with.
    QString loadStatement() const;

public Q_SLOTS:
    // Lists the forms of QuickGroup (the selector's choices).
    void Refresh() override;
    // Loads the selected form (DefaultFormAlias when none is selected) into the grid; with
    // neither it opens nothing (no statement, no message) and stays "BLANK".
    void FillData();
    void setbuttons();
    void cmdWhereShow(const QString& KeyType);
    void cmdWhereShow2(const QString& KeyType, bool LockAfterShow);
    void cmdCancel_Click();
    QString SelectQuickForm(const QString& QuickFormAlias);
    QString SelectQuickForm2(const QString& QuickFormAlias, int HF);
    QString SelectQuickForm3(const QString& QuickFormAlias, int HF, const QString& CustomFilter);
    // Lets the user pick a form of the group (the selector's button).
    void chooseForm();
    // The tool-bar buttons.
    void buttonClick(const QString& key);
    // "Update": confirms, checks, writes every marked row in one transaction; true when saved.
    // `confirmed`: the user has just chosen to save (closing with unsaved changes), so the
    // confirmation is not asked a second time.
    bool save(bool confirmed = false);

public:
    // Rows added, changed or marked for deletion and not saved yet.
    bool hasUnsavedChanges() const override;
    bool saveChanges() override { return save(true); }
    using HostedControl::SetPermission;
    // Remembers the buttons the rights refuse, so that no mode enables them again.
    void SetPermission(PermissionObject& PM) override;

Q_SIGNALS:
    void CloseButtonClick();
    void PrintButtonClick(const QString& PrintCommandAlias);
    void PrintAutoClick(const QString& SQLStatement, int ReportMasterMode, const QString& CaptionList);
    void ChangeGroup();

protected:
    // What the editor lists and how the user picks one entry: the quick forms of a group,
    // or (the custom code editor) the code lists.
    struct Catalogue {
        Sql listing;           // Refresh
        QString keyField;      // an entry's key, in the listing and the pick list
        QString captionField;  // its title (language suffix included)
        PickRequest pick;      // the selector's pick list
    };
    virtual Catalogue catalogue() const;
    // The definition of entry `alias` as the editor loads it; not loaded when unknown.
    virtual QuickFormDefinition readDefinition(Connection& app, const QString& alias) const;
    // What a written row holds beyond its columns, set just before the row is written.
    virtual void completeRow(Recordset&) {}
    virtual void print();
    QLabel* selectLabel() const { return m_selectLabel; }
    bool event(QEvent* event) override;
    QStringList propertyKeysRead() const override;
    GridEditor* hostedGrid() const override { return m_grid; }
    void changeEvent(QEvent* event) override;

private:
    QString formTitle(Connection& data, const QString& alias) const;
    // The condition limiting an employee table's form to the user's employee types at
    // level HF - 1, asked of the host's permission object (a database-backed one when
    // the host handed none); "" when the form is not scoped.
    QString employeeScope(const QString& alias, int HF) const;
    void loadRows(Connection& data);
    void enterMode(const QString& mode);
    // The buttons a mode shows, as the form allows.
    QStringList buttonsShown(const QString& mode) const;
    // The key values of the current row, to find the same record after the rows are read again.
    QStringList currentKey() const;
    void selectKey(const QStringList& key);
    void applyFilter(const QString& text);
    void pickIntoCell();
    // Words the editor shows itself (selector, buttons, filter box) in the session language.
    void retranslate();
    void fillNewRow(int row);
    QString checkCell(int row, int col, const QVariant& value) const;
    // The first blank that may not be blank, as its message; "" when every row is ready.
    QString blankProblem() const;
    // The first key marked for deletion that is still in use, as its message.
    QString inUseProblem(Connection& data) const;
    // A form without a key column cannot find its rows again: its message when rows wait.
    QString keyProblem() const;
    // Writes the marked rows, stepping `progress` per row; false when the user cancelled.
    bool writeRows(Connection& data, ProgressScope& progress, int& saved, int& deleted);
    // "key=value" (quoted for a TEXT key, checked to be a number otherwise) for the row's
    // stored key, every key column of the form.
    Sql keyCondition(int row) const;
    QVariant keyValue(int row, int col) const;

    QString m_runMode = QStringLiteral("BLANK");
    QString m_quickGroup;
    QString m_defaultFormAlias;
    bool m_locked = false;
    bool m_filtered = false;
    QString m_selectCaption;  // the host's caption of the selector; "" for the editor's own
    QStringList m_refused;  // buttons the rights refuse
    QuickFormDefinition m_form;
    QList<QPair<QString, QString>> m_groupForms;
    QList<QVariantList> m_loaded;  // the values of the loaded rows, to see another user's change

    QLabel* m_selectLabel = nullptr;
    QLineEdit* m_selector = nullptr;
    QToolButton* m_selectButton = nullptr;
    QLabel* m_title = nullptr;
    QToolBar* m_toolBar = nullptr;
    QLineEdit* m_filter = nullptr;
    GridEditor* m_grid = nullptr;
};

} // namespace qd8
