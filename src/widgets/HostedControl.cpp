#include "widgets/HostedControl.h"

#include "database/AppObject.h"
#include "database/ClientObject.h"
#include "database/DataObject.h"
#include "database/PermissionObject.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/Services.h"
#include "widgets/GridEditor.h"

#include <QCoreApplication>
#include <QEvent>
#include <cmath>
#include <stdexcept>

namespace qd8 {

namespace {

// The suite's string-to-Long conversion: surrounding blanks ignored, decimals rounded to
// the nearest (ties to even), anything else an error.
qint32 toLong(const QString& text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || std::abs(value) > 2147483647.0)
        throw std::invalid_argument(QStringLiteral("UserID \"%1\" is not a number").arg(text).toStdString());
    return qint32(std::nearbyint(value));
}

// The user's "LanguageID" setting, rounded; DbError when it cannot be read.
qint16 userLanguage(qint32 userId, const QString& connectionString)
{
    const double language = SessionServices::sessionFunctions().GetUserSetting(userId, QStringLiteral("LanguageID"), connectionString);
    return qint16(std::nearbyint(language));
}

} // namespace

HostedControl::HostedControl(QWidget* parent)
    : QWidget(parent)
{
}

HostedControl::~HostedControl() = default;

qlonglong HostedControl::hWnd() const
{
    return qlonglong(const_cast<HostedControl*>(this)->winId());
}

void HostedControl::SetFirst(std::shared_ptr<DataObject> iDataObj, std::shared_ptr<AppObject> iAppObj,
    std::shared_ptr<ClientObject> iClientObj)
{
    m_dataObject = std::move(iDataObj);
    m_appObject = std::move(iAppObj);
    m_clientObject = std::move(iClientObj);
}

void HostedControl::takeSessionFromDataObject()
{
    if (!m_dataObject)
        return;
    m_session.DataConnectionString = m_dataObject->connectionString();
    m_session.AppConnectionString = m_dataObject->appConnectionString();
    m_session.UserID = m_dataObject->userId();
    m_session.UserLoginName = m_dataObject->userLoginName();
    const qint16 before = m_session.LanguageID;
    m_session.LanguageID = userLanguage(m_session.UserID, m_session.DataConnectionString);
    if (m_session.LanguageID != before)
        announceLanguage();
}

void HostedControl::SetLast(const QString& FolderPathName, const QString& ControlName, const QString& UserID)
{
    SetLast2(FolderPathName, ControlName, UserID, QString(), QString());
}

void HostedControl::SetLast2(const QString& FolderPathName, const QString& ControlName, const QString& UserID,
    const QString& DataConnectionString, const QString& AppConnectionString)
{
    m_session.FolderPathName = FolderPathName;
    m_session.ControlName = ControlName;
    m_session.DataConnectionString = DataConnectionString;
    m_session.AppConnectionString = AppConnectionString;
    m_session.UserID = toLong(UserID);
    const qint16 before = m_session.LanguageID;
    m_session.LanguageID = userLanguage(m_session.UserID, DataConnectionString);
    m_session.FolderPathName = withTrailingBackslash(FolderPathName);
    if (m_session.LanguageID != before)
        announceLanguage();
}

void HostedControl::announceLanguage()
{
    // Controls a form embeds (a voucher panel on an invoice) speak the form's language.
    for (HostedControl* inner : findChildren<HostedControl*>()) {
        if (inner->m_session.LanguageID == m_session.LanguageID)
            continue;
        inner->m_session.LanguageID = m_session.LanguageID;
        inner->announceLanguage();
    }
    // Qt's own signal for "reword yourself": a control rewords what it shows in changeEvent.
    QEvent changed(QEvent::LanguageChange);
    QCoreApplication::sendEvent(this, &changed);
}

void HostedControl::SetPermission(PermissionObject& PM)
{
    if (m_heldPermission.get() != &PM)
        m_heldPermission.reset();
    m_permission = &PM;
    for (const QString& key : PermissionObject::ToolBarKeys) {
        if (PM.right(key) != 0)
            continue;
        if (QObject* button = toolButton(key))
            button->setProperty("enabled", false);
    }
}

void HostedControl::SetPermission(PermissionObject* PM)
{
    if (PM) {
        SetPermission(*PM);
        return;
    }
    m_permission = nullptr;
    m_heldPermission.reset();
}

void HostedControl::SetPermission(std::shared_ptr<PermissionObject> PM)
{
    if (!PM) {
        SetPermission(static_cast<PermissionObject*>(nullptr));
        return;
    }
    m_heldPermission = PM;
    SetPermission(*PM);
}

int HostedControl::SetParentForm(QWidget* PassForm, bool ActionSingleControl)
{
    m_parentForm = PassForm;
    GridEditor* grid = hostedGrid();
    return grid ? grid->SetParentForm(PassForm, ActionSingleControl) : 0;
}

void HostedControl::SetPrintCommand(qint32 DTSID, const QString& AppPath, const QString& UserName, const QString& UserPassword)
{
    m_printCommand = {DTSID, AppPath, UserName, UserPassword};
}

void HostedControl::readProperties(const PropertyBag& bag)
{
    for (const QString& key : propertyKeysRead())
        setDesignProperty(key, bag.read(key));
}

void HostedControl::writeProperties(PropertyBag& bag) const
{
    for (const QString& key : propertyKeysWritten())
        bag.write(key, designProperty(key));
}

QString HostedControl::designProperty(const QString& key) const
{
    return property(key.toLatin1().constData()).toString();
}

void HostedControl::setDesignProperty(const QString& key, const QString& value)
{
    setProperty(key.toLatin1().constData(), value);
}

bool HostedControl::confirmClose(const QString& title)
{
    if (!hasUnsavedChanges())
        return true;
    switch (Services::messages().askToSave(title,
        bilingual("มีข้อมูลที่ยังไม่ได้บันทึก ต้องการบันทึกก่อนปิดหรือไม่", "There are changes that are not saved. Save them before closing?"))) {
    case MessageService::SaveAnswer::Save:
        return saveChanges();
    case MessageService::SaveAnswer::Discard:
        return true;
    case MessageService::SaveAnswer::Cancel:
        break;
    }
    return false;
}

void HostedControl::registerToolButton(const QString& key, QObject* button)
{
    m_toolButtons.insert(key, button);
}

QObject* HostedControl::toolButton(const QString& key) const
{
    return m_toolButtons.value(key);
}

} // namespace qd8
