#include "documents/JobSelector.h"

#include "database/DataObject.h"
#include "database/ListService.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/SqlDialect.h"
#include "widgets/ButtonWords_p.h"

#include <QDate>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <optional>

namespace qd8 {

namespace {

// One open job card (QD8TJob).
Sql cardSource()
{
    return Sql("QD8TJob WHERE TJobCloseStatus<>1 AND TJobCancelStatus<>1 AND TJobConfirmStatus=1 AND") + " TJobApproveStatus=1";
}

// Hands composed text on as a pick list's source: a broken one is refused here, as the
// data layer would refuse it.
QString sourceText(const Sql& sql)
{
    if (sql.isBroken())
        throw refusal(sql);
    return sql.text();
}

} // namespace

class JobSelector::Private {
public:
    explicit Private(JobSelector* q) : q(q) {}

    // Every option and setting the selector obeys, read together.
    void readOptions();
    DataObject* data();
    // The invoice close date from which an invoiced job is no longer offered.
    static QString cutOffDate() { return QDate::currentDate().toString(Qt::ISODate); }
    QString codeConnectionString() const;
    // The step's document code, section and location.
    void takeStep(const QString& code);
    void takeJobRow(const QStringList& values);
    std::optional<bool> chooseJobLine(const Sql& where);
    void changed();
    void showChoice();
    void relabel();
    void report(const DbError& error);
    QString runPick(const PickRequest& request);

    JobSelector* q;
    std::shared_ptr<DataObject> ownData;

    QString jobNo, jobCode, projectCode, mpsNo, productionNo, processCode, processBook, sectionCode, section, location,
        productCode, mode;
    int jobLn = 0, mpsLn = 0, productionLn = 0, stepLn = 0;
    int requireJob = 0, requireMds = 0, requirePd = 0;

    bool optionsRead = false;
    int filterMode = 0;
    int referenceMode = 0;
    QString jobCodeCaption;
    QString custom[3];

