#pragma once

#include "WorkbenchSession.h"

#include <QDialog>
#include <QList>

class QComboBox;
class QLabel;
class QLineEdit;

namespace qd8 {

// The workbench's log-in: the company (this one or another beside it), its users in a list,
// a password, OK and Cancel. A wrong password keeps the dialog open and says so; on OK the
// session is the chosen company with its user logged in.
class LoginDialog : public QDialog {
    Q_OBJECT

public:
    LoginDialog(WorkbenchSession& session, QWidget* parent = nullptr);

    QComboBox* companyBox() const { return m_companies; }
    QComboBox* userBox() const { return m_users; }
    QLineEdit* passwordBox() const { return m_password; }

public Q_SLOTS:
    void accept() override;

private:
    void fillUsers();

    WorkbenchSession& m_session;
    QList<WorkbenchSession> m_choices;
    QComboBox* m_companies = nullptr;
    QComboBox* m_users = nullptr;
    QLineEdit* m_password = nullptr;
    QLabel* m_message = nullptr;
};

} // namespace qd8
