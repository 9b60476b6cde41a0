#include "documents/DocumentDetails.h"

#include "database/DataObject.h"
#include "documents/DocumentHistory.h"
#include "foundation/Connection.h"
#include "foundation/DateText.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/Values.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qd8 {

namespace {

// A field the statement's table may lack (a history stem a table does without) reads "".
QString fieldText(const Recordset& rs, const QString& field)
{
    return rs.fieldIndex(field) < 0 ? QString() : rs.text(field);
}

} // namespace

// --- DocumentDetailView ------------------------------------------------------------------

DocumentDetailView::DocumentDetailView(const QStringList& columns, const char* thai, const char* english, QWidget* parent)
    : HostedControl(parent)
    , m_list(new QTreeWidget(this))
    , m_thaiName(thai)
    , m_englishName(english)
{
    nameList();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    m_list->setObjectName(QStringLiteral("List1"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels(columns);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->installEventFilter(this);
    connect(m_list, &QTreeWidget::itemClicked, this, [this] { Q_EMIT Click(); });
}

void DocumentDetailView::nameList()
{
    m_list->setAccessibleName(bilingual(m_thaiName, m_englishName));
}

void DocumentDetailView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        nameList();
    HostedControl::changeEvent(event);
}

DocumentDetailView::~DocumentDetailView()
{
    qDeleteAll(m_pending);
}

QStringList DocumentDetailView::rowTexts() const
{
    QStringList rows;
    const bool numbered = m_list->headerItem()->text(0) == QLatin1String("No");
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QStringList cells;
        for (int c = numbered ? 1 : 0; c < m_list->columnCount(); ++c)
            cells << m_list->topLevelItem(i)->text(c);
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

bool DocumentDetailView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        int shift = 0;
        if (key->modifiers() & Qt::ShiftModifier)
            shift |= 1;
        if (key->modifiers() & Qt::ControlModifier)
            shift |= 2;
        if (key->modifiers() & Qt::AltModifier)
            shift |= 4;
        Q_EMIT KeyDown(key->key(), shift);
    }
    return HostedControl::eventFilter(watched, event);
}

void DocumentDetailView::addRow(const QStringList& cells)
{
    m_pending << new QTreeWidgetItem(cells);
}

void DocumentDetailView::flush()
{
    m_list->addTopLevelItems(m_pending);
    m_pending.clear();
}

void DocumentDetailView::addDetail(const QString& caption, const QString& value)
{
    addRow({QString::number(m_list->topLevelItemCount() + m_pending.size() + 1), caption, value});
}

QString DocumentDetailView::optionText(const QString& alias, const QString& connectionString)
{
    DataObject* data = dataObject();
    if (!data) {
        if (!m_ownData || m_ownData->connectionString() != connectionString)
            m_ownData = std::make_shared<DbDataObject>(connectionString, AppConnectionString(), UserID());
        data = m_ownData.get();
    }
    try {
        return data->effectiveText(alias);
    } catch (const DbError&) {
        return {};  // an option that cannot be read shows no caption
    }
}

QString DocumentDetailView::dateValue(const Recordset& rs, const QString& field) const
{
    return dateText(rs.field(field).toDate(), DateLook::forLanguage(LanguageID()).era);
}

QString DocumentDetailView::quantities(const Recordset& rs, const QString& quantityStem, const QString& unitStem)
{
    QStringList parts;
    for (const char* suffix : {"", "2", "3"})
        parts << (rs.text(quantityStem + QLatin1String(suffix)) + QLatin1Char(' ') + rs.text(unitStem + QLatin1String(suffix))).trimmed();
    return parts.join(QStringLiteral(" / "));
}

QString DocumentDetailView::withCustoms(const Recordset& rs, const QString& name, const QString& customStem, int count,
    const QString& optionStem, const QString& connectionString)
{
    QStringList customs;
    for (int i = 1; i <= count; ++i) {
        const QString value = rs.text(customStem + QString::number(i));
        if (!value.isEmpty())
            customs << (optionText(optionStem + QString::number(i), connectionString) + QLatin1Char(' ') + value).trimmed();
    }
    return customs.isEmpty() ? name : name + QStringLiteral(" ( ") + customs.join(QStringLiteral(" / ")) + QStringLiteral(" ) ");
}

void DocumentDetailView::report(const DbError& error)
{
    const QString detail = error.detail(LanguageID());
    Services::messages().critical(bilingual("รายละเอียดเอกสาร", "Document details"),
        error.userText(LanguageID()) + (detail.isEmpty() ? QString() : QStringLiteral("\n\n") + detail));
}