    QLabel* jobLabel = nullptr;
    QLabel* cardLabel = nullptr;
    QLabel* stepLabel = nullptr;
    QLabel* productionLabel = nullptr;
    QLabel* productionStepLabel = nullptr;
    QLabel* forProduction = nullptr;
    QLineEdit* jobBox = nullptr;
    QLineEdit* jobLineBox = nullptr;
    QLineEdit* cardBox = nullptr;
    QLineEdit* stepBox = nullptr;
    QLineEdit* sectionBox = nullptr;
    QLineEdit* productionBox = nullptr;
    QLineEdit* productionStepBox = nullptr;
    QToolButton* jobButton = nullptr;
    QToolButton* stepButton = nullptr;
    QToolButton* productionButton = nullptr;
    QList<QWidget*> jobWidgets, productionWidgets;
};

void JobSelector::Private::readOptions()
{
    optionsRead = true;
    filterMode = 0;
    referenceMode = 0;
    jobCodeCaption.clear();
    if (DataObject* options = data()) {
        try {
            filterMode = qRound(options->effectiveNumber(QStringLiteral("ICJOBFilterMode")));
            referenceMode = qRound(options->effectiveNumber(QStringLiteral("JobReferenceMode")));
            jobCodeCaption = options->effectiveText(QStringLiteral("JobCodeCaption")).trimmed();
        } catch (const DbError&) {
            // an option that cannot be read keeps its default
        }
    }
    for (int i = 0; i < 3; ++i) {
        try {
            custom[i] = DbSessionFunctions::userSettingText(q->UserID(), QStringLiteral("Custom%1").arg(i + 1), q->ConnectionString());
        } catch (const DbError&) {
            custom[i].clear();
        }
    }
    relabel();
}

DataObject* JobSelector::Private::data()
{
    if (DataObject* given = q->dataObject())
        return given;
    if (!ownData && !q->ConnectionString().isEmpty())
        ownData = std::make_shared<DbDataObject>(q->ConnectionString(), q->AppConnectionString(), q->UserID());
    return ownData.get();
}

QString JobSelector::Private::codeConnectionString() const
{
    return q->AppConnectionString().isEmpty() ? q->ConnectionString() : q->AppConnectionString();
}

void JobSelector::Private::takeStep(const QString& code)
{
    processCode = code;
    processBook.clear();
    section.clear();
    location.clear();
    if (!code.isEmpty()) {
        Connection connection;
        connection.open(q->ConnectionString());
        const Sql key = Sql(" FROM QD8TMRPStepName WHERE TSepCode=") + quoted(code);
        const QString fields[] = {QStringLiteral("TSepDocCode"), QStringLiteral("TSepTSecCode"), QStringLiteral("TSepTLctCode")};
        QString* targets[] = {&processBook, &section, &location};
        for (int i = 0; i < 3; ++i) {
            Recordset rs;
            rs.open(Sql("SELECT ") + fields[i] + key, connection);
            if (!rs.eof())
                *targets[i] = rs.text(fields[i]);
        }
    }
    sectionCode = section;
}

void JobSelector::Private::takeJobRow(const QStringList& values)
{
    // TJobTPrjCode;TJobNo;TJbMLn;TJobCode;TJobRefNo
    projectCode = values.value(0);
    jobNo = values.value(1);
    jobLn = values.value(2).toInt();
    jobCode = values.value(3);
    stepLn = 0;
    processCode.clear();
    processBook.clear();
    section.clear();
    location.clear();
    productCode.clear();
    productionNo.clear();
    productionLn = 0;
}

// Takes the one open job line the condition finds; several open the job list on their
// card. Nothing when no open line is found, else whether one was taken.
std::optional<bool> JobSelector::Private::chooseJobLine(const Sql& where)
{
    const PickRequest list = q->jobListRequest();
    const QString base = list.source.left(list.source.indexOf(QLatin1String(" ORDER BY")));
    Connection connection;
    connection.open(q->ConnectionString());
    Recordset rs;
    rs.open(Sql("SELECT TJobTPrjCode,TJobNo,TJbMLn,TJobCode,TJobRefNo FROM ") + base + where + " ORDER BY TJbMLn", connection);
    if (rs.eof())
        return std::nullopt;
    if (rs.recordCount() == 1) {
        takeJobRow({rs.text(QStringLiteral("TJobTPrjCode")), rs.text(QStringLiteral("TJobNo")), rs.text(QStringLiteral("TJbMLn")),
            rs.text(QStringLiteral("TJobCode")), rs.text(QStringLiteral("TJobRefNo"))});
        changed();
        return true;
    }
    jobCode = rs.text(QStringLiteral("TJobCode"));
    return q->pickJob();
}

void JobSelector::Private::changed()
{
    showChoice();
    Q_EMIT q->DataChange();
}

void JobSelector::Private::showChoice()
{
    jobBox->setText(jobNo);
    jobLineBox->setText(jobLn ? QString::number(jobLn) : QString());
    cardBox->setText(jobCode);
    stepBox->setText(processCode);
    sectionBox->setText(location.isEmpty() ? section : section + QStringLiteral(" / ") + location);
    productionBox->setText(productionLn ? productionNo + QStringLiteral(" / ") + QString::number(productionLn) : productionNo);
    productionStepBox->setText(productionNo.isEmpty() ? QString() : processCode);
    const bool jobShown = mode.compare(QLatin1String("PD"), Qt::CaseInsensitive) != 0;
    const bool productionShown = mode.compare(QLatin1String("JOB"), Qt::CaseInsensitive) != 0;
    for (QWidget* w : jobWidgets)
        w->setVisible(jobShown);
    for (QWidget* w : productionWidgets)
        w->setVisible(productionShown);
}

void JobSelector::Private::relabel()
{
    jobLabel->setText(q->bilingual("ใบสั่งงาน", "Job No"));
    cardLabel->setText(jobCodeCaption.isEmpty() ? q->bilingual("บัตรงาน", "Job Card") : jobCodeCaption);
    stepLabel->setText(q->bilingual("ขั้นตอน", "Process"));
    productionLabel->setText(q->bilingual("ใบสั่งผลิต", "PD. No"));
    productionStepLabel->setText(q->bilingual("ขั้นตอนผลิต", "PD. Process"));
    forProduction->setText(q->bilingual("สำหรับการผลิต", "For Production"));
    const std::pair<QLineEdit*, QString> named[] = {{jobBox, jobLabel->text()}, {jobLineBox, q->bilingual("บรรทัดของใบสั่งงาน", "Job line")},
        {cardBox, cardLabel->text()}, {stepBox, stepLabel->text()}, {sectionBox, q->bilingual("หน่วยงาน / ที่เก็บ", "Section / Location")},
        {productionBox, productionLabel->text()}, {productionStepBox, productionStepLabel->text()}};
    for (const auto& [box, name] : named)
        box->setAccessibleName(name);
    setButtonWords(jobButton, q->bilingual("เลือกใบสั่งงาน", "Pick a job"));
    setButtonWords(stepButton, q->bilingual("เลือกขั้นตอน (F2)", "Pick a process (F2)"));
    setButtonWords(productionButton, q->bilingual("เลือกใบสั่งผลิต", "Pick a production order"));
}

void JobSelector::Private::report(const DbError& error)
{
    const QString detail = error.detail(q->LanguageID());
    Services::messages().critical(q->bilingual("เลือกใบสั่งงาน", "Job selector"),
        error.userText(q->LanguageID()) + (detail.isEmpty() ? QString() : QStringLiteral("\n\n") + detail));
}

QString JobSelector::Private::runPick(const PickRequest& request)
{
    return SessionServices::listService().PickFromList(request);
}

// --- JobSelector ----------------------------------------------------------------------

JobSelector::JobSelector(QWidget* parent)
    : HostedControl(parent)
    , d(std::make_unique<Private>(this))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    auto box = [this](const char* name, bool editable) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QLatin1String(name));
        edit->setReadOnly(!editable);
        if (editable)
            edit->installEventFilter(this);
        else
            edit->setFocusPolicy(Qt::NoFocus);
        return edit;
    };
    auto button = [this](const char* name) {
        auto* b = new QToolButton(this);
        b->setObjectName(QLatin1String(name));
        b->setText(QStringLiteral("..."));
        b->setFocusPolicy(Qt::NoFocus);
        return b;
    };
    d->jobLabel = new QLabel(this);
    d->cardLabel = new QLabel(this);
    d->stepLabel = new QLabel(this);
    d->productionLabel = new QLabel(this);
    d->productionStepLabel = new QLabel(this);
    d->forProduction = new QLabel(this);
    d->jobBox = box("txtJobNo", true);
    d->jobLineBox = box("txtJobLn", false);
    d->jobLineBox->setMaximumWidth(50);
    d->cardBox = box("txtJobCode", true);
    d->stepBox = box("txtProcess", true);
    d->sectionBox = box("txtSection", false);
    d->productionBox = box("txtProductionNo", false);
    d->productionStepBox = box("txtProductionProcess", false);
    d->jobButton = button("cmdJob");
    d->stepButton = button("cmdProcess");
    d->productionButton = button("cmdProduction");

    const QList<QList<QWidget*>> rows = {{d->jobLabel, d->jobBox, d->jobButton, d->jobLineBox},
        {d->cardLabel, d->cardBox}, {d->stepLabel, d->stepBox, d->stepButton, d->sectionBox},
        {d->forProduction}, {d->productionLabel, d->productionBox, d->productionButton},
        {d->productionStepLabel, d->productionStepBox}};
    for (int r = 0; r < rows.size(); ++r)
        for (int c = 0; c < rows[r].size(); ++c) {
            (r < 3 ? d->jobWidgets : d->productionWidgets) << rows[r][c];
            grid->addWidget(rows[r][c], r, c);
        }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(int(rows.size()), 1);

    connect(d->jobButton, &QToolButton::clicked, this, [this] { pickJob(); });
    connect(d->stepButton, &QToolButton::clicked, this, [this] { pickStep(); });
    connect(d->productionButton, &QToolButton::clicked, this, [this] { pickProduction(); });
    d->relabel();
    d->showChoice();
}

