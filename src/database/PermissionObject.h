#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

namespace qd8 {

// A user's rights on one command, loaded by LoadCommandRights: the two list rights ("Run",
// "Show": both 1 make a command listable) and the eight tool-bar rights ("Add", "Delete",
// "UnPass", "Copy", "Edit", "Check", "Pass", "Print": not 0 means allowed). The same
// object, handed to a control by SetPermission, also answers named rights
// ("ICINVENTORYCOST") and builds the employee-type condition of the user.
//
// A QObject, so that a host binding late hands it through the meta-object
// (Q_ARG(qd8::PermissionObject*, pm)) and a control that keeps it sees when the host
// destroys it. Subclasses need no Q_OBJECT of their own.
class PermissionObject : public QObject {
    Q_OBJECT

public:
    static const QStringList ToolBarKeys;  // in the order SetPermission reads them

    explicit PermissionObject(QObject* parent = nullptr)
        : QObject(parent)
    {
    }
    ~PermissionObject() override = default;
    virtual void LoadCommandRights(qint32 userId, const QString& alias, const QString& connectionString,
        const QString& appConnectionString) = 0;
    // 0 for a key the user has no right for (or that was never loaded).
    virtual int right(const QString& key) const = 0;
    // A right that is not a command's: true when the user's row for it allows running.
    virtual bool hasRight(const QString& rightAlias) = 0;
    // The condition limiting `field` to the employee types the user may see at `level`,
    // e.g. "TEmpTEmTCode IN ('01','02')"; "" when the user is not limited.
    virtual QString employeeScope(const QString& field, int level) = 0;
};

// Rights from QD8TUserRight and employee-type scopes from QD8TUserEmpType of the session
// database. A user without a row for a command has no right on it.
class DbPermissionObject : public PermissionObject {
public:
    explicit DbPermissionObject(const QString& connectionString = {}, qint32 userId = 0)
        : m_userId(userId), m_connectionString(connectionString) {}
    void LoadCommandRights(qint32 userId, const QString& alias, const QString& connectionString,
        const QString& appConnectionString) override;
    int right(const QString& key) const override;
    bool hasRight(const QString& rightAlias) override;
    QString employeeScope(const QString& field, int level) override;

    qint32 userId() const { return m_userId; }
    const QString& commandAlias() const { return m_alias; }

private:
    qint32 m_userId = 0;
    QString m_alias;
    QString m_connectionString;
    QHash<QString, int> m_rights;  // lower-cased keys
};

} // namespace qd8
