#include "documents/ListControl.h"

#include "database/DataObject.h"
#include "database/ListService.h"
#include "database/PermissionObject.h"
#include "database/QuickFormPick.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "documents/CaptionPlaceholders.h"
#include "foundation/CommaList.h"
#include "foundation/DbError.h"
#include "foundation/Services.h"
#include "widgets/DataView.h"
#include "widgets/FormCollection.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaObject>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace qd8 {

namespace {

// Seconds between automatic refreshes: AutoRefresh as a number of seconds; a small
// number (a switch such as "1") or a text means once a minute.
int refreshSeconds(const QString& autoRefresh)
{
    bool ok = false;
    const int seconds = autoRefresh.trimmed().toInt(&ok);
    if (ok && seconds >= 5)
        return seconds;
    return 60;
}

bool autoRefreshOn(const QString& autoRefresh)
{
    const QString value = autoRefresh.trimmed();
    return !value.isEmpty() && value != QLatin1String("0");
}

// Sets a late-bound property of a detail form; false when the form has no such member.
bool setMember(QObject* form, const char* name, const QString& value)
{
    if (form->metaObject()->indexOfProperty(name) < 0)
        return false;
    form->setProperty(name, value);
    return true;
}

bool callMember(QObject* form, const char* name)
{
    return QMetaObject::invokeMethod(form, name, Qt::DirectConnection);
}

} // namespace

ListControl::ListControl(const char* thai, const char* english, QWidget* parent)
    : HostedControl(parent)
    , m_name{thai, english}
{
    setAccessibleName(bilingual(thai, english));
    buildView();
}

ListControl::~ListControl() = default;

void ListControl::buildView()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    m_panelLayout = new QVBoxLayout;
    layout->addLayout(m_panelLayout);

    m_view = new DataView(this);
    layout->addWidget(m_view, 1);
    m_view->setRowColour([this](const DataRow& row) { return m_legend.colourOf(row); });
    connect(m_view, &DataView::addRequested, this, &ListControl::onAdd);
    connect(m_view, &DataView::editRequested, this, &ListControl::onEdit);
    connect(m_view, &DataView::viewRequested, this, &ListControl::onView);
    connect(m_view, &DataView::deleteRequested, this, &ListControl::onDelete);
    connect(m_view, &DataView::closeRequested, this, &ListControl::CloseAction);
    connect(m_view, &DataView::totalKnown, this, &ListControl::showTotal);
    connect(m_view, &DataView::fetchFailed, this, &ListControl::loadFailed);

    auto* bottom = new QHBoxLayout;
    m_legendLayout = new QHBoxLayout;
    bottom->addLayout(m_legendLayout);
    bottom->addStretch(1);
    m_count = new QLabel(this);
    m_count->setObjectName(QStringLiteral("lblTotal"));
    bottom->addWidget(m_count);
    m_autoButton = new QPushButton(QStringLiteral("Auto"), this);
    m_autoButton->setObjectName(QStringLiteral("Command1"));
    connect(m_autoButton, &QPushButton::clicked, this, &ListControl::toggleAutoRefresh);
    bottom->addWidget(m_autoButton);
    layout->addLayout(bottom);

    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &ListControl::runQuery);
    m_count->installEventFilter(this);
}