JobSelector::~JobSelector() = default;

QString JobSelector::JobNo() const { return d->jobNo; }
void JobSelector::setJobNo(const QString& value) { d->jobNo = value; d->changed(); }
int JobSelector::JobLn() const { return d->jobLn; }
void JobSelector::setJobLn(int value) { d->jobLn = value; d->changed(); }
QString JobSelector::JobCode() const { return d->jobCode; }
void JobSelector::setJobCode(const QString& value) { d->jobCode = value; d->changed(); }
QString JobSelector::ProjectCode() const { return d->projectCode; }
void JobSelector::setProjectCode(const QString& value) { d->projectCode = value; d->changed(); }
QString JobSelector::MPSNo() const { return d->mpsNo; }
void JobSelector::setMPSNo(const QString& value) { d->mpsNo = value; d->changed(); }
int JobSelector::MPSLn() const { return d->mpsLn; }
void JobSelector::setMPSLn(int value) { d->mpsLn = value; d->changed(); }
QString JobSelector::ProductionNo() const { return d->productionNo; }
void JobSelector::setProductionNo(const QString& value) { d->productionNo = value; d->changed(); }
int JobSelector::ProductionLn() const { return d->productionLn; }
void JobSelector::setProductionLn(int value) { d->productionLn = value; d->changed(); }
int JobSelector::StepLn() const { return d->stepLn; }
void JobSelector::setStepLn(int value) { d->stepLn = value; d->changed(); }
QString JobSelector::ProcessCode() const { return d->processCode; }
void JobSelector::setProcessCode(const QString& value) { d->processCode = value; d->changed(); }
QString JobSelector::ProcessBook() const { return d->processBook; }
void JobSelector::setProcessBook(const QString& value) { d->processBook = value; d->changed(); }
QString JobSelector::SectionCode() const { return d->sectionCode; }
void JobSelector::setSectionCode(const QString& value) { d->sectionCode = value; d->changed(); }
QString JobSelector::Section() const { return d->section; }
QString JobSelector::Location() const { return d->location; }
QString JobSelector::ProductCode() const { return d->productCode; }
QString JobSelector::MODE() const { return d->mode; }
void JobSelector::setMODE(const QString& value) { d->mode = value; d->showChoice(); }
int JobSelector::RequireJOB() const { return d->requireJob; }
void JobSelector::setRequireJOB(int value) { d->requireJob = value; }
int JobSelector::RequireMDS() const { return d->requireMds; }
void JobSelector::setRequireMDS(int value) { d->requireMds = value; }
int JobSelector::RequirePD() const { return d->requirePd; }
void JobSelector::setRequirePD(int value) { d->requirePd = value; }

