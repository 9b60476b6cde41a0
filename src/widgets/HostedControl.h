#pragma once

#include "database/PermissionObject.h"
#include "foundation/PropertyBag.h"
#include "foundation/SessionContext.h"

#include <QHash>
#include <QPointer>
#include <QWidget>
#include <memory>

namespace qd8 {

class AppObject;
class ClientObject;
class DataObject;
class GridEditor;

// What the host hands a control for printing: the report set and who prints it.
struct PrintCommand {
    qint32 DTSID = 0;
    QString AppPath;
    QString UserName;
    QString UserPassword;
};

// The base of every control: the host contract implemented once. The host drives a
// control in this order: creation (design-time strings ""), readProperties, the session
// (properties, or SetFirst then SetLast/SetLast2), SetPermission/SetPrintCommand/
// SetParentForm, Refresh, use (the control raises its events), writeProperties (design
// time only), destruction (held objects released).
//
// The control keeps its own copy of the session; the setters store and never validate, so
// a wrong connection string shows only when the control opens a connection.
//
// Designer shows and a .ui form keeps the design-time strings (connection strings, folders,
// command group); the run-time session (user, password, application database) is not
// designable, and hWnd would give the control a native window inside Designer's form.
class HostedControl : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString ConnectionString READ ConnectionString WRITE setConnectionString)
    Q_PROPERTY(QString AppConnectionString READ AppConnectionString WRITE setAppConnectionString DESIGNABLE false)
    Q_PROPERTY(QString DataConnectionString READ DataConnectionString WRITE setDataConnectionString)
    Q_PROPERTY(qint32 UserID READ UserID WRITE setUserID DESIGNABLE false)
    Q_PROPERTY(QString UserLoginName READ UserLoginName WRITE setUserLoginName DESIGNABLE false)
    Q_PROPERTY(QString UserLoginPassword READ UserLoginPassword WRITE setUserLoginPassword DESIGNABLE false)
    Q_PROPERTY(QString AppPath READ AppPath WRITE setAppPath)
    Q_PROPERTY(QString SystemFolder READ SystemFolder WRITE setSystemFolder)
    Q_PROPERTY(QString SpecFolder READ SpecFolder WRITE setSpecFolder DESIGNABLE false)
    Q_PROPERTY(QString ImageFolder READ ImageFolder WRITE setImageFolder DESIGNABLE false)
    Q_PROPERTY(QString IconPath READ IconPath WRITE setIconPath)
    Q_PROPERTY(QString CommandGroup READ CommandGroup WRITE setCommandGroup)
    Q_PROPERTY(qlonglong hWnd READ hWnd DESIGNABLE false STORED false)