bool ListControl::loadDefinition(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
    std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
    const QString& iLCaption, const QString& iFCaption)
{
    SetFirst(iDataObj, iAppObj, iClientObj);
    if (!m_commandAlias.isEmpty() && m_commandAlias != iCommandAlias)
        m_prefixFromHost = false;  // another list: nothing of the old definition stays
    m_commandAlias = iCommandAlias;
    setCommandGroup(iCommandGroup);
    m_forms = iForms;
    m_lCaption = iLCaption;
    m_fCaption = iFCaption;
    m_filter1Read = false;
    m_permission.reset();
    m_placeholders.reset();  // options of this session, read again

    try {
        takeSessionFromDataObject();
    } catch (const DbError& e) {
        loadFailed(e.message());  // the list still loads, in the language it had
    }
    m_dateLook = DbSessionFunctions::userDateLook(UserID(), LanguageID(), DataConnectionString());
    m_view->setDateLook(m_dateLook);
    try {
        m_projectLevel = SessionServices::listService()
                             .LookupValue(0, QStringLiteral("TUsrID"), UserID(), QStringLiteral("TUsrProjectLevel"),
                                 QStringLiteral("QD8TUser"), DataConnectionString())
                             .toInt();
        const double menu = dataObject() ? dataObject()->effectiveNumber(iCommandAlias + QStringLiteral("Menu")) : 0;
        m_def = ListDefinition::load(ListDefinition::variantAlias(iCommandAlias, menu), AppConnectionString(), LanguageID());
        m_def.WidthList = ListDefinition::costWidths(m_def.WidthList, permission());
        if (!m_prefixFromHost)
            m_prefix = ListDefinition::prefixOfKey(m_def.PKey);
        // Captions may name the company's custom fields ({Custom1}, {MRPGROUPCAPTION} ...).
        for (QString* caption : {&m_def.NameList, &m_def.Filter2Caption, &m_def.Filter3Caption, &m_def.FilterEmpLabel,
                 &m_def.FilterDateCaption, &m_def.FilterArrearCaption, &m_def.FilterInvArrearCaption, &m_def.FilterStatusCaptions,
                 &m_def.FilterStatusCaptions2, &m_def.OrderList, &m_def.DeleteActionCaption})
            *caption = ReplaceCustomCaption(*caption);
        m_legend.load(m_def.LegendList, m_prefix);
        if (dataObject())
            m_legend.readOptions(*dataObject());
    } catch (const DbError& e) {
        m_def = ListDefinition{};
        loadFailed(e.message());
    }
    applyDefinitionToView();
    showLegend();
    return m_def.found;
}

void ListControl::applyDefinitionToView()
{
    m_view->clear();
    try {
        m_view->setColumns(m_def.ColumnList, m_def.NameList, m_def.WidthList, m_def.TypeList, m_def.rowHeight);
    } catch (const DbError& e) {
        m_def.found = false;
        loadFailed(e.message());
    }
    m_view->setKeyFields(splitList(m_def.PrimaryKeyList));
    const QString mode = m_def.buttonMode.trimmed().toUpper();
    const auto shown = [&mode](char letter) { return mode.isEmpty() || mode.contains(QLatin1Char(letter)); };
    m_view->setButtonVisible(DataView::Button::Add, shown('A'));
    m_view->setButtonVisible(DataView::Button::Edit, shown('E'));
    m_view->setButtonVisible(DataView::Button::View, shown('V'));
    m_view->setButtonVisible(DataView::Button::Delete, shown('D') && m_def.DeleteActionMode == 2);
    m_view->setButtonVisible(DataView::Button::Close, shown('C'));
    m_view->setButtonCaption(DataView::Button::Add, bilingual("เพิ่ม", "Add"));
    m_view->setButtonCaption(DataView::Button::Edit, bilingual("แก้ไข", "Edit"));
    m_view->setButtonCaption(DataView::Button::View, bilingual("ดู", "View"));
    m_view->setButtonCaption(DataView::Button::Delete,
        m_def.DeleteActionCaption.isEmpty() ? bilingual("ลบ", "Delete") : m_def.DeleteActionCaption);
    m_view->setButtonCaption(DataView::Button::Close, bilingual("ปิด", "Close"));

    m_timer->stop();
    if (autoRefreshOn(m_def.AutoRefresh))
        m_timer->start(refreshSeconds(m_def.AutoRefresh) * 1000);
    m_autoButton->setText(m_timer->isActive() ? QStringLiteral("Stop") : QStringLiteral("Auto"));
    setAccessibleName(m_lCaption.isEmpty() ? bilingual(m_name.thai, m_name.english) : m_lCaption);
    m_count->setAccessibleName(bilingual("จำนวนรายการ", "Total"));
    m_autoButton->setAccessibleName(bilingual("ปรับปรุงอัตโนมัติ", "Auto refresh"));
}

void ListControl::showLegend()
{
    while (QLayoutItem* item = m_legendLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const qd8::LegendList::Entry& entry : m_legend.entries()) {
        const QString text = entry.caption.isEmpty() ? entry.field + QLatin1Char(' ') + entry.keyword + QLatin1Char(' ') + entry.value
                                                     : entry.caption;
        auto* label = new QLabel(text, this);
        label->setAccessibleName(text);
        label->setAutoFillBackground(true);
        label->setMargin(2);
        QPalette palette = label->palette();
        palette.setColor(QPalette::Window, entry.colour);
        palette.setColor(QPalette::WindowText, Qt::black);
        label->setPalette(palette);
        m_legendLayout->addWidget(label);
    }
}