void JobSelector::SetFirst(const QString& iConnectionString)
{
    setConnectionString(iConnectionString);
    d->ownData.reset();
    d->readOptions();
}

void JobSelector::SetFirst2(const QString& iConnectionString, qint32 UserID)
{
    setUserID(UserID);
    SetFirst(iConnectionString);
}

void JobSelector::SetPermission(int iRequireJOB, int iRequireMDS, int iRequirePD)
{
    d->requireJob = iRequireJOB;
    d->requireMds = iRequireMDS;
    d->requirePd = iRequirePD;
}

void JobSelector::SetPermissionByDocCode(const QString& DOCCODE)
{
    Connection connection;
    connection.open(d->codeConnectionString());
    int levels[3] = {0, 0, 0};
    const char* columns[] = {"TCodJobMode", "TCodMDSMode", "TCodPDMode"};
    for (int i = 0; i < 3; ++i) {
        Recordset rs;
        rs.open(Sql("SELECT ") + columns[i] + " AS A FROM QD8TCode WHERE TCodAlias=" + quoted(DOCCODE), connection);
        if (!rs.eof())
            levels[i] = rs.field(QStringLiteral("A")).toInt();
    }
    SetPermission(levels[0], levels[1], levels[2]);
}

void JobSelector::FillData(const QString& InventDocNo)
{
    Connection connection;
    connection.open(ConnectionString());
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8TInventory WHERE TInvNo=") + quoted(InventDocNo), connection);
    Private& p = *d;
    p.jobNo = rs.eof() ? QString() : rs.text(QStringLiteral("TInvTJobNo"));
    p.jobLn = rs.eof() ? 0 : rs.field(QStringLiteral("TInvTJbMLn")).toInt();
    p.projectCode = rs.eof() ? QString() : rs.text(QStringLiteral("TInvTPrjCode"));
    p.productionLn = rs.eof() ? 0 : rs.field(QStringLiteral("TInvTJPMLn")).toInt();
    p.productionNo = rs.eof() ? QString() : rs.text(QStringLiteral("TInvTJPDNo"));
    p.stepLn = rs.eof() ? 0 : rs.field(QStringLiteral("TInvTJstLn")).toInt();
    p.mpsNo = rs.eof() ? QString() : rs.text(QStringLiteral("TInvTMPSNo"));
    rs.close();

    p.jobCode.clear();
    if (!p.jobNo.isEmpty()) {
        rs.open(Sql("SELECT TJobCode FROM QD8TJob WHERE TJobNo=") + quoted(p.jobNo), connection);
        if (!rs.eof())
            p.jobCode = rs.text(QStringLiteral("TJobCode"));
        rs.close();
    }
    QString step;
    p.productCode.clear();
    if (!p.productionNo.isEmpty()) {
        rs.open(Sql("SELECT * FROM QD8VJobProductionM WHERE TJPDNo=") + quoted(p.productionNo) + " AND TJPMLn=" + p.productionLn,
            connection);
        if (!rs.eof()) {
            step = rs.text(QStringLiteral("TJPMTSepCode"));
            p.productCode = rs.text(QStringLiteral("TJPMTPdtCode"));
        }
        rs.close();
    } else if (!p.jobNo.isEmpty() && p.stepLn > 0) {
        rs.open(Sql("SELECT TJStTSepCode, TJStTPdtCode FROM QD8TJobMethod WHERE TJstTJbMTJobNo=") + quoted(p.jobNo)
                + " AND TJstTJbMLn=" + p.jobLn + " AND TJStLn=" + p.stepLn,
            connection);
        if (!rs.eof()) {
            step = rs.text(QStringLiteral("TJStTSepCode"));
            p.productCode = rs.text(QStringLiteral("TJStTPdtCode"));
        }
        rs.close();
    }
    connection.close();
    p.takeStep(step);
    p.changed();
}

void JobSelector::Clear()
{
    Private& p = *d;
    p.jobNo.clear(), p.jobCode.clear(), p.projectCode.clear(), p.mpsNo.clear(), p.productionNo.clear();
    p.processCode.clear(), p.processBook.clear(), p.sectionCode.clear(), p.section.clear(), p.location.clear();
    p.productCode.clear();
    p.jobLn = p.mpsLn = p.productionLn = p.stepLn = 0;
    p.changed();
}

