#include "LoginDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace qd8 {

LoginDialog::LoginDialog(WorkbenchSession& session, QWidget* parent)
    : QDialog(parent)
    , m_session(session)
    , m_users(new QComboBox(this))
    , m_password(new QLineEdit(this))
    , m_message(new QLabel(this))
{
    setWindowTitle(QStringLiteral("QD8 Workbench — เข้าสู่ระบบ / Log in"));
    for (const WorkbenchUser& user : session.users())
        m_users->addItem(QStringLiteral("%1 — %2").arg(user.loginName, user.name), user.loginName);
    m_password->setEchoMode(QLineEdit::Password);
    m_message->setStyleSheet(QStringLiteral("color: #b00020"));
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("ผู้ใช้ / User"), m_users);
    form->addRow(QStringLiteral("รหัสผ่าน / Password"), m_password);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &LoginDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LoginDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_message);
    layout->addWidget(buttons);
    m_password->setFocus();
}

void LoginDialog::accept()
{
    if (m_session.logIn(m_users->currentData().toString(), m_password->text())) {
        QDialog::accept();
        return;
    }
    m_message->setText(QStringLiteral("รหัสผ่านไม่ถูกต้อง / Wrong password"));
    m_password->selectAll();
    m_password->setFocus();
}

} // namespace qd8