public:
    explicit HostedControl(QWidget* parent = nullptr);
    ~HostedControl() override;

    const SessionContext& session() const { return m_session; }
    QString ConnectionString() const { return m_session.ConnectionString; }
    void setConnectionString(const QString& value) { m_session.ConnectionString = value; }
    QString AppConnectionString() const { return m_session.AppConnectionString; }
    void setAppConnectionString(const QString& value) { m_session.AppConnectionString = value; }
    QString DataConnectionString() const { return m_session.DataConnectionString; }
    void setDataConnectionString(const QString& value) { m_session.DataConnectionString = value; }
    qint32 UserID() const { return m_session.UserID; }
    void setUserID(qint32 value) { m_session.UserID = value; }
    QString UserLoginName() const { return m_session.UserLoginName; }
    void setUserLoginName(const QString& value) { m_session.UserLoginName = value; }
    QString UserLoginPassword() const { return m_session.UserLoginPassword; }
    void setUserLoginPassword(const QString& value) { m_session.UserLoginPassword = value; }
    QString AppPath() const { return m_session.AppPath; }
    void setAppPath(const QString& value) { m_session.AppPath = value; }
    QString SystemFolder() const { return m_session.SystemFolder; }
    void setSystemFolder(const QString& value) { m_session.SystemFolder = value; }
    QString SpecFolder() const { return m_session.SpecFolder; }
    void setSpecFolder(const QString& value) { m_session.SpecFolder = value; }
    QString ImageFolder() const { return m_session.ImageFolder; }
    void setImageFolder(const QString& value) { m_session.ImageFolder = value; }
    QString IconPath() const { return m_session.IconPath; }
    void setIconPath(const QString& value) { m_session.IconPath = value; }
    QString CommandGroup() const { return m_session.CommandGroup; }
    void setCommandGroup(const QString& value) { m_session.CommandGroup = value; }
    qint16 LanguageID() const { return m_session.LanguageID; }
    QString nameSuffix() const { return m_session.nameSuffix(); }
    // A text in the session language: the Thai one or the English one.
    QString bilingual(const char* thai, const char* english) const { return inLanguage(LanguageID(), thai, english); }
    qlonglong hWnd() const;

    // The session objects of the data-access layer; held until the control is destroyed.
    void SetFirst(std::shared_ptr<DataObject> iDataObj, std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj);
    DataObject* dataObject() const { return m_dataObject.get(); }
    AppObject* appObject() const { return m_appObject.get(); }
    ClientObject* clientObject() const { return m_clientObject.get(); }
    // The same objects, shared: for handing on to a control the form embeds.
    std::shared_ptr<DataObject> sharedDataObject() const { return m_dataObject; }
    std::shared_ptr<AppObject> sharedAppObject() const { return m_appObject; }
    std::shared_ptr<ClientObject> sharedClientObject() const { return m_clientObject; }

    // SetLast2 with "" for both connection strings.
    Q_INVOKABLE void SetLast(const QString& FolderPathName, const QString& ControlName, const QString& UserID);
    // Stores the five values, converts UserID to a number (std::invalid_argument when it is
    // not one), reads the user's "LanguageID" setting from DataConnectionString (rounded;
    // a database failure reaches the caller as DbError), settles the name suffix and
    // makes FolderPathName end in "\".
    Q_INVOKABLE void SetLast2(const QString& FolderPathName, const QString& ControlName, const QString& UserID,
        const QString& DataConnectionString, const QString& AppConnectionString);
    // Disables the tool-bar button of every right that is 0, reading "Add", "Delete",
    // "UnPass", "Copy", "Edit", "Check", "Pass", "Print" in that order; never enables one.
    // The control keeps the object for its later questions (the quick form editor's
    // employee scope) while the object lives: permission() is this object until the host
    // destroys it or hands over another.
    virtual void SetPermission(PermissionObject& PM);
    // The same for a host that binds late, through the meta-object:
    //     QMetaObject::invokeMethod(control, "SetPermission", Q_ARG(qd8::PermissionObject*, pm));
    // nullptr forgets the object kept (the buttons stay as they are).
    Q_INVOKABLE void SetPermission(qd8::PermissionObject* PM);
    // The same, the control sharing the object's ownership: it lives at least as long as
    // the control keeps it (a host may hand over the object it made and let go of it).
    void SetPermission(std::shared_ptr<PermissionObject> PM);
    // The permission object the host handed over, while it lives; nullptr when there is
    // none (a control then makes a database-backed one where it needs one).
    PermissionObject* permission() const { return m_permission; }
    // Hands the host form to the control's editing grid (GridEditor::SetParentForm) and
    // returns the grid's answer unchanged; 0 for a control without a grid. Callable by name
    // through the meta-object.
    Q_INVOKABLE virtual int SetParentForm(QWidget* PassForm, bool ActionSingleControl = false);
    QWidget* parentForm() const { return m_parentForm; }
    Q_INVOKABLE void SetPrintCommand(qint32 DTSID, const QString& AppPath, const QString& UserName, const QString& UserPassword);
    const qd8::PrintCommand& printCommand() const { return m_printCommand; }

    // Whether the control holds changes the user has not saved. A host asks before it
    // closes the control, logs out or changes company.
    virtual bool hasUnsavedChanges() const { return false; }
    // Writes those changes as the control's own save does; true when nothing unsaved is left.
    virtual bool saveChanges() { return true; }
    // Before the control goes away: with unsaved changes asks Save / Discard / Cancel through
    // the message service (titled `title`, worded in the session language). True when the
    // control may go: nothing unsaved, saved, or discarded by the user.
    bool confirmClose(const QString& title);

    // Restores the design-time keys this control reads; each missing key reads as "".
    void readProperties(const PropertyBag& bag);
    // Saves the design-time keys this control writes.
    void writeProperties(PropertyBag& bag) const;

public Q_SLOTS:
    // Re-reads everything the control shows from the databases.
    virtual void Refresh() {}

protected:
    // The design-time keys: the ones read and the ones written may differ.
    virtual QStringList propertyKeysRead() const { return {}; }
    virtual QStringList propertyKeysWritten() const { return propertyKeysRead(); }
    // A design-time key's value; by default the property of that name.
    virtual QString designProperty(const QString& key) const;
    virtual void setDesignProperty(const QString& key, const QString& value);
    // The editing grid SetParentForm hands the form to; nullptr for a control without one.
    virtual GridEditor* hostedGrid() const { return nullptr; }
    // Tool-bar buttons (QAction or QWidget) under their right keys, for SetPermission.
    void registerToolButton(const QString& key, QObject* button);
    QObject* toolButton(const QString& key) const;
    SessionContext& mutableSession() { return m_session; }
    // For controls handed only the session objects: the databases and the user of the data
    // object, and the language of that user's "LanguageID" setting (DbError when it cannot
    // be read; everything but the language is taken by then).
    void takeSessionFromDataObject();

private:
    // Sends the control a QEvent::LanguageChange after the session language changed.
    void announceLanguage();

    SessionContext m_session;
    std::shared_ptr<DataObject> m_dataObject;
    std::shared_ptr<AppObject> m_appObject;
    std::shared_ptr<ClientObject> m_clientObject;
    QPointer<PermissionObject> m_permission;
    std::shared_ptr<PermissionObject> m_heldPermission;  // when the host shared its ownership
    QPointer<QWidget> m_parentForm;
    qd8::PrintCommand m_printCommand;
    QHash<QString, QPointer<QObject>> m_toolButtons;
};

} // namespace qd8