QString JobSelector::ValidData(int Index) const
{
    const Private& p = *d;
    const bool jobGroup = Index == 0 || Index == 1;
    const bool stepGroup = Index == 0 || Index == 2;
    const bool productionGroup = Index == 0 || Index == 3;
    const bool needJob = p.requireJob >= 1 || p.requireMds >= 1;
    const bool needJobLine = p.requireJob >= 2 || p.requireMds >= 1;
    if ((jobGroup || stepGroup) && needJob && p.jobNo.isEmpty())
        return QStringLiteral("กรุณาเลือก ใบสั่งงาน");
    if ((jobGroup || stepGroup) && needJobLine && p.jobLn <= 0)
        return QStringLiteral("กรุณาเลือก ลำดับที่ ในใบสั่งงาน");
    if (stepGroup && p.requireMds >= 1 && (p.stepLn <= 0 || p.processCode.isEmpty()))
        return QStringLiteral("กรุณาเลือก ขั้นตอน");
    if (productionGroup && p.requirePd >= 1 && p.productionNo.isEmpty())
        return QStringLiteral("กรุณาเลือก ใบสั่งผลิต");
    if (productionGroup && p.requirePd >= 2 && p.productionLn <= 0)
        return QStringLiteral("กรุณาเลือก ลำดับที่ ในใบสั่งผลิต");
    return {};
}

QString JobSelector::GetQCSet() const
{
    const Private& p = *d;
    Connection connection;
    connection.open(ConnectionString());
    Recordset rs;
    QString product = p.productCode;
    // The set of the row read; its product stands in for an unknown one.
    auto take = [&](const char* set, const char* productField) {
        QString found;
        if (!rs.eof()) {
            found = rs.text(QLatin1String(set));
            if (product.isEmpty() && productField)
                product = rs.text(QLatin1String(productField));
        }
        rs.close();
        return found;
    };
    if (!p.productionNo.isEmpty()) {
        rs.open(Sql("SELECT TJPMTQCSCode, TJPMTPdtCode FROM QD8VJobProduction WHERE TJPDNo=") + quoted(p.productionNo)
                + " AND TJPMLn=" + p.productionLn,
            connection);
        if (const QString set = take("TJPMTQCSCode", "TJPMTPdtCode"); !set.isEmpty())
            return set;
    }
    if (!p.jobNo.isEmpty() && p.stepLn > 0) {
        rs.open(Sql("SELECT TJStTQCSCode, TJStTPdtCode FROM QD8VJobMethod WHERE TJobNo=") + quoted(p.jobNo)
                + " AND TJbMLn=" + p.jobLn + " AND TJstLn=" + p.stepLn,
            connection);
        if (const QString set = take("TJStTQCSCode", "TJStTPdtCode"); !set.isEmpty())
            return set;
    }
    if (!product.isEmpty()) {
        rs.open(Sql("SELECT TSpdTQCSCode FROM QD8TProductMethod WHERE TSpdTPdtCode=") + quoted(product)
                + " AND TSpdTQCSCode IS NOT NULL AND TSpdTQCSCode<>'' ORDER BY TSpdStep",
            connection);
        return take("TSpdTQCSCode", nullptr);
    }
    return {};
}

QString JobSelector::jobTypeCondition(int mode)
{
    switch (mode) {
    case 1: return QStringLiteral(" AND TJobType in (0,3)");
    case 2: return QStringLiteral(" AND TJobType in (0,3,4)");
    // 7 and 8 lack their opening parenthesis: the database rejects them and the list
    // stays empty, as users of those modes know it.
    case 7: return QStringLiteral(" AND TJobType in 0,3,4,5)");
    case 8: return QStringLiteral(" AND TJobType in 0,3,4,5,6)");
    default: return QStringLiteral(" AND TJobType in (") + QString::number(mode) + QLatin1Char(')');
    }
}