// --- DocumentJob ---------------------------------------------------------------------------

DocumentJob::DocumentJob(QWidget* parent)
    : DocumentDetailView({QStringLiteral("No"), QStringLiteral("Detail"), QStringLiteral("Description")}, "รายละเอียดใบสั่งงาน", "Job details",
          parent)
{
}

void DocumentJob::ShowDocumentJOB(const QString& JobNo, qint32 JobLn, const QString& ConnectionString)
{
    const Batch batch(*this);
    try {
        showJob(JobNo, JobLn, ConnectionString);
    } catch (const DbError& error) {
        report(error);
    }
}

void DocumentJob::ShowDocumentJOB2(const QString& JobNo, qint32 JobLn, const QString& ProductionNo, qint32 ProductionLn,
    const QString& ConnectionString)
{
    const Batch batch(*this);
    try {
        showJob(JobNo, JobLn, ConnectionString);
        showProduction(ProductionNo, ProductionLn, ConnectionString);
    } catch (const DbError& error) {
        report(error);
    }
}

void DocumentJob::ShowDocumentJOB3(const QString& JobNo, qint32 JobLn, const QString& ProductionNo, qint32 ProductionLn,
    const QString& PRNo, qint32 PRLn, const QString& ConnectionString)
{
    const Batch batch(*this);
    try {
        showJob(JobNo, JobLn, ConnectionString);
        showProduction(ProductionNo, ProductionLn, ConnectionString);
        showRequest(PRNo, PRLn, ConnectionString);
    } catch (const DbError& error) {
        report(error);
    }
}

void DocumentJob::showJob(const QString& jobNo, qint32 jobLn, const QString& cs)
{
    Connection connection;
    connection.open(cs);
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8VJOB WHERE TJobNo=") + quoted(jobNo) + " AND TJbMLn=" + jobLn, connection);
    if (rs.eof())
        return;
    const QString customer = rs.text(QStringLiteral("TJobTARNCode")) + QStringLiteral(" - ") + rs.text(QStringLiteral("TJobCustomerName"));
    const QString product = rs.text(QStringLiteral("TJbMTPdtCode")) + QLatin1Char(' ')
        + withCustoms(rs, rs.text(QStringLiteral("TJbMProductName")), QStringLiteral("TJbMCustom"), 5, QStringLiteral("InventoryCustom"), cs);
    addDetail(QStringLiteral("โครงการ"), rs.text(QStringLiteral("TJobTPrjCode")));
    addDetail(QStringLiteral("ใบสั่งงาน"), rs.text(QStringLiteral("TJobNo")));
    addDetail(QStringLiteral("บัตรงาน"), rs.text(QStringLiteral("TJobCode")));
    addDetail(QStringLiteral("วันที่ใบสั่งงาน"), dateValue(rs, QStringLiteral("TJobDate")));
    addDetail(QStringLiteral("หมายเหตุ"), rs.text(QStringLiteral("TJobDescription")));
    addDetail(QStringLiteral("ลูกค้า"), customer);
    addDetail(QStringLiteral("ลำดับรายการที่"), rs.text(QStringLiteral("TJbMLn")));
    addDetail(QStringLiteral("สินค้า"), product);
    addDetail(QStringLiteral("จำนวนสั่งงาน"), quantities(rs, QStringLiteral("TJbMQuantity"), QStringLiteral("TJbMTUntCode")));
    addDetail(QStringLiteral("จำนวนค้างสั่งผลิต"), quantities(rs, QStringLiteral("TJbMTotalArrear"), QStringLiteral("TJbMTUntCode")));
    addDetail(QStringLiteral("จำนวนผลิตเสร็จ"), quantities(rs, QStringLiteral("TJbMFinishQT"), QStringLiteral("TJbMTUntCode")));
    addDetail(QStringLiteral("จำนวนค้างรับผลิต"), quantities(rs, QStringLiteral("TJbMUseOrder"), QStringLiteral("TJbMTUntCode")));
    addDetail(QStringLiteral("รายละเอียด"), rs.text(QStringLiteral("TJbMDescription")));

    // The sales order the job was made for, on the job line's own order line.
    const QString order = rs.text(QStringLiteral("TJobRefNo"));
    const QString orderLine = rs.text(QStringLiteral("TJbMTSOBLn"));
    rs.close();
    if (order.isEmpty())
        return;
    Sql so = Sql("SELECT * FROM QD8VSO WHERE TSODNo=") + quoted(order);
    if (!orderLine.isEmpty())
        so += Sql(" AND TSOBLn=") + number(orderLine);
    rs.open(so, connection);
    if (rs.eof())
        return;
    addDetail(QStringLiteral("ใบสั่งขาย"), rs.text(QStringLiteral("TSODNo")));
    addDetail(QStringLiteral("วันที่ใบสั่งขาย"), dateValue(rs, QStringLiteral("TSODDate")));
    addDetail(QStringLiteral("ชื่อผู้ติดต่อ"), rs.text(QStringLiteral("TSODContactName")));
    addDetail(QStringLiteral("เอกสารอ้างอิง"), rs.text(QStringLiteral("TSODRefNo")));
    addDetail(QStringLiteral("หมายเหตุ"), rs.text(QStringLiteral("TSODDescription")));
    addDetail(QStringLiteral("รหัสสินค้า"), rs.text(QStringLiteral("TSOBTPOSCode")));
    addDetail(QStringLiteral("ชื่อสินค้า"),
        withCustoms(rs, rs.text(QStringLiteral("TSOBPOSName")), QStringLiteral("TSOBCustom"), 3, QStringLiteral("InventoryCustom"), cs));
    addDetail(QStringLiteral("จำนวน"), quantities(rs, QStringLiteral("TSOBQuantity"), QStringLiteral("TSOBTUntCode")));
    addDetail(QStringLiteral("จำนวนค้างส่ง"), quantities(rs, QStringLiteral("TSOBTotalArrear"), QStringLiteral("TSOBTUntCode")));
    addDetail(QStringLiteral("รายละเอียด"), rs.text(QStringLiteral("TSOBDescription")));
}