QString ListControl::source() const
{
    return m_customQuery.isEmpty() ? m_def.Query : m_customQuery;
}

QString ListControl::composeOrder() const
{
    return m_customOrder.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + m_customOrder;
}

void ListControl::runQuery()
{
    if (!m_def.found)
        return;
    const Sql where = composeWhere();
    m_select = Sql("SELECT ") + m_def.ColumnList + " FROM " + source() + " " + where + composeOrder();
    const Sql count = Sql("SELECT COUNT(*) FROM ") + source() + " " + where;
    m_count->setText(loadingCaption());
    const QString current = m_view->keyText();
    try {
        m_view->open(m_select, count, DataConnectionString());
    } catch (const DbError& e) {
        m_count->setText(QString());
        loadFailed(e.message());
        return;
    }
    if (!current.isEmpty()) {
        for (int row = 0; row < m_view->fetchedRows(); ++row) {
            m_view->setCurrentRow(row);
            if (m_view->keyText() == current)
                return;
        }
        m_view->setCurrentRow(0);
    }
}

void ListControl::showTotal(qint64 total)
{
    m_count->setText(total < 0 ? QString() : QStringLiteral("Total ") + QString::number(total) + QStringLiteral(" Records"));
}

QString ListControl::countText() const
{
    return m_count->text();
}

bool ListControl::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_count && event->type() == QEvent::MouseButtonDblClick)
        showSelect();
    return HostedControl::eventFilter(watched, event);
}

void ListControl::showSelect()
{
    Services::messages().information(m_lCaption, m_select.text());
}

void ListControl::Form_Activate()
{
    runQuery();
}

PermissionObject* ListControl::permission()
{
    if (!m_permission) {
        m_permission = SessionServices::newCommandPermission();
        m_permission->LoadCommandRights(UserID(), m_commandAlias,
            ConnectionString().isEmpty() ? DataConnectionString() : ConnectionString(), AppConnectionString());
    }
    return m_permission.get();
}

CaptionPlaceholders& ListControl::placeholders()
{
    if (!m_placeholders)
        m_placeholders = std::make_unique<CaptionPlaceholders>(dataObject(), DataConnectionString());
    return *m_placeholders;
}

QString ListControl::ReplaceCustomCaption(const QString& iText)
{
    return placeholders().ReplaceCustomCaption(iText);
}

QDate ListControl::ReplaceDateValue(const QString& iText)
{
    return placeholders().ReplaceDateValue(iText);
}

double ListControl::ReplaceValue(const QString& iText)
{
    return placeholders().ReplaceValue(iText);
}

QString ListControl::ReplaceTextValue(const QString& iText)
{
    return placeholders().ReplaceTextValue(iText);
}

QString ListControl::pickCode(const QString& title, const QString& keyField, const QString& nameField, const QString& source)
{
    try {
        return SessionServices::listService().PickFromList(title, keyField, keyField + QLatin1Char(',') + nameField,
            bilingual("รหัส,ชื่อ", "Code,Name"), QStringLiteral("1800,5000"), QStringLiteral("0,0"), source, DataConnectionString(),
            0, 0, 0, 0, 0, 0);
    } catch (const DbError& e) {
        loadFailed(e.message());
        return {};
    }
}

QString ListControl::pickFromQuickForm(const QString& alias)
{
    try {
        return QuickFormPick(alias, AppConnectionString(), DataConnectionString());
    } catch (const DbError& e) {
        loadFailed(e.message());
        return {};
    }
}

void ListControl::readFilter1()
{
    if (m_filter1Read)
        return;
    m_filter1Read = true;
    m_filter1Caption.clear();
    m_filter1Key.clear();
    if (m_def.Filter1.isEmpty())
        return;
    ListService& lookup = SessionServices::listService();
    try {
        m_filter1Caption = lookup.LookupValue(QString(), QStringLiteral("TQFmAlias"), m_def.Filter1,
                                     QStringLiteral("TQFmCaption") + nameSuffix(),
                                     QStringLiteral("QD8TQuickForm"), AppConnectionString())
                               .toString();
        m_filter1Key = lookup.LookupValue(QString(), QStringLiteral("TQFmAlias"), m_def.Filter1, QStringLiteral("TQFMPKList"),
                                 QStringLiteral("QD8TQuickForm"), AppConnectionString())
                           .toString();
    } catch (const DbError& e) {
        loadFailed(e.message());
    }
    if (m_filter1Caption.isEmpty())
        m_filter1Caption = m_def.Filter1;
}