PickRequest JobSelector::jobListRequest() const
{
    if (!d->optionsRead)
        d->readOptions();
    const Private& p = *d;
    Sql source = Sql("QD8VJob WHERE  (TJobInvoiceStatus=0 OR TJobInvoiceStatus is null OR TJobIVCloseDate>='") + p.cutOffDate()
        + "') AND TJbMProcessStatus<3 AND TJobCloseStatus<>1 AND TJobCancelStatus<>1 AND TJobConfirmStatus=1 AND TJobApproveStatus=1 "
        + jobTypeCondition(p.filterMode);
    if (!p.projectCode.isEmpty())
        source += Sql(" AND TJobTPRJCode=") + quoted(p.projectCode);
    if (!p.jobCode.isEmpty())
        source += Sql(" AND TJobCode=") + quoted(p.jobCode);
    source += Sql(" ORDER BY") + " TJobTPrjCode,TJobNo,TJbMLn";

    PickRequest r;
    r.title = QStringLiteral("เลือกรายละเอียดใบสั่งงาน");
    r.keyField = QStringLiteral("TJobTPrjCode;TJobNo;TJbMLn;TJobCode;TJobRefNo");
    r.fieldList = QStringLiteral("TJobTPrjCode,TPrjName,TJobNo,TJobCode,TJbMLn,TJobType,TJbMTPdtCode,")
        + QStringLiteral("TJbMProductName,TJbMCustom1,TJbMCustom2,TJbMCustom3,TJbMTotalArrear,TJbMTUntCode,TJbMTotalArrear2,"
                         "TJbMTUntCode2,TJbMTotalArrear3,TJbMTUntCode3,TjobTARNCode,")
        + QStringLiteral("TARNName,TJobRefNo");
    r.typeList = QStringLiteral("0,0,0,0,2,13,0,0,0,0,0,1,0,1,0,1,0,0,0,");
    r.widthList = QStringLiteral("1200,100,1400,1000,400,400,1600,2000,1000,1000,1000,1000,900,1000,900,1000,900,1000,3000,1400");
    r.captionList = QStringLiteral("รหัสโครงการ,ชื่อโครงการ,เลขที่ใบสั่งงาน,Job Card,JL,Type;MRP;;;SE;SO;RS;SP;,รหัสสินค้า,รายละเอียด,")
        + p.custom[0] + QLatin1Char(',') + p.custom[1] + QLatin1Char(',') + p.custom[2]
        + QStringLiteral(",ค้างผลิต,หน่วย,ค้างผลิต2,หน่วย2,ค้างผลิต3,หน่วย3,") + QStringLiteral("รหัสลูกค้า,ชื่อลูกค้า,ใบสั่งขาย");
    r.source = sourceText(source);
    r.connectionString = ConnectionString();
    return r;
}

PickRequest JobSelector::stepListRequest() const
{
    const Private& p = *d;
    const Sql source = Sql("QD8VJobMethod WHERE TJobNo=") + quoted(p.jobNo) + " AND TJbMLn=" + p.jobLn
        + " AND  TJobCloseStatus<>1 AND TJobCancelStatus<>1 AND" + " TJobApproveStatus=1 "
        + " ORDER BY TJobTPrjCode,TJobNo,TJbMLn,TJStLn";
    PickRequest r;
    r.title = QStringLiteral("เลือกขั้นตอน ในใบสั่งงาน");
    r.keyField = QStringLiteral("TJstLn;TJstTSpdStep;TJstLevel;TJStTSepCode;TSepTSecCode;TJStTPdtCode");
    r.fieldList = QStringLiteral("TJobTPrjCode,TJobNo,TJobCode,TJbMLn,TJStLevel,TJStTSpdStep,TJStLn,TJStTSepCode,TSepName,TSepTSecCode,"
                                 "TSecName,TJStTPdtCode");
    r.typeList = QStringLiteral("0,0,0,2,2,2,2,0,0,0,0,0");
    r.widthList = QStringLiteral("0,0,0,400,400,400,400,1000,6000,1000,1500,1200");
    r.captionList = QStringLiteral("รหัสโครงการ,เลขที่ใบสั่งงาน,บัตรงาน,JL,Lv,Pc,Ln,รหัส,ชื่อขั้นตอน,รหัสหน่วย,หน่วยงาน,Output");
    r.source = sourceText(source);
    r.connectionString = ConnectionString();
    return r;
}