void DocumentJob::showProduction(const QString& productionNo, qint32 productionLn, const QString& cs)
{
    Connection connection;
    connection.open(cs);
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8VJOBPRODUCTION WHERE TJPDNo=") + quoted(productionNo) + " AND TJPMLn=" + productionLn, connection);
    if (!rs.eof()) {
        addDetail(QStringLiteral("ใบสั่งผลิต"), rs.text(QStringLiteral("TJPDNo")));
        addDetail(QStringLiteral("วันที่ใบสั่งผลิต"), dateValue(rs, QStringLiteral("TJPDDate")));
        addDetail(QStringLiteral("หมายเหตุ"), rs.text(QStringLiteral("TJPDDescription")));
        addDetail(QStringLiteral("ลำดับรายการที่"), rs.text(QStringLiteral("TJPMLn")));
        addDetail(QStringLiteral("รหัสขั้นตอน"), rs.text(QStringLiteral("TJPMTSepCode")));
        addDetail(QStringLiteral("ชื่อขั้นตอน"), rs.text(QStringLiteral("TSepName")));
        addDetail(QStringLiteral("จำนวนสั่งผลิต"), quantities(rs, QStringLiteral("TJPMRequest"), QStringLiteral("VJPMTUntCode")));
        addDetail(QStringLiteral("จำนวนผลิตเสร็จ"), quantities(rs, QStringLiteral("TJPMFinishQT"), QStringLiteral("VJPMTUntCode")));
        addDetail(QStringLiteral("จำนวนค้างผลิต"), quantities(rs, QStringLiteral("TJPMArrear"), QStringLiteral("VJPMTUntCode")));
        addDetail(QStringLiteral("รายละเอียด"), rs.text(QStringLiteral("TJPMDescription")));
    }
    rs.close();
    rs.open(Sql("SELECT * FROM QD8TJobProdMat WHERE TMteTJPDNo=") + quoted(productionNo), connection);
    for (; !rs.eof(); rs.moveNext()) {
        addDetail(QStringLiteral("รหัสวัตถุดิบ"), rs.text(QStringLiteral("TMteProductCode")));
        addDetail(QStringLiteral("ชื่อวัตถุดิบ"), rs.text(QStringLiteral("TMteProductName")));
        addDetail(QStringLiteral("จำนวน"), quantities(rs, QStringLiteral("TMteQuantity"), QStringLiteral("TMteUntCode")));
    }
}