QString ListControl::filter1Caption()
{
    readFilter1();
    return m_filter1Caption;
}

QString ListControl::filter1KeyField()
{
    readFilter1();
    return splitList(m_filter1Key).value(0).trimmed();
}

void ListControl::loadFailed(const QString& text)
{
    Q_EMIT statementFailed(text);
}

void ListControl::reportError(const QString& text)
{
    Services::messages().critical(m_lCaption.isEmpty() ? m_commandAlias : m_lCaption, text);
}

void ListControl::onAdd()
{
    openForm(QStringLiteral("ADD"), QString());
}

void ListControl::onEdit()
{
    const QString key = m_view->keyText();
    if (key.isEmpty())
        return;
    if (!mayEdit(key)) {
        Services::messages().information(m_lCaption,
            bilingual("เอกสาร %1 ยืนยัน อนุมัติ หรือยกเลิกแล้ว จึงแก้ไขไม่ได้ เปิดให้ดูอย่างเดียว",
                "Document %1 is confirmed, approved or cancelled and cannot be edited; it opens for viewing.")
                .arg(key));
        onView();
        return;
    }
    Q_EMIT ChangeCaption(m_lCaption, m_commandAlias);
    openForm(QStringLiteral("EDIT"), key);
}

void ListControl::onView()
{
    const QString key = m_view->keyText();
    if (key.isEmpty())
        return;
    Q_EMIT ChangeCaption(m_lCaption, m_commandAlias);
    openForm(QStringLiteral("VIEW"), key);
}

void ListControl::onDelete()
{
    if (m_def.DeleteActionMode != 2)
        return;
    const QString key = m_view->keyText();
    if (key.isEmpty())
        return;
    Q_EMIT ChangeCaption(m_lCaption, m_commandAlias);
    Q_EMIT DeleteAction(key);
}

void ListControl::openForm(const QString& mode, const QString& key)
{
    if (m_def.FormDetail.isEmpty()) {
        reportError(bilingual("รายการนี้ไม่มีฟอร์มเอกสาร", "This list has no detail form."));
        return;
    }
    QWidget* form = m_forms ? m_forms->add(m_def.FormDetail) : nullptr;
    if (!form) {
        reportError(bilingual("ไม่พบฟอร์ม %1", "Form %1 is not available.").arg(m_def.FormDetail));
        return;
    }
    QStringList missing;
    const auto set = [&](const char* name, const QString& value) {
        if (!setMember(form, name, value))
            missing << QString::fromLatin1(name);
    };
    const auto call = [&](const char* name) {
        if (!callMember(form, name))
            missing << QString::fromLatin1(name);
    };
    const bool adding = mode == QLatin1String("ADD");
    set("RUNMODE", mode);
    if (passesFormFunction())
        set("FormFunction", m_def.FormFunction);
    call("Setbuttons");
    for (const QString& member : keyMembers(adding))
        set(member.toLatin1().constData(), key);
    form->setWindowTitle(m_lCaption + QStringLiteral(" - ") + (adding ? bilingual("เพิ่ม", "New") : key));
    if (!adding)
        call("FillData");
    if (!missing.isEmpty())
        reportError(bilingual("ฟอร์ม %1 ไม่มี %2", "Form %1 lacks %2.").arg(m_def.FormDetail, missing.join(QStringLiteral(", "))));
    // A form that tells of its saves makes the list show them.
    const int saved = form->metaObject()->indexOfSignal("Saved(QString)");
    if (saved >= 0)
        QMetaObject::connect(form, saved, this, metaObject()->indexOfSlot("Refresh()"), Qt::UniqueConnection);
}

void ListControl::toggleAutoRefresh()
{
    if (m_timer->isActive()) {
        m_timer->stop();
        m_autoButton->setText(QStringLiteral("Auto"));
    } else {
        m_timer->start(refreshSeconds(m_def.AutoRefresh) * 1000);
        m_autoButton->setText(QStringLiteral("Stop"));
    }
}

bool ListControl::autoRefreshRunning() const
{
    return m_timer->isActive();
}

} // namespace qd8