PickRequest JobSelector::productionListRequest() const
{
    const Private& p = *d;
    Sql source = Sql("QD8VJobProductionM WHERE (TJobInvoiceStatus=0 OR TJobInvoiceStatus is null OR TJobIVCloseDate>='")
        + p.cutOffDate() + "') AND (TJPMProcessStatus=1) ";
    if (!p.jobNo.isEmpty())
        source += Sql(" AND TJobNo=") + quoted(p.jobNo);
    source += Sql(" AND  TJobCloseStatus<>1 AND") + " TJobCancelStatus<>1 AND TJobApproveStatus=1 "
        + " AND TJPDCancelStatus=0 AND TJPDConfirmStatus=1  " + " ORDER BY TJobTPrjCode,TJobNo,TJbMLn,TJpMTJPDNo,TJPMLn";
    PickRequest r;
    r.title = QStringLiteral("เลือกรายละเอียดใบสั่งผลิต");
    r.keyField = QStringLiteral("TJobTPrjCode;TJobNo;TJobCode;TJbMLn;TJpMTJPDNo;TJPMLn;TJPMTSepCode;TSepName");
    r.fieldList = QStringLiteral("TJobTPrjCode,TPrjName,TJobNo,")
        + QStringLiteral("TJobCode,TJbMLn,TJobType,TJpMTJPDNo,TJPDProductCode,TJPDProductName,TJPMLn,TJPMTSepCode,TSepName,"
                         "TJPMTPdtCode,TJPDQuantityNet,TJPdUnitCals,TJPDQuantityNet2,TJPdUnitCals2,")
        + QStringLiteral("TJPDQuantityNet3,TJPdUnitCals3");
    r.typeList = QStringLiteral("0,0,0,0,2,13,0,0,0,2,0,0,0,1,0,1,0,1,0");
    r.widthList = QStringLiteral("1000,200,1400,1000,400,400,1600,1400,200,400,1000,1000,1400,1000,900,1000,900,1000,900");
    r.captionList = QStringLiteral("รหัสโครงการ,ชื่อโครงการ,เลขที่ใบสั่งงาน,Job Card,JL,Type;MRP;;;SE;SO;RS;SP;,เลขที่ใบสั่งผลิต,"
                                   "รหัสสินค้า,รายละเอียด,No,รหัสขั้นตอน,ชื่อขั้นตอน,Output,ค้างผลิต,")
        + QStringLiteral("หน่วย,ค้างผลิต2,หน่วย2,ค้างผลิต3,หน่วย3");
    r.source = sourceText(source);
    r.connectionString = ConnectionString();
    return r;
}

bool JobSelector::pickJob()
{
    try {
        const QString picked = d->runPick(jobListRequest());
        if (picked.isEmpty())
            return false;
        d->takeJobRow(picked.split(QLatin1Char(';')));
        // A job line with a single step takes it at once.
        Connection connection;
        connection.open(ConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT * FROM (SELECT TJstLn,TJstTSpdStep,TJstLevel,TJStTSepCode,TSepTSecCode,TJStTPdtCode FROM QD8TJobMethod "
                    "INNER JOIN QD8TMRPStepName ON QD8TJobMethod.TJStTSepCode = QD8TMRPStepName.TSepCode WHERE TJstTJbMTJobNo=")
                + quoted(d->jobNo) + " AND TJstTJbMLn=" + d->jobLn + ") A",
            connection);
        if (rs.recordCount() == 1) {
            d->stepLn = rs.field(QStringLiteral("TJstLn")).toInt();
            d->productCode = rs.text(QStringLiteral("TJStTPdtCode"));
            const QString step = rs.text(QStringLiteral("TJStTSepCode"));
            rs.close();
            connection.close();
            d->takeStep(step);
        }
        d->changed();
        return true;
    } catch (const DbError& error) {
        d->report(error);
        return false;
    }
}

bool JobSelector::pickStep()
{
    if (d->jobNo.isEmpty() || d->jobLn <= 0) {
        Services::messages().information(bilingual("เลือกใบสั่งงาน", "Job selector"),
            d->jobNo.isEmpty() ? QStringLiteral("กรุณาเลือก ใบสั่งงาน") : QStringLiteral("กรุณาเลือก ลำดับที่ ในใบสั่งงาน"));
        return false;
    }
    try {
        const QString picked = d->runPick(stepListRequest());
        if (picked.isEmpty())
            return false;
        // TJstLn;TJstTSpdStep;TJstLevel;TJStTSepCode;TSepTSecCode;TJStTPdtCode
        const QStringList values = picked.split(QLatin1Char(';'));
        d->stepLn = values.value(0).toInt();
        d->productCode = values.value(5);
        d->takeStep(values.value(3));
        d->changed();
        return true;
    } catch (const DbError& error) {
        d->report(error);
        return false;
    }
}

bool JobSelector::pickProduction()
{
    try {
        const QString picked = d->runPick(productionListRequest());
        if (picked.isEmpty())
            return false;
        // TJobTPrjCode;TJobNo;TJobCode;TJbMLn;TJpMTJPDNo;TJPMLn;TJPMTSepCode;TSepName
        const QStringList v = picked.split(QLatin1Char(';'));
        d->takeJobRow({v.value(0), v.value(1), v.value(3), v.value(2)});
        d->productionNo = v.value(4);
        d->productionLn = v.value(5).toInt();
        Connection connection;
        connection.open(ConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TJPMTPdtCode FROM QD8VJobProduction WHERE TJPDNo=") + quoted(d->productionNo) + " AND TJPMLn="
                + d->productionLn,
            connection);
        d->productCode = rs.eof() ? QString() : rs.text(QStringLiteral("TJPMTPdtCode"));
        rs.close();
        connection.close();
        d->takeStep(v.value(6));
        d->changed();
        return true;
    } catch (const DbError& error) {
        d->report(error);
        return false;
    }
}

