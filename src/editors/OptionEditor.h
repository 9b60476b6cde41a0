#pragma once

#include "database/DataObject.h"
#include "widgets/HostedControl.h"

#include <QList>
#include <QPair>
#include <memory>
#include <optional>

class QAction;

namespace qd8 {

class GridEditor;

// The editor of named settings ("options") of one scope: the company, a branch, a
// workstation or a user. The options of an option group are rows of the scope's definition
// table (application database, ConnectionString); the user edits their values in column E
// and "Update" stores every value in one transaction of the company data
// (DataConnectionString) under the scope's key. CustomOption, BranchOption, HostOption and
// UserOption are this editor with their scope; what differs between them is data.
//
// Grid columns: A alias, B description, C the option's default, D its type, E its value
// (F2 picks it), hidden Mode, Type, Decimal, Blank, Edit, Value (the number stored), and F,
// where the value comes from ("*" after it when the value is not the default).
class OptionEditor : public HostedControl {
    Q_OBJECT
    Q_CLASSINFO("ConnectionString", "application")
    Q_PROPERTY(QString RUNMODE READ RUNMODE WRITE setRUNMODE)
    Q_PROPERTY(QString SelectCaption READ SelectCaption WRITE setSelectCaption)
    Q_PROPERTY(QString DefaultFormAlias READ DefaultFormAlias WRITE setDefaultFormAlias)
    Q_PROPERTY(QString OptionGroup READ OptionGroup WRITE setOptionGroup)

public:
    enum Column { ColAlias = 1, ColDescription, ColSample, ColType, ColValue, ColMode, ColTypeWord, ColDecimal, ColBlank, ColEdit, ColNumber, ColFrom };
    // The tool-bar keys, in their order on the bar ("Default" puts the option's default back).
    static const QStringList ButtonKeys;

    ~OptionEditor() override;

    QString RUNMODE() const;
    void setRUNMODE(const QString& mode);
    QString SelectCaption() const;
    void setSelectCaption(const QString& caption);
    // The option group opened first by FillData.
    QString DefaultFormAlias() const;
    void setDefaultFormAlias(const QString& alias);
    // The command group (module) whose option groups are offered.
    QString OptionGroup() const;
    void setOptionGroup(const QString& group);

    OptionScope scope() const;
    // The key the values are stored under: "" for the company, the branch code, the
    // workstation's name or the user ID.
    QString scopeKey() const;
    GridEditor* grid() const;
    QAction* button(const QString& key) const;
    // The option groups Refresh listed: alias and name.
    const QList<QPair<QString, QString>>& groups() const;
    QString selectedGroup() const;
    // The statement listing the options of `group`, and the source of the group pick list.
    QString optionQuery(const QString& group) const;
    QString groupSource() const;
    // Column D of a type word: "ตัวอักษร" / "Text"...; an option with a pick form says F2.
    static QString typeCaption(const QString& typeWord, bool pickForm, int languageId);

public Q_SLOTS:
    // Lists the option groups offered (groups()).
    void Refresh() override;
    // Loads the chosen group (DefaultFormAlias, else the first one listed, when none is).
    void FillData();
    void setbuttons();
    void cmdWhereShow(const QString& KeyType);
    void cmdCancel_Click();
    // Lets the user pick an option group ("Select Group").
    void chooseGroup();
    void buttonClick(const QString& key);
    // "Update": confirms and stores every value in one transaction; true when saved.
    bool save(bool confirmed = false);
    // Puts the current option's default back; the save removes the value stored in this scope.
    void resetToDefault();

public:
    bool hasUnsavedChanges() const override;
    bool saveChanges() override { return save(true); }
    using HostedControl::SetPermission;
    // Remembers the buttons the rights refuse, so that no mode enables them again.
    void SetPermission(PermissionObject& PM) override;

Q_SIGNALS:
    void CloseButtonClick();
    void ChangeGroup();

protected:
    // What sets one scope apart.
    struct Scope {
        OptionScope scope;
        const char* table;          // "QD8TOption"
        const char* prefix;         // "TOpt"
        const char* flagCondition;  // after the group condition of the option query, blanks included
        const char* showColumn;     // the group flag offering a group to this scope; nullptr: every group
        bool withCenter;            // the CENTER groups are offered beside the module's
    };
    OptionEditor(const Scope& scope, QWidget* parent);

    QStringList propertyKeysRead() const override;
    GridEditor* hostedGrid() const override;
    void changeEvent(QEvent* event) override;
    // The branch or workstation the host named (SetLast3/SetLast4 of the scoped editors).
    void setActiveKey(const QString& key);
    QString activeKey() const;
    // Why the editor cannot load (the host editor without its workstation's file); "" when it can.
    virtual QString unusableReason() const { return {}; }
    // The group opened when none is chosen and no default is set, and where to keep the choice.
    virtual QString rememberedGroup() const { return {}; }
    virtual void rememberGroup(const QString&) {}

private:
    void retranslate();
    // F2 in column E: the option's quick form, label list, colour dialog or calendar.
    void pickValue();
    void enterMode(const QString& mode);
    // Column F: the scope a value comes from (nothing: the default), "*" when not the default.
    QString fromText(std::optional<OptionScope> from, bool differs) const;
    // The host's data object, else one of the editor's own over its session.
    DataObject& options();

    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
