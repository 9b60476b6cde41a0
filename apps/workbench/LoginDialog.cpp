#include "LoginDialog.h"

#include "foundation/DbError.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>

namespace qd8 {

LoginDialog::LoginDialog(WorkbenchSession& session, QWidget* parent)
    : QDialog(parent)
    , m_session(session)
    , m_choices(session.companies())
    , m_companies(new QComboBox(this))
    , m_users(new QComboBox(this))
    , m_password(new QLineEdit(this))
    , m_message(new QLabel(this))
{
    setWindowTitle(QStringLiteral("QD8 Workbench — เข้าสู่ระบบ / Log in"));
    for (const WorkbenchSession& company : m_choices)
        m_companies->addItem(company.companyName());
    m_companies->setEnabled(m_choices.size() > 1);
    connect(m_companies, &QComboBox::currentIndexChanged, this, &LoginDialog::fillUsers);
    m_password->setEchoMode(QLineEdit::Password);
    m_message->setStyleSheet(QStringLiteral("color: #b00020"));
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("บริษัท / Company"), m_companies);
    form->addRow(QStringLiteral("ผู้ใช้ / User"), m_users);
    form->addRow(QStringLiteral("รหัสผ่าน / Password"), m_password);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &LoginDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LoginDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_message);
    layout->addWidget(buttons);
    fillUsers();
    m_password->setFocus();
}

void LoginDialog::fillUsers()
{
    m_users->clear();
    m_message->clear();
    const WorkbenchSession& company = m_choices.at(m_companies->currentIndex());
    try {
        for (const WorkbenchUser& user : company.users())
            m_users->addItem(QStringLiteral("%1 — %2").arg(user.loginName, user.name), user.loginName);
        // Who logged in last comes first again: changing company keeps the clerk.
        m_users->setCurrentIndex(std::max(0, m_users->findData(m_session.loginName)));
    } catch (const DbError& error) {
        // A company that cannot be read offers no user, and says why in both languages.
        m_message->setText(error.userText(0) + QStringLiteral("\n") + error.userText(1));
    }
}

void LoginDialog::accept()
{
    WorkbenchSession chosen = m_choices.at(m_companies->currentIndex());
    if (m_users->count() > 0 && chosen.logIn(m_users->currentData().toString(), m_password->text())) {
        m_session = chosen;
        QDialog::accept();
        return;
    }
    m_message->setText(QStringLiteral("รหัสผ่านไม่ถูกต้อง / Wrong password"));
    m_password->selectAll();
    m_password->setFocus();
}

} // namespace qd8
