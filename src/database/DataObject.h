#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <optional>

namespace qd8 {

class Connection;

// Where an option value is kept: the company, a branch, a workstation or a user.
enum class OptionScope { Company, Branch, Host, User };

// The value of an option in force for one session, and where it comes from.
struct OptionValue {
    QString text;
    OptionScope scope = OptionScope::Company;  // the scope that holds it (when not a default)
    bool isDefault = true;                     // no scope holds a value: the option's default
    QString defaultText;                       // the option's default, for comparison
    bool differsFromDefault() const { return text != defaultText; }
};

// The company data database and the user working in it, as the host hands it to the
// controls: its options and its running numbers.
class DataObject {
public:
    virtual ~DataObject() = default;
    virtual QString connectionString() const = 0;
    virtual QString appConnectionString() const = 0;
    virtual qint32 userId() const = 0;
    virtual QString userLoginName() const = 0;

    // An option's value in a scope: the stored one, else the option's default.
    virtual QString optionText(const QString& alias, OptionScope scope = OptionScope::Company, const QString& scopeKey = {}) = 0;
    double optionNumber(const QString& alias, OptionScope scope = OptionScope::Company, const QString& scopeKey = {});
    // The value in force for this session: the user's own, else the workstation's, else the
    // branch's (the user's branch), else the company's, else the option's default. Every
    // control that obeys an option reads it here.
    virtual OptionValue effectiveOption(const QString& alias) = 0;
    QString effectiveText(const QString& alias) { return effectiveOption(alias).text; }
    double effectiveNumber(const QString& alias);
    // Every value stored in one scope under one key, by alias (the option editors' load).
    virtual QHash<QString, QString> storedOptions(OptionScope scope, const QString& scopeKey) = 0;
    // Stores an option value on an open connection (inside the caller's transaction).
    virtual void storeOption(Connection& connection, OptionScope scope, const QString& scopeKey, const QString& alias,
        const QString& text, double number) = 0;
    // Removes a stored value, so the scope takes the next one again (reset to default).
    virtual void removeOption(Connection& connection, OptionScope scope, const QString& scopeKey, const QString& alias) = 0;

    // A number that is never handed out twice, even to two connections asking at once.
    // Under "DAILYRECORDCALL" with a journal-book code and a voucher date it is the
    // voucher number: book code + yyMM of the date + a four-digit counter per book and
    // month ("JV26110001"). Runs in a transaction of its own unless `within` is given.
    virtual QString nextRunningNumber(const QString& key, const QString& subKey, const QDate& date, Connection* within = nullptr) = 0;
    // The counter behind it: the next integer under key and sub-key (1 for the first).
    virtual qint64 takeNumber(const QString& key, const QString& subKey, Connection* within = nullptr) = 0;
};

// Options in QD8TOptionValue (defaults from the option tables of the application
// database), running numbers in QD8TRunningNumber of the data database.
class DbDataObject : public DataObject {
public:
    DbDataObject(const QString& dataConnectionString, const QString& appConnectionString, qint32 userId,
        const QString& userLoginName = {});

    QString connectionString() const override { return m_connectionString; }
    QString appConnectionString() const override { return m_appConnectionString; }
    qint32 userId() const override { return m_userId; }
    QString userLoginName() const override { return m_userLoginName; }

    QString optionText(const QString& alias, OptionScope scope = OptionScope::Company, const QString& scopeKey = {}) override;
    OptionValue effectiveOption(const QString& alias) override;
    QHash<QString, QString> storedOptions(OptionScope scope, const QString& scopeKey) override;
    void storeOption(Connection& connection, OptionScope scope, const QString& scopeKey, const QString& alias,
        const QString& text, double number) override;
    void removeOption(Connection& connection, OptionScope scope, const QString& scopeKey, const QString& alias) override;
    // The workstation whose values apply; the machine's host name unless the host sets another.
    QString hostName() const { return m_hostName; }
    void setHostName(const QString& hostName) { m_hostName = hostName; }
    QString nextRunningNumber(const QString& key, const QString& subKey, const QDate& date, Connection* within = nullptr) override;
    qint64 takeNumber(const QString& key, const QString& subKey, Connection* within = nullptr) override;

    static QString scopeName(OptionScope scope);
    // The branch of a user: TEmpTBraCode of the employee the user is (TUsrTEmpCode); "" for none.
    static QString userBranch(Connection& data, qint32 userId);
    // The option's default from the definition of its scope, read on the application
    // database; nothing when that scope does not define the alias.
    static std::optional<QString> optionDefault(Connection& app, OptionScope scope, const QString& alias);

private:
    qint64 takeNumberOn(Connection& connection, const QString& key, const QString& subKey);

    QString m_connectionString;
    QString m_appConnectionString;
    qint32 m_userId;
    QString m_userLoginName;
    QString m_hostName;
};

} // namespace qd8
