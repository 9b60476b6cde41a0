#pragma once

#include "WorkbenchSession.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

namespace qd8 {

// The workbench's log-in: the company's users in a list, a password, OK and Cancel.
// A wrong password keeps the dialog open and says so.
class LoginDialog : public QDialog {
    Q_OBJECT

public:
    LoginDialog(WorkbenchSession& session, QWidget* parent = nullptr);

    QComboBox* userBox() const { return m_users; }
    QLineEdit* passwordBox() const { return m_password; }

public Q_SLOTS:
    void accept() override;

private:
    WorkbenchSession& m_session;
    QComboBox* m_users = nullptr;
    QLineEdit* m_password = nullptr;
    QLabel* m_message = nullptr;
};

} // namespace qd8