bool JobSelector::enterJob(const QString& text)
{
    const QString typed = text.trimmed();
    if (typed.isEmpty())
        return false;
    if (!d->optionsRead)
        d->readOptions();
    try {
        // A card is looked up as an open job card; a number among the open job lines.
        auto byCard = [&] {
            Connection connection;
            connection.open(ConnectionString());
            Recordset rs;
            rs.open(Sql("SELECT * FROM ") + cardSource() + " AND TJobCode=" + quoted(typed), connection);
            if (rs.eof())
                return std::optional<bool>();
            const QString number = rs.text(QStringLiteral("TJobNo"));
            rs.close();
            connection.close();
            return d->chooseJobLine(Sql(" AND TJobNo=") + quoted(number));
        };
        auto byNumber = [&] { return d->chooseJobLine(Sql(" AND TJobNo=") + quoted(typed)); };
        std::optional<bool> found = d->referenceMode == 1 ? byCard() : byNumber();
        if (!found)
            found = d->referenceMode == 1 ? byNumber() : byCard();
        if (!found) {
            Services::messages().information(bilingual("เลือกใบสั่งงาน", "Job selector"),
                bilingual("ไม่พบใบสั่งงานหรือบัตรงาน \"%1\" ที่เปิดอยู่", "No open job or job card \"%1\"").arg(typed));
            d->showChoice();
        }
        return found.value_or(false);
    } catch (const DbError& error) {
        d->report(error);
        d->showChoice();
        return false;
    }
}

bool JobSelector::enterStep(const QString& code)
{
    const QString typed = code.trimmed();
    if (typed.isEmpty() || d->jobNo.isEmpty())
        return false;
    try {
        Connection connection;
        connection.open(ConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT * FROM (SELECT TJstLn,TJstTSpdStep,TJstLevel,TJStTSepCode,TSepTSecCode,TJStTPdtCode FROM QD8TJobMethod "
                    "INNER JOIN QD8TMRPStepName ON QD8TJobMethod.TJStTSepCode = QD8TMRPStepName.TSepCode WHERE TJstTJbMTJobNo=")
                + quoted(d->jobNo) + " AND TJstTJbMLn=" + d->jobLn + ") A WHERE TJStTSepCode=" + quoted(typed),
            connection);
        if (rs.eof()) {
            Services::messages().information(bilingual("เลือกใบสั่งงาน", "Job selector"),
                bilingual("ไม่พบขั้นตอน \"%1\" ในใบสั่งงานนี้", "The job line has no step \"%1\"").arg(typed));
            d->showChoice();
            return false;
        }
        d->stepLn = rs.field(QStringLiteral("TJstLn")).toInt();
        d->productCode = rs.text(QStringLiteral("TJStTPdtCode"));
        rs.close();
        connection.close();
        d->takeStep(typed);
        d->changed();
        return true;
    } catch (const DbError& error) {
        d->report(error);
        d->showChoice();
        return false;
    }
}

void JobSelector::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->relabel();
    if (event->type() == QEvent::EnabledChange) {
        // Shown, not typed into, while the document is only viewed.
        for (QLineEdit* box : {d->jobBox, d->cardBox, d->stepBox})
            box->setReadOnly(!isEnabled());
    }
    HostedControl::changeEvent(event);
}

bool JobSelector::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return HostedControl::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_F2) {
        if (watched == d->stepBox)
            pickStep();
        else if (watched == d->cardBox) {
            try {
                PickRequest cards;
                cards.title = bilingual("เลือกบัตรงาน", "Choose a job card");
                cards.keyField = QStringLiteral("TJobCode");
                cards.fieldList = QStringLiteral("TJobCode,TJobNo,TJobDate,TJobCustomerName");
                cards.captionList = QStringLiteral("บัตรงาน,เลขที่ใบสั่งงาน,วันที่,ชื่อลูกค้า");
                cards.widthList = QStringLiteral("1400,1400,1200,3000");
                cards.typeList = QStringLiteral("0,0,0,0");
                cards.source = sourceText(cardSource() + " ORDER BY TJobDate DESC");
                cards.connectionString = ConnectionString();
                const QString card = d->runPick(cards);
                if (!card.isEmpty())
                    enterJob(card);
            } catch (const DbError& error) {
                d->report(error);
            }
        } else
            pickJob();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (watched == d->stepBox)
            enterStep(d->stepBox->text());
        else
            enterJob(static_cast<QLineEdit*>(watched)->text());
        return true;
    }
    if (key == Qt::Key_Escape) {
        // What was typed goes and the choice stays; with nothing typed Esc is the form's.
        const QString typed = static_cast<QLineEdit*>(watched)->text();
        d->showChoice();
        return typed != static_cast<QLineEdit*>(watched)->text();
    }
    return HostedControl::eventFilter(watched, event);
}

} // namespace qd8