void DocumentJob::showRequest(const QString& prNo, qint32 prLn, const QString& cs)
{
    Connection connection;
    connection.open(cs);
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8VPR WHERE TPRDNo=") + quoted(prNo) + " AND TPRMLn=" + prLn, connection);
    if (rs.eof())
        return;
    addDetail(QStringLiteral("ใบขอซื้อ/ขอจ้าง"), rs.text(QStringLiteral("TPRDNo")));
    addDetail(QStringLiteral("วันที่ใบขอซื้อ/ขอจ้าง"), dateValue(rs, QStringLiteral("TPRDDate")));
    addDetail(QStringLiteral("หมายเหตุ"), rs.text(QStringLiteral("TPRDDescription")));
    addDetail(QStringLiteral("ลำดับรายการที่"), rs.text(QStringLiteral("TPRMLn")));
    addDetail(QStringLiteral("รหัสสินค้า"), rs.text(QStringLiteral("TPRMProductCode")));
    addDetail(QStringLiteral("ชื่อสินค้า"),
        withCustoms(rs, rs.text(QStringLiteral("TPRMProductName")), QStringLiteral("TPRMCustom"), 3, QStringLiteral("PurchaseCustom"), cs));
    addDetail(QStringLiteral("จำนวนขอ"), quantities(rs, QStringLiteral("TPRMQuantity"), QStringLiteral("TPRMTUntCode")));
    addDetail(QStringLiteral("รายละเอียด"), rs.text(QStringLiteral("TPRMDescription")));
}

// --- DocumentPR ----------------------------------------------------------------------------

DocumentPR::DocumentPR(QWidget* parent)
    : DocumentDetailView({QStringLiteral("No"), QStringLiteral("Detail"), QStringLiteral("Description")}, "รายละเอียดใบขอซื้อ",
          "Purchase request details", parent)
{
}

void DocumentPR::ShowDocumentPR(const QString& PRNo, qint32 PRLn, const QString& ConnectionString)
{
    const Batch batch(*this);
    try {
        Connection connection;
        connection.open(ConnectionString);
        Recordset rs;
        rs.open(Sql("SELECT * FROM QD8VPR WHERE TPRDNo=") + quoted(PRNo) + " AND TPRMLn=" + PRLn + " ORDER BY TPRMLn", connection);
        if (rs.eof())
            return;
        addDetail(QStringLiteral("โครงการ"), rs.text(QStringLiteral("TPRDTPrjCode")));
        addDetail(QStringLiteral("ใบขอซื้อ / ขอจ้าง"), rs.text(QStringLiteral("TPRDNo")));
        addDetail(QStringLiteral("บัตรงาน"), rs.text(QStringLiteral("TJobCode")));
        addDetail(QStringLiteral("วันที่ใบขอซื้อ / ขอจ้าง"), dateValue(rs, QStringLiteral("TPRDDate")));
        addDetail(QStringLiteral("หมายเหตุ"), rs.text(QStringLiteral("TPRDDescription")));
        addDetail(QStringLiteral("รหัสลูกค้า"), rs.text(QStringLiteral("TJobTARNCode")));
        addDetail(QStringLiteral("ชื่อลูกค้า"), rs.text(QStringLiteral("TJobCustomerName")));
        addDetail(QStringLiteral("ลำดับรายการที่"), rs.text(QStringLiteral("TPRMLn")));
        addDetail(QStringLiteral("รหัสสินค้า"), rs.text(QStringLiteral("TPRMProductCode")));
        addDetail(QStringLiteral("รหัสสินค้าผู้ขาย"), rs.text(QStringLiteral("TPRMFactoryCode")));
        addDetail(QStringLiteral("ชื่อสินค้า"), withCustoms(rs, rs.text(QStringLiteral("TPRMProductName")), QStringLiteral("TPRMCustom"), 3,
                                                   QStringLiteral("PurchaseCustom"), ConnectionString));
        addDetail(QStringLiteral("จำนวนขอ"), quantities(rs, QStringLiteral("TPRMQuantity"), QStringLiteral("TPRMTUntCode")));
        addDetail(QStringLiteral("จำนวนค้างรับ"), quantities(rs, QStringLiteral("TPRMTotalArrear"), QStringLiteral("TPRMTUntCode")));
        addDetail(QStringLiteral("รายละเอียด"), rs.text(QStringLiteral("TPRMDescription")));
    } catch (const DbError& error) {
        report(error);
    }
}

// --- DocumentStatus ------------------------------------------------------------------------

DocumentStatus::DocumentStatus(QWidget* parent)
    : DocumentDetailView({QStringLiteral("Action"), QStringLiteral("Date Time"), QStringLiteral("Action By"), QStringLiteral("Name"),
                             QStringLiteral("Remark")},
          "สถานะและประวัติเอกสาร", "Document status and history", parent)
{
}

void DocumentStatus::ShowDocumentStatus(int& DisplayMode, int& NotUseNow, QString& DocumentNo, QString& CancelNoAlias,
    QString& RecorderCode, QString& PrimaryKey, QString& FieldPrefix, QString& TABLENAME, QString& ConnectionString)
{
    ShowDocumentStatus2(DisplayMode, NotUseNow, DocumentNo, CancelNoAlias, RecorderCode, PrimaryKey, FieldPrefix, TABLENAME,
        ConnectionString);
}

void DocumentStatus::ShowDocumentStatus2(int& DisplayMode, int& NotUseNow, QString& DocumentNo, QString& CancelNoAlias,
    QString& RecorderCode, QString& PrimaryKey, QString& FieldPrefix, QString& TABLENAME, QString& ConnectionString,
    const QString& WHERE)
{
    Q_UNUSED(NotUseNow) Q_UNUSED(CancelNoAlias) Q_UNUSED(RecorderCode)
    const Batch batch(*this);
    const DateEra era = DateLook::forLanguage(LanguageID()).era;
    try {
        Connection connection;
        connection.open(ConnectionString);
        // Who a login name is: the user's name in the session language.
        QHash<QString, QString> names;
        auto nameOf = [&](const QString& login) {
            if (login.isEmpty())
                return QString();
            if (!names.contains(login)) {
                Recordset user;
                user.open(Sql("SELECT TUsrName, TUsrName2 FROM QD8TUser WHERE TUsrLoginName=") + quoted(login), connection);
                names.insert(login, user.eof() ? QString() : user.text(QStringLiteral("TUsrName") + qd8::nameSuffix(LanguageID())));
            }
            return names.value(login);
        };
        auto when = [&](const QVariant& value) {
            const QDateTime at = value.toDateTime();
            return at.time() == QTime(0, 0) ? dateText(at.date(), era) : dateTimeText(at, era);
        };

        Sql statement = Sql("SELECT * FROM ") + TABLENAME + " WHERE " + PrimaryKey + "=" + quoted(DocumentNo);
        if (!WHERE.isEmpty())
            statement += Sql(" AND ") + WHERE;
        m_statement = statement.text();
        Recordset rs;
        rs.open(statement, connection);
        if (!rs.eof()) {
            const QString p = FieldPrefix;
            auto field = [&](const char* stem) { return fieldText(rs, p + QLatin1String(stem)); };
            auto date = [&](const char* stem) {
                return rs.fieldIndex(p + QLatin1String(stem)) < 0 ? QString() : when(rs.field(p + QLatin1String(stem)));
            };
            auto add = [&](const QString& action, const char* dateStem, const char* byStem, const QString& remark) {
                const QString by = byStem ? field(byStem) : QString();
                addRow({action, dateStem ? date(dateStem) : QString(), by, nameOf(by), remark});
            };
            if (!field("CreateBy").isEmpty() || !field("CreateDate").isEmpty())
                add(QStringLiteral("Create"), "CreateDate", "CreateBy", {});
            if (!field("EditBy").isEmpty() || !field("EditDate").isEmpty())
                add((QStringLiteral("Edit ") + field("EditCode")).trimmed(), "EditDate", "EditBy", {});
            // Confirmed is 1; anything else is not checked yet.
            add(field("ConfirmStatus") == QLatin1String("1") ? QStringLiteral("Checked") : QStringLiteral("No Check"), "ConfirmDate",
                "ConfirmBy", {});
            // Approved is 1, rejected 2; 0 (or none) has no approval row yet.
            const QString approve = field("ApproveStatus");
            if (approve == QLatin1String("1") || approve == QLatin1String("2"))
                add(approve == QLatin1String("1") ? QStringLiteral("Approved") : QStringLiteral("Rejected"), "ApproveDate", "ApproveBy",
                    field("ApproveNote"));
            if (field("CancelStatus") == QLatin1String("1"))
                add(QStringLiteral("Cancel"), "CancelDate", "CancelBy", field("CancelNote"));
            if (!field("ReviseStatus").isEmpty() && field("ReviseStatus") != QLatin1String("0"))
                add(QStringLiteral("Revise"), nullptr, "ReviseBy", QStringLiteral("Revision ") + field("Revision"));
        }
        rs.close();
        if (DisplayMode == 1) {
            for (const HistoryEvent& e : DocumentHistory::read(ConnectionString, TABLENAME, DocumentNo))
                addRow({e.action, when(e.when), e.by, nameOf(e.by), e.remark.isEmpty() ? e.changes : e.remark});
        }
    } catch (const DbError& error) {
        report(error);
    }
}

} // namespace qd8
